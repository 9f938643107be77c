// The grid the Gigapan page proposes for a set of photographs, the columns a
// grid leaves, and the bracketing check every head shares.
#include "Bracketing.h"
#include "GigapanGrid.h"

#include <QtTest>

#include <cmath>

class tst_GigapanGrid : public QObject
{
    Q_OBJECT

private slots:
    void proposed_data();
    void proposed();
    void proposalDividesAndIsWidest();
    void columns_data();
    void columns();
    void bracketing_data();
    void bracketing();
};

void tst_GigapanGrid::proposed_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");

    QTest::newRow("none") << 0 << 1 << 0;
    QTest::newRow("one") << 1 << 1 << 1;
    QTest::newRow("prime") << 7 << 1 << 7;
    QTest::newRow("six") << 6 << 2 << 3;
    QTest::newRow("square") << 16 << 4 << 4;
    QTest::newRow("twenty") << 20 << 4 << 5;
    QTest::newRow("thirty") << 30 << 5 << 6;
    QTest::newRow("square of a prime") << 49 << 7 << 7;
    QTest::newRow("large") << 100000 << 250 << 400;
}

void tst_GigapanGrid::proposed()
{
    QFETCH(int, photos);
    QFETCH(int, rows);
    QFETCH(int, columns);
    const GigapanGrid grid = GigapanGrid::Proposed(photos);
    QCOMPARE(grid.rows, rows);
    QCOMPARE(grid.columns, columns);
}

void tst_GigapanGrid::proposalDividesAndIsWidest()
{
    for (int n = 1; n <= 2000; ++n) {
        const GigapanGrid grid = GigapanGrid::Proposed(n);
        QCOMPARE(grid.rows * grid.columns, n);
        QVERIFY(grid.rows <= grid.columns);
        // No divisor between the proposal and the square root.
        for (int r = grid.rows + 1; r * r <= n; ++r)
            QVERIFY2(n % r != 0, qPrintable(QStringLiteral("n %1 r %2").arg(n).arg(r)));
    }
}

void tst_GigapanGrid::columns_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<int>("skip");
    QTest::addColumn<int>("bracket");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");

    QTest::newRow("plain") << 20 << 0 << 1 << 4 << 5;
    QTest::newRow("brackets") << 30 << 0 << 3 << 2 << 5;
    QTest::newRow("skipped") << 23 << 3 << 1 << 4 << 5;
    QTest::newRow("left over") << 22 << 0 << 1 << 4 << 5;
    QTest::newRow("too few") << 3 << 0 << 1 << 4 << 0;
    QTest::newRow("no rows") << 20 << 0 << 1 << 0 << 0;
    QTest::newRow("no bracket") << 20 << 0 << 0 << 4 << 0;
}

void tst_GigapanGrid::columns()
{
    QFETCH(int, photos);
    QFETCH(int, skip);
    QFETCH(int, bracket);
    QFETCH(int, rows);
    QFETCH(int, columns);
    QCOMPARE(GigapanGrid::Columns(photos, skip, bracket, rows), columns);
}

void tst_GigapanGrid::bracketing_data()
{
    QTest::addColumn<qint64>("photos");
    QTest::addColumn<int>("bracket");
    QTest::addColumn<bool>("fits");
    QTest::addColumn<int>("normalised");

    QTest::newRow("none recorded") << qint64(7) << -1 << true << 1;
    QTest::newRow("zero") << qint64(7) << 0 << true << 1;
    QTest::newRow("one") << qint64(7) << 1 << true << 1;
    QTest::newRow("three of 30") << qint64(30) << 3 << true << 3;
    QTest::newRow("three of 31") << qint64(31) << 3 << false << 3;
    QTest::newRow("no photographs") << qint64(0) << 5 << true << 5;
}

void tst_GigapanGrid::bracketing()
{
    QFETCH(qint64, photos);
    QFETCH(int, bracket);
    QFETCH(bool, fits);
    QFETCH(int, normalised);
    QCOMPARE(Bracketing::Fits(photos, bracket), fits);
    QCOMPARE(Bracketing::Normalised(bracket), normalised);
}

QTEST_GUILESS_MAIN(tst_GigapanGrid)
#include "tst_GigapanGrid.moc"
