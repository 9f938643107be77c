#include "ImageSize.h"

#include <QFile>
#include <QImageReader>

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
    file.close();
    QImageReader reader(path);
    return reader.size();
}
