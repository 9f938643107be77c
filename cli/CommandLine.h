// The command line of the panohead program: "import" turns a head's record and
// the photographs into a Hugin project, a JSON description and a layout
// picture; "stitch" runs Hugin's tools on such a project up to the finished
// panorama; "batch" does both for many shoots. Usage text: `panohead --help`,
// `panohead import --help`, `panohead stitch --help`, `panohead batch --help`.
// Exit codes: ExitCode.h.
#pragma once

#include "Console.h"

#include <QStringList>

/// Runs one command. arguments: the program's arguments WITHOUT the program
/// name, starting with the command ("import", "stitch", "batch", "--help" or
/// "--version"), as QCoreApplication::arguments().mid(1) gives them. "import"
/// and "batch" draw layout pictures and need a QGuiApplication (the
/// offscreen platform is enough); the others need a QCoreApplication. Call on the
/// application's main thread. Writes progress to stdout and one-line errors
/// to stderr; SIGINT and SIGTERM stop the command while it runs. Returns the
/// process exit code (ExitCode).
int runCommandLine(const QStringList& arguments);

class CommandLine
{
public:
    /// runCommandLine with the output going to console.
    static int run(const QStringList& arguments, Console& console);

    /// True when argument names a command ("import", "stitch", "batch") rather than
    /// the import wizard.
    static bool isCommand(const QString& argument);
    /// True for the commands that draw pictures and need a QGuiApplication.
    static bool drawsPictures(const QString& command);

    /// "panohead --help": the wizard's options and the commands.
    static QString help();
    /// "panohead --version": this program's, Qt's and exiv2's versions and
    /// where Hugin's programs are.
    static QString version();
};
