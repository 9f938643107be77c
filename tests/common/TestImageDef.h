// A small image definition for tests: every value the library reads is set
// by the test. Thread-safe to read once constructed.
#pragma once

#include "ZIImageDef.h"

#include <QPixmap>

class TestImageDef : public ZIImageDef
{
public:
    explicit TestImageDef(float focalLength = 0.0f, int lensType = 0, qint64 orderKey = 0,
                          float exposure = 0.0f, const QString& path = QString())
        : m_focalLength(focalLength)
        , m_lensType(lensType)
        , m_orderKey(orderKey)
        , m_exposure(exposure)
        , m_path(path)
    {
    }

    const QPixmap& Thumbnail() const override { return m_thumbnail; }
    float FocalLength() const override { return m_focalLength; }
    int LensType() const override { return m_lensType; }
    qint64 OrderKey() const override { return m_orderKey; }
    float Exposure() const override { return m_exposure; }

    const QString& path() const { return m_path; }

    float m_focalLength;
    int m_lensType;
    qint64 m_orderKey;
    float m_exposure;
    QString m_path;
    /// Null unless the test sets one; making a pixmap needs a GUI application.
    QPixmap m_thumbnail;
};
