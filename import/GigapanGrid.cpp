#include "GigapanGrid.h"

#include <cmath>

GigapanGrid GigapanGrid::Proposed(int photos)
{
    GigapanGrid grid;
    if (photos <= 0)
        return grid;
    // The square root of the count as a single-precision number, as the page
    // has always taken it.
    int rows = int(std::sqrt(double(float(photos)))) + 1;
    int columns = 0;
    do {
        --rows;
        columns = photos / rows + (photos % rows != 0 ? 1 : 0);
    } while (rows * columns != photos);
    grid.rows = rows;
    grid.columns = columns;
    return grid;
}

int GigapanGrid::Columns(int photos, int skip, int bracket, int rows)
{
    if (rows < 1 || bracket < 1)
        return 0;
    return (photos - skip) / bracket / rows;
}
