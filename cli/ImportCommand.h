// ImportCommand: "panohead import <head> ...": reads a head's record and the
// photographs, runs the head's converter with the choices a user makes on the
// head's import page, and writes the Hugin project, the JSON description and
// the layout picture; optionally stitches right away.
#pragma once

#include "Console.h"

#include <QStringList>

class ImportCommand
{
public:
    /// arguments: what follows "import" (the head first). Returns the exit
    /// code: 0 done, 1 the work failed, 2 a usage error.
    static int run(const QStringList& arguments, Console& console);

    /// The usage text.
    static QString help();
};
