#include "SampleShoot.h"

#include "ExifTagger.h"
#include "FullFrame.h"
#include "SceneTexture.h"
#include "ViewRenderer.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTextStream>

#include <cmath>

namespace {

constexpr quint32 sceneSeed = 20240601;
constexpr quint32 errorSeed = 17;
/// Exposure offsets of one bracket, in shooting order.
constexpr int bracketEv[SampleShoot::bracket] = { 0, -1, 1 };

/// Horizontal field of view of a full-frame-equivalent focal length on a
/// width × height picture: the picture's diagonal stands for the 36 × 24 mm
/// frame's diagonal.
double horizontalFov(double focal, int width, int height)
{
    const double diagonal = std::hypot(double(width), double(height));
    return 2.0 * std::atan(FullFrame::Diagonal * width / diagonal / (2.0 * focal)) * 180.0 / M_PI;
}

/// Scales the linear light of an sRGB-like picture (gamma 2.2) by 2^ev.
QImage exposed(const QImage& image, int ev)
{
    if (ev == 0)
        return image;
    const double factor = std::pow(2.0, ev);
    int table[256];
    for (int v = 0; v < 256; ++v) {
        const double linear = std::pow(v / 255.0, 2.2) * factor;
        table[v] = qBound(0, int(std::pow(qMin(linear, 1.0), 1.0 / 2.2) * 255.0 + 0.5), 255);
    }
    QImage out = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < out.height(); ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(out.scanLine(y));
        for (int x = 0; x < out.width(); ++x)
            row[x] = qRgb(table[qRed(row[x])], table[qGreen(row[x])], table[qBlue(row[x])]);
    }
    return out;
}

QString degrees(double value)
{
    return QString::number(value, 'f', 1);
}

} // namespace

SampleShoot::SampleShoot()
{
    // Row by row from the top; the upper row left to right, the lower row back
    // from right to left, as the head moves.
    const double pitches[2] = { 15.0, -15.0 };
    const double yaws[5] = { -80.0, -40.0, 0.0, 40.0, 80.0 };
    QRandomGenerator random(errorSeed);
    for (int row = 0; row < 2; ++row) {
        for (int i = 0; i < 5; ++i) {
            const int column = row == 0 ? i : 4 - i;
            Position p;
            p.trueYaw = yaws[column];
            p.truePitch = pitches[row];
            // The first position is where the head was set up: exact. The
            // others carry up to 1.5° of yaw and 1° of pitch error.
            const bool first = m_positions.isEmpty();
            const double yawError = first ? 0.0 : (random.generateDouble() * 3.0 - 1.5);
            const double pitchError = first ? 0.0 : (random.generateDouble() * 2.0 - 1.0);
            p.recordedYaw = std::round((p.trueYaw + yawError) * 10.0) / 10.0;
            p.recordedPitch = std::round((p.truePitch + pitchError) * 10.0) / 10.0;
            m_positions.append(p);
        }
    }
}

bool SampleShoot::write(const QString& folder, const QString& texturePath, QString* error) const
{
    if (!QDir().mkpath(folder)) {
        *error = QStringLiteral("cannot create %1").arg(folder);
        return false;
    }
    const QDir dir(folder);
    const QImage scene = SceneTexture::render(3600, sceneSeed);
    if (!texturePath.isEmpty() && !scene.save(texturePath)) {
        *error = QStringLiteral("cannot write %1").arg(texturePath);
        return false;
    }
    const ViewRenderer renderer(scene);
    const double hfov = horizontalFov(focalLength, imageWidth, imageHeight);

    QFile record(dir.filePath(QStringLiteral("shoot.xml")));
    QFile truth(dir.filePath(QStringLiteral("ground-truth.csv")));
    if (!record.open(QIODevice::WriteOnly | QIODevice::Truncate)
        || !truth.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        *error = QStringLiteral("cannot write the record or the ground truth in %1").arg(folder);
        return false;
    }
    QTextStream xml(&record);
    xml.setCodec("UTF-8");
    QTextStream csv(&truth);
    csv << "# True camera angles of the sample photographs, degrees; yaw grows to the right,\n"
           "# pitch is positive upward. Field of view "
        << QString::number(hfov, 'f', 6) << " degrees across " << imageWidth << " pixels.\n"
        << "image,stack,yaw,pitch,roll\n";

    xml << "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
           "<papywizard version=\"c\">\n"
           "  <header>\n"
           "    <general>\n"
           "      <title>ZPanoHead sample shoot</title>\n"
           "      <gps></gps>\n"
           "      <comment>Rendered from a procedural scene; see ground-truth.csv</comment>\n"
           "    </general>\n"
           "    <camera>\n"
           "      <timeValue>0.5</timeValue>\n"
           "      <bracketing nbPicts=\""
        << bracket
        << "\"/>\n"
           "      <sensor coef=\"1.0\" ratio=\"4:3\"/>\n"
           "    </camera>\n"
           "    <lens type=\"rectilinear\">\n"
           "      <focal>"
        << focalLength
        << ".0</focal>\n"
           "    </lens>\n"
           "    <shooting mode=\"mosaic\">\n"
           "      <headOrientation>up</headOrientation>\n"
           "      <cameraOrientation>landscape</cameraOrientation>\n"
           "      <stabilizationDelay>0.5</stabilizationDelay>\n"
           "    </shooting>\n"
           "  </header>\n"
           "  <shoot>\n";

    // Local time without a zone, so that the texts do not depend on the machine.
    const QDateTime start(QDate(2024, 6, 1), QTime(10, 0, 0), Qt::LocalTime);
    int number = 0;
    for (int stack = 0; stack < m_positions.size(); ++stack) {
        const Position& p = m_positions[stack];
        const QImage view = renderer.render(p.trueYaw, p.truePitch, hfov, imageWidth, imageHeight);
        for (int b = 0; b < bracket; ++b) {
            ++number;
            const QString name = QStringLiteral("IMG_%1.jpg").arg(number, 4, 10, QLatin1Char('0'));
            const QString path = dir.filePath(name);
            if (!exposed(view, bracketEv[b]).save(path, "JPEG", 85)) {
                *error = QStringLiteral("cannot write %1").arg(path);
                return false;
            }
            ExifTagger::Fields exif;
            exif.focalLength = focalLength;
            // 1/125 s at 0 EV; one stop less light is 1/250 s, one more 2/125 s.
            exif.exposureNumerator = bracketEv[b] > 0 ? 2 : 1;
            exif.exposureDenominator = bracketEv[b] < 0 ? 250 : 125;
            exif.shot = start.addSecs(number * 2);
            exif.width = imageWidth;
            exif.height = imageHeight;
            if (!ExifTagger::write(path, exif, error))
                return false;
            xml << "    <pict id=\"" << number << "\" bracket=\"" << (b + 1) << "\">\n"
                << "      <time>" << exif.shot.toString(Qt::TextDate) << "</time>\n"
                << "      <position yaw=\"" << degrees(p.recordedYaw) << "\" pitch=\""
                << degrees(p.recordedPitch) << "\" roll=\"0.0\"/>\n"
                << "    </pict>\n";
            csv << name << ',' << stack << ',' << degrees(p.trueYaw) << ',' << degrees(p.truePitch)
                << ",0.0\n";
        }
    }
    xml << "  </shoot>\n</papywizard>\n";
    xml.flush();
    csv.flush();
    if (record.error() != QFile::NoError || truth.error() != QFile::NoError) {
        *error = QStringLiteral("cannot write the record or the ground truth in %1").arg(folder);
        return false;
    }
    return true;
}
