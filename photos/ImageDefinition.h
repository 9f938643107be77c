// ImageDefinition: the host's definition of one photograph: what its EXIF data
// says (focal length, exposure, shooting time, lens), its pixel size and a
// small preview. Made by ImageDefinition::Read on any thread; read-only after
// that, so every accessor may be called from any thread except Thumbnail(),
// which makes a QPixmap and belongs to the GUI thread.
//
// FocalLength() is a full-frame (36 × 24 mm) equivalent: the pages average it,
// write it into the panorama description and compute the field of view from
// it as for a 36 × 24 mm frame, as the heads' records do. It is the EXIF
// FocalLengthIn35mmFilm when the photograph gives one, else the lens's own
// FocalLength (right for a full-frame camera, the best figure there is
// otherwise), else 0. LensFocalLength() is always the lens's own figure.
//
// The thumbnail is NOT turned by the EXIF orientation: it shows the pixels as
// the file stores them. The pages turn each preview by the shot's roll (which
// the user sets with the pages' rotate buttons to match how the camera sat on
// the head); turning by the EXIF orientation as well would turn a picture
// twice. The orientation is reported apart (Orientation(), OrientedSize()).
#pragma once

#include "ZIImageDef.h"

#include <QDateTime>
#include <QFlags>
#include <QImage>
#include <QMutex>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <optional>

class ImageDefinition final : public ZIImageDef
{
public:
    enum ReadOption {
        /// Metadata only: no thumbnail is decoded, Thumbnail() stays null.
        MetadataOnly = 0x0,
        /// Also makes the preview: the embedded EXIF thumbnail when it is large
        /// enough, otherwise a reduced-size decode of the picture.
        WithThumbnail = 0x1,
    };
    Q_DECLARE_FLAGS(ReadOptions, ReadOption)

    /// Longest side of a thumbnail, pixels.
    static constexpr int ThumbnailSide = 192;
    /// An embedded EXIF thumbnail is used when its longest side reaches this.
    static constexpr int MinEmbeddedThumbnailSide = 160;
    /// A thumbnail is kept in 32-bit RGB up to this size, in 24-bit RGB above,
    /// so that a definition keeps at most about 110 KiB.
    static constexpr qint64 Max32BitThumbnailBytes = 96 * 1024;

    /// Why Read gave no definition.
    enum class ReadFailure {
        None,
        /// The path is empty or names nothing.
        NoSuchFile,
        /// The file exists but cannot be opened for reading (a folder, no permission).
        CannotOpen,
        /// The file holds no bytes.
        EmptyFile,
        /// Neither exiv2 nor Qt's image readers recognise it, or it gives no size.
        NotAPicture,
        /// A JPEG whose headers or picture data are cut short.
        CutShort,
        /// Declares more pixels than a picture is decoded at, or than its
        /// file can hold.
        TooLarge,
        /// With WithThumbnail: no preview could be made of it.
        NoPreview,
        /// Reading failed otherwise (the reason is in the log).
        Unreadable,
    };

    /// Reads `path`. Thread-safe; needs no GUI application (a QCoreApplication
    /// or none at all is enough). Returns a new definition owned by the caller,
    /// or null when the file is not a picture that can be read: missing, empty,
    /// not an image, a truncated JPEG, dimensions beyond the decoding limit, or
    /// (with WithThumbnail) no preview could be made. The reason goes to the log
    /// category "zph.host.image" and, when `failure` is given, to *failure
    /// (ReadFailure::None when a definition is returned). A file without EXIF
    /// data is readable: its figures are the defaults documented below. Never throws.
    static ImageDefinition* Read(
        const QString& path, ReadOptions options = WithThumbnail, ReadFailure* failure = nullptr);
    /// A short English phrase for `failure` ("no such file", "cut short", ...),
    /// empty for ReadFailure::None; for logs and the command line's messages.
    static QString FailureText(ReadFailure failure);

    ~ImageDefinition() override;

