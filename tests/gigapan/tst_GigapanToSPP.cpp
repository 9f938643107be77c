// Tests of GigapanToSPP: stacks per grid cell, the five shooting orders, the
// neighbour links with their directions and the 360° wrap, and grids that do
// not fit the photos.
#include "GigapanToSPP.h"

#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <tuple>

namespace {

/// A link as direction, from stack, to stack.
using Link = std::tuple<int, int, int>;
using LinkList = QVector<Link>;

QStringList photoList(int count)
{
    QStringList files;
    for (int k = 0; k < count; ++k)
        files.append(QStringLiteral("/pano/P%1.JPG").arg(k));
    return files;
}

LinkList linksOf(const GigapanToSPP& converter)
{
    LinkList links;
    for (const AuthorizedLink& link : converter.m_links) {
        if (link.m_stackIndices.size() != 2)
            return { Link(-1, -1, -1) }; // never a valid result: fails the comparison
        links.append(Link(link.m_direction, link.m_stackIndices[0], link.m_stackIndices[1]));
    }
    return links;
}

/// The shooting index of cell (a, b), written out per order.
int shootingIndex(int order, int rows, int cols, int a, int b)
{
    switch (order) {
    case 0: // columns from the left, each from the top down
        return b * rows + a;
    case 1: // rows from the top, each from the left
        return a * cols + b;
    case 2: // rows from the bottom, each from the left
        return (rows - 1 - a) * cols + b;
    case 3: // columns from the right, each from the top down
        return (cols - 1 - b) * rows + a;
    case 4: { // serpentine rows from the bottom, the bottom one from the left
        const int fromBottom = rows - 1 - a;
        const int along = fromBottom % 2 == 0 ? b : cols - 1 - b;
        return fromBottom * cols + along;
    }
    }
    return -1;
}

/// Every neighbour relation of the grid as (direction, from, to): 1 the cell
/// below, 2 the cell to the right, 3 below right, 4 above right; with wrap the
/// column right of the last one is the first.
LinkList neighbourRelations(int order, int rows, int cols, bool wrap)
{
    LinkList relations;
    auto idx = [&](int a, int b) { return shootingIndex(order, rows, cols, a, b); };
    for (int a = 0; a < rows; ++a) {
        for (int b = 0; b < cols; ++b) {
            const bool hasRight = b + 1 < cols || wrap;
            const int right = (b + 1) % cols;
            if (a + 1 < rows)
                relations.append(Link(1, idx(a, b), idx(a + 1, b)));
            if (hasRight)
                relations.append(Link(2, idx(a, b), idx(a, right)));
            if (hasRight && a + 1 < rows)
                relations.append(Link(3, idx(a, b), idx(a + 1, right)));
            if (hasRight && a > 0)
                relations.append(Link(4, idx(a, b), idx(a - 1, right)));
        }
    }
    return relations;
}

} // namespace

Q_DECLARE_METATYPE(Link)

class tst_GigapanToSPP : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void memberOrder();
    void twoByThree_data();
    void twoByThree();
    void bracketsAfterSkippedPhotos();
    void oneRow_data();
    void oneRow();
    void oneColumnWrapped();
    void serpentineOrder();
    void gridFields();
    void cellIndexIsBijection_data();
    void cellIndexIsBijection();
    void everyNeighbourLinkedOnce_data();
    void everyNeighbourLinkedOnce();
    void pageGrids();
    void gridsThatDoNotFit_data();
    void gridsThatDoNotFit();
};

void tst_GigapanToSPP::construction()
{
    const GigapanToSPP converter(4, 5, 3, 2, 7);
    QCOMPARE(converter.m_rows, 4);
    QCOMPARE(converter.m_columns, 5);
    QCOMPARE(converter.m_order, 3);
    QCOMPARE(converter.m_stackSize, 2);
    QCOMPARE(converter.m_skipCount, 7);
    QCOMPARE(converter.m_useShootData, false);
    QCOMPARE(converter.m_flag2, false);
    QCOMPARE(converter.m_autoDetection, true);
    QCOMPARE(converter.m_overlap, 25.0);
    QCOMPARE(converter.m_useRecordedLocation, true);
    QCOMPARE(converter.m_lensModel, LensUnknown);
    QCOMPARE(converter.m_focalLength, 0.0f);
    QCOMPARE(converter.m_bracketCount, 1);
    QCOMPARE(converter.m_gridRows, 0);
    QCOMPARE(converter.m_gridFlag, false);
    QVERIFY(converter.m_stacks.isEmpty());
    QVERIFY(converter.m_links.isEmpty());
}

