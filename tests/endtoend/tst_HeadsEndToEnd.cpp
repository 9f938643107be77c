// End to end for every head: a small shoot is generated (photographs, the
// head's record, the true angles), imported and stitched by the panohead
// program, and every picture of the stitched project must point where it was
// rendered, within 0.2°, once the one rotation of the whole panorama (which
// no head fixes) is taken out.
#include "PtoProject.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <array>
#include <cmath>

namespace {

/// Degrees between where a picture looks and where it should.
constexpr double kTolerance = 0.2;
/// Degrees a picture may be turned about its view: on pictures 200 pixels
/// wide, 0.5° moves the corners by less than a pixel.
constexpr double kRollTolerance = 0.5;
constexpr double kRadians = M_PI / 180.0;

struct Truth
{
    int stack = -1;
    double yaw = 0.0;
    double pitch = 0.0;
    double roll = 0.0;
};

/// ground-truth.csv: image,stack,yaw,pitch,roll after comment lines.
QMap<QString, Truth> readTruth(const QString& path)
{
    QMap<QString, Truth> truth;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return truth;
    for (const QByteArray& raw : file.readAll().split('\n')) {
        const QString line = QString::fromUtf8(raw).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))
            || line.startsWith(QLatin1String("image,")))
            continue;
        const QStringList f = line.split(QLatin1Char(','));
        if (f.size() != 5)
            continue;
        truth.insert(
            f[0], Truth { f[1].toInt(), f[2].toDouble(), f[3].toDouble(), f[4].toDouble() });
    }
    return truth;
}

/// A rotation as a unit quaternion (w, x, y, z).
using Quaternion = std::array<double, 4>;

Quaternion multiply(const Quaternion& a, const Quaternion& b)
{
    return { a[0] * b[0] - a[1] * b[1] - a[2] * b[2] - a[3] * b[3],
        a[0] * b[1] + a[1] * b[0] + a[2] * b[3] - a[3] * b[2],
        a[0] * b[2] - a[1] * b[3] + a[2] * b[0] + a[3] * b[1],
        a[0] * b[3] + a[1] * b[2] - a[2] * b[1] + a[3] * b[0] };
}

Quaternion conjugate(const Quaternion& q)
{
    return { q[0], -q[1], -q[2], -q[3] };
}

Quaternion axisAngle(int axis, double degrees)
{
    Quaternion q { std::cos(degrees * kRadians / 2.0), 0.0, 0.0, 0.0 };
    q[axis] = std::sin(degrees * kRadians / 2.0);
    return q;
}

/// The camera's rotation: yaw about the vertical (z), then pitch about the
/// camera's horizontal axis (y), then roll about its view (x).
Quaternion cameraRotation(double yaw, double pitch, double roll)
{
    return multiply(multiply(axisAngle(3, -yaw), axisAngle(2, -pitch)), axisAngle(1, roll));
}

/// Degrees between two rotations.
double angleBetween(const Quaternion& a, const Quaternion& b)
{
    const Quaternion d = multiply(conjugate(a), b);
    return 2.0 * std::acos(qMin(1.0, std::fabs(d[0]))) / kRadians;
}

/// Degrees between the directions two cameras look in.
double viewAngle(const Quaternion& a, const Quaternion& b)
{
    // The view is the camera's x axis: the rotation of (1, 0, 0).
    const auto view = [](const Quaternion& q) {
        const Quaternion v = multiply(multiply(q, Quaternion { 0.0, 1.0, 0.0, 0.0 }), conjugate(q));
        return std::array<double, 3> { v[1], v[2], v[3] };
    };
    const std::array<double, 3> u = view(a);
    const std::array<double, 3> w = view(b);
    const double cross = std::hypot(u[1] * w[2] - u[2] * w[1],
        std::hypot(u[2] * w[0] - u[0] * w[2], u[0] * w[1] - u[1] * w[0]));
    return std::atan2(cross, u[0] * w[0] + u[1] * w[1] + u[2] * w[2]) / kRadians;
}

/// Degrees the second camera is turned about its view from the first
/// (meaningful when both look the same way).
double rollBetween(const Quaternion& a, const Quaternion& b)
{
    const Quaternion d = multiply(conjugate(a), b);
    double roll = 2.0 * std::atan2(d[1], d[0]) / kRadians;
    roll = std::fmod(roll + 540.0, 360.0) - 180.0;
    return std::fabs(roll);
}

struct Run
{
    int exitCode = -1;
    QString output;
};

Run run(const QString& program, const QStringList& arguments, int timeoutMs)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    Run result;
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
        result.output = QStringLiteral("%1 did not finish in time").arg(program);
        return result;
    }
    result.output = QString::fromLocal8Bit(process.readAll());
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return result;
}

} // namespace

class tst_HeadsEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void importAndStitch_data();
    void importAndStitch();
};

