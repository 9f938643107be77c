// The preview drawing shared by the pages: grid step, scale with its 8-degree
// floor, canvas size and its guards, cell placement, thumbnails rotated by
// roll, zoom, ordering by key, and the previews of layouts too large to paint
// whole, which are drawn scaled instead of left blank.
#include "LayoutPreview.h"
#include "PageTestHost.h"
#include "PageTestSupport.h"
#include "ZUI.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <cfloat>
#include <cmath>

Q_DECLARE_METATYPE(QVector<ShootData>)

namespace {

ShootData Shot(float yaw, float pitch, float roll = 0.0f)
{
    ShootData shot;
    shot.m_yaw = yaw;
    shot.m_pitch = pitch;
    shot.m_roll = roll;
    return shot;
}

const QColor kBackground(1, 2, 3);

/// A 20 x 10 thumbnail, red on the left half and blue on the right half.
QPixmap HalfAndHalf()
{
    QPixmap pixmap(20, 10);
    pixmap.fill(Qt::blue);
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, 10, 10, Qt::red);
    return pixmap;
}

QColor PixelAt(const QPixmap& pixmap, double x, double y)
{
    return pixmap.toImage().pixelColor(int(x), int(y));
}

/// A head that turned several times: a row at pitch 0 every 45 degrees from
/// yaw 117 to 1737, then one shot at yaw 1738, pitch 2 (step 1, 12 pixels a
/// degree). The same shots as data/clauss_multiturn.txt.
QVector<ShootData> MultiTurnShots()
{
    QVector<ShootData> shots;
    for (int k = 0; k < 37; ++k)
        shots << Shot(117.0f + 45.0f * k, 0);
    shots << Shot(1738, 2);
    return shots;
}

/// Two shots 96 degrees apart: one pixel a degree, so that a range of R
/// degrees makes a canvas side of R + 100 pixels.
QVector<ShootData> OnePixelADegree()
{
    return { Shot(0, 0), Shot(96, 0) };
}

/// True when some pixel differs from the background.
bool HasMarks(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_RGB32);
    const QRgb background = kBackground.rgb();
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] != background)
                return true;
        }
    }
    return false;
}

} // namespace

class tst_LayoutPreview : public QObject
{
    Q_OBJECT

private slots:
    void gridStep_data();
    void gridStep();
    void scaleHasAnEightDegreeFloor_data();
    void scaleHasAnEightDegreeFloor();
    void canvasSize_data();
    void canvasSize();
    void shotsAreDrawnAtTheirYawAndPitch();
    void cellsWithoutImageStayEmpty();
    void thumbnailsAreRotatedByRoll();
    void zoom_data();
    void zoom();
    void orderedByKey();
    void gridCellsFollowTheShootingOrder_data();
    void gridCellsFollowTheShootingOrder();
    void gridGuards();
    void paintable_data();
    void paintable();
    void largestPaintable_data();
    void largestPaintable();
    void previewOfShots_data();
    void previewOfShots();
    void previewOfGrids_data();
    void previewOfGrids();
};

void tst_LayoutPreview::gridStep_data()
{
    QTest::addColumn<QVector<ShootData>>("shots");
    QTest::addColumn<float>("step");
    QTest::newRow("no shot") << QVector<ShootData>() << 360.0f;
    QTest::newRow("one shot") << QVector<ShootData> { Shot(10, 5) } << 360.0f;
    QTest::newRow("two degrees") << QVector<ShootData> { Shot(0, 0), Shot(2, 0) } << 2.0f;
    QTest::newRow("pitch smaller than yaw")
        << QVector<ShootData> { Shot(0, 0), Shot(30, 12.5f) } << 12.5f;
    QTest::newRow("equal angles are skipped")
        << QVector<ShootData> { Shot(0, 0), Shot(0, 0), Shot(45, 0) } << 45.0f;
    QTest::newRow("only consecutive shots")
        << QVector<ShootData> { Shot(0, 0), Shot(50, 0), Shot(1, 0) } << 49.0f;
    QTest::newRow("wider than a circle")
        << QVector<ShootData> { Shot(0, 0), Shot(400, 0) } << 360.0f;
}

