// The render of bracketed shoots with Hugin's real programs, on tiny shoots
// drawn by the test: two stacks of two exposures, seen through rectilinear
// pictures of 50° across at yaw 0 and 30. The scene holds a bright patch that
// the reference exposure blows out and the darker one keeps.
#include "DescriptionJson.h"
#include "PtoProject.h"
#include "StitchPipeline.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

const int Width = 240;
const int Height = 180;
const double Fov = 50.0;
const double Degree = M_PI / 180.0;

/// A blocky texture of cells 1.5° wide, from 0 to 1.
double cell(double yaw, double pitch)
{
    const auto i = quint32(qint32(std::floor(yaw / 1.5)) + 1000);
    const auto j = quint32(qint32(std::floor(pitch / 1.5)) + 1000);
    quint32 h = i * 73856093u ^ j * 19349663u;
    h ^= h >> 13;
    h *= 0x5bd1e995u;
    h ^= h >> 15;
    return (h % 1000) / 999.0;
}

/// Linear radiance: texture from 0.02 to 0.6, and a patch from 2 to 6 at
/// yaw -6° to 6°, pitch -5° to 5°.
double radiance(double yaw, double pitch)
{
    if (std::fabs(yaw) < 6.0 && std::fabs(pitch) < 5.0)
        return 2.0 + 4.0 * cell(yaw, pitch);
    return 0.02 + 0.58 * cell(yaw, pitch);
}

/// A photograph taken at yaw and pitch (degrees) with the light scaled by
/// exposure, as a camera with gamma 2.2 writes it.
QImage photograph(double yaw, double pitch, double exposure)
{
    QImage image(Width, Height, QImage::Format_RGB32);
    const double focal = Width / 2.0 / std::tan(Fov / 2.0 * Degree);
    const double cp = std::cos(pitch * Degree), sp = std::sin(pitch * Degree);
    const double cy = std::cos(yaw * Degree), sy = std::sin(yaw * Degree);
    for (int y = 0; y < Height; ++y) {
        for (int x = 0; x < Width; ++x) {
            // Camera frame: x right, y up, z ahead; then pitch, then yaw.
            const double vx = x + 0.5 - Width / 2.0, vy = Height / 2.0 - (y + 0.5), vz = focal;
            const double y2 = vy * cp + vz * sp, z2 = -vy * sp + vz * cp;
            const double wx = vx * cy + z2 * sy, wz = -vx * sy + z2 * cy;
            const double lon = std::atan2(wx, wz) / Degree;
            const double lat = std::atan2(y2, std::hypot(wx, wz)) / Degree;
            const double value = std::pow(qMin(1.0, radiance(lon, lat) * exposure), 1.0 / 2.2);
            const int v = qBound(0, int(std::lround(255.0 * value)), 255);
            image.setPixel(x, y, qRgb(v, v, v));
        }
    }
    return image;
}

/// The side of the largest square of pure white (250 and up) in image.
int largestWhiteSquare(const QImage& image)
{
    const int w = image.width();
    QVector<int> previous(w + 1, 0), current(w + 1, 0);
    int best = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < w; ++x) {
            const QRgb p = image.pixel(x, y);
            const bool white
                = qAlpha(p) > 0 && qRed(p) >= 250 && qGreen(p) >= 250 && qBlue(p) >= 250;
            current[x + 1] = white ? 1 + std::min({ previous[x], previous[x + 1], current[x] }) : 0;
            best = std::max(best, current[x + 1]);
        }
        std::swap(previous, current);
    }
    return best;
}

