// StitchCommand: "panohead stitch <project.pto>": reads the command line, runs
// the StitchPipeline (Hugin's programs from control points to the blended
// panorama) and prints each step's progress, the failure or the summary.
// Ctrl-C or SIGTERM stops the running program and leaves no partial panorama.
#pragma once

#include "Console.h"
#include "StitchPipeline.h"

#include <QString>
#include <QStringList>

class StitchCommand
{
public:
    using Options = StitchPipeline::Options;

    /// arguments: what follows "stitch". Exit code as ImportCommand::run.
    static int run(const QStringList& arguments, Console& console);

    /// Runs the stitch; 0 on success, 1 on failure or when stopped (reason
    /// written to console.err, naming the step).
    static int stitch(const Options& options, Console& console);

    static QString help();
};
