// The JSON description: one member per record field, read back to the same
// record bit for bit, and clear reasons for documents that do not fit.
#include "DescriptionJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>

namespace {

StructuredPanoramaProperties sample()
{
    StructuredPanoramaProperties p;
    p.m_stacks = { { QStringLiteral("/photos/a.jpg"), QStringLiteral("/photos/b.jpg") },
        { QStringLiteral("/photos/c d.jpg"), QStringLiteral("/photos/é.jpg") } };
    AuthorizedLink link;
    link.m_direction = 2;
    link.m_stackIndices = { 0, 1 };
    p.m_links = { link };
    // Values whose float bits a decimal text could easily lose.
    p.m_yaw = { float(30.0 * 3.141592653589793 / 180.0), 0.1f, -1.0e-30f };
    p.m_pitch = { -0.3333333f, 1.0f / 3.0f, 3.4028235e38f };
    p.m_roll = { 0.0f, 1.0e-7f, 1.17549435e-38f };
    p.m_useShootData = false;
    p.m_focalLength = 35.123456f;
    p.m_flag2 = false;
    p.m_lensModel = LensFisheye;
    p.m_intA = -7;
    p.m_intB = 2147483647;
    p.m_intC = -2147483647 - 1;
    p.m_flag3 = true;
    p.m_autoDetection = true;
    p.m_stackLinking = 1;
    p.m_levelLinking = 1;
    p.m_useRecordedLocation = false;
    p.m_skipOptimization = true;
    p.m_cleanWrongLinks = true;
    p.m_gridOrder = 4;
    p.m_gridRows = 3;
    p.m_bracketCount = 5;
    p.m_gridFlag = true;
    p.m_overlap = 37.5;
    p.m_indexA = 9;
    p.m_outputMode = 3;
    p.m_text1 = QStringLiteral("one");
    p.m_text2 = QStringLiteral("two \"quoted\"");
    p.m_flag4 = true;
    return p;
}

bool sameBits(const QVector<float>& a, const QVector<float>& b)
{
    return a.size() == b.size() && std::memcmp(a.constData(), b.constData(), a.size() * 4) == 0;
}

} // namespace

class tst_DescriptionJson : public QObject
{
    Q_OBJECT

private slots:
    void oneMemberPerField();
    void roundTrip();
    void negativeZeroReadsAsZero();
    void fileRoundTrip();
    void rejects_data();
    void rejects();
    void unreadableFiles();
};

void tst_DescriptionJson::oneMemberPerField()
{
    const QJsonObject o = DescriptionJson::toJson(StructuredPanoramaProperties());
    const QStringList expected = { "stacks", "links", "yaw", "pitch", "roll", "useShootData",
        "focalLength", "flag2", "lensModel", "intA", "intB", "intC", "flag3", "autoDetection",
        "stackLinking", "levelLinking", "useRecordedLocation", "skipOptimization",
        "cleanWrongLinks", "gridOrder", "gridRows", "bracketCount", "gridFlag", "overlap", "indexA",
        "outputMode", "text1", "text2", "flag4" };
    QStringList keys = o.keys();
    QStringList sortedExpected = expected;
    keys.sort();
    sortedExpected.sort();
    QCOMPARE(keys, sortedExpected);
    QCOMPARE(o.value(QStringLiteral("lensModel")).toInt(), -1);
    QCOMPARE(o.value(QStringLiteral("overlap")).toDouble(), 80.0);
    QCOMPARE(o.value(QStringLiteral("useRecordedLocation")).toBool(), true);
}

void tst_DescriptionJson::roundTrip()
{
    const StructuredPanoramaProperties p = sample();
    // Through text, as a file would hold it.
    const QByteArray text = QJsonDocument(DescriptionJson::toJson(p)).toJson();
    StructuredPanoramaProperties back;
    QString error;
    QVERIFY2(DescriptionJson::fromJson(QJsonDocument::fromJson(text).object(), &back, &error),
        qPrintable(error));
    QCOMPARE(back.m_stacks, p.m_stacks);
    QCOMPARE(back.m_links.size(), 1);
    QCOMPARE(back.m_links[0].m_direction, 2);
    QCOMPARE(back.m_links[0].m_stackIndices, QVector<int>({ 0, 1 }));
    QVERIFY(sameBits(back.m_yaw, p.m_yaw));
    QVERIFY(sameBits(back.m_pitch, p.m_pitch));
    QVERIFY(sameBits(back.m_roll, p.m_roll));
    QVERIFY(std::memcmp(&back.m_focalLength, &p.m_focalLength, 4) == 0);
    QCOMPARE(back.m_useShootData, false);
    QCOMPARE(back.m_flag2, false);
    QCOMPARE(back.m_lensModel, LensFisheye);
    QCOMPARE(back.m_intA, -7);
    QCOMPARE(back.m_intB, 2147483647);
    QCOMPARE(back.m_intC, -2147483647 - 1);
    QCOMPARE(back.m_flag3, true);
    QCOMPARE(back.m_autoDetection, true);
    QCOMPARE(back.m_stackLinking, 1);
    QCOMPARE(back.m_levelLinking, 1);
    QCOMPARE(back.m_useRecordedLocation, false);
    QCOMPARE(back.m_skipOptimization, true);
    QCOMPARE(back.m_cleanWrongLinks, true);
    QCOMPARE(back.m_gridOrder, 4);
    QCOMPARE(back.m_gridRows, 3);
    QCOMPARE(back.m_bracketCount, 5);
    QCOMPARE(back.m_gridFlag, true);
    QCOMPARE(back.m_overlap, 37.5);
    QCOMPARE(back.m_indexA, 9);
    QCOMPARE(back.m_outputMode, 3);
    QCOMPARE(back.m_text1, QStringLiteral("one"));
    QCOMPARE(back.m_text2, QStringLiteral("two \"quoted\""));
    QCOMPARE(back.m_flag4, true);
}

