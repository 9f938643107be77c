#include "HuginProjectWriter.h"

#include "FieldOfView.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>
#include <QStringList>

#include <cmath>

Q_LOGGING_CATEGORY(zphExport, "zph.export")

namespace {

constexpr double Pi = 3.141592653589793;
constexpr int AngleDecimals = 4;

/// The lens variables that all images of one lens share, with the value the
/// lens's first image holds. The vignetting model Va..Vy starts at "no
/// vignetting" (Va1); Ra..Re is the camera response (EMoR) at its default.
const char* const LensVariables[]
    = { "a", "b", "c", "d", "e", "g", "t", "Va", "Vb", "Vc", "Vd", "Vx", "Vy" };
const char* const ResponseVariables[] = { "Ra", "Rb", "Rc", "Rd", "Re" };
const char* const PositionVariables[] = { "r", "p", "y", "TrX", "TrY", "TrZ", "Tpy", "Tpp" };

QString imageName(const QString& path, const QDir& folder)
{
    const QString relative = folder.relativeFilePath(QFileInfo(path).absoluteFilePath());
    return QDir::fromNativeSeparators(relative);
}

double normalisedDegrees(double degrees)
{
    double d = std::fmod(degrees, 360.0);
    if (d > 180.0)
        d -= 360.0;
    else if (d <= -180.0)
        d += 360.0;
    return d;
}

} // namespace

HuginProjectWriter::HuginProjectWriter(const ExportInput& input) : m_input(input) { }

QString HuginProjectWriter::number(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    if (text == QLatin1String("-0"))
        text = QStringLiteral("0");
    return text;
}

QVector<StackPosition> HuginProjectWriter::recordedPositions(
    const StructuredPanoramaProperties& panorama, int shotsPerStack)
{
    const auto degrees = [](float radians) { return double(radians) * 180.0 / Pi; };
    QVector<StackPosition> positions(panorama.m_stacks.size());
    for (int k = 0; k < positions.size(); ++k) {
        const qint64 shot = qint64(k) * qMax(1, shotsPerStack);
        StackPosition& p = positions[k];
        if (shot < panorama.m_yaw.size())
            p.yaw = degrees(panorama.m_yaw[int(shot)]);
        if (shot < panorama.m_pitch.size())
            p.pitch = degrees(panorama.m_pitch[int(shot)]);
        if (shot < panorama.m_roll.size())
            p.roll = degrees(panorama.m_roll[int(shot)]);
    }
    return positions;
}

