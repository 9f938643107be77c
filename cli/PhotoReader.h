// PhotoReader: reads the photographs' definitions (EXIF data, size,
// thumbnail) on several threads at once with ParallelPhotoReader, showing a
// progress bar on the console while it works.
#pragma once

#include "Console.h"

#include <QSharedPointer>
#include <QStringList>
#include <QVector>

class ImageDefinition;

class PhotoReader
{
public:
    /// One definition per path, same order; null for a file that cannot be
    /// read. Blocks until all are read; call from the main thread.
    static QVector<QSharedPointer<ImageDefinition>> read(
        const QStringList& paths, Console& console);
};