void tst_DescriptionJson::negativeZeroReadsAsZero()
{
    StructuredPanoramaProperties p;
    p.m_yaw = { -0.0f };
    StructuredPanoramaProperties back;
    QString error;
    QVERIFY(DescriptionJson::fromJson(
        QJsonDocument::fromJson(QJsonDocument(DescriptionJson::toJson(p)).toJson()).object(), &back,
        &error));
    QCOMPARE(back.m_yaw.size(), 1);
    QCOMPARE(back.m_yaw[0], 0.0f);
}

void tst_DescriptionJson::fileRoundTrip()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("d.json"));
    QString error;
    QVERIFY2(DescriptionJson::write(sample(), path, &error), qPrintable(error));
    StructuredPanoramaProperties back;
    QVERIFY2(DescriptionJson::read(path, &back, &error), qPrintable(error));
    QCOMPARE(back.m_stacks, sample().m_stacks);
    QVERIFY(sameBits(back.m_pitch, sample().m_pitch));
}

void tst_DescriptionJson::rejects_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "flag4" << QJsonValue(QJsonValue::Undefined)
                             << "member \"flag4\" is missing";
    QTest::newRow("text for a flag") << "gridFlag" << QJsonValue(QStringLiteral("yes"))
                                     << "member \"gridFlag\" is not a boolean";
    QTest::newRow("fraction for an integer")
        << "gridRows" << QJsonValue(2.5) << "member \"gridRows\" is not a 32-bit integer";
    QTest::newRow("integer too large")
        << "indexA" << QJsonValue(4294967296.0) << "member \"indexA\" is not a 32-bit integer";
    QTest::newRow("unknown lens") << "lensModel" << QJsonValue(2)
                                  << "member \"lensModel\" is not -1, 0 or 1";
    QTest::newRow("angles with text")
        << "yaw" << QJsonValue(QJsonArray { 1.0, QStringLiteral("x") })
        << "member \"yaw\" holds something else than numbers";
    // Angles and the focal length are floats: a number that rounds to
    // infinity as a float is refused, naming the member.
    QTest::newRow("yaw beyond float range")
        << "yaw" << QJsonValue(QJsonArray { 0.0, 1e39 })
        << "member \"yaw\" holds a number out of range";
    QTest::newRow("pitch below float range")
        << "pitch" << QJsonValue(QJsonArray { -1e39 })
        << "member \"pitch\" holds a number out of range";
    QTest::newRow("roll far beyond float range")
        << "roll" << QJsonValue(QJsonArray { 3.5e46 })
        << "member \"roll\" holds a number out of range";
    QTest::newRow("focal length beyond float range")
        << "focalLength" << QJsonValue(1e39) << "member \"focalLength\" is out of range";
    QTest::newRow("stack of numbers") << "stacks" << QJsonValue(QJsonArray { QJsonArray { 1 } })
                                      << "a stack holds something else than paths";
    QTest::newRow("link to nowhere")
        << "links"
        << QJsonValue(QJsonArray { QJsonObject { { QStringLiteral("direction"), 1 },
               { QStringLiteral("stackIndices"), QJsonArray { 0, 2 } } } })
        << "link 0: a link names a stack that does not exist";
    QTest::newRow("link without direction")
        << "links"
        << QJsonValue(QJsonArray {
               QJsonObject { { QStringLiteral("stackIndices"), QJsonArray { 0, 1 } } } })
        << "link 0: member \"direction\" is missing";
}

void tst_DescriptionJson::rejects()
{
    QFETCH(QString, member);
    QFETCH(QJsonValue, value);
    QFETCH(QString, reason);
    QJsonObject o = DescriptionJson::toJson(sample());
    if (value.isUndefined())
        o.remove(member);
    else
        o.insert(member, value);
    StructuredPanoramaProperties target;
    target.m_text1 = QStringLiteral("untouched");
    QString error;
    QVERIFY(!DescriptionJson::fromJson(o, &target, &error));
    QCOMPARE(error, reason);
    QCOMPARE(target.m_text1, QStringLiteral("untouched"));
}

void tst_DescriptionJson::unreadableFiles()
{
    QTemporaryDir dir;
    StructuredPanoramaProperties p;
    QString error;
    QVERIFY(!DescriptionJson::read(dir.filePath(QStringLiteral("none.json")), &p, &error));
    QVERIFY2(error.startsWith(QStringLiteral("cannot read")), qPrintable(error));
    const QString bad = dir.filePath(QStringLiteral("bad.json"));
    QFile file(bad);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[1, 2");
    file.close();
    QVERIFY(!DescriptionJson::read(bad, &p, &error));
    QVERIFY2(error.contains(QStringLiteral("is not a panorama description")), qPrintable(error));
    QVERIFY(
        !DescriptionJson::write(p, dir.filePath(QStringLiteral("no/such/folder/d.json")), &error));
}

QTEST_MAIN(tst_DescriptionJson)
#include "tst_DescriptionJson.moc"