void tst_GigapanToSPP::memberOrder()
{
    const GigapanToSPP converter(0, 0, 0, 1, 0);
    const std::less<const void*> before;
    QVERIFY(before(&converter.m_flag4, &converter.m_stackSize));
    QVERIFY(before(&converter.m_stackSize, &converter.m_skipCount));
    QVERIFY(before(&converter.m_skipCount, &converter.m_columns));
    QVERIFY(before(&converter.m_columns, &converter.m_rows));
    QVERIFY(before(&converter.m_rows, &converter.m_order));
}

void tst_GigapanToSPP::twoByThree_data()
{
    QTest::addColumn<bool>("force360");
    QTest::addColumn<LinkList>("expected");

    QTest::newRow("flat") << false
                          << LinkList { { 1, 0, 1 }, { 2, 0, 2 }, { 4, 1, 2 }, { 3, 0, 3 },
                                 { 1, 2, 3 }, { 2, 2, 4 }, { 4, 3, 4 }, { 3, 2, 5 }, { 1, 4, 5 },
                                 { 2, 1, 3 }, { 2, 3, 5 } };
    QTest::newRow("360") << true
                         << LinkList { { 1, 0, 1 }, { 2, 0, 2 }, { 4, 1, 2 }, { 3, 0, 3 },
                                { 1, 2, 3 }, { 2, 2, 4 }, { 4, 3, 4 }, { 3, 2, 5 }, { 1, 4, 5 },
                                { 2, 4, 0 }, { 4, 5, 0 }, { 3, 4, 1 }, { 2, 1, 3 }, { 2, 3, 5 },
                                { 2, 5, 1 } };
}

void tst_GigapanToSPP::twoByThree()
{
    QFETCH(bool, force360);
    QFETCH(LinkList, expected);

    GigapanToSPP converter(2, 3, 0, 1, 0);
    const QStringList files = photoList(6);
    converter.generateSPP(files, force360);
    QCOMPARE(converter.m_stacks.size(), 6);
    for (int k = 0; k < 6; ++k)
        QCOMPARE(converter.m_stacks[k], QStringList(files[k]));
    QCOMPARE(linksOf(converter), expected);
    QCOMPARE(GigapanToSPP::CellIndex(0, 2, 3, 0, 0), qint64(0));
    QCOMPARE(GigapanToSPP::CellIndex(0, 2, 3, 1, 0), qint64(1));
    QCOMPARE(GigapanToSPP::CellIndex(0, 2, 3, 0, 1), qint64(2));
    QCOMPARE(GigapanToSPP::CellIndex(0, 2, 3, 1, 1), qint64(3));
    QCOMPARE(GigapanToSPP::CellIndex(0, 2, 3, 0, 2), qint64(4));
    QCOMPARE(GigapanToSPP::CellIndex(0, 2, 3, 1, 2), qint64(5));
}

void tst_GigapanToSPP::bracketsAfterSkippedPhotos()
{
    // 20 photos, 2 skipped, 3 per position, 2 rows: (20 - 2) / 3 / 2 = 3 columns.
    const QStringList files = photoList(20);
    GigapanToSPP converter(2, (20 - 2) / 3 / 2, 0, 3, 2);
    QCOMPARE(converter.m_columns, 3);
    converter.generateSPP(files, false);
    QCOMPARE(converter.m_stacks.size(), 6);
    for (int k = 0; k < 6; ++k)
        QCOMPARE(converter.m_stacks[k], files.mid(2 + 3 * k, 3));
    QCOMPARE(converter.m_links.size(), 11);
    QCOMPARE(converter.m_bracketCount, 3);
}

void tst_GigapanToSPP::oneRow_data()
{
    QTest::addColumn<bool>("force360");
    QTest::addColumn<LinkList>("expected");

    QTest::newRow("flat") << false << LinkList { { 2, 0, 1 }, { 2, 1, 2 }, { 2, 2, 3 } };
    QTest::newRow("360") << true << LinkList { { 2, 0, 1 }, { 2, 1, 2 }, { 2, 2, 3 }, { 2, 3, 0 } };
}

