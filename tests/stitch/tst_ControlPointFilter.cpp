// Control points between stacks stay only where an authorised link joins
// the stacks; points inside a stack always stay.
#include "ControlPointFilter.h"

#include <QtTest>

namespace {

/// Three stacks of two images each (images 0-1, 2-3, 4-5); stacks 0 and 1
/// are linked (seen from 1), stack 2 is linked to nothing.
StructuredPanoramaProperties panorama()
{
    StructuredPanoramaProperties p;
    p.m_stacks = { { QStringLiteral("/s/0.jpg"), QStringLiteral("/s/1.jpg") },
        { QStringLiteral("/s/2.jpg"), QStringLiteral("/s/3.jpg") },
        { QStringLiteral("/s/4.jpg"), QStringLiteral("/s/5.jpg") } };
    AuthorizedLink link;
    link.m_direction = 1;
    link.m_stackIndices = { 1, 0 };
    p.m_links = { link };
    return p;
}

PtoProject::ControlPoint point(int a, int b)
{
    PtoProject::ControlPoint p;
    p.first = a;
    p.second = b;
    p.line = QStringLiteral("c n%1 N%2 x0 y0 X0 Y0 t0").arg(a).arg(b);
    return p;
}

const QVector<int> StackOf = { 0, 0, 1, 1, 2, 2 };
const QVector<bool> IsReference = { true, false, true, false, true, false };

} // namespace

class tst_ControlPointFilter : public QObject
{
    Q_OBJECT

private slots:
    void allows_data();
    void allows();
    void filterCountsRemovedPairs();
    void matchStacks();
};

void tst_ControlPointFilter::allows_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("referenceLevelOnly");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("linked stacks, references") << 0 << 2 << true << true;
    QTest::newRow("linked stacks, link seen the other way") << 2 << 0 << false << true;
    QTest::newRow("linked stacks, second level, all levels") << 1 << 3 << false << true;
    QTest::newRow("linked stacks, second level, reference level") << 1 << 3 << true << false;
    QTest::newRow("linked stacks, one reference, reference level") << 0 << 3 << true << false;
    QTest::newRow("unlinked stacks") << 0 << 4 << false << false;
    QTest::newRow("unlinked stacks the other way") << 5 << 2 << false << false;
    QTest::newRow("inside a stack") << 4 << 5 << true << true;
    QTest::newRow("same image") << 3 << 3 << false << true;
    QTest::newRow("unknown image") << 0 << 6 << false << false;
    QTest::newRow("negative image") << -1 << 0 << false << false;
}

void tst_ControlPointFilter::allows()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(bool, referenceLevelOnly);
    QFETCH(bool, allowed);
    const ControlPointFilter filter(panorama(), StackOf, IsReference, referenceLevelOnly);
    QCOMPARE(filter.allows(point(first, second)), allowed);
}

void tst_ControlPointFilter::filterCountsRemovedPairs()
{
    const ControlPointFilter filter(panorama(), StackOf, IsReference, false);
    QVERIFY(filter.linked(0, 1));
    QVERIFY(filter.linked(1, 0));
    QVERIFY(!filter.linked(1, 2));
    QMap<QPair<int, int>, int> removed;
    const auto kept = filter.filter(
        { point(0, 2), point(0, 4), point(5, 1), point(3, 4), point(4, 5), point(1, 2) }, &removed);
    QCOMPARE(kept.size(), 3);
    QCOMPARE(kept[0].line, point(0, 2).line);
    QCOMPARE(kept[1].line, point(4, 5).line);
    QCOMPARE(kept[2].line, point(1, 2).line);
    QCOMPARE(removed.size(), 2);
    QCOMPARE(removed.value(qMakePair(0, 2)), 2);
    QCOMPARE(removed.value(qMakePair(1, 2)), 1);
}

void tst_ControlPointFilter::matchStacks()
{
    PtoProject project;
    QString error;
    QVERIFY(project.parse(
        QStringLiteral("i n\"../s/2.jpg\"\ni n\"/s/0.jpg\"\ni n\"5.jpg\"\n"), &error));
    QVector<int> stackOf;
    QVector<bool> isReference;
    // Relative names are resolved from the project's folder.
    QVERIFY(!ControlPointFilter::matchStacks(
        project, QStringLiteral("/elsewhere"), panorama(), &stackOf, &isReference, &error));
    QCOMPARE(
        error, QStringLiteral("the project's image 2 (5.jpg) is in no stack of the description"));
    QVERIFY2(ControlPointFilter::matchStacks(
                 project, QStringLiteral("/s"), panorama(), &stackOf, &isReference, &error),
        qPrintable(error));
    QCOMPARE(stackOf, QVector<int>({ 1, 0, 2 }));
    QCOMPARE(isReference, QVector<bool>({ true, true, false }));
}

QTEST_MAIN(tst_ControlPointFilter)
#include "tst_ControlPointFilter.moc"
