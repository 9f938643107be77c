// StructuredPanoramaProperties: the panorama description that every import
// plug-in hands to the host: stacks, shot angles, authorised links, lens and
// the user's stitching options. A plain value type; the converters derive
// from it and fill it, the pages write the option fields.
#pragma once

#include "AuthorizedLink.h"
#include "LensModel.h"
#include "ShootData.h"

#include <QString>
#include <QStringList>
#include <QVector>

class StructuredPanoramaProperties
{
public:
    /// One entry per shooting position, in shooting order; each lists the full
    /// paths of its images in the order of the user's list. The first image of
    /// a stack is its reference.
    QVector<QStringList> m_stacks;
    /// Empty means no restriction is known.
    QVector<AuthorizedLink> m_links;
    /// One entry per recorded shot, radians.
    QVector<float> m_yaw;
    QVector<float> m_pitch;
    QVector<float> m_roll;
    /// True where the angle vectors are filled from recorded shots.
    bool m_useShootData = true;
    /// Millimetres; 0 until a converter has run.
    float m_focalLength = 0.0f;
    /// True where the converter also fills roll, focal length and lens.
    bool m_flag2 = true;
    LensModel m_lensModel = LensUnknown;
    qint32 m_intA = 0;
    qint32 m_intB = 0;
    qint32 m_intC = 0;
    bool m_flag3 = false;
    /// "Auto detection".
    bool m_autoDetection = false;
    /// "For a stack:" 0 use hard links, 1 detect control points.
    qint32 m_stackLinking = 0;
    /// "Detect links in:" 0 the reference level, 1 all stack levels.
    qint32 m_levelLinking = 0;
    /// "Use recorded location".
    bool m_useRecordedLocation = true;
    /// "Skip optimization".
    bool m_skipOptimization = false;
    /// "Clean wrong link".
    bool m_cleanWrongLinks = false;
    qint32 m_gridOrder = 0;
    qint32 m_gridRows = 0;
    qint32 m_bracketCount = 1;
    /// A grid that closes a full 360° circle.
    bool m_gridFlag = false;
    /// Overlap between neighbouring shots, percent.
    double m_overlap = 80.0;
    qint32 m_indexA = -1;
    /// -1 not chosen, 2 tonemapped 8/16 bits, 3 32-bit HDR radiance.
    qint32 m_outputMode = -1;
    QString m_text1;
    QString m_text2;
    bool m_flag4 = false;
};
