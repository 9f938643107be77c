// ExportInput: everything the exports (Hugin project, layout picture) draw
// from: the panorama description, where each stack points, what is known of
// each photograph, and the lens.
#pragma once

#include "ImageInfo.h"
#include "StackPosition.h"
#include "StructuredPanoramaProperties.h"

#include <QHash>
#include <QString>
#include <QVector>

struct ExportInput
{
    StructuredPanoramaProperties panorama;
    /// One entry per stack of panorama.m_stacks, same order.
    QVector<StackPosition> positions;
    /// Keyed by path; every path of every stack must have an entry.
    QHash<QString, ImageInfo> images;
    /// Millimetres, full-frame (36 × 24 mm) equivalent.
    double focalLength = 0.0;
    /// LensStandard or LensFisheye.
    LensModel lens = LensStandard;
};
