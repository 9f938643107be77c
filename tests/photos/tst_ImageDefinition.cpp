// Reading real photographs: EXIF figures, ordering keys, exposure values,
// thumbnails, broken files, and reading from several threads at once. The
// photographs are written at test time by PhotoFixture.
#include "ImageDefinition.h"
#include "PhotoFixture.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <cmath>
#include <memory>
#include <thread>
#include <vector>

#include <malloc.h>

namespace {

struct Expected
{
    /// FocalLength(): the full-frame equivalent.
    float focal = 0.0f;
    int lens = 0;
    qint64 orderKey = 0;
    float exposure = 0.0f;
    QSize pixelSize;
    QSize orientedSize;
    QSize thumbnail;
    bool embedded = false;
    int orientation = 1;
    int iso = 0;
    /// LensFocalLength(): the lens's own focal length.
    float lensFocal = 0.0f;
};

/// The exposure value at ISO 100, worked out here from the EXIF fields.
float ev100(double seconds, double fNumber, double iso)
{
    return float(std::log2(fNumber * fNumber / seconds) - std::log2(iso / 100.0));
}

void putBigEndian(char* at, quint32 value, int bytes)
{
    for (int i = bytes - 1; i >= 0; --i, value >>= 8)
        at[i] = char(value & 0xFF);
}

/// PNG's CRC-32 (reflected, polynomial 0xEDB88320).
quint32 crc32(const uchar* data, int size)
{
    quint32 crc = 0xFFFFFFFFu;
    for (int i = 0; i < size; ++i) {
        crc ^= data[i];
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return crc ^ 0xFFFFFFFFu;
}

qint64 utcMs(int y, int mo, int d, int h, int mi, int s, int ms)
{
    return QDateTime(QDate(y, mo, d), QTime(h, mi, s, ms), Qt::UTC).toMSecsSinceEpoch();
}

/// A fixed modification time for files whose key falls back to it.
const QDateTime ModificationTime(QDate(2021, 3, 4), QTime(5, 6, 7, 0), Qt::UTC);

PhotoFixture baseFixture()
{
    PhotoFixture f;
    f.size = QSize(600, 400);
    f.focalNum = 24;
    f.focalDen = 1;
    f.exposureNum = 1;
    f.exposureDen = 250;
    f.fNumberNum = 8;
    f.fNumberDen = 1;
    f.iso = 200;
    f.dateTimeOriginal = "2023:05:17 10:11:12";
    f.subSecTimeOriginal = "345";
    f.orientation = 1;
    f.make = "Zcam";
    f.model = "Z1";
    f.lensModel = "24mm F1.4";
    return f;
}

} // namespace

class tst_ImageDefinition : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void readsFigures_data();
    void readsFigures();
    void rejectsBrokenFiles_data();
    void rejectsBrokenFiles();
    void metadataOnlySkipsThumbnail();
    void thumbnailPixmapSharesPixels();
    void thumbnailIsNotTurnedByOrientation();
    void extraFigures();
    void keepsLittleMemory();
    void readsFromSeveralThreads();
    void refusesMorePixelsThanTheFileHolds_data();
    void refusesMorePixelsThanTheFileHolds();
    void smallFilesReadFromMemoryAsFromTheFile_data();
    void smallFilesReadFromMemoryAsFromTheFile();

private:
    QString path(const QString& name) const { return m_dir.filePath(name); }
    void write(const QString& name, PhotoFixture fixture);

    QTemporaryDir m_dir;
    QHash<QString, Expected> m_expected;
    QStringList m_readable;
};

void tst_ImageDefinition::write(const QString& name, PhotoFixture fixture)
{
    QVERIFY2(fixture.write(path(name)), qPrintable(fixture.errorString()));
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(ModificationTime, QFileDevice::FileModificationTime));
    m_readable << name;
}

