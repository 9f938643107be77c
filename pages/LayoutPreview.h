// LayoutPreview: draws the shot layout that a wizard page previews. Each shot
// (or grid position) is a 96-pixel cell holding the thumbnail of its photograph,
// rotated by the shot's roll, outlined and labelled. Pure drawing: the pages
// decide what to draw and when. GUI thread only (pixmaps).
#pragma once

#include "ShootData.h"

#include <QBrush>
#include <QList>
#include <QPixmap>
#include <QSize>
#include <QVector>

class ZIImageDef;

class LayoutPreview
{
public:
    /// Largest side and area of a canvas, in pixels; a layout that would need
    /// more (absurd or unread angles) is not drawn.
    static constexpr int MaxSide = 16384;
    static constexpr qint64 MaxPixels = qint64(64) * 1024 * 1024;
    /// Largest grid drawn by DrawGrid, in cells.
    static constexpr qint64 MaxGridCells = 20000;

    /// The smallest non-zero yaw or pitch difference between consecutive shots,
    /// degrees, single precision; 360 when there is none.
    static float GridStep(const QVector<ShootData>& shots);
    /// Pixels per degree: 96 / max(8, step), so closer shots are drawn as if
    /// 8 degrees apart.
    static float Scale(float step);
    /// The canvas for a yaw and pitch range in degrees: |range| x scale + 100
    /// pixels each way, truncated. An invalid size when it is not finite or
    /// exceeds MaxSide or MaxPixels.
    static QSize CanvasSize(
        float scale, float yawMin, float yawMax, float pitchMin, float pitchMax);
    /// The layout of `shots` on a canvas of CanvasSize filled with `background`:
    /// shot i at its yaw and pitch (higher pitch higher up) with the thumbnail
    /// of images[i] when there is one, and the label "i (yaw,pitch)". A null
    /// pixmap when there is no shot or the canvas cannot be made.
    static QPixmap DrawShots(const QVector<ShootData>& shots, const QList<ZIImageDef*>& images,
        float yawMin, float yawMax, float pitchMin, float pitchMax, const QBrush& background);
    /// Side of one grid cell in DrawGrid: 96, smaller (down to 16) for grids
    /// that would exceed MaxSide.
    static int GridCellSize(int rows, int columns);
    /// A rows x columns grid, row 0 at the top, column 0 at the left; the cell
    /// of shooting index k (GigapanToSPP::CellIndex for `order`) shows the
    /// thumbnail of cellImages[k] when it is there and not null, and the label
    /// "k". Canvas: columns x cell + 4 by rows x cell + 4. A null pixmap for
    /// an empty grid or one beyond MaxGridCells, MaxSide or MaxPixels.
    static QPixmap DrawGrid(int rows, int columns, int order,
        const QVector<ZIImageDef*>& cellImages, const QBrush& background);
    /// `canvas` scaled to percent / 100 of its width and height (integer
    /// arithmetic, truncating), ignoring the aspect ratio, fast transformation.
    /// A null pixmap when a side comes to 0.
    static QPixmap Zoom(const QPixmap& canvas, int percent);
    /// The definitions in ascending ZIImageDef::OrderKey() order when all keys
    /// differ; otherwise `defs` as given.
    static QList<ZIImageDef*> OrderedByKey(const QList<ZIImageDef*>& defs);
};