bool HuginProjectWriter::text(const QString& projectFolder, QString* project, QString* error) const
{
    const auto fail = [error](const QString& reason) {
        qCWarning(zphExport) << "Hugin project:" << reason;
        if (error)
            *error = reason;
        return false;
    };
    const StructuredPanoramaProperties& panorama = m_input.panorama;
    if (panorama.m_stacks.isEmpty())
        return fail(QStringLiteral("the panorama has no stack"));
    if (m_input.positions.size() < panorama.m_stacks.size())
        return fail(QStringLiteral("%1 stacks but %2 positions")
                        .arg(panorama.m_stacks.size())
                        .arg(m_input.positions.size()));
    if (!(m_input.focalLength > 0.0) || !std::isfinite(m_input.focalLength))
        return fail(QStringLiteral("the focal length %1 is not positive").arg(m_input.focalLength));
    const LensModel lens = m_input.lens == LensFisheye ? LensFisheye : LensStandard;
    const QDir folder(projectFolder);

    QStringList images;
    double exposureSum = 0.0;
    int exposureCount = 0;
    double panoramaWidth = 0.0;
    // First image index of each pixel size: the images of that lens link to it.
    QHash<QPair<int, int>, int> lensOwner;
    int index = 0;
    for (int k = 0; k < panorama.m_stacks.size(); ++k) {
        const QStringList& stack = panorama.m_stacks[k];
        if (stack.isEmpty())
            return fail(QStringLiteral("stack %1 is empty").arg(k));
        const StackPosition& position = m_input.positions[k];
        if (!std::isfinite(position.yaw) || !std::isfinite(position.pitch)
            || !std::isfinite(position.roll))
            return fail(QStringLiteral("stack %1 has no valid position").arg(k));
        const int reference = index;
        for (int s = 0; s < stack.size(); ++s, ++index) {
            const QString& path = stack[s];
            const auto info = m_input.images.constFind(path);
            if (info == m_input.images.constEnd())
                return fail(QStringLiteral("nothing is known of the photograph %1").arg(path));
            const int w = info->pixelSize.width();
            const int h = info->pixelSize.height();
            if (w <= 0 || h <= 0)
                return fail(QStringLiteral("the size of the photograph %1 is unknown").arg(path));
            const QString name = imageName(path, folder);
            if (name.contains(QLatin1Char('"')))
                return fail(QStringLiteral("the path %1 holds a double quote").arg(path));

            QStringList tokens;
            tokens << QStringLiteral("i") << QStringLiteral("w%1").arg(w)
                   << QStringLiteral("h%1").arg(h)
                   << QStringLiteral("f%1").arg(lens == LensFisheye ? 3 : 0);
            const QPair<int, int> size(w, h);
            const auto owner = lensOwner.constFind(size);
            const bool ownsLens = owner == lensOwner.constEnd();
            if (ownsLens) {
                lensOwner.insert(size, index);
                const double hfov = FieldOfView::horizontal(m_input.focalLength, lens, w, h);
                tokens << QStringLiteral("v") + number(hfov);
                for (const char* v : ResponseVariables)
                    tokens << QLatin1String(v) + QStringLiteral("0");
                if (index == 0)
                    panoramaWidth = 360.0 / hfov * w;
            } else {
                tokens << QStringLiteral("v=%1").arg(*owner);
                for (const char* v : ResponseVariables)
                    tokens << QLatin1String(v) + QStringLiteral("=%1").arg(*owner);
            }
            double eev = 0.0;
            if (info->hasExposure && std::isfinite(info->exposureValue)) {
                eev = info->exposureValue;
                if (s == 0) {
                    exposureSum += eev;
                    ++exposureCount;
                }
            }
            tokens << QStringLiteral("Eev") + number(eev) << QStringLiteral("Er1")
                   << QStringLiteral("Eb1");
            const bool linked = s > 0 && panorama.m_stackLinking == 0;
            if (linked) {
                for (const char* v : PositionVariables)
                    tokens << QLatin1String(v) + QStringLiteral("=%1").arg(reference);
            } else {
                const double roll = normalisedDegrees(position.roll + info->orientationRoll());
                tokens << QStringLiteral("r") + number(roll, AngleDecimals)
                       << QStringLiteral("p") + number(position.pitch, AngleDecimals)
                       << QStringLiteral("y")
                        + number(normalisedDegrees(position.yaw), AngleDecimals)
                       << QStringLiteral("TrX0") << QStringLiteral("TrY0") << QStringLiteral("TrZ0")
                       << QStringLiteral("Tpy0") << QStringLiteral("Tpp0");
            }
            tokens << (s == 0 ? QStringLiteral("j%1").arg(k)
                              : QStringLiteral("j=%1").arg(reference));
            for (const char* v : LensVariables) {
                if (ownsLens)
                    tokens << QLatin1String(v) + QLatin1String(qstrcmp(v, "Va") == 0 ? "1" : "0");
                else
                    tokens << QLatin1String(v) + QStringLiteral("=%1").arg(*owner);
            }
            tokens << QStringLiteral("Vm5") << QStringLiteral("n\"%1\"").arg(name);
            images << tokens.join(QLatin1Char(' '));
        }
    }

    // An equirectangular canvas at about the pictures' own resolution; the
    // stitch chooses the final projection and size.
    int width = int(std::lround(panoramaWidth / 2.0)) * 2;
    width = qBound(2, width, 100000);
    const double exposure = exposureCount > 0 ? exposureSum / exposureCount : 0.0;

    QStringList lines;
    lines << QStringLiteral("# hugin project file") << QStringLiteral("#hugin_ptoversion 2")
          << QStringLiteral("# written by ZPanoHead: %1 stacks, %2 images, %3 authorised links")
                 .arg(panorama.m_stacks.size())
                 .arg(index)
                 .arg(panorama.m_links.size())
          << QStringLiteral("p f2 w%1 h%2 v360 E%3 R0 n\"TIFF_m c:LZW r:CROP\"")
                 .arg(width)
                 .arg(width / 2)
                 .arg(number(exposure))
          << QStringLiteral("m i0") << QString();
    lines << images << QString();
    // Optimise the position of every stack's first image but the first one,
    // which anchors the panorama.
    index = 0;
    for (int k = 0; k < panorama.m_stacks.size(); ++k) {
        if (k > 0)
            lines << QStringLiteral("v r%1 p%1 y%1").arg(index);
        index += panorama.m_stacks[k].size();
    }
    lines << QStringLiteral("v") << QString();
    *project = lines.join(QLatin1Char('\n'));
    return true;
}

bool HuginProjectWriter::write(const QString& path, QString* error) const
{
    QString project;
    if (!text(QFileInfo(path).absolutePath(), &project, error))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text) || file.write(project.toUtf8()) < 0
        || !file.commit()) {
        if (error)
            *error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        qCWarning(zphExport) << "cannot write" << path << file.errorString();
        return false;
    }
    return true;
}
