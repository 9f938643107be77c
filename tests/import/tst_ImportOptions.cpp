// The options a user chooses, written into a description head by head, and
// the linking rule the pages' radio buttons and the command line share.
#include "ImportOptions.h"
#include "StructuredPanoramaProperties.h"

#include <QtTest>

Q_DECLARE_METATYPE(Head)

namespace {

/// A description whose every option field holds a value no option writes.
StructuredPanoramaProperties marked()
{
    StructuredPanoramaProperties r;
    r.m_autoDetection = false;
    r.m_cleanWrongLinks = false;
    r.m_skipOptimization = false;
    r.m_useRecordedLocation = false;
    r.m_levelLinking = 7;
    r.m_stackLinking = 7;
    r.m_outputMode = 7;
    r.m_overlap = 7.0;
    return r;
}

/// Options with every field set away from the description's marks.
ImportOptions chosen()
{
    ImportOptions o;
    o.autoDetection = true;
    o.cleanWrongLinks = true;
    o.skipOptimization = true;
    o.useRecordedLocation = true;
    o.levelLinking = 1;
    o.stackLinking = 1;
    o.outputMode = 3;
    o.overlap = 33.0;
    return o;
}

} // namespace

class tst_ImportOptions : public QObject
{
    Q_OBJECT

private slots:
    void writesWhatEachPageOffers_data();
    void writesWhatEachPageOffers();
    void keepLeavesLinking();
    void linkingRule_data();
    void linkingRule();
    void defaultsAreTheFormsInitialStates();
};

void tst_ImportOptions::writesWhatEachPageOffers_data()
{
    QTest::addColumn<Head>("head");
    QTest::addColumn<bool>("linking");
    QTest::addColumn<bool>("recordedLocation");
    QTest::addColumn<bool>("outputMode");
    QTest::addColumn<bool>("overlap");

    QTest::newRow("papywizard") << Head::Papywizard << true << true << false << false;
    QTest::newRow("vrdrive2") << Head::VRDrive2 << true << true << true << false;
    QTest::newRow("clauss") << Head::Clauss << false << true << false << false;
    QTest::newRow("gigapan") << Head::Gigapan << true << false << false << true;
}

void tst_ImportOptions::writesWhatEachPageOffers()
{
    QFETCH(Head, head);
    QFETCH(bool, linking);
    QFETCH(bool, recordedLocation);
    QFETCH(bool, outputMode);
    QFETCH(bool, overlap);

    StructuredPanoramaProperties r = marked();
    chosen().WriteTo(head, r);
    // Every page writes these four.
    QCOMPARE(r.m_autoDetection, true);
    QCOMPARE(r.m_cleanWrongLinks, true);
    QCOMPARE(r.m_skipOptimization, true);
    QCOMPARE(r.m_levelLinking, linking ? 1 : 7);
    QCOMPARE(r.m_stackLinking, linking ? 1 : 7);
    QCOMPARE(r.m_useRecordedLocation, recordedLocation);
    QCOMPARE(r.m_outputMode, outputMode ? 3 : 7);
    QCOMPARE(r.m_overlap, overlap ? 33.0 : 7.0);
}

void tst_ImportOptions::keepLeavesLinking()
{
    StructuredPanoramaProperties r = marked();
    ImportOptions o = chosen();
    o.levelLinking = ImportOptions::Keep;
    o.stackLinking = 0;
    o.WriteTo(Head::Papywizard, r);
    QCOMPARE(r.m_levelLinking, 7);
    QCOMPARE(r.m_stackLinking, 0);
}

void tst_ImportOptions::linkingRule_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("stack");
    QTest::addColumn<bool>("chooseLevel");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("expectedLevel");
    QTest::addColumn<int>("expectedStack");

    QTest::newRow("all levels brings points in stacks") << 0 << 0 << true << 1 << 1 << 1;
    QTest::newRow("reference level keeps stack linking") << 1 << 1 << true << 0 << 0 << 1;
    QTest::newRow("hard links bring the reference level") << 1 << 1 << false << 0 << 0 << 0;
    QTest::newRow("points keep the level") << 1 << 0 << false << 1 << 1 << 1;
}

void tst_ImportOptions::linkingRule()
{
    QFETCH(int, level);
    QFETCH(int, stack);
    QFETCH(bool, chooseLevel);
    QFETCH(int, value);
    QFETCH(int, expectedLevel);
    QFETCH(int, expectedStack);

    ImportOptions o;
    o.levelLinking = level;
    o.stackLinking = stack;
    if (chooseLevel)
        o.ChooseLevelLinking(value);
    else
        o.ChooseStackLinking(value);
    QCOMPARE(o.levelLinking, expectedLevel);
    QCOMPARE(o.stackLinking, expectedStack);
    QVERIFY(o.LinkingConsistent());
    o.levelLinking = 1;
    o.stackLinking = 0;
    QVERIFY(!o.LinkingConsistent());
}

void tst_ImportOptions::defaultsAreTheFormsInitialStates()
{
    // Recorded location and auto detection ticked, the reference level with
    // hard links, tonemapped output, 40 % overlap.
    const ImportOptions o;
    QVERIFY(o.autoDetection);
    QVERIFY(o.useRecordedLocation);
    QVERIFY(!o.cleanWrongLinks);
    QVERIFY(!o.skipOptimization);
    QCOMPARE(o.levelLinking, 0);
    QCOMPARE(o.stackLinking, 0);
    QCOMPARE(o.outputMode, 2);
    QCOMPARE(o.overlap, 40.0);
}

QTEST_GUILESS_MAIN(tst_ImportOptions)
#include "tst_ImportOptions.moc"
