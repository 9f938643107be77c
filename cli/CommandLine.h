// The command line of the panohead program: "import" turns a head's record and
// the photographs into a Hugin project, a JSON description and a layout
// picture; "stitch" runs Hugin's tools on such a project up to the finished
// panorama. Usage text: `panohead import --help`, `panohead stitch --help`.
#pragma once

#include "Console.h"

#include <QStringList>

/// Runs one command. arguments: the program's arguments WITHOUT the program
/// name, starting with the command ("import" or "stitch"), as
/// QCoreApplication::arguments().mid(1) gives them. Needs a QGuiApplication
/// (the offscreen platform is enough) to exist on the calling thread, which
/// must be the application's main thread. Writes progress to stdout and
/// one-line errors to stderr. Returns the process exit code: 0 on success,
/// 1 for a failure of the work, 2 for a usage error.
int runCommandLine(const QStringList& arguments);

class CommandLine
{
public:
    /// runCommandLine with the output going to console.
    static int run(const QStringList& arguments, Console& console);
};
