#include "ImageSize.h"

#include <QFile>
#include <QImageReader>

#include <climits>

namespace {

quint32 value(const QByteArray& data, qint64 offset, int bytes, bool little)
{
    if (offset < 0 || offset + bytes > data.size())
        return 0;
    quint32 v = 0;
    for (int i = 0; i < bytes; ++i) {
        const quint32 b = quint8(data[int(offset + (little ? bytes - 1 - i : i))]);
        v = (v << 8) | b;
    }
    return v;
}

/// Width and height of an OpenEXR file's data window, from its header: after
/// the magic number and version, attributes as name, type, size and value,
/// ending with an empty name.
QSize exrSize(QFile& file)
{
    const QByteArray head = file.read(64 * 1024);
    if (!head.startsWith(QByteArray::fromHex("762f3101")))
        return QSize();
    int at = 8;
    while (at < head.size()) {
        const int nameEnd = head.indexOf('\0', at);
        if (nameEnd < 0 || nameEnd == at)
            return QSize();
        const QByteArray name = head.mid(at, nameEnd - at);
        const int typeEnd = head.indexOf('\0', nameEnd + 1);
        if (typeEnd < 0)
            return QSize();
        const qint64 size = value(head, typeEnd + 1, 4, true);
        const qint64 start = typeEnd + 5;
        if (name == "dataWindow" && size == 16) {
            const auto coordinate
                = [&](int k) { return qint32(value(head, start + 4 * k, 4, true)); };
            const qint64 width = qint64(coordinate(2)) - coordinate(0) + 1;
            const qint64 height = qint64(coordinate(3)) - coordinate(1) + 1;
            if (width <= 0 || height <= 0 || width > INT_MAX || height > INT_MAX)
                return QSize();
            return QSize(int(width), int(height));
        }
        at = int(start + size);
    }
    return QSize();
}

/// Width and height from a classic TIFF file's first directory.
QSize tiffSize(QFile& file)
{
    const QByteArray head = file.read(8);
    if (head.size() < 8)
        return QSize();
    const bool little = head.startsWith("II*");
    if (!little && !head.startsWith(QByteArray("MM\0*", 4)))
        return QSize();
    const quint32 offset = value(head, 4, 4, little);
    if (!file.seek(offset))
        return QSize();
    const QByteArray count = file.read(2);
    const int entries = int(value(count, 0, 2, little));
    const QByteArray directory = file.read(qint64(entries) * 12);
    int width = -1, height = -1;
    for (int i = 0; i < entries && (i + 1) * 12 <= directory.size(); ++i) {
        const int tag = int(value(directory, i * 12, 2, little));
        const int type = int(value(directory, i * 12 + 2, 2, little));
        // SHORT values sit in the first two bytes of the value field.
        const quint32 v = type == 3 ? value(directory, i * 12 + 8, 2, little)
                                    : value(directory, i * 12 + 8, 4, little);
        if (tag == 256)
            width = int(v);
        else if (tag == 257)
            height = int(v);
    }
    return width > 0 && height > 0 ? QSize(width, height) : QSize();
}

} // namespace

QSize ImageSize::read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QSize();
    const QSize tiff = tiffSize(file);
    if (tiff.isValid())
        return tiff;
    file.seek(0);
    const QSize exr = exrSize(file);
    if (exr.isValid())
        return exr;
    file.close();
    QImageReader reader(path);
    return reader.size();
}