/// The luminance of every covered pixel of a 32-bit float TIFF written with
/// deflate compression and no predictor; empty when the file is not one.
QVector<float> readFloatTiff(const QString& path, QString* why)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *why = QStringLiteral("cannot open");
        return {};
    }
    const QByteArray d = file.readAll();
    if (!d.startsWith("II*")) {
        *why = QStringLiteral("not a little-endian TIFF");
        return {};
    }
    const auto u16 = [&](qint64 at) {
        return at + 2 <= d.size() ? qFromLittleEndian<quint16>(d.constData() + at) : 0;
    };
    const auto u32 = [&](qint64 at) {
        return at + 4 <= d.size() ? qFromLittleEndian<quint32>(d.constData() + at) : 0;
    };
    const quint32 ifd = u32(4);
    const int count = u16(ifd);
    QMap<int, QVector<quint32>> tags;
    for (int k = 0; k < count; ++k) {
        const qint64 e = ifd + 2 + 12 * k;
        const int tag = u16(e), type = u16(e + 2);
        const quint32 n = u32(e + 4);
        const int size = type == 3 ? 2 : 4;
        const qint64 at = n * size <= 4 ? e + 8 : u32(e + 8);
        QVector<quint32> values;
        for (quint32 m = 0; m < n && m < 100000; ++m)
            values << (size == 2 ? u16(at + 2 * m) : u32(at + 4 * m));
        tags.insert(tag, values);
    }
    const int width = int(tags.value(256).value(0)), height = int(tags.value(257).value(0));
    const int samples = int(tags.value(277).value(0, 1));
    if (tags.value(258).value(0) != 32 || tags.value(339).value(0) != 3) {
        *why = QStringLiteral("not 32-bit float");
        return {};
    }
    if (tags.value(259).value(0) != 8 && tags.value(259).value(0) != 32946) {
        *why = QStringLiteral("compression %1, not deflate").arg(tags.value(259).value(0));
        return {};
    }
    if (tags.value(317).value(0, 1) != 1 || tags.value(284).value(0, 1) != 1) {
        *why = QStringLiteral("a predictor or separate planes");
        return {};
    }
    QByteArray pixels;
    const QVector<quint32> offsets = tags.value(273), lengths = tags.value(279);
    for (int k = 0; k < offsets.size() && k < lengths.size(); ++k) {
        QByteArray chunk(4, 0);
        // qUncompress wants the expected size first, big-endian; an upper bound does.
        qToBigEndian<quint32>(quint32(width) * height * samples * 4, chunk.data());
        chunk += d.mid(int(offsets[k]), int(lengths[k]));
        pixels += qUncompress(chunk);
    }
    if (pixels.size() < qint64(width) * height * samples * 4 || samples < 3) {
        *why = QStringLiteral("%1 bytes of pixels").arg(pixels.size());
        return {};
    }
    QVector<float> luminance;
    const float* f = reinterpret_cast<const float*>(pixels.constData());
    for (qint64 i = 0; i < qint64(width) * height; ++i) {
        const float* p = f + i * samples;
        if (samples >= 4 && !(p[3] > 0.0f))
            continue;
        luminance << (p[0] + p[1] + p[2]) / 3.0f;
    }
    return luminance;
}

double percentile(QVector<double> values, double fraction)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0.0 : values[int(fraction * (values.size() - 1))];
}

struct Shot
{
    QString name;
    int stack;
    /// Where the photograph was taken.
    double yaw, pitch;
    /// Where the head recorded it.
    double recordedYaw, recordedPitch;
    double exposure;
};

} // namespace

class tst_StitchRender : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fusedShowsTheDarkerExposure();
    void hdrHoldsMoreThanAnyExposure();
    void stackLinking_data();
    void stackLinking();

private:
    /// Draws the shots, writes project and description into a new folder;
    /// the project's path.
    QString makeShoot(const QVector<Shot>& shots, const StructuredPanoramaProperties& options);
    QVector<Shot> brackets(double shiftYaw, double shiftPitch, double darker) const;

    QTemporaryDir m_dir;
    int m_folders = 0;
};

void tst_StitchRender::initTestCase()
{
    QVERIFY(m_dir.isValid());
    for (const QString& tool : StitchPipeline::programs())
        QVERIFY2(!QStandardPaths::findExecutable(tool).isEmpty(), qPrintable(tool));
}

QVector<Shot> tst_StitchRender::brackets(double shiftYaw, double shiftPitch, double darker) const
{
    // The darker exposure of each stack moved by the shift from its reference.
    return {
        { QStringLiteral("a1.png"), 0, 0.0, 0.0, 0.0, 0.0, 1.0 },
        { QStringLiteral("a2.png"), 0, shiftYaw, shiftPitch, 0.0, 0.0, darker },
        { QStringLiteral("b1.png"), 1, 30.0, 0.0, 30.0, 0.0, 1.0 },
        { QStringLiteral("b2.png"), 1, 30.0 + shiftYaw, shiftPitch, 30.0, 0.0, darker },
    };
}

