// Hostile JPEG files against the host's image reading: files cut short at
// every 4 KiB, EXIF blocks with bogus offsets, counts, types and loops, and
// pictures or thumbnails that declare huge dimensions. Every read ends in a
// definition or a null result (the documented refusal), never a crash; the
// peak resident memory of a read stays under the bound stated per case.
#include "ImageDefinition.h"
#include "JpegFactory.h"
#include "PeakMemory.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <memory>

namespace {

/// What a read must end in.
enum class Outcome {
    Readable, ///< a definition with a thumbnail
    Refused, ///< null, in both read modes
    Either, ///< null or a definition; only safety and memory are checked
};

} // namespace

Q_DECLARE_METATYPE(Outcome)

class tst_HostileImages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cutEvery4KiB_data();
    void cutEvery4KiB();
    void bogusExif_data();
    void bogusExif();
    void hugeDimensions_data();
    void hugeDimensions();

private:
    QString write(const QString& name, const QByteArray& bytes);
    void readAndCheck(const QString& path, Outcome outcome, qint64 boundMb);

    QTemporaryDir m_dir;
    QByteArray m_photo;
    JpegFactory::Exif m_exif;
    JpegFactory::Layout m_layout;
    QByteArray m_withLayout;
};

QString tst_HostileImages::write(const QString& name, const QByteArray& bytes)
{
    const QString path = m_dir.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return QString();
    return path;
}

void tst_HostileImages::readAndCheck(const QString& path, Outcome outcome, qint64 boundMb)
{
    QVERIFY(!path.isEmpty());
    for (const auto mode : { ImageDefinition::MetadataOnly, ImageDefinition::WithThumbnail }) {
        const PeakMemory memory;
        const std::unique_ptr<ImageDefinition> def(ImageDefinition::Read(path, mode));
        const qint64 grown = memory.growthMb();
        QVERIFY2(grown >= 0, "/proc/self/status is not readable");
        QVERIFY2(grown < PeakMemory::allowedMb(boundMb),
            qPrintable(QStringLiteral("peak RSS grew by %1 MB, bound %2 MB")
                           .arg(grown)
                           .arg(PeakMemory::allowedMb(boundMb))));
        if (outcome == Outcome::Refused)
            QVERIFY2(!def, "a damaged file must be refused");
        if (outcome == Outcome::Readable)
            QVERIFY2(def, "the picture itself is intact and must be readable");
        if (!def)
            continue;
        QVERIFY(def->Orientation() >= 1 && def->Orientation() <= 8);
        QVERIFY(def->Width() >= 0 && def->Height() >= 0);
        if (mode == ImageDefinition::WithThumbnail) {
            const QImage thumb = def->ThumbnailImage();
            QVERIFY(!thumb.isNull());
            QVERIFY(thumb.width() <= ImageDefinition::ThumbnailSide);
            QVERIFY(thumb.height() <= ImageDefinition::ThumbnailSide);
            const QPixmap& pixmap = def->Thumbnail();
            QCOMPARE(pixmap.size(), thumb.size());
        } else {
            QVERIFY(def->ThumbnailImage().isNull());
        }
    }
}

void tst_HostileImages::initTestCase()
{
    QVERIFY(m_dir.isValid());
    // A 1600 x 1200 photograph with EXIF figures and an embedded thumbnail:
    // a few hundred KiB, so it is cut at many places.
    m_photo = JpegFactory::photo(1600, 1200, 35.0, 1.0 / 250.0, 7);
    QVERIFY(m_photo.size() > 64 * 1024);
    const QString whole = write(QStringLiteral("whole.jpg"), m_photo);
    const std::unique_ptr<ImageDefinition> def(ImageDefinition::Read(whole));
    QVERIFY2(def, "the intact photograph must be readable");
    QCOMPARE(def->FocalLength(), 35.0f);
    QCOMPARE(def->PixelSize(), QSize(1600, 1200));

    // The small picture whose EXIF block the bogus cases damage.
    m_exif.focalLength = 24.0;
    m_exif.thumbnail = JpegFactory::encode(JpegFactory::picture(160, 120, 3), 80);
    m_withLayout = JpegFactory::withExif(
        JpegFactory::encode(JpegFactory::picture(320, 240, 3)), m_exif, &m_layout);
    const std::unique_ptr<ImageDefinition> small(
        ImageDefinition::Read(write(QStringLiteral("small.jpg"), m_withLayout)));
    QVERIFY(small);
    QCOMPARE(small->FocalLength(), 24.0f);
    QVERIFY(small->ThumbnailIsEmbedded());
}

