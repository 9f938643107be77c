// Reading one photograph: EXIF data through exiv2, the preview through Qt's
// image readers. Everything here runs on the caller's thread and shares no
// mutable state except exiv2's one-time initialisation.
#include "ImageDefinition.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QLoggingCategory>
#include <QMutexLocker>
#include <QThread>

#include <cmath>
#include <cstring>
#include <mutex>
#include <unordered_map>
#include <vector>

#if defined(Q_OS_UNIX)
#include <sys/stat.h>
#endif

// exiv2 0.27 still hands out std::auto_ptr.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <exiv2/exiv2.hpp>

Q_LOGGING_CATEGORY(lcImage, "zph.host.image", QtWarningMsg)

namespace {

/// Declared pixels beyond which a JPEG is not decoded. The decoder shrinks a
/// JPEG by 8 while decoding, so this bounds the decode buffer to 64 MiB.
constexpr qint64 MaxJpegPixels = qint64(1) << 30;
/// Other formats are decoded at full size first: 128 Mpx, 512 MiB at 32 bits.
constexpr qint64 MaxOtherPixels = qint64(1) << 27;
/// An embedded thumbnail declaring more than this is not a thumbnail.
constexpr qint64 MaxEmbeddedPixels = qint64(4096) * 4096;

void exivLog(int level, const char* message)
{
    // exiv2 reports broken metadata as warnings; keep them out of the user's
    // terminal unless asked for.
    if (level >= Exiv2::LogMsg::error)
        qCInfo(lcImage) << "exiv2:" << QByteArray(message).trimmed();
    else
        qCDebug(lcImage) << "exiv2:" << QByteArray(message).trimmed();
}

std::mutex s_xmpMutex;

void xmpLock(void*, bool lock)
{
    if (lock)
        s_xmpMutex.lock();
    else
        s_xmpMutex.unlock();
}

/// exiv2's XMP toolkit must be initialised once, before any thread parses.
void initialiseExiv2()
{
    static std::once_flag once;
    std::call_once(once, [] {
        Exiv2::LogMsg::setHandler(exivLog);
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::warn);
        Exiv2::XmpParser::initialize(xmpLock, nullptr);
    });
}

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

/// A JPEG file's headers: every segment up to and including the start of
/// the first scan, which is all the metadata (EXIF with its thumbnail, XMP,
/// the frame size). Read with one read of the first 64 KiB, more only when
/// the headers are longer.
struct JpegHeaders
{
    QByteArray bytes;
    /// Where the scan data begins; -1 when the headers are cut short or broken.
    qint64 scanStart = -1;
};

JpegHeaders readJpegHeaders(QFile& file, const QByteArray& firstChunk)
{
    JpegHeaders headers;
    headers.bytes = firstChunk;
    const qint64 size = file.size();
    auto have = [&](qint64 end) {
        // Reads on until `end` bytes are in hand (or the file ends).
        if (end <= headers.bytes.size())
            return true;
        if (end > size || end > (qint64(1) << 30) || !file.seek(headers.bytes.size()))
            return false;
        headers.bytes += file.read(
            qMax(end, headers.bytes.size() + qint64(256 * 1024)) - headers.bytes.size());
        return end <= headers.bytes.size();
    };
    auto data = [&] { return reinterpret_cast<const uchar*>(headers.bytes.constData()); };
    if (!have(2) || data()[0] != 0xFF || data()[1] != 0xD8)
        return headers;
    qint64 pos = 2;
    for (int segments = 0; segments < 4096; ++segments) {
        if (!have(pos + 4) || data()[pos] != 0xFF)
            return headers;
        if (data()[pos + 1] == 0xFF) { // fill byte
            ++pos;
            continue;
        }
        const int length = (data()[pos + 2] << 8) | data()[pos + 3];
        if (length < 2)
            return headers;
        if (data()[pos + 1] == 0xDA) {
            const qint64 scanStart = pos + 2 + length;
            if (!have(scanStart))
                return headers;
            headers.bytes.truncate(int(scanStart));
            headers.scanStart = scanStart;
            return headers;
        }
        pos += 2 + length;
    }
    return headers;
}

