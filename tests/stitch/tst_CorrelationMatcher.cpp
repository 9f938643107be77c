// Control points found by correlation on the bundled sample's reference
// pictures, placed at the angles the head recorded (up to 1.5° off): every
// point, seen through the angles the pictures were rendered at, joins the
// same direction of the scene; also for portrait and fisheye pictures drawn
// from them.
#include "CorrelationMatcher.h"
#include "PtoProject.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTransform>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

const double SampleFov = 52.622545;

struct Position
{
    QString name;
    double yaw = 0;
    double pitch = 0;
    double roll = 0;
};

QString sample(const QString& name)
{
    return QStringLiteral(ZPH_SAMPLE_SHOOT "/") + name;
}

/// The first exposure of each position as the record gives it.
QVector<Position> recordedReferences()
{
    QFile file(sample(QStringLiteral("shoot.xml")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression pict(
        QStringLiteral("<pict id=\"(\\d+)\" bracket=\"1\">.*?<position yaw=\"([-0-9.]+)\" "
                       "pitch=\"([-0-9.]+)\" roll=\"([-0-9.]+)\""),
        QRegularExpression::DotMatchesEverythingOption);
    QVector<Position> positions;
    QRegularExpressionMatchIterator it = pict.globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch m = it.next();
        positions.append(
            { QStringLiteral("IMG_%1.jpg").arg(m.captured(1).toInt(), 4, 10, QLatin1Char('0')),
                m.captured(2).toDouble(), m.captured(3).toDouble(), m.captured(4).toDouble() });
    }
    return positions;
}

/// The angles each photograph was rendered at.
QHash<QString, Position> truth()
{
    QHash<QString, Position> angles;
    QFile file(sample(QStringLiteral("ground-truth.csv")));
    if (!file.open(QIODevice::ReadOnly))
        return angles;
    for (const QByteArray& line : file.readAll().split('\n')) {
        const QList<QByteArray> fields = line.trimmed().split(',');
        if (fields.size() != 5 || !fields[0].startsWith("IMG_"))
            continue;
        const QString name = QString::fromLatin1(fields[0]);
        angles.insert(
            name, { name, fields[2].toDouble(), fields[3].toDouble(), fields[4].toDouble() });
    }
    return angles;
}

struct Lens
{
    int width = 400;
    int height = 300;
    double fov = SampleFov;
    int projection = 0;
};

QString projectText(const QVector<Position>& positions, const Lens& lens)
{
    QString text = QStringLiteral("p f2 w3000 h1500 v360 n\"TIFF_m\"\nm i0\n");
    for (const Position& p : positions)
        text += QStringLiteral("i w%1 h%2 f%3 v%4 y%5 p%6 r%7 n\"%8\"\n")
                    .arg(lens.width)
                    .arg(lens.height)
                    .arg(lens.projection)
                    .arg(lens.fov, 0, 'f', 6)
                    .arg(p.yaw)
                    .arg(p.pitch)
                    .arg(p.roll)
                    .arg(p.name);
    return text;
}

/// v (camera frame: x ahead, y to the left, z up) in the scene's frame:
/// turned by roll about the view, pitched up, then yawed to the right (by
/// -angle with inverse).
void turn(const Position& at, const double v[3], double out[3], bool inverse = false)
{
    const double sign = inverse ? -1.0 : 1.0;
    const double r = sign * at.roll * M_PI / 180, p = -sign * at.pitch * M_PI / 180,
                 w = -sign * at.yaw * M_PI / 180;
    const auto aboutX = [r](const double* in, double* o) {
        const double t[3] = { in[0], in[1] * std::cos(r) - in[2] * std::sin(r),
            in[1] * std::sin(r) + in[2] * std::cos(r) };
        std::copy(t, t + 3, o);
    };
    const auto aboutY = [p](const double* in, double* o) {
        const double t[3] = { in[0] * std::cos(p) + in[2] * std::sin(p), in[1],
            -in[0] * std::sin(p) + in[2] * std::cos(p) };
        std::copy(t, t + 3, o);
    };
    const auto aboutZ = [w](const double* in, double* o) {
        const double t[3] = { in[0] * std::cos(w) - in[1] * std::sin(w),
            in[0] * std::sin(w) + in[1] * std::cos(w), in[2] };
        std::copy(t, t + 3, o);
    };
    std::copy(v, v + 3, out);
    if (inverse) {
        aboutZ(out, out);
        aboutY(out, out);
        aboutX(out, out);
    } else {
        aboutX(out, out);
        aboutY(out, out);
        aboutZ(out, out);
    }
}

/// The direction of pixel (x, y) as the sample generator renders it: the
/// centre of pixel (0, 0) at (0, 0), rows from the top. Rectilinear, or for
/// projection 2 and 3 equidistant (the angle from the axis grows with the
/// radius).
void direction(const Position& at, const Lens& lens, double x, double y, double out[3])
{
    const double u = x + 0.5 - lens.width / 2.0, w = y + 0.5 - lens.height / 2.0;
    double v[3];
    if (lens.projection == 0) {
        const double focal = lens.width / 2.0 / std::tan(lens.fov * M_PI / 360.0);
        v[0] = focal;
        v[1] = -u;
        v[2] = -w;
    } else {
        const double focal = lens.width / 2.0 / (lens.fov * M_PI / 360.0);
        const double radius = std::hypot(u, w), theta = radius / focal;
        const double s = radius > 0 ? std::sin(theta) / radius : 0.0;
        v[0] = std::cos(theta);
        v[1] = -u * s;
        v[2] = -w * s;
    }
    turn(at, v, out);
    const double length = std::sqrt(out[0] * out[0] + out[1] * out[1] + out[2] * out[2]);
    for (int i = 0; i < 3; ++i)
        out[i] /= length;
}

/// The sample photograph at the position as a picture of lens (grey levels;
/// what the photograph does not see is black).
QImage reprojected(const QImage& photograph, const Position& at, const Lens& lens)
{
    const Lens sample;
    const double focal = sample.width / 2.0 / std::tan(sample.fov * M_PI / 360.0);
    // Grey levels taken here: QImage's own conversion of a picture this size
    // runs on Qt's thread pool, whose hand-overs ThreadSanitizer cannot see.
    const QImage colour = photograph.convertToFormat(QImage::Format_RGB32);
    QImage grey(colour.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < colour.height(); ++y) {
        const QRgb* in = reinterpret_cast<const QRgb*>(colour.constScanLine(y));
        uchar* line = grey.scanLine(y);
        for (int x = 0; x < colour.width(); ++x)
            line[x] = uchar(qGray(in[x]));
    }
    QImage out(lens.width, lens.height, QImage::Format_Grayscale8);
    out.fill(0);
    for (int y = 0; y < lens.height; ++y) {
        uchar* line = out.scanLine(y);
        for (int x = 0; x < lens.width; ++x) {
            double d[3], v[3];
            direction(at, lens, x, y, d);
            turn(at, d, v, true);
            if (v[0] <= 0)
                continue;
            const double sx = -focal * v[1] / v[0] + sample.width / 2.0 - 0.5;
            const double sy = -focal * v[2] / v[0] + sample.height / 2.0 - 0.5;
            const int x0 = int(std::floor(sx)), y0 = int(std::floor(sy));
            if (x0 < 0 || y0 < 0 || x0 + 1 >= grey.width() || y0 + 1 >= grey.height())
                continue;
            const double fx = sx - x0, fy = sy - y0;
            const uchar* row0 = grey.constScanLine(y0);
            const uchar* row1 = grey.constScanLine(y0 + 1);
            const double top = row0[x0] + (row0[x0 + 1] - row0[x0]) * fx;
            const double bottom = row1[x0] + (row1[x0 + 1] - row1[x0]) * fx;
            line[x] = uchar(std::lround(top + (bottom - top) * fy));
        }
    }
    return out;
}

double angleBetween(const double a[3], const double b[3])
{
    const double cross[3]
        = { a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0] };
    return std::atan2(std::sqrt(cross[0] * cross[0] + cross[1] * cross[1] + cross[2] * cross[2]),
               a[0] * b[0] + a[1] * b[1] + a[2] * b[2])
        * 180.0 / M_PI;
}

