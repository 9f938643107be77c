#include "CommandLine.h"

#include "ImportCommand.h"
#include "StitchCommand.h"

#include <QTextStream>

#include <cstdio>
#include <unistd.h>

int CommandLine::run(const QStringList& arguments, Console& console)
{
    const QString command = arguments.value(0);
    if (command == QLatin1String("import"))
        return ImportCommand::run(arguments.mid(1), console);
    if (command == QLatin1String("stitch"))
        return StitchCommand::run(arguments.mid(1), console);
    console.err << "panohead: unknown command \"" << command
                << "\"; the commands are import and stitch\n";
    console.err.flush();
    return 2;
}

int runCommandLine(const QStringList& arguments)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    Console console { out, err, isatty(fileno(stdout)) != 0 };
    return CommandLine::run(arguments, console);
}
