// Tests of the head-record reader and the layout it generates: the fields read
// from hand-written records, the stacks, angles and links made from them, and
// bad input (which must fail in bounded time and memory, never crash).
#include "MerlinToSPP.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <set>
#include <type_traits>
#include <utility>

namespace {

constexpr double kPi = 3.141592653589793;

/// Peak memory that one bad input may add while it is read. Well-formed
/// records of 10,000 shots need a few megabytes; a document that expands to
/// gigabytes must be refused long before this.
constexpr qint64 kBadInputPeakKb = 64 * 1024;

quint32 bitsOf(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

quint64 bitsOf(double value)
{
    quint64 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/// Degrees to radians as the record stores them: double steps, float result.
float radians(float degrees)
{
    return float(double(degrees) * kPi / 180.0);
}

ShootData makeShot(float yaw, float pitch, qint32 bracket = 1, float roll = 0.0f)
{
    ShootData shot;
    shot.m_yaw = yaw;
    shot.m_pitch = pitch;
    shot.m_roll = roll;
    shot.m_bracket = bracket;
    return shot;
}

QStringList imageNames(int count)
{
    QStringList names;
    for (int k = 0; k < count; ++k)
        names << QStringLiteral("/photos/img_%1.jpg").arg(k, 4, 10, QLatin1Char('0'));
    return names;
}

/// "direction:from>to" per link, every index listed, in order.
QStringList describe(const QVector<AuthorizedLink>& links)
{
    QStringList texts;
    for (const AuthorizedLink& link : links) {
        QStringList indices;
        for (int index : link.m_stackIndices)
            indices << QString::number(index);
        texts << QStringLiteral("%1:%2").arg(link.m_direction).arg(indices.join(QLatin1Char('>')));
    }
    return texts;
}

/// The links evaluated pair by pair, straight from the rule, with no shortcut:
/// every ordered pair of placed stacks, trigonometry per pair.
QStringList pairByPairLinks(
    const QVector<ShootData>& shots, int bracket, int stackCount, double focal)
{
    const float f = float(focal);
    const float twoF = f + f;
    const float h = float(std::atan(43.266615305567875 / double(twoF)));
    const double factor = double(0.65f);
    QStringList links;
    for (int i = 0; i < stackCount; ++i) {
        for (int j = 0; j < stackCount; ++j) {
            if (i == j || i * bracket >= shots.size() || j * bracket >= shots.size())
                continue;
            const float yi = radians(shots.at(i * bracket).m_yaw);
            const float pi = radians(shots.at(i * bracket).m_pitch);
            const float yj = radians(shots.at(j * bracket).m_yaw);
            const float pj = radians(shots.at(j * bracket).m_pitch);
            const double d = std::acos(std::sin(double(pi)) * std::sin(double(pj))
                + std::cos(double(pi)) * std::cos(double(pj))
                    * (std::sin(double(yi)) * std::sin(double(yj))
                        + std::cos(double(yi)) * std::cos(double(yj))));
            if (!(double(h) > factor * d))
                continue;
            float dy = yj - yi;
            if (dy > kPi)
                dy -= 6.2831855f;
            if (dy < -kPi)
                dy += 6.2831855f;
            const float dp = pj - pi;
            const double a = std::atan2(double(dp), double(dy));
            if (a > -kPi / 4 && a <= kPi / 4)
                links << QStringLiteral("2:%1>%2").arg(i).arg(j);
            else if (a > -3 * kPi / 4 && a <= -kPi / 4)
                links << QStringLiteral("1:%1>%2").arg(i).arg(j);
        }
    }
    return links;
}

qint64 procStatusKb(const char* key)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray wanted = QByteArray(key) + ':';
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith(wanted))
            return line.mid(wanted.size()).trimmed().split(' ').value(0).toLongLong();
    }
    return -1;
}

/// Measures how far the peak resident size rises above the current one. The
/// kernel's peak is reset first where it allows it; otherwise the earlier peak
/// stands in, which can only make the figure smaller.
class PeakMemoryProbe
{
public:
    PeakMemoryProbe()
    {
        QFile clearRefs(QStringLiteral("/proc/self/clear_refs"));
        if (clearRefs.open(QIODevice::WriteOnly))
            clearRefs.write("5");
        m_startKb = procStatusKb("VmRSS");
    }
    qint64 growthKb() const { return procStatusKb("VmHWM") - m_startKb; }

private:
    qint64 m_startKb = 0;
};

/// Writes size bytes: prefix, then random bytes, one megabyte at a time.
bool writeGarbage(const QString& path, const QByteArray& prefix, qint64 size)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(prefix) != prefix.size())
        return false;
    QRandomGenerator random(20240611);
    QByteArray chunk(1 << 20, Qt::Uninitialized);
    for (qint64 written = prefix.size(); written < size; written += chunk.size()) {
        random.fillRange(reinterpret_cast<quint32*>(chunk.data()), chunk.size() / 4);
        const qint64 length = std::min<qint64>(chunk.size(), size - written);
        if (file.write(chunk.constData(), length) != length)
            return false;
    }
    return true;
}

/// A document whose one entity of 4000 characters is referred to 100,000
/// times: 300 kB that expand to 400 million characters.
bool writeEntityFlood(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QByteArray text = "<?xml version=\"1.0\"?>\n<!DOCTYPE papywizard [<!ENTITY a \"";
    text += QByteArray(4000, 'x');
    text += "\">]>\n<papywizard><header><general><title>";
    text += QByteArray("&a;").repeated(100000);
    text += "</title></general></header></papywizard>\n";
    return file.write(text) == text.size();
}

/// A well-formed record just over the size a record may have: 17 MiB of empty elements.
bool writeOversizedRecord(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QByteArray elements = QByteArray("<note/>").repeated(1 << 16);
    qint64 size = file.write("<papywizard><shoot>");
    while (size < 17 * 1024 * 1024)
        size += file.write(elements);
    return file.write("</shoot></papywizard>\n") > 0;
}

/// The reader's reset values and the record field that parse must not touch.
void verifyResetValues(const MerlinToSPP& record)
{
    QVERIFY(record.m_shoots.isEmpty());
    QVERIFY(record.m_title.isEmpty());
    QVERIFY(record.m_gps.isEmpty());
    QVERIFY(record.m_comment.isEmpty());
    QCOMPARE(bitsOf(record.m_sensorCoef), bitsOf(1.0));
    QCOMPARE(bitsOf(record.m_xmlFocal), bitsOf(-1.0));
    QCOMPARE(record.m_nbPicts, -1);
    QCOMPARE(record.m_xmlLensType, 0);
    QCOMPARE(record.m_portrait, false);
}

/// A grid of positions: rows from the top, columns from the left, the first
/// shot of each bracket at the position, the others pointing elsewhere.
struct Grid
{
    int rows = 1;
    int columns = 1;
    int bracket = 1;
    float yawStart = 0;
    float yawStep = 0;
    float pitchTop = 0;
    float pitchStep = 0;
    bool fullCircle = false;
    bool serpentine = false;
    /// Yaws written in (-180, 180] instead of [0, 360).
    bool signedYaw = false;

