// GigapanToSPP: a Gigapan head leaves no file; the user describes its grid
// (rows, columns, shooting order, bracketing, photos to skip). This converter
// groups the photos into one stack per grid cell, in shooting order, and links
// every pair of neighbouring cells, including the wrap-around of a full 360°
// panorama. It computes no angles: the description carries the grid instead.
#pragma once

#include "StructuredPanoramaProperties.h"

#include <QString>
#include <QStringList>

class GigapanToSPP : public StructuredPanoramaProperties
{
public:
    /// Stores the grid description; the description part gets the grid
    /// defaults (no shot data, auto detection on, overlap 25 %).
    GigapanToSPP(int rows, int columns, int order, int stackSize, int skipCount);

    /// Appends one stack of m_stackSize photos per grid cell, in shooting
    /// order, starting after the first m_skipCount photos, and the links
    /// between neighbouring cells (1 below, 2 right, 3 below right, 4 above
    /// right, always seen from the first stack); force360 also links the last
    /// column to the first. Sets the grid fields. Expects m_rows >= 1,
    /// m_stackSize >= 1, m_skipCount >= 0, m_order 0 to 4 and a grid that fits
    /// the photos after the skipped ones. Outside that: stacks are made only
    /// from photos that exist (none when m_stackSize < 1 or m_skipCount < 0),
    /// and no links are made (an empty list: no restriction known).
    /// Run once on a record whose stacks and links are empty.
    void generateSPP(const QStringList& files, bool force360);

    /// The shooting index of the cell in row (0 at the top) and column (0 at
    /// the left) of a grid shot in the given order: its position in shooting
    /// order after the skipped photos, which is also its stack index. The
    /// formula is applied as it stands for any row and column; -1 for an
    /// order outside 0 to 4.
    ///   0 columns from the left, each from the top down;
    ///   1 rows from the top, each from left to right;
    ///   2 rows from the bottom, each from left to right;
    ///   3 columns from the right, each from the top down;
    ///   4 serpentine rows from the bottom: left to right, then right to left.
    static qint64 CellIndex(int order, int rows, int columns, int row, int column);

    /// Images per grid position (bracketing), 1 or more.
    qint32 m_stackSize;
    /// Photos at the head of the list that are not part of the grid.
    qint32 m_skipCount;
    qint32 m_columns;
    qint32 m_rows;
    /// Shooting order, 0 to 4 (see CellIndex).
    qint32 m_order;
};
