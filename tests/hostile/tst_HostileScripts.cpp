// Hostile Clauss Rodeon scripts against ClaussToSPP::parse: NUL bytes,
// invalid UTF-8, odd line ends, numbers beyond every range, very long lines,
// a script cut at every byte offset and a 1 GiB script of one line. Each ends
// in the documented result (a NUL ends the script; bytes that are not UTF-8
// become replacement characters, which are neither command nor value) or in
// false with no shots; the peak resident memory stays under the stated bound.
#include "BigFile.h"
#include "ClaussToSPP.h"
#include "PeakMemory.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

namespace {

using Shots = QVector<QPair<float, float>>; // (yaw, pitch) in degrees

/// A literal with its NUL bytes, without the terminating one.
template<int N> QByteArray bytes(const char (&text)[N])
{
    return QByteArray(text, N - 1);
}

} // namespace

class tst_HostileScripts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void hostileScript_data();
    void hostileScript();
    void cutAtEveryOffset();
    void oneGibibyteLine_data();
    void oneGibibyteLine();

private:
    QString write(const QByteArray& content);

    QTemporaryDir m_dir;
    QByteArray m_script;
};

QString tst_HostileScripts::write(const QByteArray& content)
{
    const QString path = m_dir.filePath(QStringLiteral("script.txt"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        || file.write(content) != content.size())
        return QString();
    return path;
}

void tst_HostileScripts::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QFile fixture(QFINDTESTDATA("data/script.txt"));
    QVERIFY(fixture.open(QIODevice::ReadOnly));
    m_script = fixture.readAll();
    QVERIFY(m_script.contains("op_shoot"));
}

void tst_HostileScripts::hostileScript_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("result");
    QTest::addColumn<Shots>("shots");
    QTest::addColumn<qint64>("boundMb");

    QTest::newRow("NUL byte ends the script")
        << bytes("op_h-angle=30\nop_shoot\n\0op_shoot\nop_h-angle=x\n") << true
        << Shots { { 30, 0 } } << 16ll;
    QTest::newRow("NUL byte inside a command")
        << bytes("op_h-angle=5\nop_sh\0oot\nop_shoot\n") << true << Shots {} << 16ll;
    QTest::newRow("NUL byte first") << bytes("\0op_shoot\n") << true << Shots {} << 16ll;
    QTest::newRow("NUL bytes only") << QByteArray(4096, '\0') << true << Shots {} << 16ll;
    QTest::newRow("invalid UTF-8 before a command")
        << QByteArray("\xff\xfeop_shoot\nop_h-angle=2\nop_shoot\n") << true << Shots { { 2, 0 } }
        << 16ll;
    QTest::newRow("invalid UTF-8 right after a command")
        << QByteArray("op_h-angle=4\nop_shoot\xff\xfe\n") << true << Shots { { 4, 0 } } << 16ll;
    QTest::newRow("invalid UTF-8 inside a command")
        << QByteArray("op_\xc3shoot\nop_sho\x80ot\n") << true << Shots {} << 16ll;
    QTest::newRow("invalid UTF-8 inside a value") << QByteArray("op_h-angle=3\xff"
                                                                "0\nop_shoot\n")
                                                  << true << Shots { { 3, 0 } } << 16ll;
    QTest::newRow("overlong encoding of the equals sign") << QByteArray("op_h-angle\xc0\xbd"
                                                                        "30\nop_shoot\n")
                                                          << false << Shots { { 0, 0 } } << 16ll;
    QTest::newRow("UTF-16 surrogate encoded as UTF-8")
        << QByteArray("op_v-angle=\xed\xa0\x80\nop_shoot\n") << false << Shots { { 0, 0 } } << 16ll;
    QTest::newRow("sequence cut at the end")
        << QByteArray("op_h-angle=5\nop_shoot\n\xe2\x82") << true << Shots { { 5, 0 } } << 16ll;
    QTest::newRow("a digit beyond the BMP ends a value")
        << QByteArray("op_h-angle=1\xf0\x9d\x9f\x98\nop_shoot\n") << true << Shots { { 1, 0 } }
        << 16ll;
    QTest::newRow("a digit of another script in a value")
        << QByteArray("op_h-angle=1\xd9\xa3\nop_shoot\n") << false << Shots { { 0, 0 } } << 16ll;
    // Text mode drops every carriage return: the lines run together into one
    // angle line whose value is not a number.
    QTest::newRow("carriage returns only: one line")
        << QByteArray("op_h-angle=7\rop_shoot\rop_shoot\r") << false << Shots {} << 16ll;
    QTest::newRow("carriage return and line feed")
        << QByteArray("op_h-angle=7\r\nop_shoot\r\n") << true << Shots { { 7, 0 } } << 16ll;
    QTest::newRow("angle beyond the float range")
        << QByteArray("op_h-angle=1e39\nop_shoot\n") << false << Shots { { 0, 0 } } << 16ll;
    QTest::newRow("angle of 39 digits")
        << QByteArray("op_v-angle=999999999999999999999999999999999999999\nop_shoot\n") << false
        << Shots { { 0, 0 } } << 16ll;
    QTest::newRow("angle beyond 32 bits, within the float range")
        << QByteArray("op_h-angle=99999999999\nop_shoot\n") << true
        << Shots { { 99999999999.0f, 0 } } << 16ll;
    // Qt's conversion accepts "nan" and "inf" as numbers.
    QTest::newRow("angles nan and inf")
        << QByteArray("op_h-angle=nan\nop_v-angle=inf\nop_shoot\n") << true
        << Shots { { std::numeric_limits<float>::quiet_NaN(),
               std::numeric_limits<float>::infinity() } }
        << 16ll;
    QTest::newRow("a value of 10 MB")
        << QByteArray("op_h-angle=" + QByteArray(10 << 20, '9') + "\nop_shoot\n") << false
        << Shots { { 0, 0 } } << 160ll;
    QTest::newRow("a command of 10 MB")
        << QByteArray("op_shoot" + QByteArray(10 << 20, 'x') + "\nop_shoot\n") << true
        << Shots { { 0, 0 } } << 160ll;
    QTest::newRow("10 MB of line feeds") << QByteArray(QByteArray(10 << 20, '\n') + "op_shoot\n")
                                         << true << Shots { { 0, 0 } } << 160ll;
}

