#include "Thumbnailer.h"

#include "ImageDefinition.h"
#include "ImageLog.h"

#include <QBuffer>
#include <QImageReader>

#include <cstring>

// exiv2 0.27 still hands out std::auto_ptr.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <exiv2/exiv2.hpp>

namespace {

/// Decodes through `reader`, shrunk to fit ThumbnailSide, in the kept format. Null
/// when the declared size is unknown or beyond `maxPixels`, or decoding fails.
QImage decodeThumbnail(QImageReader& reader, qint64 maxPixels, const QString& what)
{
    const QSize declared = Thumbnailer::declaredSize(reader);
    if (!declared.isValid() || declared.isEmpty()) {
        qCDebug(lcImage) << what << "has no readable size:" << reader.errorString();
        return QImage();
    }
    if (qint64(declared.width()) * declared.height() > maxPixels) {
        qCWarning(lcImage) << what << "declares" << declared << "pixels, beyond the limit";
        return QImage();
    }
    const QSize target = Thumbnailer::fitInside(declared, ImageDefinition::ThumbnailSide);
    if (target != declared)
        reader.setScaledSize(target);
    QImage image = reader.read();
    if (image.isNull()) {
        qCDebug(lcImage) << what << "cannot be decoded:" << reader.errorString();
        return QImage();
    }
    if (image.width() > ImageDefinition::ThumbnailSide
        || image.height() > ImageDefinition::ThumbnailSide)
        image = image.scaled(Thumbnailer::fitInside(image.size(), ImageDefinition::ThumbnailSide),
            Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return Thumbnailer::compact(image);
}

/// An embedded picture (EXIF thumbnail or preview) when its longest side
/// reaches `minSide`; null otherwise.
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
    return decodeThumbnail(reader, Thumbnailer::MaxEmbeddedPixels, what);
}

/// The EXIF thumbnail when large enough.
QImage fromExifThumbnail(const Exiv2::ExifData& exif, const QString& path)
{
    Exiv2::ExifThumbC thumb(exif);
    const Exiv2::DataBuf data = thumb.copy();
    return decodeEmbedded(data.pData_, data.size_, thumb.mimeType(),
        path + QLatin1String(" (EXIF thumbnail)"), ImageDefinition::MinEmbeddedThumbnailSide);
}

/// A reduced-size decode of the picture itself.
QImage fromPicture(QIODevice& file, const QByteArray& format, const QString& path)
{
    file.seek(0);
    QImageReader full(&file, format);
    full.setAutoTransform(false);
    return decodeThumbnail(full, Thumbnailer::maxPixels(format, file.size()), path);
}

/// The smallest preview the file carries that is large enough, or else the largest.
QImage fromPreviews(Exiv2::Image& image, const QString& path)
{
    Exiv2::PreviewManager previews(image);
    const Exiv2::PreviewPropertiesList list = previews.getPreviewProperties();
    const Exiv2::PreviewProperties* chosen = nullptr;
    for (const auto& properties : list) {
        chosen = &properties;
        if (qMax(properties.width_, properties.height_)
            >= uint32_t(ImageDefinition::MinEmbeddedThumbnailSide))
            break;
    }
    if (!chosen)
        return QImage();
    const Exiv2::PreviewImage preview = previews.getPreviewImage(*chosen);
    return decodeEmbedded(preview.pData(), long(preview.size()), preview.mimeType().c_str(),
        path + QLatin1String(" (preview)"), 1);
}

} // namespace

QSize Thumbnailer::declaredSize(QImageReader& reader)
{
    const QSize size = reader.size();
    if (reader.format() != "gif" || !reader.device())
        return size;
    // "GIF87a" or "GIF89a", then the canvas's width and height, 16 bits each,
    // least significant byte first.
    const QByteArray header = reader.device()->peek(10);
    if (header.size() < 10 || !header.startsWith("GIF8"))
        return size;
    const auto at
        = [&header](int i) { return int(uchar(header[i])) | int(uchar(header[i + 1])) << 8; };
    return QSize(at(6), at(8)).expandedTo(size);
}

qint64 Thumbnailer::maxPixels(const QByteArray& format, qint64 fileSize)
{
    if (format == "jpeg")
        return MaxJpegPixels;
    if (fileSize >= MaxOtherPixels / MaxPixelsPerByte)
        return MaxOtherPixels;
    return qMax(PlausibleAnywayPixels, qMax<qint64>(fileSize, 0) * MaxPixelsPerByte);
}

Thumbnailer::Result Thumbnailer::make(const Exiv2::ExifData& exif, Exiv2::Image* image,
    QIODevice& file, const QByteArray& format, const QString& path)
{
    Result result;
    // The embedded thumbnail when large enough: no need to decode the picture.
    if (!exif.empty()) {
        result.image = fromExifThumbnail(exif, path);
        result.embedded = !result.image.isNull();
    }
    if (result.image.isNull() && !format.isEmpty())
        result.image = fromPicture(file, format, path);
    if (result.image.isNull() && image) {
        result.image = fromPreviews(*image, path);
        result.embedded = !result.image.isNull();
    }
    return result;
}

QSize Thumbnailer::fitInside(const QSize& size, int side)
{
    if (size.width() <= side && size.height() <= side)
        return size;
    return size.scaled(side, side, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QImage Thumbnailer::compact(const QImage& image)
{
    // 96 KiB holds a 192 × 128 picture (the usual 160 × 120 EXIF thumbnail)
    // in 32 bits; a 192 × 192 picture takes 108 KiB in 24 bits.
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

#pragma GCC diagnostic pop
