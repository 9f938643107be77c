// Hostile Papywizard / VR Drive 2 records against MerlinToSPP::parse (both
// heads' pages read with it): entities that expand recursively or
// quadratically, external entities pointing at endless devices, elements
// nested 100,000 deep, bytes that are not XML, a record cut at every byte
// offset and a 1 GiB record of one line. Every parse returns false (the
// documented refusal, fields at their reset values) or true with bounded
// content; the peak resident memory stays under the bound of each case.
#include "BigFile.h"
#include "MerlinToSPP.h"
#include "PeakMemory.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// Largest image list generated from a hostile record: generation is
/// quadratic in the stacks, and hostile records are about reading.
constexpr int kMaxGenerated = 500;

QByteArray repeated(const QByteArray& part, int times)
{
    QByteArray out;
    out.reserve(part.size() * times);
    for (int i = 0; i < times; ++i)
        out += part;
    return out;
}

QByteArray billionLaughs(const QByteArray& use)
{
    QByteArray doc = "<?xml version=\"1.0\"?>\n<!DOCTYPE papywizard [\n<!ENTITY l0 \"lol\">\n";
    for (int level = 1; level <= 9; ++level)
        doc += "<!ENTITY l" + QByteArray::number(level) + " \""
            + repeated("&l" + QByteArray::number(level - 1) + ";", 10) + "\">\n";
    return doc + "]>\n" + use;
}

} // namespace

class tst_HostileRecords : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void hostileDocument_data();
    void hostileDocument();
    void cutAtEveryOffset();
    void oneGibibyteLine_data();
    void oneGibibyteLine();

private:
    void checkRefused(const MerlinToSPP& record);
    void generateFrom(MerlinToSPP& record);

    QTemporaryDir m_dir;
    QByteArray m_record;
};

void tst_HostileRecords::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QFile fixture(QFINDTESTDATA("data/record.xml"));
    QVERIFY(fixture.open(QIODevice::ReadOnly));
    m_record = fixture.readAll();
    QVERIFY(m_record.size() > 1000);
}

void tst_HostileRecords::checkRefused(const MerlinToSPP& record)
{
    QVERIFY(record.m_shoots.isEmpty());
    QCOMPARE(record.m_nbPicts, -1);
    QCOMPARE(record.m_xmlFocal, -1.0);
    QCOMPARE(record.m_sensorCoef, 1.0);
    QCOMPARE(record.m_xmlLensType, 0);
    QVERIFY(!record.m_portrait);
    QVERIFY(record.m_title.isEmpty() && record.m_gps.isEmpty() && record.m_comment.isEmpty());
}

// What the page does next with a record it read: generation with as many
// images as shots, the bracketing count forced to 1 or more.
void tst_HostileRecords::generateFrom(MerlinToSPP& record)
{
    const int shots = record.m_shoots.size();
    if (shots > kMaxGenerated)
        return;
    record.m_nbPicts = qMax(record.m_nbPicts, 1);
    QStringList images;
    for (int i = 0; i < shots; ++i)
        images << QStringLiteral("/p/%1.jpg").arg(i);
    record.generateSPP(images, -1.0, LensUnknown);
    QCOMPARE(record.m_stacks.size(), shots / record.m_nbPicts);
    QCOMPARE(record.m_yaw.size(), shots);
}

