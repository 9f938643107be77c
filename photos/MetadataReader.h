// MetadataReader: exiv2's parse of one file's metadata. exiv2 is set up once
// per process (its messages routed to the image log category, its XMP toolkit
// locked for use from several threads) before the first parse.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace Exiv2 {
class Image;
}

class MetadataReader
{
public:
    /// Sets exiv2 up; any thread, any number of times, before the first parse.
    static void initialise();
    /// The metadata of bytes held in memory: a JPEG's header segments, or a
    /// whole small file. exiv2 reads them in place: `bytes` must outlive the
    /// result. Null when exiv2 cannot parse them (logged at debug level).
    static std::unique_ptr<Exiv2::Image> fromMemory(const QByteArray& bytes, const QString& path);
    /// The metadata of the file at `path`, which exiv2 opens itself. Null
    /// when exiv2 cannot parse it (logged at debug level).
    static std::unique_ptr<Exiv2::Image> fromFile(const QString& path);
};