/// x, y, X, Y of a c line.
bool coordinates(const QString& line, double out[4])
{
    static const QRegularExpression field(QStringLiteral("\\s([xyXY])([-0-9.e+]+)"));
    bool seen[4] = {};
    QRegularExpressionMatchIterator it = field.globalMatch(line);
    while (it.hasNext()) {
        const QRegularExpressionMatch m = it.next();
        const int k = QStringLiteral("xyXY").indexOf(m.captured(1));
        out[k] = m.captured(2).toDouble(&seen[k]);
    }
    return seen[0] && seen[1] && seen[2] && seen[3];
}

/// The largest angle between a point's ends through the true angles.
double largestError(const QVector<PtoProject::ControlPoint>& points,
    const QVector<Position>& truePositions, const Lens& lens, QString* worst)
{
    double largest = 0;
    for (const PtoProject::ControlPoint& point : points) {
        double c[4] = {};
        if (!coordinates(point.line, c))
            return 180.0;
        double a[3], b[3];
        direction(truePositions[point.first], lens, c[0], c[1], a);
        direction(truePositions[point.second], lens, c[2], c[3], b);
        const double error = angleBetween(a, b);
        if (error > largest) {
            largest = error;
            *worst = point.line;
        }
    }
    return largest;
}

/// The sample's positions: two rows of five, the top row from yaw -80 to 80,
/// the bottom row back from 80 to -80.
const QVector<QPair<int, int>> SampleLinks = { { 0, 1 }, { 1, 2 }, { 2, 3 }, { 3, 4 }, { 5, 6 },
    { 6, 7 }, { 7, 8 }, { 8, 9 }, { 0, 9 }, { 1, 8 }, { 2, 7 }, { 3, 6 }, { 4, 5 } };

} // namespace

