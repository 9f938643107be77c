// PhotoFixture: writes small (or, for the benchmark, large) JPEG photographs
// with chosen EXIF data, so the image reading can be tested on real files made
// at test time. Pixels are encoded by Qt, EXIF written by exiv2.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

class PhotoFixture
{
public:
    /// Pixel size of the main picture.
    QSize size { 600, 400 };
    int quality = 85;
    /// Varies the generated content; the same seed gives the same pixels.
    int seed = 0;
    /// Pixel noise amplitude, 0 for smooth pictures (small files).
    int noise = 0;

    /// Writes an EXIF block at all; false gives a plain JPEG.
    bool exif = true;
    /// EXIF fields; an empty text or a zero denominator leaves the field out.
    int focalNum = 0, focalDen = 0;
    int focal35mm = 0;
    int exposureNum = 0, exposureDen = 0;
    int fNumberNum = 0, fNumberDen = 0;
    int iso = 0;
    QByteArray dateTimeOriginal;
    QByteArray subSecTimeOriginal;
    int orientation = 0;
    QByteArray make;
    QByteArray model;
    QByteArray lensModel;
    QByteArray lensMake;
    /// Size of the embedded EXIF thumbnail; invalid for none.
    QSize thumbnail;

    /// Writes the photograph to `path`. Returns false (reason in
    /// errorString) when encoding or writing fails.
    bool write(const QString& path);
    QString errorString() const { return m_error; }

    /// The generated picture's pixels, for checks that compare them.
    static QImage picture(const QSize& size, int seed, int noise);

private:
    QString m_error;
};