void tst_LayoutPreview::gridStep()
{
    QFETCH(QVector<ShootData>, shots);
    QFETCH(float, step);
    QCOMPARE(LayoutPreview::GridStep(shots), step);
}

void tst_LayoutPreview::scaleHasAnEightDegreeFloor_data()
{
    QTest::addColumn<float>("step");
    QTest::addColumn<float>("scale");
    QTest::newRow("one shot") << 360.0f << 96.0f / 360.0f;
    QTest::newRow("two degrees") << 2.0f << 12.0f;
    QTest::newRow("eight degrees") << 8.0f << 12.0f;
    QTest::newRow("sixteen degrees") << 16.0f << 6.0f;
}

void tst_LayoutPreview::scaleHasAnEightDegreeFloor()
{
    QFETCH(float, step);
    QFETCH(float, scale);
    QCOMPARE(LayoutPreview::Scale(step), scale);
}

void tst_LayoutPreview::canvasSize_data()
{
    QTest::addColumn<float>("scale");
    QTest::addColumn<float>("yawMin");
    QTest::addColumn<float>("yawMax");
    QTest::addColumn<float>("pitchMin");
    QTest::addColumn<float>("pitchMax");
    QTest::addColumn<QSize>("size");
    QTest::newRow("one shot") << 96.0f / 360.0f << 10.0f << 10.0f << 5.0f << 5.0f
                              << QSize(100, 100);
    QTest::newRow("two degrees apart") << 12.0f << 0.0f << 2.0f << 0.0f << 0.0f << QSize(124, 100);
    // 330 x 3.2 + 100 = 1156, 90 x 3.2 + 100 = 388, truncated.
    QTest::newRow("full row") << 3.2f << 0.0f << 330.0f << -30.0f << 60.0f
                              << QSize(int(330.0f * 3.2f + 100), int(100 + 90.0f * 3.2f));
    QTest::newRow("unread range") << 12.0f << -FLT_MAX << FLT_MAX << -FLT_MAX << FLT_MAX << QSize();
    QTest::newRow("accumulator start")
        << 12.0f << FLT_MAX << -FLT_MAX << FLT_MAX << -FLT_MAX << QSize();
    // The canvas is what the range asks for, paintable or not.
    QTest::newRow("longer than 16384") << 12.0f << 0.0f << 1400.0f << 0.0f << 0.0f
                                       << QSize(16900, 100);
    QTest::newRow("multi-turn script") << 12.0f << 117.0f << 1738.0f << 0.0f << 2.0f
                                       << QSize(19552, 124);
    QTest::newRow("beyond 512 MiB") << 12.0f << 0.0f << 1000.0f << 0.0f << 1000.0f
                                    << QSize(12100, 12100);
    QTest::newRow("wider than an int") << 12.0f << 0.0f << 1e9f << 0.0f << 0.0f << QSize();
    QTest::newRow("not a number") << 12.0f << 0.0f << std::nanf("") << 0.0f << 0.0f << QSize();
}

void tst_LayoutPreview::canvasSize()
{
    QFETCH(float, scale);
    QFETCH(float, yawMin);
    QFETCH(float, yawMax);
    QFETCH(float, pitchMin);
    QFETCH(float, pitchMax);
    QFETCH(QSize, size);
    QCOMPARE(LayoutPreview::CanvasSize(scale, yawMin, yawMax, pitchMin, pitchMax), size);
}

