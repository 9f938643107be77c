#include "PtoProject.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QSaveFile>
#include <QTextStream>

#include <cmath>

namespace {

bool isLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
        || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

/// Reads a line's blank-separated tokens one by one, as views into the line;
/// a token beginning with a letter and a double quote (n"...") runs to the
/// closing quote, blanks included. The line must outlive the reader and the
/// views it hands out.
class TokenReader
{
public:
    explicit TokenReader(const QString& line)
        : m_line(line), m_chars(line.constData()), m_size(line.size())
    {
    }

    /// The next token in *token; false at the end of the line, or at a token
    /// whose quote is never closed (then ok() is false).
    bool next(QStringRef* token)
    {
        while (m_pos < m_size && m_chars[m_pos].isSpace())
            ++m_pos;
        if (m_pos >= m_size || !m_ok)
            return false;
        const int start = m_pos;
        if (m_pos + 1 < m_size && isLetter(m_chars[m_pos])
            && m_chars[m_pos + 1] == QLatin1Char('"')) {
            const int close = m_line.indexOf(QLatin1Char('"'), m_pos + 2);
            if (close < 0) {
                m_ok = false;
                return false;
            }
            m_pos = close + 1;
        } else {
            while (m_pos < m_size && !m_chars[m_pos].isSpace())
                ++m_pos;
        }
        *token = QStringRef(&m_line, start, m_pos - start);
        return true;
    }

    /// False once a quote was found that is never closed.
    bool ok() const { return m_ok; }

    /// Skips the remaining tokens; false when one has a quote that is never closed.
    bool skipRest()
    {
        QStringRef ignored;
        while (next(&ignored)) { }
        return m_ok;
    }

private:
    const QString& m_line;
    const QChar* m_chars;
    int m_size;
    int m_pos = 0;
    bool m_ok = true;
};

/// The line's tokens as strings (see TokenReader); those before an unclosed
/// quote when *ok is false.
QStringList tokens(const QString& line, bool* ok)
{
    QStringList result;
    TokenReader reader(line);
    QStringRef token;
    while (reader.next(&token))
        result << token.toString();
    *ok = reader.ok();
    return result;
}

/// The number of letters a token begins with: its variable's name.
int nameLength(const QStringRef& token)
{
    int i = 0;
    while (i < token.size() && isLetter(token.at(i)))
        ++i;
    return i;
}

/// The leading letters of a token and what follows them.
void splitToken(const QString& token, QString* name, QString* rest)
{
    const int i = nameLength(QStringRef(&token));
    *name = token.left(i);
    *rest = token.mid(i);
}

bool isLine(const QString& line, char kind)
{
    return line.size() >= 1 && line.at(0) == QLatin1Char(kind)
        && (line.size() == 1 || line.at(1).isSpace());
}

/// The n and N image numbers of a c line.
bool parseControlPoint(const QString& line, PtoProject::ControlPoint* point)
{
    TokenReader reader(line);
    QStringRef t;
    reader.next(&t); // the line's kind
    point->first = point->second = -1;
    point->line = line;
    while (reader.next(&t)) {
        bool number = false;
        if (t.startsWith(QLatin1Char('n')) && point->first < 0)
            point->first = t.mid(1).toInt(&number);
        else if (t.startsWith(QLatin1Char('N')) && point->second < 0)
            point->second = t.mid(1).toInt(&number);
        else
            continue;
        if (!number)
            return false;
    }
    return reader.ok() && point->first >= 0 && point->second >= 0;
}

} // namespace

bool PtoProject::read(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return false;
    }
    QString reason;
    if (!parse(QString::fromUtf8(file.readAll()), &reason)) {
        if (error)
            *error = QStringLiteral("%1 is not a Hugin project: %2").arg(path, reason);
        return false;
    }
    return true;
}

