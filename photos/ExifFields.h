// ExifFields: the EXIF figures of one photograph, each found by its key in one
// pass over the data exiv2 parsed: focal lengths, exposure, ISO, orientation,
// shooting time with its fraction of a second, camera and lens.
#pragma once

#include <QDateTime>
#include <QSize>
#include <QString>

namespace Exiv2 {
class ExifData;
}

struct ExifFields
{
    /// The lens's own focal length (FocalLength), millimetres; 0 when absent.
    float focalLength = 0.0f;
    /// FocalLengthIn35mmFilm, millimetres; 0 when absent.
    float focalLength35mm = 0.0f;
    /// Seconds: ExposureTime, else the APEX ShutterSpeedValue; 0 when unknown.
    double exposureTime = 0.0;
    /// The f-number: FNumber, else the APEX ApertureValue; 0 when unknown.
    double aperture = 0.0;
    /// ISO speed; 0 when absent or implausible.
    int iso = 0;
    /// 1 to 8; 1 when absent or out of range.
    int orientation = 1;
    /// DateTimeOriginal with SubSecTimeOriginal, wall-clock marked UTC;
    /// invalid when absent or not a date.
    QDateTime shootingTime;
    QString make;
    QString model;
    /// LensModel, else the first maker's lens tag as exiv2 names the lens.
    QString lensDescription;
    /// True when any lens tag says "fisheye", "fish-eye" or "fish eye".
    bool fisheye = false;
    /// PixelXDimension × PixelYDimension when asked for and plausible, else invalid.
    QSize pixelSize;

    /// Reads the fields of `exif`; the pixel dimensions only when
    /// `withPixelSize` (they stand in for a size the picture does not give).
    /// May throw what exiv2 throws.
    static ExifFields read(const Exiv2::ExifData& exif, bool withPixelSize);
};
