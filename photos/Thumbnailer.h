// Thumbnailer: the preview of one photograph, at most
// ImageDefinition::ThumbnailSide on its long side and never enlarged: the
// embedded EXIF thumbnail when it is large enough, else a reduced-size decode
// of the picture, else (a format Qt cannot decode, such as a raw file) a
// preview that the file carries. Kept in 32-bit RGB while that stays small,
// in 24-bit RGB above. Any thread; nothing shared.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

class QIODevice;
namespace Exiv2 {
class ExifData;
class Image;
} // namespace Exiv2

class Thumbnailer
{
public:
    /// Declared pixels beyond which a JPEG is not decoded. The decoder shrinks a
    /// JPEG by 8 while decoding, so this bounds the decode buffer to 64 MiB.
    static constexpr qint64 MaxJpegPixels = qint64(1) << 30;
    /// Other formats are decoded at full size first: 128 Mpx, 512 MiB at 32 bits.
    static constexpr qint64 MaxOtherPixels = qint64(1) << 27;
    /// An embedded thumbnail declaring more than this is not a thumbnail.
    static constexpr qint64 MaxEmbeddedPixels = qint64(4096) * 4096;

    /// The pixels a picture of Qt format `format` may declare to be decoded.
    static qint64 maxPixels(const QByteArray& format);

    struct Result
    {
        /// Null when no preview could be made.
        QImage image;
        /// True when the image is a thumbnail or preview the file carries.
        bool embedded = false;
    };

    /// The preview of the picture in `file` (Qt format `format`, empty when Qt
    /// cannot decode it), whose metadata exiv2 parsed into `exif` and `image`
    /// (null when exiv2 could not). `path` names the file in the log.
    static Result make(const Exiv2::ExifData& exif, Exiv2::Image* image, QIODevice& file,
        const QByteArray& format, const QString& path);

    /// The thumbnail as kept: 32-bit RGB, as the decoders give it, when that
    /// takes at most ImageDefinition::Max32BitThumbnailBytes, else 24-bit RGB.
    static QImage compact(const QImage& image);
    /// `size` shrunk, keeping its aspect, to fit a square of `side`; unchanged
    /// when it fits already.
    static QSize fitInside(const QSize& size, int side);
};
