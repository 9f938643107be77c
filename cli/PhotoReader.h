// PhotoReader: reads the photographs' definitions (EXIF data, size,
// thumbnail) with the host's image reading, on several threads at once,
// showing a progress bar while it works.
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
