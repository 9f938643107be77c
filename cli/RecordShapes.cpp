#include "RecordShapes.h"

#include <QFile>
#include <QStringList>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <cmath>

namespace {

/// The shared reader refuses larger files; this step does not read them.
constexpr qint64 kMaxRecordBytes = 16 * 1024 * 1024;
/// The shared reader refuses deeper nesting; a record has five levels.
constexpr int kMaxDepth = 256;
/// Shots closer than this, in degrees, point at one position.
constexpr double kSamePosition = 1e-3;

/// The text of the document as the stream reader decoded it, so that its
/// character offsets index it.
QString decoded(const QByteArray& bytes, const QString& encoding)
{
    QTextCodec* codec = encoding.isEmpty() ? nullptr : QTextCodec::codecForName(encoding.toLatin1());
    if (!codec)
        codec = QTextCodec::codecForName("UTF-8");
    return codec->toUnicode(bytes);
}

/// The text with its XML declaration, if any, declaring UTF-8.
QString declaredUtf8(QString text)
{
    const QString declaration = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    if (text.startsWith(QLatin1String("<?xml"))) {
        const int end = text.indexOf(QLatin1String("?>"));
        if (end > 0)
            return declaration + text.mid(end + 2);
    }
    return text;
}

} // namespace

bool RecordShapes::read(const QString& path)
{
    m_cutOff = false;
    m_closed.clear();
    m_shots.clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    if (file.size() > kMaxRecordBytes)
        return true;
    const QByteArray bytes = file.readAll();
    file.close();

    QXmlStreamReader reader(bytes);
    QStringList open;
    QString encoding;
    bool shootSeen = false;
    bool inShoot = false;
    bool inPict = false;
    bool positionSeen = false;
    Shot shot;
    // Where the document may be closed: after its last complete shot, with
    // the elements open there. A document that ends before its first
    // complete shot holds nothing to import and is left as it is.
    qint64 cut = -1;
    QStringList openAtCut;

    const auto giveUp = [this]() {
        m_shots.clear();
        return true;
    };
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartDocument:
            encoding = reader.documentEncoding().toString();
            break;
        case QXmlStreamReader::DTD:
            if (!reader.entityDeclarations().isEmpty()
                || reader.text().contains(QLatin1String("<!ENTITY")))
                return giveUp();
            break;
        case QXmlStreamReader::StartElement: {
            open << reader.qualifiedName().toString();
            if (open.size() > kMaxDepth)
                return giveUp();
            const QStringRef name = reader.name();
            const QXmlStreamAttributes attributes = reader.attributes();
            if (open.size() == 2 && !shootSeen && name == QLatin1String("shoot")) {
                shootSeen = true;
                inShoot = true;
            } else if (open.size() == 3 && inShoot && name == QLatin1String("pict")) {
                inPict = true;
                positionSeen = false;
                shot = Shot();
                shot.id = attributes.value(QLatin1String("id")).toString();
                shot.hasBracket = attributes.hasAttribute(QLatin1String("bracket"));
                const QLatin1String numberName(shot.hasBracket ? "bracket" : "num");
                shot.hasNumber = attributes.hasAttribute(numberName);
                shot.number = attributes.value(numberName).toString().trimmed().toInt();
            } else if (open.size() == 4 && inPict && !positionSeen
                && name == QLatin1String("position")) {
                positionSeen = true;
                bool ok = false;
                const double roll = attributes.value(QLatin1String("roll")).toDouble(&ok);
                shot.hasRoll = ok && std::isfinite(roll);
                shot.roll = shot.hasRoll ? roll : 0.0;
            }
            break;
        }
        case QXmlStreamReader::EndElement:
            if (open.size() == 3 && inPict) {
                inPict = false;
                m_shots.append(shot);
                open.removeLast();
                cut = reader.characterOffset();
                openAtCut = open;
                break;
            }
            if (open.size() == 2 && inShoot)
                inShoot = false;
            open.removeLast();
            break;
        case QXmlStreamReader::Invalid:
            if (reader.error() != QXmlStreamReader::PrematureEndOfDocumentError || cut < 0)
                return giveUp();
            break;
        default:
            break;
        }
    }
    if (!reader.hasError())
        return true;

    // The document ends early: keep it up to its last complete shot.
    m_cutOff = true;
    QString text = decoded(bytes, encoding).left(int(cut));
    text += QLatin1Char('\n');
    for (int i = openAtCut.size() - 1; i >= 0; --i)
        text += QStringLiteral("</%1>\n").arg(openAtCut.at(i));
    m_closed = declaredUtf8(text).toUtf8();
    return true;
}

RecordShapes::Bracketing RecordShapes::BracketingFromNumbers(
    const QVector<Shot>& shots, bool cutOff)
{
    Bracketing b;
    b.usedShots = shots.size();
    int numbered = 0;
    for (const Shot& s : shots)
        numbered += s.hasNumber ? 1 : 0;
    if (numbered == 0)
        return b;
    const auto fail = [&](const QString& reason) {
        b.error = QStringLiteral("the shots' bracket numbers do not repeat 1…n: %1 (--bracket "
                                 "sets the bracketing)")
                      .arg(reason);
        return b;
    };

    // Runs of 1, 2, 3, ...; every run as long as the first.
    int n = 0;
    int expected = 1;
    int runStart = 0;
    for (int i = 0; i < shots.size(); ++i) {
        const Shot& s = shots[i];
        if (!s.hasNumber)
            return fail(QStringLiteral("%1 has none").arg(ShotName(shots, i)));
        if (n > 0 && expected == n + 1) {
            expected = 1;
            runStart = i;
        } else if (n == 0 && expected > 1 && s.number == 1) {
            n = expected - 1;
            expected = 1;
            runStart = i;
        }
        if (s.number != expected)
            return fail(QStringLiteral("%1 has %2 where %3 is expected")
                            .arg(ShotName(shots, i))
                            .arg(s.number)
                            .arg(expected));
        ++expected;
    }
    const int lastRun = shots.size() - runStart;
    if (n == 0) {
        // One run: one position of n exposures, or a count of the shots.
        n = lastRun;
        for (const Shot& s : shots) {
            if (std::abs(double(s.yaw) - double(shots.first().yaw)) > kSamePosition
                || std::abs(double(s.pitch) - double(shots.first().pitch)) > kSamePosition) {
                b.count = 1;
                return b;
            }
        }
    } else if (lastRun != n) {
        if (!cutOff)
            return fail(QStringLiteral("the last position, from %1, holds %2 instead of %3")
                            .arg(ShotName(shots, runStart))
                            .arg(lastRun)
                            .arg(n));
        b.usedShots = runStart;
    }
    b.count = n;
    b.fromNumbers = true;
    return b;
}

QString RecordShapes::ShotName(const QVector<Shot>& shots, int index)
{
    const QString id = shots.value(index).id.trimmed();
    if (id.isEmpty())
        return QStringLiteral("shot %1").arg(index + 1);
    return QStringLiteral("shot %1 (id %2)").arg(index + 1).arg(id);
}

double RecordShapes::RecordedRoll(const Shot& shot, bool portrait)
{
    if (shot.hasRoll && shot.roll != 0.0)
        return shot.roll;
    return portrait ? 90.0 : 0.0;
}

double RecordShapes::RollLeft(double recordedRoll, bool photoStandsPortrait)
{
    const double quarters = std::round(recordedRoll / 90.0);
    const bool quarterTurn = std::fmod(std::abs(quarters), 2.0) == 1.0;
    if (photoStandsPortrait && quarterTurn)
        return recordedRoll - 90.0 * quarters;
    return recordedRoll;
}