void tst_HostileImages::cutEvery4KiB_data()
{
    QTest::addColumn<int>("length");
    for (int length = 4096; length < m_photo.size(); length += 4096)
        QTest::newRow(qPrintable(QStringLiteral("cut at %1").arg(length))) << length;
    QTest::newRow("cut at 2 (the start marker alone)") << 2;
    QTest::newRow("one byte short") << int(m_photo.size() - 1);
}

void tst_HostileImages::cutEvery4KiB()
{
    QFETCH(int, length);
    // A file cut short is a truncated JPEG: refused, within 32 MB.
    const QString path = write(QStringLiteral("cut.jpg"), m_photo.left(length));
    readAndCheck(path, Outcome::Refused, 32);
}

void tst_HostileImages::bogusExif_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("plus");
    QTest::addColumn<quint32>("value");
    QTest::addColumn<int>("bits");

    // field: a key of the EXIF layout; plus: bytes after it (entry: +2 type,
    // +4 count, +8 value or offset); value written there with bits 16 or 32.
    QTest::newRow("IFD0 offset beyond the end") << QStringLiteral("ifd0") << 0 << 0x7ffffff0u << 32;
    QTest::newRow("IFD0 offset all ones") << QStringLiteral("ifd0") << 0 << 0xffffffffu << 32;
    QTest::newRow("IFD0 offset into the header") << QStringLiteral("ifd0") << 0 << 2u << 32;
    QTest::newRow("Exif IFD offset beyond the end")
        << QStringLiteral("ifd0.8769") << 8 << 0xfffffff0u << 32;
    QTest::newRow("Exif IFD is IFD0 again (loop)") << QStringLiteral("ifd0.8769") << 8 << 8u << 32;
    QTest::newRow("next IFD of IFD0 is itself") << QStringLiteral("ifd0.next") << 0 << 8u << 32;
    QTest::newRow("next IFD of IFD1 is IFD0 (loop)")
        << QStringLiteral("ifd1.next") << 0 << 8u << 32;
    QTest::newRow("focal offset beyond the end")
        << QStringLiteral("exif.920a") << 8 << 0x7fffffffu << 32;
    QTest::newRow("focal count huge") << QStringLiteral("exif.920a") << 4 << 0x7fffffffu << 32;
    QTest::newRow("focal type unknown") << QStringLiteral("exif.920a") << 2 << 0xffffu << 16;
    QTest::newRow("focal type zero") << QStringLiteral("exif.920a") << 2 << 0u << 16;
    QTest::newRow("make count all ones") << QStringLiteral("ifd0.010f") << 4 << 0xffffffffu << 32;
    QTest::newRow("make offset at the end")
        << QStringLiteral("ifd0.010f") << 8 << 0xfffffffcu << 32;
    QTest::newRow("exposure count 2^30") << QStringLiteral("exif.829a") << 4 << 0x40000000u << 32;
    QTest::newRow("date count 1") << QStringLiteral("exif.9003") << 4 << 1u << 32;
    QTest::newRow("thumbnail offset beyond the end")
        << QStringLiteral("ifd1.0201") << 8 << 0x7ffffff0u << 32;
    QTest::newRow("thumbnail offset into IFD0") << QStringLiteral("ifd1.0201") << 8 << 8u << 32;
    QTest::newRow("thumbnail length huge") << QStringLiteral("ifd1.0202") << 8 << 0x7fffffffu << 32;
    QTest::newRow("thumbnail length all ones")
        << QStringLiteral("ifd1.0202") << 8 << 0xffffffffu << 32;
    QTest::newRow("thumbnail length zero") << QStringLiteral("ifd1.0202") << 8 << 0u << 32;
    QTest::newRow("IFD0 entry count 0xffff") << QStringLiteral("ifd0.count") << 0 << 0xffffu << 16;
    QTest::newRow("Exif IFD entry count 0xffff")
        << QStringLiteral("exif.count") << 0 << 0xffffu << 16;
}

