// JpegFactory: makes JPEG files for tests at run time: a picture encoded by
// Qt's JPEG writer, with an EXIF block built here field by field (camera,
// shooting time, exposure, focal length, lens, an embedded thumbnail). The
// EXIF layout is reported, so a test can plant bogus offsets, counts and
// sizes at known places; the SOF header can be given any declared size.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QMap>
#include <QString>

class JpegFactory
{
public:
    /// What the EXIF block says. Zero or empty leaves a field out.
    struct Exif
    {
        bool bigEndian = false;
        QByteArray make = "Zelmo";
        QByteArray model = "Test 1";
        int orientation = 1;
        /// "YYYY:MM:DD HH:MM:SS".
        QByteArray dateTimeOriginal = "2020:06:01 12:00:00";
        /// Seconds, written as 1/round(1/t) when below one second.
        double exposureTime = 1.0 / 125.0;
        double fNumber = 8.0;
        int iso = 100;
        /// Millimetres, written as a rational with denominator 10.
        double focalLength = 24.0;
        int focalLength35mm = 0;
        QByteArray lensModel;
        /// Encoded JPEG placed in IFD1; empty for none.
        QByteArray thumbnail;
    };

    /// Where the fields of a built EXIF block lie, as byte positions from the
    /// start of the TIFF header, which is itself at tiffStart in the file.
    /// Keys: "ifd0" (the header's pointer to IFD0), "ifd0.next", "ifd1.next",
    /// "exif.next", "<ifd>.count" (an IFD's entry count), and for every entry "<ifd>.<tag in hex>"
    /// (the entry's start: tag, type, count at +4, value or offset at +8), e.g. "exif.920a".
    struct Layout
    {
        int tiffStart = -1;
        QMap<QString, int> at;
    };

    /// A picture of the given size: smooth colour gradients with some detail,
    /// so that the encoded size grows with the pixel count.
    static QImage picture(int width, int height, int seed = 0);

    /// The picture encoded as a baseline JPEG.
    static QByteArray encode(const QImage& image, int quality = 90);

    /// The APP1 segment (marker included) holding exif; fills layout with
    /// positions relative to the segment's start if given.
    static QByteArray exifSegment(const Exif& exif, Layout* layout = nullptr);

    /// jpeg with exif inserted right after the SOI marker; layout positions
    /// become positions in the returned file.
    static QByteArray withExif(const QByteArray& jpeg, const Exif& exif, Layout* layout = nullptr);

    /// A ready file: picture(width, height) encoded, with EXIF focal length
    /// and exposure time and an embedded 160 x 120 thumbnail.
    static QByteArray photo(
        int width, int height, double focalLength, double exposureTime = 1.0 / 125.0, int seed = 0);

    /// Position of the first SOF0/SOF1/SOF2 marker in jpeg, -1 when none.
    static int sofPosition(const QByteArray& jpeg);

    /// Changes the declared height and width in the SOF header of jpeg.
    static void declareSize(QByteArray& jpeg, quint16 width, quint16 height);

    /// Writes a 16- or 32-bit value at pos in the byte order of the EXIF block.
    static void put16(QByteArray& bytes, int pos, quint16 value, bool bigEndian);
    static void put32(QByteArray& bytes, int pos, quint32 value, bool bigEndian);
};