void tst_HostileScripts::hostileScript()
{
    QFETCH(QByteArray, script);
    QFETCH(bool, result);
    QFETCH(Shots, shots);
    QFETCH(qint64, boundMb);

    const QString path = write(script);
    QVERIFY(!path.isEmpty());
    ClaussToSPP conv;
    const PeakMemory memory;
    const bool parsed = conv.parse(path);
    const qint64 grown = memory.growthMb();
    QVERIFY2(grown >= 0 && grown < PeakMemory::allowedMb(boundMb),
        qPrintable(QStringLiteral("peak RSS grew by %1 MB, bound %2 MB")
                       .arg(grown)
                       .arg(PeakMemory::allowedMb(boundMb))));
    QCOMPARE(parsed, result);
    QCOMPARE(conv.m_shots.size(), shots.size());
    for (int i = 0; i < shots.size(); ++i) {
        QCOMPARE(conv.m_shots[i].m_yaw, shots[i].first);
        QCOMPARE(conv.m_shots[i].m_pitch, shots[i].second);
        QCOMPARE(conv.m_shots[i].m_id, i);
    }
}

// Every prefix of a script is itself a script: the shots it holds are those
// of the whole script whose "op_shoot" line is complete up to its "t" (the
// command needs no line end), each at the angles read before it. A cut inside
// an angle line shortens its value; that changes angles, never the count.
void tst_HostileScripts::cutAtEveryOffset()
{
    for (int length = 0; length <= m_script.size(); ++length) {
        const QByteArray prefix = m_script.left(length);
        int expected = 0;
        for (const QByteArray& line : prefix.split('\n'))
            expected += line.startsWith("op_shoot") ? 1 : 0;
        ClaussToSPP conv;
        conv.parse(write(prefix));
        QVERIFY2(conv.m_shots.size() == expected,
            qPrintable(QStringLiteral("cut at %1: %2 shots, expected %3")
                           .arg(length)
                           .arg(conv.m_shots.size())
                           .arg(expected)));
    }
}

void tst_HostileScripts::oneGibibyteLine_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<char>("fill");
    QTest::addColumn<bool>("sparse");
    QTest::addColumn<bool>("result");
    QTest::addColumn<int>("shots");

    QTest::newRow("an angle of 1 GiB digits")
        << QByteArray("op_shoot\nop_h-angle=") << '7' << false << false << 1;
    QTest::newRow("a shot, then a 1 GiB hole (NUL bytes)")
        << QByteArray("op_shoot\nop_shoot\n") << '\0' << true << true << 2;
}

// A script of 1 GiB on one line, written at test time to a temporary folder
// (streamed in blocks, or sparse) and deleted at the end. The shots before
// it are read; the peak resident memory grows by less than 512 MB.
void tst_HostileScripts::oneGibibyteLine()
{
    QFETCH(QByteArray, head);
    QFETCH(char, fill);
    QFETCH(bool, sparse);
    QFETCH(bool, result);
    QFETCH(int, shots);
    constexpr qint64 kGiB = qint64(1) << 30;
    QTemporaryDir dir(BigFile::scratchFolder() + QStringLiteral("/zph-hostile-XXXXXX"));
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("line.txt"));
    const bool written = sparse ? BigFile::writeSparse(path, head, kGiB)
                                : BigFile::writeStreamed(path, head, fill, kGiB, QByteArray());
    if (!written)
        QSKIP("the temporary folder cannot hold 1 GiB");

    ClaussToSPP conv;
    const PeakMemory memory;
    const bool parsed = conv.parse(path);
    const qint64 grown = memory.growthMb();
    QFile::remove(path);
    QVERIFY2(grown >= 0 && grown < PeakMemory::allowedMb(512),
        qPrintable(QStringLiteral("peak RSS grew by %1 MB, bound 512 MB").arg(grown)));
    // A reader that refuses a script this large says so with false and no shots.
    if (!parsed && conv.m_shots.isEmpty())
        return;
    QCOMPARE(parsed, result);
    QCOMPARE(conv.m_shots.size(), shots);
}

QTEST_MAIN(tst_HostileScripts)
#include "tst_HostileScripts.moc"
