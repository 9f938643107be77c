// Tests of ClaussToSPP: reading shooting scripts (fixtures in data/, big and
// broken inputs written at run time) and the stacks, angles and links that
// generation makes from them.
#include "ClaussToSPP.h"
#include "TestImageDef.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <sys/types.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace {

/// A shot's angles in degrees, as a test expects them.
struct Angles
{
    float yaw;
    float pitch;
};

using AnglesList = QVector<Angles>;
using PairList = QVector<QPair<int, int>>;

quint32 bitsOf(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/// The record's radians: the float degrees widened, times pi, over 180, narrowed.
float radiansOf(float degrees)
{
    return float(double(degrees) * 3.141592653589793 / 180.0);
}

/// Half the diagonal field of view of a 36 x 24 mm frame, narrowed to float;
/// the doubling of the focal length is done in float.
float halfDiagonalOf(float focal)
{
    return float(std::atan(43.266615305567875 / double(focal + focal)));
}

/// The link rule evaluated pair by pair, exactly as stated for one pair at a
/// time: a fresh viewing direction per shot and pair, one focal length read per
/// photo i and, only when i does not qualify, one for photo j.
PairList pairByPairLinks(
    const QVector<ShootData>& shots, const QList<ZIImageDef*>& defs, int photos)
{
    PairList links;
    for (int i = 0; i < photos; ++i) {
        for (int j = i + 1; j < photos; ++j) {
            const double yi = radiansOf(shots[i].m_yaw);
            const double pi = radiansOf(shots[i].m_pitch);
            const double yj = radiansOf(shots[j].m_yaw);
            const double pj = radiansOf(shots[j].m_pitch);
            const double di[3]
                = { std::cos(pi) * std::cos(yi), std::cos(pi) * std::sin(yi), -std::sin(pi) };
            const double dj[3]
                = { std::cos(pj) * std::cos(yj), std::cos(pj) * std::sin(yj), -std::sin(pj) };
            const double angle = std::acos(di[0] * dj[0] + di[1] * dj[1] + di[2] * dj[2]);
            const double threshold = angle * double(0.7f);
            if (double(halfDiagonalOf(defs[i]->FocalLength())) > threshold
                || double(halfDiagonalOf(defs[j]->FocalLength())) > threshold)
                links.append(qMakePair(i, j));
        }
    }
    return links;
}

/// Image definitions owned by the test.
class Photos
{
public:
    explicit Photos(const QVector<float>& focals)
    {
        for (float focal : focals) {
            m_defs.push_back(std::make_unique<TestImageDef>(focal));
            m_list.append(m_defs.back().get());
            m_files.append(
                QStringLiteral("/photos/IMG_%1.JPG").arg(m_files.size(), 4, 10, QLatin1Char('0')));
        }
    }
    QList<ZIImageDef*> defs() const { return m_list; }
    QStringList& files() { return m_files; }

private:
    std::vector<std::unique_ptr<TestImageDef>> m_defs;
    QList<ZIImageDef*> m_list;
    QStringList m_files;
};

QVector<ShootData> shotsAt(const AnglesList& angles)
{
    QVector<ShootData> shots;
    for (const Angles& a : angles) {
        ShootData shot;
        shot.m_yaw = a.yaw;
        shot.m_pitch = a.pitch;
        shot.m_id = shots.size();
        shots.append(shot);
    }
    return shots;
}

PairList linkPairs(const ClaussToSPP& converter)
{
    PairList pairs;
    for (const AuthorizedLink& link : converter.m_links) {
        if (link.m_direction != 0 || link.m_stackIndices.size() != 2)
            return { qMakePair(-1, -1) }; // never a valid result: fails the comparison
        pairs.append(qMakePair(link.m_stackIndices[0], link.m_stackIndices[1]));
    }
    return pairs;
}

/// Peak resident set size of this process, kB.
qint64 peakResidentKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly | QIODevice::Text))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return -1;
}