    int stackOf(int row, int column) const
    {
        const bool reversed = serpentine && row % 2 == 1;
        return row * columns + (reversed ? columns - 1 - column : column);
    }
    float yawOf(int column) const
    {
        float yaw = std::fmod(yawStart + yawStep * float(column), 360.0f);
        if (yaw < 0)
            yaw += 360.0f;
        if (signedYaw && yaw > 180.0f)
            yaw -= 360.0f;
        return yaw;
    }
    QVector<ShootData> shots() const
    {
        QVector<ShootData> result(rows * columns * bracket);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                const int first = stackOf(row, column) * bracket;
                const float pitch = pitchTop - pitchStep * float(row);
                result[first] = makeShot(yawOf(column), pitch, 1);
                for (int k = 1; k < bracket; ++k)
                    result[first + k] = makeShot(yawOf(column) + 123.0f, pitch - 77.0f, k + 1);
            }
        }
        return result;
    }
};

} // namespace

Q_DECLARE_METATYPE(Grid)

class tst_MerlinToSPP : public QObject
{
    Q_OBJECT

private:
    QString fixture(const char* name)
    {
        return QFINDTESTDATA(QStringLiteral("data/") + QLatin1String(name));
    }

private slots:
    void constructorSetsRecordDefaults();
    void ownMembersFollowTheRecord();

    void parseReadsHeader_data();
    void parseReadsHeader();
    void parseReadsShots_data();
    void parseReadsShots();
    void parseReadsTextDateTimes();
    void parseTwiceReplacesShots();
    void parseLeavesRecordFieldsAlone();
    void parseRefusesBadInput_data();
    void parseRefusesBadInput();
    void parseRefusesHundredMegabytesOfGarbage();
    void parseReadsTenThousandShots();

    void generateGroupsImagesIntoStacks();
    void generateStoresRadiansBitForBit_data();
    void generateStoresRadiansBitForBit();
    void generateResolvesFocalAndLens_data();
    void generateResolvesFocalAndLens();
    void generateMakesNoLinksForFisheye_data();
    void generateMakesNoLinksForFisheye();
    void generateLinks_data();
    void generateLinks();
    void boundaryRowsDependOnThePrecision();
    void generateFromCompleteRecord();
    void generateAppendsWithoutClearing();
    void generateBoundsStacksBeyondTheShots();
    void generateReadsMissingBracketingAsOne();
    void generateMatchesPairByPairEvaluation();
    void generateLinksEveryNeighbourOnce_data();
    void generateLinksEveryNeighbourOnce();
};

void tst_MerlinToSPP::constructorSetsRecordDefaults()
{
    const MerlinToSPP record;
    QCOMPARE(record.m_useShootData, true);
    QCOMPARE(record.m_flag2, true);
    QCOMPARE(record.m_useRecordedLocation, true);
    QCOMPARE(record.m_bracketCount, 1);
    QCOMPARE(bitsOf(record.m_overlap), bitsOf(80.0));
    QCOMPARE(int(record.m_lensModel), -1);
    QCOMPARE(record.m_indexA, -1);
    QCOMPARE(record.m_outputMode, -1);
    QCOMPARE(bitsOf(record.m_focalLength), bitsOf(0.0f));
    QVERIFY(record.m_stacks.isEmpty());
    QVERIFY(record.m_links.isEmpty());
    QVERIFY(record.m_yaw.isEmpty() && record.m_pitch.isEmpty() && record.m_roll.isEmpty());
    verifyResetValues(record);
}

void tst_MerlinToSPP::ownMembersFollowTheRecord()
{
    // The record is the converter's first part; its own members follow in this order.
    MerlinToSPP record;
    const char* base = reinterpret_cast<const char*>(&record);
    QCOMPARE(
        reinterpret_cast<const char*>(static_cast<StructuredPanoramaProperties*>(&record)), base);
    const qptrdiff offsets[] = {
        reinterpret_cast<const char*>(&record.m_flag4) - base,
        reinterpret_cast<const char*>(&record.m_shoots) - base,
        reinterpret_cast<const char*>(&record.m_title) - base,
        reinterpret_cast<const char*>(&record.m_gps) - base,
        reinterpret_cast<const char*>(&record.m_comment) - base,
        reinterpret_cast<const char*>(&record.m_xmlFocal) - base,
        reinterpret_cast<const char*>(&record.m_sensorCoef) - base,
        reinterpret_cast<const char*>(&record.m_nbPicts) - base,
        reinterpret_cast<const char*>(&record.m_xmlLensType) - base,
        reinterpret_cast<const char*>(&record.m_portrait) - base,
    };
    for (size_t k = 1; k < sizeof offsets / sizeof offsets[0]; ++k)
        QVERIFY2(offsets[k - 1] < offsets[k], qPrintable(QString::number(k)));
    static_assert(std::is_same_v<decltype(record.m_xmlFocal), double>);
    static_assert(std::is_same_v<decltype(record.m_sensorCoef), double>);
    static_assert(std::is_same_v<decltype(record.m_nbPicts), qint32>);
    static_assert(std::is_same_v<decltype(record.m_xmlLensType), qint32>);
}

void tst_MerlinToSPP::parseReadsHeader_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("gps");
    QTest::addColumn<QString>("comment");
    QTest::addColumn<double>("coef");
    QTest::addColumn<double>("focal");
    QTest::addColumn<int>("nbPicts");
    QTest::addColumn<int>("lensType");
    QTest::addColumn<bool>("portrait");
    QTest::addColumn<int>("shots");

    const QString none;
    QTest::newRow("complete record, lens before camera")
        << fixture("complete.xml") << QStringLiteral("Harbour at dusk")
        << QString::fromUtf8("46°12'N 6°09'E") << QStringLiteral("Second try, wind from the west")
        << 1.6 << 17.5 * 1.6 << 2 << 0 << false << 6;
    QTest::newRow("shoot without header") << fixture("shoot_without_header.xml") << none << none
                                          << none << 1.0 << -1.0 << -1 << 0 << false << 2;
    QTest::newRow("lens type FishEye and a blank")
        << fixture("lens_type_fisheye_blank.xml") << none << none << none << 1.0 << 8.0 << -1 << 1
        << false << 0;
    QTest::newRow("lens type of another text") << fixture("lens_type_other.xml") << none << none
                                               << none << 1.0 << 8.0 << -1 << 0 << false << 0;
    QTest::newRow("sensor coef not a number, focal 10")
        << fixture("sensor_coef_not_number.xml") << none << none << none << 1.0 << 10.0 << -1 << 0
        << false << 0;
    QTest::newRow("sensor coef 1.5, focal 20") << fixture("sensor_coef_15.xml") << none << none
                                               << none << 1.5 << 30.0 << -1 << 0 << false << 0;
    QTest::newRow("Portrait between blanks") << fixture("orientation_portrait_blanks.xml") << none
                                             << none << none << 1.0 << -1.0 << -1 << 0 << true << 0;
    QTest::newRow("lens without focal gives 0") << fixture("lens_without_focal.xml") << none << none
                                                << none << 1.5 << 0.0 << -1 << 0 << false << 0;
    QTest::newRow("second elements ignored")
        << fixture("second_elements.xml") << QStringLiteral("first title") << none << none << 2.0
        << 24.0 << 3 << 0 << false << 1;
    QTest::newRow("names are case-sensitive")
        << fixture("case_sensitive_names.xml") << none << none << QStringLiteral("read") << 1.0
        << -1.0 << 0 << 0 << false << 2;
    QTest::newRow("numbers that do not convert")
        << fixture("not_numbers.xml") << none << none << none << 1.0 << 0.0 << 0 << 0 << false << 2;
    QTest::newRow("bracketing without a count")
        << fixture("bracketing_without_count.xml") << none << none << none << 1.0 << -1.0 << 0 << 0
        << false << 0;
    QTest::newRow("other writer: other root, no header, no ids")
        << fixture("writer_bare_shots.xml") << none << none << none << 1.0 << -1.0 << -1 << 0
        << false << 3;
    QTest::newRow("other writer: white space around numbers")
        << fixture("writer_whitespace.xml") << none << none << none << 1.5 << 24.5 * 1.5 << 3 << 1
        << false << 1;
    QTest::newRow("other writer: comments before each pict")
        << fixture("writer_comments.xml") << QStringLiteral("Lake shore") << none
        << QStringLiteral("<raw> comment") << 1.0 << 35.0 << -1 << 0 << false << 3;
    QTest::newRow("other writer: roll written") << fixture("writer_roll.xml") << none << none
                                                << none << 1.0 << -1.0 << -1 << 0 << false << 1;
    QTest::newRow("document type without entities")
        << fixture("doctype_without_entities.xml") << QStringLiteral("typed") << none << none << 1.0
        << -1.0 << -1 << 0 << false << 1;
}

