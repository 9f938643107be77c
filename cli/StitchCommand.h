// StitchCommand: "panohead stitch <project.pto>": reads the command line,
// checks the project, its description and photographs, the panorama's folder
// and Hugin's tools, runs the StitchPipeline (Hugin's programs from control
// points to the blended panorama) and prints each step's progress, the
// failure or the summary. Ctrl-C or SIGTERM stops the running program and
// leaves no partial panorama; an older panorama stays until the new one is
// complete.
#pragma once

#include "Console.h"
#include "StitchPipeline.h"

#include <QString>
#include <QStringList>

class StitchCommand
{
public:
    using Options = StitchPipeline::Options;

    /// Longest --timeout, seconds (a day).
    static constexpr int MaxTimeoutSeconds = 86400;

    /// arguments: what follows "stitch". Returns an ExitCode.
    static int run(const QStringList& arguments, Console& console);

    /// Checks and runs the stitch; force: replace an existing panorama.
    /// Returns an ExitCode, the reason written to console.err in one line.
    static int stitch(const Options& options, bool force, Console& console);

    /// The Debian package that holds one of Hugin's programs.
    static QString package(const QString& tool);

    static QString help();
};
