// ImageInfo: what the exports need to know of one photograph: its pixel
// size and EXIF orientation, its exposure and a small preview.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

struct ImageInfo
{
    /// The full path, as it stands in the panorama description's stacks.
    QString path;
    /// Pixels as the file stores them, before the EXIF orientation is applied.
    QSize pixelSize;
    /// The EXIF orientation, 1 to 8 (1: as stored).
    int orientation = 1;
    /// True when the exposure value below is known.
    bool hasExposure = false;
    /// Exposure value at ISO 100 (larger: less light), as Hugin's Eev.
    double exposureValue = 0.0;
    /// A small preview, as stored (not turned by the orientation); may be null.
    QImage thumbnail;

    /// What a photograph definition of the host (ImageDefinition or any class
    /// with the same accessors) knows of the photograph at `path`.
    template<class Definition> static ImageInfo From(const QString& path, const Definition& d)
    {
        ImageInfo info;
        info.path = path;
        info.pixelSize = d.PixelSize();
        info.orientation = d.Orientation();
        info.hasExposure = d.HasExposure();
        info.exposureValue = d.Exposure();
        info.thumbnail = d.ThumbnailImage();
        return info;
    }

    /// Degrees by which the stored picture must be turned clockwise to stand
    /// upright: 90 for orientations 5 and 6, 180 for 3 and 4, 270 for 7 and 8.
    int orientationRoll() const
    {
        switch (orientation) {
        case 3:
        case 4:
            return 180;
        case 5:
        case 6:
            return 90;
        case 7:
        case 8:
            return 270;
        default:
            return 0;
        }
    }
};