void tst_ImageDefinition::initTestCase()
{
    QVERIFY(m_dir.isValid());
    // Broken files are rejected with a logged reason; keep the log readable.
    if (qEnvironmentVariableIsEmpty("ZPH_TEST_VERBOSE"))
        QLoggingCategory::setFilterRules(QStringLiteral("zph.host.image.warning=false"));
    const qint64 shot = utcMs(2023, 5, 17, 10, 11, 12, 345);
    const float ev = ev100(1.0 / 250.0, 8.0, 200.0);

    PhotoFixture f = baseFixture();
    f.thumbnail = QSize(160, 107);
    write("thumb.jpg", f);
    m_expected["thumb.jpg"] = { 24.0f, 0, shot, ev, QSize(600, 400), QSize(600, 400),
        QSize(160, 107), true, 1, 200, 24.0f };

    f = baseFixture();
    write("nothumb.jpg", f);
    m_expected["nothumb.jpg"] = { 24.0f, 0, shot, ev, QSize(600, 400), QSize(600, 400),
        QSize(192, 128), false, 1, 200, 24.0f };

    // An embedded thumbnail under 160 px is too small: the picture is decoded.
    f = baseFixture();
    f.thumbnail = QSize(120, 80);
    write("smallthumb.jpg", f);
    m_expected["smallthumb.jpg"] = { 24.0f, 0, shot, ev, QSize(600, 400), QSize(600, 400),
        QSize(192, 128), false, 1, 200, 24.0f };

    // A large embedded thumbnail is shrunk to 192 px.
    f = baseFixture();
    f.thumbnail = QSize(320, 240);
    write("bigthumb.jpg", f);
    m_expected["bigthumb.jpg"] = { 24.0f, 0, shot, ev, QSize(600, 400), QSize(600, 400),
        QSize(192, 144), true, 1, 200, 24.0f };

    f = baseFixture();
    f.lensModel = "8mm F3.5 Circular FISHEYE";
    f.focalNum = 8;
    write("fisheye.jpg", f);
    m_expected["fisheye.jpg"] = { 8.0f, 1, shot, ev, QSize(600, 400), QSize(600, 400),
        QSize(192, 128), false, 1, 200, 8.0f };

    f = baseFixture();
    f.lensModel.clear();
    f.lensMake = "Fish-Eye Optics";
    f.focalNum = 105;
    f.focalDen = 10;
    write("fisheye-make.jpg", f);
    m_expected["fisheye-make.jpg"] = { 10.5f, 1, shot, ev, QSize(600, 400), QSize(600, 400),
        QSize(192, 128), false, 1, 200, 10.5f };

    // A crop-sensor camera: FocalLength() is the full-frame equivalent the
    // camera states, LensFocalLength() the lens's own figure.
    f = baseFixture();
    f.focalNum = 18;
    f.focal35mm = 27;
    write("crop-sensor.jpg", f);
    m_expected["crop-sensor.jpg"] = { 27.0f, 0, shot, ev, QSize(600, 400), QSize(600, 400),
        QSize(192, 128), false, 1, 200, 18.0f };

    // Only the lens's focal length: it stands for the full-frame equivalent.
    f = baseFixture();
    f.focalNum = 50;
    write("lens-focal-only.jpg", f);
    m_expected["lens-focal-only.jpg"] = { 50.0f, 0, shot, ev, QSize(600, 400), QSize(600, 400),
        QSize(192, 128), false, 1, 200, 50.0f };

    // Only the 35 mm equivalent: the lens's own figure stays unknown.
    f = baseFixture();
    f.focalDen = 0;
    f.focal35mm = 28;
    write("equivalent-only.jpg", f);
    m_expected["equivalent-only.jpg"] = { 28.0f, 0, shot, ev, QSize(600, 400), QSize(600, 400),
        QSize(192, 128), false, 1, 200, 0.0f };

    // EXIF data without either focal length.
    f = baseFixture();
    f.focalDen = 0;
    write("no-focal.jpg", f);
    m_expected["no-focal.jpg"] = { 0.0f, 0, shot, ev, QSize(600, 400), QSize(600, 400),
        QSize(192, 128), false, 1, 200, 0.0f };

    // Held upright: stored landscape, shown portrait; the thumbnail stays as stored.
    f = baseFixture();
    f.orientation = 6;
    write("portrait.jpg", f);
    m_expected["portrait.jpg"] = { 24.0f, 0, shot, ev, QSize(600, 400), QSize(400, 600),
        QSize(192, 128), false, 6, 200, 24.0f };

    f = baseFixture();
    f.subSecTimeOriginal = "5";
    f.exposureNum = 2;
    f.exposureDen = 1;
    f.fNumberNum = 56;
    f.fNumberDen = 10;
    f.iso = 1600;
    write("subsec1.jpg", f);
    m_expected["subsec1.jpg"]
        = { 24.0f, 0, utcMs(2023, 5, 17, 10, 11, 12, 500), ev100(2.0, 5.6, 1600.0), QSize(600, 400),
              QSize(600, 400), QSize(192, 128), false, 1, 1600, 24.0f };

    f = baseFixture();
    f.subSecTimeOriginal.clear();
    f.iso = 0;
    f.fNumberDen = 0;
    write("nosubsec.jpg", f);
    m_expected["nosubsec.jpg"]
        = { 24.0f, 0, utcMs(2023, 5, 17, 10, 11, 12, 0), ev100(1.0 / 250.0, 1.0, 100.0),
              QSize(600, 400), QSize(600, 400), QSize(192, 128), false, 1, 0, 24.0f };

    // A blank shooting time: the key falls back to the modification time.
    f = baseFixture();
    f.dateTimeOriginal = "    :  :     :  :  ";
    write("blankdate.jpg", f);
    m_expected["blankdate.jpg"] = { 24.0f, 0, ModificationTime.toMSecsSinceEpoch(), ev,
        QSize(600, 400), QSize(600, 400), QSize(192, 128), false, 1, 200, 24.0f };

    f = PhotoFixture();
    f.exif = false;
    write("noexif.jpg", f);
    m_expected["noexif.jpg"] = { 0.0f, 0, ModificationTime.toMSecsSinceEpoch(), 0.0f,
        QSize(600, 400), QSize(600, 400), QSize(192, 128), false, 1, 0, 0.0f };

    // Smaller than a thumbnail: kept at its size, never enlarged.
    f = baseFixture();
    f.size = QSize(100, 100);
    write("tiny.jpg", f);
    m_expected["tiny.jpg"] = { 24.0f, 0, shot, ev, QSize(100, 100), QSize(100, 100),
        QSize(100, 100), false, 1, 200, 24.0f };

    // Not a JPEG, no EXIF: still a picture.
    QVERIFY(PhotoFixture::picture(QSize(300, 300), 3, 0).save(path("plain.png"), "png"));
    {
        QFile png(path("plain.png"));
        QVERIFY(png.open(QIODevice::ReadWrite));
        QVERIFY(png.setFileTime(ModificationTime, QFileDevice::FileModificationTime));
    }
    m_readable << "plain.png";
    m_expected["plain.png"] = { 0.0f, 0, ModificationTime.toMSecsSinceEpoch(), 0.0f,
        QSize(300, 300), QSize(300, 300), QSize(192, 192), false, 1, 0, 0.0f };

    // Damaged EXIF: the IFD entry count and offsets overwritten with garbage.
    // The metadata is lost, the picture is still read.
    f = baseFixture();
    f.thumbnail = QSize(160, 107);
    write("bogusexif.jpg", f);
    {
        QFile file(path("bogusexif.jpg"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QByteArray bytes = file.readAll();
        const int tiff = bytes.indexOf("Exif\0\0", 0) + 6;
        QVERIFY(tiff > 6);
        // Offset of IFD0 and the first entries: replaced by 0xEE.
        for (int i = tiff + 4; i < tiff + 60 && i < bytes.size(); ++i)
            bytes[i] = char(0xEE);
        file.seek(0);
        file.write(bytes);
        file.close();
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(ModificationTime, QFileDevice::FileModificationTime));
    }
    m_expected["bogusexif.jpg"] = { 0.0f, 0, ModificationTime.toMSecsSinceEpoch(), 0.0f,
        QSize(600, 400), QSize(600, 400), QSize(192, 128), false, 1, 0, 0.0f };

    // Data appended after the picture (some cameras add a trailer): still whole.
    {
        QFile source(path("nothumb.jpg"));
        QVERIFY(source.open(QIODevice::ReadOnly));
        QByteArray bytes = source.readAll();
        for (int i = 0; i < 300000; ++i)
            bytes.append(char(i % 251));
        write("trailer.jpg", baseFixture());
        QFile trailer(path("trailer.jpg"));
        QVERIFY(trailer.open(QIODevice::WriteOnly));
        trailer.write(bytes);
        trailer.close();
        QVERIFY(trailer.open(QIODevice::ReadWrite));
        QVERIFY(trailer.setFileTime(ModificationTime, QFileDevice::FileModificationTime));
    }
    m_expected["trailer.jpg"] = m_expected["nothumb.jpg"];

    // Broken files.
    {
        QFile source(path("nothumb.jpg"));
        QVERIFY(source.open(QIODevice::ReadOnly));
        const QByteArray whole = source.readAll();
        QFile cut(path("truncated.jpg"));
        QVERIFY(cut.open(QIODevice::WriteOnly));
        cut.write(whole.left(whole.size() * 2 / 3));

        QFile headerOnly(path("headeronly.jpg"));
        QVERIFY(headerOnly.open(QIODevice::WriteOnly));
        headerOnly.write(whole.left(300));

        // A JPEG whose frame header declares 65000 × 65000 pixels.
        QByteArray huge = whole;
        const int sof = huge.indexOf("\xFF\xC0");
        QVERIFY(sof > 0);
        putBigEndian(huge.data() + sof + 5, 65000, 2);
        putBigEndian(huge.data() + sof + 7, 65000, 2);
        QFile hugeFile(path("huge.jpg"));
        QVERIFY(hugeFile.open(QIODevice::WriteOnly));
        hugeFile.write(huge);
    }
    {
        QFile empty(path("empty.jpg"));
        QVERIFY(empty.open(QIODevice::WriteOnly));
        QFile text(path("notes.jpg"));
        QVERIFY(text.open(QIODevice::WriteOnly));
        text.write("This is not a photograph.\n");
        QFile junk(path("junk.bin"));
        QVERIFY(junk.open(QIODevice::WriteOnly));
        QByteArray bytes(4096, '\0');
        for (int i = 0; i < bytes.size(); ++i)
            bytes[i] = char((i * 7919) >> 3);
        junk.write(bytes);
        // A whole PNG whose header declares 60000 × 60000 pixels (CRC mended).
        QByteArray png;
        {
            QBuffer buffer(&png);
            QVERIFY(buffer.open(QIODevice::WriteOnly));
            QVERIFY(PhotoFixture::picture(QSize(50, 50), 1, 0).save(&buffer, "png"));
        }
        char* ihdr = png.data() + 12; // chunk type, then data, then CRC
        QCOMPARE(QByteArray(ihdr, 4), QByteArray("IHDR"));
        putBigEndian(ihdr + 4, 60000, 4);
        putBigEndian(ihdr + 8, 60000, 4);
        putBigEndian(ihdr + 17, crc32(reinterpret_cast<const uchar*>(ihdr), 17), 4);
        QFile hugePng(path("huge.png"));
        QVERIFY(hugePng.open(QIODevice::WriteOnly));
        hugePng.write(png);
    }
    QVERIFY(QDir(m_dir.path()).mkdir("folder.jpg"));
}

void tst_ImageDefinition::readsFigures_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : m_readable)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_ImageDefinition::readsFigures()
{
    QFETCH(QString, name);
    const Expected e = m_expected.value(name);
    std::unique_ptr<ImageDefinition> def(ImageDefinition::Read(path(name)));
    QVERIFY(def);
    QCOMPARE(def->Path(), path(name));
    QCOMPARE(def->FocalLength(), e.focal);
    QCOMPARE(def->LensFocalLength(), e.lensFocal);
    QCOMPARE(def->LensType(), e.lens);
    QCOMPARE(def->OrderKey(), e.orderKey);
    // Bit for bit: the same formula in double, rounded once to float.
    QCOMPARE(def->Exposure(), e.exposure);
    QCOMPARE(def->PixelSize(), e.pixelSize);
    QCOMPARE(def->OrientedSize(), e.orientedSize);
    QCOMPARE(def->Orientation(), e.orientation);
    QCOMPARE(def->Iso(), e.iso);
    QCOMPARE(def->ThumbnailImage().size(), e.thumbnail);
    const QImage::Format kept = e.thumbnail.width() * e.thumbnail.height() * 4 <= 96 * 1024
        ? QImage::Format_RGB32
        : QImage::Format_RGB888;
    QCOMPARE(def->ThumbnailImage().format(), kept);
    QCOMPARE(def->ThumbnailIsEmbedded(), e.embedded);
}