QString tst_StitchRender::makeShoot(
    const QVector<Shot>& shots, const StructuredPanoramaProperties& options)
{
    const QDir folder(m_dir.filePath(QStringLiteral("shoot-%1").arg(++m_folders)));
    if (!QDir().mkpath(folder.path()))
        return QString();
    StructuredPanoramaProperties panorama = options;
    panorama.m_stacks.clear();
    QStringList lines = { QStringLiteral("p f2 w1440 h720 v360 E12 R0 n\"TIFF_m c:LZW r:CROP\""),
        QStringLiteral("m i0") };
    QStringList variables;
    for (int i = 0; i < shots.size(); ++i) {
        const Shot& shot = shots[i];
        const QString path = folder.filePath(shot.name);
        if (!photograph(shot.yaw, shot.pitch, shot.exposure).save(path))
            return QString();
        if (panorama.m_stacks.size() <= shot.stack)
            panorama.m_stacks.resize(shot.stack + 1);
        panorama.m_stacks[shot.stack] << path;
        const double ev = 12.0 - std::log2(shot.exposure);
        lines << QStringLiteral("i w%1 h%2 f0 v%3 Ra0 Rb0 Rc0 Rd0 Re0 Eev%4 Er1 Eb1 r0 p%5 y%6 "
                                "TrX0 TrY0 TrZ0 Tpy0 Tpp0 j%7 a0 b0 c0 d0 e0 g0 t0 Va1 Vb0 Vc0 "
                                "Vd0 Vx0 Vy0 Vm5 n\"%8\"")
                     .arg(Width)
                     .arg(Height)
                     .arg(Fov)
                     .arg(ev)
                     .arg(shot.recordedPitch)
                     .arg(shot.recordedYaw)
                     .arg(shot.stack)
                     .arg(shot.name);
        if (i > 0)
            variables << QStringLiteral("v r%1 p%1 y%1").arg(i);
    }
    lines << variables << QStringLiteral("v");
    lines.prepend(QStringLiteral("# written by ZPanoHead: %1 stacks, %2 images, 1 authorised links")
                      .arg(panorama.m_stacks.size())
                      .arg(shots.size()));
    AuthorizedLink link;
    link.m_direction = 2;
    link.m_stackIndices = { 0, 1 };
    panorama.m_links = { link };
    QFile project(folder.filePath(QStringLiteral("shoot.pto")));
    if (!project.open(QIODevice::WriteOnly))
        return QString();
    project.write((lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8());
    project.close();
    QString error;
    if (!DescriptionJson::write(panorama, folder.filePath(QStringLiteral("shoot.json")), &error))
        return QString();
    return project.fileName();
}

void tst_StitchRender::fusedShowsTheDarkerExposure()
{
    StructuredPanoramaProperties options;
    options.m_autoDetection = false;
    const QString project = makeShoot(brackets(0.0, 0.0, 1.0 / 8.0), options);
    QVERIFY(!project.isEmpty());
    // The reference exposure blows the patch out into a flat white block.
    const QImage reference(QFileInfo(project).dir().filePath(QStringLiteral("a1.png")));
    QVERIFY(largestWhiteSquare(reference) > 30);

    StitchPipeline::Options stitch;
    stitch.project = project;
    stitch.output = QFileInfo(project).dir().filePath(QStringLiteral("fused.jpg"));
    stitch.timeoutSeconds = 60;
    StitchPipeline pipeline(stitch);
    const StitchPipeline::Result result = pipeline.run();
    QVERIFY2(result.succeeded(), qPrintable(result.error));
    QVERIFY(!result.hdr);
    const QImage fused(result.panorama);
    QVERIFY(!fused.isNull());
    QCOMPARE(fused.size(), result.panoramaSize);
    // The darker exposure's cells show through: no white block larger than
    // a few pixels is left.
    const int white = largestWhiteSquare(fused);
    QVERIFY2(white <= 4, qPrintable(QString::number(white)));
}

void tst_StitchRender::hdrHoldsMoreThanAnyExposure()
{
    StructuredPanoramaProperties options;
    options.m_autoDetection = false;
    const QVector<Shot> shots = brackets(0.0, 0.0, 1.0 / 8.0);
    const QString project = makeShoot(shots, options);
    QVERIFY(!project.isEmpty());
    const QDir folder = QFileInfo(project).dir();

    StitchPipeline::Options stitch;
    stitch.project = project;
    stitch.output = folder.filePath(QStringLiteral("hdr.tif"));
    stitch.mode = StitchPipeline::Output::Hdr;
    stitch.timeoutSeconds = 60;
    StitchPipeline pipeline(stitch);
    const StitchPipeline::Result result = pipeline.run();
    QVERIFY2(result.succeeded(), qPrintable(result.error));
    QVERIFY(result.hdr);
    QCOMPARE(result.preview, folder.filePath(QStringLiteral("hdr.jpg")));
    QVERIFY(!QImage(result.preview).isNull());

    QString why;
    const QVector<float> luminance = readFloatTiff(result.panorama, &why);
    QVERIFY2(!luminance.isEmpty(), qPrintable(why));
    QVector<double> values;
    for (float v : luminance) {
        QVERIFY(std::isfinite(v));
        values << v;
    }
    const double dark = percentile(values, 0.01), bright = percentile(values, 0.99);
    QVERIFY2(dark > 0, qPrintable(QString::number(dark)));
    const double range = bright / dark;

    // Each exposure's range, in the values its file holds.
    double widest = 0;
    for (const Shot& shot : shots) {
        const QImage image(folder.filePath(shot.name));
        QVector<double> grey;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                grey << qGray(image.pixel(x, y));
        }
        const double low = qMax(1.0, percentile(grey, 0.01));
        widest = qMax(widest, percentile(grey, 0.99) / low);
    }
    QVERIFY2(range > 2.0 * widest,
        qPrintable(QStringLiteral("panorama %1, widest exposure %2").arg(range).arg(widest)));
}

