#include "PhotoFocal.h"

#include "StructuredPanoramaProperties.h"
#include "ZIImageDef.h"

double PhotoFocal::MeanOverAll(const QList<ZIImageDef*>& photos)
{
    double sum = 0.0;
    for (const ZIImageDef* photo : photos)
        sum += double(photo->FocalLength());
    return photos.isEmpty() ? 0.0 : sum / photos.size();
}

double PhotoFocal::MeanOverKnown(const QList<ZIImageDef*>& photos, QVector<int>* missing)
{
    double sum = 0.0;
    int count = 0;
    for (int i = 0; i < photos.size(); ++i) {
        const float focal = photos[i]->FocalLength();
        if (focal > 0.0f) {
            sum += double(focal);
            ++count;
        } else if (missing) {
            missing->append(i);
        }
    }
    return count > 0 ? sum / count : 0.0;
}

int PhotoFocal::LastLens(const QList<ZIImageDef*>& photos, int none)
{
    return photos.isEmpty() ? none : photos.last()->LensType();
}

PhotoFocal::Choice PhotoFocal::Preset(
    double photoFocal, int photoLens, double recordFocal, int recordLens)
{
    if (photoFocal > 0)
        return { photoFocal, photoLens, true };
    return { recordFocal > 0.0 ? recordFocal : 0.0, recordLens, false };
}

PhotoFocal::Choice PhotoFocal::ForDescription(
    const StructuredPanoramaProperties& record, const QList<ZIImageDef*>& photos)
{
    // The mean is only worked out when the description holds no focal.
    return ForDescription(record, record.m_focalLength > 0.0f ? 0.0 : MeanOverKnown(photos),
        LastLens(photos, LensStandard));
}

PhotoFocal::Choice PhotoFocal::ForDescription(
    const StructuredPanoramaProperties& record, double photoFocal, int photoLens)
{
    Choice choice;
    if (record.m_focalLength > 0.0f) {
        choice.focal = double(record.m_focalLength);
    } else {
        choice.focal = photoFocal;
        choice.fromPhotos = choice.focal > 0.0;
    }
    const bool fisheye = record.m_lensModel == LensFisheye
        || (record.m_lensModel == LensUnknown && photoLens == LensFisheye);
    choice.lens = fisheye ? LensFisheye : LensStandard;
    return choice;
}
