#include "PhotoFixture.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageWriter>

#include <cstdint>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <exiv2/exiv2.hpp>

QImage PhotoFixture::picture(const QSize& size, int seed, int noise)
{
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    // A sky-to-ground gradient with a seed-dependent hue and stripes, plus a
    // cheap deterministic noise that stands in for a real scene's texture.
    const int w = size.width();
    const int h = size.height();
    uint32_t state = 2166136261u ^ uint32_t(seed) * 16777619u;
    for (int y = 0; y < h; ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const int base = 255 * y / qMax(1, h - 1);
        for (int x = 0; x < w; ++x) {
            int r = (base + seed * 37) & 255;
            int g = (x * 255 / qMax(1, w - 1) + seed * 11) & 255;
            int b = 255 - base;
            if (((x + seed * 13) / 64 + y / 64) % 5 == 0)
                r = 255 - r;
            if (noise > 0) {
                state ^= state << 13;
                state ^= state >> 17;
                state ^= state << 5;
                const int n = int(state % uint32_t(2 * noise + 1)) - noise;
                r = qBound(0, r + n, 255);
                g = qBound(0, g + n, 255);
                b = qBound(0, b + n, 255);
            }
            line[x] = qRgb(r, g, b);
        }
    }
    return image;
}

bool PhotoFixture::write(const QString& path)
{
    m_error.clear();
    QByteArray jpeg;
    {
        QBuffer buffer(&jpeg);
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "jpeg");
        writer.setQuality(quality);
        if (!writer.write(picture(size, seed, noise))) {
            m_error = writer.errorString();
            return false;
        }
    }
    if (exif) {
        try {
            Exiv2::ExifData data;
            auto rational = [&](const char* key, int num, int den) {
                if (den != 0)
                    data[key] = Exiv2::URational(uint32_t(num), uint32_t(den));
            };
            rational("Exif.Photo.FocalLength", focalNum, focalDen);
            rational("Exif.Photo.ExposureTime", exposureNum, exposureDen);
            rational("Exif.Photo.FNumber", fNumberNum, fNumberDen);
            if (focal35mm > 0)
                data["Exif.Photo.FocalLengthIn35mmFilm"] = uint16_t(focal35mm);
            if (iso > 0)
                data["Exif.Photo.ISOSpeedRatings"] = uint16_t(iso);
            if (orientation > 0)
                data["Exif.Image.Orientation"] = uint16_t(orientation);
            if (!dateTimeOriginal.isEmpty())
                data["Exif.Photo.DateTimeOriginal"] = dateTimeOriginal.toStdString();
            if (!subSecTimeOriginal.isEmpty())
                data["Exif.Photo.SubSecTimeOriginal"] = subSecTimeOriginal.toStdString();
            if (!make.isEmpty())
                data["Exif.Image.Make"] = make.toStdString();
            if (!model.isEmpty())
                data["Exif.Image.Model"] = model.toStdString();
            if (!lensModel.isEmpty())
                data["Exif.Photo.LensModel"] = lensModel.toStdString();
            if (!lensMake.isEmpty())
                data["Exif.Photo.LensMake"] = lensMake.toStdString();
            data["Exif.Photo.PixelXDimension"] = uint32_t(size.width());
            data["Exif.Photo.PixelYDimension"] = uint32_t(size.height());
            if (thumbnail.isValid()) {
                QByteArray thumbJpeg;
                QBuffer buffer(&thumbJpeg);
                buffer.open(QIODevice::WriteOnly);
                QImageWriter writer(&buffer, "jpeg");
                writer.setQuality(80);
                if (!writer.write(picture(thumbnail, seed, 0))) {
                    m_error = writer.errorString();
                    return false;
                }
                Exiv2::ExifThumb thumb(data);
                thumb.setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(thumbJpeg.constData()),
                    long(thumbJpeg.size()));
            }
            Exiv2::Image::AutoPtr image = Exiv2::ImageFactory::open(
                reinterpret_cast<const Exiv2::byte*>(jpeg.constData()), long(jpeg.size()));
            image->setExifData(data);
            image->writeMetadata();
            Exiv2::BasicIo& io = image->io();
            io.open();
            const long ioSize = long(io.size());
            Exiv2::DataBuf out = io.read(ioSize);
            io.close();
            jpeg = QByteArray(reinterpret_cast<const char*>(out.pData_), int(out.size_));
        } catch (const std::exception& e) {
            m_error = QString::fromLocal8Bit(e.what());
            return false;
        }
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(jpeg) != jpeg.size()) {
        m_error = file.errorString();
        return false;
    }
    return true;
}

#pragma GCC diagnostic pop