/// Whether a JPEG file holds its end-of-image marker after `scanStart`. The
/// scan data cannot contain the marker (0xFF is always followed by 0x00 or a
/// restart marker inside it), so a file cut short in its picture data has
/// none there. The search runs backwards from the end, so a whole file costs
/// a look at its last bytes; data appended after the picture is tolerated.
bool jpegHasEnd(QFile& file, qint64 scanStart)
{
    const qint64 size = file.size();
    // A small first look (the marker is normally in the last bytes), then
    // larger steps back for files with data appended after the picture.
    qint64 chunk = 4 * 1024;
    QByteArray buffer;
    qint64 end = size;
    while (end > scanStart) {
        // Chunks overlap by one byte so a marker split across two is found.
        const qint64 begin = qMax(scanStart, end - chunk);
        chunk = 256 * 1024;
        if (!file.seek(begin))
            return false;
        buffer = file.read(end - begin);
        if (buffer.size() != end - begin)
            return false;
        const uchar* bytes = reinterpret_cast<const uchar*>(buffer.constData());
        for (qint64 i = buffer.size() - 2; i >= 0; --i) {
            if (bytes[i] == 0xFF && bytes[i + 1] == 0xD9)
                return true;
        }
        if (begin == scanStart)
            break;
        end = begin + 1;
    }
    return false;
}

/// The file's modification time, milliseconds since 1970 UTC. Read from the
/// file system directly: going through a local-time QDateTime would call the
/// C library's time-zone code, which is not safe on several threads at once.
qint64 modificationTime(QFile& file)
{
#if defined(Q_OS_UNIX)
    struct stat st;
    if (::fstat(file.handle(), &st) != 0)
        return 0;
#if defined(Q_OS_DARWIN)
    return qint64(st.st_mtimespec.tv_sec) * 1000 + st.st_mtimespec.tv_nsec / 1000000;
#else
    return qint64(st.st_mtim.tv_sec) * 1000 + st.st_mtim.tv_nsec / 1000000;
#endif
#else
    return QFileInfo(file).fileTime(QFileDevice::FileModificationTime).toMSecsSinceEpoch();
#endif
}

QSize fitInside(const QSize& size, int side)
{
    if (size.width() <= side && size.height() <= side)
        return size;
    return size.scaled(side, side, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

/// The thumbnail as kept: 32-bit RGB, as the decoders give it, when that
/// takes at most 96 KiB (a 192 × 128 picture, the usual 160 × 120 EXIF
/// thumbnail), else 24-bit RGB (a 192 × 192 picture then takes 108 KiB).
QImage compactThumbnail(const QImage& image)
{
    const bool fits32
        = qint64(image.width()) * image.height() * 4 <= ImageDefinition::Max32BitThumbnailBytes;
    const QImage::Format kept = fits32 ? QImage::Format_RGB32 : QImage::Format_RGB888;
    if (image.format() == kept)
        return image;
    // Converted here, pixel by pixel: QImage::convertToFormat hands larger
    // images to Qt's thread pool, which a reading thread has no need of.
    QImage out(image.size(), kept);
    if (out.isNull())
        return out;
    const bool direct = image.format() == QImage::Format_RGB32
        || image.format() == QImage::Format_ARGB32
        || image.format() == QImage::Format_ARGB32_Premultiplied;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* line = direct ? reinterpret_cast<const QRgb*>(image.constScanLine(y)) : nullptr;
        uchar* to = out.scanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            const QRgb rgb = line ? line[x] : image.pixel(x, y);
            if (fits32) {
                reinterpret_cast<QRgb*>(to)[x] = 0xFF000000u | rgb;
            } else {
                to[3 * x] = uchar(qRed(rgb));
                to[3 * x + 1] = uchar(qGreen(rgb));
                to[3 * x + 2] = uchar(qBlue(rgb));
            }
        }
    }
    return out;
}

