#include "JpegStructure.h"

#include <QIODevice>

bool JpegStructure::hasSignature(const QByteArray& firstBytes)
{
    return firstBytes.size() >= 2 && uchar(firstBytes[0]) == 0xFF && uchar(firstBytes[1]) == 0xD8;
}

JpegStructure JpegStructure::read(QIODevice& file, const QByteArray& firstChunk)
{
    JpegStructure jpeg;
    QByteArray& bytes = jpeg.m_headers;
    bytes = firstChunk;
    const qint64 size = file.size();
    auto have = [&](qint64 end) {
        // Reads on until `end` bytes are in hand (or the file ends).
        if (end <= bytes.size())
            return true;
        if (end > size || end > (qint64(1) << 30) || !file.seek(bytes.size()))
            return false;
        bytes += file.read(qMin(size, qMax(end, bytes.size() + qint64(256 * 1024))) - bytes.size());
        return end <= bytes.size();
    };
    auto data = [&] { return reinterpret_cast<const uchar*>(bytes.constData()); };
    if (!have(2) || data()[0] != 0xFF || data()[1] != 0xD8)
        return jpeg;
    qint64 pos = 2;
    for (int segments = 0; segments < 4096; ++segments) {
        if (!have(pos + 4) || data()[pos] != 0xFF)
            return jpeg;
        if (data()[pos + 1] == 0xFF) { // fill byte
            ++pos;
            continue;
        }
        const int length = (data()[pos + 2] << 8) | data()[pos + 3];
        if (length < 2)
            return jpeg;
        // Frame headers 0xC9–0xCB and 0xCD–0xCF code the picture arithmetically.
        const uchar marker = data()[pos + 1];
        if (marker >= 0xC9 && marker <= 0xCF && marker != 0xCC)
            jpeg.m_arithmetic = true;
        if (marker == 0xDA) {
            const qint64 scanStart = pos + 2 + length;
            if (!have(scanStart))
                return jpeg;
            bytes.truncate(int(scanStart));
            jpeg.m_scanStart = scanStart;
            return jpeg;
        }
        pos += 2 + length;
    }
    return jpeg;
}

bool JpegStructure::isWhole(QIODevice& file) const
{
    if (m_scanStart < 0)
        return false;
    const qint64 size = file.size();
    // A small first look (the marker is normally in the last bytes), then
    // larger steps back for files with data appended after the picture.
    qint64 chunk = 4 * 1024;
    QByteArray buffer;
    qint64 end = size;
    while (end > m_scanStart) {
        // Chunks overlap by one byte so a marker split across two is found.
        const qint64 begin = qMax(m_scanStart, end - chunk);
        chunk = 256 * 1024;
        if (!file.seek(begin))
            return false;
        buffer = file.read(end - begin);
        if (buffer.size() != end - begin)
            return false;
        const uchar* bytes = reinterpret_cast<const uchar*>(buffer.constData());
        for (qint64 i = buffer.size() - 2; i >= 0; --i) {
            if (bytes[i] == 0xFF && bytes[i + 1] == 0xD9)
                return true;
        }
        if (begin == m_scanStart)
            break;
        end = begin + 1;
    }
    return false;
}

qint64 JpegStructure::pixelBound(qint64 fileSize) const
{
    if (m_scanStart < 0 || m_arithmetic || fileSize < m_scanStart)
        return -1;
    const qint64 pictureBytes = fileSize - m_scanStart;
    if (pictureBytes > (qint64(1) << 40))
        return -1;
    return pictureBytes * 8 * 64;
}
