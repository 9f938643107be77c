// Draws the UI library's interface pictures into the resource folder:
//   zui_pictures <ui/resources>
// Run by hand when a picture changes; the PNGs it writes are kept with the
// sources. Simple vector drawings, no text, so the output does not depend on
// the fonts installed.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <cstdio>
#include <functional>

namespace {

using Drawing = std::function<void(QPainter&)>;

const QColor kInk(0x40, 0x40, 0x40);
const QColor kAccent(0x2a, 0x7a, 0xd8);

/// Draws `drawing` on a logical 16 x 16 canvas (or `logical` square) scaled by
/// `scale`, and saves it.
bool Save(const QString& path, int logical, qreal scale, const Drawing& drawing)
{
    const int side = qRound(logical * scale);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        drawing(painter);
    }
    if (!image.save(path, "PNG", 9)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

/// A picture at 1x and its "@2x" companion.
bool SaveBoth(const QString& dir, const QString& name, int logical, const Drawing& drawing)
{
    return Save(dir + QLatin1Char('/') + name + QStringLiteral(".png"), logical, 1.0, drawing)
        && Save(dir + QLatin1Char('/') + name + QStringLiteral("@2x.png"), logical, 2.0, drawing);
}

void WaitFrame(QPainter& p, int frame)
{
    // Twelve dots on a ring; the lit one walks clockwise, its two followers fade.
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 12; ++i) {
        const int age = (frame - i + 12) % 12;
        QColor c = kInk;
        c.setAlpha(age == 0 ? 255 : age == 1 ? 170 : age == 2 ? 110 : 50);
        p.setBrush(c);
        const qreal a = qDegreesToRadians(i * 30.0 - 90.0);
        p.drawEllipse(QPointF(8 + 5.5 * qCos(a), 8 + 5.5 * qSin(a)), 1.3, 1.3);
    }
}

void Gear(QPainter& p, QPointF centre, qreal radius, const QColor& colour)
{
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    for (int i = 0; i < 8; ++i) {
        p.save();
        p.translate(centre);
        p.rotate(i * 45.0);
        p.drawRect(QRectF(-radius * 0.18, -radius, radius * 0.36, radius * 0.5));
        p.restore();
    }
    QPainterPath ring;
    ring.addEllipse(centre, radius * 0.72, radius * 0.72);
    ring.addEllipse(centre, radius * 0.3, radius * 0.3);
    p.drawPath(ring);
}

void Triangle(QPainter& p, const QPolygonF& points, const QColor& colour)
{
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPolygon(points);
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: zui_pictures <ui/resources>\n");
        return 2;
    }
    const QString root = QString::fromLocal8Bit(argv[1]);
    const QString ui = root + QStringLiteral("/UI");
    const QString resources = root + QStringLiteral("/Resources");
    QDir().mkpath(ui);
    QDir().mkpath(resources);

    bool ok = true;
    for (int frame = 0; frame < 12; ++frame) {
        const QString name
            = QStringLiteral("%1/iconwait_%2.png").arg(ui).arg(frame + 1, 2, 10, QLatin1Char('0'));
        ok &= Save(name, 16, 1.0, [frame](QPainter& p) { WaitFrame(p, frame); });
    }

    // Video controls, each with an "@2x" companion.
    ok &= SaveBoth(ui, QStringLiteral("video_play"), 16, [](QPainter& p) {
        Triangle(p, QPolygonF({ { 4, 3 }, { 13, 8 }, { 4, 13 } }), kInk);
    });
    ok &= SaveBoth(ui, QStringLiteral("video_pause"), 16, [](QPainter& p) {
        p.fillRect(QRectF(4, 3, 3, 10), kInk);
        p.fillRect(QRectF(9, 3, 3, 10), kInk);
    });
    ok &= SaveBoth(ui, QStringLiteral("video_stop"), 16,
        [](QPainter& p) { p.fillRect(QRectF(4, 4, 8, 8), kInk); });
    ok &= SaveBoth(ui, QStringLiteral("video_previous"), 16, [](QPainter& p) {
        p.fillRect(QRectF(3, 3, 2, 10), kInk);
        Triangle(p, QPolygonF({ { 13, 3 }, { 5, 8 }, { 13, 13 } }), kInk);
    });
    ok &= SaveBoth(ui, QStringLiteral("video_next"), 16, [](QPainter& p) {
        Triangle(p, QPolygonF({ { 3, 3 }, { 11, 8 }, { 3, 13 } }), kInk);
        p.fillRect(QRectF(11, 3, 2, 10), kInk);
    });