/// Lowers the recorded peak to the current resident size (Linux 4.0 and later).
bool resetPeakResident()
{
    QFile clear(QStringLiteral("/proc/self/clear_refs"));
    return clear.open(QIODevice::WriteOnly) && clear.write("5") == 1;
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray randomBytesWithout(int count, quint32 seed, const QByteArray& excluded)
{
    QRandomGenerator random(seed);
    QByteArray bytes;
    bytes.reserve(count);
    while (bytes.size() < count) {
        const char c = char(random.bounded(256));
        if (!excluded.contains(c))
            bytes.append(c);
    }
    return bytes;
}

} // namespace

Q_DECLARE_METATYPE(Angles)

class tst_ClaussToSPP : public QObject
{
    Q_OBJECT

private:
    void compareShots(const ClaussToSPP& converter, const AnglesList& expected);

private slots:
    void construction();
    void parseScript_data();
    void parseScript();
    void parseReplacesShots();
    void parseMissingFile();
    void parseDirectory();
    void parsePipe();
    void parseBinary_data();
    void parseBinary();
    void parseMillionLines();
    void parseLongLine_data();
    void parseLongLine();

    void stacksOnePerPhoto();
    void anglesPerShot_data();
    void anglesPerShot();
    void links_data();
    void links();
    void coincidentShots();
    void missingImageDefinition();
    void linksMatchPairByPair_data();
    void linksMatchPairByPair();
};

void tst_ClaussToSPP::compareShots(const ClaussToSPP& converter, const AnglesList& expected)
{
    QCOMPARE(converter.m_shots.size(), expected.size());
    for (int k = 0; k < expected.size(); ++k) {
        const ShootData& shot = converter.m_shots[k];
        QCOMPARE(bitsOf(shot.m_yaw), bitsOf(expected[k].yaw));
        QCOMPARE(bitsOf(shot.m_pitch), bitsOf(expected[k].pitch));
        QCOMPARE(bitsOf(shot.m_roll), bitsOf(0.0f));
        QCOMPARE(shot.m_id, k);
        QCOMPARE(shot.m_bracket, 0);
        QCOMPARE(shot.m_reserved, qint64(0));
        QVERIFY(!shot.m_time.isValid());
    }
}

void tst_ClaussToSPP::construction()
{
    const ClaussToSPP converter;
    QVERIFY(converter.m_shots.isEmpty());
    QVERIFY(converter.m_stacks.isEmpty());
    QVERIFY(converter.m_links.isEmpty());
    QVERIFY(converter.m_yaw.isEmpty());
    QVERIFY(converter.m_pitch.isEmpty());
    QVERIFY(converter.m_roll.isEmpty());
    QCOMPARE(converter.m_useShootData, true);
    QCOMPARE(converter.m_flag2, false);
    QCOMPARE(converter.m_useRecordedLocation, false);
    QCOMPARE(converter.m_overlap, 25.0);
    QCOMPARE(converter.m_focalLength, 0.0f);
    QCOMPARE(converter.m_lensModel, LensUnknown);
    QCOMPARE(converter.m_autoDetection, false);
    QCOMPARE(converter.m_bracketCount, 1);
    QCOMPARE(converter.m_indexA, -1);
    QCOMPARE(converter.m_outputMode, -1);
}

