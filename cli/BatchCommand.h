// BatchCommand: "panohead batch": imports (and with --stitch stitches) many
// shoots in one call, going on past a shoot that fails, and ends with a table
// of every shoot's outcome. The shoots are the sub-folders of a folder (each
// holding its photographs and at most one record, whose kind names the head),
// or the lines of a list file (each line an import's arguments).
#pragma once

#include "Console.h"

#include <QString>
#include <QStringList>

class BatchCommand
{
public:
    /// arguments: what follows "batch". Returns ExitCode::Done when every
    /// shoot was done, else the exit code of the first shoot that failed.
    static int run(const QStringList& arguments, Console& console);

    /// The head and import arguments for the shoot folder, as "import"
    /// takes them (head first); false with one line in *error when the
    /// folder holds more than one record.
    static bool shootArguments(const QString& folder, QStringList* arguments, QString* error);

    static QString help();
};
