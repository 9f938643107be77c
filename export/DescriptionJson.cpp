#include "DescriptionJson.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <cmath>
#include <limits>

namespace {

QJsonArray floats(const QVector<float>& values)
{
    QJsonArray array;
    for (float v : values)
        array.append(double(v));
    return array;
}

/// Reads the members of one object, remembering the first problem.
class Reader
{
public:
    explicit Reader(const QJsonObject& object) : m_object(object) { }

    bool ok() const { return m_error.isEmpty(); }
    QString error() const { return m_error; }

    void fail(const QString& reason)
    {
        if (m_error.isEmpty())
            m_error = reason;
    }

    QJsonValue member(const char* name, QJsonValue::Type type, const char* what)
    {
        const QJsonValue value = m_object.value(QLatin1String(name));
        if (value.isUndefined())
            fail(QStringLiteral("member \"%1\" is missing").arg(QLatin1String(name)));
        else if (value.type() != type)
            fail(QStringLiteral("member \"%1\" is not %2")
                     .arg(QLatin1String(name), QLatin1String(what)));
        return value;
    }

    bool boolean(const char* name) { return member(name, QJsonValue::Bool, "a boolean").toBool(); }

    qint32 integer(const char* name)
    {
        const double d = member(name, QJsonValue::Double, "a number").toDouble();
        if (!isInteger(d)) {
            fail(QStringLiteral("member \"%1\" is not a 32-bit integer").arg(QLatin1String(name)));
            return 0;
        }
        return qint32(d);
    }

    double real(const char* name)
    {
        return member(name, QJsonValue::Double, "a number").toDouble();
    }

    /// A number that a float holds (finite once rounded to one).
    float single(const char* name)
    {
        const float f = float(real(name));
        if (!std::isfinite(f)) {
            fail(QStringLiteral("member \"%1\" is out of range").arg(QLatin1String(name)));
            return 0.0f;
        }
        return f;
    }

    QString text(const char* name)
    {
        return member(name, QJsonValue::String, "a string").toString();
    }

    QVector<float> floats(const char* name)
    {
        QVector<float> values;
        const QJsonArray array = member(name, QJsonValue::Array, "an array").toArray();
        for (const QJsonValue& v : array) {
            if (!v.isDouble()) {
                fail(QStringLiteral("member \"%1\" holds something else than numbers")
                         .arg(QLatin1String(name)));
                return {};
            }
            const float f = float(v.toDouble());
            if (!std::isfinite(f)) {
                fail(QStringLiteral("member \"%1\" holds a number out of range")
                         .arg(QLatin1String(name)));
                return {};
            }
            values.append(f);
        }
        return values;
    }

    QJsonArray array(const char* name)
    {
        return member(name, QJsonValue::Array, "an array").toArray();
    }

    static bool isInteger(double d)
    {
        return std::isfinite(d) && d == std::floor(d) && d >= std::numeric_limits<qint32>::min()
            && d <= std::numeric_limits<qint32>::max();
    }

private:
    QJsonObject m_object;
    QString m_error;
};

} // namespace

QJsonObject DescriptionJson::toJson(const StructuredPanoramaProperties& p)
{
    QJsonArray stacks;
    for (const QStringList& stack : p.m_stacks)
        stacks.append(QJsonArray::fromStringList(stack));
    QJsonArray links;
    for (const AuthorizedLink& link : p.m_links) {
        QJsonArray indices;
        for (int i : link.m_stackIndices)
            indices.append(i);
        links.append(QJsonObject { { QStringLiteral("direction"), link.m_direction },
            { QStringLiteral("stackIndices"), indices } });
    }
    return QJsonObject {
        { QStringLiteral("stacks"), stacks },
        { QStringLiteral("links"), links },
        { QStringLiteral("yaw"), floats(p.m_yaw) },
        { QStringLiteral("pitch"), floats(p.m_pitch) },
        { QStringLiteral("roll"), floats(p.m_roll) },
        { QStringLiteral("useShootData"), p.m_useShootData },
        { QStringLiteral("focalLength"), double(p.m_focalLength) },
        { QStringLiteral("flag2"), p.m_flag2 },
        { QStringLiteral("lensModel"), int(p.m_lensModel) },
        { QStringLiteral("intA"), p.m_intA },
        { QStringLiteral("intB"), p.m_intB },
        { QStringLiteral("intC"), p.m_intC },
        { QStringLiteral("flag3"), p.m_flag3 },
        { QStringLiteral("autoDetection"), p.m_autoDetection },
        { QStringLiteral("stackLinking"), p.m_stackLinking },
        { QStringLiteral("levelLinking"), p.m_levelLinking },
        { QStringLiteral("useRecordedLocation"), p.m_useRecordedLocation },
        { QStringLiteral("skipOptimization"), p.m_skipOptimization },
        { QStringLiteral("cleanWrongLinks"), p.m_cleanWrongLinks },
        { QStringLiteral("gridOrder"), p.m_gridOrder },
        { QStringLiteral("gridRows"), p.m_gridRows },
        { QStringLiteral("bracketCount"), p.m_bracketCount },
        { QStringLiteral("gridFlag"), p.m_gridFlag },
        { QStringLiteral("overlap"), p.m_overlap },
        { QStringLiteral("indexA"), p.m_indexA },
        { QStringLiteral("outputMode"), p.m_outputMode },
        { QStringLiteral("text1"), p.m_text1 },
        { QStringLiteral("text2"), p.m_text2 },
        { QStringLiteral("flag4"), p.m_flag4 },
    };
}

