// PhotoFocal: the focal length and lens that an import takes from the
// photographs and the head's record. Every focal length here is a full-frame
// (36 × 24 mm) equivalent in millimetres: the host reports a photograph's 35
// mm equivalent when its EXIF data gives one, and the records store their
// focal already multiplied by the sensor's crop coefficient.
#pragma once

#include "LensModel.h"

#include <QList>
#include <QVector>

class StructuredPanoramaProperties;
class ZIImageDef;

class PhotoFocal
{
public:
    /// The pages' mean: FocalLength() summed in list order over every
    /// photograph, photographs without a focal length counting as 0, divided
    /// by their number; 0 for no photographs.
    static double MeanOverAll(const QList<ZIImageDef*>& photos);

    /// The command line's mean: over the photographs that give a focal length
    /// only, so one photograph without EXIF data does not lower it. The
    /// indices of the others go to *missing. 0 when none gives one.
    static double MeanOverKnown(const QList<ZIImageDef*>& photos, QVector<int>* missing = nullptr);

    /// The lens type (a LensModel value) of the last photograph; `none` for
    /// no photographs.
    static int LastLens(const QList<ZIImageDef*>& photos, int none);

    /// What an import presets. The photographs are the better witness: once
    /// they give a focal length (photoFocal > 0), it and their lens are taken;
    /// otherwise the record's (a negative record focal counts as 0).
    struct Choice
    {
        double focal = 0.0;
        int lens = 0;
        bool fromPhotos = false;
    };
    static Choice Preset(double photoFocal, int photoLens, double recordFocal, int recordLens);

    /// The focal length and lens to export a handed-over description with: the
    /// description's own focal when it holds one, else MeanOverKnown of its
    /// photographs; its lens when it names one, else the last photograph's.
    static Choice ForDescription(
        const StructuredPanoramaProperties& record, const QList<ZIImageDef*>& photos);
    /// The same with the photographs' MeanOverKnown and LastLens known.
    static Choice ForDescription(
        const StructuredPanoramaProperties& record, double photoFocal, int photoLens);
};