/// Decodes through `reader`, shrunk to fit ThumbnailSide, in the kept format. Null
/// when the declared size is unknown or beyond `maxPixels`, or decoding fails.
QImage decodeThumbnail(QImageReader& reader, qint64 maxPixels, const QString& what)
{
    const QSize declared = reader.size();
    if (!declared.isValid() || declared.isEmpty()) {
        qCDebug(lcImage) << what << "has no readable size:" << reader.errorString();
        return QImage();
    }
    if (qint64(declared.width()) * declared.height() > maxPixels) {
        qCWarning(lcImage) << what << "declares" << declared << "pixels, beyond the limit";
        return QImage();
    }
    const QSize target = fitInside(declared, ImageDefinition::ThumbnailSide);
    if (target != declared)
        reader.setScaledSize(target);
    QImage image = reader.read();
    if (image.isNull()) {
        qCDebug(lcImage) << what << "cannot be decoded:" << reader.errorString();
        return QImage();
    }
    if (image.width() > ImageDefinition::ThumbnailSide
        || image.height() > ImageDefinition::ThumbnailSide)
        image = image.scaled(fitInside(image.size(), ImageDefinition::ThumbnailSide),
            Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return compactThumbnail(image);
}

QImage decodeEmbedded(
    const Exiv2::byte* data, long size, const char* mimeType, const QString& what, int minSide)
{
    if (!data || size <= 0 || size > (1L << 30))
        return QImage();
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    // A JPEG thumbnail is read by the JPEG reader without probing every format.
    const bool jpeg = mimeType && std::strcmp(mimeType, "image/jpeg") == 0;
    QImageReader reader(&buffer, jpeg ? QByteArray("jpeg") : QByteArray());
    const QSize declared = reader.size();
    if (!declared.isValid() || qMax(declared.width(), declared.height()) < minSide)
        return QImage();
    return decodeThumbnail(reader, MaxEmbeddedPixels, what);
}

} // namespace

