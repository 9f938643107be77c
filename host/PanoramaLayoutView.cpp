#include "PanoramaLayoutView.h"

#include "GigapanToSPP.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr double Pi = 3.141592653589793;

QColor directionColour(int direction)
{
    switch (direction) {
    case 1:
        return QColor(0x2f, 0x7e, 0xd8); // below
    case 2:
        return QColor(0x2e, 0xa0, 0x43); // right
    case 3:
    case 4:
        return QColor(0xe0, 0x8a, 0x1e); // diagonals
    default:
        return QColor(0x88, 0x88, 0x88); // no direction
    }
}

} // namespace

PanoramaLayoutView::Layout PanoramaLayoutView::StackPositions(
    const StructuredPanoramaProperties& record)
{
    Layout layout;
    const int stacks = record.m_stacks.size();
    const int angles = qMin(record.m_yaw.size(), record.m_pitch.size());
    if (angles > 0) {
        layout.angles = true;
        int shot = 0;
        for (int k = 0; k < stacks; ++k) {
            const int i = qMin(shot, angles - 1);
            layout.positions << QPointF(
                double(record.m_yaw[i]) * 180.0 / Pi, double(record.m_pitch[i]) * 180.0 / Pi);
            shot += qMax(1, int(record.m_stacks[k].size()));
        }
        return layout;
    }
    // An order the converter does not know has no grid: the stacks stand in
    // one row, in shooting order.
    const bool knownOrder = GigapanToSPP::CellIndex(record.m_gridOrder, 1, 1, 0, 0) >= 0;
    const int rows = knownOrder ? qMax(1, record.m_gridRows) : 1;
    const int cols = qMax(1, (stacks + rows - 1) / rows);
    const int order = knownOrder ? record.m_gridOrder : 1;
    layout.positions.fill(QPointF(), stacks);
    QVector<bool> placed(stacks, false);
    for (int a = 0; a < rows; ++a) {
        for (int b = 0; b < cols; ++b) {
            const qint64 k = GigapanToSPP::CellIndex(order, rows, cols, a, b);
            if (k >= 0 && k < stacks && !placed[int(k)]) {
                layout.positions[int(k)] = QPointF(b, -a);
                placed[int(k)] = true;
            }
        }
    }
    // Stacks beyond the grid's cells: in a row below it.
    int spare = 0;
    for (int k = 0; k < stacks; ++k) {
        if (!placed[k])
            layout.positions[k] = QPointF(spare++, -rows);
    }
    return layout;
}

PanoramaLayoutView::PanoramaLayoutView(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("PanoramaLayoutView"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

void PanoramaLayoutView::SetPanorama(const StructuredPanoramaProperties& record)
{
    m_record = record;
    m_layout = StackPositions(record);
    m_picture = QImage();
    update();
}

void PanoramaLayoutView::SetPicture(const QImage& picture)
{
    m_picture = picture;
    update();
}

QSize PanoramaLayoutView::sizeHint() const
{
    return QSize(480, 260);
}

QSize PanoramaLayoutView::minimumSizeHint() const
{
    return QSize(240, 140);
}

void PanoramaLayoutView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    Draw(painter, QRectF(rect()));
}

QImage PanoramaLayoutView::Render(const QSize& size) const
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(palette().color(QPalette::Base));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    Draw(painter, QRectF(QPointF(0, 0), QSizeF(size)));
    return image;
}

