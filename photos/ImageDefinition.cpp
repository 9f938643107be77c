// Reading one photograph: the JPEG structure checked, the EXIF data parsed
// by exiv2, the picture's format and size found by Qt's image readers, the
// preview made. Everything here runs on the caller's thread and shares no
// mutable state except exiv2's one-time set-up.
#include "ImageDefinition.h"

#include "ExifFields.h"
#include "ImageLog.h"
#include "JpegStructure.h"
#include "MetadataReader.h"
#include "Thumbnailer.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QMutexLocker>
#include <QThread>

#include <cmath>

#if defined(Q_OS_UNIX)
#include <sys/stat.h>
#endif

// exiv2 0.27 still hands out std::auto_ptr.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <exiv2/exiv2.hpp>

Q_LOGGING_CATEGORY(lcImage, "zph.host.image", QtWarningMsg)

namespace {

/// The file's modification time, milliseconds since 1970 UTC. Read from the
/// file system directly: going through a local-time QDateTime would call the
/// C library's time-zone code, which is not safe on several threads at once.
qint64 modificationTime(QFile& file)
{
#if defined(Q_OS_UNIX)
    struct stat st;
    if (::fstat(file.handle(), &st) != 0)
        return 0;
#if defined(Q_OS_DARWIN)
    return qint64(st.st_mtimespec.tv_sec) * 1000 + st.st_mtimespec.tv_nsec / 1000000;
#else
    return qint64(st.st_mtim.tv_sec) * 1000 + st.st_mtim.tv_nsec / 1000000;
#endif
#else
    return QFileInfo(file).fileTime(QFileDevice::FileModificationTime).toMSecsSinceEpoch();
#endif
}

/// EV100 = log2(N² / t) − log2(ISO / 100); a missing f-number counts as 1, a
/// missing ISO as 100. 0 without an exposure time or for a figure that is not finite.
float exposureValue(double seconds, double aperture, int iso)
{
    if (seconds <= 0.0)
        return 0.0f;
    const double n = aperture > 0.0 ? aperture : 1.0;
    const double speed = iso > 0 ? double(iso) : 100.0;
    const double ev = std::log2(n * n / seconds) - std::log2(speed / 100.0);
    return std::isfinite(ev) ? float(ev) : 0.0f;
}

/// The Qt image format of the picture in `file`: "jpeg" for a file with the
/// JPEG signature (no probing), else what Qt's readers recognise; empty for none.
QByteArray pictureFormat(QIODevice& file, bool jpegSignature)
{
    if (jpegSignature)
        return "jpeg";
    file.seek(0);
    QImageReader probe(&file);
    return probe.format();
}

bool known(const QSize& size)
{
    return size.isValid() && !size.isEmpty();
}

/// Why `path` could not be opened.
ImageDefinition::ReadFailure openFailure(const QString& path)
{
    return path.isEmpty() || !QFileInfo::exists(path) ? ImageDefinition::ReadFailure::NoSuchFile
                                                      : ImageDefinition::ReadFailure::CannotOpen;
}

} // namespace

