// FuzzImageDef: an image definition whose values the fuzz target chooses, for
// the generators that read the host's definitions. Holds no pixmap: the
// generators never draw, and a pixmap needs a GUI application.
#pragma once

#include "ZIImageDef.h"

#include <QPixmap>

class FuzzImageDef : public ZIImageDef
{
public:
    FuzzImageDef(float focalLength, float exposure)
        : m_focalLength(focalLength), m_exposure(exposure)
    {
    }

    const QPixmap& Thumbnail() const override
    {
        static const QPixmap none;
        return none;
    }
    float FocalLength() const override { return m_focalLength; }
    int LensType() const override { return 0; }
    qint64 OrderKey() const override { return 0; }
    float Exposure() const override { return m_exposure; }

private:
    float m_focalLength;
    float m_exposure;
};
