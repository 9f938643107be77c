#include "LayoutPicture.h"

#include "FieldOfView.h"

#include <QFont>
#include <QPainter>
#include <QPen>

#include <cmath>

namespace {

struct Cell
{
    double yaw = 0.0;
    double pitch = 0.0;
    double roll = 0.0;
    /// Degrees across the stored width and height.
    double width = 0.0;
    double height = 0.0;
    QImage thumbnail;
};

QColor linkColour(int direction)
{
    switch (direction) {
    case 1:
        return QColor(90, 160, 255);
    case 2:
        return QColor(90, 220, 110);
    case 3:
    case 4:
        return QColor(255, 170, 60);
    default:
        return QColor(200, 200, 200);
    }
}

double wrapped(double degrees)
{
    double d = std::fmod(degrees, 360.0);
    if (d > 180.0)
        d -= 360.0;
    else if (d <= -180.0)
        d += 360.0;
    return d;
}

} // namespace

QImage LayoutPicture::render(const ExportInput& input)
{
    const QVector<QStringList>& stacks = input.panorama.m_stacks;
    if (stacks.isEmpty())
        return QImage();
    const LensModel lens = input.lens == LensFisheye ? LensFisheye : LensStandard;

    QVector<Cell> cells(stacks.size());
    double yawMin = 1e9, yawMax = -1e9, pitchMin = 1e9, pitchMax = -1e9;
    for (int k = 0; k < stacks.size(); ++k) {
        Cell& cell = cells[k];
        // A position that is not a number is drawn at the origin.
        if (k < input.positions.size()) {
            const StackPosition& p = input.positions[k];
            cell.yaw = std::isfinite(p.yaw) ? wrapped(p.yaw) : 0.0;
            cell.pitch = std::isfinite(p.pitch) ? qBound(-90.0, p.pitch, 90.0) : 0.0;
            cell.roll = std::isfinite(p.roll) ? p.roll : 0.0;
        }
        const auto info = stacks[k].isEmpty() ? input.images.constEnd()
                                              : input.images.constFind(stacks[k].first());
        int w = 3, h = 2;
        if (info != input.images.constEnd()) {
            if (info->pixelSize.width() > 0 && info->pixelSize.height() > 0) {
                w = info->pixelSize.width();
                h = info->pixelSize.height();
            }
            cell.roll += info->orientationRoll();
            cell.thumbnail = info->thumbnail;
        }
        cell.width = FieldOfView::horizontal(input.focalLength, lens, w, h);
        cell.height = FieldOfView::vertical(input.focalLength, lens, w, h);
        if (!(cell.width > 0.0) || !std::isfinite(cell.width) || !std::isfinite(cell.height)) {
            // Without a focal length, draw cells of a nominal 40° width.
            cell.width = 40.0;
            cell.height = 40.0 * h / w;
        }
        const double half = std::hypot(cell.width, cell.height) / 2.0;
        yawMin = qMin(yawMin, cell.yaw - half);
        yawMax = qMax(yawMax, cell.yaw + half);
        pitchMin = qMin(pitchMin, cell.pitch - half);
        pitchMax = qMax(pitchMax, cell.pitch + half);
    }
    yawMin = qMax(yawMin, -200.0);
    yawMax = qMin(yawMax, 200.0);
    pitchMin = qMax(pitchMin, -95.0);
    pitchMax = qMin(pitchMax, 95.0);

    const int margin = 40;
    const double spanX = yawMax - yawMin;
    const double spanY = pitchMax - pitchMin;
    const double scale = qMin(
        8.0, qMin((MaximumSide - 2.0 * margin) / spanX, (MaximumSide - 2.0 * margin) / spanY));
    const QSize size(qMin(MaximumSide, int(std::ceil(spanX * scale)) + 2 * margin),
        qMin(MaximumSide, int(std::ceil(spanY * scale)) + 2 * margin));
    const auto toPixel = [&](double yaw, double pitch) {
        return QPointF(margin + (yaw - yawMin) * scale, margin + (pitchMax - pitch) * scale);
    };

    QImage picture(size, QImage::Format_RGB32);
    picture.fill(QColor(38, 42, 48));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QFont font = painter.font();
    font.setPixelSize(12);
    painter.setFont(font);

    // Graticule every 30 degrees, the horizon stronger.
    for (int yaw = -180; yaw <= 180; yaw += 30) {
        if (yaw < yawMin || yaw > yawMax)
            continue;
        painter.setPen(QPen(QColor(70, 76, 86), 1));
        painter.drawLine(toPixel(yaw, pitchMin), toPixel(yaw, pitchMax));
        painter.setPen(QColor(150, 155, 165));
        painter.drawText(
            toPixel(yaw, pitchMin) + QPointF(3, margin / 2.0), QStringLiteral("%1°").arg(yaw));
    }
    for (int pitch = -90; pitch <= 90; pitch += 30) {
        if (pitch < pitchMin || pitch > pitchMax)
            continue;
        painter.setPen(
            QPen(pitch == 0 ? QColor(120, 128, 140) : QColor(70, 76, 86), pitch == 0 ? 2 : 1));
        painter.drawLine(toPixel(yawMin, pitch), toPixel(yawMax, pitch));
        painter.setPen(QColor(150, 155, 165));
        painter.drawText(
            toPixel(yawMin, pitch) + QPointF(-margin + 4, -3), QStringLiteral("%1°").arg(pitch));
    }

    // Photographs, last stack first so that the first ones lie on top.
    for (int k = cells.size() - 1; k >= 0; --k) {
        const Cell& cell = cells[k];
        const QSizeF extent(cell.width * scale, cell.height * scale);
        painter.save();
        painter.translate(toPixel(cell.yaw, cell.pitch));
        painter.rotate(cell.roll);
        const QRectF rect(
            -extent.width() / 2, -extent.height() / 2, extent.width(), extent.height());
        if (!cell.thumbnail.isNull()) {
            painter.setOpacity(0.85);
            painter.drawImage(rect, cell.thumbnail);
            painter.setOpacity(1.0);
        }
        painter.setPen(QPen(QColor(235, 235, 235), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect);
        painter.restore();
    }

    // Links between stack centres.
    for (const AuthorizedLink& link : input.panorama.m_links) {
        if (link.m_stackIndices.size() < 2)
            continue;
        const int a = link.m_stackIndices[0];
        const int b = link.m_stackIndices[1];
        if (a < 0 || b < 0 || a >= cells.size() || b >= cells.size() || a == b)
            continue;
        painter.setPen(QPen(linkColour(link.m_direction), 2.5, Qt::SolidLine, Qt::RoundCap));
        const double dy = cells[b].yaw - cells[a].yaw;
        if (std::fabs(dy) <= 180.0) {
            painter.drawLine(
                toPixel(cells[a].yaw, cells[a].pitch), toPixel(cells[b].yaw, cells[b].pitch));
        } else {
            // Across the seam: out of one edge, in from the other.
            const double shift = dy > 0 ? -360.0 : 360.0;
            painter.drawLine(toPixel(cells[a].yaw, cells[a].pitch),
                toPixel(cells[b].yaw + shift, cells[b].pitch));
            painter.drawLine(toPixel(cells[a].yaw - shift, cells[a].pitch),
                toPixel(cells[b].yaw, cells[b].pitch));
        }
    }

    // Stack numbers.
    QFont bold = font;
    bold.setBold(true);
    bold.setPixelSize(14);
    painter.setFont(bold);
    for (int k = 0; k < cells.size(); ++k) {
        const QPointF centre = toPixel(cells[k].yaw, cells[k].pitch);
        const QRectF label(centre.x() - 14, centre.y() - 10, 28, 20);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 170));
        painter.drawRoundedRect(label, 5, 5);
        painter.setPen(Qt::white);
        painter.drawText(label, Qt::AlignCenter, QString::number(k));
    }

    painter.setFont(font);
    painter.setPen(QColor(220, 220, 220));
    painter.drawText(QPointF(8, 16),
        QStringLiteral("%1 stacks, %2 authorised links, %3 mm%4")
            .arg(cells.size())
            .arg(input.panorama.m_links.size())
            .arg(input.focalLength, 0, 'g', 4)
            .arg(lens == LensFisheye ? QStringLiteral(" fisheye") : QString()));
    painter.end();
    return picture;
}

bool LayoutPicture::write(const ExportInput& input, const QString& path, QString* error)
{
    const QImage picture = render(input);
    if (picture.isNull()) {
        if (error)
            *error = QStringLiteral("the panorama has no stack to draw");
        return false;
    }
    if (!picture.save(path, "PNG")) {
        if (error)
            *error = QStringLiteral("cannot write %1").arg(path);
        return false;
    }
    return true;
}
