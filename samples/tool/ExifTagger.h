// ExifTagger: writes the camera data of a sample photograph into its EXIF
// block, as a camera would.
#pragma once

#include <QDateTime>
#include <QString>

class ExifTagger
{
public:
    struct Fields
    {
        /// Millimetres, also written as the 35 mm equivalent.
        int focalLength = 35;
        /// Exposure time as the fraction numerator / denominator seconds.
        int exposureNumerator = 1;
        int exposureDenominator = 125;
        /// F-number times ten (80 is f/8).
        int apertureTimesTen = 80;
        int iso = 100;
        QDateTime shot;
        int width = 0;
        int height = 0;
    };

    /// Writes the fields into the JPEG file at path. False with a reason in
    /// *error when the file cannot be tagged.
    static bool write(const QString& path, const Fields& fields, QString* error);
};