class tst_CorrelationMatcher : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pointsAgreeWithTheTrueAngles();
    void everyLinkedPairGetsPoints();
    void pairThatDoesNotOverlapGetsNone();
    void portraitPictures();
    void equidistantFisheye_data();
    void equidistantFisheye();
    void unsupportedProjectionDeclines_data();
    void unsupportedProjectionDeclines();
    void unreadablePictureDeclines();
    void sameResultOnOneAndTwoThreads();

private:
    QVector<Position> m_recorded;
    QVector<Position> m_true;
    PtoProject m_project;
    CorrelationMatcher::Result m_result;
};

void tst_CorrelationMatcher::initTestCase()
{
    m_recorded = recordedReferences();
    QCOMPARE(m_recorded.size(), 10);
    const QHash<QString, Position> angles = truth();
    for (const Position& p : m_recorded) {
        QVERIFY2(angles.contains(p.name), qPrintable(p.name));
        m_true << angles.value(p.name);
    }
    QString error;
    QVERIFY2(m_project.parse(projectText(m_recorded, Lens()), &error), qPrintable(error));
    QVector<QPair<int, int>> pairs = SampleLinks;
    pairs << qMakePair(0, 4);
    m_result = CorrelationMatcher::match(m_project, QStringLiteral(ZPH_SAMPLE_SHOOT), pairs);
    QVERIFY2(m_result.outcome == CorrelationMatcher::Result::Matched, qPrintable(m_result.reason));
    QCOMPARE(m_result.pairs.size(), pairs.size());
}

void tst_CorrelationMatcher::pointsAgreeWithTheTrueAngles()
{
    // The record is up to 1.5° off; the points are to be within 0.05°
    // (a third of a pixel) of the truth.
    QVERIFY(m_result.points.size() >= 5 * SampleLinks.size());
    QString worst;
    const double largest = largestError(m_result.points, m_true, Lens(), &worst);
    QVERIFY2(largest < 0.05, qPrintable(QStringLiteral("%1° at %2").arg(largest).arg(worst)));
}

