// ProgressBar: "Reading photographs [#######.............]  12/30" on the
// terminal, redrawn in place; when the output is not a terminal only the
// final line is written.
#pragma once

#include "Console.h"

#include <QString>

class ProgressBar
{
public:
    static constexpr int Width = 30;

    ProgressBar(Console& console, const QString& label, int total);

    /// done: how many of the total are finished. Redraws when it changed.
    void update(int done);
    /// Draws the final state and ends the line.
    void finish(int done);

    /// The line for done of total, without carriage return or new line.
    static QString line(const QString& label, int done, int total);

private:
    Console& m_console;
    QString m_label;
    int m_total;
    int m_shown = -1;
};