void tst_HeadsEndToEnd::importAndStitch_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<QString>("record");
    QTest::addColumn<QStringList>("shoot");
    QTest::addColumn<bool>("seam");

    const QStringList small = { QStringLiteral("--size"), QStringLiteral("200x150") };
    QTest::newRow("papywizard, full circle, 3 exposures")
        << QStringLiteral("papywizard") << QStringLiteral("papywizard.xml")
        << (small
               + QStringList { QStringLiteral("--rows"), QStringLiteral("1"),
                   QStringLiteral("--columns"), QStringLiteral("8"),
                   QStringLiteral("--full-circle"), QStringLiteral("--focal"), QStringLiteral("24"),
                   QStringLiteral("--bracket"), QStringLiteral("3"), QStringLiteral("--seed"),
                   QStringLiteral("3") })
        << true;
    QTest::newRow("papywizard without header, portrait stored tagged")
        << QStringLiteral("papywizard") << QStringLiteral("papywizard-headerless.xml")
        << (small
               + QStringList { QStringLiteral("--rows"), QStringLiteral("2"),
                   QStringLiteral("--columns"), QStringLiteral("3"), QStringLiteral("--portrait"),
                   QStringLiteral("tagged"), QStringLiteral("--order"),
                   QStringLiteral("serpentine"), QStringLiteral("--seed"), QStringLiteral("4") })
        << false;
    QTest::newRow("vrdrive2, 2 exposures, portrait stored turned")
        << QStringLiteral("vrdrive2") << QStringLiteral("vrdrive2.xml")
        << (small
               + QStringList { QStringLiteral("--rows"), QStringLiteral("2"),
                   QStringLiteral("--columns"), QStringLiteral("3"), QStringLiteral("--portrait"),
                   QStringLiteral("turned"), QStringLiteral("--bracket"), QStringLiteral("2"),
                   QStringLiteral("--ev-step"), QStringLiteral("1.5"), QStringLiteral("--order"),
                   QStringLiteral("rows-down"), QStringLiteral("--seed"), QStringLiteral("5") })
        << false;
    QTest::newRow("clauss, 2 rows")
        << QStringLiteral("clauss") << QStringLiteral("clauss.txt")
        << (small
               + QStringList { QStringLiteral("--rows"), QStringLiteral("2"),
                   QStringLiteral("--columns"), QStringLiteral("3"), QStringLiteral("--order"),
                   QStringLiteral("serpentine"), QStringLiteral("--seed"), QStringLiteral("6") })
        << false;
    QTest::newRow("gigapan, 2 exposures")
        << QStringLiteral("gigapan") << QString()
        << (small
               + QStringList { QStringLiteral("--rows"), QStringLiteral("2"),
                   QStringLiteral("--columns"), QStringLiteral("3"), QStringLiteral("--bracket"),
                   QStringLiteral("2"), QStringLiteral("--seed"), QStringLiteral("7") })
        << false;
}