void tst_HostileRecords::hostileDocument_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("mayParse");
    QTest::addColumn<int>("maxTitle");
    QTest::addColumn<qint64>("boundMb");

    const QByteArray title = "<papywizard><header><general><title>&l9;</title></general>"
                             "</header><shoot><pict id=\"1\"/></shoot></papywizard>";
    // mayParse false: the documented result is false. true: a parse may also
    // succeed, with a title of at most maxTitle characters.
    QTest::newRow("entities expanding recursively, 10^9 characters")
        << billionLaughs(title) << true << 1 << 64ll;
    QTest::newRow("recursive entities in an attribute") << billionLaughs(
        "<papywizard><header><camera><sensor coef=\"&l9;\"/></camera></header>"
        "</papywizard>") << true << 0 << 64ll;
    QTest::newRow("quadratic blow-up: 64 KiB entity used 20,000 times")
        << QByteArray("<!DOCTYPE papywizard [<!ENTITY big \"" + QByteArray(65536, 'x')
               + "\">]><papywizard><header><general><title>" + repeated("&big;", 20000)
               + "</title></general></header></papywizard>")
        << true << 65536 * 20000 << 64ll;
    QTest::newRow("entity referring to itself")
        << QByteArray("<!DOCTYPE papywizard [<!ENTITY a \"x&a;\">]><papywizard><header><general>"
                      "<title>&a;</title></general></header></papywizard>")
        << false << 0 << 32ll;
    QTest::newRow("entities referring to each other") << QByteArray(
        "<!DOCTYPE papywizard [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]>"
        "<papywizard><header><general><title>&a;</title></general></header>"
        "</papywizard>") << false << 0 << 32ll;
    QTest::newRow("recursive parameter entities") << QByteArray(
        "<!DOCTYPE papywizard [<!ENTITY % a \"&#37;b;\"><!ENTITY % b \"&#37;a;\">"
        "%a;]><papywizard/>") << true << 0 << 32ll;
    QTest::newRow("external entity on an endless device")
        << QByteArray("<!DOCTYPE papywizard [<!ENTITY z SYSTEM \"/dev/zero\">]><papywizard>"
                      "<header><general><title>&z;</title></general></header></papywizard>")
        << true << 0 << 32ll;
    QTest::newRow("external DTD on an endless device")
        << QByteArray("<!DOCTYPE papywizard SYSTEM \"/dev/zero\"><papywizard/>") << true << 0
        << 32ll;
    QTest::newRow("100,000 nested elements under the root") << QByteArray(
        "<papywizard>" + repeated("<a>", 100000) + repeated("</a>", 100000) + "</papywizard>")
                                                            << true << 0 << 256ll;
    QTest::newRow("100,000 nested elements inside a shot")
        << QByteArray("<papywizard><shoot><pict id=\"1\">" + repeated("<position>", 100000)
               + repeated("</position>", 100000) + "</pict></shoot></papywizard>")
        << true << 0 << 256ll;
    QTest::newRow("100,000 nested elements, never closed")
        << QByteArray("<papywizard>" + repeated("<a>", 100000)) << false << 0 << 256ll;
    QTest::newRow("100,000 nested pict elements") << QByteArray("<papywizard><shoot>"
        + repeated("<pict id=\"1\">", 100000) + repeated("</pict>", 100000)
        + "</shoot></papywizard>") << true << 0 << 256ll;
    QTest::newRow("NUL byte inside a text")
        << QByteArray(QByteArray("<papywizard><header><general><title>a") + '\0'
               + "b</title></general></header></papywizard>")
        << true << 3 << 32ll;
    QTest::newRow("invalid UTF-8 in a text") << QByteArray(
        "<?xml version=\"1.0\" encoding=\"utf-8\"?><papywizard><header><general>"
        "<title>\xff\xfe\xc0\xaf\xed\xa0\x80</title></general></header>"
        "</papywizard>") << true << 8 << 32ll;
    QTest::newRow("unknown encoding")
        << QByteArray("<?xml version=\"1.0\" encoding=\"x-none\"?><papywizard/>") << true << 0
        << 32ll;
    QTest::newRow("UTF-16 declared, UTF-8 given")
        << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-16\"?><papywizard/>") << true << 0
        << 32ll;
    QTest::newRow("only a byte-order mark") << QByteArray("\xef\xbb\xbf") << false << 0 << 32ll;
    QTest::newRow("empty file") << QByteArray() << false << 0 << 32ll;
    // The largest records read (13 MB, just under the reader's size limit)
    // cost some forty times their size as a document tree.
    QTest::newRow("200,000 shots") << QByteArray("<papywizard><shoot>"
        + repeated("<pict id=\"7\" bracket=\"1\"><position yaw=\"1e39\" "
                   "pitch=\"nan\"/></pict>",
            200000)
        + "</shoot></papywizard>") << true
                                   << 0 << 768ll;
    QTest::newRow("17 MB of blanks: beyond the size limit")
        << QByteArray("<papywizard>" + QByteArray(17 << 20, ' ') + "</papywizard>") << true << 0
        << 64ll;
    QTest::newRow("numbers beyond every range")
        << QByteArray("<papywizard><header><camera><sensor coef=\"1e309\"/><bracketing "
                      "nbPicts=\"99999999999\"/></camera><lens><focal>-1e309</focal></lens>"
                      "</header><shoot><pict id=\"-99999999999\" bracket=\"2147483648\">"
                      "<position yaw=\"inf\" pitch=\"-nan\"/></pict></shoot></papywizard>")
        << true << 0 << 32ll;
}

