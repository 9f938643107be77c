// BigFile: writes very large test files without holding them in memory:
// streamed in 4 MiB blocks, or sparse (a head followed by a hole that reads as
// NUL bytes and takes no disk space).
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

class BigFile
{
public:
    /// Where to put such files: memory-backed /dev/shm when the machine has
    /// it (fast, and it takes no disk), else the temporary folder.
    static QString scratchFolder()
    {
        return QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm")
                                                         : QDir::tempPath();
    }

    /// head, then `count` bytes `fill`, then tail, with no line break unless
    /// the caller puts one in head or tail. False when the disk refuses.
    static bool writeStreamed(const QString& path, const QByteArray& head, char fill, qint64 count,
        const QByteArray& tail)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return false;
        if (file.write(head) != head.size())
            return false;
        const QByteArray block(4 << 20, fill);
        for (qint64 left = count; left > 0;) {
            const qint64 n = qMin<qint64>(left, block.size());
            if (file.write(block.constData(), n) != n)
                return false;
            left -= n;
        }
        return file.write(tail) == tail.size() && file.flush();
    }

    /// head, then a hole up to `size` bytes in all.
    static bool writeSparse(const QString& path, const QByteArray& head, qint64 size)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return false;
        return file.write(head) == head.size() && file.resize(size);
    }
};
