// FuzzTempFile: the file through which a fuzz target hands its input to a
// reader that takes a file name. One file per process, rewritten for every
// input, kept in memory-backed /dev/shm when the machine has it, removed when
// the process ends normally.
#pragma once

#include <QDir>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

class FuzzTempFile
{
public:
    /// tag names the target; the process id keeps parallel jobs apart.
    explicit FuzzTempFile(const char* tag, const char* suffix = "")
    {
        const QString dir = QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm")
                                                                      : QDir::tempPath();
        m_path = QStringLiteral("%1/zph-fuzz-%2-%3%4")
                     .arg(dir, QString::fromLatin1(tag))
                     .arg(::getpid())
                     .arg(QString::fromLatin1(suffix));
        m_native = m_path.toLocal8Bit();
    }
    ~FuzzTempFile() { ::unlink(m_native.constData()); }

    FuzzTempFile(const FuzzTempFile&) = delete;
    FuzzTempFile& operator=(const FuzzTempFile&) = delete;

    /// Replaces the file's content with data. False when the file cannot be
    /// written (the input is then skipped, never reported as a finding).
    bool write(const uint8_t* data, size_t size)
    {
        const int fd = ::open(m_native.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (fd < 0)
            return false;
        size_t done = 0;
        while (done < size) {
            const ssize_t n = ::write(fd, data + done, size - done);
            if (n <= 0) {
                ::close(fd);
                return false;
            }
            done += size_t(n);
        }
        return ::close(fd) == 0;
    }

    const QString& path() const { return m_path; }

private:
    QString m_path;
    QByteArray m_native;
};