    // Compass: a rose and a separate needle that the host rotates over it.
    ok &= Save(ui + QStringLiteral("/compass.png"), 32, 1.0, [](QPainter& p) {
        p.setPen(QPen(kInk, 1.5));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QPointF(16, 16), 14, 14);
        for (int i = 0; i < 4; ++i) {
            p.save();
            p.translate(16, 16);
            p.rotate(i * 90.0);
            Triangle(
                p, QPolygonF({ { -2.5, -2 }, { 0, -13 }, { 2.5, -2 } }), i == 0 ? kAccent : kInk);
            p.restore();
        }
    });
    ok &= Save(ui + QStringLiteral("/compass_needle.png"), 32, 1.0, [](QPainter& p) {
        Triangle(p, QPolygonF({ { 13, 16 }, { 16, 3 }, { 19, 16 } }), Qt::red);
        Triangle(p, QPolygonF({ { 13, 16 }, { 16, 29 }, { 19, 16 } }), kInk);
    });

    // Help and sharing.
    ok &= Save(ui + QStringLiteral("/help.png"), 16, 1.0, [](QPainter& p) {
        p.setPen(Qt::NoPen);
        p.setBrush(kAccent);
        p.drawEllipse(QPointF(8, 8), 7.5, 7.5);
        p.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        p.drawArc(QRectF(5.5, 3.5, 5, 5), 180 * 16, -270 * 16);
        p.drawLine(QPointF(8, 8.5), QPointF(8, 9.5));
        p.drawPoint(QPointF(8, 12));
    });
    ok &= Save(ui + QStringLiteral("/social_mail.png"), 16, 1.0, [](QPainter& p) {
        p.setPen(QPen(kInk, 1.2));
        p.setBrush(Qt::white);
        p.drawRect(QRectF(2.5, 4.5, 11, 8));
        p.drawPolyline(QPolygonF({ { 2.5, 4.5 }, { 8, 9 }, { 13.5, 4.5 } }));
    });
    ok &= Save(ui + QStringLiteral("/social_link.png"), 16, 1.0, [](QPainter& p) {
        p.setPen(QPen(kInk, 1.6));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(2, 6, 7, 4), 2, 2);
        p.drawRoundedRect(QRectF(7, 6, 7, 4), 2, 2);
    });
    ok &= Save(ui + QStringLiteral("/social_share.png"), 16, 1.0, [](QPainter& p) {
        p.setPen(QPen(kInk, 1.2));
        p.drawLine(QPointF(4, 8), QPointF(12, 4));
        p.drawLine(QPointF(4, 8), QPointF(12, 12));
        p.setPen(Qt::NoPen);
        p.setBrush(kAccent);
        for (const QPointF& c : { QPointF(4, 8), QPointF(12, 4), QPointF(12, 12) })
            p.drawEllipse(c, 2.2, 2.2);
    });

    // Size grip: three diagonal rows of dots in the lower right corner.
    ok &= Save(ui + QStringLiteral("/sizegrip.png"), 12, 1.0, [](QPainter& p) {
        p.setPen(Qt::NoPen);
        p.setBrush(kInk);
        for (int row = 0; row < 3; ++row)
            for (int col = 2 - row; col < 3; ++col)
                p.drawRect(QRectF(3 + col * 3, 3 + row * 3, 1.5, 1.5));
    });

    // Settings.
    ok &= Save(ui + QStringLiteral("/settings.png"), 16, 1.0,
        [](QPainter& p) { Gear(p, QPointF(8, 8), 7, kInk); });
    ok &= Save(ui + QStringLiteral("/settings_hover.png"), 16, 1.0,
        [](QPainter& p) { Gear(p, QPointF(8, 8), 7, kAccent); });
    ok &= Save(resources + QStringLiteral("/settings_small.png"), 12, 1.0,
        [](QPainter& p) { Gear(p, QPointF(6, 6), 5.5, kInk); });

    // Collapsible sections: closed points right, open points down.
    ok &= Save(ui + QStringLiteral("/arrow_collapsed.png"), 10, 1.0, [](QPainter& p) {
        Triangle(p, QPolygonF({ { 3, 1.5 }, { 8, 5 }, { 3, 8.5 } }), kInk);
    });
    ok &= Save(ui + QStringLiteral("/arrow_expanded.png"), 10, 1.0, [](QPainter& p) {
        Triangle(p, QPolygonF({ { 1.5, 3 }, { 8.5, 3 }, { 5, 8 } }), kInk);
    });

    return ok ? 0 : 1;
}