void tst_ClaussToSPP::parseScript_data()
{
    QTest::addColumn<QString>("fixture");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<AnglesList>("shots");

    QTest::newRow("angles stay in force until replaced")
        << "basic.txt" << true << AnglesList { { 30, -15 }, { 30, -15 }, { 60, -15 } };
    QTest::newRow("shot before any angle")
        << "shoot_before_angles.txt" << true << AnglesList { { 0, 0 }, { 10, 0 } };
    QTest::newRow("fractional parts dropped")
        << "fractions.txt" << true << AnglesList { { 22, -0.0f }, { 12, -7 } };
    QTest::newRow("blank first, capitals, longer command ignored")
        << "ignored_lines.txt" << true << AnglesList { { 0, 0 }, { 0, 0 } };
    QTest::newRow("blanks around equals")
        << "blanks_around_equals.txt" << false << AnglesList { { 40, 0 }, { 0, 0 } };
    QTest::newRow("empty value") << "empty_value.txt" << false << AnglesList { { 0, 5 }, { 0, 0 } };
    QTest::newRow("letters as value, reading goes on")
        << "letters_value.txt" << false << AnglesList { { 0, 0 }, { 0, 3 } };
    QTest::newRow("plus sign is no part of a value")
        << "plus_sign.txt" << false << AnglesList { { 0, 0 } };
    QTest::newRow("value beyond float range counts as 0")
        << "out_of_range.txt" << false << AnglesList { { 0, 0 } };
    QTest::newRow("empty file") << "empty.txt" << true << AnglesList {};
    QTest::newRow("angles without shots") << "no_shots.txt" << true << AnglesList {};
    QTest::newRow("signs and whole turns as written")
        << "signs_and_turns.txt" << true << AnglesList { { -180, 90 }, { 720, 90 } };
    QTest::newRow("windows line ends")
        << "windows_line_ends.txt" << true << AnglesList { { 30, -15 }, { 30, -15 }, { 60, -15 } };
    QTest::newRow("no final newline") << "no_final_newline.txt" << true << AnglesList { { 5, 0 } };
    QTest::newRow("windows line ends, no final newline")
        << "windows_no_final_newline.txt" << true << AnglesList { { 5, 0 }, { 5, -3 } };
    QTest::newRow("tabs") << "tabs.txt" << true << AnglesList { { 7, -3 }, { 7, -3 } };
    QTest::newRow("tab after equals") << "tab_after_equals.txt" << false << AnglesList { { 0, 0 } };
    QTest::newRow("comments") << "comments.txt" << true << AnglesList { { 15, 0 } };
    QTest::newRow("text ends at NUL byte") << "nul_byte.txt" << true << AnglesList { { 1, 0 } };
    QTest::newRow("latin-1 bytes are not letters")
        << "latin1.txt" << true << AnglesList { { 3, 0 }, { 3, 0 } };
    QTest::newRow("utf-8 letters and blanks") << "utf8.txt" << true << AnglesList { { 5, 0 } };
}

void tst_ClaussToSPP::parseScript()
{
    QFETCH(QString, fixture);
    QFETCH(bool, ok);
    QFETCH(AnglesList, shots);

    const QString path = QFINDTESTDATA(QStringLiteral("data/") + fixture);
    QVERIFY2(!path.isEmpty(), qPrintable(fixture));
    ClaussToSPP converter;
    QCOMPARE(converter.parse(path), ok);
    compareShots(converter, shots);
}

void tst_ClaussToSPP::parseReplacesShots()
{
    ClaussToSPP converter;
    QVERIFY(converter.parse(QFINDTESTDATA("data/basic.txt")));
    QVERIFY(converter.parse(QFINDTESTDATA("data/no_final_newline.txt")));
    compareShots(converter, { { 5, 0 } });
}

void tst_ClaussToSPP::parseMissingFile()
{
    ClaussToSPP converter;
    QVERIFY(converter.parse(QFINDTESTDATA("data/basic.txt")));
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QCOMPARE(converter.parse(dir.filePath(QStringLiteral("missing.txt"))), false);
    QVERIFY(converter.m_shots.isEmpty());
    QCOMPARE(converter.parse(QString()), false);
    QVERIFY(converter.m_shots.isEmpty());
}

void tst_ClaussToSPP::parseDirectory()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    ClaussToSPP converter;
    QVERIFY(converter.parse(QFINDTESTDATA("data/basic.txt")));
    QCOMPARE(converter.parse(dir.path()), false);
    QVERIFY(converter.m_shots.isEmpty());
}

void tst_ClaussToSPP::parsePipe()
{
    // Opening a pipe that nobody writes to would block: it is refused.
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString fifo = dir.filePath(QStringLiteral("script.txt"));
    QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    ClaussToSPP converter;
    QCOMPARE(converter.parse(fifo), false);
    QVERIFY(converter.m_shots.isEmpty());
}