void PanoramaLayoutView::Draw(QPainter& painter, const QRectF& area) const
{
    if (!m_picture.isNull()) {
        const QSizeF shown = QSizeF(m_picture.size()).scaled(area.size(), Qt::KeepAspectRatio);
        const QRectF target(area.center() - QPointF(shown.width(), shown.height()) / 2.0, shown);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(target, m_picture);
        return;
    }
    const QVector<QPointF>& points = m_layout.positions;
    painter.setPen(palette().color(QPalette::Text));
    if (points.isEmpty()) {
        painter.drawText(area, Qt::AlignCenter, tr("No positions to draw"));
        return;
    }

    // Bounds of the positions, at least one degree (or cell) wide and high.
    double left = points.first().x(), right = left;
    double bottom = points.first().y(), top = bottom;
    for (const QPointF& p : points) {
        left = qMin(left, p.x());
        right = qMax(right, p.x());
        bottom = qMin(bottom, p.y());
        top = qMax(top, p.y());
    }
    // y grows upward here: the rectangle's "top" field holds the lowest value.
    QRectF bounds(QPointF(left, bottom), QPointF(right, top));
    if (bounds.width() < 1.0)
        bounds.adjust(-0.5, 0, 0.5, 0);
    if (bounds.height() < 1.0)
        bounds.adjust(0, -0.5, 0, 0.5);

    const double margin = 36.0;
    const QRectF inner = area.adjusted(margin, margin + 8, -margin, -margin - 16);
    // One scale for both axes: degrees keep their proportions, grid cells stay square.
    const double sx = qMin(inner.width() / bounds.width(), inner.height() / bounds.height());
    const double sy = sx;
    const QPointF origin(inner.center().x() - bounds.center().x() * sx,
        inner.center().y() + bounds.center().y() * sy);
    auto place = [&](const QPointF& p) {
        return QPointF(origin.x() + p.x() * sx, origin.y() - p.y() * sy);
    };

    // Links first, under the dots. A link that wraps round the panorama's
    // seam (a jump of more than half the width) is dashed.
    const double seam = m_layout.angles ? 180.0 : bounds.width() / 2.0 + 0.5;
    for (const AuthorizedLink& link : m_record.m_links) {
        if (link.m_stackIndices.size() < 2)
            continue;
        const int from = link.m_stackIndices[0];
        const int to = link.m_stackIndices[1];
        if (from < 0 || to < 0 || from >= points.size() || to >= points.size())
            continue;
        QPen pen(directionColour(link.m_direction), 1.6);
        if (std::abs(points[to].x() - points[from].x()) > seam)
            pen.setStyle(Qt::DashLine);
        painter.setPen(pen);
        if (from == to) {
            painter.drawEllipse(place(points[from]) + QPointF(0, -9), 5, 5);
            continue;
        }
        painter.drawLine(place(points[from]), place(points[to]));
    }

    // Dots with their stack numbers.
    const QColor dot = palette().color(QPalette::Highlight);
    QFont font = painter.font();
    font.setPointSizeF(qMax(6.0, font.pointSizeF() * 0.8));
    painter.setFont(font);
    for (int k = 0; k < points.size(); ++k) {
        const QPointF c = place(points[k]);
        painter.setPen(QPen(palette().color(QPalette::Text), 1));
        painter.setBrush(dot);
        painter.drawEllipse(c, 4.5, 4.5);
        painter.setBrush(Qt::NoBrush);
        painter.drawText(QRectF(c.x() + 5, c.y() - 18, 40, 14), Qt::AlignLeft, QString::number(k));
        if (m_layout.angles) {
            painter.setPen(palette().color(QPalette::PlaceholderText));
            painter.drawText(QRectF(c.x() - 40, c.y() + 6, 80, 14), Qt::AlignHCenter,
                QStringLiteral("%1°, %2°")
                    .arg(points[k].x(), 0, 'g', 4)
                    .arg(points[k].y(), 0, 'g', 4));
        }
    }

    // Legend.
    const struct
    {
        int direction;
        QString text;
    } legend[] = { { 1, tr("below") }, { 2, tr("right") }, { 3, tr("diagonal") },
        { 0, tr("no direction") } };
    double x = area.left() + 8;
    const double y = area.bottom() - 10;
    for (const auto& entry : legend) {
        painter.setPen(QPen(directionColour(entry.direction), 2));
        painter.drawLine(QPointF(x, y - 4), QPointF(x + 18, y - 4));
        painter.setPen(palette().color(QPalette::Text));
        const QString text = entry.text;
        painter.drawText(QPointF(x + 22, y), text);
        x += 30 + painter.fontMetrics().horizontalAdvance(text);
    }
    painter.setPen(palette().color(QPalette::Text));
    const QString axes
        = m_layout.angles ? tr("yaw →, pitch ↑ (degrees)") : tr("grid: columns →, rows ↓");
    painter.drawText(
        QRectF(area.left(), area.top() + 4, area.width() - 8, 16), Qt::AlignRight, axes);
}
