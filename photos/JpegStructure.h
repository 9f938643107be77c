// JpegStructure: a JPEG file's header segments, every segment up to and
// including the start of the first scan (the EXIF data with its thumbnail,
// XMP, the frame header), and whether the picture data that follows ends with
// the end-of-image marker. Read with one read of the first 64 KiB, more only
// when the headers are longer; whole files are never read.
#pragma once

#include <QByteArray>

class QIODevice;

class JpegStructure
{
public:
    /// How much of a file is read first, to tell its kind and hold a
    /// JPEG's usual headers in one read.
    static constexpr qint64 FirstChunkBytes = 64 * 1024;

    /// True when `firstBytes` begin with the JPEG start-of-image marker.
    static bool hasSignature(const QByteArray& firstBytes);

    /// The structure of `file`, whose first bytes `firstChunk` are already
    /// read. Reads on from the file where the headers are longer.
    static JpegStructure read(QIODevice& file, const QByteArray& firstChunk);

    /// The header segments, from the start-of-image marker to where the
    /// scan data begins. Incomplete when !headersComplete().
    const QByteArray& headers() const { return m_headers; }
    /// Where the scan data begins; -1 when the headers are cut short or broken.
    qint64 scanStart() const { return m_scanStart; }
    bool headersComplete() const { return m_scanStart >= 0; }

    /// True when the headers are complete and `file` holds the end-of-image
    /// marker after them. The scan data cannot contain the marker (0xFF is
    /// always followed by 0x00 or a restart marker inside it), so a file cut
    /// short in its picture data has none there. The search runs backwards
    /// from the end, so a whole file costs a look at its last bytes; data
    /// appended after the picture is tolerated.
    bool isWhole(QIODevice& file) const;

    /// The most pixels the picture data of a file of `fileSize` bytes can
    /// describe. Huffman coding spends at least one bit on every 8 × 8 block
    /// of a frame's first component (its DC difference), so a few bytes of
    /// picture data cannot hold a large picture whatever the frame header
    /// declares (the decoder would still zero a buffer of the declared size).
    /// -1 when there is no such bound: arithmetic coding, or headers cut short.
    qint64 pixelBound(qint64 fileSize) const;

private:
    QByteArray m_headers;
    qint64 m_scanStart = -1;
    bool m_arithmetic = false;
};