void tst_ImageDefinition::rejectsBrokenFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("truncated JPEG") << "truncated.jpg";
    QTest::newRow("JPEG cut inside its header") << "headeronly.jpg";
    QTest::newRow("JPEG declaring 65000x65000") << "huge.jpg";
    QTest::newRow("PNG declaring 60000x60000") << "huge.png";
    QTest::newRow("empty file") << "empty.jpg";
    QTest::newRow("text file") << "notes.jpg";
    QTest::newRow("random bytes") << "junk.bin";
    QTest::newRow("missing file") << "missing.jpg";
    QTest::newRow("folder") << "folder.jpg";
    QTest::newRow("empty path") << QString();
}

void tst_ImageDefinition::rejectsBrokenFiles()
{
    QFETCH(QString, name);
    const QString file = name.isEmpty() ? QString() : path(name);
    std::unique_ptr<ImageDefinition> def(ImageDefinition::Read(file));
    QVERIFY(!def);
    std::unique_ptr<ImageDefinition> metadata(
        ImageDefinition::Read(file, ImageDefinition::MetadataOnly));
    QVERIFY(!metadata);
}

void tst_ImageDefinition::metadataOnlySkipsThumbnail()
{
    std::unique_ptr<ImageDefinition> def(
        ImageDefinition::Read(path("nothumb.jpg"), ImageDefinition::MetadataOnly));
    QVERIFY(def);
    QVERIFY(def->ThumbnailImage().isNull());
    QCOMPARE(def->FocalLength(), 24.0f);
    QCOMPARE(def->PixelSize(), QSize(600, 400));
    QVERIFY(def->Thumbnail().isNull());
}