void tst_CorrelationMatcher::everyLinkedPairGetsPoints()
{
    for (int i = 0; i < SampleLinks.size(); ++i) {
        const CorrelationMatcher::PairResult& pair = m_result.pairs[i];
        QCOMPARE(pair.first, SampleLinks[i].first);
        QCOMPARE(pair.second, SampleLinks[i].second);
        QVERIFY2(pair.overlap > 0.1, qPrintable(QString::number(pair.overlap)));
        QVERIFY2(pair.points >= 5,
            qPrintable(QStringLiteral("%1 points between %2 and %3")
                           .arg(pair.points)
                           .arg(pair.first)
                           .arg(pair.second)));
    }
    int counted = 0;
    for (const PtoProject::ControlPoint& point : m_result.points) {
        QVERIFY(
            point.line.startsWith(QStringLiteral("c n%1 N%2 ").arg(point.first).arg(point.second)));
        QVERIFY(point.line.endsWith(QStringLiteral(" t0")));
        ++counted;
    }
    int summed = 0;
    for (const CorrelationMatcher::PairResult& pair : m_result.pairs)
        summed += pair.points;
    QCOMPARE(counted, summed);
}

void tst_CorrelationMatcher::pairThatDoesNotOverlapGetsNone()
{
    const CorrelationMatcher::PairResult& far = m_result.pairs.last();
    QCOMPARE(far.first, 0);
    QCOMPARE(far.second, 4);
    QCOMPARE(far.overlap, 0.0);
    QCOMPARE(far.points, 0);
    for (const PtoProject::ControlPoint& point : m_result.points)
        QVERIFY(!(point.first == 0 && point.second == 4));
}

void tst_CorrelationMatcher::portraitPictures()
{
    // Two neighbours of the top row stored standing: the camera turned by
    // 90° (roll 90), the pictures' tops looking to the right.
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QVector<Position> recorded, truePositions;
    for (int index : { 1, 2 }) {
        const Position& p = m_recorded[index];
        const QImage landscape(sample(p.name));
        QVERIFY(!landscape.isNull());
        QVERIFY(landscape.transformed(QTransform().rotate(-90)).save(dir.filePath(p.name)));
        recorded.append({ p.name, p.yaw, p.pitch, 90.0 });
        Position t = m_true[index];
        t.roll = 90.0;
        truePositions << t;
    }
    Lens lens;
    lens.width = 300;
    lens.height = 400;
    // The stored picture's width is the scene's height.
    lens.fov = 2.0 * std::atan(150.0 / (200.0 / std::tan(SampleFov * M_PI / 360.0))) * 180.0 / M_PI;
    PtoProject project;
    QString error;
    QVERIFY2(project.parse(projectText(recorded, lens), &error), qPrintable(error));
    const CorrelationMatcher::Result result
        = CorrelationMatcher::match(project, dir.path(), { qMakePair(0, 1) });
    QVERIFY2(result.outcome == CorrelationMatcher::Result::Matched, qPrintable(result.reason));
    QVERIFY2(result.points.size() >= 5, qPrintable(QString::number(result.points.size())));
    QString worst;
    const double largest = largestError(result.points, truePositions, lens, &worst);
    QVERIFY2(largest < 0.05, qPrintable(QStringLiteral("%1° at %2").arg(largest).arg(worst)));
}

void tst_CorrelationMatcher::equidistantFisheye_data()
{
    QTest::addColumn<int>("projection");
    QTest::newRow("full frame") << 2;
    QTest::newRow("circular") << 3;
}