void tst_MerlinToSPP::parseReadsHeader()
{
    QFETCH(QString, file);
    QFETCH(QString, title);
    QFETCH(QString, gps);
    QFETCH(QString, comment);
    QFETCH(double, coef);
    QFETCH(double, focal);
    QFETCH(int, nbPicts);
    QFETCH(int, lensType);
    QFETCH(bool, portrait);
    QFETCH(int, shots);

    MerlinToSPP record;
    QVERIFY(record.parse(file));
    QCOMPARE(record.m_title, title);
    QCOMPARE(record.m_gps, gps);
    QCOMPARE(record.m_comment, comment);
    QCOMPARE(bitsOf(record.m_sensorCoef), bitsOf(coef));
    QCOMPARE(bitsOf(record.m_xmlFocal), bitsOf(focal));
    QCOMPARE(record.m_nbPicts, nbPicts);
    QCOMPARE(record.m_xmlLensType, lensType);
    QCOMPARE(record.m_portrait, portrait);
    QCOMPARE(record.m_shoots.size(), shots);
}

void tst_MerlinToSPP::parseReadsShots_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QVector<int>>("ids");
    QTest::addColumn<QVector<int>>("brackets");
    QTest::addColumn<QVector<float>>("yaws");
    QTest::addColumn<QVector<float>>("pitches");

    const float infinity = std::numeric_limits<float>::infinity();
    // Decimal text is read as double, then stored as float.
    QTest::newRow("complete record")
        << fixture("complete.xml") << QVector<int> { 1, 2, 3, 4, 5, 6 }
        << QVector<int> { 1, 2, 1, 2, 1, 2 }
        << QVector<float> { float(-12.3456789), float(-12.3456789), 25.5f, 25.5f, float(0.1),
               float(0.1) }
        << QVector<float> { 30.0f, 30.0f, 30.0f, 30.0f, -7.25f, -7.25f };
    QTest::newRow("pict without position at yaw 0, pitch 0")
        << fixture("pict_without_position.xml") << QVector<int> { 1, 2, 3 }
        << QVector<int> { 1, 1, 1 } << QVector<float> { 15.0f, 0.0f, 0.0f }
        << QVector<float> { 5.0f, 0.0f, 0.0f };
    QTest::newRow("first position and first shoot only")
        << fixture("second_elements.xml") << QVector<int> { 1 } << QVector<int> { 1 }
        << QVector<float> { 1.0f } << QVector<float> { 2.0f };
    QTest::newRow("names are case-sensitive")
        << fixture("case_sensitive_names.xml") << QVector<int> { 0, 3 } << QVector<int> { 0, 1 }
        << QVector<float> { 0.0f, 0.0f } << QVector<float> { 0.0f, 0.0f };
    QTest::newRow("numbers that do not convert")
        << fixture("not_numbers.xml") << QVector<int> { 0, 0 } << QVector<int> { 0, 0 }
        << QVector<float> { 0.0f, 0.0f } << QVector<float> { infinity, 0.0f };
    QTest::newRow("other writer: no ids, no brackets, no times")
        << fixture("writer_bare_shots.xml") << QVector<int> { 0, 0, 0 } << QVector<int> { 0, 0, 0 }
        << QVector<float> { 0.0f, 60.0f, 120.0f } << QVector<float> { 0.0f, 0.0f, -45.5f };
    QTest::newRow("other writer: white space around numbers")
        << fixture("writer_whitespace.xml") << QVector<int> { 7 } << QVector<int> { 2 }
        << QVector<float> { -45.5f } << QVector<float> { 12.25f };
    QTest::newRow("other writer: comments before each pict")
        << fixture("writer_comments.xml") << QVector<int> { 1, 2, 3 } << QVector<int> { 1, 1, 1 }
        << QVector<float> { 1.5f, 3.5f, 5.5f } << QVector<float> { 2.5f, 4.5f, 6.5f };
    QTest::newRow("other writer: roll written, roll 0")
        << fixture("writer_roll.xml") << QVector<int> { 1 } << QVector<int> { 1 }
        << QVector<float> { 10.0f } << QVector<float> { 20.0f };
    QTest::newRow("shoot without header")
        << fixture("shoot_without_header.xml") << QVector<int> { 1, 2 } << QVector<int> { 1, 1 }
        << QVector<float> { 10.5f, 40.5f } << QVector<float> { -20.25f, -20.25f };
}

void tst_MerlinToSPP::parseReadsShots()
{
    QFETCH(QString, file);
    QFETCH(QVector<int>, ids);
    QFETCH(QVector<int>, brackets);
    QFETCH(QVector<float>, yaws);
    QFETCH(QVector<float>, pitches);

    MerlinToSPP record;
    QVERIFY(record.parse(file));
    QCOMPARE(record.m_shoots.size(), ids.size());
    for (int k = 0; k < ids.size(); ++k) {
        const ShootData& shot = record.m_shoots.at(k);
        const QByteArray where = "shot " + QByteArray::number(k);
        QVERIFY2(shot.m_id == ids.at(k), where);
        QVERIFY2(shot.m_bracket == brackets.at(k), where);
        QVERIFY2(bitsOf(shot.m_yaw) == bitsOf(yaws.at(k)), where);
        QVERIFY2(bitsOf(shot.m_pitch) == bitsOf(pitches.at(k)), where);
        QVERIFY2(bitsOf(shot.m_roll) == bitsOf(0.0f), where);
        QVERIFY2(shot.m_reserved == 0, where);
    }
}