void tst_ImageDefinition::thumbnailPixmapSharesPixels()
{
    std::unique_ptr<ImageDefinition> def(ImageDefinition::Read(path("thumb.jpg")));
    QVERIFY(def);
    const QPixmap& pixmap = def->Thumbnail();
    QCOMPARE(pixmap.size(), QSize(160, 107));
    // Same object on every call.
    QCOMPARE(&def->Thumbnail(), &pixmap);
    const QImage back = pixmap.toImage();
    QCOMPARE(back.convertToFormat(def->ThumbnailImage().format()), def->ThumbnailImage());
    // The embedded thumbnail is the one the fixture wrote (JPEG-compressed,
    // so close rather than equal): compare a pixel in the middle of a stripe.
    const QImage drawn = PhotoFixture::picture(QSize(160, 107), 0, 0);
    const QRgb a = drawn.pixel(30, 30);
    const QRgb b = back.pixel(30, 30);
    QVERIFY(qAbs(qRed(a) - qRed(b)) < 16 && qAbs(qGreen(a) - qGreen(b)) < 16
        && qAbs(qBlue(a) - qBlue(b)) < 16);
}

void tst_ImageDefinition::thumbnailIsNotTurnedByOrientation()
{
    std::unique_ptr<ImageDefinition> upright(ImageDefinition::Read(path("nothumb.jpg")));
    std::unique_ptr<ImageDefinition> turned(ImageDefinition::Read(path("portrait.jpg")));
    QVERIFY(upright && turned);
    QCOMPARE(turned->Orientation(), 6);
    QCOMPARE(turned->ThumbnailImage().size(), upright->ThumbnailImage().size());
    QCOMPARE(turned->ThumbnailImage(), upright->ThumbnailImage());
}