void tst_ClaussToSPP::parseBinary_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<AnglesList>("shots");

    // An image file: its header holds a NUL byte early, which ends the text.
    QByteArray image("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    image += randomBytesWithout(1 << 16, 7, QByteArray()) + "\nop_shoot\n";
    QTest::newRow("image file") << image << true << AnglesList {};

    // Random bytes without NUL: invalid UTF-8 never swallows a line end, so
    // the script lines between them are read.
    QByteArray noise;
    AnglesList expected;
    for (int k = 0; k < 16; ++k) {
        noise += randomBytesWithout(1 << 16, 100 + k, QByteArray(1, '\0'));
        noise += "\nop_h-angle=" + QByteArray::number(k) + "\nop_shoot\n";
        expected.append({ float(k), 0 });
    }
    QTest::newRow("random bytes") << noise << true << expected;
}

void tst_ClaussToSPP::parseBinary()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, ok);
    QFETCH(AnglesList, shots);

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("binary.bin"));
    QVERIFY(writeFile(path, bytes));
    ClaussToSPP converter;
    QCOMPARE(converter.parse(path), ok);
    compareShots(converter, shots);
}

void tst_ClaussToSPP::parseMillionLines()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("million.txt"));
    constexpr int kBlocks = 250000; // four lines each
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QByteArray block;
        for (int k = 0; k < kBlocks; ++k) {
            block += "op_h-angle=" + QByteArray::number(k % 360 - 180)
                + "\nop_v-angle=" + QByteArray::number(45 - k % 91) + "\nop_shoot\nop_shoot\n";
            if (block.size() > (1 << 20)) {
                QCOMPARE(file.write(block), qint64(block.size()));
                block.clear();
            }
        }
        QCOMPARE(file.write(block), qint64(block.size()));
    }

    ClaussToSPP converter;
    QVERIFY(converter.parse(path));
    QCOMPARE(converter.m_shots.size(), 2 * kBlocks);
    for (int k = 0; k < kBlocks; ++k) {
        for (int n = 2 * k; n < 2 * k + 2; ++n) {
            const ShootData& shot = converter.m_shots[n];
            if (shot.m_yaw != float(k % 360 - 180) || shot.m_pitch != float(45 - k % 91)
                || shot.m_id != n)
                QFAIL(qPrintable(QStringLiteral("shot %1 differs").arg(n)));
        }
    }
}

void tst_ClaussToSPP::parseLongLine_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<char>("filler");
    QTest::addColumn<QByteArray>("tail");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<AnglesList>("shots");

    QTest::newRow("letters") << QByteArray("op_h-angle=8\n") << 'a' << QByteArray("\nop_shoot\n")
                             << true << AnglesList { { 8, 0 } };
    QTest::newRow("digits as value")
        << QByteArray("op_v-angle=") << '9' << QByteArray("\nop_shoot\n") << false
        << AnglesList { { 0, 0 } };
    QTest::newRow("hyphens after command")
        << QByteArray("op_shoot") << '-' << QByteArray("\nop_shoot\n") << true
        << AnglesList { { 0, 0 } };
    QTest::newRow("blanks after command")
        << QByteArray("op_shoot") << ' ' << QByteArray() << true << AnglesList { { 0, 0 } };
    QTest::newRow("fraction digits")
        << QByteArray("op_h-angle=12.") << '5' << QByteArray("\nop_shoot\n") << true
        << AnglesList { { 12, 0 } };
    QTest::newRow("non-UTF-8 bytes")
        << QByteArray("op_shoot\n") << '\xE9' << QByteArray("\nop_shoot\n") << true
        << AnglesList { { 0, 0 }, { 0, 0 } };
}

void tst_ClaussToSPP::parseLongLine()
{
    QFETCH(QByteArray, head);
    QFETCH(char, filler);
    QFETCH(QByteArray, tail);
    QFETCH(bool, ok);
    QFETCH(AnglesList, shots);

    constexpr int kLine = 10 * 1000 * 1000;
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("long.txt"));
    {
        QByteArray bytes = head + QByteArray(kLine, filler) + tail;
        QVERIFY(writeFile(path, bytes));
    }

    // Bound: reading a script holds its bytes, their UTF-16 text, one line and
    // the captured value at once: the peak resident size may grow by at most
    // 16 bytes per byte of script (24 under AddressSanitizer, whose allocator
    // keeps freed blocks for a while).
