#include "ClaussToSPP.h"

#include "FullFrame.h"
#include "ZIImageDef.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QRegExp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

Q_LOGGING_CATEGORY(lcClauss, "zph.converters.clauss")

constexpr double kPi = 3.141592653589793;
/// Two photos are linked when their angular distance times this factor is
/// below the half diagonal field of view of either of them.
constexpr float kLinkFactor = 0.7f;
/// Bytes read from a script at a time: at most kReadChunk, at least
/// kSmallestChunk (what is left of a file that is still growing may be 0).
constexpr qint64 kReadChunk = 1 << 20;
constexpr qint64 kSmallestChunk = 4096;
/// A script holds a few dozen bytes per shot; one larger than this before its
/// first NUL byte is not a script, and reading it whole would take gigabytes.
constexpr int kMaxScriptBytes = 64 << 20;

/// Degrees as stored in a shot to the record's radians.
float toRadians(float degrees)
{
    return float(double(degrees) * kPi / 180.0);
}

/// Half the diagonal angle of view, radians, of a 36 x 24 mm frame behind a
/// lens of focal millimetres. A missing definition never qualifies a link.
float halfDiagonal(const ZIImageDef* def)
{
    if (!def)
        return std::numeric_limits<float>::quiet_NaN();
    const float twice = 2.0f * def->FocalLength();
    return float(std::atan(FullFrame::Diagonal / double(twice)));
}

/// A dot product of two viewing directions below the returned value means
/// an angle too wide for any half diagonal up to widestHalf: such a pair
/// cannot be linked. The margin (1e-6 rad on the angle, 1e-9 on the cosine)
/// lies far above the rounding of cos and acos, so the filter never drops a
/// pair that the exact test keeps.
double smallestLinkableDot(float widestHalf)
{
    if (!(widestHalf > 0.0f))
        return std::numeric_limits<double>::infinity(); // nothing can qualify
    const double limit = double(widestHalf) / double(kLinkFactor) + 1e-6;
    if (!(limit < kPi))
        return -std::numeric_limits<double>::infinity(); // every angle can qualify
    return std::cos(limit) - 1e-9;
}

} // namespace

ClaussToSPP::ClaussToSPP()
{
    m_flag2 = false;
    m_overlap = 25.0;
    m_useRecordedLocation = false;
    m_useShootData = true;
}

bool ClaussToSPP::parse(const QString& fileName)
{
    m_shots.clear();

    // Only a regular file can be a script: a pipe or a device could block the
    // opening or never end.
    if (!QFileInfo(fileName).isFile()) {
        qCWarning(lcClauss) << "no script file at" << fileName;
        return false;
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qCWarning(lcClauss) << "cannot open script" << fileName << file.errorString();
        return false;
    }
    // The script is UTF-8 text; it ends at the first NUL byte, if any, so
    // reading stops there. Chunks are no larger than what is left of the
    // file, so a small script costs a small buffer.
    QByteArray bytes;
    int nul = -1;
    while (nul < 0 && !file.atEnd()) {
        const int from = bytes.size();
        const QByteArray chunk
            = file.read(qBound<qint64>(kSmallestChunk, file.bytesAvailable(), kReadChunk));
        if (chunk.isEmpty())
            break;
        bytes.append(chunk);
        nul = bytes.indexOf('\0', from);
        if (nul < 0 && bytes.size() > kMaxScriptBytes) {
            qCWarning(lcClauss) << fileName << "is too large for a script:" << file.size();
            return false;
        }
    }
    file.close();
    return parseScript(bytes, fileName);
}