void tst_MerlinToSPP::parseReadsTextDateTimes()
{
    MerlinToSPP record;
    QVERIFY(record.parse(fixture("times.xml")));
    QCOMPARE(record.m_shoots.size(), 5);
    const QDate day(2009, 5, 2);
    QCOMPARE(record.m_shoots.at(0).m_time, QDateTime(day, QTime(10, 34, 21)));
    // The text is not trimmed; the text-date form itself allows the blanks.
    QCOMPARE(record.m_shoots.at(1).m_time, QDateTime(day, QTime(10, 34, 22)));
    QVERIFY(!record.m_shoots.at(2).m_time.isValid()); // another form
    QVERIFY(!record.m_shoots.at(3).m_time.isValid()); // empty
    QVERIFY(!record.m_shoots.at(4).m_time.isValid()); // no time element

    QVERIFY(record.parse(fixture("complete.xml")));
    QCOMPARE(record.m_shoots.at(0).m_time, QDateTime(day, QTime(10, 34, 21)));
    QCOMPARE(record.m_shoots.at(1).m_time, QDateTime(day, QTime(10, 34, 23)));
    QVERIFY(!record.m_shoots.at(2).m_time.isValid());
}

void tst_MerlinToSPP::parseTwiceReplacesShots()
{
    MerlinToSPP record;
    QVERIFY(record.parse(fixture("complete.xml")));
    QCOMPARE(record.m_shoots.size(), 6);
    QVERIFY(record.parse(fixture("complete.xml")));
    QCOMPARE(record.m_shoots.size(), 6);
    // A record without header also resets what the first one's header set.
    QVERIFY(record.parse(fixture("shoot_without_header.xml")));
    QCOMPARE(record.m_shoots.size(), 2);
    QCOMPARE(bitsOf(record.m_shoots.at(0).m_yaw), bitsOf(10.5f));
    QVERIFY(record.m_title.isEmpty());
    QVERIFY(record.m_gps.isEmpty());
    QVERIFY(record.m_comment.isEmpty());
    QCOMPARE(record.m_nbPicts, -1);
    QCOMPARE(bitsOf(record.m_xmlFocal), bitsOf(-1.0));
    QCOMPARE(bitsOf(record.m_sensorCoef), bitsOf(1.0));
    QVERIFY(record.parse(fixture("orientation_portrait_blanks.xml")));
    QVERIFY(record.m_portrait);
    QVERIFY(record.parse(fixture("lens_type_fisheye_blank.xml")));
    QVERIFY(!record.m_portrait);
    QCOMPARE(record.m_xmlLensType, 1);
    QVERIFY(record.parse(fixture("shoot_without_header.xml")));
    QCOMPARE(record.m_xmlLensType, 0);
}

void tst_MerlinToSPP::parseLeavesRecordFieldsAlone()
{
    MerlinToSPP record;
    record.m_focalLength = 42.0f;
    record.m_lensModel = LensFisheye;
    record.m_stacks << QStringList { QStringLiteral("a.jpg") };
    record.m_yaw << 1.0f;
    record.m_links << AuthorizedLink();
    QVERIFY(record.parse(fixture("complete.xml")));
    QVERIFY(!record.parse(fixture("malformed.xml")));
    QCOMPARE(bitsOf(record.m_focalLength), bitsOf(42.0f));
    QCOMPARE(record.m_lensModel, LensFisheye);
    QCOMPARE(record.m_stacks.size(), 1);
    QCOMPARE(record.m_yaw.size(), 1);
    QCOMPARE(record.m_links.size(), 1);
}

void tst_MerlinToSPP::parseRefusesBadInput_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("file");

    QTest::newRow("file does not exist")
        << QStringLiteral("path") << QStringLiteral("/nonexistent/record.xml");
    QTest::newRow("a directory") << QStringLiteral("path")
                                 << QFileInfo(fixture("complete.xml")).absolutePath();
    QTest::newRow("empty file") << QStringLiteral("path") << fixture("empty.xml");
    QTest::newRow("malformed XML") << QStringLiteral("path") << fixture("malformed.xml");
    QTest::newRow("aborted record, unclosed tags")
        << QStringLiteral("path") << fixture("aborted.xml");
    QTest::newRow("billion laughs") << QStringLiteral("path") << fixture("billion_laughs.xml");
    QTest::newRow("parameter entities")
        << QStringLiteral("path") << fixture("parameter_entities.xml");
    QTest::newRow("any declared entity")
        << QStringLiteral("path") << fixture("entity_declared.xml");
    QTest::newRow("one entity referred to 100,000 times") << QStringLiteral("flood") << QString();
    QTest::newRow("binary bytes") << QStringLiteral("binary") << QString();
    QTest::newRow("12 MB of garbage after a root tag") << QStringLiteral("garbage") << QString();
    QTest::newRow("well-formed, over the size of any record")
        << QStringLiteral("oversized") << QString();
}

void tst_MerlinToSPP::parseRefusesBadInput()
{
    QFETCH(QString, kind);
    QFETCH(QString, file);

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    if (kind == QLatin1String("flood")) {
        file = dir.filePath(QStringLiteral("flood.xml"));
        QVERIFY(writeEntityFlood(file));
    } else if (kind == QLatin1String("binary")) {
        file = dir.filePath(QStringLiteral("binary.xml"));
        QByteArray bytes;
        for (int k = 0; k < 4096; ++k)
            bytes += char(k * 7 % 256);
        QFile out(file);
        QVERIFY(out.open(QIODevice::WriteOnly));
        QCOMPARE(out.write(bytes), qint64(bytes.size()));
    } else if (kind == QLatin1String("garbage")) {
        file = dir.filePath(QStringLiteral("garbage.xml"));
        QVERIFY(writeGarbage(file, "<?xml version=\"1.0\"?>\n<papywizard>", 12 * 1024 * 1024));
    } else if (kind == QLatin1String("oversized")) {
        file = dir.filePath(QStringLiteral("oversized.xml"));
        QVERIFY(writeOversizedRecord(file));
    }

    MerlinToSPP record;
    QVERIFY(record.parse(fixture("complete.xml")));
    const PeakMemoryProbe probe;
    QVERIFY(!record.parse(file));
    const qint64 growthKb = probe.growthKb();
    QVERIFY2(growthKb < kBadInputPeakKb, qPrintable(QStringLiteral("%1 kB").arg(growthKb)));
    verifyResetValues(record);
}

void tst_MerlinToSPP::parseRefusesHundredMegabytesOfGarbage()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString file = dir.filePath(QStringLiteral("garbage.xml"));
    QVERIFY(writeGarbage(file, QByteArray(), 100 * 1024 * 1024));

    MerlinToSPP record;
    QVERIFY(record.parse(fixture("complete.xml")));
    const PeakMemoryProbe probe;
    QVERIFY(!record.parse(file));
    const qint64 growthKb = probe.growthKb();
    QVERIFY2(growthKb < kBadInputPeakKb, qPrintable(QStringLiteral("%1 kB").arg(growthKb)));
    verifyResetValues(record);
}