ImageDefinition* ImageDefinition::Read(const QString& path, ReadOptions options)
{
    try {
        initialiseExiv2();

        QFile file(path);
        if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
            qCWarning(lcImage) << "cannot open" << path << file.errorString();
            return nullptr;
        }
        if (file.size() == 0) {
            qCWarning(lcImage) << path << "is empty";
            return nullptr;
        }

        std::unique_ptr<ImageDefinition> def(new ImageDefinition);
        def->m_path = path;

        // A JPEG is read once up to its picture data: exiv2 parses the
        // headers from memory. Other files exiv2 opens itself. A file exiv2
        // cannot parse may still be a picture Qt reads.
        const QByteArray firstChunk = file.read(64 * 1024);
        const bool jpegSignature = firstChunk.size() >= 2 && uchar(firstChunk[0]) == 0xFF
            && uchar(firstChunk[1]) == 0xD8;
        JpegHeaders headers;
        if (jpegSignature) {
            headers = readJpegHeaders(file, firstChunk);
            if (headers.scanStart < 0 || !jpegHasEnd(file, headers.scanStart)) {
                qCWarning(lcImage) << path << "is a truncated or damaged JPEG";
                return nullptr;
            }
        }
        std::string mimeType;
        Exiv2::Image::AutoPtr image;
        try {
            if (jpegSignature)
                image = Exiv2::ImageFactory::open(
                    reinterpret_cast<const Exiv2::byte*>(headers.bytes.constData()),
                    long(headers.bytes.size()));
            else
                image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
            if (image.get()) {
                image->readMetadata();
                mimeType = image->mimeType();
            }
        } catch (const std::exception& e) {
            qCDebug(lcImage) << "no metadata in" << path << e.what();
            mimeType.clear();
            image.reset();
        }

        const Exiv2::ExifData empty;
        const Exiv2::ExifData& exif = image.get() ? image->exifData() : empty;
        def->m_hasExif = !exif.empty();
        if (image.get() && image->pixelWidth() > 0 && image->pixelHeight() > 0)
            def->m_pixelSize = QSize(image->pixelWidth(), image->pixelHeight());

        if (def->m_hasExif) {
            const FoundFields found = findFields(exif);
            auto field = [&](Field f) { return found.field[int(f)]; };

            def->m_focalLength = float(rationalValue(field(Field::FocalLength)));
            def->m_focalLength35mm = float(rationalValue(field(Field::FocalLength35mm)));

            def->m_exposureTime = rationalValue(field(Field::ExposureTime));
            if (def->m_exposureTime <= 0.0 && field(Field::ShutterSpeedValue)) {
                // APEX shutter speed value: t = 2^-Tv.
                const Exiv2::Rational tv = field(Field::ShutterSpeedValue)->toRational(0);
                if (tv.second != 0)
                    def->m_exposureTime = std::exp2(-double(tv.first) / double(tv.second));
            }
            if (!std::isfinite(def->m_exposureTime) || def->m_exposureTime < 0.0)
                def->m_exposureTime = 0.0;
            def->m_aperture = rationalValue(field(Field::FNumber));
            if (def->m_aperture <= 0.0) {
                // APEX aperture value: N = 2^(Av / 2).
                const double av = rationalValue(field(Field::ApertureValue));
                if (av > 0.0 && av < 64.0)
                    def->m_aperture = std::exp2(av / 2.0);
            }
            if (def->m_aperture < 0.0)
                def->m_aperture = 0.0;
            const long iso = longValue(field(Field::Iso));
            def->m_iso = (iso > 0 && iso < 10000000) ? int(iso) : 0;

            const long orientation = longValue(field(Field::Orientation));
            def->m_orientation = (orientation >= 1 && orientation <= 8) ? int(orientation) : 1;

            def->m_cameraMake = textValue(field(Field::Make));
            def->m_cameraModel = textValue(field(Field::Model));

            // The lens: the standard EXIF lens tags, then the makers' lens
            // tags as exiv2 names the lens.
            const QString lensModel = textValue(field(Field::LensModel));
            const QString lensMake = textValue(field(Field::LensMake));
            bool fisheye = saysFisheye(lensModel) || saysFisheye(lensMake);
            QString makerLens;
            for (const Exiv2::Exifdatum* datum : found.makerLenses) {
                const QString name = QString::fromStdString(datum->print(&exif)).trimmed();
                if (makerLens.isEmpty())
                    makerLens = name;
                fisheye = fisheye || saysFisheye(name);
            }
            def->m_lensDescription = !lensModel.isEmpty() ? lensModel : makerLens;
            def->m_lensType = fisheye ? 1 : 0;

            if (const Exiv2::Exifdatum* date = field(Field::DateTimeOriginal)) {
                const Exiv2::Exifdatum* sub = field(Field::SubSecTimeOriginal);
                def->m_shootingTime
                    = parseExifDateTime(date->toString(), sub ? sub->toString() : std::string());
            }

            if (!def->m_pixelSize.isValid() || def->m_pixelSize.isEmpty()) {
                const long w = longValue(field(Field::PixelXDimension));
                const long h = longValue(field(Field::PixelYDimension));
                if (w >= 1 && h >= 1 && w < 1000000 && h < 1000000)
                    def->m_pixelSize = QSize(int(w), int(h));
            }
        }

        if (def->m_shootingTime.isValid()) {
            def->m_orderKey = def->m_shootingTime.toMSecsSinceEpoch();
            def->m_orderKeyFromExif = true;
        } else {
            def->m_orderKey = modificationTime(file);
        }

        if (def->m_exposureTime > 0.0) {
            const double n = def->m_aperture > 0.0 ? def->m_aperture : 1.0;
            const double iso = def->m_iso > 0 ? double(def->m_iso) : 100.0;
            const double ev = std::log2(n * n / def->m_exposureTime) - std::log2(iso / 100.0);
            def->m_exposure = std::isfinite(ev) ? float(ev) : 0.0f;
        }

        // Is it a picture Qt can decode? A JPEG needs no probing.
        QByteArray format;
        if (jpegSignature) {
            format = "jpeg";
        } else {
            file.seek(0);
            QImageReader probe(&file);
            format = probe.format();
        }
        const bool isJpeg = format == "jpeg";
        if (format.isEmpty() && !image.get()) {
            qCWarning(lcImage) << path << "is not a picture";
            return nullptr;
        }
        if ((!def->m_pixelSize.isValid() || def->m_pixelSize.isEmpty()) && !format.isEmpty()) {
            file.seek(0);
            QImageReader sizeReader(&file, format);
            def->m_pixelSize = sizeReader.size();
        }
        if (!def->m_pixelSize.isValid() || def->m_pixelSize.isEmpty()) {
            qCWarning(lcImage) << path << "has no readable picture size";
            return nullptr;
        }
        const qint64 maxPixels = isJpeg ? MaxJpegPixels : MaxOtherPixels;
        if (!format.isEmpty()
            && qint64(def->m_pixelSize.width()) * def->m_pixelSize.height() > maxPixels) {
            qCWarning(lcImage) << path << "declares" << def->m_pixelSize
                               << "pixels, beyond the limit";
            return nullptr;
        }

        if (options & WithThumbnail) {
            // The embedded thumbnail when large enough: no need to decode the picture.
            if (def->m_hasExif) {
                Exiv2::ExifThumbC thumb(exif);
                const Exiv2::DataBuf data = thumb.copy();
                def->m_thumbnailImage = decodeEmbedded(data.pData_, data.size_, thumb.mimeType(),
                    path + QLatin1String(" (EXIF thumbnail)"), MinEmbeddedThumbnailSide);
                def->m_thumbnailEmbedded = !def->m_thumbnailImage.isNull();
            }
            if (def->m_thumbnailImage.isNull() && !format.isEmpty()) {
                file.seek(0);
                QImageReader full(&file, format);
                full.setAutoTransform(false);
                def->m_thumbnailImage = decodeThumbnail(full, maxPixels, path);
            }
            if (def->m_thumbnailImage.isNull() && image.get()) {
                // A format Qt cannot decode (a raw file): the smallest preview
                // the file carries that is large enough, or else the largest.
                Exiv2::PreviewManager previews(*image);
                const Exiv2::PreviewPropertiesList list = previews.getPreviewProperties();
                const Exiv2::PreviewProperties* chosen = nullptr;
                for (const auto& properties : list) {
                    chosen = &properties;
                    if (qMax(properties.width_, properties.height_)
                        >= uint32_t(MinEmbeddedThumbnailSide))
                        break;
                }
                if (chosen) {
                    const Exiv2::PreviewImage preview = previews.getPreviewImage(*chosen);
                    def->m_thumbnailImage = decodeEmbedded(preview.pData(), long(preview.size()),
                        preview.mimeType().c_str(), path + QLatin1String(" (preview)"), 1);
                    def->m_thumbnailEmbedded = !def->m_thumbnailImage.isNull();
                }
            }
            if (def->m_thumbnailImage.isNull()) {
                qCWarning(lcImage) << "no preview can be made of" << path;
                return nullptr;
            }
        }
        return def.release();
    } catch (const std::exception& e) {
        qCWarning(lcImage) << "cannot read" << path << e.what();
    } catch (...) {
        qCWarning(lcImage) << "cannot read" << path;
    }
    return nullptr;
}

