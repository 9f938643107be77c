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
class QImageReader;
namespace Exiv2 {
class ExifData;
class Image;
} // namespace Exiv2

class Thumbnailer
{
public:
    /// Declared pixels beyond which a JPEG is not decoded. The decoder shrinks a
    /// baseline JPEG by 8 while decoding, so this bounds its decode buffer to
    /// 64 MiB; a progressive one keeps every block, which is why a JPEG must
    /// also have picture data enough for what it declares (JpegStructure::pixelBound).
    static constexpr qint64 MaxJpegPixels = qint64(1) << 30;
    /// Other formats are decoded at full size first: 128 Mpx, 512 MiB at 32 bits.
    static constexpr qint64 MaxOtherPixels = qint64(1) << 27;
    /// An embedded thumbnail declaring more than this is not a thumbnail.
    static constexpr qint64 MaxEmbeddedPixels = qint64(4096) * 4096;

    /// A picture of another format declaring more pixels than this per byte
    /// of its file cannot hold them (a flat one-bit PNG, the most compressed
    /// picture, holds about 8000): its decoder would fill a canvas of what
    /// it declares from a few bytes. Up to PlausibleAnywayPixels always pass.
    static constexpr qint64 MaxPixelsPerByte = 16384;
    static constexpr qint64 PlausibleAnywayPixels = qint64(1) << 20;

    /// The size of the picture `reader` would decode. Qt's GIF reader reports
    /// one that is not the canvas it then fills: a GIF's is read from its
    /// header.
    static QSize declaredSize(QImageReader& reader);

    /// The pixels a picture of Qt format `format` in a file of `fileSize`
    /// bytes may declare to be decoded.
    static qint64 maxPixels(const QByteArray& format, qint64 fileSize);

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
