// Draws the pictures of the plug-in library's resource tree: the plug-in
// icons, the rotation buttons, the Clauss page picture and the pictures of the
// Gigapan shooting orders. Run once; its PNG files are kept in
// plugin/resources. Pictures shown on high-density screens get an "@2x"
// companion drawn at twice the size from the same vector drawing.
//
//   zph_plugin_art <output folder>     (with QT_QPA_PLATFORM=offscreen)

#include <QColor>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QTextStream>
#include <QtMath>

#include <cmath>
#include <functional>

namespace {

constexpr char kClauss[] = "5A656C6D-6F20-2020-2020-D6D081182F97";
constexpr char kGigapan[] = "5A656C6D-6F20-2020-2020-6028D47773DF";
constexpr char kMerlin[] = "5A656C6D-6F20-2020-2020-483181480AB7";
constexpr char kVRDrive2[] = "5A656C6D-6F20-2020-2020-B662C695C918";

const QColor kInk(0x2b, 0x33, 0x3d);
const QColor kPaper(0xf4, 0xf6, 0xf8);

using Drawing = std::function<void(QPainter&)>;

// Draws `drawing` in a logical canvas of `size` at each scale and writes
// <folder>/<uid>/Resources/<name>.png (and <name>@2x.png).
bool Render(const QString& folder, const char* uid, const QString& name, QSize size,
    bool withDouble, const Drawing& drawing)
{
    const QString dir = QStringLiteral("%1/%2/Resources").arg(folder, QLatin1String(uid));
    if (!QDir().mkpath(dir))
        return false;
    for (int scale = 1; scale <= (withDouble ? 2 : 1); ++scale) {
        QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        drawing(painter);
        painter.end();
        const QString suffix = scale == 2 ? QStringLiteral("@2x") : QString();
        if (!image.save(QStringLiteral("%1/%2%3.png").arg(dir, name, suffix)))
            return false;
    }
    return true;
}

void Badge(QPainter& p, const QRectF& r, const QColor& top, const QColor& bottom)
{
    QLinearGradient gradient(r.topLeft(), r.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    p.setPen(Qt::NoPen);
    p.setBrush(gradient);
    p.drawRoundedRect(r, r.width() * 0.18, r.height() * 0.18);
}

void ArrowHead(QPainter& p, QPointF tip, qreal angleDegrees, qreal length, const QColor& colour)
{
    const qreal a = qDegreesToRadians(angleDegrees);
    const qreal spread = qDegreesToRadians(28.0);
    QPolygonF head;
    head << tip << tip - QPointF(length * qCos(a - spread), length * qSin(a - spread))
         << tip - QPointF(length * qCos(a + spread), length * qSin(a + spread));
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPolygon(head);
}

// A camera body seen from the front, centred on `c`, `w` wide.
void Camera(QPainter& p, QPointF c, qreal w, const QColor& body, const QColor& lens)
{
    const qreal h = w * 0.62;
    p.setPen(Qt::NoPen);
    p.setBrush(body);
    p.drawRoundedRect(QRectF(c.x() - w / 2, c.y() - h / 2, w, h), w * 0.1, w * 0.1);
    p.drawRect(QRectF(c.x() - w * 0.18, c.y() - h / 2 - w * 0.12, w * 0.36, w * 0.14));
    p.setBrush(lens);
    p.drawEllipse(c + QPointF(0, w * 0.03), w * 0.22, w * 0.22);
    p.setBrush(body);
    p.drawEllipse(c + QPointF(0, w * 0.03), w * 0.11, w * 0.11);
}

// A circular arrow around `c` with its gap at the bottom and its head at the
// end of the travel: clockwise when `clockwise`, else counter-clockwise.
void RotationArrow(
    QPainter& p, QPointF c, qreal radius, bool clockwise, qreal width, const QColor& colour)
{
    const QRectF box(c.x() - radius, c.y() - radius, 2 * radius, 2 * radius);
    // Angles in degrees, counter-clockwise from three o'clock as Qt counts them.
    const qreal start = clockwise ? 240.0 : -60.0;
    const qreal span = clockwise ? -270.0 : 270.0;
    p.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap));
    p.setBrush(Qt::NoBrush);
    p.drawArc(box, qRound(start * 16), qRound(span * 16));
    const qreal end = qDegreesToRadians(start + span);
    const QPointF tip(c.x() + radius * qCos(end), c.y() - radius * qSin(end));
    // The direction of travel at the end, in screen coordinates (y down).
    const QPointF travel
        = clockwise ? QPointF(qSin(end), qCos(end)) : QPointF(-qSin(end), -qCos(end));
    const qreal angle = qRadiansToDegrees(qAtan2(travel.y(), travel.x()));
    ArrowHead(p, tip + travel * width * 1.4, angle, width * 2.8, colour);
}

void DrawRotation(QPainter& p, bool clockwise)
{
    const QColor blue(0x1f, 0x6f, 0xb5);
    // A landscape frame that the arrow turns.
    p.setPen(QPen(kInk, 1.6));
    p.setBrush(kPaper);
    p.drawRoundedRect(QRectF(10.5, 12.5, 11, 7.5), 1.2, 1.2);
    RotationArrow(p, QPointF(16, 16.5), 11.5, clockwise, 2.6, blue);
}