void tst_MerlinToSPP::parseReadsTenThousandShots()
{
    constexpr int count = 10000;
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString file = dir.filePath(QStringLiteral("large.xml"));
    {
        QFile out(file);
        QVERIFY(out.open(QIODevice::WriteOnly));
        QByteArray text = "<?xml version=\"1.0\"?>\n<papywizard>\n<header><camera>"
                          "<bracketing nbPicts=\"2\"/></camera></header>\n<shoot>\n";
        for (int k = 0; k < count; ++k) {
            text += QStringLiteral("<pict id=\"%1\" bracket=\"%2\"><time>Sat May 2 10:34:21 "
                                   "2009</time><position yaw=\"%3\" pitch=\"%4\"/></pict>\n")
                        .arg(k + 1)
                        .arg(k % 2 + 1)
                        .arg(double(k % 100) * 3.6)
                        .arg(-45.0 + double(k / 100) * 0.9)
                        .toLatin1();
        }
        text += "</shoot>\n</papywizard>\n";
        QCOMPARE(out.write(text), qint64(text.size()));
    }

    MerlinToSPP record;
    QVERIFY(record.parse(file));
    QCOMPARE(record.m_shoots.size(), count);
    QCOMPARE(record.m_nbPicts, 2);
    for (int k : { 0, 1, 4321, count - 1 }) {
        const ShootData& shot = record.m_shoots.at(k);
        QCOMPARE(shot.m_id, k + 1);
        QCOMPARE(shot.m_bracket, k % 2 + 1);
        QCOMPARE(bitsOf(shot.m_yaw), bitsOf(float(double(k % 100) * 3.6)));
        QCOMPARE(bitsOf(shot.m_pitch), bitsOf(float(-45.0 + double(k / 100) * 0.9)));
        QVERIFY(shot.m_time.isValid());
    }
}

void tst_MerlinToSPP::generateGroupsImagesIntoStacks()
{
    MerlinToSPP record;
    record.m_nbPicts = 3;
    for (int k = 0; k < 6; ++k)
        record.m_shoots << makeShot(float(k / 3) * 30.0f, 0.0f, k % 3 + 1);
    const QStringList images = imageNames(7);
    record.generateSPP(images, 20.0, LensStandard);

    // Seven images in brackets of three: two stacks, the seventh image ignored.
    QCOMPARE(record.m_stacks.size(), 2);
    QCOMPARE(record.m_stacks.at(0), (QStringList { images[0], images[1], images[2] }));
    QCOMPARE(record.m_stacks.at(1), (QStringList { images[3], images[4], images[5] }));
    QCOMPARE(record.m_yaw.size(), 6);
    QCOMPARE(record.m_pitch.size(), 6);
    QCOMPARE(record.m_roll.size(), 6);
    QCOMPARE(describe(record.m_links), QStringList { QStringLiteral("2:0>1") });
}

void tst_MerlinToSPP::generateStoresRadiansBitForBit_data()
{
    QTest::addColumn<float>("degrees");
    QTest::addColumn<quint32>("radianBits");

    // Bits of the float nearest to degrees * pi / 180 evaluated in double.
    // Where marked, float arithmetic would give the neighbouring float.
    QTest::newRow("0") << 0.0f << quint32(0x00000000);
    QTest::newRow("-0") << -0.0f << quint32(0x80000000);
    QTest::newRow("90") << 90.0f << quint32(0x3fc90fdb);
    QTest::newRow("-90") << -90.0f << quint32(0xbfc90fdb);
    QTest::newRow("180") << 180.0f << quint32(0x40490fdb);
    QTest::newRow("350") << 350.0f << quint32(0x40c37a15);
    QTest::newRow("720") << 720.0f << quint32(0x41490fdb);
    QTest::newRow("359.99") << 359.99f << quint32(0x40c90e6c);
    QTest::newRow("-12.3456789") << float(-12.3456789) << quint32(0xbe5ca4e4);
    QTest::newRow("10, float steps differ") << 10.0f << quint32(0x3e32b8c2);
    QTest::newRow("25.5, float steps differ") << 25.5f << quint32(0x3ee3dec5);
    QTest::newRow("0.1, float steps differ") << float(0.1) << quint32(0x3ae4c388);
    QTest::newRow("1e-30, float steps differ") << float(1e-30) << quint32(0x0ab53ecf);
}

void tst_MerlinToSPP::generateStoresRadiansBitForBit()
{
    QFETCH(float, degrees);
    QFETCH(quint32, radianBits);

    MerlinToSPP record;
    record.m_nbPicts = 1;
    record.m_shoots << makeShot(0.0f, 0.0f) << makeShot(degrees, degrees, 1, degrees);
    record.generateSPP(imageNames(2), 20.0, LensStandard);
    QCOMPARE(record.m_yaw.size(), 2);
    QCOMPARE(bitsOf(record.m_yaw.at(1)), radianBits);
    QCOMPARE(bitsOf(record.m_pitch.at(1)), radianBits);
    QCOMPARE(bitsOf(record.m_roll.at(1)), radianBits);
    QCOMPARE(bitsOf(radians(degrees)), radianBits);
}

void tst_MerlinToSPP::generateResolvesFocalAndLens_data()
{
    QTest::addColumn<double>("focalArgument");
    QTest::addColumn<double>("xmlFocal");
    QTest::addColumn<int>("lensArgument");
    QTest::addColumn<int>("xmlLens");
    QTest::addColumn<float>("focal");
    QTest::addColumn<int>("lens");

    QTest::newRow("argument focal") << 35.0 << 24.0 << 0 << 0 << 35.0f << 0;
    QTest::newRow("negative takes the record's 24") << -1.0 << 24.0 << 0 << 0 << 24.0f << 0;
    QTest::newRow("negative, record without lens") << -1.0 << -1.0 << 0 << 0 << -1.0f << 0;
    QTest::newRow("negative, lens without focal") << -5.0 << 0.0 << 0 << 0 << 0.0f << 0;
    QTest::newRow("zero is used") << 0.0 << 24.0 << 0 << 0 << 0.0f << 0;
    QTest::newRow("stored as float") << 24.1 << 24.0 << 0 << 0 << float(24.1) << 0;
    QTest::newRow("fisheye argument") << 8.0 << 24.0 << 1 << 0 << 8.0f << 1;
    QTest::newRow("unknown lens takes the record's fisheye") << 8.0 << 24.0 << -1 << 1 << 8.0f << 1;
    QTest::newRow("unknown lens takes the record's standard")
        << 8.0 << 24.0 << -1 << 0 << 8.0f << 0;
    QTest::newRow("standard argument over the record's fisheye")
        << 8.0 << 24.0 << 0 << 1 << 8.0f << 0;
}

void tst_MerlinToSPP::generateResolvesFocalAndLens()
{
    QFETCH(double, focalArgument);
    QFETCH(double, xmlFocal);
    QFETCH(int, lensArgument);
    QFETCH(int, xmlLens);
    QFETCH(float, focal);
    QFETCH(int, lens);

    MerlinToSPP record;
    record.m_nbPicts = 1;
    record.m_xmlFocal = xmlFocal;
    record.m_xmlLensType = xmlLens;
    record.m_shoots << makeShot(0.0f, 0.0f);
    record.generateSPP(imageNames(1), focalArgument, LensModel(lensArgument));
    QCOMPARE(bitsOf(record.m_focalLength), bitsOf(focal));
    QCOMPARE(int(record.m_lensModel), lens);
}

void tst_MerlinToSPP::generateMakesNoLinksForFisheye_data()
{
    QTest::addColumn<int>("lensArgument");
    QTest::addColumn<int>("xmlLens");
    QTest::newRow("fisheye argument") << 1 << 0;
    QTest::newRow("fisheye from the record") << -1 << 1;
}

