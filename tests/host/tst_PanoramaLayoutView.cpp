// Where the result page draws each stack: from the record's angles (the first
// shot of each stack) or, for a grid without angles, from the grid cell the
// shooting order gives; and drawing records whose links point nowhere.
#include "PanoramaLayoutView.h"

#include <QTest>

Q_DECLARE_METATYPE(StructuredPanoramaProperties)

namespace {

QVector<QStringList> stacks(const QVector<int>& sizes)
{
    QVector<QStringList> out;
    int n = 0;
    for (int size : sizes) {
        QStringList stack;
        for (int i = 0; i < size; ++i)
            stack << QStringLiteral("img%1.jpg").arg(n++);
        out << stack;
    }
    return out;
}

StructuredPanoramaProperties withAngles(
    const QVector<int>& sizes, const QVector<float>& yawDeg, const QVector<float>& pitchDeg)
{
    StructuredPanoramaProperties r;
    r.m_stacks = stacks(sizes);
    for (float y : yawDeg)
        r.m_yaw << float(double(y) * 3.141592653589793 / 180.0);
    for (float p : pitchDeg)
        r.m_pitch << float(double(p) * 3.141592653589793 / 180.0);
    return r;
}

StructuredPanoramaProperties grid(int count, int rows, int order)
{
    StructuredPanoramaProperties r;
    r.m_stacks = stacks(QVector<int>(count, 1));
    r.m_useShootData = false;
    r.m_gridRows = rows;
    r.m_gridOrder = order;
    return r;
}

} // namespace

class tst_PanoramaLayoutView : public QObject
{
    Q_OBJECT

private slots:
    void stackPositions_data();
    void stackPositions();
    void skipsLinksThatPointNowhere();
    void drawsAnEmptyRecord();
};

void tst_PanoramaLayoutView::stackPositions_data()
{
    QTest::addColumn<StructuredPanoramaProperties>("record");
    QTest::addColumn<bool>("angles");
    QTest::addColumn<QVector<QPointF>>("expected");

    // Brackets of three: the angles of shots 0 and 3.
    QTest::newRow("brackets of three")
        << withAngles({ 3, 3 }, { 10, 10, 10, 50, 50, 50 }, { -5, -5, -5, 20, 20, 20 }) << true
        << QVector<QPointF> { { 10, -5 }, { 50, 20 } };
    // One image per stack and more recorded shots than photographs.
    QTest::newRow("more shots than stacks") << withAngles({ 1, 1, 1 }, { 0, 30, 60, 90 },
        { 0, 0, 10, 10 }) << true << QVector<QPointF> { { 0, 0 }, { 30, 0 }, { 60, 10 } };
    // Fewer angles than stacks: the last angle is used for the rest.
    QTest::newRow("fewer shots than stacks") << withAngles({ 1, 1, 1 }, { 0, 30 }, { 0, 5 }) << true
                                             << QVector<QPointF> { { 0, 0 }, { 30, 5 }, { 30, 5 } };
    // Grids: x the column, y minus the row (rows from the top).
    QTest::newRow("columns, 2x3") << grid(6, 2, 0) << false
                                  << QVector<QPointF> { { 0, 0 }, { 0, -1 }, { 1, 0 }, { 1, -1 },
                                         { 2, 0 }, { 2, -1 } };
    QTest::newRow("rows downward, 2x3")
        << grid(6, 2, 1) << false
        << QVector<QPointF> { { 0, 0 }, { 1, 0 }, { 2, 0 }, { 0, -1 }, { 1, -1 }, { 2, -1 } };
    QTest::newRow("rows upward, 2x3")
        << grid(6, 2, 2) << false
        << QVector<QPointF> { { 0, -1 }, { 1, -1 }, { 2, -1 }, { 0, 0 }, { 1, 0 }, { 2, 0 } };
    QTest::newRow("columns to left, 2x3")
        << grid(6, 2, 3) << false
        << QVector<QPointF> { { 2, 0 }, { 2, -1 }, { 1, 0 }, { 1, -1 }, { 0, 0 }, { 0, -1 } };
    // Serpentine from the bottom, 3 rows of 2: idx(2,0)=0, idx(2,1)=1,
    // idx(1,1)=2, idx(1,0)=3, idx(0,0)=4, idx(0,1)=5.
    QTest::newRow("serpentine, 3x2")
        << grid(6, 3, 4) << false
        << QVector<QPointF> { { 0, -2 }, { 1, -2 }, { 1, -1 }, { 0, -1 }, { 0, 0 }, { 1, 0 } };
    // An order the converter does not know has no grid: one row, in shooting order.
    QTest::newRow("unknown order")
        << grid(4, 2, 9) << false << QVector<QPointF> { { 0, 0 }, { 1, 0 }, { 2, 0 }, { 3, 0 } };
    QTest::newRow("negative order")
        << grid(3, 3, -1) << false << QVector<QPointF> { { 0, 0 }, { 1, 0 }, { 2, 0 } };
    QTest::newRow("no rows recorded")
        << grid(3, 0, 0) << false << QVector<QPointF> { { 0, 0 }, { 1, 0 }, { 2, 0 } };
    QTest::newRow("nothing") << StructuredPanoramaProperties() << false << QVector<QPointF> {};
}