bool ClaussToSPP::parseScript(const QByteArray& bytes, const QString& fileName)
{
    m_shots.clear();
    const int nul = bytes.indexOf('\0');
    const QString text = QString::fromUtf8(bytes.constData(), nul < 0 ? bytes.size() : nul);

    // Capture 1 is the command, capture 2 its value: both runs of letters,
    // digits, underscores and hyphens, so a decimal point ends a value and a
    // blank before the command or around "=" leaves it empty.
    QRegExp line(QStringLiteral("([\\w\\d-]*)=?([\\w\\d-]*)"), Qt::CaseSensitive, QRegExp::RegExp);
    const QString shoot = QStringLiteral("op_shoot");
    const QString vAngle = QStringLiteral("op_v-angle");
    const QString hAngle = QStringLiteral("op_h-angle");
    const QString prefix = QStringLiteral("op_");

    float h = 0.0f;
    float v = 0.0f;
    qint32 n = 0;
    bool ok = true;
    int lineNumber = 0;
    const int size = text.size();
    for (int start = 0; start < size;) {
        int end = text.indexOf(QLatin1Char('\n'), start);
        if (end < 0)
            end = size;
        const int from = start;
        const int length = end - start;
        start = end + 1;
        ++lineNumber;
        // Every command starts with "op_": no other line can match one.
        if (!QStringRef(&text, from, length).startsWith(prefix))
            continue;
        line.indexIn(text.mid(from, length), 0);

        const QString command = line.cap(1);
        if (command == shoot) {
            ShootData shot;
            shot.m_yaw = h;
            shot.m_pitch = v;
            shot.m_roll = 0.0f;
            shot.m_id = n++;
            m_shots.append(shot);
        } else if (command == vAngle || command == hAngle) {
            bool converted = false;
            float value = line.cap(2).toFloat(&converted);
            if (!converted) {
                // Also for a value out of float range: a bad angle counts as 0.
                value = 0.0f;
                ok = false;
                qCWarning(lcClauss) << fileName << "line" << lineNumber << ": angle"
                                    << line.cap(2).left(32) << "is not a number";
            }
            (command == vAngle ? v : h) = value;
        }
    }
    return ok;
}

void ClaussToSPP::generateSPP(QStringList& files, QList<ZIImageDef*> imageDefs)
{
    m_stacks.reserve(m_stacks.size() + files.size());
    for (const QString& path : qAsConst(files))
        m_stacks.append(QStringList(path));

    m_yaw.reserve(m_yaw.size() + m_shots.size());
    m_pitch.reserve(m_pitch.size() + m_shots.size());
    for (const ShootData& shot : qAsConst(m_shots)) {
        m_yaw.append(toRadians(shot.m_yaw));
        m_pitch.append(toRadians(shot.m_pitch));
    }

    // Links: every pair i < j of photos, in that order. Each photo's viewing
    // direction and half diagonal are computed once; the pair test itself is
    // acos of the unclamped dot product (so coincident shots whose dot product
    // rounds above 1 give NaN and stay unlinked) against both half diagonals.
    const int count = std::min({ files.size(), m_shots.size(), imageDefs.size() });
    if (count < 2)
        return;
    std::vector<double> xs(count), ys(count), zs(count);
    std::vector<float> half(count);
    for (int k = 0; k < count; ++k) {
        const double yaw = toRadians(m_shots.at(k).m_yaw);
        const double pitch = toRadians(m_shots.at(k).m_pitch);
        xs[k] = std::cos(pitch) * std::cos(yaw);
        ys[k] = std::cos(pitch) * std::sin(yaw);
        zs[k] = -std::sin(pitch);
        half[k] = halfDiagonal(imageDefs.at(k));
    }
    // widest[k]: the largest half diagonal among photos k and after (NaN never
    // qualifies and is passed over), bounding what any pair (k, j > k) can reach.
    std::vector<float> widest(count + 1, -std::numeric_limits<float>::infinity());
    for (int k = count - 1; k >= 0; --k)
        widest[k] = half[k] > widest[k + 1] ? half[k] : widest[k + 1];

    const double factor = double(kLinkFactor);
    for (int i = 0; i < count - 1; ++i) {
        const double xi = xs[i];
        const double yi = ys[i];
        const double zi = zs[i];
        const double halfI = double(half[i]);
        const double floorDot = smallestLinkableDot(widest[i]);
        for (int j = i + 1; j < count; ++j) {
            const double dot = xi * xs[j] + yi * ys[j] + zi * zs[j];
            if (dot < floorDot)
                continue;
            const double threshold = std::acos(dot) * factor;
            if (halfI > threshold || double(half[j]) > threshold) {
                AuthorizedLink link;
                link.m_direction = 0;
                link.m_stackIndices = { i, j };
                m_links.append(link);
            }
        }
    }
}
