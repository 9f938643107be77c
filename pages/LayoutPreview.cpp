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
#include <cmath>

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

bool FitsCanvas(qint64 width, qint64 height)
{
    return width > 0 && height > 0 && width <= LayoutPreview::MaxSide
        && height <= LayoutPreview::MaxSide && width * height <= LayoutPreview::MaxPixels;
}

QPixmap NewCanvas(const QSize& size, const QBrush& background)
{
    QPixmap canvas(size);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.fillRect(QRect(QPoint(0, 0), size), background);
    return canvas;
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
    if (!std::isfinite(width) || !std::isfinite(height) || width > float(MaxSide)
        || height > float(MaxSide))
        return QSize();
    const int w = int(width);
    const int h = int(height);
    if (!FitsCanvas(w, h))
        return QSize();
    return QSize(w, h);
}

QPixmap LayoutPreview::DrawShots(const QVector<ShootData>& shots, const QList<ZIImageDef*>& images,
    float yawMin, float yawMax, float pitchMin, float pitchMax, const QBrush& background)
{
    if (shots.isEmpty())
        return QPixmap();
    const float scale = Scale(GridStep(shots));
    const QSize size = CanvasSize(scale, yawMin, yawMax, pitchMin, pitchMax);
    if (!size.isValid()) {
        qCWarning(lcPages) << "preview not drawn: the recorded range" << yawMin << yawMax
                           << pitchMin << pitchMax << "is too large";
        return QPixmap();
    }
    QPixmap canvas = NewCanvas(size, background);
    QPainter painter(&canvas);
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
    painter.end();
    return canvas;
}

int LayoutPreview::GridCellSize(int rows, int columns)
{
    const int longest = std::max(1, std::max(rows, columns));
    return std::clamp((MaxSide - 4) / longest, 16, 96);
}

QPixmap LayoutPreview::DrawGrid(int rows, int columns, int order,
    const QVector<ZIImageDef*>& cellImages, const QBrush& background)
{
    if (rows < 1 || columns < 1)
        return QPixmap();
    if (qint64(rows) * columns > MaxGridCells) {
        qCWarning(lcPages) << "preview not drawn: a grid of" << rows << "x" << columns
                           << "cells is too large";
        return QPixmap();
    }
    const int cellSize = GridCellSize(rows, columns);
    const qint64 width = qint64(columns) * cellSize + 4;
    const qint64 height = qint64(rows) * cellSize + 4;
    if (!FitsCanvas(width, height))
        return QPixmap();
    QPixmap canvas = NewCanvas(QSize(int(width), int(height)), background);
    QPainter painter(&canvas);
    for (int a = 0; a < rows; ++a) {
        for (int b = 0; b < columns; ++b) {
            const qint64 k = GigapanToSPP::CellIndex(order, rows, columns, a, b);
            const QRectF cell(2 + b * cellSize, 2 + a * cellSize, cellSize, cellSize);
            ZIImageDef* image = (k >= 0 && k < cellImages.size()) ? cellImages[int(k)] : nullptr;
            DrawCell(painter, cell, image, 0.0f, k >= 0 ? QString::number(k) : QString());
        }
    }
    painter.end();
    return canvas;
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