void DrawClaussIcon(QPainter& p)
{
    Badge(p, QRectF(2, 2, 60, 60), QColor(0xc6, 0x3a, 0x2f), QColor(0x8e, 0x1f, 0x1a));
    // A head turning on its vertical axis: an ellipse of travel under a camera.
    p.setPen(QPen(QColor(255, 255, 255, 170), 2.2, Qt::DashLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(32, 42), 21, 7);
    p.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(32, 42), QPointF(32, 33));
    Camera(p, QPointF(32, 24), 26, Qt::white, QColor(0x8e, 0x1f, 0x1a));
    ArrowHead(p, QPointF(50, 47.5), 160, 7, Qt::white);
}

void DrawClaussPage(QPainter& p)
{
    const QColor red(0xb3, 0x33, 0x29);
    const QColor grey(kInk.red(), kInk.green(), kInk.blue(), 90);
    // A head on a tripod with the twelve positions of one turn around it; the
    // positions behind the head are drawn first.
    const QPointF centre(64, 58);
    const qreal rx = 54;
    const qreal ry = 18;
    auto position = [&](int i) {
        const qreal a = qDegreesToRadians(i * 30.0);
        return centre + QPointF(rx * qCos(a), ry * qSin(a));
    };
    p.setPen(Qt::NoPen);
    for (int i = 6; i < 12; ++i) {
        p.setBrush(grey);
        p.drawEllipse(position(i), 4, 4);
    }
    p.setPen(QPen(kInk, 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(64, 84), QPointF(38, 122));
    p.drawLine(QPointF(64, 84), QPointF(90, 122));
    p.drawLine(QPointF(64, 84), QPointF(64, 124));
    p.setPen(Qt::NoPen);
    p.setBrush(kInk);
    p.drawRoundedRect(QRectF(50, 74, 28, 12), 3, 3);
    p.drawRect(QRectF(60, 52, 8, 24));
    Camera(p, QPointF(64, 42), 34, kInk, red);
    for (int i = 0; i < 6; ++i) {
        p.setBrush(i == 0 ? red : grey);
        p.drawEllipse(position(i), 4, 4);
    }
    // The head turns from the first position towards the viewer.
    QPainterPath turn;
    const QRectF box(centre.x() - rx, centre.y() - ry, 2 * rx, 2 * ry);
    turn.arcMoveTo(box, -8);
    turn.arcTo(box, -8, -44);
    p.setPen(QPen(red, 2.4, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawPath(turn);
    const qreal a = qDegreesToRadians(52.0);
    const QPointF tangent(-rx * qSin(a), ry * qCos(a));
    ArrowHead(p, turn.currentPosition() + tangent / std::hypot(tangent.x(), tangent.y()) * 3,
        qRadiansToDegrees(qAtan2(tangent.y(), tangent.x())), 8, red);
}

void DrawGigapanIcon(QPainter& p)
{
    Badge(p, QRectF(2, 2, 60, 60), QColor(0x2f, 0x8f, 0xd8), QColor(0x1b, 0x5a, 0x96));
    // A grid of shots, rows and columns.
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 4; ++col) {
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(255, 255, 255, row == 1 && col == 2 ? 255 : 190));
            p.drawRoundedRect(QRectF(9 + col * 12, 15 + row * 12, 10, 10), 1.5, 1.5);
        }
    }
    p.setPen(QPen(QColor(0x1b, 0x5a, 0x96), 2));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(33, 27, 10, 10), 1.5, 1.5);
}