void tst_HeadsEndToEnd::importAndStitch()
{
    QFETCH(QString, head);
    QFETCH(QString, record);
    QFETCH(QStringList, shoot);
    QFETCH(bool, seam);

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QDir root(dir.path());
    const QString photos = root.filePath(QStringLiteral("shoot"));
    const QString output = root.filePath(QStringLiteral("out"));

    Run r = run(QStringLiteral(ZPH_SHOOT_GENERATOR),
        QStringList { QStringLiteral("--generate"), photos } + shoot, 120000);
    QVERIFY2(r.exitCode == 0, qPrintable(r.output));
    const QMap<QString, Truth> truth
        = readTruth(QDir(photos).filePath(QStringLiteral("ground-truth.csv")));
    QVERIFY(truth.size() >= 6);

    QStringList import = { QStringLiteral("import"), head };
    if (head == QLatin1String("gigapan")) {
        QFile arguments(QDir(photos).filePath(QStringLiteral("gigapan-args.txt")));
        QVERIFY(arguments.open(QIODevice::ReadOnly));
        import += QString::fromUtf8(arguments.readAll())
                      .simplified()
                      .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    } else {
        import << QDir(photos).filePath(record);
    }
    import << photos << QStringLiteral("-o") << output << QStringLiteral("--name")
           << QStringLiteral("shoot");
    r = run(QStringLiteral(ZPH_PANOHEAD), import, 120000);
    QVERIFY2(r.exitCode == 0, qPrintable(r.output));
    qInfo().noquote() << r.output.trimmed();

    r = run(QStringLiteral(ZPH_PANOHEAD),
        { QStringLiteral("stitch"), QDir(output).filePath(QStringLiteral("shoot.pto")) }, 300000);
    QVERIFY2(r.exitCode == 0, qPrintable(r.output));
    // Every head records the positions: the control points come from
    // correlation there, without cpfind.
    QVERIFY2(r.output.contains(QStringLiteral(" points by correlation at the recorded positions")),
        qPrintable(r.output));

    PtoProject final;
    QString error;
    QVERIFY2(final.read(QDir(output).filePath(QStringLiteral("shoot.stitch/05-final.pto")), &error),
        qPrintable(error));
    QCOMPARE(final.imageCount(), truth.size());

    // The stitched and the true rotation of every picture; the rotation of
    // the whole panorama is their mean difference.
    QVector<Quaternion> found, expected;
    QStringList names;
    for (int i = 0; i < final.imageCount(); ++i) {
        const QString name = QFileInfo(final.imageName(i)).fileName();
        QVERIFY2(truth.contains(name), qPrintable(name));
        bool yawOk = false, pitchOk = false, rollOk = false;
        const double yaw = final.number(i, QStringLiteral("y"), &yawOk);
        const double pitch = final.number(i, QStringLiteral("p"), &pitchOk);
        const double roll = final.number(i, QStringLiteral("r"), &rollOk);
        QVERIFY(yawOk && pitchOk && rollOk);
        const Truth t = truth.value(name);
        found.append(cameraRotation(yaw, pitch, roll));
        expected.append(cameraRotation(t.yaw, t.pitch, t.roll));
        names.append(name);
    }
    Quaternion mean { 0.0, 0.0, 0.0, 0.0 };
    Quaternion first {};
    for (int i = 0; i < found.size(); ++i) {
        Quaternion offset = multiply(found[i], conjugate(expected[i]));
        if (i == 0)
            first = offset;
        const double sign = offset[0] * first[0] + offset[1] * first[1] + offset[2] * first[2]
                    + offset[3] * first[3]
                < 0.0
            ? -1.0
            : 1.0;
        for (int k = 0; k < 4; ++k)
            mean[k] += sign * offset[k];
    }
    const double norm
        = std::sqrt(mean[0] * mean[0] + mean[1] * mean[1] + mean[2] * mean[2] + mean[3] * mean[3]);
    for (double& c : mean)
        c /= norm;

    // Each picture looks where it was rendered, and stands as it was: a
    // quarter turn wrong is 90°, a slight tilt a fraction of a degree.
    double largest = 0.0;
    double largestRoll = 0.0;
    for (int i = 0; i < found.size(); ++i) {
        const Quaternion placed = multiply(mean, expected[i]);
        const double off = viewAngle(placed, found[i]);
        const double roll = rollBetween(placed, found[i]);
        largest = qMax(largest, off);
        largestRoll = qMax(largestRoll, roll);
        QVERIFY2(off <= kTolerance,
            qPrintable(QStringLiteral("%1 looks %2° away from where it was rendered")
                           .arg(names[i])
                           .arg(off)));
        QVERIFY2(roll <= kRollTolerance,
            qPrintable(QStringLiteral("%1 is turned by %2° from how it was rendered")
                           .arg(names[i])
                           .arg(roll)));
    }
    qInfo().noquote() << QStringLiteral("%1 pictures, largest error %2°, largest roll error %3°")
                             .arg(found.size())
                             .arg(largest, 0, 'f', 3)
                             .arg(largestRoll, 0, 'f', 3);

    if (seam) {
        // The first and the last position of the circle meet across the
        // seam: control points join them, and they stand as far apart as
        // they were shot.
        int firstStack = 0;
        int lastStack = 0;
        for (const Truth& t : truth)
            lastStack = qMax(lastStack, t.stack);
        int across = 0;
        for (const PtoProject::ControlPoint& point : final.controlPoints()) {
            const int a = truth.value(QFileInfo(final.imageName(point.first)).fileName()).stack;
            const int b = truth.value(QFileInfo(final.imageName(point.second)).fileName()).stack;
            across += (a == firstStack && b == lastStack) || (a == lastStack && b == firstStack);
        }
        QVERIFY2(across > 0, "no control point joins the first and the last position");
        int firstImage = -1, lastImage = -1;
        for (int i = 0; i < names.size(); ++i) {
            const int stack = truth.value(names[i]).stack;
            if (stack == firstStack && firstImage < 0)
                firstImage = i;
            if (stack == lastStack && lastImage < 0)
                lastImage = i;
        }
        const double relativeFound = angleBetween(found[firstImage], found[lastImage]);
        const double relativeTrue = angleBetween(expected[firstImage], expected[lastImage]);
        QVERIFY2(std::fabs(relativeFound - relativeTrue) <= kTolerance,
            qPrintable(QStringLiteral("first and last %1° apart, shot %2° apart")
                           .arg(relativeFound)
                           .arg(relativeTrue)));
    }
}

QTEST_MAIN(tst_HeadsEndToEnd)
#include "tst_HeadsEndToEnd.moc"