bool PtoProject::parseImage(const QString& line, Image* image, QString* error)
{
    image->text = line;
    image->variables.clear();
    image->name.clear();
    bool named = false;
    TokenReader reader(image->text);
    QStringRef token;
    reader.next(&token); // the line's kind
    // An unclosed quote is reported before anything else the line holds.
    const auto refuse = [&](const QString& reason) {
        *error = reader.skipRest() ? reason : QStringLiteral("an image name has no closing quote");
        return false;
    };
    while (reader.next(&token)) {
        if (token.size() >= 2 && token.at(0) == QLatin1Char('n')
            && token.at(1) == QLatin1Char('"')) {
            image->name = token.mid(2, token.size() - 3).toString();
            named = true;
            continue;
        }
        const int letters = nameLength(token);
        if (letters == 0)
            return refuse(
                QStringLiteral("the image variable \"%1\" has no name").arg(token.toString()));
        Variable v;
        v.nameFrom = token.position();
        v.nameLength = letters;
        v.valueFrom = token.position() + letters;
        v.valueLength = token.size() - letters;
        const QStringRef rest = token.mid(letters);
        if (rest.startsWith(QLatin1Char('='))) {
            bool number = false;
            v.target = rest.mid(1).toInt(&number);
            if (!number || v.target < 0)
                return refuse(
                    QStringLiteral("the link \"%1\" names no image").arg(token.toString()));
            v.linked = true;
        }
        image->variables.append(v);
    }
    if (!reader.ok()) {
        *error = QStringLiteral("an image name has no closing quote");
        return false;
    }
    if (!named) {
        *error = QStringLiteral("an image has no name");
        return false;
    }
    return true;
}

bool PtoProject::parse(const QString& text, QString* error)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    // Carriage returns at a line's end belong to its line break, however many.
    for (QString& line : lines) {
        while (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
    }
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    QVector<Image> images;
    for (int i = 0; i < lines.size(); ++i) {
        if (!isLine(lines[i], 'i'))
            continue;
        Image image;
        image.line = i;
        QString reason;
        if (!parseImage(lines[i], &image, &reason)) {
            if (error)
                *error = QStringLiteral("line %1: %2").arg(i + 1).arg(reason);
            return false;
        }
        images.append(image);
    }
    for (const Image& image : images) {
        for (const Variable& v : image.variables) {
            if (v.linked && v.target >= images.size()) {
                if (error)
                    *error = QStringLiteral("line %1: \"%2=%3\" links to an image that does "
                                            "not exist")
                                 .arg(image.line + 1)
                                 .arg(image.nameOf(v).toString(), QString::number(v.target));
                return false;
            }
        }
    }
    QVector<ControlPoint> points;
    for (int i = 0; i < lines.size(); ++i) {
        if (!isLine(lines[i], 'c'))
            continue;
        ControlPoint point;
        if (!parseControlPoint(lines[i], &point) || point.first >= images.size()
            || point.second >= images.size()) {
            if (error)
                *error
                    = QStringLiteral("line %1: a control point names no existing image").arg(i + 1);
            return false;
        }
        points.append(point);
    }
    m_lines = lines;
    m_images = images;
    m_points = points;
    return true;
}