void tst_LayoutPreview::shotsAreDrawnAtTheirYawAndPitch()
{
    PageTestHost* host = PageTestHost::instance();
    TestImageDef* red = host->AddImage(QStringLiteral("/red"), 0, 0, 0, 0, Qt::red);
    TestImageDef* green = host->AddImage(QStringLiteral("/green"), 0, 0, 0, 0, Qt::green);
    // Two shots 40 degrees apart in yaw, 20 in pitch: step 20, 4.8 pixels a degree.
    const QVector<ShootData> shots { Shot(10, -5), Shot(50, 15) };
    const QPixmap canvas
        = LayoutPreview::DrawShots(shots, { red, green }, 10, 50, -5, 15, QBrush(kBackground));
    const float scale = 96.0f / 20.0f;
    QCOMPARE(canvas.size(), QSize(int(40.0f * scale + 100), int(100 + 20.0f * scale)));
    // Shot 0: x = 50, y = (20 + 5 - 5) x scale + 50; the higher shot 1 lies higher up.
    const float x0 = (10.0f - 10.0f) * scale + 50;
    const float y0 = ((20.0f - -5.0f) + -5.0f) * scale + 50;
    const float x1 = (50.0f - 10.0f) * scale + 50;
    const float y1 = ((20.0f - 15.0f) + -5.0f) * scale + 50;
    QCOMPARE(PixelAt(canvas, x0 + 20, y0 + 20), QColor(Qt::red));
    QCOMPARE(PixelAt(canvas, x1 + 20, y1 + 20), QColor(Qt::green));
    QVERIFY(y1 < y0);
    QCOMPARE(PixelAt(canvas, 1, canvas.height() - 1), kBackground);
    // The outline of shot 0's cell, 48 pixels left of its centre.
    QCOMPARE(PixelAt(canvas, x0 - 48, y0 + 20), QColor(Qt::black));
    host->ForgetImages();
}

void tst_LayoutPreview::cellsWithoutImageStayEmpty()
{
    PageTestHost* host = PageTestHost::instance();
    TestImageDef* red = host->AddImage(QStringLiteral("/red"), 0, 0, 0, 0, Qt::red);
    TestImageDef* green = host->AddImage(QStringLiteral("/green"), 0, 0, 0, 0, Qt::green);
    const QVector<ShootData> shots { Shot(0, 0), Shot(20, 0) };
    const float scale = 96.0f / 20.0f;
    const float x1 = 20.0f * scale + 50;
    // More shots than images: the second cell is outlined but empty.
    QPixmap canvas = LayoutPreview::DrawShots(shots, { red }, 0, 20, 0, 0, QBrush(kBackground));
    QCOMPARE(PixelAt(canvas, 50 + 20, 50 + 20), QColor(Qt::red));
    QCOMPARE(PixelAt(canvas, x1 + 20, 50 + 20), kBackground);
    QCOMPARE(PixelAt(canvas, x1 + 48, 50 + 20), QColor(Qt::black));
    // More images than shots: the extra image is not drawn anywhere.
    canvas
        = LayoutPreview::DrawShots({ Shot(0, 0) }, { red, green }, 0, 0, 0, 0, QBrush(kBackground));
    QCOMPARE(canvas.size(), QSize(100, 100));
    const QImage image = canvas.toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QVERIFY(image.pixelColor(x, y) != QColor(Qt::green));
    }
    host->ForgetImages();
}

