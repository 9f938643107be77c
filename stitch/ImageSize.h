// ImageSize: the pixel size of a finished panorama file: TIFF or OpenEXR (read
// from their headers, which Qt cannot read without an extra plug-in) or any
// format Qt reads.
#pragma once

#include <QSize>
#include <QString>

class ImageSize
{
public:
    /// Invalid when the file cannot be read or is no picture.
    static QSize read(const QString& path);
};