void tst_MerlinToSPP::generateMakesNoLinksForFisheye()
{
    QFETCH(int, lensArgument);
    QFETCH(int, xmlLens);

    MerlinToSPP record;
    record.m_nbPicts = 1;
    record.m_xmlLensType = xmlLens;
    record.m_shoots << makeShot(0.0f, 0.0f) << makeShot(10.0f, 0.0f) << makeShot(0.0f, -10.0f);
    record.generateSPP(imageNames(3), 20.0, LensModel(lensArgument));
    QCOMPARE(record.m_stacks.size(), 3);
    QCOMPARE(record.m_yaw.size(), 3);
    QCOMPARE(bitsOf(record.m_yaw.at(1)), bitsOf(radians(10.0f)));
    QCOMPARE(bitsOf(record.m_pitch.at(2)), bitsOf(radians(-10.0f)));
    QCOMPARE(record.m_lensModel, LensFisheye);
    QVERIFY(record.m_links.isEmpty());
}

void tst_MerlinToSPP::generateLinks_data()
{
    QTest::addColumn<QVector<float>>("yaws");
    QTest::addColumn<QVector<float>>("pitches");
    QTest::addColumn<double>("focalArgument");
    QTest::addColumn<double>("xmlFocal");
    QTest::addColumn<QStringList>("links");

    const QStringList none;
    const QStringList within138 = { QStringLiteral("2:0>1"), QStringLiteral("2:0>2"),
        QStringLiteral("2:1>2"), QStringLiteral("2:1>3"), QStringLiteral("2:2>3") };
    QTest::newRow("350 and 10 degrees: wraps to the right") << QVector<float> { 350,
        10 } << QVector<float> { 0, 0 } << 20.0 << -1.0 << QStringList { QStringLiteral("2:0>1") };
    QTest::newRow("-10 and 10 degrees") << QVector<float> { -10, 10 } << QVector<float> { 0, 0 }
                                        << 20.0 << -1.0 << QStringList { QStringLiteral("2:0>1") };
    QTest::newRow("370 and 20 degrees") << QVector<float> { 370, 20 } << QVector<float> { 0, 0 }
                                        << 20.0 << -1.0 << QStringList { QStringLiteral("2:0>1") };
    QTest::newRow("right to left stored from the left") << QVector<float> { 40,
        10 } << QVector<float> { 5, 5 } << 20.0 << -1.0 << QStringList { QStringLiteral("2:1>0") };
    QTest::newRow("straight above each other: from the upper one") << QVector<float> { 0,
        0 } << QVector<float> { 0, 30 } << 20.0 << -1.0 << QStringList { QStringLiteral("1:1>0") };
    QTest::newRow("too far apart at 50 mm")
        << QVector<float> { 0, 90 } << QVector<float> { 0, 0 } << 50.0 << -1.0 << none;
    QTest::newRow("focal 0: linked up to about 138.5 degrees")
        << QVector<float> { 0, 100, 138.4f, 138.5f } << QVector<float> { 0, 0, 0, 0 } << 0.0 << -1.0
        << within138;
    QTest::newRow("record focal 0 (lens without focal)")
        << QVector<float> { 0, 100, 138.4f, 138.5f } << QVector<float> { 0, 0, 0, 0 } << -1.0 << 0.0
        << within138;
    QTest::newRow("record focal -1.0 (no lens): no links")
        << QVector<float> { 0, 1, 0 } << QVector<float> { 0, 0, -1 } << -1.0 << -1.0 << none;
    QTest::newRow("record focal 24 used")
        << QVector<float> { 0, 40, 70 } << QVector<float> { 0, 0, 0 } << -1.0 << 24.0
        << QStringList { QStringLiteral("2:0>1"), QStringLiteral("2:1>2") };
    // Rows on the edge of the distance test, where a double 0.65, a double 2f
    // or an unrounded bound would drop the link (checked below).
    QTest::newRow("0.65 in single precision")
        << QVector<float> { 0, 72.68706512451172f } << QVector<float> { 0, 0.09449999779462814f }
        << 20.0 << -1.0 << QStringList { QStringLiteral("2:0>1") };
    QTest::newRow("2f in single precision")
        << QVector<float> { 0, 3.7424874305725098f } << QVector<float> { 0, 0.013500000350177288f }
        << 509.223 << -1.0 << QStringList { QStringLiteral("2:0>1") };
    QTest::newRow("bound rounded to float")
        << QVector<float> { 0, 72.68706512451172f } << QVector<float> { 0, 0.09700000286102295f }
        << 20.0 << -1.0 << QStringList { QStringLiteral("2:0>1") };
    // The wrapped yaw difference equals the pitch difference exactly only with
    // the single-precision 2 pi: atan2 gives pi/4, the right-hand edge.
    QTest::newRow("yaw wrap with float 2 pi, on the diagonal")
        << QVector<float> { 350, 20 } << QVector<float> { 0, 29.99999237060547f } << 20.0 << -1.0
        << QStringList { QStringLiteral("2:0>1") };
    // Half a turn apart near the pole: the difference is the float pi, which
    // wraps there and back, so both visits see the other to the right.
    QTest::newRow("half a turn apart over the pole: both ways")
        << QVector<float> { 0, 180 } << QVector<float> { 80, 80 } << 20.0 << -1.0
        << QStringList { QStringLiteral("2:0>1"), QStringLiteral("2:1>0") };
}

void tst_MerlinToSPP::generateLinks()
{
    QFETCH(QVector<float>, yaws);
    QFETCH(QVector<float>, pitches);
    QFETCH(double, focalArgument);
    QFETCH(double, xmlFocal);
    QFETCH(QStringList, links);

    MerlinToSPP record;
    record.m_nbPicts = 1;
    record.m_xmlFocal = xmlFocal;
    for (int k = 0; k < yaws.size(); ++k)
        record.m_shoots << makeShot(yaws.at(k), pitches.at(k));
    record.generateSPP(imageNames(yaws.size()), focalArgument, LensUnknown);
    QCOMPARE(describe(record.m_links), links);
    for (const AuthorizedLink& link : qAsConst(record.m_links))
        QCOMPARE(link.m_stackIndices.size(), 2);
}

void tst_MerlinToSPP::boundaryRowsDependOnThePrecision()
{
    // The edge rows above link only because of the precision of each step:
    // with the double alternative the same pair would not be linked.
    const auto distance = [](float yawDegrees, float pitchDegrees) {
        const float y = radians(yawDegrees);
        const float p = radians(pitchDegrees);
        return std::acos(std::sin(0.0) * std::sin(double(p))
            + std::cos(0.0) * std::cos(double(p))
                * (std::sin(0.0) * std::sin(double(y)) + std::cos(0.0) * std::cos(double(y))));
    };
    const double factor = double(0.65f);
    const float h20 = float(std::atan(43.266615305567875 / double(20.0f + 20.0f)));

    const double d1 = distance(72.68706512451172f, 0.09449999779462814f);
    QVERIFY(double(h20) > factor * d1);
    QVERIFY(!(double(h20) > 0.65 * d1));

    const float f = float(509.223);
    const float hSingle = float(std::atan(43.266615305567875 / double(f + f)));
    const float hDouble = float(std::atan(43.266615305567875 / (2 * 509.223)));
    const double d2 = distance(3.7424874305725098f, 0.013500000350177288f);
    QVERIFY(double(hSingle) > factor * d2);
    QVERIFY(!(double(hDouble) > factor * d2));

    const double unrounded = std::atan(43.266615305567875 / 40.0);
    const double d3 = distance(72.68706512451172f, 0.09700000286102295f);
    QVERIFY(double(h20) > factor * d3);
    QVERIFY(!(unrounded > factor * d3));

    const float dYaw = radians(20.0f) - radians(350.0f);
    const float wrappedSingle = dYaw + 6.2831855f;
    const float wrappedDouble = float(double(dYaw) + 2 * kPi);
    const float dPitch = radians(29.99999237060547f) - radians(0.0f);
    QCOMPARE(bitsOf(wrappedSingle), bitsOf(dPitch));
    QVERIFY(bitsOf(wrappedDouble) != bitsOf(dPitch));
    QCOMPARE(std::atan2(double(dPitch), double(wrappedSingle)), kPi / 4);
    QVERIFY(std::atan2(double(dPitch), double(wrappedDouble)) > kPi / 4);
}