#if defined(__SANITIZE_ADDRESS__)
    constexpr qint64 kBytesPerByte = 24;
#else
    constexpr qint64 kBytesPerByte = 16;
#endif
    const qint64 scriptKb = QFileInfo(path).size() / 1024;
    const bool reset = resetPeakResident();
    const qint64 before = peakResidentKb();
    QVERIFY(before > 0);

    ClaussToSPP converter;
    QCOMPARE(converter.parse(path), ok);
    compareShots(converter, shots);

    const qint64 growth = peakResidentKb() - before;
    if (!reset)
        qInfo("peak resident size could not be reset: growth measured against the earlier peak");
    QVERIFY2(growth <= kBytesPerByte * scriptKb,
        qPrintable(
            QStringLiteral("peak grew by %1 kB for a %2 kB script").arg(growth).arg(scriptKb)));
}

void tst_ClaussToSPP::stacksOnePerPhoto()
{
    Photos photos({ 50, 50, 50 });
    ClaussToSPP converter;
    converter.m_shots = shotsAt({ { 0, 0 }, { 10, 0 }, { 20, 0 }, { 30, 0 } });
    converter.generateSPP(photos.files(), photos.defs());
    QCOMPARE(converter.m_stacks.size(), 3);
    for (int k = 0; k < 3; ++k)
        QCOMPARE(converter.m_stacks[k], QStringList(photos.files()[k]));
    // Nothing else of the record changes.
    QVERIFY(converter.m_roll.isEmpty());
    QCOMPARE(converter.m_focalLength, 0.0f);
    QCOMPARE(converter.m_lensModel, LensUnknown);
    QCOMPARE(converter.m_useRecordedLocation, false);
    QCOMPARE(converter.m_overlap, 25.0);
}

void tst_ClaussToSPP::anglesPerShot_data()
{
    QTest::addColumn<AnglesList>("shots");
    QTest::addColumn<int>("photos");

    QTest::newRow("whole degrees") << AnglesList { { 30, -15 }, { 60, -15 }, { 90, 45 } } << 3;
    QTest::newRow("signs, zeros, turns")
        << AnglesList { { -0.0f, 0 }, { -180, 90 }, { 720, -90 }, { 359, 1 } } << 4;
    QTest::newRow("fractions") << AnglesList { { 0.1f, -0.1f }, { 12.345f, 67.891f },
        { 1e-3f, -33.3f } } << 3;
    QTest::newRow("more shots than photos")
        << AnglesList { { 10, 20 }, { 30, 40 }, { 50, 60 }, { 70, 80 } } << 2;
}

void tst_ClaussToSPP::anglesPerShot()
{
    QFETCH(AnglesList, shots);
    QFETCH(int, photos);

    Photos images(QVector<float>(photos, 35.0f));
    ClaussToSPP converter;
    converter.m_shots = shotsAt(shots);
    converter.generateSPP(images.files(), images.defs());
    QCOMPARE(converter.m_yaw.size(), shots.size());
    QCOMPARE(converter.m_pitch.size(), shots.size());
    for (int k = 0; k < shots.size(); ++k) {
        QCOMPARE(bitsOf(converter.m_yaw[k]), bitsOf(radiansOf(shots[k].yaw)));
        QCOMPARE(bitsOf(converter.m_pitch[k]), bitsOf(radiansOf(shots[k].pitch)));
    }
    QCOMPARE(converter.m_stacks.size(), photos);
}

