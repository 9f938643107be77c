#include "MetadataReader.h"

#include "ImageLog.h"

#include <QFile>

#include <mutex>

// exiv2 0.27 still hands out std::auto_ptr.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <exiv2/exiv2.hpp>

namespace {

void exivLog(int level, const char* message)
{
    // exiv2 reports broken metadata as warnings; keep them out of the user's
    // terminal unless asked for.
    if (level >= Exiv2::LogMsg::error)
        qCInfo(lcImage) << "exiv2:" << QByteArray(message).trimmed();
    else
        qCDebug(lcImage) << "exiv2:" << QByteArray(message).trimmed();
}

std::mutex s_xmpMutex;

void xmpLock(void*, bool lock)
{
    if (lock)
        s_xmpMutex.lock();
    else
        s_xmpMutex.unlock();
}

/// Opens through `open` and parses the metadata; null when exiv2 throws.
template<typename Open> std::unique_ptr<Exiv2::Image> parse(const QString& path, Open open)
{
    std::unique_ptr<Exiv2::Image> image;
    try {
        image.reset(open().release());
        if (image)
            image->readMetadata();
    } catch (const std::exception& e) {
        qCDebug(lcImage) << "no metadata in" << path << e.what();
        image.reset();
    }
    return image;
}

} // namespace

void MetadataReader::initialise()
{
    // exiv2's XMP toolkit must be initialised once, before any thread parses.
    static std::once_flag once;
    std::call_once(once, [] {
        Exiv2::LogMsg::setHandler(exivLog);
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::warn);
        Exiv2::XmpParser::initialize(xmpLock, nullptr);
    });
}

std::unique_ptr<Exiv2::Image> MetadataReader::fromMemory(
    const QByteArray& bytes, const QString& path)
{
    return parse(path, [&] {
        return Exiv2::ImageFactory::open(
            reinterpret_cast<const Exiv2::byte*>(bytes.constData()), long(bytes.size()));
    });
}

std::unique_ptr<Exiv2::Image> MetadataReader::fromFile(const QString& path)
{
    return parse(
        path, [&] { return Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString()); });
}

#pragma GCC diagnostic pop