void tst_MerlinToSPP::generateFromCompleteRecord()
{
    MerlinToSPP record;
    QVERIFY(record.parse(fixture("complete.xml")));
    const QStringList images = imageNames(6);
    record.generateSPP(images, -1.0, LensUnknown);

    QCOMPARE(record.m_stacks.size(), 3);
    QCOMPARE(record.m_stacks.at(0), (QStringList { images[0], images[1] }));
    QCOMPARE(record.m_stacks.at(1), (QStringList { images[2], images[3] }));
    QCOMPARE(record.m_stacks.at(2), (QStringList { images[4], images[5] }));
    QCOMPARE(bitsOf(record.m_focalLength), bitsOf(float(17.5 * 1.6)));
    QCOMPARE(record.m_lensModel, LensStandard);
    const float yaws[]
        = { float(-12.3456789), float(-12.3456789), 25.5f, 25.5f, float(0.1), float(0.1) };
    const float pitches[] = { 30.0f, 30.0f, 30.0f, 30.0f, -7.25f, -7.25f };
    QCOMPARE(record.m_yaw.size(), 6);
    for (int k = 0; k < 6; ++k) {
        QCOMPARE(bitsOf(record.m_yaw.at(k)), bitsOf(radians(yaws[k])));
        QCOMPARE(bitsOf(record.m_pitch.at(k)), bitsOf(radians(pitches[k])));
        QCOMPARE(bitsOf(record.m_roll.at(k)), bitsOf(0.0f));
    }
    // Upper left, upper right, lower middle: right of 0, below 0, below 1.
    QCOMPARE(describe(record.m_links),
        (QStringList {
            QStringLiteral("2:0>1"), QStringLiteral("1:0>2"), QStringLiteral("1:1>2") }));
}

void tst_MerlinToSPP::generateAppendsWithoutClearing()
{
    MerlinToSPP record;
    record.m_stacks << QStringList { QStringLiteral("earlier.jpg") };
    record.m_yaw << 7.0f;
    record.m_pitch << 8.0f;
    record.m_roll << 9.0f;
    AuthorizedLink earlier;
    earlier.m_direction = 0;
    earlier.m_stackIndices = { 5, 6 };
    record.m_links << earlier;
    record.m_nbPicts = 1;
    record.m_shoots << makeShot(0.0f, 0.0f) << makeShot(20.0f, 0.0f);
    const QStringList images = imageNames(2);
    record.generateSPP(images, 20.0, LensStandard);

    QCOMPARE(record.m_stacks,
        (QVector<QStringList> { QStringList { QStringLiteral("earlier.jpg") },
            QStringList { images[0] }, QStringList { images[1] } }));
    QCOMPARE(record.m_yaw.size(), 3);
    QCOMPARE(bitsOf(record.m_yaw.at(0)), bitsOf(7.0f));
    QCOMPARE(bitsOf(record.m_pitch.at(0)), bitsOf(8.0f));
    QCOMPARE(bitsOf(record.m_roll.at(0)), bitsOf(9.0f));
    QCOMPARE(bitsOf(record.m_yaw.at(2)), bitsOf(radians(20.0f)));
    QCOMPARE(describe(record.m_links),
        (QStringList { QStringLiteral("0:5>6"), QStringLiteral("2:0>1") }));
}

void tst_MerlinToSPP::generateBoundsStacksBeyondTheShots()
{
    // Stacks whose first shot is not recorded have no position: no links.
    MerlinToSPP record;
    record.m_nbPicts = 1;
    record.m_shoots << makeShot(0.0f, 0.0f) << makeShot(20.0f, 0.0f) << makeShot(40.0f, 0.0f);
    record.generateSPP(imageNames(5), 20.0, LensStandard);
    QCOMPARE(record.m_stacks.size(), 5);
    QCOMPARE(record.m_yaw.size(), 3);
    QCOMPARE(describe(record.m_links),
        (QStringList {
            QStringLiteral("2:0>1"), QStringLiteral("2:0>2"), QStringLiteral("2:1>2") }));

    // In brackets of two, three shots place stacks 0 and 1 (shots 0 and 2).
    MerlinToSPP bracketed;
    bracketed.m_nbPicts = 2;
    bracketed.m_shoots << makeShot(0.0f, 0.0f, 1) << makeShot(99.0f, 9.0f, 2)
                       << makeShot(20.0f, 0.0f, 1);
    bracketed.generateSPP(imageNames(6), 20.0, LensStandard);
    QCOMPARE(bracketed.m_stacks.size(), 3);
    QCOMPARE(describe(bracketed.m_links), QStringList { QStringLiteral("2:0>1") });

    MerlinToSPP empty;
    empty.m_nbPicts = 1;
    empty.generateSPP(imageNames(4), 20.0, LensStandard);
    QCOMPARE(empty.m_stacks.size(), 4);
    QVERIFY(empty.m_yaw.isEmpty());
    QVERIFY(empty.m_links.isEmpty());
}

void tst_MerlinToSPP::generateReadsMissingBracketingAsOne()
{
    for (qint32 count : { -1, 0 }) {
        MerlinToSPP record;
        record.m_nbPicts = count;
        record.m_shoots << makeShot(0.0f, 0.0f) << makeShot(20.0f, 0.0f);
        const QStringList images = imageNames(2);
        record.generateSPP(images, 20.0, LensStandard);
        QCOMPARE(record.m_stacks,
            (QVector<QStringList> { QStringList { images[0] }, QStringList { images[1] } }));
        QCOMPARE(describe(record.m_links), QStringList { QStringLiteral("2:0>1") });
    }
}

