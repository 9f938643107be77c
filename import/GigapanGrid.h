// GigapanGrid: the grid the Gigapan page proposes for a set of photographs,
// and the columns that follow from its rows. The cells' shooting order is
// GigapanToSPP::CellIndex.
#pragma once

struct GigapanGrid
{
    int rows = 1;
    int columns = 0;

    /// The proposal for `photos` photographs of one exposure each: the most
    /// rows, not above the square root of the number, that divide it, and as
    /// many columns as that leaves (a prime number gives one row). No
    /// photographs: one row of no columns.
    static GigapanGrid Proposed(int photos);

    /// The columns of a grid of `rows` rows over `photos` photographs of which
    /// the first `skip` are left out and `bracket` are taken at each cell; 0
    /// when rows or bracket is below 1.
    static int Columns(int photos, int skip, int bracket, int rows);
};
