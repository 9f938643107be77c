// The shoot generator (samples/tool): what it writes reads back to its own
// ground truth through the same readers the import uses: every head's record
// through the converters, the Gigapan grid through the positions the import
// gives it, and the photographs' EXIF data through the photographs library.
#include "ClaussToSPP.h"
#include "GigapanPositions.h"
#include "ImageDefinition.h"
#include "MerlinToSPP.h"
#include "RecordShapes.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <memory>

namespace {

struct Truth
{
    QString name;
    int stack = -1;
    double yaw = 0.0;
    double pitch = 0.0;
    double roll = 0.0;
};

struct Shoot
{
    QVector<Truth> shots;
    /// Degrees across the picture as it stands, and its pixels across.
    double hfov = 0.0;
    int across = 0;
};

Shoot readTruth(const QString& path)
{
    Shoot shoot;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return shoot;
    const QRegularExpression fov(
        QStringLiteral("Field of view ([0-9.]+) degrees across ([0-9]+) pixels"));
    for (const QByteArray& raw : file.readAll().split('\n')) {
        const QString line = QString::fromUtf8(raw).trimmed();
        const QRegularExpressionMatch m = fov.match(line);
        if (m.hasMatch()) {
            shoot.hfov = m.captured(1).toDouble();
            shoot.across = m.captured(2).toInt();
        }
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))
            || line.startsWith(QLatin1String("image,")))
            continue;
        const QStringList f = line.split(QLatin1Char(','));
        if (f.size() == 5)
            shoot.shots.append(
                Truth { f[0], f[1].toInt(), f[2].toDouble(), f[3].toDouble(), f[4].toDouble() });
    }
    return shoot;
}

double yawDifference(double a, double b)
{
    double d = std::fmod(a - b, 360.0);
    if (d > 180.0)
        d -= 360.0;
    if (d < -180.0)
        d += 360.0;
    return d;
}

} // namespace

class tst_ShootGenerator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void records_data();
    void records();
    void photographs();
    void sameSeedSameShoot();
    void refusesBadOptions();

private:
    /// Runs the generator into a new folder of m_dir; empty on failure.
    QString generate(const QString& name, const QStringList& options);

    QTemporaryDir m_dir;
};

QString tst_ShootGenerator::generate(const QString& name, const QStringList& options)
{
    const QString folder = QDir(m_dir.path()).filePath(name);
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(ZPH_SHOOT_GENERATOR),
        QStringList { QStringLiteral("--generate"), folder } + options);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0) {
        qWarning().noquote() << process.readAll();
        return QString();
    }
    return folder;
}

void tst_ShootGenerator::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

void tst_ShootGenerator::records_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("bracket");
    QTest::addColumn<bool>("portrait");
    /// Largest difference between a recorded and a true angle.
    QTest::addColumn<double>("error");

    // A coarse scene: these tests look at the files, not at the pictures.
    const QStringList tiny
        = { QStringLiteral("--size"), QStringLiteral("64x48"), QStringLiteral("--samples"),
              QStringLiteral("1"), QStringLiteral("--scene-width"), QStringLiteral("1800") };
    QTest::newRow("grid without error") << (tiny
        + QStringList { QStringLiteral("--rows"), QStringLiteral("2"), QStringLiteral("--columns"),
            QStringLiteral("3"), QStringLiteral("--error"), QStringLiteral("0") })
                                        << 1 << false << 0.0;
    QTest::newRow("serpentine, 3 exposures, error 2") << (tiny
        + QStringList { QStringLiteral("--rows"), QStringLiteral("3"), QStringLiteral("--columns"),
            QStringLiteral("2"), QStringLiteral("--order"), QStringLiteral("serpentine"),
            QStringLiteral("--bracket"), QStringLiteral("3"), QStringLiteral("--error"),
            QStringLiteral("2") }) << 3 << false << 2.0;
    QTest::newRow("full circle in portrait, 2 exposures") << (tiny
        + QStringList { QStringLiteral("--rows"), QStringLiteral("1"), QStringLiteral("--columns"),
            QStringLiteral("7"), QStringLiteral("--full-circle"), QStringLiteral("--portrait"),
            QStringLiteral("tagged"), QStringLiteral("--bracket"), QStringLiteral("2") })
                                                          << 2 << true << 1.0;
}