ImageDefinition* ImageDefinition::Read(
    const QString& path, ReadOptions options, ReadFailure* failure)
{
    ReadFailure ignored = ReadFailure::None;
    ReadFailure& why = failure ? *failure : ignored;
    why = ReadFailure::None;
    auto refuse = [&why](ReadFailure reason) -> ImageDefinition* {
        why = reason;
        return nullptr;
    };
    try {
        MetadataReader::initialise();

        QFile file(path);
        if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
            qCWarning(lcImage) << "cannot open" << path << file.errorString();
            return refuse(openFailure(path));
        }
        if (file.size() == 0) {
            qCWarning(lcImage) << path << "is empty";
            return refuse(ReadFailure::EmptyFile);
        }

        std::unique_ptr<ImageDefinition> def(new ImageDefinition);
        def->m_path = path;

        // A JPEG is read once up to its picture data: exiv2 parses the
        // headers from memory. Other files exiv2 opens itself. A file exiv2
        // cannot parse may still be a picture Qt reads. A buffer no larger
        // than the file: a small file costs a small buffer. A file the first
        // read holds whole is worked on from memory from then on: nothing is
        // read twice, and every later look at it costs no system call.
        const QByteArray firstChunk
            = file.read(qMin(JpegStructure::FirstChunkBytes, file.size()));
        const bool whole = firstChunk.size() == file.size();
        QBuffer inMemory;
        if (whole) {
            inMemory.setData(firstChunk);
            inMemory.open(QIODevice::ReadOnly);
        }
        QIODevice& source = whole ? static_cast<QIODevice&>(inMemory) : file;
        const bool jpegSignature = JpegStructure::hasSignature(firstChunk);
        JpegStructure jpeg;
        if (jpegSignature) {
            jpeg = JpegStructure::read(source, firstChunk);
            if (!jpeg.isWhole(source)) {
                qCWarning(lcImage) << path << "is a truncated or damaged JPEG";
                return refuse(ReadFailure::CutShort);
            }
        }
        const std::unique_ptr<Exiv2::Image> image = jpegSignature
            ? MetadataReader::fromMemory(jpeg.headers(), path)
            : whole ? MetadataReader::fromMemory(firstChunk, path)
                    : MetadataReader::fromFile(path);

        const Exiv2::ExifData empty;
        const Exiv2::ExifData& exif = image ? image->exifData() : empty;
        def->m_hasExif = !exif.empty();
        if (image && image->pixelWidth() > 0 && image->pixelHeight() > 0)
            def->m_pixelSize = QSize(image->pixelWidth(), image->pixelHeight());

        if (def->m_hasExif) {
            const ExifFields fields = ExifFields::read(exif, !known(def->m_pixelSize));
            def->m_focalLength = fields.focalLength;
            def->m_focalLength35mm = fields.focalLength35mm;
            def->m_exposureTime = fields.exposureTime;
            def->m_aperture = fields.aperture;
            def->m_iso = fields.iso;
            def->m_orientation = fields.orientation;
            def->m_cameraMake = fields.make;
            def->m_cameraModel = fields.model;
            def->m_lensDescription = fields.lensDescription;
            def->m_lensType = fields.fisheye ? 1 : 0;
            def->m_shootingTime = fields.shootingTime;
            if (!known(def->m_pixelSize) && fields.pixelSize.isValid())
                def->m_pixelSize = fields.pixelSize;
        }

        def->m_orderKeyFromExif = def->m_shootingTime.isValid();
        def->m_orderKey = def->m_orderKeyFromExif ? def->m_shootingTime.toMSecsSinceEpoch()
                                                  : modificationTime(file);
        def->m_exposure = exposureValue(def->m_exposureTime, def->m_aperture, def->m_iso);

        // Is it a picture Qt can decode, or one exiv2 knows?
        const QByteArray format = pictureFormat(source, jpegSignature);
        if (format.isEmpty() && !image) {
            qCWarning(lcImage) << path << "is not a picture";
            return refuse(ReadFailure::NotAPicture);
        }
        if (!known(def->m_pixelSize) && !format.isEmpty()) {
            source.seek(0);
            QImageReader sizeReader(&source, format);
            def->m_pixelSize = Thumbnailer::declaredSize(sizeReader);
        }
        if (!known(def->m_pixelSize)) {
            qCWarning(lcImage) << path << "has no readable picture size";
            return refuse(ReadFailure::NotAPicture);
        }
        const qint64 pixels = qint64(def->m_pixelSize.width()) * def->m_pixelSize.height();
        if (!format.isEmpty() && pixels > Thumbnailer::maxPixels(format, file.size())) {
            qCWarning(lcImage) << path << "declares" << def->m_pixelSize << "pixels in"
                               << file.size() << "bytes, beyond the limit";
            return refuse(ReadFailure::TooLarge);
        }
        if (jpegSignature) {
            const qint64 bound = jpeg.pixelBound(file.size());
            if (bound >= 0 && pixels > qMax(Thumbnailer::PlausibleAnywayPixels, bound)) {
                qCWarning(lcImage) << path << "declares" << def->m_pixelSize << "pixels in"
                                   << file.size() - jpeg.scanStart()
                                   << "bytes of picture data, more than they can hold";
                return refuse(ReadFailure::TooLarge);
            }
        }

        if (options & WithThumbnail) {
            const Thumbnailer::Result thumbnail
                = Thumbnailer::make(exif, image.get(), source, format, path);
            if (thumbnail.image.isNull()) {
                qCWarning(lcImage) << "no preview can be made of" << path;
                return refuse(ReadFailure::NoPreview);
            }
            def->m_thumbnailImage = thumbnail.image;
            def->m_thumbnailEmbedded = thumbnail.embedded;
        }
        return def.release();
    } catch (const std::exception& e) {
        qCWarning(lcImage) << "cannot read" << path << e.what();
    } catch (...) {
        qCWarning(lcImage) << "cannot read" << path;
    }
    return refuse(ReadFailure::Unreadable);
}