void tst_MerlinToSPP::generateMatchesPairByPairEvaluation()
{
    // Random layouts, dense ones with many links, sparse ones, positions on
    // the edge of the distance test and angles out of the usual ranges: the
    // links must be those of the plain evaluation, in the same order.
    QRandomGenerator random(4711);
    const double focals[]
        = { 0.0, 4.5, 8.0, 10.0, 17.0, 20.0, 24.1, 50.0, 135.0, 509.223, 1e6, -1.0 };
    int totalLinks = 0;
    for (int round = 0; round < 120; ++round) {
        const int bracket = 1 + int(random.bounded(3));
        const int stacks = 2 + int(random.bounded(120));
        const double focal = focals[random.bounded(int(sizeof focals / sizeof focals[0]))];
        const int mode = round % 4;

        MerlinToSPP record;
        record.m_nbPicts = bracket;
        record.m_xmlFocal = 20.0 + double(random.bounded(30));
        const float f = float(focal < 0.0 ? record.m_xmlFocal : focal);
        const double bound = std::atan(43.266615305567875 / double(f + f)) / 0.65;
        const float boundDegrees = float(bound * 180.0 / kPi);
        for (int k = 0; k < stacks * bracket; ++k) {
            float yaw;
            float pitch;
            if (mode == 0) { // anywhere, beyond the usual ranges too
                yaw = float(random.generateDouble() * 1440.0 - 720.0);
                pitch = float(random.generateDouble() * 240.0 - 120.0);
            } else if (mode == 1) { // a small patch: most pairs linked
                yaw = float(random.generateDouble() * 60.0 + 330.0);
                pitch = float(random.generateDouble() * 40.0 - 20.0);
            } else if (mode == 2) { // along a row, near multiples of the bound
                yaw = boundDegrees * float(random.bounded(6))
                    + float(int(random.bounded(9)) - 4) * 1e-5f;
                pitch = float(int(random.bounded(5)) - 2) * 1e-4f;
            } else { // along a column and near the poles
                yaw = float(random.bounded(4)) * 90.0f;
                pitch = 90.0f - boundDegrees * float(random.bounded(4))
                    + float(int(random.bounded(9)) - 4) * 1e-5f;
            }
            record.m_shoots << makeShot(yaw, pitch, k % bracket + 1);
        }
        // Sometimes fewer shots than the images need.
        const int images = stacks * bracket + int(random.bounded(bracket * 3));
        const QVector<ShootData> shots = record.m_shoots;
        record.generateSPP(imageNames(images), focal, LensStandard);
        const QStringList reference = pairByPairLinks(
            shots, bracket, images / bracket, focal < 0.0 ? record.m_xmlFocal : focal);
        QVERIFY2(describe(record.m_links) == reference,
            qPrintable(QStringLiteral("round %1: %2 links, %3 expected")
                           .arg(round)
                           .arg(record.m_links.size())
                           .arg(reference.size())));
        totalLinks += reference.size();
    }
    // The layouts must exercise the links, not only their absence.
    QVERIFY(totalLinks > 10000);
}

void tst_MerlinToSPP::generateLinksEveryNeighbourOnce_data()
{
    QTest::addColumn<Grid>("grid");
    QTest::addColumn<bool>("fisheye");

    Grid grid;
    grid.rows = 3;
    grid.columns = 9;
    grid.yawStart = 340;
    grid.yawStep = 40;
    grid.pitchTop = 30;
    grid.pitchStep = 30;
    grid.fullCircle = true;
    QTest::newRow("3 x 9, full circle through 0") << grid << false;
    grid.bracket = 3;
    QTest::newRow("3 x 9, full circle, brackets of 3") << grid << false;
    QTest::newRow("3 x 9, fisheye") << grid << true;
    grid.serpentine = true;
    grid.signedYaw = true;
    grid.bracket = 2;
    QTest::newRow("3 x 9, serpentine, signed yaws, brackets of 2") << grid << false;

    Grid partial;
    partial.rows = 2;
    partial.columns = 5;
    partial.yawStart = -40;
    partial.yawStep = 20;
    partial.pitchTop = 10;
    partial.pitchStep = 20;
    partial.signedYaw = true;
    QTest::newRow("2 x 5, partial across 0") << partial << false;
    partial.signedYaw = false;
    partial.serpentine = true;
    partial.bracket = 5;
    QTest::newRow("2 x 5, partial across 0, serpentine, brackets of 5") << partial << false;

    Grid wide;
    wide.rows = 4;
    wide.columns = 12;
    wide.yawStart = 15;
    wide.yawStep = 30;
    wide.pitchTop = 45;
    wide.pitchStep = 30;
    wide.fullCircle = true;
    wide.serpentine = true;
    wide.bracket = 2;
    QTest::newRow("4 x 12, full circle, serpentine, brackets of 2") << wide << false;

    Grid row;
    row.columns = 18;
    row.yawStart = 350;
    row.yawStep = 20;
    row.fullCircle = true;
    QTest::newRow("1 x 18, one row, full circle") << row << false;

    Grid column;
    column.rows = 5;
    column.yawStart = 359;
    column.pitchTop = 40;
    column.pitchStep = 20;
    QTest::newRow("5 x 1, one column") << column << false;
}

void tst_MerlinToSPP::generateLinksEveryNeighbourOnce()
{
    QFETCH(Grid, grid);
    QFETCH(bool, fisheye);

    MerlinToSPP record;
    record.m_nbPicts = grid.bracket;
    record.m_shoots = grid.shots();
    const int stackCount = grid.rows * grid.columns;
    record.generateSPP(
        imageNames(stackCount * grid.bracket), 20.0, fisheye ? LensFisheye : LensStandard);
    QCOMPARE(record.m_stacks.size(), stackCount);
    for (const QStringList& stack : qAsConst(record.m_stacks))
        QCOMPARE(stack.size(), grid.bracket);
    if (fisheye) {
        QVERIFY(record.m_links.isEmpty());
        return;
    }

    // Any pair at most once, in order of i then j, never to itself.
    std::set<std::pair<int, int>> linked;
    std::pair<int, int> previous(-1, -1);
    QMap<std::pair<int, int>, int> directions;
    for (const AuthorizedLink& link : qAsConst(record.m_links)) {
        QCOMPARE(link.m_stackIndices.size(), 2);
        const int i = link.m_stackIndices.at(0);
        const int j = link.m_stackIndices.at(1);
        QVERIFY(i != j && i >= 0 && j >= 0 && i < stackCount && j < stackCount);
        QVERIFY(previous < std::make_pair(i, j));
        previous = std::make_pair(i, j);
        QVERIFY2(linked.insert(std::minmax(i, j)).second, "a pair linked twice");
        directions.insert(std::make_pair(i, j), link.m_direction);
    }

    // Every neighbour: exactly one link, from the left one or the upper one.
    int neighbours = 0;
    for (int r = 0; r < grid.rows; ++r) {
        for (int c = 0; c < grid.columns; ++c) {
            const int here = grid.stackOf(r, c);
            const bool hasRight = c + 1 < grid.columns || (grid.fullCircle && grid.columns > 2);
            if (hasRight) {
                const int right = grid.stackOf(r, (c + 1) % grid.columns);
                QVERIFY2(directions.value(std::make_pair(here, right)) == 2,
                    qPrintable(QStringLiteral("%1 right of %2").arg(right).arg(here)));
                QVERIFY(!directions.contains(std::make_pair(right, here)));
                ++neighbours;
            }
            if (r + 1 < grid.rows) {
                const int below = grid.stackOf(r + 1, c);
                QVERIFY2(directions.value(std::make_pair(here, below)) == 1,
                    qPrintable(QStringLiteral("%1 below %2").arg(below).arg(here)));
                QVERIFY(!directions.contains(std::make_pair(below, here)));
                ++neighbours;
            }
        }
    }
    QVERIFY(neighbours > 0);
    QVERIFY(record.m_links.size() >= neighbours);
}

QTEST_GUILESS_MAIN(tst_MerlinToSPP)
#include "tst_MerlinToSPP.moc"
