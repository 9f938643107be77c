// ZIImageDef: the host's definition of one photograph, made by
// ZIApplication::CreateImageDef. Implemented by the host, read by the library.
// Slot order is a binary contract with hosts compiled separately.
#pragma once

#include <QtGlobal>
#include <QtPlugin>

class QPixmap;

class ZIImageDef
{
public:
    virtual ~ZIImageDef() = default;

    /// The image's preview, drawn in the pages' layout preview.
    virtual const QPixmap& Thumbnail() const = 0;
    /// Focal length in millimetres, from the image's EXIF data.
    virtual float FocalLength() const = 0;
    /// The host's lens type index: 0 standard, 1 fisheye.
    virtual int LensType() const = 0;
    /// A key that orders the images in the order in which they were shot.
    virtual qint64 OrderKey() const = 0;
    /// A comparable exposure figure; only its order and equality matter.
    virtual float Exposure() const = 0;
};

Q_DECLARE_INTERFACE(ZIImageDef, "ZIImageDef")