void tst_CorrelationMatcher::equidistantFisheye()
{
    // Two neighbours of the top row drawn again as equidistant fisheye
    // pictures of the same width and field of view, from their true angles.
    QFETCH(int, projection);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    Lens fisheye;
    fisheye.projection = projection;
    QVector<Position> recorded, truePositions;
    for (int index : { 1, 2 }) {
        const Position& p = m_recorded[index];
        const QImage photograph(sample(p.name));
        QVERIFY(!photograph.isNull());
        const QString name = p.name + QStringLiteral(".png");
        QVERIFY(reprojected(photograph, m_true[index], fisheye).save(dir.filePath(name)));
        recorded.append({ name, p.yaw, p.pitch, p.roll });
        truePositions << m_true[index];
    }
    PtoProject project;
    QString error;
    QVERIFY2(project.parse(projectText(recorded, fisheye), &error), qPrintable(error));
    const CorrelationMatcher::Result result
        = CorrelationMatcher::match(project, dir.path(), { qMakePair(0, 1) });
    QVERIFY2(result.outcome == CorrelationMatcher::Result::Matched, qPrintable(result.reason));
    QVERIFY2(result.points.size() >= 5, qPrintable(QString::number(result.points.size())));
    QString worst;
    const double largest = largestError(result.points, truePositions, fisheye, &worst);
    QVERIFY2(largest < 0.05, qPrintable(QStringLiteral("%1° at %2").arg(largest).arg(worst)));
}

void tst_CorrelationMatcher::unsupportedProjectionDeclines_data()
{
    QTest::addColumn<int>("projection");
    QTest::addColumn<double>("fov");
    QTest::newRow("panoramic") << 1 << SampleFov;
    QTest::newRow("equirectangular") << 4 << SampleFov;
    QTest::newRow("stereographic") << 10 << SampleFov;
    QTest::newRow("rectilinear of 180°") << 0 << 180.0;
}

void tst_CorrelationMatcher::unsupportedProjectionDeclines()
{
    QFETCH(int, projection);
    QFETCH(double, fov);
    Lens lens;
    lens.projection = projection;
    lens.fov = fov;
    PtoProject project;
    QString error;
    QVERIFY2(project.parse(projectText(m_recorded.mid(0, 2), lens), &error), qPrintable(error));
    QString reason;
    QVERIFY(!CorrelationMatcher::supports(project, 0, &reason));
    QVERIFY(!reason.isEmpty());
    const CorrelationMatcher::Result result
        = CorrelationMatcher::match(project, QStringLiteral(ZPH_SAMPLE_SHOOT), { qMakePair(0, 1) });
    QCOMPARE(result.outcome, CorrelationMatcher::Result::Declined);
    QCOMPARE(result.reason, reason);
    QVERIFY(result.points.isEmpty());

    lens.projection = 0;
    lens.fov = SampleFov;
    QVERIFY(project.parse(projectText(m_recorded.mid(0, 2), lens), &error));
    QVERIFY(CorrelationMatcher::supports(project, 0, &reason));
}

void tst_CorrelationMatcher::unreadablePictureDeclines()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QVERIFY(QFile::copy(sample(m_recorded[0].name), dir.filePath(m_recorded[0].name)));
    QFile broken(dir.filePath(m_recorded[1].name));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("x") == 1);
    broken.close();
    const CorrelationMatcher::Result result
        = CorrelationMatcher::match(m_project, dir.path(), { qMakePair(0, 1) });
    QCOMPARE(result.outcome, CorrelationMatcher::Result::Declined);
    QVERIFY2(result.reason.contains(m_recorded[1].name), qPrintable(result.reason));
}

void tst_CorrelationMatcher::sameResultOnOneAndTwoThreads()
{
    const auto lines = [this](int threads) {
        const CorrelationMatcher::Result result = CorrelationMatcher::match(
            m_project, QStringLiteral(ZPH_SAMPLE_SHOOT), SampleLinks, threads);
        QStringList text;
        for (const PtoProject::ControlPoint& point : result.points)
            text << point.line;
        return text;
    };
    const QStringList one = lines(1);
    QVERIFY(!one.isEmpty());
    QCOMPARE(lines(2), one);
    QCOMPARE(lines(3), one);
}

QTEST_GUILESS_MAIN(tst_CorrelationMatcher)
#include "tst_CorrelationMatcher.moc"