#pragma GCC diagnostic pop

ImageDefinition::~ImageDefinition() = default;

const QPixmap& ImageDefinition::Thumbnail() const
{
    static const QPixmap none;
    QCoreApplication* app = QCoreApplication::instance();
    if (!app || !qobject_cast<QGuiApplication*>(app) || QThread::currentThread() != app->thread()) {
        qCWarning(lcImage) << "a thumbnail pixmap is made on the GUI thread only";
        return none;
    }
    QMutexLocker lock(&m_pixmapMutex);
    if (!m_pixmapMade) {
        // Keep the stored format: the pixmap then shares the image's pixels
        // instead of holding a second, 32-bit copy.
        if (!m_thumbnailImage.isNull())
            m_thumbnail = QPixmap::fromImage(m_thumbnailImage, Qt::NoFormatConversion);
        m_pixmapMade = true;
    }
    return m_thumbnail;
}

float ImageDefinition::FocalLength() const
{
    // The full-frame equivalent the records and the exports work in.
    return m_focalLength35mm > 0.0f ? m_focalLength35mm : m_focalLength;
}

int ImageDefinition::LensType() const
{
    return m_lensType;
}

qint64 ImageDefinition::OrderKey() const
{
    return m_orderKey;
}

float ImageDefinition::Exposure() const
{
    return m_exposure;
}

QSize ImageDefinition::OrientedSize() const
{
    return m_orientation >= 5 ? m_pixelSize.transposed() : m_pixelSize;
}

double ImageDefinition::CropFactor() const
{
    if (m_focalLength <= 0.0f || m_focalLength35mm <= 0.0f)
        return 0.0;
    return double(m_focalLength35mm) / double(m_focalLength);
}

qint64 ImageDefinition::MemoryFootprint() const
{
    auto text = [](const QString& s) { return qint64(s.capacity()) * 2 + 32; };
    qint64 bytes = sizeof(ImageDefinition) + text(m_path) + text(m_cameraMake) + text(m_cameraModel)
        + text(m_lensDescription);
    if (!m_thumbnailImage.isNull())
        bytes += m_thumbnailImage.sizeInBytes() + 128; // plus the image's private header
    if (m_shootingTime.isValid())
        bytes += 32;
    return bytes;
}
