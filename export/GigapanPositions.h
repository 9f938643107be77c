// GigapanPositions: where each cell of a Gigapan grid points. The head steps
// by the picture's field of view less the overlap, row by row and column by
// column; the grid is centred on yaw 0 and on the horizon. A 360° grid
// spreads its columns evenly around the circle instead.
#pragma once

#include "StackPosition.h"

#include <QVector>

class GigapanPositions
{
public:
    /// One position per grid cell, indexed by the cell's stack index (its
    /// place in shooting order, GigapanToSPP::CellIndex). rows, columns >= 1;
    /// order 0 to 4; overlap in percent of the field of view; hfov and vfov in
    /// degrees (of the picture as it stands on the head). Empty for a grid
    /// without cells or an unknown order.
    static QVector<StackPosition> compute(
        int rows, int columns, int order, double overlap, double hfov, double vfov, bool force360);

    /// Degrees between neighbouring columns (rows: pass vfov).
    static double step(double fov, double overlap);
};