void tst_ImageDefinition::extraFigures()
{
    PhotoFixture f = baseFixture();
    f.focalNum = 16;
    f.focal35mm = 24;
    write("crop.jpg", f);
    std::unique_ptr<ImageDefinition> def(ImageDefinition::Read(path("crop.jpg")));
    QVERIFY(def);
    QCOMPARE(def->CropFactor(), 1.5);
    QCOMPARE(def->FocalLength35mm(), 24.0f);
    QCOMPARE(def->FocalLength(), 24.0f);
    QCOMPARE(def->LensFocalLength(), 16.0f);
    QCOMPARE(def->ExposureTime(), 1.0 / 250.0);
    QCOMPARE(def->Aperture(), 8.0);
    QCOMPARE(def->CameraMake(), QStringLiteral("Zcam"));
    QCOMPARE(def->CameraModel(), QStringLiteral("Z1"));
    QCOMPARE(def->LensDescription(), QStringLiteral("24mm F1.4"));
    QVERIFY(def->HasExif());
    QVERIFY(def->HasExposure());
    QVERIFY(def->OrderKeyFromExif());
    QCOMPARE(def->ShootingTime(), QDateTime(QDate(2023, 5, 17), QTime(10, 11, 12, 345), Qt::UTC));

    std::unique_ptr<ImageDefinition> bare(ImageDefinition::Read(path("noexif.jpg")));
    QVERIFY(bare);
    QVERIFY(!bare->HasExif());
    QVERIFY(!bare->HasExposure());
    QVERIFY(!bare->OrderKeyFromExif());
    QCOMPARE(bare->CropFactor(), 0.0);
    QCOMPARE(bare->FocalLength(), 0.0f);
    QCOMPARE(bare->LensFocalLength(), 0.0f);
    QCOMPARE(bare->FocalLength35mm(), 0.0f);
    QVERIFY(bare->CameraMake().isEmpty());
}

