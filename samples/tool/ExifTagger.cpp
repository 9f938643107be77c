#include "ExifTagger.h"

#include <exiv2/exiv2.hpp>

#include <exception>

bool ExifTagger::write(const QString& path, const Fields& fields, QString* error)
{
    try {
        auto image = Exiv2::ImageFactory::open(path.toStdString());
        image->readMetadata();
        Exiv2::ExifData& exif = image->exifData();
        const std::string stamp
            = fields.shot.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toStdString();
        exif["Exif.Image.Make"] = std::string("ZPanoHead");
        exif["Exif.Image.Model"] = std::string("Sample camera");
        exif["Exif.Image.Orientation"] = uint16_t(fields.orientation);
        exif["Exif.Image.DateTime"] = stamp;
        exif["Exif.Photo.DateTimeOriginal"] = stamp;
        exif["Exif.Photo.ExposureTime"]
            = Exiv2::URational(fields.exposureNumerator, fields.exposureDenominator);
        exif["Exif.Photo.FNumber"] = Exiv2::URational(fields.apertureTimesTen, 10);
        exif["Exif.Photo.ISOSpeedRatings"] = uint16_t(fields.iso);
        exif["Exif.Photo.FocalLength"] = Exiv2::URational(fields.focalLength, 1);
        exif["Exif.Photo.FocalLengthIn35mmFilm"]
            = uint16_t(fields.focalLength35 > 0 ? fields.focalLength35 : fields.focalLength);
        if (fields.subSecond >= 0) {
            const std::string sub = QStringLiteral("%1")
                                        .arg(fields.subSecond % 100, 2, 10, QLatin1Char('0'))
                                        .toStdString();
            exif["Exif.Photo.SubSecTime"] = sub;
            exif["Exif.Photo.SubSecTimeOriginal"] = sub;
        }
        exif["Exif.Photo.PixelXDimension"] = uint32_t(fields.width);
        exif["Exif.Photo.PixelYDimension"] = uint32_t(fields.height);
        image->writeMetadata();
        return true;
    } catch (const std::exception& e) {
        if (error)
            *error = QString::fromLocal8Bit(e.what());
        return false;
    }
}
