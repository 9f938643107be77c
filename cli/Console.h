// Console: where a command writes: its progress and results (out), its
// errors (err), and whether out is a terminal that can redraw a progress bar.
#pragma once

#include <QTextStream>

struct Console
{
    QTextStream& out;
    QTextStream& err;
    /// True when out is a terminal: progress bars redraw in place.
    bool interactive = false;
};
