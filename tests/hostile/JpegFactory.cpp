#include "JpegFactory.h"

#include <QBuffer>
#include <QImageWriter>
#include <QtEndian>

#include <cmath>
#include <vector>

namespace {

// TIFF field types.
constexpr quint16 kAscii = 2;
constexpr quint16 kShort = 3;
constexpr quint16 kLong = 4;
constexpr quint16 kRational = 5;

struct Entry
{
    quint16 tag;
    quint16 type;
    quint32 count;
    QByteArray data; // in the block's byte order
};

class TiffWriter
{
public:
    explicit TiffWriter(bool bigEndian) : m_big(bigEndian) { }

    QByteArray u16(quint16 v) const
    {
        QByteArray b(2, '\0');
        JpegFactory::put16(b, 0, v, m_big);
        return b;
    }
    QByteArray u32(quint32 v) const
    {
        QByteArray b(4, '\0');
        JpegFactory::put32(b, 0, v, m_big);
        return b;
    }
    QByteArray rational(quint32 num, quint32 den) const { return u32(num) + u32(den); }

    Entry ascii(quint16 tag, const QByteArray& text) const
    {
        return { tag, kAscii, quint32(text.size() + 1), text + '\0' };
    }
    Entry shortValue(quint16 tag, quint16 v) const { return { tag, kShort, 1, u16(v) }; }
    Entry longValue(quint16 tag, quint32 v) const { return { tag, kLong, 1, u32(v) }; }
    Entry rationalValue(quint16 tag, quint32 num, quint32 den) const
    {
        return { tag, kRational, 1, rational(num, den) };
    }

    // Size of an IFD with its out-of-line data.
    static int ifdSize(const std::vector<Entry>& entries)
    {
        int size = 2 + 12 * int(entries.size()) + 4;
        for (const Entry& e : entries)
            if (e.data.size() > 4)
                size += e.data.size() + (e.data.size() & 1);
        return size;
    }

    // Appends the IFD at out's end (which must be its offset), recording the
    // entries' positions under prefix. Returns the position of its next pointer.
    int writeIfd(QByteArray& out, const std::vector<Entry>& entries, const QString& prefix,
        JpegFactory::Layout* layout) const
    {
        const int start = out.size();
        const int data = start + 2 + 12 * int(entries.size()) + 4;
        QByteArray tail;
        if (layout)
            layout->at.insert(prefix + QStringLiteral(".count"), start);
        out += u16(quint16(entries.size()));
        for (const Entry& e : entries) {
            if (layout)
                layout->at.insert(
                    QStringLiteral("%1.%2").arg(prefix).arg(e.tag, 4, 16, QLatin1Char('0')),
                    out.size());
            out += u16(e.tag) + u16(e.type) + u32(e.count);
            if (e.data.size() <= 4) {
                out += e.data + QByteArray(4 - e.data.size(), '\0');
            } else {
                out += u32(quint32(data + tail.size()));
                tail += e.data;
                if (e.data.size() & 1)
                    tail += '\0';
            }
        }
        const int next = out.size();
        out += u32(0);
        out += tail;
        return next;
    }

private:
    bool m_big;
};

quint32 roundPositive(double v)
{
    return quint32(std::lround(v));
}

} // namespace

QImage JpegFactory::picture(int width, int height, int seed)
{
    QImage image(width, height, QImage::Format_RGB888);
    for (int y = 0; y < height; ++y) {
        uchar* line = image.scanLine(y);
        for (int x = 0; x < width; ++x) {
            const unsigned noise = (unsigned(x) * 2654435761u) ^ (unsigned(y + seed) * 40503u);
            line[3 * x] = uchar((x * 255) / qMax(1, width - 1));
            line[3 * x + 1] = uchar((y * 255) / qMax(1, height - 1));
            line[3 * x + 2] = uchar(((x + y + seed * 37) & 0x7f) + ((noise >> 13) & 0x3f));
        }
    }
    return image;
}

QByteArray JpegFactory::encode(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpg");
    writer.setQuality(quality);
    writer.write(image);
    return bytes;
}