void tst_LayoutPreview::thumbnailsAreRotatedByRoll()
{
    TestImageDef def;
    def.m_thumbnail = HalfAndHalf();
    const QVector<ShootData> level { Shot(0, 0, 0) };
    QPixmap canvas = LayoutPreview::DrawShots(level, { &def }, 0, 0, 0, 0, QBrush(kBackground));
    QCOMPARE(PixelAt(canvas, 50 - 24, 50 + 10), QColor(Qt::red));
    QCOMPARE(PixelAt(canvas, 50 + 24, 50 + 10), QColor(Qt::blue));
    // A quarter turn clockwise: red on top, blue below.
    const QVector<ShootData> turned { Shot(0, 0, 90) };
    canvas = LayoutPreview::DrawShots(turned, { &def }, 0, 0, 0, 0, QBrush(kBackground));
    QCOMPARE(PixelAt(canvas, 50 + 10, 50 - 24), QColor(Qt::red));
    QCOMPARE(PixelAt(canvas, 50 + 10, 50 + 24), QColor(Qt::blue));
    // Four quarter turns draw as none.
    const QVector<ShootData> full { Shot(0, 0, 360) };
    canvas = LayoutPreview::DrawShots(full, { &def }, 0, 0, 0, 0, QBrush(kBackground));
    QCOMPARE(PixelAt(canvas, 50 - 24, 50 + 10), QColor(Qt::red));
    QCOMPARE(PixelAt(canvas, 50 + 24, 50 + 10), QColor(Qt::blue));
}

void tst_LayoutPreview::zoom_data()
{
    QTest::addColumn<QSize>("canvas");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QSize>("zoomed");
    QTest::newRow("half") << QSize(124, 100) << 50 << QSize(62, 50);
    QTest::newRow("truncated") << QSize(1156, 388) << 33 << QSize(1156 * 33 / 100, 388 * 33 / 100);
    QTest::newRow("whole") << QSize(100, 100) << 100 << QSize(100, 100);
    QTest::newRow("one per cent") << QSize(100, 100) << 1 << QSize(1, 1);
    QTest::newRow("small canvas at one per cent") << QSize(99, 50) << 1 << QSize();
}

void tst_LayoutPreview::zoom()
{
    QFETCH(QSize, canvas);
    QFETCH(int, percent);
    QFETCH(QSize, zoomed);
    QPixmap pixmap(canvas);
    pixmap.fill(kBackground);
    const QPixmap result = LayoutPreview::Zoom(pixmap, percent);
    if (!zoomed.isValid()) {
        QVERIFY(result.isNull());
        return;
    }
    QCOMPARE(result.size(), zoomed);
    QVERIFY(LayoutPreview::Zoom(QPixmap(), percent).isNull());
}

void tst_LayoutPreview::orderedByKey()
{
    TestImageDef a(0, 0, 30), b(0, 0, 10), c(0, 0, 20), d(0, 0, 10);
    QCOMPARE(LayoutPreview::OrderedByKey({ &a, &b, &c }), (QList<ZIImageDef*> { &b, &c, &a }));
    // A shared key keeps the reading order.
    QCOMPARE(LayoutPreview::OrderedByKey({ &a, &b, &d }), (QList<ZIImageDef*> { &a, &b, &d }));
    QCOMPARE(LayoutPreview::OrderedByKey({}), QList<ZIImageDef*>());
}

void tst_LayoutPreview::gridCellsFollowTheShootingOrder_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::newRow("columns from the left") << 0 << 2 << 3;
    QTest::newRow("rows downward") << 1 << 2 << 3;
    QTest::newRow("rows upward") << 2 << 3 << 2;
    QTest::newRow("columns to the left") << 3 << 2 << 3;
    QTest::newRow("serpentine from the bottom") << 4 << 3 << 2;
}