void tst_ClaussToSPP::links_data()
{
    QTest::addColumn<AnglesList>("shots");
    QTest::addColumn<QVector<float>>("focals");
    QTest::addColumn<PairList>("expected");

    // 50 mm: half diagonal about 23.4 degrees, linked below about 33.4 degrees.
    QTest::newRow("50 mm, 33 degrees apart")
        << AnglesList { { 0, 0 }, { 33, 0 } } << QVector<float> { 50, 50 } << PairList { { 0, 1 } };
    QTest::newRow("50 mm, 34 degrees apart")
        << AnglesList { { 0, 0 }, { 34, 0 } } << QVector<float> { 50, 50 } << PairList {};
    QTest::newRow("50 mm, 33 degrees vertically") << AnglesList { { 10, -20 },
        { 10, 13 } } << QVector<float> { 50, 50 } << PairList { { 0, 1 } };
    QTest::newRow("wider second photo qualifies") << AnglesList { { 0, 0 },
        { 40, 0 } } << QVector<float> { 200, 20 } << PairList { { 0, 1 } };
    QTest::newRow("wider first photo qualifies") << AnglesList { { 0, 0 },
        { 40, 0 } } << QVector<float> { 20, 200 } << PairList { { 0, 1 } };
    QTest::newRow("neither qualifies")
        << AnglesList { { 0, 0 }, { 80, 0 } } << QVector<float> { 200, 20 } << PairList {};
    QTest::newRow("three photos, all linked")
        << AnglesList { { 0, 0 }, { 10, 0 }, { 20, 0 } } << QVector<float> { 50, 50, 50 }
        << PairList { { 0, 1 }, { 0, 2 }, { 1, 2 } };
    QTest::newRow("three photos, neighbours only")
        << AnglesList { { 0, 0 }, { 20, 0 }, { 40, 0 } } << QVector<float> { 50, 50, 50 }
        << PairList { { 0, 1 }, { 1, 2 } };
    QTest::newRow("more shots than photos")
        << AnglesList { { 0, 0 }, { 90, 0 }, { 1, 0 } } << QVector<float> { 50, 50 } << PairList {};
    QTest::newRow("across zero yaw") << AnglesList { { 350, 0 }, { 10, 0 } }
                                     << QVector<float> { 50, 50 } << PairList { { 0, 1 } };
    QTest::newRow("across the pole") << AnglesList { { 0, 80 }, { 180, 80 } }
                                     << QVector<float> { 50, 50 } << PairList { { 0, 1 } };
    QTest::newRow("focal 0 is a half turn of view") << AnglesList { { 0, 0 },
        { 120, 0 } } << QVector<float> { 0, 500 } << PairList { { 0, 1 } };
    QTest::newRow("negative focal never qualifies")
        << AnglesList { { 0, 0 }, { 1, 0 } } << QVector<float> { -50, -50 } << PairList {};
}

void tst_ClaussToSPP::links()
{
    QFETCH(AnglesList, shots);
    QFETCH(QVector<float>, focals);
    QFETCH(PairList, expected);

    Photos photos(focals);
    ClaussToSPP converter;
    converter.m_shots = shotsAt(shots);
    converter.generateSPP(photos.files(), photos.defs());
    QCOMPARE(linkPairs(converter), expected);
    QCOMPARE(
        linkPairs(converter), pairByPairLinks(converter.m_shots, photos.defs(), focals.size()));
}

void tst_ClaussToSPP::coincidentShots()
{
    // Two photos at the same position: their dot product is 1 give or take a
    // rounding step. Above 1 the angle is not a number and no link is made.
    int unlinked = 0;
    int linked = 0;
    for (int k = 0; k < 400; ++k) {
        const Angles at { float(k) * 7.31f - 1000.0f, float(k % 179) - 89.0f };
        const double yaw = radiansOf(at.yaw);
        const double pitch = radiansOf(at.pitch);
        const double d[3] = { std::cos(pitch) * std::cos(yaw), std::cos(pitch) * std::sin(yaw),
            -std::sin(pitch) };
        const double dot = d[0] * d[0] + d[1] * d[1] + d[2] * d[2];

        Photos photos({ 50, 50 });
        ClaussToSPP converter;
        converter.m_shots = shotsAt({ at, at });
        converter.generateSPP(photos.files(), photos.defs());
        if (dot > 1.0) {
            QVERIFY2(converter.m_links.isEmpty(), qPrintable(QString::number(k)));
            ++unlinked;
        } else {
            QCOMPARE(linkPairs(converter), (PairList { { 0, 1 } }));
            ++linked;
        }
    }
    QVERIFY(unlinked > 0);
    QVERIFY(linked > 0);
}