void tst_GigapanToSPP::oneRow()
{
    QFETCH(bool, force360);
    QFETCH(LinkList, expected);

    for (int order = 0; order <= 4; ++order) {
        GigapanToSPP converter(1, 4, order, 1, 0);
        converter.generateSPP(photoList(4), force360);
        LinkList links = linksOf(converter);
        if (order == 3) {
            // Columns from the right: cell b holds stack 3 - b.
            for (Link& link : links)
                link = Link(std::get<0>(link), 3 - std::get<1>(link), 3 - std::get<2>(link));
        }
        QVERIFY2(links == expected, qPrintable(QString::number(order)));
    }
}

void tst_GigapanToSPP::oneColumnWrapped()
{
    // Each row links to itself on the right and, across the wrap, to the
    // next row on both diagonals; kept as they are made.
    GigapanToSPP converter(3, 1, 0, 1, 0);
    converter.generateSPP(photoList(3), true);
    QCOMPARE(linksOf(converter),
        (LinkList { { 1, 0, 1 }, { 2, 0, 0 }, { 4, 1, 0 }, { 3, 0, 1 }, { 1, 1, 2 }, { 2, 1, 1 },
            { 4, 2, 1 }, { 3, 1, 2 }, { 2, 2, 2 } }));
}

void tst_GigapanToSPP::serpentineOrder()
{
    QCOMPARE(GigapanToSPP::CellIndex(4, 3, 2, 2, 0), qint64(0));
    QCOMPARE(GigapanToSPP::CellIndex(4, 3, 2, 2, 1), qint64(1));
    QCOMPARE(GigapanToSPP::CellIndex(4, 3, 2, 1, 1), qint64(2));
    QCOMPARE(GigapanToSPP::CellIndex(4, 3, 2, 1, 0), qint64(3));
    QCOMPARE(GigapanToSPP::CellIndex(4, 3, 2, 0, 0), qint64(4));
    QCOMPARE(GigapanToSPP::CellIndex(4, 3, 2, 0, 1), qint64(5));

    GigapanToSPP converter(3, 2, 4, 1, 0);
    converter.generateSPP(photoList(6), false);
    QCOMPARE(converter.m_stacks.size(), 6);
    // Row 0: cells 4, 5 over row 1: cells 3, 2; row 1 over row 2: cells 0, 1.
    QCOMPARE(linksOf(converter),
        (LinkList { { 1, 4, 3 }, { 2, 4, 5 }, { 4, 3, 5 }, { 3, 4, 2 }, { 1, 5, 2 }, { 1, 3, 0 },
            { 2, 3, 2 }, { 4, 0, 2 }, { 3, 3, 1 }, { 1, 2, 1 }, { 2, 0, 1 } }));
}

void tst_GigapanToSPP::gridFields()
{
    GigapanToSPP converter(3, 4, 2, 2, 1);
    converter.generateSPP(photoList(25), true);
    QCOMPARE(converter.m_gridRows, 3);
    QCOMPARE(converter.m_gridOrder, 2);
    QCOMPARE(converter.m_bracketCount, 2);
    QCOMPARE(converter.m_gridFlag, true);
    QVERIFY(converter.m_yaw.isEmpty());
    QVERIFY(converter.m_pitch.isEmpty());
    QVERIFY(converter.m_roll.isEmpty());
    QCOMPARE(converter.m_overlap, 25.0);

    GigapanToSPP flat(3, 4, 2, 2, 1);
    flat.generateSPP(photoList(25), false);
    QCOMPARE(flat.m_gridFlag, false);
}

void tst_GigapanToSPP::cellIndexIsBijection_data()
{
    QTest::addColumn<int>("order");
    for (int order = 0; order <= 4; ++order)
        QTest::addRow("order %d", order) << order;
}

