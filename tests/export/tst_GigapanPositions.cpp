// Positions of a Gigapan grid's cells: field of view less the overlap per
// step, centred on yaw 0 and the horizon, indexed by shooting order.
#include "GigapanPositions.h"

#include <QtTest>

class tst_GigapanPositions : public QObject
{
    Q_OBJECT

private slots:
    void cells_data();
    void cells();
    void invalid();
};

void tst_GigapanPositions::cells_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("order");
    QTest::addColumn<bool>("force360");
    QTest::addColumn<int>("stack");
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("pitch");
    // hfov 50, vfov 40, overlap 20 %: steps of 40 and 32 degrees.
    QTest::newRow("columns: first cell top left") << 2 << 3 << 0 << false << 0 << -40.0 << 16.0;
    QTest::newRow("columns: second cell below it") << 2 << 3 << 0 << false << 1 << -40.0 << -16.0;
    QTest::newRow("columns: last cell bottom right") << 2 << 3 << 0 << false << 5 << 40.0 << -16.0;
    QTest::newRow("rows down: second cell right") << 2 << 3 << 1 << false << 1 << 0.0 << 16.0;
    QTest::newRow("rows up: first cell bottom left") << 2 << 3 << 2 << false << 0 << -40.0 << -16.0;
    QTest::newRow("columns left: first cell top right")
        << 2 << 3 << 3 << false << 0 << 40.0 << 16.0;
    QTest::newRow("serpentine: fourth cell") << 3 << 2 << 4 << false << 3 << -20.0 << 0.0;
    QTest::newRow("serpentine: last cell top right") << 3 << 2 << 4 << false << 5 << 20.0 << 32.0;
    QTest::newRow("360: columns spread round") << 1 << 8 << 1 << true << 0 << -157.5 << 0.0;
    QTest::newRow("360: last column") << 1 << 8 << 1 << true << 7 << 157.5 << 0.0;
    QTest::newRow("one cell") << 1 << 1 << 0 << false << 0 << 0.0 << 0.0;
}

void tst_GigapanPositions::cells()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(int, order);
    QFETCH(bool, force360);
    QFETCH(int, stack);
    QFETCH(double, yaw);
    QFETCH(double, pitch);
    const QVector<StackPosition> p
        = GigapanPositions::compute(rows, columns, order, 20.0, 50.0, 40.0, force360);
    QCOMPARE(p.size(), rows * columns);
    QCOMPARE(p[stack].yaw, yaw);
    QCOMPARE(p[stack].pitch, pitch);
    QCOMPARE(p[stack].roll, 0.0);
}

void tst_GigapanPositions::invalid()
{
    QVERIFY(GigapanPositions::compute(0, 3, 0, 20, 50, 40, false).isEmpty());
    QVERIFY(GigapanPositions::compute(2, 0, 0, 20, 50, 40, false).isEmpty());
    QVERIFY(GigapanPositions::compute(2, 3, 5, 20, 50, 40, false).isEmpty());
    QVERIFY(GigapanPositions::compute(2, 3, -1, 20, 50, 40, false).isEmpty());
    QCOMPARE(GigapanPositions::step(50.0, 40.0), 30.0);
}

QTEST_MAIN(tst_GigapanPositions)
#include "tst_GigapanPositions.moc"