void tst_LayoutPreview::gridCellsFollowTheShootingOrder()
{
    QFETCH(int, order);
    QFETCH(int, rows);
    QFETCH(int, columns);
    // The shooting index of row a, column b, written out for each order.
    auto index = [&](int a, int b) {
        switch (order) {
        case 0:
            return a + rows * b;
        case 1:
            return columns * a + b;
        case 2:
            return columns * (rows - 1 - a) + b;
        case 3:
            return a + rows * (columns - 1 - b);
        default: {
            const int r = rows - 1 - a;
            return r % 2 == 0 ? columns * r + b : columns * r + (columns - 1 - b);
        }
        }
    };
    QVector<TestImageDef> defs(rows * columns);
    QVector<ZIImageDef*> cells;
    for (int k = 0; k < defs.size(); ++k) {
        defs[k].m_thumbnail = QPixmap(4, 4);
        defs[k].m_thumbnail.fill(QColor(10 * k + 5, 200, 100));
        cells << &defs[k];
    }
    const QPixmap canvas
        = LayoutPreview::DrawGrid(rows, columns, order, cells, QBrush(kBackground));
    QCOMPARE(canvas.size(), QSize(columns * 96 + 4, rows * 96 + 4));
    for (int a = 0; a < rows; ++a) {
        for (int b = 0; b < columns; ++b) {
            const QColor colour = PixelAt(canvas, 2 + b * 96 + 60, 2 + a * 96 + 60);
            QCOMPARE(colour, QColor(10 * index(a, b) + 5, 200, 100));
        }
    }
    // Cells whose photo is not read yet stay empty.
    cells[index(0, 0)] = nullptr;
    const QPixmap partial
        = LayoutPreview::DrawGrid(rows, columns, order, cells, QBrush(kBackground));
    QCOMPARE(PixelAt(partial, 2 + 60, 2 + 60), kBackground);
}

void tst_LayoutPreview::gridGuards()
{
    QVERIFY(LayoutPreview::DrawGrid(0, 5, 0, {}, QBrush(kBackground)).isNull());
    QVERIFY(LayoutPreview::DrawGrid(4, 0, 0, {}, QBrush(kBackground)).isNull());
    QVERIFY(LayoutPreview::DrawGrid(4, -3, 0, {}, QBrush(kBackground)).isNull());
    QVERIFY(LayoutPreview::DrawGrid(100000, 100000, 0, {}, QBrush(kBackground)).isNull());
    // A long single row shrinks its cells to stay within the largest side.
    const QPixmap row = LayoutPreview::DrawGrid(1, 400, 0, {}, QBrush(kBackground));
    const int cell = (LayoutPreview::GridFitSide - 4) / 400;
    QCOMPARE(LayoutPreview::GridCellSize(1, 400), cell);
    QCOMPARE(row.size(), QSize(400 * cell + 4, cell + 4));
    QVERIFY(row.width() <= LayoutPreview::GridFitSide);
    QCOMPARE(LayoutPreview::GridCellSize(4, 5), 96);
    // Cells stop shrinking at 16 pixels; a longer grid is beyond what DrawGrid
    // paints whole (PreviewGrid draws it scaled).
    QCOMPARE(LayoutPreview::GridCanvasSize(1, 2500), QSize(2500 * 16 + 4, 20));
    QVERIFY(LayoutPreview::DrawGrid(1, 2500, 0, {}, QBrush(kBackground)).isNull());
    QCOMPARE(LayoutPreview::GridCanvasSize(1, 20000), QSize(20000 * 16 + 4, 20));
    QVERIFY(!LayoutPreview::GridCanvasSize(1, 20001).isValid());
    QVERIFY(!LayoutPreview::GridCanvasSize(0, 3).isValid());
}

void tst_LayoutPreview::paintable_data()
{
    QTest::addColumn<qint64>("width");
    QTest::addColumn<qint64>("height");
    QTest::addColumn<bool>("paintable");
    QTest::newRow("32767 wide") << qint64(32767) << qint64(100) << true;
    QTest::newRow("32768 wide") << qint64(32768) << qint64(100) << false;
    QTest::newRow("32767 high") << qint64(100) << qint64(32767) << true;
    QTest::newRow("32768 high") << qint64(100) << qint64(32768) << false;
    QTest::newRow("exactly 512 MiB") << qint64(16384) << qint64(8192) << true;
    QTest::newRow("one row beyond 512 MiB") << qint64(16384) << qint64(8193) << false;
    QTest::newRow("largest square") << qint64(11585) << qint64(11585) << true;
    QTest::newRow("both sides at the limit") << qint64(32767) << qint64(32767) << false;
    QTest::newRow("empty") << qint64(0) << qint64(100) << false;
    QTest::newRow("negative") << qint64(100) << qint64(-1) << false;
}