#pragma GCC diagnostic pop

QString ImageDefinition::FailureText(ReadFailure failure)
{
    switch (failure) {
    case ReadFailure::None:
        return QString();
    case ReadFailure::NoSuchFile:
        return QStringLiteral("no such file");
    case ReadFailure::CannotOpen:
        return QStringLiteral("cannot be opened");
    case ReadFailure::EmptyFile:
        return QStringLiteral("empty file");
    case ReadFailure::NotAPicture:
        return QStringLiteral("not a picture");
    case ReadFailure::CutShort:
        return QStringLiteral("cut short");
    case ReadFailure::TooLarge:
        return QStringLiteral("too large");
    case ReadFailure::NoPreview:
        return QStringLiteral("no preview can be made");
    case ReadFailure::Unreadable:
        return QStringLiteral("cannot be read");
    }
    return QString();
}

ImageDefinition::~ImageDefinition() = default;

const QPixmap& ImageDefinition::Thumbnail() const
{
    QCoreApplication* app = QCoreApplication::instance();
    if (!qobject_cast<QGuiApplication*>(app))
        qFatal("ImageDefinition::Thumbnail: a pixmap needs a QGuiApplication");
    static const QPixmap none;
    if (QThread::currentThread() != app->thread()) {
        qCWarning(lcImage) << "a thumbnail pixmap is made on the GUI thread only";
        return none;
    }
    QMutexLocker lock(&m_pixmapMutex);
    if (!m_thumbnail) {
        // Keep the stored format: the pixmap then shares the image's pixels
        // instead of holding a second, 32-bit copy.
        m_thumbnail.emplace();
        if (!m_thumbnailImage.isNull())
            *m_thumbnail = QPixmap::fromImage(m_thumbnailImage, Qt::NoFormatConversion);
    }
    return *m_thumbnail;
}

float ImageDefinition::FocalLength() const
{
    return m_focalLength35mm > 0.0f ? m_focalLength35mm : m_focalLength;
}

int ImageDefinition::LensType() const
{
    return m_lensType;
}

qint64 ImageDefinition::OrderKey() const
{
    return m_orderKey;
}

float ImageDefinition::Exposure() const
{
    return m_exposure;
}

QSize ImageDefinition::OrientedSize() const
{
    return m_orientation >= 5 ? m_pixelSize.transposed() : m_pixelSize;
}

double ImageDefinition::CropFactor() const
{
    if (m_focalLength <= 0.0f || m_focalLength35mm <= 0.0f)
        return 0.0;
    return double(m_focalLength35mm) / double(m_focalLength);
}

qint64 ImageDefinition::MemoryFootprint() const
{
    auto text = [](const QString& s) { return qint64(s.capacity()) * 2 + 32; };
    qint64 bytes = sizeof(ImageDefinition) + text(m_path) + text(m_cameraMake) + text(m_cameraModel)
        + text(m_lensDescription);
    if (!m_thumbnailImage.isNull())
        bytes += m_thumbnailImage.sizeInBytes() + 128; // plus the image's private header
    if (m_shootingTime.isValid())
        bytes += 32;
    return bytes;
}