void tst_StitchRender::stackLinking_data()
{
    QTest::addColumn<bool>("described");
    QTest::addColumn<int>("linking");
    QTest::addColumn<double>("expectedYaw");
    QTest::addColumn<double>("expectedPitch");
    // The darker exposures were shot 0.6° right of and 0.4° below their
    // references (about 3 and 2 pixels); the head recorded one position.
    QTest::newRow("control points inside stacks") << true << 1 << 0.6 << -0.4;
    QTest::newRow("hard links") << true << 0 << 0.0 << 0.0;
    // Without the description every picture is a stack of its own, and
    // points are looked for between every pair.
    QTest::newRow("no description") << false << 1 << 0.6 << -0.4;
}

void tst_StitchRender::stackLinking()
{
    QFETCH(bool, described);
    QFETCH(int, linking);
    QFETCH(double, expectedYaw);
    QFETCH(double, expectedPitch);
    StructuredPanoramaProperties options;
    options.m_autoDetection = true;
    options.m_stackLinking = linking;
    QVector<Shot> shots = brackets(0.6, -0.4, 0.5);
    const QString project = makeShoot(shots, options);
    QVERIFY(!project.isEmpty());
    if (linking == 0) {
        // Hard links: the project links every exposure to its reference.
        QFile file(project);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString text = QString::fromUtf8(file.readAll());
        file.close();
        text.replace(QRegularExpression(QStringLiteral("(i .*) r0 p([-0-9.]+) y([-0-9.]+) (.* "
                                                       "n\"a2.png\")")),
            QStringLiteral("\\1 r=0 p=0 y=0 \\4"));
        text.replace(QRegularExpression(QStringLiteral("(i .*) r0 p([-0-9.]+) y([-0-9.]+) (.* "
                                                       "n\"b2.png\")")),
            QStringLiteral("\\1 r=2 p=2 y=2 \\4"));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text.toUtf8());
        file.close();
    }

    if (!described)
        QVERIFY(QFile::remove(QFileInfo(project).dir().filePath(QStringLiteral("shoot.json"))));

    StitchPipeline::Options stitch;
    stitch.project = project;
    stitch.timeoutSeconds = 120;
    StitchPipeline pipeline(stitch);
    const StitchPipeline::Result result = pipeline.run();
    QVERIFY2(result.succeeded(), qPrintable(result.error));
    QCOMPARE(result.note.isEmpty(), described);
    PtoProject final;
    QString error;
    QVERIFY2(final.read(result.stitchedProject, &error), qPrintable(error));
    QCOMPARE(final.imageCount(), 4);
    // Within a pixel of the true shift, relative to the stack's reference.
    const double pixel = Fov / Width;
    for (int reference : { 0, 2 }) {
        bool ok[4] = {};
        const double yaw = final.number(reference + 1, QStringLiteral("y"), &ok[0])
            - final.number(reference, QStringLiteral("y"), &ok[1]);
        const double pitch = final.number(reference + 1, QStringLiteral("p"), &ok[2])
            - final.number(reference, QStringLiteral("p"), &ok[3]);
        QVERIFY(ok[0] && ok[1] && ok[2] && ok[3]);
        QVERIFY2(std::fabs(yaw - expectedYaw) < pixel && std::fabs(pitch - expectedPitch) < pixel,
            qPrintable(QStringLiteral("image %1 moved by %2, %3 from its reference")
                           .arg(reference + 1)
                           .arg(yaw)
                           .arg(pitch)));
    }
}

QTEST_GUILESS_MAIN(tst_StitchRender)
#include "tst_StitchRender.moc"
