// The preview drawing shared by the wizard pages.
#include "LayoutPreview.h"

#include "GigapanToSPP.h"
#include "PagesLogging.h"
#include "ZIImageDef.h"

#include <QMap>
#include <QPainter>
#include <QRectF>
#include <QTextOption>
#include <QTransform>

#include <algorithm>
#include <climits>
#include <cmath>
#include <functional>

Q_LOGGING_CATEGORY(lcPages, "zph.pages")

namespace {

/// The thumbnail rotated by `roll` degrees, drawn whole into `cell`, then the
/// outline, then the label one pixel inside the cell.
void DrawCell(QPainter& painter, const QRectF& cell, const ZIImageDef* image, float roll,
    const QString& label)
{
    if (image) {
        QTransform rotation;
        rotation.rotate(roll);
        const QPixmap rotated = image->Thumbnail().transformed(rotation, Qt::FastTransformation);
        if (!rotated.isNull())
            painter.drawPixmap(cell, rotated, QRectF(rotated.rect()));
    }
    painter.drawRects(&cell, 1);
    painter.drawText(QRectF(cell.x() + 1, cell.y() + 1, cell.width() - 2, cell.height() - 2), label,
        QTextOption());
}

/// Draws the picture of a canvas of `full` pixels on `background`.
using Drawing = std::function<void(QPainter&)>;

QPixmap NewCanvas(const QSize& size, const QBrush& background)
{
    QPixmap canvas(size);
    if (canvas.isNull())
        return canvas;
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.fillRect(QRect(QPoint(0, 0), size), background);
    return canvas;
}

/// The picture of a `full`-sized canvas drawn onto a canvas of `size`: the
/// painter is scaled by size / full each way; no scaling when they agree.
/// Null when the canvas cannot be allocated.
QPixmap Render(const QSize& size, const QSize& full, const QBrush& background, const Drawing& draw)
{
    QPixmap canvas = NewCanvas(size, background);
    if (canvas.isNull())
        return canvas;
    QPainter painter(&canvas);
    if (size != full)
        painter.scale(double(size.width()) / full.width(), double(size.height()) / full.height());
    draw(painter);
    painter.end();
    return canvas;
}

/// The preview rule shared by shots and grids; `full` is the canvas that the
/// drawing is made for, paintable or not.
QPixmap Preview(const QSize& full, int percent, const QBrush& background, const Drawing& draw)
{
    if (full.isEmpty())
        return QPixmap();
    const QSize zoomed = LayoutPreview::ZoomedSize(full, percent);
    if (zoomed.isEmpty())
        return QPixmap();
    if (LayoutPreview::Paintable(full.width(), full.height()))
        return LayoutPreview::Zoom(Render(full, full, background, draw), percent);
    const QSize shown = LayoutPreview::LargestPaintable(zoomed);
    qCDebug(lcPages) << "preview canvas" << full << "is beyond what is painted; drawn scaled to"
                     << shown;
    QPixmap canvas = Render(LayoutPreview::LargestPaintable(full), full, background, draw);
    if (canvas.isNull())
        canvas = Render(shown, full, background, draw);
    if (canvas.isNull() || canvas.size() == shown)
        return canvas;
    return canvas.scaled(shown, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

void DrawShotCells(QPainter& painter, const QVector<ShootData>& shots,
    const QList<ZIImageDef*>& images, float scale, float yawMin, float pitchMin, float pitchMax)
{
    const float pitchSpan = std::fabs(pitchMax - pitchMin);
    for (int i = 0; i < shots.size(); ++i) {
        const ShootData& shot = shots[i];
        const float x = (shot.m_yaw - yawMin) * scale + 50;
        const float y = ((pitchSpan - shot.m_pitch) + pitchMin) * scale + 50;
        const QRectF cell(double(x) - 48, double(y) - 48, 96, 96);
        const QString label
            = QStringLiteral("%1 (%2,%3)").arg(i).arg(double(shot.m_yaw)).arg(double(shot.m_pitch));
        DrawCell(painter, cell, i < images.size() ? images[i] : nullptr, shot.m_roll, label);
    }
}

void DrawGridCells(QPainter& painter, int rows, int columns, int order,
    const QVector<ZIImageDef*>& cellImages)
{
    const int cellSize = LayoutPreview::GridCellSize(rows, columns);
    for (int a = 0; a < rows; ++a) {
        for (int b = 0; b < columns; ++b) {
            const qint64 k = GigapanToSPP::CellIndex(order, rows, columns, a, b);
            const QRectF cell(2 + b * cellSize, 2 + a * cellSize, cellSize, cellSize);
            ZIImageDef* image = (k >= 0 && k < cellImages.size()) ? cellImages[int(k)] : nullptr;
            DrawCell(painter, cell, image, 0.0f, k >= 0 ? QString::number(k) : QString());
        }
    }
}

} // namespace

float LayoutPreview::GridStep(const QVector<ShootData>& shots)
{
    float step = 360.0f;
    for (int i = 0; i + 1 < shots.size(); ++i) {
        const float dYaw = std::fabs(shots[i].m_yaw - shots[i + 1].m_yaw);
        const float dPitch = std::fabs(shots[i].m_pitch - shots[i + 1].m_pitch);
        if (dYaw != 0.0f && dYaw < step)
            step = dYaw;
        if (dPitch != 0.0f && dPitch < step)
            step = dPitch;
    }
    return step;
}

float LayoutPreview::Scale(float step)
{
    return 96.0f / std::max(8.0f, step);
}

QSize LayoutPreview::CanvasSize(
    float scale, float yawMin, float yawMax, float pitchMin, float pitchMax)
{
    const float width = std::fabs(yawMax - yawMin) * scale + 100;
    const float height = 100 + std::fabs(pitchMax - pitchMin) * scale;
    // Compared as floats first: an infinite or huge value must never reach int.
    if (!std::isfinite(width) || !std::isfinite(height) || width >= float(INT_MAX)
        || height >= float(INT_MAX) || width < 1 || height < 1)
        return QSize();
    return QSize(int(width), int(height));
}

bool LayoutPreview::Paintable(qint64 width, qint64 height)
{
    return width > 0 && height > 0 && width <= MaxSide && height <= MaxSide
        && width * height * 4 <= MaxBytes;
}

QSize LayoutPreview::LargestPaintable(const QSize& size)
{
    if (size.isEmpty() || Paintable(size.width(), size.height()))
        return size;
    const double width = size.width();
    const double height = size.height();
    const double factor = std::min({ 1.0, MaxSide / width, MaxSide / height,
        std::sqrt(double(MaxBytes) / 4 / (width * height)) });
    // The small excess keeps a side that the factor makes exactly MaxSide from
    // truncating one pixel short; the loop takes back any pixel too many.
    qint64 w = std::max<qint64>(1, qint64(width * factor + 1e-6));
    qint64 h = std::max<qint64>(1, qint64(height * factor + 1e-6));
    while (!Paintable(w, h)) {
        if (w >= h)
            --w;
        else
            --h;
    }
    return QSize(int(w), int(h));
}

QSize LayoutPreview::ZoomedSize(const QSize& size, int percent)
{
    return QSize(int(qint64(size.width()) * percent / 100), int(qint64(size.height()) * percent / 100));
}

QPixmap LayoutPreview::DrawShots(const QVector<ShootData>& shots, const QList<ZIImageDef*>& images,
    float yawMin, float yawMax, float pitchMin, float pitchMax, const QBrush& background)
{
    if (shots.isEmpty())
        return QPixmap();
    const float scale = Scale(GridStep(shots));
    const QSize size = CanvasSize(scale, yawMin, yawMax, pitchMin, pitchMax);
    if (!Paintable(size.width(), size.height()))
        return QPixmap();
    return Render(size, size, background, [&](QPainter& painter) {
        DrawShotCells(painter, shots, images, scale, yawMin, pitchMin, pitchMax);
    });
}

QPixmap LayoutPreview::PreviewShots(const QVector<ShootData>& shots,
    const QList<ZIImageDef*>& images, float yawMin, float yawMax, float pitchMin, float pitchMax,
    const QBrush& background, int percent)
{
    if (shots.isEmpty())
        return QPixmap();
    const float scale = Scale(GridStep(shots));
    const QSize size = CanvasSize(scale, yawMin, yawMax, pitchMin, pitchMax);
    if (!size.isValid()) {
        qCWarning(lcPages) << "preview not drawn: the recorded range" << yawMin << yawMax
                           << pitchMin << pitchMax << "has no finite canvas";
        return QPixmap();
    }
    return Preview(size, percent, background, [&](QPainter& painter) {
        DrawShotCells(painter, shots, images, scale, yawMin, pitchMin, pitchMax);
    });
}

int LayoutPreview::GridCellSize(int rows, int columns)
{
    const int longest = std::max(1, std::max(rows, columns));
    return std::clamp((GridFitSide - 4) / longest, 16, 96);
}

QSize LayoutPreview::GridCanvasSize(int rows, int columns)
{
    if (rows < 1 || columns < 1)
        return QSize();
    if (qint64(rows) * columns > MaxGridCells) {
        qCWarning(lcPages) << "preview not drawn: a grid of" << rows << "x" << columns
                           << "cells is too large";
        return QSize();
    }
    // Within MaxGridCells a side holds at most 20000 cells of at most 96 pixels.
    const int cellSize = GridCellSize(rows, columns);
    return QSize(columns * cellSize + 4, rows * cellSize + 4);
}

QPixmap LayoutPreview::DrawGrid(int rows, int columns, int order,
    const QVector<ZIImageDef*>& cellImages, const QBrush& background)
{
    const QSize size = GridCanvasSize(rows, columns);
    if (!size.isValid() || !Paintable(size.width(), size.height()))
        return QPixmap();
    return Render(size, size, background, [&](QPainter& painter) {
        DrawGridCells(painter, rows, columns, order, cellImages);
    });
}

QPixmap LayoutPreview::PreviewGrid(int rows, int columns, int order,
    const QVector<ZIImageDef*>& cellImages, const QBrush& background, int percent)
{
    const QSize size = GridCanvasSize(rows, columns);
    if (!size.isValid())
        return QPixmap();
    return Preview(size, percent, background, [&](QPainter& painter) {
        DrawGridCells(painter, rows, columns, order, cellImages);
    });
}

QPixmap LayoutPreview::Zoom(const QPixmap& canvas, int percent)
{
    if (canvas.isNull())
        return QPixmap();
    const int width = canvas.width() * percent / 100;
    const int height = canvas.height() * percent / 100;
    if (width <= 0 || height <= 0)
        return QPixmap();
    return canvas.scaled(width, height, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

QList<ZIImageDef*> LayoutPreview::OrderedByKey(const QList<ZIImageDef*>& defs)
{
    QMap<qint64, ZIImageDef*> byKey;
    for (ZIImageDef* def : defs)
        byKey.insert(def->OrderKey(), def);
    if (byKey.size() == defs.size())
        return byKey.values();
    return defs;
}