void tst_ImageDefinition::keepsLittleMemory()
{
    // The worst case is a square picture: a 192 × 192 thumbnail.
    PhotoFixture f = baseFixture();
    f.size = QSize(1000, 1000);
    write("square.jpg", f);
    const size_t before = mallinfo2().uordblks;
    std::unique_ptr<ImageDefinition> def(ImageDefinition::Read(path("square.jpg")));
    const size_t after = mallinfo2().uordblks;
    QVERIFY(def);
    QCOMPARE(def->ThumbnailImage().size(), QSize(192, 192));
    QCOMPARE(def->ThumbnailImage().format(), QImage::Format_RGB888);
    QVERIFY2(
        def->MemoryFootprint() <= 128 * 1024, qPrintable(QString::number(def->MemoryFootprint())));
    // Measured on the heap where the allocator reports it (not under ASan).
    if (before != 0 || after != 0)
        QVERIFY2(after - before <= 128 * 1024, qPrintable(QString::number(after - before)));
    // Making the pixmap adds no second copy of the pixels.
    const size_t beforePixmap = mallinfo2().uordblks;
    QCOMPARE(def->Thumbnail().size(), QSize(192, 192));
    const size_t afterPixmap = mallinfo2().uordblks;
    if (beforePixmap != 0 || afterPixmap != 0)
        QVERIFY2(afterPixmap - beforePixmap < 4096,
            qPrintable(QString::number(afterPixmap - beforePixmap)));
}

