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
    /// Largest side that the raster engine paints, in pixels.
    static constexpr int MaxSide = 32767;
    /// Largest canvas in bytes, at 4 bytes a pixel (ARGB32).
    static constexpr qint64 MaxBytes = qint64(512) * 1024 * 1024;
    /// Largest grid drawn by DrawGrid, in cells: beyond it every cell would
    /// cost a label on the GUI thread for a picture whose cells are smaller
    /// than a pixel once it is fitted into MaxSide.
    static constexpr qint64 MaxGridCells = 20000;
    /// The side that grid cells shrink towards for long grids (see GridCellSize).
    static constexpr int GridFitSide = 16384;

    /// The smallest non-zero yaw or pitch difference between consecutive shots,
    /// degrees, single precision; 360 when there is none.
    static float GridStep(const QVector<ShootData>& shots);
    /// Pixels per degree: 96 / max(8, step), so closer shots are drawn as if
    /// 8 degrees apart.
    static float Scale(float step);
    /// The canvas for a yaw and pitch range in degrees: |range| x scale + 100
    /// pixels each way, truncated. An invalid size when a side is not finite or
    /// does not fit an int; a valid size may still be beyond Paintable.
    static QSize CanvasSize(
        float scale, float yawMin, float yawMax, float pitchMin, float pitchMax);
    /// True when a canvas of width x height pixels can be painted: each side
    /// from 1 to MaxSide and at most MaxBytes.
    static bool Paintable(qint64 width, qint64 height);
    /// `size` itself when Paintable, otherwise the largest paintable size of
    /// nearly the same proportions (each side at least 1). An invalid size
    /// stays invalid.
    static QSize LargestPaintable(const QSize& size);
    /// `size` scaled to percent / 100 each way, integer arithmetic, truncating;
    /// 64 bits wide so that no canvas overflows.
    static QSize ZoomedSize(const QSize& size, int percent);

    /// The layout of `shots` on a canvas of CanvasSize filled with `background`:
    /// shot i at its yaw and pitch (higher pitch higher up) with the thumbnail
    /// of images[i] when there is one, and the label "i (yaw,pitch)". A null
    /// pixmap when there is no shot or the canvas is not Paintable.
    static QPixmap DrawShots(const QVector<ShootData>& shots, const QList<ZIImageDef*>& images,
        float yawMin, float yawMax, float pitchMin, float pitchMax, const QBrush& background);
    /// What a page shows of `shots` at `percent` per cent: Zoom(DrawShots(...))
    /// whenever the canvas is Paintable; otherwise the same picture drawn at
    /// the largest scale whose canvas is paintable and scaled from there to the
    /// zoomed size, or to the largest paintable size when the zoomed size is
    /// not paintable. A null pixmap when there is no shot, the range is not
    /// finite or a zoomed side comes to 0.
    static QPixmap PreviewShots(const QVector<ShootData>& shots, const QList<ZIImageDef*>& images,
        float yawMin, float yawMax, float pitchMin, float pitchMax, const QBrush& background,
        int percent);

    /// Side of one grid cell in DrawGrid: 96, smaller (down to 16) for grids
    /// whose longest side would exceed GridFitSide.
    static int GridCellSize(int rows, int columns);
    /// The canvas of a rows x columns grid: columns x cell + 4 by
    /// rows x cell + 4. Invalid for an empty grid or one beyond MaxGridCells.
    static QSize GridCanvasSize(int rows, int columns);
    /// A rows x columns grid, row 0 at the top, column 0 at the left; the cell
    /// of shooting index k (GigapanToSPP::CellIndex for `order`) shows the
    /// thumbnail of cellImages[k] when it is there and not null, and the label
    /// "k". Canvas: GridCanvasSize. A null pixmap when that is invalid or not
    /// Paintable.
    static QPixmap DrawGrid(int rows, int columns, int order,
        const QVector<ZIImageDef*>& cellImages, const QBrush& background);
    /// What the Gigapan page shows of the grid at `percent` per cent, by the
    /// rule of PreviewShots: Zoom(DrawGrid(...)) whenever its canvas is
    /// Paintable, a scaled drawing otherwise.
    static QPixmap PreviewGrid(int rows, int columns, int order,
        const QVector<ZIImageDef*>& cellImages, const QBrush& background, int percent);

    /// `canvas` scaled to percent / 100 of its width and height (integer
    /// arithmetic, truncating), ignoring the aspect ratio, fast transformation.
    /// A null pixmap when a side comes to 0.
    static QPixmap Zoom(const QPixmap& canvas, int percent);
    /// The definitions in ascending ZIImageDef::OrderKey() order when all keys
    /// differ; otherwise `defs` as given.
    static QList<ZIImageDef*> OrderedByKey(const QList<ZIImageDef*>& defs);
};