void tst_LayoutPreview::paintable()
{
    QFETCH(qint64, width);
    QFETCH(qint64, height);
    QFETCH(bool, paintable);
    QCOMPARE(LayoutPreview::Paintable(width, height), paintable);
}

void tst_LayoutPreview::largestPaintable_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("largest");
    QTest::newRow("paintable stays") << QSize(32767, 100) << QSize(32767, 100);
    QTest::newRow("one pixel too wide") << QSize(32768, 100) << QSize(32767, 99);
    QTest::newRow("twice too wide") << QSize(65534, 200) << QSize(32767, 100);
    QTest::newRow("twice too high") << QSize(300, 65534) << QSize(150, 32767);
    QTest::newRow("800 MB") << QSize(20000, 10000) << QSize(16384, 8192);
    QTest::newRow("very long and thin") << QSize(2000000000, 2) << QSize(32767, 1);
    QTest::newRow("invalid") << QSize() << QSize();
}

void tst_LayoutPreview::largestPaintable()
{
    QFETCH(QSize, size);
    QFETCH(QSize, largest);
    const QSize result = LayoutPreview::LargestPaintable(size);
    QCOMPARE(result, largest);
    if (result.isValid())
        QVERIFY(LayoutPreview::Paintable(result.width(), result.height()));
}

void tst_LayoutPreview::previewOfShots_data()
{
    QTest::addColumn<QVector<ShootData>>("shots");
    QTest::addColumn<float>("yawMin");
    QTest::addColumn<float>("yawMax");
    QTest::addColumn<float>("pitchMin");
    QTest::addColumn<float>("pitchMax");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QSize>("shown");
    // True when the canvas is paintable, so that the preview is the full-size
    // drawing zoomed, to the pixel.
    QTest::addColumn<bool>("whole");
    const QVector<ShootData> turns = MultiTurnShots();
    const QVector<ShootData> unit = OnePixelADegree();
    // 1621 degrees x 12 + 100 = 19552 by 2 x 12 + 100 = 124.
    QTest::newRow("multi-turn script at 50 %")
        << turns << 117.0f << 1738.0f << 0.0f << 2.0f << 50 << QSize(9776, 62) << true;
    QTest::newRow("multi-turn script at 100 %")
        << turns << 117.0f << 1738.0f << 0.0f << 2.0f << 100 << QSize(19552, 124) << true;
    QTest::newRow("multi-turn script at 1 %")
        << turns << 117.0f << 1738.0f << 0.0f << 2.0f << 1 << QSize(195, 1) << true;
    QTest::newRow("32767 wide at 50 %")
        << unit << 0.0f << 32667.0f << 0.0f << 0.0f << 50 << QSize(16383, 50) << true;
    QTest::newRow("32767 wide at 100 %")
        << unit << 0.0f << 32667.0f << 0.0f << 0.0f << 100 << QSize(32767, 100) << true;
    QTest::newRow("32768 wide at 50 %")
        << unit << 0.0f << 32668.0f << 0.0f << 0.0f << 50 << QSize(16384, 50) << false;
    QTest::newRow("32768 wide at 100 %")
        << unit << 0.0f << 32668.0f << 0.0f << 0.0f << 100 << QSize(32767, 99) << false;
    QTest::newRow("32767 high at 50 %")
        << unit << 0.0f << 96.0f << 0.0f << 32667.0f << 50 << QSize(98, 16383) << true;
    QTest::newRow("32768 high at 50 %")
        << unit << 0.0f << 96.0f << 0.0f << 32668.0f << 50 << QSize(98, 16384) << false;
    QTest::newRow("32768 high at 100 %")
        << unit << 0.0f << 96.0f << 0.0f << 32668.0f << 100 << QSize(195, 32767) << false;
    QTest::newRow("exactly 512 MiB at 10 %")
        << unit << 0.0f << 16284.0f << 0.0f << 8092.0f << 10 << QSize(1638, 819) << true;
    QTest::newRow("beyond 512 MiB at 50 %")
        << unit << 0.0f << 19900.0f << 0.0f << 9900.0f << 50 << QSize(10000, 5000) << false;
    QTest::newRow("beyond 512 MiB at 100 %")
        << unit << 0.0f << 19900.0f << 0.0f << 9900.0f << 100 << QSize(16384, 8192) << false;
    QTest::newRow("far beyond at 1 %")
        << unit << 0.0f << 99900.0f << 0.0f << 0.0f << 1 << QSize(1000, 1) << false;
}

