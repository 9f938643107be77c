#include "ExifFields.h"

#include <cmath>
#include <unordered_map>
#include <vector>

// exiv2 0.27 still hands out std::auto_ptr.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <exiv2/exiv2.hpp>

namespace {

/// The EXIF fields read, each found by its key in one pass over the data.
enum class Field {
    FocalLength,
    FocalLength35mm,
    ExposureTime,
    ShutterSpeedValue,
    FNumber,
    ApertureValue,
    Iso,
    Orientation,
    Make,
    Model,
    DateTimeOriginal,
    SubSecTimeOriginal,
    PixelXDimension,
    PixelYDimension,
    LensModel,
    LensMake,
    /// A maker's lens tag, read as exiv2 names the lens.
    MakerLens,
};

/// Keys by field; where a field has several keys, the first listed that the
/// file holds wins (the EXIF sub-IFD before the TIFF/EP tags of IFD0).
const std::vector<std::pair<const char*, Field>>& fieldKeys()
{
    static const std::vector<std::pair<const char*, Field>> keys = {
        { "Exif.Photo.FocalLength", Field::FocalLength },
        { "Exif.Image.FocalLength", Field::FocalLength },
        { "Exif.Photo.FocalLengthIn35mmFilm", Field::FocalLength35mm },
        { "Exif.Photo.ExposureTime", Field::ExposureTime },
        { "Exif.Image.ExposureTime", Field::ExposureTime },
        { "Exif.Photo.ShutterSpeedValue", Field::ShutterSpeedValue },
        { "Exif.Photo.FNumber", Field::FNumber },
        { "Exif.Image.FNumber", Field::FNumber },
        { "Exif.Photo.ApertureValue", Field::ApertureValue },
        { "Exif.Photo.ISOSpeedRatings", Field::Iso },
        { "Exif.Image.ISOSpeedRatings", Field::Iso },
        { "Exif.Image.Orientation", Field::Orientation },
        { "Exif.Image.Make", Field::Make },
        { "Exif.Image.Model", Field::Model },
        { "Exif.Photo.DateTimeOriginal", Field::DateTimeOriginal },
        { "Exif.Image.DateTimeOriginal", Field::DateTimeOriginal },
        { "Exif.Photo.SubSecTimeOriginal", Field::SubSecTimeOriginal },
        { "Exif.Photo.PixelXDimension", Field::PixelXDimension },
        { "Exif.Photo.PixelYDimension", Field::PixelYDimension },
        { "Exif.Photo.LensModel", Field::LensModel },
        { "Exif.Photo.LensMake", Field::LensMake },
        { "Exif.CanonCs.LensType", Field::MakerLens },
        { "Exif.Canon.LensModel", Field::MakerLens },
        { "Exif.NikonLd1.LensIDNumber", Field::MakerLens },
        { "Exif.NikonLd2.LensIDNumber", Field::MakerLens },
        { "Exif.NikonLd3.LensIDNumber", Field::MakerLens },
        { "Exif.Nikon3.Lens", Field::MakerLens },
        { "Exif.Pentax.LensType", Field::MakerLens },
        { "Exif.PentaxDng.LensType", Field::MakerLens },
        { "Exif.Samsung2.LensType", Field::MakerLens },
        { "Exif.Minolta.LensID", Field::MakerLens },
        { "Exif.Sony1.LensID", Field::MakerLens },
        { "Exif.Sony2.LensID", Field::MakerLens },
        { "Exif.OlympusEq.LensModel", Field::MakerLens },
        { "Exif.OlympusEq.LensType", Field::MakerLens },
        { "Exif.Panasonic.LensType", Field::MakerLens },
        { "Exif.Fujifilm.LensNameAndType", Field::MakerLens },
    };
    return keys;
}

/// The datum found for each field (null when absent), in one pass.
struct FoundFields
{
    const Exiv2::Exifdatum* field[int(Field::MakerLens) + 1] = {};
    int rank[int(Field::MakerLens) + 1] = {};
    std::vector<const Exiv2::Exifdatum*> makerLenses;

