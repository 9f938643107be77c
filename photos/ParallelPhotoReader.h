// ParallelPhotoReader: reads many photographs' definitions (EXIF figures, size,
// thumbnail) with ImageDefinition::Read on a pool of threads, one task per
// photograph, and reports the progress on the calling thread. Needs no GUI.
#pragma once

#include "ImageDefinition.h"

#include <QSharedPointer>
#include <QStringList>
#include <QVector>

#include <functional>

class ParallelPhotoReader
{
public:
    /// Told how many of `total` photographs are read so far.
    using Progress = std::function<void(int done, int total)>;

    /// One definition per path, in the order of `paths`; null for a file that
    /// cannot be read. When `reasons` is given it receives one entry per path:
    /// ImageDefinition::FailureText of why the file could not be read ("no such
    /// file", "empty file", "not a picture", "cut short", "too large", ...),
    /// empty for a file that was read. Blocks until every file is read. The
    /// progress is called on the calling thread about every 50 ms while the
    /// pool works, and once at the end with (total, total), also for no paths.
    static QVector<QSharedPointer<ImageDefinition>> read(
        const QStringList& paths, const Progress& progress = {}, QStringList* reasons = nullptr);
};