void tst_ShootGenerator::records()
{
    QFETCH(QStringList, options);
    QFETCH(int, bracket);
    QFETCH(bool, portrait);
    QFETCH(double, error);

    const QString folder = generate(QString::fromLatin1(QTest::currentDataTag()), options);
    QVERIFY(!folder.isEmpty());
    const QDir dir(folder);
    const Shoot truth = readTruth(dir.filePath(QStringLiteral("ground-truth.csv")));
    QVERIFY(truth.shots.size() >= 6);
    QCOMPARE(truth.shots.size() % bracket, 0);
    QCOMPARE(truth.across, portrait ? 48 : 64);

    // The records hold the angles to 0.1° (Papywizard, VR Drive 2) or to the
    // degree (Clauss), off the truth by the positioning error.
    for (const QString& name : { QStringLiteral("papywizard.xml"), QStringLiteral("vrdrive2.xml"),
             QStringLiteral("papywizard-headerless.xml") }) {
        const bool headerless = name.contains(QLatin1String("headerless"));
        MerlinToSPP record;
        QVERIFY2(record.parse(dir.filePath(name)), qPrintable(name));
        QCOMPARE(record.m_shoots.size(), truth.shots.size());
        QCOMPARE(record.m_nbPicts, headerless ? -1 : bracket);
        QCOMPARE(record.m_portrait, portrait && !headerless);
        for (int i = 0; i < truth.shots.size(); ++i) {
            const Truth& t = truth.shots[i];
            QVERIFY2(std::fabs(yawDifference(record.m_shoots[i].m_yaw, t.yaw)) <= error + 0.051
                    && std::fabs(record.m_shoots[i].m_pitch - t.pitch) <= error + 0.051,
                qPrintable(QStringLiteral("%1, shot %2").arg(name).arg(i + 1)));
        }
        RecordShapes shapes;
        QVERIFY(shapes.read(dir.filePath(name)));
        QVERIFY(!shapes.cutOff());
        QCOMPARE(shapes.shots().size(), truth.shots.size());
        for (int i = 0; i < shapes.shots().size(); ++i) {
            const RecordShapes::Shot& shot = shapes.shots()[i];
            QCOMPARE(shot.number, i % bracket + 1);
            QCOMPARE(shot.id.isEmpty(), headerless);
            QCOMPARE(shot.hasRoll, !headerless);
        }
        if (headerless && bracket > 1) {
            const RecordShapes::Bracketing b
                = RecordShapes::BracketingFromNumbers(shapes.shots(), false);
            QVERIFY2(b.error.isEmpty(), qPrintable(b.error));
            QCOMPARE(b.count, bracket);
            QVERIFY(b.fromNumbers);
        }
    }

    ClaussToSPP script;
    QVERIFY(script.parse(dir.filePath(QStringLiteral("clauss.txt"))));
    QCOMPARE(script.m_shots.size(), truth.shots.size());
    for (int i = 0; i < truth.shots.size(); ++i) {
        const Truth& t = truth.shots[i];
        QCOMPARE(script.m_shots[i].m_yaw, std::round(script.m_shots[i].m_yaw));
        QVERIFY(std::fabs(yawDifference(script.m_shots[i].m_yaw, t.yaw)) <= error + 0.5);
        QVERIFY(std::fabs(script.m_shots[i].m_pitch - t.pitch) <= error + 0.5);
    }

    // The Gigapan grid, as the import places it, is where the head aimed.
    QFile file(dir.filePath(QStringLiteral("gigapan-args.txt")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList args = QString::fromUtf8(file.readAll()).simplified().split(QLatin1Char(' '));
    const auto value
        = [&](const char* option) { return args.value(args.indexOf(QLatin1String(option)) + 1); };
    QCOMPARE(value("--bracket").toInt(), bracket);
    const int rows = value("--rows").toInt();
    const int columns = truth.shots.size() / bracket / rows;
    const QStringList orders = { QStringLiteral("columns"), QStringLiteral("rows-down"),
        QStringLiteral("rows-up"), QStringLiteral("columns-left"), QStringLiteral("serpentine") };
    const int order = orders.indexOf(value("--order"));
    QVERIFY(order >= 0);
    // The picture's proportions give the field of view up from the one across.
    const double up = portrait ? 64.0 : 48.0;
    const double focal = truth.across / 2.0 / std::tan(truth.hfov / 2.0 * M_PI / 180.0);
    const double vfov = 2.0 * std::atan(up / 2.0 / focal) * 180.0 / M_PI;
    const QVector<StackPosition> grid
        = GigapanPositions::compute(rows, columns, order, value("--overlap").toDouble(), truth.hfov,
            vfov, args.contains(QStringLiteral("--force-360")));
    QCOMPARE(grid.size(), truth.shots.size() / bracket);
    for (int i = 0; i < truth.shots.size(); ++i) {
        const Truth& t = truth.shots[i];
        QCOMPARE(t.stack, i / bracket);
        const StackPosition& p = grid[t.stack];
        QVERIFY2(std::fabs(yawDifference(p.yaw, t.yaw)) <= error + 1e-3
                && std::fabs(p.pitch - t.pitch) <= error + 1e-3,
            qPrintable(QStringLiteral("stack %1: grid %2, %3; truth %4, %5")
                           .arg(t.stack)
                           .arg(p.yaw)
                           .arg(p.pitch)
                           .arg(t.yaw)
                           .arg(t.pitch)));
        QCOMPARE(t.roll, portrait ? 90.0 : 0.0);
    }
    // The first position is where the head was set up: exact.
    QVERIFY(std::fabs(grid[0].yaw - truth.shots[0].yaw) < 1e-3);
    QVERIFY(std::fabs(grid[0].pitch - truth.shots[0].pitch) < 1e-3);
}

void tst_ShootGenerator::photographs()
{
    const QString folder = generate(QStringLiteral("exif"),
        { QStringLiteral("--size"), QStringLiteral("90x60"), QStringLiteral("--samples"),
            QStringLiteral("1"), QStringLiteral("--scene-width"), QStringLiteral("1800"),
            QStringLiteral("--rows"), QStringLiteral("1"), QStringLiteral("--columns"),
            QStringLiteral("2"), QStringLiteral("--bracket"), QStringLiteral("3"),
            QStringLiteral("--ev-step"), QStringLiteral("2"), QStringLiteral("--focal"),
            QStringLiteral("45"), QStringLiteral("--crop-factor"), QStringLiteral("1.5"),
            QStringLiteral("--portrait"), QStringLiteral("tagged") });
    QVERIFY(!folder.isEmpty());
    const QDir dir(folder);
    // 1/125 s at 0 EV; the bracket is shot 0, -2, +2 EV.
    const double times[3] = { 1.0 / 125.0, 1.0 / 500.0, 4.0 / 125.0 };
    qint64 previous = 0;
    for (int i = 0; i < 6; ++i) {
        const QString path
            = dir.filePath(QStringLiteral("IMG_%1.jpg").arg(i + 1, 4, 10, QLatin1Char('0')));
        std::unique_ptr<ImageDefinition> photo(
            ImageDefinition::Read(path, ImageDefinition::ReadOptions()));
        QVERIFY2(photo, qPrintable(path));
        QCOMPARE(photo->PixelSize(), QSize(90, 60));
        QCOMPARE(photo->Orientation(), 6);
        QCOMPARE(photo->OrientedSize(), QSize(60, 90));
        QCOMPARE(photo->FocalLength(), 45.0f);
        QCOMPARE(photo->LensFocalLength(), 30.0f);
        QVERIFY(std::fabs(photo->ExposureTime() - times[i % 3]) < 1e-9);
        QCOMPARE(photo->Aperture(), 8.0);
        QCOMPARE(photo->Iso(), 100);
        // 0.4 s between the exposures of a bracket, 3 s between positions:
        // the fraction of a second comes from SubSecTimeOriginal.
        if (i > 0)
            QCOMPARE(photo->OrderKey() - previous, i % 3 == 0 ? 2200 : 400);
        previous = photo->OrderKey();
    }
}

void tst_ShootGenerator::sameSeedSameShoot()
{
    const QStringList options = { QStringLiteral("--size"), QStringLiteral("64x48"),
        QStringLiteral("--samples"), QStringLiteral("1"), QStringLiteral("--scene-width"),
        QStringLiteral("1800"), QStringLiteral("--seed"), QStringLiteral("42") };
    const QString a = generate(QStringLiteral("seed-a"), options);
    const QString b = generate(QStringLiteral("seed-b"), options);
    const QString c = generate(QStringLiteral("seed-c"),
        QStringList(options.mid(0, 6)) << QStringLiteral("--seed") << QStringLiteral("43"));
    QVERIFY(!a.isEmpty() && !b.isEmpty() && !c.isEmpty());
    const auto bytes = [](const QString& folder, const QString& name) {
        QFile file(QDir(folder).filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    for (const QString& name : { QStringLiteral("ground-truth.csv"),
             QStringLiteral("papywizard.xml"), QStringLiteral("IMG_0008.jpg") }) {
        QVERIFY(!bytes(a, name).isEmpty());
        QCOMPARE(bytes(a, name), bytes(b, name));
    }
    QVERIFY(bytes(a, QStringLiteral("ground-truth.csv"))
        != bytes(c, QStringLiteral("ground-truth.csv")));
}

void tst_ShootGenerator::refusesBadOptions()
{
    for (const QStringList& options :
        { QStringList { QStringLiteral("--size"), QStringLiteral("100x200") },
            QStringList { QStringLiteral("--order"), QStringLiteral("spiral") },
            QStringList { QStringLiteral("--portrait"), QStringLiteral("sideways") },
            QStringList { QStringLiteral("--positions"), QStringLiteral("10:95") },
            QStringList { QStringLiteral("--bracket") } }) {
        QProcess process;
        process.start(QStringLiteral(ZPH_SHOOT_GENERATOR),
            QStringList {
                QStringLiteral("--generate"), QDir(m_dir.path()).filePath(QStringLiteral("bad")) }
                + options);
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 2);
        QVERIFY2(!QDir(m_dir.path()).exists(QStringLiteral("bad")),
            qPrintable(options.join(QLatin1Char(' '))));
    }
}

QTEST_MAIN(tst_ShootGenerator)
#include "tst_ShootGenerator.moc"