    const Exiv2::Exifdatum* operator[](Field f) const { return field[int(f)]; }
};

FoundFields findFields(const Exiv2::ExifData& exif)
{
    struct Entry
    {
        Field field;
        int rank;
    };
    static const std::unordered_map<std::string, Entry> index = [] {
        std::unordered_map<std::string, Entry> map;
        const auto& keys = fieldKeys();
        for (int i = 0; i < int(keys.size()); ++i)
            map.emplace(keys[size_t(i)].first, Entry { keys[size_t(i)].second, i });
        return map;
    }();
    FoundFields found;
    for (const Exiv2::Exifdatum& datum : exif) {
        if (datum.count() == 0)
            continue;
        const auto it = index.find(datum.key());
        if (it == index.end())
            continue;
        const int f = int(it->second.field);
        if (it->second.field == Field::MakerLens) {
            found.makerLenses.push_back(&datum);
        } else if (!found.field[f] || it->second.rank < found.rank[f]) {
            found.field[f] = &datum;
            found.rank[f] = it->second.rank;
        }
    }
    return found;
}

/// The rational as a double; 0 for a zero denominator or a value that is not finite.
double rationalValue(const Exiv2::Exifdatum* datum)
{
    if (!datum || datum->count() == 0)
        return 0.0;
    const Exiv2::Rational r = datum->toRational(0);
    if (r.second == 0)
        return 0.0;
    const double value = double(r.first) / double(r.second);
    return std::isfinite(value) ? value : 0.0;
}

long longValue(const Exiv2::Exifdatum* datum)
{
    return datum && datum->count() > 0 ? datum->toLong(0) : 0;
}

QString textValue(const Exiv2::Exifdatum* datum)
{
    return datum ? QString::fromStdString(datum->toString()).trimmed() : QString();
}

bool saysFisheye(const QString& text)
{
    return text.contains(QLatin1String("fisheye"), Qt::CaseInsensitive)
        || text.contains(QLatin1String("fish-eye"), Qt::CaseInsensitive)
        || text.contains(QLatin1String("fish eye"), Qt::CaseInsensitive);
}

int digit(const char* s, int i)
{
    return (s[i] >= '0' && s[i] <= '9') ? s[i] - '0' : -1;
}

/// "YYYY:MM:DD HH:MM:SS" as a wall-clock time marked UTC; invalid for
/// anything else, such as the blank "    :  :     :  :  " some cameras write.
QDateTime parseExifDateTime(const std::string& text, const std::string& subSeconds)
{
    if (text.size() < 19)
        return QDateTime();
    const char* s = text.c_str();
    static const int positions[] = { 0, 1, 2, 3, 5, 6, 8, 9, 11, 12, 14, 15, 17, 18 };
    int d[14];
    for (int i = 0; i < 14; ++i) {
        d[i] = digit(s, positions[i]);
        if (d[i] < 0)
            return QDateTime();
    }
    const QDate date(
        d[0] * 1000 + d[1] * 100 + d[2] * 10 + d[3], d[4] * 10 + d[5], d[6] * 10 + d[7]);
    // The decimal fraction of a second: "5" is 500 ms, "05" 50 ms, "123456" 123 ms.
    int ms = 0;
    int scale = 100;
    for (char c : subSeconds) {
        if (c == ' ' && ms == 0 && scale == 100)
            continue;
        if (c < '0' || c > '9' || scale == 0)
            break;
        ms += (c - '0') * scale;
        scale /= 10;
    }
    const QTime time(d[8] * 10 + d[9], d[10] * 10 + d[11], d[12] * 10 + d[13], ms);
    if (!date.isValid() || !time.isValid())
        return QDateTime();
    return QDateTime(date, time, Qt::UTC);
}

/// Seconds: ExposureTime, else the APEX shutter speed value (t = 2^-Tv).
double exposureSeconds(const FoundFields& found)
{
    double seconds = rationalValue(found[Field::ExposureTime]);
    if (seconds <= 0.0 && found[Field::ShutterSpeedValue]) {
        const Exiv2::Rational tv = found[Field::ShutterSpeedValue]->toRational(0);
        if (tv.second != 0)
            seconds = std::exp2(-double(tv.first) / double(tv.second));
    }
    if (!std::isfinite(seconds) || seconds < 0.0)
        seconds = 0.0;
    return seconds;
}

/// The f-number: FNumber, else the APEX aperture value (N = 2^(Av / 2)).
double fNumber(const FoundFields& found)
{
    double n = rationalValue(found[Field::FNumber]);
    if (n <= 0.0) {
        const double av = rationalValue(found[Field::ApertureValue]);
        if (av > 0.0 && av < 64.0)
            n = std::exp2(av / 2.0);
    }
    return n < 0.0 ? 0.0 : n;
}

} // namespace

ExifFields ExifFields::read(const Exiv2::ExifData& exif, bool withPixelSize)
{
    const FoundFields found = findFields(exif);
    ExifFields fields;

    fields.focalLength = float(rationalValue(found[Field::FocalLength]));
    fields.focalLength35mm = float(rationalValue(found[Field::FocalLength35mm]));

    fields.exposureTime = exposureSeconds(found);
    fields.aperture = fNumber(found);
    const long iso = longValue(found[Field::Iso]);
    fields.iso = (iso > 0 && iso < 10000000) ? int(iso) : 0;

    const long orientation = longValue(found[Field::Orientation]);
    fields.orientation = (orientation >= 1 && orientation <= 8) ? int(orientation) : 1;

    fields.make = textValue(found[Field::Make]);
    fields.model = textValue(found[Field::Model]);

    // The lens: the standard EXIF lens tags, then the makers' lens tags as
    // exiv2 names the lens.
    const QString lensModel = textValue(found[Field::LensModel]);
    const QString lensMake = textValue(found[Field::LensMake]);
    bool fisheye = saysFisheye(lensModel) || saysFisheye(lensMake);
    QString makerLens;
    for (const Exiv2::Exifdatum* datum : found.makerLenses) {
        const QString name = QString::fromStdString(datum->print(&exif)).trimmed();
        if (makerLens.isEmpty())
            makerLens = name;
        fisheye = fisheye || saysFisheye(name);
    }
    fields.lensDescription = !lensModel.isEmpty() ? lensModel : makerLens;
    fields.fisheye = fisheye;

    if (const Exiv2::Exifdatum* date = found[Field::DateTimeOriginal]) {
        const Exiv2::Exifdatum* sub = found[Field::SubSecTimeOriginal];
        fields.shootingTime
            = parseExifDateTime(date->toString(), sub ? sub->toString() : std::string());
    }

    if (withPixelSize) {
        const long w = longValue(found[Field::PixelXDimension]);
        const long h = longValue(found[Field::PixelYDimension]);
        if (w >= 1 && h >= 1 && w < 1000000 && h < 1000000)
            fields.pixelSize = QSize(int(w), int(h));
    }
    return fields;
}

#pragma GCC diagnostic pop