void tst_LayoutPreview::previewOfShots()
{
    QFETCH(QVector<ShootData>, shots);
    QFETCH(float, yawMin);
    QFETCH(float, yawMax);
    QFETCH(float, pitchMin);
    QFETCH(float, pitchMax);
    QFETCH(int, percent);
    QFETCH(QSize, shown);
    QFETCH(bool, whole);
    TestImageDef red;
    red.m_thumbnail = QPixmap(16, 16);
    red.m_thumbnail.fill(Qt::red);
    const QList<ZIImageDef*> images { &red };
    const QBrush background(kBackground);
    const QPixmap preview = LayoutPreview::PreviewShots(
        shots, images, yawMin, yawMax, pitchMin, pitchMax, background, percent);
    QCOMPARE(preview.size(), shown);
    QVERIFY(HasMarks(preview));
    const QPixmap canvas
        = LayoutPreview::DrawShots(shots, images, yawMin, yawMax, pitchMin, pitchMax, background);
    QCOMPARE(!canvas.isNull(), whole);
    if (whole)
        QCOMPARE(preview.toImage(), LayoutPreview::Zoom(canvas, percent).toImage());
}

void tst_LayoutPreview::previewOfGrids_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QSize>("shown");
    QTest::addColumn<bool>("whole");
    QTest::newRow("4 x 5 at 50 %") << 4 << 5 << 50 << QSize(242, 194) << true;
    // 1109 photos, a prime: one row of 16-pixel cells, 17748 pixels long.
    QTest::newRow("one row of 1109 at 100 %") << 1 << 1109 << 100 << QSize(17748, 20) << true;
    // 2047 cells of 16 pixels + 4 = 32756; 2048 cells make 32772.
    QTest::newRow("2047 rows at 100 %") << 2047 << 1 << 100 << QSize(20, 32756) << true;
    QTest::newRow("2048 rows at 50 %") << 2048 << 1 << 50 << QSize(10, 16386) << false;
    QTest::newRow("2048 rows at 100 %") << 2048 << 1 << 100 << QSize(19, 32767) << false;
    // 320004 x 20 at 50 % is 160002 x 10, beyond 32767: the largest paintable.
    QTest::newRow("20000 columns at 50 %") << 1 << 20000 << 50 << QSize(32767, 2) << false;
}

void tst_LayoutPreview::previewOfGrids()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(int, percent);
    QFETCH(QSize, shown);
    QFETCH(bool, whole);
    const QBrush background(kBackground);
    const QPixmap preview = LayoutPreview::PreviewGrid(rows, columns, 0, {}, background, percent);
    QCOMPARE(preview.size(), shown);
    QVERIFY(HasMarks(preview));
    const QPixmap canvas = LayoutPreview::DrawGrid(rows, columns, 0, {}, background);
    QCOMPARE(!canvas.isNull(), whole);
    if (whole)
        QCOMPARE(preview.toImage(), LayoutPreview::Zoom(canvas, percent).toImage());
}

ZPH_PAGE_TEST_MAIN(tst_LayoutPreview)
#include "tst_LayoutPreview.moc"