void tst_ClaussToSPP::missingImageDefinition()
{
    // A photo without definition has no field of view of its own; a wider
    // partner still links it.
    TestImageDef wide(20.0f);
    TestImageDef narrow(500.0f);
    ClaussToSPP converter;
    converter.m_shots = shotsAt({ { 0, 0 }, { 30, 0 }, { 60, 0 } });
    QStringList files { QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c") };
    converter.generateSPP(files, { nullptr, &wide, &narrow });
    QCOMPARE(linkPairs(converter), (PairList { { 0, 1 }, { 1, 2 } }));
}

void tst_ClaussToSPP::linksMatchPairByPair_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<int>("photos");
    QTest::addColumn<int>("layout");

    // Layouts: 0 anywhere on the sphere, 1 a cluster around the horizon with
    // repeated positions, 2 pairs placed at the link limit, give or take a few
    // rounding steps. Focal lengths are drawn per photo, with 0, negative and
    // unreadable (NaN) ones among them.
    for (quint32 seed = 1; seed <= 4; ++seed) {
        QTest::addRow("sphere %u", seed) << seed << 300 << 0;
        QTest::addRow("cluster %u", seed) << seed << 300 << 1;
        QTest::addRow("at the limit %u", seed) << seed << 400 << 2;
    }
}

void tst_ClaussToSPP::linksMatchPairByPair()
{
    QFETCH(quint32, seed);
    QFETCH(int, photos);
    QFETCH(int, layout);

    QRandomGenerator random(seed);
    auto uniform = [&random](double low, double high) {
        return low + (high - low) * random.generateDouble();
    };
    const float kFocals[] = { 8, 14, 24, 35, 50, 85, 200, 600 };

    QVector<float> focals;
    for (int k = 0; k < photos; ++k) {
        const int draw = int(random.bounded(40));
        if (draw == 0)
            focals.append(0.0f);
        else if (draw == 1)
            focals.append(-35.0f);
        else if (draw == 2)
            focals.append(std::numeric_limits<float>::quiet_NaN());
        else if (draw < 10)
            focals.append(float(uniform(5, 800)));
        else
            focals.append(kFocals[random.bounded(8)]);
    }

    AnglesList angles;
    for (int k = 0; k < photos; ++k) {
        if (layout == 0) {
            angles.append({ float(uniform(-360, 720)), float(uniform(-90, 90)) });
        } else if (layout == 1) {
            if (k > 0 && random.bounded(4) == 0)
                angles.append(angles[int(random.bounded(k))]); // same position again
            else
                angles.append({ float(uniform(-60, 60)), float(uniform(-20, 20)) });
        } else if (k % 2 == 1) {
            // The partner of photo k - 1 (on the horizon, near yaw 0, where
            // float angles are finest) at the angle where the wider of the two
            // half diagonals stops qualifying, moved by a few float steps.
            const float wider = std::fmax(halfDiagonalOf(focals[k - 1]), halfDiagonalOf(focals[k]));
            float degrees = float(double(wider) / double(0.7f) * 180.0 / 3.141592653589793);
            for (int step = int(random.bounded(9)) - 4; step != 0; step += step > 0 ? -1 : 1)
                degrees = std::nextafter(degrees, step > 0 ? 1e9f : -1e9f);
            angles.append({ angles.back().yaw + degrees, 0.0f });
        } else {
            angles.append({ float(uniform(-1e-3, 1e-3)), 0.0f });
        }
    }

    Photos images(focals);
    ClaussToSPP converter;
    converter.m_shots = shotsAt(angles);
    converter.generateSPP(images.files(), images.defs());
    const PairList expected = pairByPairLinks(converter.m_shots, images.defs(), photos);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(linkPairs(converter), expected);

    if (layout == 2) {
        // The pairs placed at the limit fall on both sides of it.
        int inside = 0;
        for (int k = 1; k < photos; k += 2)
            inside += expected.contains(qMakePair(k - 1, k)) ? 1 : 0;
        QVERIFY(inside > 0);
        QVERIFY(inside < photos / 2);
    }
}

QTEST_GUILESS_MAIN(tst_ClaussToSPP)
#include "tst_ClaussToSPP.moc"
