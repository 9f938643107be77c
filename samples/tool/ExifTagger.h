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
        /// Millimetres, also written as the 35 mm equivalent unless
        /// focalLength35 is set.
        int focalLength = 35;
        /// The 35 mm equivalent in millimetres; 0: the same as focalLength.
        int focalLength35 = 0;
        /// Exposure time as the fraction numerator / denominator seconds.
        int exposureNumerator = 1;
        int exposureDenominator = 125;
        /// F-number times ten (80 is f/8).
        int apertureTimesTen = 80;
        int iso = 100;
        QDateTime shot;
        /// Hundredths of a second after shot's whole second, written as the
        /// SubSec fields; -1 for none.
        int subSecond = -1;
        /// The EXIF orientation: 1 upright as stored, 6 to be turned a
        /// quarter clockwise for viewing, 8 a quarter anticlockwise.
        int orientation = 1;
        int width = 0;
        int height = 0;
    };

    /// Writes the fields into the JPEG file at path. False with a reason in
    /// *error when the file cannot be tagged.
    static bool write(const QString& path, const Fields& fields, QString* error);
};
