#include "GigapanPositions.h"

#include "GigapanToSPP.h"

double GigapanPositions::step(double fov, double overlap)
{
    return fov * (1.0 - overlap / 100.0);
}

QVector<StackPosition> GigapanPositions::compute(
    int rows, int columns, int order, double overlap, double hfov, double vfov, bool force360)
{
    if (rows < 1 || columns < 1 || order < 0 || order > 4)
        return {};
    const double yawStep = force360 ? 360.0 / columns : step(hfov, overlap);
    const double pitchStep = step(vfov, overlap);
    QVector<StackPosition> positions(rows * columns);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const qint64 index = GigapanToSPP::CellIndex(order, rows, columns, row, column);
            if (index < 0 || index >= positions.size())
                return {};
            StackPosition& p = positions[int(index)];
            p.yaw = (column - (columns - 1) / 2.0) * yawStep;
            // Row 0 is the top row.
            p.pitch = ((rows - 1) / 2.0 - row) * pitchStep;
            p.roll = 0.0;
        }
    }
    return positions;
}