QString PtoProject::text() const
{
    return m_lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

bool PtoProject::write(const QString& path, QString* error) const
{
    QSaveFile file(path);
    const QByteArray bytes = text().toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        if (error)
            *error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

QString PtoProject::imageName(int image) const
{
    return image >= 0 && image < m_images.size() ? m_images[image].name : QString();
}

bool PtoProject::variable(
    int image, const QString& name, const Image** owner, const Variable** found) const
{
    // A chain of links is at most as long as there are images.
    for (int step = 0; step <= m_images.size(); ++step) {
        if (image < 0 || image >= m_images.size())
            return false;
        const Image& here = m_images[image];
        const Variable* match = nullptr;
        for (const Variable& v : here.variables) {
            if (v.nameLength == name.size() && here.nameOf(v) == name) {
                match = &v;
                break;
            }
        }
        if (!match)
            return false;
        if (!match->linked) {
            *owner = &here;
            *found = match;
            return true;
        }
        image = match->target;
    }
    return false;
}

QString PtoProject::value(int image, const QString& name) const
{
    const Image* owner = nullptr;
    const Variable* v = nullptr;
    return variable(image, name, &owner, &v) ? owner->valueOf(*v).toString() : QString();
}

double PtoProject::number(int image, const QString& name, bool* ok) const
{
    const Image* owner = nullptr;
    const Variable* v = nullptr;
    bool converted = false;
    const double d
        = variable(image, name, &owner, &v) ? owner->valueOf(*v).toDouble(&converted) : 0.0;
    *ok = converted && std::isfinite(d);
    return *ok ? d : 0.0;
}

QVector<PtoProject::ControlPoint> PtoProject::controlPoints() const
{
    return m_points;
}

void PtoProject::setControlPoints(const QVector<ControlPoint>& points)
{
    QStringList lines;
    for (const QString& line : m_lines) {
        if (!isLine(line, 'c'))
            lines << line;
    }
    for (const ControlPoint& point : points)
        lines << point.line;
    // The images' line numbers move when c lines stood before them.
    QString ignored;
    parse(lines.join(QLatin1Char('\n')), &ignored);
}

const QString* PtoProject::panoramaLine() const
{
    for (const QString& line : m_lines) {
        if (isLine(line, 'p'))
            return &line;
    }
    return nullptr;
}

QSize PtoProject::panoramaSize() const
{
    const QString* line = panoramaLine();
    if (!line)
        return QSize();
    int w = -1, h = -1;
    TokenReader reader(*line);
    QStringRef t;
    reader.next(&t); // the line's kind
    while (reader.next(&t)) {
        bool number = false;
        if (t.startsWith(QLatin1Char('w'))) {
            w = t.mid(1).toInt(&number);
            if (!number)
                w = -1;
        } else if (t.startsWith(QLatin1Char('h'))) {
            h = t.mid(1).toInt(&number);
            if (!number)
                h = -1;
        }
    }
    return QSize(w, h);
}

double PtoProject::panoramaNumber(const QString& variable, bool* ok) const
{
    *ok = false;
    const QString* line = panoramaLine();
    if (!line)
        return 0.0;
    TokenReader reader(*line);
    QStringRef t;
    reader.next(&t); // the line's kind
    while (reader.next(&t)) {
        if (!t.startsWith(variable))
            continue;
        const double value = t.mid(variable.size()).toDouble(ok);
        // A token that goes on with letters names another variable.
        if (*ok && std::isfinite(value))
            return value;
        *ok = false;
    }
    return 0.0;
}

QRect PtoProject::crop() const
{
    for (const QString& line : m_lines) {
        if (!isLine(line, 'p'))
            continue;
        TokenReader reader(line);
        QStringRef t;
        reader.next(&t); // the line's kind
        while (reader.next(&t)) {
            if (!t.startsWith(QLatin1Char('S')))
                continue;
            const QVector<QStringRef> parts = t.mid(1).split(QLatin1Char(','));
            if (parts.size() != 4)
                return QRect();
            int v[4];
            for (int i = 0; i < 4; ++i) {
                bool number = false;
                v[i] = parts[i].toInt(&number);
                if (!number)
                    return QRect();
            }
            // left, right, top, bottom; right and bottom are exclusive.
            if (v[1] <= v[0] || v[3] <= v[2])
                return QRect();
            return QRect(v[0], v[2], v[1] - v[0], v[3] - v[2]);
        }
    }
    return QRect();
}

bool PtoProject::direction(int image, double x, double y, double out[3]) const
{
    bool ok[7] = {};
    const double width = number(image, QStringLiteral("w"), &ok[0]);
    const double height = number(image, QStringLiteral("h"), &ok[1]);
    const double fov = number(image, QStringLiteral("v"), &ok[2]);
    const double projection = number(image, QStringLiteral("f"), &ok[3]);
    const double yaw = number(image, QStringLiteral("y"), &ok[4]);
    const double pitch = number(image, QStringLiteral("p"), &ok[5]);
    const double roll = number(image, QStringLiteral("r"), &ok[6]);
    for (bool b : ok) {
        if (!b)
            return false;
    }
    const double degree = M_PI / 180.0;
    if (width <= 0 || height <= 0 || fov <= 0)
        return false;
    // Camera frame: x to the right, y up, z ahead.
    const double cx = x - width / 2.0;
    const double cy = -(y - height / 2.0);
    double v[3];
    if (projection == 0) {
        if (fov >= 180.0)
            return false;
        const double focal = width / 2.0 / std::tan(fov * degree / 2.0);
        v[0] = cx;
        v[1] = cy;
        v[2] = focal;
    } else if (projection == 2 || projection == 3) {
        // Equidistant: the angle from the axis grows with the radius.
        const double focal = width / 2.0 / (fov * degree / 2.0);
        const double radius = std::hypot(cx, cy);
        const double theta = radius / focal;
        const double s = radius > 0 ? std::sin(theta) / radius : 0.0;
        v[0] = cx * s;
        v[1] = cy * s;
        v[2] = std::cos(theta);
    } else {
        return false;
    }
    const double length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    for (double& c : v)
        c /= length;
    // Roll turns the camera clockwise about the axis as seen from behind it
    // (at 90° the picture's top looks to the right), pitch raises the axis,
    // yaw turns it to the right.
    const double r = roll * degree, p = pitch * degree, w = yaw * degree;
    const double x1 = v[0] * std::cos(r) + v[1] * std::sin(r);
    const double y1 = -v[0] * std::sin(r) + v[1] * std::cos(r);
    const double z1 = v[2];
    const double y2 = y1 * std::cos(p) + z1 * std::sin(p);
    const double z2 = -y1 * std::sin(p) + z1 * std::cos(p);
    out[0] = x1 * std::cos(w) + z2 * std::sin(w);
    out[1] = y2;
    out[2] = -x1 * std::sin(w) + z2 * std::cos(w);
    return true;
}

double PtoProject::pointError(const ControlPoint& point, bool* ok) const
{
    *ok = false;
    double coordinates[4] = { 0, 0, 0, 0 };
    bool seen[4] = {};
    const QChar names[4]
        = { QLatin1Char('x'), QLatin1Char('y'), QLatin1Char('X'), QLatin1Char('Y') };
    TokenReader reader(point.line);
    QStringRef t;
    reader.next(&t); // the line's kind
    while (reader.next(&t)) {
        // Each coordinate's name is one letter.
        if (nameLength(t) != 1)
            continue;
        for (int k = 0; k < 4; ++k) {
            if (t.at(0) == names[k] && !seen[k]) {
                coordinates[k] = t.mid(1).toDouble(&seen[k]);
                break;
            }
        }
    }
    for (bool b : seen) {
        if (!b)
            return 0.0;
    }
    double a[3], b[3];
    if (!direction(point.first, coordinates[0], coordinates[1], a)
        || !direction(point.second, coordinates[2], coordinates[3], b))
        return 0.0;
    const double cross[3]
        = { a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0] };
    const double sine = std::sqrt(cross[0] * cross[0] + cross[1] * cross[1] + cross[2] * cross[2]);
    const double cosine = a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
    *ok = true;
    return std::atan2(sine, cosine) * 180.0 / M_PI;
}

PtoProject::ControlPoint PtoProject::renumbered(
    const ControlPoint& point, const QVector<int>& mapping)
{
    ControlPoint result = point;
    if (point.first < 0 || point.first >= mapping.size() || point.second < 0
        || point.second >= mapping.size())
        return result;
    result.first = mapping[point.first];
    result.second = mapping[point.second];
    bool ok = false;
    QStringList parts = tokens(point.line, &ok);
    bool firstDone = false, secondDone = false;
    for (QString& t : parts) {
        if (!firstDone && t.startsWith(QLatin1Char('n'))) {
            t = QStringLiteral("n%1").arg(result.first);
            firstDone = true;
        } else if (!secondDone && t.startsWith(QLatin1Char('N'))) {
            t = QStringLiteral("N%1").arg(result.second);
            secondDone = true;
        }
    }
    result.line = parts.join(QLatin1Char(' '));
    return result;
}

QString PtoProject::imageLine(int index, const QVector<int>* mapping) const
{
    const Image& image = m_images[index];
    QString line;
    line.reserve(image.text.size() + image.name.size() + 8);
    line += QLatin1Char('i');
    for (const Variable& v : image.variables) {
        line += QLatin1Char(' ');
        if (!v.linked) {
            line += QStringRef(&image.text, v.nameFrom, v.nameLength + v.valueLength);
            continue;
        }
        line += image.nameOf(v);
        const int target = mapping ? mapping->at(v.target) : v.target;
        if (target >= 0) {
            line += QLatin1Char('=');
            line += QString::number(target);
        } else {
            line += value(index, image.nameOf(v).toString());
        }
    }
    line += QLatin1String(" n\"");
    line += image.name;
    line += QLatin1Char('"');
    return line;
}

QString PtoProject::inFolder(const QString& folder, const QString& name)
{
    if (name.startsWith(QLatin1Char('/')))
        return name;
    return QDir::cleanPath(QDir(folder).absolutePath() + QLatin1Char('/') + name);
}

void PtoProject::makeImageNamesAbsolute(const QString& folder)
{
    for (int i = 0; i < m_images.size(); ++i) {
        Image& image = m_images[i];
        if (image.name.startsWith(QLatin1Char('/')))
            continue;
        image.name = inFolder(folder, image.name);
        m_lines[image.line] = imageLine(i);
    }
}

PtoProject PtoProject::subset(const QVector<int>& images) const
{
    // Old index -> new index, -1 when dropped.
    QVector<int> mapping(m_images.size(), -1);
    for (int k = 0; k < images.size(); ++k) {
        if (images[k] >= 0 && images[k] < m_images.size())
            mapping[images[k]] = k;
    }
    // A "#-hugin" line right before an i line belongs to that image.
    QHash<int, int> imageOfLine;
    for (int i = 0; i < m_images.size(); ++i)
        imageOfLine.insert(m_images[i].line, i);
    const auto ownedComment = [&](int line) {
        return m_lines[line].startsWith(QLatin1String("#-hugin")) && imageOfLine.contains(line + 1);
    };

    QStringList lines;
    bool imagesWritten = false;
    for (int i = 0; i < m_lines.size(); ++i) {
        const QString& line = m_lines[i];
        if (ownedComment(i))
            continue;
        if (isLine(line, 'i')) {
            if (imagesWritten)
                continue;
            imagesWritten = true;
            for (int k = 0; k < images.size(); ++k) {
                const int old = images[k];
                if (old < 0 || old >= m_images.size())
                    continue;
                const int owner = m_images[old].line;
                if (owner > 0 && m_lines[owner - 1].startsWith(QLatin1String("#-hugin")))
                    lines << m_lines[owner - 1];
                lines << imageLine(old, &mapping);
            }
            continue;
        }
        if (isLine(line, 'c')) {
            ControlPoint point;
            if (parseControlPoint(line, &point) && mapping[point.first] >= 0
                && mapping[point.second] >= 0)
                lines << renumbered(point, mapping).line;
            continue;
        }
        if (isLine(line, 'k')) {
            bool ok = false;
            QStringList parts = tokens(line, &ok);
            bool keep = true;
            for (QString& t : parts) {
                if (t.startsWith(QLatin1Char('i')) && t != QLatin1String("i")) {
                    const int old = t.mid(1).toInt(&ok);
                    keep = ok && old >= 0 && old < mapping.size() && mapping[old] >= 0;
                    if (keep)
                        t = QStringLiteral("i%1").arg(mapping[old]);
                    break;
                }
            }
            if (keep)
                lines << parts.join(QLatin1Char(' '));
            continue;
        }
        if (isLine(line, 'v') && line.trimmed() != QLatin1String("v")) {
            bool ok = false;
            QStringList kept;
            for (const QString& t : tokens(line, &ok).mid(1)) {
                QString name, rest;
                splitToken(t, &name, &rest);
                bool number = false;
                const int old = rest.toInt(&number);
                if (number && old >= 0 && old < mapping.size() && mapping[old] >= 0)
                    kept << name + QString::number(mapping[old]);
            }
            if (!kept.isEmpty())
                lines << QStringLiteral("v ") + kept.join(QLatin1Char(' '));
            continue;
        }
        lines << line;
    }
    PtoProject result;
    QString ignored;
    result.parse(lines.join(QLatin1Char('\n')), &ignored);
    return result;
}