void tst_HostileImages::bogusExif()
{
    QFETCH(QString, field);
    QFETCH(int, plus);
    QFETCH(quint32, value);
    QFETCH(int, bits);

    QByteArray bytes = m_withLayout;
    QVERIFY2(m_layout.at.contains(field), qPrintable(field));
    const int pos = m_layout.tiffStart + m_layout.at.value(field) + plus;
    if (bits == 16)
        JpegFactory::put16(bytes, pos, quint16(value), m_exif.bigEndian);
    else
        JpegFactory::put32(bytes, pos, value, m_exif.bigEndian);
    QVERIFY(bytes != m_withLayout);

    // The picture data is intact, so the file stays readable; what the damaged
    // block says may be lost. Within 32 MB.
    const QString path = write(QStringLiteral("bogus.jpg"), bytes);
    readAndCheck(path, Outcome::Readable, 32);
    const std::unique_ptr<ImageDefinition> def(ImageDefinition::Read(path));
    QVERIFY(def);
    // A damaged entry may be read as some other number, never as a non-number.
    QVERIFY(std::isfinite(def->FocalLength()));
    QCOMPARE(def->PixelSize(), QSize(320, 240));
}

void tst_HostileImages::hugeDimensions_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<qint64>("boundMb");

    const QByteArray small = JpegFactory::encode(JpegFactory::picture(64, 48, 5));
    const auto declared = [&](quint16 w, quint16 h) {
        QByteArray b = small;
        JpegFactory::declareSize(b, w, h);
        return b;
    };
    // The picture's scan holds far fewer pixels than declared: whatever the
    // decoder does, a read stays within the bound.
    QTest::newRow("picture 65535 x 65535")
        << declared(65535, 65535) << Outcome::Either << qint64(96);
    QTest::newRow("picture 32768 x 32768")
        << declared(32768, 32768) << Outcome::Either << qint64(96);
    QTest::newRow("picture 65535 x 1") << declared(65535, 1) << Outcome::Either << qint64(32);
    QTest::newRow("picture 1 x 65535") << declared(1, 65535) << Outcome::Either << qint64(32);
    QTest::newRow("picture 0 x 0") << declared(0, 0) << Outcome::Either << qint64(32);

    // An embedded thumbnail that declares a huge size: the reader falls back to
    // decoding the picture itself, which is intact.
    JpegFactory::Exif exif;
    exif.thumbnail = JpegFactory::encode(JpegFactory::picture(160, 120, 9), 80);
    JpegFactory::declareSize(exif.thumbnail, 65535, 65535);
    QTest::newRow("thumbnail 65535 x 65535")
        << JpegFactory::withExif(JpegFactory::encode(JpegFactory::picture(320, 240, 9)), exif)
        << Outcome::Readable << qint64(32);
    JpegFactory::declareSize(exif.thumbnail, 4096, 4096);
    QTest::newRow("thumbnail 4096 x 4096")
        << JpegFactory::withExif(JpegFactory::encode(JpegFactory::picture(320, 240, 9)), exif)
        << Outcome::Readable << qint64(96);
}

void tst_HostileImages::hugeDimensions()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Outcome, outcome);
    QFETCH(qint64, boundMb);
    readAndCheck(write(QStringLiteral("huge.jpg"), bytes), outcome, boundMb);
}

QTEST_MAIN(tst_HostileImages)
#include "tst_HostileImages.moc"