bool DescriptionJson::fromJson(
    const QJsonObject& object, StructuredPanoramaProperties* panorama, QString* error)
{
    Reader r(object);
    StructuredPanoramaProperties p;
    const QJsonArray stacks = r.array("stacks");
    for (const QJsonValue& stack : stacks) {
        if (!stack.isArray()) {
            r.fail(QStringLiteral("member \"stacks\" holds something else than arrays"));
            break;
        }
        QStringList paths;
        for (const QJsonValue& path : stack.toArray()) {
            if (!path.isString()) {
                r.fail(QStringLiteral("a stack holds something else than paths"));
                break;
            }
            paths.append(path.toString());
        }
        p.m_stacks.append(paths);
    }
    const QJsonArray links = r.array("links");
    for (const QJsonValue& value : links) {
        if (!value.isObject()) {
            r.fail(QStringLiteral("member \"links\" holds something else than objects"));
            break;
        }
        Reader lr(value.toObject());
        AuthorizedLink link;
        link.m_direction = lr.integer("direction");
        for (const QJsonValue& i : lr.array("stackIndices")) {
            const double d = i.toDouble(-1.0);
            if (!i.isDouble() || !Reader::isInteger(d) || d < 0 || d >= p.m_stacks.size()) {
                lr.fail(QStringLiteral("a link names a stack that does not exist"));
                break;
            }
            link.m_stackIndices.append(int(d));
        }
        if (!lr.ok()) {
            r.fail(QStringLiteral("link %1: %2").arg(p.m_links.size()).arg(lr.error()));
            break;
        }
        p.m_links.append(link);
    }
    p.m_yaw = r.floats("yaw");
    p.m_pitch = r.floats("pitch");
    p.m_roll = r.floats("roll");
    p.m_useShootData = r.boolean("useShootData");
    p.m_focalLength = r.single("focalLength");
    const qint32 lens = r.integer("lensModel");
    if (lens < -1 || lens > 1)
        r.fail(QStringLiteral("member \"lensModel\" is not -1, 0 or 1"));
    p.m_lensModel = LensModel(lens);
    p.m_flag2 = r.boolean("flag2");
    p.m_intA = r.integer("intA");
    p.m_intB = r.integer("intB");
    p.m_intC = r.integer("intC");
    p.m_flag3 = r.boolean("flag3");
    p.m_autoDetection = r.boolean("autoDetection");
    p.m_stackLinking = r.integer("stackLinking");
    p.m_levelLinking = r.integer("levelLinking");
    p.m_useRecordedLocation = r.boolean("useRecordedLocation");
    p.m_skipOptimization = r.boolean("skipOptimization");
    p.m_cleanWrongLinks = r.boolean("cleanWrongLinks");
    p.m_gridOrder = r.integer("gridOrder");
    p.m_gridRows = r.integer("gridRows");
    p.m_bracketCount = r.integer("bracketCount");
    p.m_gridFlag = r.boolean("gridFlag");
    p.m_overlap = r.real("overlap");
    p.m_indexA = r.integer("indexA");
    p.m_outputMode = r.integer("outputMode");
    p.m_text1 = r.text("text1");
    p.m_text2 = r.text("text2");
    p.m_flag4 = r.boolean("flag4");
    if (!r.ok()) {
        if (error)
            *error = r.error();
        return false;
    }
    *panorama = p;
    return true;
}

bool DescriptionJson::write(
    const StructuredPanoramaProperties& panorama, const QString& path, QString* error)
{
    QSaveFile file(path);
    const QByteArray bytes = QJsonDocument(toJson(panorama)).toJson(QJsonDocument::Indented);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        if (error)
            *error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

bool DescriptionJson::read(
    const QString& path, StructuredPanoramaProperties* panorama, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return false;
    }
    QString reason;
    if (!parse(file.readAll(), panorama, &reason)) {
        if (error)
            *error = QStringLiteral("%1 is not a panorama description: %2").arg(path, reason);
        return false;
    }
    return true;
}

bool DescriptionJson::parse(
    const QByteArray& bytes, StructuredPanoramaProperties* panorama, QString* error)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError || !document.isObject()) {
        if (error)
            *error = parseError.error != QJsonParseError::NoError
                ? parseError.errorString()
                : QStringLiteral("not a JSON object");
        return false;
    }
    return fromJson(document.object(), panorama, error);
}