void tst_GigapanToSPP::cellIndexIsBijection()
{
    QFETCH(int, order);
    for (int rows = 1; rows <= 7; ++rows) {
        for (int cols = 1; cols <= 9; ++cols) {
            QSet<qint64> seen;
            for (int a = 0; a < rows; ++a) {
                for (int b = 0; b < cols; ++b) {
                    const qint64 index = GigapanToSPP::CellIndex(order, rows, cols, a, b);
                    const QString where
                        = QStringLiteral("%1 x %2 cell (%3, %4)").arg(rows).arg(cols).arg(a).arg(b);
                    QVERIFY2(index >= 0 && index < rows * cols, qPrintable(where));
                    QVERIFY2(!seen.contains(index), qPrintable(where));
                    QVERIFY2(index == shootingIndex(order, rows, cols, a, b), qPrintable(where));
                    seen.insert(index);
                }
            }
            QCOMPARE(seen.size(), rows * cols);
        }
    }
    QCOMPARE(GigapanToSPP::CellIndex(5, 2, 2, 0, 0), qint64(-1));
    QCOMPARE(GigapanToSPP::CellIndex(-1, 2, 2, 0, 0), qint64(-1));
}

void tst_GigapanToSPP::everyNeighbourLinkedOnce_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<bool>("force360");
    for (int order = 0; order <= 4; ++order) {
        QTest::addRow("order %d", order) << order << false;
        QTest::addRow("order %d, 360", order) << order << true;
    }
}

void tst_GigapanToSPP::everyNeighbourLinkedOnce()
{
    QFETCH(int, order);
    QFETCH(bool, force360);
    for (int rows = 1; rows <= 7; ++rows) {
        for (int cols = 1; cols <= 9; ++cols) {
            const QString grid = QStringLiteral("%1 x %2").arg(rows).arg(cols);
            const QStringList files = photoList(rows * cols + 3);
            GigapanToSPP converter(rows, cols, order, 1, 3);
            converter.generateSPP(files, force360);

            // Stack k holds the k-th photo after the skipped ones.
            QVERIFY2(converter.m_stacks.size() == rows * cols, qPrintable(grid));
            for (int k = 0; k < rows * cols; ++k)
                QVERIFY2(converter.m_stacks[k] == QStringList(files[3 + k]), qPrintable(grid));

            // Each neighbour relation is realised by exactly one link, and
            // every link realises one.
            LinkList links = linksOf(converter);
            LinkList relations = neighbourRelations(order, rows, cols, force360);
            std::sort(links.begin(), links.end());
            std::sort(relations.begin(), relations.end());
            QVERIFY2(links == relations, qPrintable(grid));

            // Seen as unordered pairs of distinct adjacent cells: one link per
            // pair, unless two columns wrap onto each other.
            if (cols >= 3 || !force360) {
                QHash<QPair<int, int>, int> perPair;
                for (const Link& link : links) {
                    const int from = std::get<1>(link);
                    const int to = std::get<2>(link);
                    ++perPair[qMakePair(qMin(from, to), qMax(from, to))];
                }
                for (auto it = perPair.cbegin(); it != perPair.cend(); ++it)
                    QVERIFY2(it.value() == 1, qPrintable(grid));
            }
        }
    }
}

void tst_GigapanToSPP::pageGrids()
{
    // Grids as the page computes them: columns = (photos - skipped) / bracket
    // / rows. Every stack is complete, and every link joins two stacks.
    QRandomGenerator random(2024);
    for (int trial = 0; trial < 2000; ++trial) {
        const int photos = int(random.bounded(80));
        const int skip = int(random.bounded(100));
        const int bracket = 1 + int(random.bounded(99));
        const int rows = 1 + int(random.bounded(trial % 2 ? 100000 : 12));
        const int cols = (photos - skip) / bracket / rows;
        const int order = int(random.bounded(5));
        const bool force360 = random.bounded(2) == 1;
        const QString what = QStringLiteral("%1 photos, skip %2, bracket %3, %4 x %5, order %6")
                                 .arg(photos)
                                 .arg(skip)
                                 .arg(bracket)
                                 .arg(rows)
                                 .arg(cols)
                                 .arg(order);

        const QStringList files = photoList(photos);
        GigapanToSPP converter(rows, cols, order, bracket, skip);
        converter.generateSPP(files, force360);
        const int stacks = cols > 0 ? rows * cols : 0;
        QVERIFY2(converter.m_stacks.size() == stacks, qPrintable(what));
        for (int k = 0; k < stacks; ++k)
            QVERIFY2(
                converter.m_stacks[k] == files.mid(skip + k * bracket, bracket), qPrintable(what));
        for (const AuthorizedLink& link : converter.m_links) {
            QVERIFY2(link.m_stackIndices.size() == 2, qPrintable(what));
            QVERIFY2(
                link.m_stackIndices[0] >= 0 && link.m_stackIndices[0] < stacks, qPrintable(what));
            QVERIFY2(
                link.m_stackIndices[1] >= 0 && link.m_stackIndices[1] < stacks, qPrintable(what));
        }
        if (stacks == 0)
            QVERIFY2(converter.m_links.isEmpty(), qPrintable(what));
    }
}

