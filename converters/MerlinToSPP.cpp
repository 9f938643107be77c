#include "MerlinToSPP.h"

#include "FullFrame.h"

#include <QBuffer>
#include <QDomDocument>
#include <QDomElement>
#include <QFile>
#include <QLoggingCategory>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// Off below warnings by default: the reader reports failure by its result and
// the page decides what the user sees; the reasons are there for debugging.
Q_LOGGING_CATEGORY(lcMerlin, "zpanohead.converters.merlin", QtWarningMsg)

constexpr double kPi = 3.141592653589793;
/// Used to wrap yaw differences; single precision on purpose.
constexpr float kTwoPiF = 6.2831855f;
/// Share of the half diagonal field of view two shot centres may be apart.
/// Single precision on purpose: it widens to 0.6499999761581421.
constexpr float kLinkFactor = 0.65f;

/// A record of 10,000 shots is about 1.5 MB. Anything far larger is not a
/// record; refusing it up front bounds the memory the document tree can take
/// (a tree costs tens of bytes per byte of tiny elements).
constexpr qint64 kMaxRecordBytes = 16 * 1024 * 1024;

/// Deepest nesting of elements a record may have; a record has five levels.
constexpr int kMaxDepth = 256;

/// Slack, in radians, that keeps the link pre-filters conservative: far above
/// the rounding error of the distance (about 1e-8 at worst, near 0 and pi),
/// far below any spacing that matters.
constexpr double kFilterSlack = 1e-6;

float toRadians(float degrees)
{
    return float(double(degrees) * kPi / 180.0);
}

/// The number in text, or fallback when it does not convert (overflow included).
double toNumber(const QString& text, double fallback)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok ? value : fallback;
}

qint32 toInteger(const QString& text)
{
    return text.toInt(nullptr, 10);
}

/// Reads the document as a stream, before the document tree is built. False
/// when the document declares entities, when the prolog is not well-formed,
/// or when elements nest deeper than kMaxDepth.
///
/// The document tree expands internal entities itself, capped only per
/// entity (4096 characters): a few hundred kilobytes referring to one large
/// entity expand to gigabytes. A head's record never declares entities, so
/// any document type declaration that declares one is refused, whether its
/// entities refer to one another or not. External entities are never fetched.
///
/// The tree's parser recurses once per level of nesting, so a document
/// nested some ten thousand levels deep overflows the stack; a record is
/// five levels deep. Other errors after the root element are left to the
/// tree's parser, which decides what is well-formed.
bool isSafeDocument(QIODevice* device)
{
    QXmlStreamReader reader(device);
    int depth = 0;
    bool rootSeen = false;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            if (!reader.entityDeclarations().isEmpty()
                || reader.text().contains(QLatin1String("<!ENTITY"))) {
                qCDebug(lcMerlin) << "document type declares entities; refused";
                return false;
            }
            break;
        case QXmlStreamReader::StartElement:
            rootSeen = true;
            if (++depth > kMaxDepth) {
                qCDebug(lcMerlin) << "elements nested deeper than" << kMaxDepth << "; refused";
                return false;
            }
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::Invalid:
            if (rootSeen)
                return true;
            break;
        default:
            break;
        }
    }
    if (!rootSeen)
        qCDebug(lcMerlin) << "no root element:" << reader.errorString();
    return rootSeen;
}

/// Trimmed text of the first child element called name, or a null string.
QString childText(const QDomElement& parent, const QString& name, bool* found = nullptr)
{
    const QDomElement child = parent.firstChildElement(name);
    if (found)
        *found = !child.isNull();
    return child.isNull() ? QString() : child.text().trimmed();
}

} // namespace

MerlinToSPP::MerlinToSPP()
{
    // The record defaults of a converter that fills angles, roll, focal length
    // and lens from recorded shots (the members' own initialisers agree).
    m_useShootData = true;
    m_flag2 = true;
    m_useRecordedLocation = true;
    m_bracketCount = 1;
    m_overlap = 80.0;
    m_lensModel = LensUnknown;
    m_indexA = -1;
    m_outputMode = -1;
}

bool MerlinToSPP::parse(const QString& fileName)
{
    clearRecord();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qCDebug(lcMerlin) << "cannot open" << fileName << file.errorString();
        return false;
    }
    if (file.size() > kMaxRecordBytes) {
        qCDebug(lcMerlin) << fileName << "is too large for a record:" << file.size();
        return false;
    }
    return readRecord(&file, fileName);
}