void DrawMerlinIcon(QPainter& p)
{
    Badge(p, QRectF(2, 2, 60, 60), QColor(0x3c, 0xa5, 0x5c), QColor(0x23, 0x6e, 0x3b));
    // A sheet of the head's XML record with a turn of the head above it.
    QPainterPath sheet;
    sheet.moveTo(17, 22);
    sheet.lineTo(39, 22);
    sheet.lineTo(47, 30);
    sheet.lineTo(47, 54);
    sheet.lineTo(17, 54);
    sheet.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawPath(sheet);
    p.setBrush(QColor(0xc8, 0xe6, 0xd0));
    p.drawPolygon(QPolygonF({ QPointF(39, 22), QPointF(39, 30), QPointF(47, 30) }));
    const QColor green(0x23, 0x6e, 0x3b);
    p.setPen(QPen(green, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(QPolygonF({ QPointF(26, 35), QPointF(21, 40), QPointF(26, 45) }));
    p.drawPolyline(QPolygonF({ QPointF(38, 35), QPointF(43, 40), QPointF(38, 45) }));
    p.drawLine(QPointF(34, 34), QPointF(30, 46));
    p.setPen(QPen(Qt::white, 2.4, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(12, 7, 40, 16), 16 * 20, 16 * 140);
    ArrowHead(p, QPointF(49, 11.5), 55, 6.5, Qt::white);
}

void DrawVRDrive2Icon(QPainter& p)
{
    Badge(p, QRectF(2, 2, 60, 60), QColor(0x4a, 0x4f, 0x59), QColor(0x22, 0x25, 0x2b));
    const QColor amber(0xf2, 0xa9, 0x00);
    // Two axes of a motorised head: a horizontal and a vertical turn.
    p.setPen(QPen(amber, 2.6, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(9, 26, 46, 18), 16 * 200, 16 * 300);
    p.drawArc(QRectF(23, 9, 18, 46), 16 * 110, 16 * 300);
    ArrowHead(p, QPointF(53.5, 33.5), 100, 6.5, amber);
    ArrowHead(p, QPointF(28.5, 10.5), 190, 6.5, amber);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(32, 35), 6.5, 6.5);
    // Three stacked exposures: the head shoots brackets.
    for (int i = 0; i < 3; ++i) {
        p.setBrush(QColor(255, 255, 255, 90 + i * 80));
        p.drawRect(QRectF(44 + i * 4, 48 - i * 4, 8, 6));
    }
}

// Cell (row, column) of the n-th shot of a rows × cols grid in `order`:
// 0 columns from the left, each top down; 1 rows from the top, each left to
// right; 2 rows from the bottom, each left to right; 3 columns from the right.
QPoint GridCell(int order, int n, int rows, int cols)
{
    switch (order) {
    case 0:
        return QPoint(n % rows, n / rows);
    case 1:
        return QPoint(n / cols, n % cols);
    case 2:
        return QPoint(rows - 1 - n / cols, n % cols);
    default:
        return QPoint(n % rows, cols - 1 - n / rows);
    }
}

void DrawGigapanMode(QPainter& p, int order)
{
    const int rows = 3;
    const int cols = 4;
    const qreal cell = 13;
    const QPointF origin(6, 4.5);
    const QColor blue(0x1f, 0x6f, 0xb5);
    auto centre = [&](QPoint rc) {
        return origin + QPointF(rc.y() * cell + cell / 2, rc.x() * cell + cell / 2);
    };
    p.setPen(QPen(QColor(kInk.red(), kInk.green(), kInk.blue(), 110), 1));
    p.setBrush(kPaper);
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < cols; ++c)
            p.drawRect(QRectF(origin.x() + c * cell, origin.y() + r * cell, cell, cell));
    // Runs along a column or row are solid; the jumps back to the start of the
    // next run are dashed.
    const bool byColumn = order == 0 || order == 3;
    const int runLength = byColumn ? rows : cols;
    for (int n = 0; n + 1 < rows * cols; ++n) {
        const QPointF a = centre(GridCell(order, n, rows, cols));
        const QPointF b = centre(GridCell(order, n + 1, rows, cols));
        const bool jump = (n + 1) % runLength == 0;
        p.setPen(QPen(jump ? QColor(blue.red(), blue.green(), blue.blue(), 120) : blue,
            jump ? 1.0 : 1.8, jump ? Qt::DashLine : Qt::SolidLine, Qt::RoundCap));
        p.drawLine(a, b);
    }
    const QPointF last = centre(GridCell(order, rows * cols - 1, rows, cols));
    const QPointF before = centre(GridCell(order, rows * cols - 2, rows, cols));
    const qreal angle = qRadiansToDegrees(qAtan2(last.y() - before.y(), last.x() - before.x()));
    ArrowHead(p, last, angle, 5.5, blue);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xc6, 0x3a, 0x2f));
    p.drawEllipse(centre(GridCell(order, 0, rows, cols)), 2.6, 2.6);
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    QTextStream err(stderr);
    if (argc != 2) {
        err << "usage: zph_plugin_art <output folder>\n";
        return 2;
    }
    const QString out = QString::fromLocal8Bit(argv[1]);
    bool ok = true;
    ok &= Render(out, kClauss, QStringLiteral("ZClauss"), QSize(64, 64), false, DrawClaussIcon);
    ok &= Render(out, kClauss, QStringLiteral("Clauss_wp"), QSize(128, 128), true, DrawClaussPage);
    ok &= Render(out, kGigapan, QStringLiteral("ZGigapan"), QSize(64, 64), false, DrawGigapanIcon);
    for (int order = 0; order < 4; ++order) {
        ok &= Render(out, kGigapan, QStringLiteral("gigapan-mode%1").arg(order), QSize(64, 48),
            true, [order](QPainter& p) { DrawGigapanMode(p, order); });
    }
    ok &= Render(out, kMerlin, QStringLiteral("Papywizard"), QSize(64, 64), false, DrawMerlinIcon);
    ok &= Render(out, kVRDrive2, QStringLiteral("VRDrive2"), QSize(64, 64), true, DrawVRDrive2Icon);
    for (const char* uid : { kMerlin, kVRDrive2 }) {
        ok &= Render(out, uid, QStringLiteral("rot90left"), QSize(32, 32), true,
            [](QPainter& p) { DrawRotation(p, false); });
        ok &= Render(out, uid, QStringLiteral("rot90right"), QSize(32, 32), true,
            [](QPainter& p) { DrawRotation(p, true); });
    }
    if (!ok) {
        err << "zph_plugin_art: cannot write the pictures under " << out << '\n';
        return 1;
    }
    return 0;
}
