#include "CommandLine.h"

#include "BatchCommand.h"
#include "ExitCode.h"
#include "ImportCommand.h"
#include "StitchCommand.h"
#include "StopSignals.h"
#include "ToolRunner.h"

#include <QTextStream>

#include <exiv2/exiv2.hpp>

#include <cstdio>
#include <unistd.h>

bool CommandLine::isCommand(const QString& argument)
{
    return argument == QLatin1String("import") || argument == QLatin1String("stitch")
        || argument == QLatin1String("batch");
}

bool CommandLine::drawsPictures(const QString& command)
{
    return command == QLatin1String("import") || command == QLatin1String("batch");
}

QString CommandLine::help()
{
    return QString::fromUtf8(
               "Usage: panohead [--locale <name>] [--plugin-dir <folder>]... [--settings <file>]\n"
               "       panohead import <head> [options] [<record>] <photographs>...\n"
               "       panohead stitch [options] <project.pto>\n"
               "       panohead batch [options] <folder of shoots | list file>...\n"
               "       panohead --help | --version\n"
               "\n"
               "Without a command, panohead opens the import wizard (it needs a display):\n"
               "  --locale <name>        user-interface language and country, such as fr_FR\n"
               "  --plugin-dir <folder>  also look for the plug-in library in <folder> (first)\n"
               "  --settings <file>      keep the settings in the INI file <file>\n"
               "\n"
               "Commands (none needs a display):\n"
               "  import   a head's record and photographs to a Hugin project, a description\n"
               "           and a layout picture (panohead import --help)\n"
               "  stitch   Hugin's tools on such a project, up to the panorama\n"
               "           (panohead stitch --help)\n"
               "  batch    many shoots in one call, on past the ones that fail, with a\n"
               "           summary table (panohead batch --help)\n"
               "\n"
               "  -h, --help     this text\n"
               "  -v, --version  the versions of panohead, Qt and exiv2, and where Hugin's\n"
               "                 programs are\n"
               "\n")
        + QLatin1String(ExitCode::Table());
}

QString CommandLine::version()
{
    QString text;
    QTextStream out(&text);
    out << "panohead " << PROJECT_VERSION_TEXT << '\n'
        << "Qt " << qVersion() << " (built with " << QT_VERSION_STR << ")\n"
        << "exiv2 " << QString::fromStdString(Exiv2::versionString()) << '\n'
        << "Hugin's programs:\n";
    const ToolRunner tools;
    int width = 0;
    for (const QString& tool : StitchPipeline::programs())
        width = qMax(width, tool.size() + 2);
    for (const QString& tool : StitchPipeline::programs()) {
        const QString path = tools.program(tool);
        out << "  " << qSetFieldWidth(width) << left << tool << qSetFieldWidth(0)
            << (path.isEmpty() ? QStringLiteral("not found (Debian package %1)")
                                     .arg(StitchCommand::package(tool))
                               : path)
            << '\n';
    }
    out.flush();
    return text;
}

int CommandLine::run(const QStringList& arguments, Console& console)
{
    const StopSignals stopSignals;
    // From here a signal is recorded; each command decides when it ends the
    // program at once (nothing of its own on disk) and when it cleans up first.
    StopSignals::clearExitAtOnce();
    const QString command = arguments.value(0);
    if (command == QLatin1String("import"))
        return ImportCommand::run(arguments.mid(1), console);
    if (command == QLatin1String("stitch"))
        return StitchCommand::run(arguments.mid(1), console);
    if (command == QLatin1String("batch"))
        return BatchCommand::run(arguments.mid(1), console);
    if (command == QLatin1String("--help") || command == QLatin1String("-h")) {
        console.out << help();
        console.out.flush();
        return ExitCode::Done;
    }
    if (command == QLatin1String("--version") || command == QLatin1String("-v")) {
        console.out << version();
        console.out.flush();
        return ExitCode::Done;
    }
    console.err << "panohead: unknown command \"" << command
                << "\"; the commands are import, stitch and batch (see panohead --help)\n";
    console.err.flush();
    return ExitCode::UsageError;
}

int runCommandLine(const QStringList& arguments)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    Console console { out, err, isatty(fileno(stdout)) != 0 };
    return CommandLine::run(arguments, console);
}