void tst_PanoramaLayoutView::stackPositions()
{
    QFETCH(StructuredPanoramaProperties, record);
    QFETCH(bool, angles);
    QFETCH(QVector<QPointF>, expected);
    const PanoramaLayoutView::Layout layout = PanoramaLayoutView::StackPositions(record);
    QCOMPARE(layout.angles, angles);
    QCOMPARE(layout.positions.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        // Degrees come back from float radians: compare to a millionth.
        QVERIFY2(qAbs(layout.positions[i].x() - expected[i].x()) < 1e-4
                && qAbs(layout.positions[i].y() - expected[i].y()) < 1e-4,
            qPrintable(QStringLiteral("stack %1: %2,%3")
                           .arg(i)
                           .arg(layout.positions[i].x())
                           .arg(layout.positions[i].y())));
    }
}

void tst_PanoramaLayoutView::skipsLinksThatPointNowhere()
{
    StructuredPanoramaProperties good = withAngles({ 1, 1, 1 }, { 0, 30, 60 }, { 0, 0, 0 });
    good.m_links = { AuthorizedLink { 2, { 0, 1 } }, AuthorizedLink { 2, { 1, 2 } } };
    StructuredPanoramaProperties bad = good;
    bad.m_links << AuthorizedLink { 1, { 0, 99 } } << AuthorizedLink { 1, { -1, 0 } }
                << AuthorizedLink { 3, { 2 } } << AuthorizedLink { 4, {} };
    PanoramaLayoutView view;
    view.SetPanorama(good);
    const QImage expected = view.Render(QSize(320, 200));
    view.SetPanorama(bad);
    QCOMPARE(view.Render(QSize(320, 200)), expected);
    // And the links are drawn at all: without them the picture differs.
    good.m_links.clear();
    view.SetPanorama(good);
    QVERIFY(view.Render(QSize(320, 200)) != expected);
}

void tst_PanoramaLayoutView::drawsAnEmptyRecord()
{
    PanoramaLayoutView view;
    view.SetPanorama(StructuredPanoramaProperties());
    const QImage empty = view.Render(QSize(200, 100));
    QCOMPARE(empty.size(), QSize(200, 100));
    // Only the message is drawn; a record with one stack draws more.
    view.SetPanorama(withAngles({ 1 }, { 0 }, { 0 }));
    QVERIFY(view.Render(QSize(200, 100)) != empty);
}

QTEST_MAIN(tst_PanoramaLayoutView)
#include "tst_PanoramaLayoutView.moc"