void tst_GigapanToSPP::gridsThatDoNotFit_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("order");
    QTest::addColumn<int>("stackSize");
    QTest::addColumn<int>("skipCount");
    QTest::addColumn<int>("photos");
    QTest::addColumn<QVector<QStringList>>("stacks");
    QTest::addColumn<int>("links");

    const QStringList f = photoList(12);
    using Stacks = QVector<QStringList>;
    QTest::newRow("order 5") << 2 << 2 << 5 << 1 << 0 << 4
                             << Stacks { f.mid(0, 1), f.mid(1, 1), f.mid(2, 1), f.mid(3, 1) } << 0;
    QTest::newRow("order -1") << 1 << 2 << -1 << 1 << 0 << 2 << Stacks { f.mid(0, 1), f.mid(1, 1) }
                              << 0;
    QTest::newRow("last stack cut short")
        << 2 << 3 << 0 << 2 << 0 << 9
        << Stacks { f.mid(0, 2), f.mid(2, 2), f.mid(4, 2), f.mid(6, 2), f.mid(8, 1) } << 0;
    QTest::newRow("more cells than photos")
        << 4 << 5 << 1 << 1 << 2 << 5 << Stacks { f.mid(2, 1), f.mid(3, 1), f.mid(4, 1) } << 0;
    QTest::newRow("no photos, neutral 4 x 5") << 4 << 5 << 0 << 1 << 0 << 0 << Stacks {} << 0;
    QTest::newRow("no columns") << 30 << 0 << 0 << 1 << 0 << 12 << Stacks {} << 0;
    QTest::newRow("more skipped than photos")
        << 2 << (5 - 10) / 1 / 2 << 0 << 1 << 10 << 5 << Stacks {} << 0;
    QTest::newRow("negative skip") << 1 << 2 << 0 << 1 << -3 << 5 << Stacks {} << 0;
    QTest::newRow("stack size 0") << 2 << 2 << 0 << 0 << 0 << 5 << Stacks {} << 0;
    QTest::newRow("negative stack size") << 2 << 2 << 0 << -2 << 0 << 5 << Stacks {} << 0;
    QTest::newRow("negative rows and columns") << -2 << -3 << 0 << 1 << 0 << 6 << Stacks {} << 0;
    QTest::newRow("huge grid") << 100000 << 100000 << 4 << 1 << 0 << 3
                               << Stacks { f.mid(0, 1), f.mid(1, 1), f.mid(2, 1) } << 0;
    QTest::newRow("largest values")
        << INT_MAX << INT_MAX << 0 << INT_MAX << INT_MAX - 1 << 12 << Stacks {} << 0;
    QTest::newRow("largest stack") << 1 << 1 << 0 << INT_MAX << 1 << 12 << Stacks { f.mid(1) } << 0;
}

void tst_GigapanToSPP::gridsThatDoNotFit()
{
    // Values the page never produces: stacks hold only photos that exist, and
    // without a grid matching the photos no link is made.
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(int, order);
    QFETCH(int, stackSize);
    QFETCH(int, skipCount);
    QFETCH(int, photos);
    QFETCH(QVector<QStringList>, stacks);
    QFETCH(int, links);

    GigapanToSPP converter(rows, columns, order, stackSize, skipCount);
    converter.generateSPP(photoList(photos), true);
    QCOMPARE(converter.m_stacks, stacks);
    QCOMPARE(converter.m_links.size(), links);
    QCOMPARE(converter.m_gridRows, rows);
    QCOMPARE(converter.m_gridOrder, order);
    QCOMPARE(converter.m_bracketCount, stackSize);
}

QTEST_GUILESS_MAIN(tst_GigapanToSPP)
#include "tst_GigapanToSPP.moc"