bool MerlinToSPP::parseRecord(const QByteArray& bytes)
{
    clearRecord();
    if (bytes.size() > kMaxRecordBytes) {
        qCDebug(lcMerlin) << "a record of" << bytes.size() << "bytes is too large";
        return false;
    }
    QBuffer buffer;
    buffer.setData(bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return false;
    return readRecord(&buffer, QStringLiteral("the record"));
}

void MerlinToSPP::clearRecord()
{
    m_shoots.clear();
    m_title.clear();
    m_gps.clear();
    m_comment.clear();
    m_sensorCoef = 1.0;
    m_nbPicts = -1;
    m_xmlFocal = -1.0;
    m_xmlLensType = LensStandard;
    m_portrait = false;
}

bool MerlinToSPP::readRecord(QIODevice* device, const QString& name)
{
    if (!isSafeDocument(device) || !device->reset())
        return false;

    QDomDocument document;
    const bool wellFormed = document.setContent(device, false);
    device->close();
    if (!wellFormed) {
        qCDebug(lcMerlin) << name << "is not well-formed XML";
        return false;
    }

    const QDomElement root = document.documentElement();
    readShots(root.firstChildElement(QStringLiteral("shoot")));
    const QDomElement header = root.firstChildElement(QStringLiteral("header"));
    if (!header.isNull())
        readHeader(header);
    return true;
}

void MerlinToSPP::readShots(const QDomElement& shoot)
{
    const QString pictName = QStringLiteral("pict");
    const QString positionName = QStringLiteral("position");
    const QString timeName = QStringLiteral("time");
    const QString idName = QStringLiteral("id");
    const QString bracketName = QStringLiteral("bracket");
    const QString yawName = QStringLiteral("yaw");
    const QString pitchName = QStringLiteral("pitch");

    for (QDomElement pict = shoot.firstChildElement(pictName); !pict.isNull();
         pict = pict.nextSiblingElement(pictName)) {
        ShootData shot;
        shot.m_id = toInteger(pict.attribute(idName));
        shot.m_bracket = toInteger(pict.attribute(bracketName));
        const QDomElement position = pict.firstChildElement(positionName);
        if (!position.isNull()) {
            shot.m_yaw = float(toNumber(position.attribute(yawName), 0.0));
            shot.m_pitch = float(toNumber(position.attribute(pitchName), 0.0));
        }
        shot.m_roll = 0.0f;
        const QDomElement time = pict.firstChildElement(timeName);
        if (!time.isNull())
            shot.m_time = QDateTime::fromString(time.text(), Qt::TextDate);
        m_shoots.append(shot);
    }
}

void MerlinToSPP::readHeader(const QDomElement& header)
{
    const QDomElement general = header.firstChildElement(QStringLiteral("general"));
    bool found = false;
    QString text = childText(general, QStringLiteral("title"), &found);
    if (found)
        m_title = text;
    text = childText(general, QStringLiteral("gps"), &found);
    if (found)
        m_gps = text;
    text = childText(general, QStringLiteral("comment"), &found);
    if (found)
        m_comment = text;

    // The camera comes before the lens: the focal length uses this file's coefficient.
    const QDomElement camera = header.firstChildElement(QStringLiteral("camera"));
    const QDomElement sensor = camera.firstChildElement(QStringLiteral("sensor"));
    if (!sensor.isNull())
        m_sensorCoef = toNumber(sensor.attribute(QStringLiteral("coef")), 1.0);
    const QDomElement bracketing = camera.firstChildElement(QStringLiteral("bracketing"));
    if (!bracketing.isNull())
        m_nbPicts = toInteger(bracketing.attribute(QStringLiteral("nbPicts")));

    const QDomElement lens = header.firstChildElement(QStringLiteral("lens"));
    if (!lens.isNull()) {
        // A lens without a focal gives 0, not the -1.0 of a record without a lens.
        const double focal = toNumber(childText(lens, QStringLiteral("focal")), 0.0);
        m_xmlFocal = focal * m_sensorCoef;
        const QString type = QStringLiteral("type");
        if (lens.hasAttribute(type)
            && lens.attribute(type).trimmed().compare(QLatin1String("fisheye"), Qt::CaseInsensitive)
                == 0)
            m_xmlLensType = LensFisheye;
    }

    const QDomElement shooting = header.firstChildElement(QStringLiteral("shooting"));
    bool hasOrientation = false;
    const QString orientation
        = childText(shooting, QStringLiteral("cameraOrientation"), &hasOrientation);
    if (hasOrientation && orientation.toLower() == QLatin1String("portrait"))
        m_portrait = true;
}

void MerlinToSPP::generateSPP(const QStringList& images, double focalLength, LensModel lens)
{
    // The page guarantees at least 1; a smaller count is read as no bracketing,
    // as the page does when the record states none.
    const int bracket = m_nbPicts >= 1 ? m_nbPicts : 1;
    // A NaN focal length is not negative, so it is used as given (and links nothing).
    const double focal = focalLength < 0.0 ? m_xmlFocal : focalLength;
    const LensModel lensModel = lens == LensUnknown ? LensModel(m_xmlLensType) : lens;

    const int stackCount = images.size() / bracket;
    m_stacks.reserve(m_stacks.size() + stackCount);
    for (int k = 0; k < stackCount; ++k)
        m_stacks.append(images.mid(k * bracket, bracket));

    m_yaw.reserve(m_yaw.size() + m_shoots.size());
    m_pitch.reserve(m_pitch.size() + m_shoots.size());
    m_roll.reserve(m_roll.size() + m_shoots.size());
    for (const ShootData& shot : qAsConst(m_shoots)) {
        m_yaw.append(toRadians(shot.m_yaw));
        m_pitch.append(toRadians(shot.m_pitch));
        m_roll.append(toRadians(shot.m_roll));
    }

    m_focalLength = float(focal);
    m_lensModel = lensModel;

    // The distance test assumes a rectilinear lens: a fisheye gets no links.
    if (lensModel == LensFisheye)
        return;
    appendLinks(stackCount, bracket, focal);
}

void MerlinToSPP::appendLinks(int stackCount, int bracket, double focal)
{
    // 2f in single precision, the quotient and the arctangent in double.
    const float focalF = float(focal);
    const float twoFocal = focalF + focalF;
    const float halfFov = float(std::atan(FullFrame::Diagonal / double(twoFocal)));
    const double factor = double(kLinkFactor);
    // d is never negative (or NaN), so no pair passes h > 0.65 d unless h > 0.
    if (!(halfFov > 0.0f))
        return;

    // A stack is placed by its first shot. When the record holds fewer shots
    // than the images need, the stacks past the last recorded shot have no
    // position and get no links; the others are linked as usual.
    const int shotCount = m_shoots.size();
    const int placed
        = int(std::min<qint64>(stackCount, (qint64(shotCount) + bracket - 1) / bracket));
    if (placed < 2)
        return;

    // Per stack, once: the angles in radians as float and the sines and
    // cosines of their widened values, exactly the operands of the distance
    // formula, so every distance below is the one a pair-by-pair evaluation gives.
    struct Place
    {
        float yaw;
        float pitch;
        double sinYaw;
        double cosYaw;
        double sinPitch;
        double cosPitch;
        /// The latitude of the direction: equals the pitch within +-90 degrees;
        /// only the pre-filter uses it.
        double latitude;
    };
    std::vector<Place> places(static_cast<size_t>(placed));
    for (int k = 0; k < placed; ++k) {
        const ShootData& shot = m_shoots.at(k * bracket);
        Place& place = places[size_t(k)];
        place.yaw = toRadians(shot.m_yaw);
        place.pitch = toRadians(shot.m_pitch);
        place.sinYaw = std::sin(double(place.yaw));
        place.cosYaw = std::cos(double(place.yaw));
        place.sinPitch = std::sin(double(place.pitch));
        place.cosPitch = std::cos(double(place.pitch));
        place.latitude = std::asin(std::max(-1.0, std::min(1.0, place.sinPitch)));
    }

    // Conservative pre-filters, which only drop pairs that the exact test
    // drops too. A pair is kept when d < h / 0.65 (at most about 2.42 < pi).
    // The great-circle distance is never smaller than the difference of the
    // latitudes; and below cos(bound) the cosine means a distance beyond the
    // bound, so acos is only taken near or inside the bound. Both carry a slack
    // far larger than the rounding errors involved.
    const double reach = double(halfFov) / factor + kFilterSlack;
    const double minCosine = std::cos(std::min(reach, kPi));
    constexpr double kQuarter = kPi / 4;
    constexpr double kThreeQuarters = 3 * kPi / 4;

    for (int i = 0; i < placed; ++i) {
        const Place& a = places[size_t(i)];
        for (int j = 0; j < placed; ++j) {
            if (j == i)
                continue;
            const Place& b = places[size_t(j)];
            if (std::fabs(b.latitude - a.latitude) > reach)
                continue;
            const double cosine = a.sinPitch * b.sinPitch
                + a.cosPitch * b.cosPitch * (a.sinYaw * b.sinYaw + a.cosYaw * b.cosYaw);
            if (cosine < minCosine)
                continue;
            const double distance = std::acos(cosine);
            if (!(double(halfFov) > factor * distance))
                continue;

            // Wrap the yaw difference once each way, in single precision,
            // against the double pi.
            float dYaw = b.yaw - a.yaw;
            if (double(dYaw) > kPi)
                dYaw -= kTwoPiF;
            if (double(dYaw) < -kPi)
                dYaw += kTwoPiF;
            const float dPitch = b.pitch - a.pitch;
            const double angle = std::atan2(double(dPitch), double(dYaw));

            qint32 direction;
            if (angle > -kQuarter && angle <= kQuarter)
                direction = 2; // j lies to the right of i
            else if (angle > -kThreeQuarters && angle <= -kQuarter)
                direction = 1; // j lies below i
            else
                continue; // above or to the left: stored from the other side

            AuthorizedLink link;
            link.m_direction = direction;
            link.m_stackIndices = { i, j };
            m_links.append(link);
        }
    }
}