void tst_HostileRecords::hostileDocument()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, mayParse);
    QFETCH(int, maxTitle);
    QFETCH(qint64, boundMb);

    const QString path = m_dir.filePath(QStringLiteral("hostile.xml"));
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(document), qint64(document.size()));
    }
    MerlinToSPP record;
    const PeakMemory memory;
    const bool parsed = record.parse(path);
    const qint64 grown = memory.growthMb();
    QVERIFY2(grown >= 0 && grown < PeakMemory::allowedMb(boundMb),
        qPrintable(QStringLiteral("peak RSS grew by %1 MB, bound %2 MB")
                       .arg(grown)
                       .arg(PeakMemory::allowedMb(boundMb))));
    if (!parsed) {
        checkRefused(record);
        return;
    }
    QVERIFY2(mayParse, "this record is not well-formed XML and must be refused");
    QVERIFY(record.m_title.size() <= maxTitle);
    generateFrom(record);
}

// Every proper prefix of a record that ends before the root element is
// closed is not well-formed: refused, with the fields at their reset values.
// Prefixes that hold the whole root element read like the whole record.
void tst_HostileRecords::cutAtEveryOffset()
{
    const int rootEnd = m_record.indexOf("</papywizard>") + int(strlen("</papywizard>"));
    QVERIFY(rootEnd > 100);
    const QString path = m_dir.filePath(QStringLiteral("cut.xml"));

    MerlinToSPP whole;
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(m_record);
    }
    QVERIFY(whole.parse(path));
    QCOMPARE(whole.m_shoots.size(), 8);
    QCOMPARE(whole.m_nbPicts, 2);

    const PeakMemory memory;
    MerlinToSPP record; // reused: every parse starts from the reset values
    for (int length = 0; length <= m_record.size(); ++length) {
        {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            QCOMPARE(file.write(m_record.constData(), length), qint64(length));
        }
        const bool parsed = record.parse(path);
        if (length < rootEnd) {
            QVERIFY2(!parsed, qPrintable(QStringLiteral("cut at %1 was accepted").arg(length)));
            checkRefused(record);
        } else {
            QVERIFY2(parsed, qPrintable(QStringLiteral("cut at %1 was refused").arg(length)));
            QCOMPARE(record.m_shoots.size(), whole.m_shoots.size());
            QCOMPARE(record.m_title, whole.m_title);
            QCOMPARE(record.m_xmlFocal, whole.m_xmlFocal);
            QCOMPARE(record.m_nbPicts, whole.m_nbPicts);
        }
    }
    // 2,000 parses of a 2 KiB record keep nothing: within 16 MB.
    QVERIFY(memory.growthMb() < PeakMemory::allowedMb(16));
}

void tst_HostileRecords::oneGibibyteLine_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<char>("fill");
    QTest::addColumn<QByteArray>("tail");
    QTest::addColumn<bool>("sparse");

    QTest::newRow("a title of 1 GiB")
        << QByteArray("<papywizard><header><general><title>") << 'a'
        << QByteArray("</title></general></header></papywizard>") << false;
    QTest::newRow("a shot, then a 1 GiB hole (NUL bytes)")
        << QByteArray("<papywizard><shoot><pict id=\"1\"/></shoot></papywizard>") << '\0'
        << QByteArray() << true;
}

// A record of 1 GiB on one line, written to a temporary folder at test time
// (streamed in blocks, or sparse) and deleted at the end. Refused or read,
// with the peak resident memory growing by less than 512 MB.
void tst_HostileRecords::oneGibibyteLine()
{
    QFETCH(QByteArray, head);
    QFETCH(char, fill);
    QFETCH(QByteArray, tail);
    QFETCH(bool, sparse);
    constexpr qint64 kGiB = qint64(1) << 30;
    QTemporaryDir dir(BigFile::scratchFolder() + QStringLiteral("/zph-hostile-XXXXXX"));
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("line.xml"));
    const bool written = sparse ? BigFile::writeSparse(path, head, kGiB)
                                : BigFile::writeStreamed(path, head, fill, kGiB, tail);
    if (!written)
        QSKIP("the temporary folder cannot hold 1 GiB");

    MerlinToSPP record;
    const PeakMemory memory;
    const bool parsed = record.parse(path);
    const qint64 grown = memory.growthMb();
    QFile::remove(path);
    QVERIFY2(grown >= 0 && grown < PeakMemory::allowedMb(512),
        qPrintable(QStringLiteral("peak RSS grew by %1 MB, bound 512 MB").arg(grown)));
    if (!parsed)
        checkRefused(record);
    else
        QVERIFY(record.m_title.size() < 1024 * 1024);
}

QTEST_MAIN(tst_HostileRecords)
#include "tst_HostileRecords.moc"