QByteArray JpegFactory::exifSegment(const Exif& exif, Layout* layout)
{
    const TiffWriter w(exif.bigEndian);

    std::vector<Entry> ifd0;
    if (!exif.make.isEmpty())
        ifd0.push_back(w.ascii(0x010f, exif.make));
    if (!exif.model.isEmpty())
        ifd0.push_back(w.ascii(0x0110, exif.model));
    if (exif.orientation)
        ifd0.push_back(w.shortValue(0x0112, quint16(exif.orientation)));
    ifd0.push_back(w.longValue(0x8769, 0)); // the Exif IFD's offset, set below

    std::vector<Entry> sub;
    if (exif.exposureTime > 0) {
        if (exif.exposureTime < 1.0)
            sub.push_back(w.rationalValue(0x829a, 1, roundPositive(1.0 / exif.exposureTime)));
        else
            sub.push_back(w.rationalValue(0x829a, roundPositive(exif.exposureTime * 10), 10));
    }
    if (exif.fNumber > 0)
        sub.push_back(w.rationalValue(0x829d, roundPositive(exif.fNumber * 10), 10));
    if (exif.iso > 0)
        sub.push_back(w.shortValue(0x8827, quint16(exif.iso)));
    if (!exif.dateTimeOriginal.isEmpty())
        sub.push_back(w.ascii(0x9003, exif.dateTimeOriginal));
    if (exif.focalLength > 0)
        sub.push_back(w.rationalValue(0x920a, roundPositive(exif.focalLength * 10), 10));
    if (exif.focalLength35mm > 0)
        sub.push_back(w.shortValue(0xa405, quint16(exif.focalLength35mm)));
    if (!exif.lensModel.isEmpty())
        sub.push_back(w.ascii(0xa434, exif.lensModel));

    std::vector<Entry> ifd1;
    if (!exif.thumbnail.isEmpty()) {
        ifd1.push_back(w.shortValue(0x0103, 6));
        ifd1.push_back(w.longValue(0x0201, 0)); // the thumbnail's offset, set below
        ifd1.push_back(w.longValue(0x0202, quint32(exif.thumbnail.size())));
    }

    // Offsets: header (8), IFD0, Exif IFD, IFD1, thumbnail.
    const int ifd0At = 8;
    const int subAt = ifd0At + TiffWriter::ifdSize(ifd0);
    const int ifd1At = subAt + TiffWriter::ifdSize(sub);
    const int thumbAt = ifd1At + (ifd1.empty() ? 0 : TiffWriter::ifdSize(ifd1));
    ifd0.back().data = w.u32(quint32(subAt));
    if (!ifd1.empty())
        ifd1[1].data = w.u32(quint32(thumbAt));

    Layout local;
    QByteArray tiff = exif.bigEndian ? QByteArray("MM\0*", 4) : QByteArray("II*\0", 4);
    local.at.insert(QStringLiteral("ifd0"), 4);
    tiff += w.u32(quint32(ifd0At));
    const int ifd0Next = w.writeIfd(tiff, ifd0, QStringLiteral("ifd0"), &local);
    local.at.insert(QStringLiteral("ifd0.next"), ifd0Next);
    Q_ASSERT(tiff.size() == subAt);
    local.at.insert(
        QStringLiteral("exif.next"), w.writeIfd(tiff, sub, QStringLiteral("exif"), &local));
    if (!ifd1.empty()) {
        put32(tiff, ifd0Next, quint32(ifd1At), exif.bigEndian);
        Q_ASSERT(tiff.size() == ifd1At);
        local.at.insert(
            QStringLiteral("ifd1.next"), w.writeIfd(tiff, ifd1, QStringLiteral("ifd1"), &local));
        tiff += exif.thumbnail;
    }

    const QByteArray payload = QByteArray("Exif\0\0", 6) + tiff;
    QByteArray segment("\xff\xe1", 2);
    const int length = payload.size() + 2;
    segment += char(length >> 8);
    segment += char(length & 0xff);
    segment += payload;
    if (layout) {
        layout->tiffStart = 4 + 6;
        layout->at = local.at;
    }
    return segment;
}

QByteArray JpegFactory::withExif(const QByteArray& jpeg, const Exif& exif, Layout* layout)
{
    const QByteArray segment = exifSegment(exif, layout);
    if (layout)
        layout->tiffStart += 2; // after the SOI marker
    return jpeg.left(2) + segment + jpeg.mid(2);
}

QByteArray JpegFactory::photo(
    int width, int height, double focalLength, double exposureTime, int seed)
{
    Exif exif;
    exif.focalLength = focalLength;
    exif.exposureTime = exposureTime;
    exif.thumbnail = encode(picture(160, 120, seed).scaled(160, 120), 80);
    return withExif(encode(picture(width, height, seed)), exif);
}

int JpegFactory::sofPosition(const QByteArray& jpeg)
{
    int pos = 2;
    while (pos + 4 <= jpeg.size() && uchar(jpeg[pos]) == 0xff) {
        const uchar marker = uchar(jpeg[pos + 1]);
        if (marker == 0xc0 || marker == 0xc1 || marker == 0xc2)
            return pos;
        const int length = (uchar(jpeg[pos + 2]) << 8) | uchar(jpeg[pos + 3]);
        pos += 2 + length;
    }
    return -1;
}

void JpegFactory::declareSize(QByteArray& jpeg, quint16 width, quint16 height)
{
    const int sof = sofPosition(jpeg);
    Q_ASSERT(sof >= 0);
    // FF Cn, length (2), precision (1), height (2), width (2).
    put16(jpeg, sof + 5, height, true);
    put16(jpeg, sof + 7, width, true);
}

void JpegFactory::put16(QByteArray& bytes, int pos, quint16 value, bool bigEndian)
{
    uchar* p = reinterpret_cast<uchar*>(bytes.data()) + pos;
    if (bigEndian)
        qToBigEndian(value, p);
    else
        qToLittleEndian(value, p);
}

void JpegFactory::put32(QByteArray& bytes, int pos, quint32 value, bool bigEndian)
{
    uchar* p = reinterpret_cast<uchar*>(bytes.data()) + pos;
    if (bigEndian)
        qToBigEndian(value, p);
    else
        qToLittleEndian(value, p);
}