    // ZIImageDef
    /// GUI thread only: the thumbnail as a pixmap, made on first use from the
    /// decoded image (sharing its pixels). A null pixmap when there is no
    /// thumbnail or when called off the GUI thread (logged). Needs a
    /// QGuiApplication, as every pixmap does (aborts without one).
    const QPixmap& Thumbnail() const override;
    /// The full-frame (35 mm) equivalent focal length, millimetres: the EXIF
    /// FocalLengthIn35mmFilm when present, else the lens's own FocalLength,
    /// else 0.
    float FocalLength() const override;
    /// 1 (fisheye) when the EXIF lens description says "fisheye" or
    /// "fish-eye" (any case), else 0 (standard).
    int LensType() const override;
    /// Milliseconds since 1970-01-01 00:00: the EXIF shooting time
    /// (DateTimeOriginal with SubSecTimeOriginal) taken as wall-clock time in
    /// UTC, or, when the file has no valid shooting time, the file's
    /// modification time (UTC).
    qint64 OrderKey() const override;
    /// The exposure value at ISO 100: EV100 = log2(N² / t) − log2(ISO / 100),
    /// N the f-number, t the exposure time in seconds. A missing f-number
    /// counts as 1, a missing ISO as 100; without an exposure time the figure
    /// is 0 and HasExposure() is false. Larger means less light reached the
    /// sensor (a darker picture for the same scene).
    float Exposure() const override;

    /// The full path as given to Read.
    QString Path() const { return m_path; }
    /// The picture's size in pixels as stored in the file, before any EXIF
    /// orientation is applied. Always known: Read refuses a file without one.
    QSize PixelSize() const { return m_pixelSize; }
    int Width() const { return m_pixelSize.width(); }
    int Height() const { return m_pixelSize.height(); }
    /// The size once the EXIF orientation is applied (width and height
    /// swapped for orientations 5 to 8).
    QSize OrientedSize() const;
    /// The EXIF orientation, 1 to 8; 1 (as stored) when absent or out of range.
    int Orientation() const { return m_orientation; }
    /// Seconds; 0 when unknown.
    double ExposureTime() const { return m_exposureTime; }
    /// The f-number N; 0 when unknown.
    double Aperture() const { return m_aperture; }
    /// ISO speed; 0 when unknown.
    int Iso() const { return m_iso; }
    /// True when ExposureTime() is known and Exposure() was computed from it.
    bool HasExposure() const { return m_exposureTime > 0.0; }
    QString CameraMake() const { return m_cameraMake; }
    QString CameraModel() const { return m_cameraModel; }
    /// The lens description that LensType() was decided from; may be empty.
    QString LensDescription() const { return m_lensDescription; }
    /// The lens's own focal length (EXIF FocalLength), millimetres; 0 when unknown.
    float LensFocalLength() const { return m_focalLength; }
    /// The EXIF FocalLengthIn35mmFilm, millimetres; 0 when the photograph gives none.
    float FocalLength35mm() const { return m_focalLength35mm; }
    /// FocalLengthIn35mmFilm / FocalLength; 0 when either is unknown.
    double CropFactor() const;
    /// The EXIF shooting time (wall-clock, marked UTC), invalid when absent.
    QDateTime ShootingTime() const { return m_shootingTime; }
    /// True when OrderKey() comes from the EXIF shooting time.
    bool OrderKeyFromExif() const { return m_orderKeyFromExif; }
    /// True when the file holds EXIF data that could be parsed.
    bool HasExif() const { return m_hasExif; }
    /// True when the thumbnail is the file's embedded EXIF thumbnail.
    bool ThumbnailIsEmbedded() const { return m_thumbnailEmbedded; }
    /// The thumbnail's pixels (Format_RGB32, or Format_RGB888 when 32 bits a
    /// pixel would exceed Max32BitThumbnailBytes; at most ThumbnailSide on
    /// the long side; not turned by the orientation); any thread. Null when none.
    QImage ThumbnailImage() const { return m_thumbnailImage; }
    /// Bytes this definition keeps on the heap, thumbnail included.
    qint64 MemoryFootprint() const;

private:
    ImageDefinition() = default;
    Q_DISABLE_COPY(ImageDefinition)

    QString m_path;
    QString m_cameraMake;
    QString m_cameraModel;
    QString m_lensDescription;
    QDateTime m_shootingTime;
    QImage m_thumbnailImage;
    mutable QMutex m_pixmapMutex;
    /// Made by Thumbnail() on first use only: a pixmap cannot be constructed
    /// without a QGuiApplication, which Read does not need.
    mutable std::optional<QPixmap> m_thumbnail;
    QSize m_pixelSize;
    qint64 m_orderKey = 0;
    double m_exposureTime = 0.0;
    double m_aperture = 0.0;
    float m_focalLength = 0.0f;
    float m_focalLength35mm = 0.0f;
    float m_exposure = 0.0f;
    int m_iso = 0;
    int m_lensType = 0;
    int m_orientation = 1;
    bool m_orderKeyFromExif = false;
    bool m_hasExif = false;
    bool m_thumbnailEmbedded = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ImageDefinition::ReadOptions)