void tst_ImageDefinition::readsFromSeveralThreads()
{
    // Reference results, read on this thread.
    QStringList names = m_readable;
    names << "truncated.jpg"
          << "notes.jpg"
          << "huge.jpg";
    struct Result
    {
        bool read = false;
        float focal = 0, exposure = 0;
        qint64 key = 0;
        int lens = 0;
        QImage thumb;
    };
    auto readOne = [&](const QString& name) {
        Result r;
        std::unique_ptr<ImageDefinition> def(ImageDefinition::Read(path(name)));
        if (def) {
            r.read = true;
            r.focal = def->FocalLength();
            r.exposure = def->Exposure();
            r.key = def->OrderKey();
            r.lens = def->LensType();
            r.thumb = def->ThumbnailImage();
        }
        return r;
    };
    std::vector<Result> reference;
    for (const QString& name : names)
        reference.push_back(readOne(name));

    constexpr int Threads = 4;
    constexpr int Rounds = 3;
    std::atomic<int> mismatches { 0 };
    std::atomic<int> reads { 0 };
    std::vector<std::thread> threads;
    for (int t = 0; t < Threads; ++t) {
        threads.emplace_back([&, t] {
            for (int round = 0; round < Rounds; ++round) {
                for (int i = 0; i < names.size(); ++i) {
                    // Each thread walks the list from a different place.
                    const int k = (i + t * 5) % names.size();
                    const Result r = readOne(names[k]);
                    const Result& ref = reference[size_t(k)];
                    if (r.read != ref.read || r.focal != ref.focal || r.exposure != ref.exposure
                        || r.key != ref.key || r.lens != ref.lens || r.thumb != ref.thumb)
                        ++mismatches;
                    ++reads;
                }
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
    QCOMPARE(reads.load(), Threads * Rounds * int(names.size()));
    QCOMPARE(mismatches.load(), 0);
}

void tst_ImageDefinition::refusesMorePixelsThanTheFileHolds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<bool>("read");
    QTest::addColumn<QSize>("size");
    // A GIF of 34 bytes: a canvas of width x height, one pixel drawn in it.
    const auto gif = [](quint16 width, quint16 height) {
        QByteArray bytes("GIF89a");
        bytes += char(width & 0xff);
        bytes += char(width >> 8);
        bytes += char(height & 0xff);
        bytes += char(height >> 8);
        bytes += QByteArray::fromHex("800000" // two colours, background 0
                                     "000000ffffff" // black, white
                                     "2c0000000001000100" // a frame of 1 x 1 at 0, 0
                                     "0202440100" // its pixel, LZW
                                     "3b");
        return bytes;
    };
    // Its decoder would fill 490 MB for the canvas it declares.
    QTest::newRow("GIF of 34 bytes, 122 Mpx") << gif(1871, 65439) << "jpg" << false << QSize();
    QTest::newRow("GIF of 34 bytes, 1 Mpx")
        << gif(1024, 1024) << "jpg" << true << QSize(1024, 1024);
    // A flat picture of 2000 x 2000 compresses to a few kilobytes, well
    // within what such a file can hold.
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    QImage flat(2000, 2000, QImage::Format_RGB32);
    flat.fill(qRgb(90, 140, 200));
    flat.save(&buffer, "png");
    QTest::newRow("flat PNG of 4 Mpx") << png << "png" << true << QSize(2000, 2000);

    // JPEGs written by Qt. A flat picture is the most compressed a JPEG gets,
    // and still spends at least a bit on every 8 x 8 block.
    const auto jpeg = [](const QImage& picture, bool progressive, bool optimised) {
        QByteArray bytes;
        QBuffer out(&bytes);
        out.open(QIODevice::WriteOnly);
        QImageWriter writer(&out, "jpeg");
        writer.setProgressiveScanWrite(progressive);
        writer.setOptimizedWrite(optimised);
        writer.write(picture);
        return bytes;
    };
    // The same JPEG with its frame header declaring `size` instead.
    const auto declaring = [](QByteArray bytes, QSize size) {
        for (int pos = 2; pos + 9 < bytes.size();) {
            const uchar marker = uchar(bytes[pos + 1]);
            if (marker == 0xC0 || marker == 0xC2) {
                putBigEndian(bytes.data() + pos + 5, quint32(size.height()), 2);
                putBigEndian(bytes.data() + pos + 7, quint32(size.width()), 2);
                return bytes;
            }
            pos += 2 + ((uchar(bytes[pos + 2]) << 8) | uchar(bytes[pos + 3]));
        }
        return QByteArray();
    };
    QTest::newRow("flat JPEG of 4 Mpx") << jpeg(flat, false, false) << "jpg" << true
                                        << QSize(2000, 2000);
    QTest::newRow("flat JPEG of 4 Mpx, optimised tables")
        << jpeg(flat, false, true) << "jpg" << true << QSize(2000, 2000);
    QTest::newRow("flat progressive JPEG of 4 Mpx")
        << jpeg(flat, true, true) << "jpg" << true << QSize(2000, 2000);
    // A picture of 64 x 64 whose header declares 16 Mpx: the decoder would
    // zero buffers for 16 Mpx (all of it, for a progressive one) from a few
    // hundred bytes of picture data.
    QImage small = flat.scaled(64, 64);
    QTest::newRow("JPEG of 64 x 64 declaring 16 Mpx")
        << declaring(jpeg(small, false, false), QSize(4000, 4000)) << "jpg" << false << QSize();
    QTest::newRow("progressive JPEG of 64 x 64 declaring 16 Mpx")
        << declaring(jpeg(small, true, false), QSize(4000, 4000)) << "jpg" << false << QSize();
    // Up to a megapixel is read whatever the picture data holds.
    QTest::newRow("JPEG of 64 x 64 declaring 1 Mpx")
        << declaring(jpeg(small, false, false), QSize(1024, 1024)) << "jpg" << true
        << QSize(1024, 1024);
}

void tst_ImageDefinition::refusesMorePixelsThanTheFileHolds()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, suffix);
    QFETCH(bool, read);
    QFETCH(QSize, size);
#if defined(__SANITIZE_THREAD__)
    // Qt converts a picture of a megapixel on its own thread pool, and the Qt
    // here is not built for ThreadSanitizer: under it, races inside Qt would
    // be reported. These rows run in every other build.
    if (read)
        QSKIP("Qt's image conversion threads are not built for ThreadSanitizer");
#endif
    QVERIFY(bytes.size() >= 34);
    const QString name
        = path(QStringLiteral("declares-%1.%2").arg(QTest::currentDataTag()).arg(suffix));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
    file.close();
    ImageDefinition::ReadFailure failure = ImageDefinition::ReadFailure::None;
    const std::unique_ptr<ImageDefinition> def(
        ImageDefinition::Read(name, ImageDefinition::WithThumbnail, &failure));
    QCOMPARE(def != nullptr, read);
    QCOMPARE(failure,
        read ? ImageDefinition::ReadFailure::None : ImageDefinition::ReadFailure::TooLarge);
    if (!read)
        return;
    // A GIF's size is its canvas (Qt's reader reported 1871 x 1 for the
    // canvas of the first row).
    QCOMPARE(QSize(def->Width(), def->Height()), size);
    QVERIFY(!def->ThumbnailImage().isNull());
}

QTEST_MAIN(tst_ImageDefinition)
// A file that the first read holds whole is worked on from memory; a larger
// one through the file. The same picture with bytes appended after its end
// (which every reader ignores) takes the other way and must read the same.
void tst_ImageDefinition::smallFilesReadFromMemoryAsFromTheFile_data()
{
    QTest::addColumn<QString>("name");
    int rows = 0;
    for (const QString& name : qAsConst(m_readable)) {
        if (QFileInfo(path(name)).size() >= 64 * 1024)
            continue;
        QTest::newRow(qPrintable(name)) << name;
        ++rows;
    }
    QVERIFY2(rows >= 5, "too few small photographs to compare the two ways");
}

void tst_ImageDefinition::smallFilesReadFromMemoryAsFromTheFile()
{
    QFETCH(QString, name);
    QFile original(path(name));
    QVERIFY(original.open(QIODevice::ReadOnly));
    QByteArray bytes = original.readAll();
    bytes.append(QByteArray(64 * 1024, '\0'));
    const QString padded = path(QStringLiteral("padded-") + name);
    {
        QFile out(padded);
        QVERIFY(out.open(QIODevice::WriteOnly));
        QCOMPARE(out.write(bytes), qint64(bytes.size()));
        out.close();
        QVERIFY(out.open(QIODevice::ReadWrite));
        QVERIFY(out.setFileTime(ModificationTime, QFileDevice::FileModificationTime));
    }

    std::unique_ptr<ImageDefinition> fromMemory(ImageDefinition::Read(path(name)));
    std::unique_ptr<ImageDefinition> fromFile(ImageDefinition::Read(padded));
    QVERIFY(fromMemory);
    QVERIFY(fromFile);
    QCOMPARE(fromFile->FocalLength(), fromMemory->FocalLength());
    QCOMPARE(fromFile->LensFocalLength(), fromMemory->LensFocalLength());
    QCOMPARE(fromFile->LensType(), fromMemory->LensType());
    QCOMPARE(fromFile->OrderKey(), fromMemory->OrderKey());
    QCOMPARE(fromFile->Exposure(), fromMemory->Exposure());
    QCOMPARE(fromFile->PixelSize(), fromMemory->PixelSize());
    QCOMPARE(fromFile->Orientation(), fromMemory->Orientation());
    QCOMPARE(fromFile->Iso(), fromMemory->Iso());
    QCOMPARE(fromFile->ThumbnailIsEmbedded(), fromMemory->ThumbnailIsEmbedded());
    QCOMPARE(fromFile->ThumbnailImage(), fromMemory->ThumbnailImage());
    QVERIFY(!fromMemory->ThumbnailImage().isNull());
}

#include "tst_ImageDefinition.moc"
