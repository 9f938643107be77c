// StitchCommand: "panohead stitch <project.pto>": runs Hugin's tools on an
// imported project up to the finished panorama: control points (cpfind), the
// removal of points between stacks that no authorised link joins, cpclean,
// autooptimiser, pano_modify, nona and enblend. Hugin's tools do not always
// report a failure by their exit code, so every step's output is checked.
#pragma once

#include "Console.h"

#include <QString>
#include <QStringList>

class StitchCommand
{
public:
    struct Options
    {
        /// The imported Hugin project.
        QString project;
        /// The JSON description beside it; empty: the project's name with ".json".
        QString description;
        /// The panorama file (.tif or .jpg); empty: the project's name with ".tif".
        QString output;
        /// Where intermediate projects, pictures and logs go; empty: the
        /// project's name with ".stitch" beside it.
        QString workFolder;
        /// Where Hugin's programs are; empty: looked up in PATH.
        QString tools;
        /// Seconds any one program may run.
        int timeoutSeconds = 900;
    };

    /// arguments: what follows "stitch". Exit code as ImportCommand::run.
    static int run(const QStringList& arguments, Console& console);

    /// Runs the stitch; 0 on success, 1 on failure (reason written to
    /// console.err, naming the step).
    static int stitch(const Options& options, Console& console);

    static QString help();
};
