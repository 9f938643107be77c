#include "OutputFiles.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <unistd.h>

namespace OutputFiles {

const char LockName[] = ".panohead.lock";

bool checkFolder(const QString& folder, const QString& what, QString* error)
{
    const QString absolute = QFileInfo(folder).absoluteFilePath();
    // The folder itself, or the nearest folder above it that exists.
    QString existingPart = absolute;
    while (!QFileInfo::exists(existingPart) && !QFileInfo(existingPart).isSymLink()) {
        const QString up = QFileInfo(existingPart).absolutePath();
        if (up == existingPart)
            break;
        existingPart = up;
    }
    const QFileInfo info(existingPart);
    const QString prefix = existingPart == absolute
        ? QStringLiteral("the %1 %2").arg(what, folder)
        : QStringLiteral("cannot create the %1 %2: %3").arg(what, folder, existingPart);
    if (!info.exists()) {
        *error = prefix + QStringLiteral(" is a dangling link");
        return false;
    }
    if (!info.isDir()) {
        *error = prefix + QStringLiteral(" is a file");
        return false;
    }
    if (::access(QFile::encodeName(existingPart).constData(), W_OK | X_OK) != 0) {
        *error = prefix
            + (errno == EROFS ? QStringLiteral(" is on a read-only file system")
                              : QStringLiteral(" is read-only"));
        return false;
    }
    return true;
}

QString existing(const QStringList& outputs, bool force)
{
    if (force)
        return QString();
    for (const QString& output : outputs) {
        if (QFileInfo::exists(output) || QFileInfo(output).isSymLink())
            return output;
    }
    return QString();
}

QString existsMessage(const QString& file)
{
    return QStringLiteral("%1 exists; give --force to replace it")
        .arg(QDir::toNativeSeparators(file));
}

bool sameFile(const QString& path, const QString& other)
{
    const QFileInfo a(path);
    const QFileInfo b(other);
    if (!a.exists() || !b.exists())
        return false;
    return a.canonicalFilePath() == b.canonicalFilePath();
}

bool FolderLock::lock(const QString& folder, QString* error)
{
    const QString path = QDir(folder).filePath(QLatin1String(LockName));
    m_lock = std::make_unique<QLockFile>(path);
    // A stitch may hold the lock for hours: only a lock whose process has
    // ended is stale, never one that is merely old.
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock(0))
        return true;
    qint64 pid = 0;
    QString host, application;
    switch (m_lock->error()) {
    case QLockFile::LockFailedError:
        m_lock->getLockInfo(&pid, &host, &application);
        *error = QStringLiteral("another run (process %1) is writing into %2; try again when it "
                                "has finished (lock file %3)")
                     .arg(pid)
                     .arg(QDir::toNativeSeparators(folder), QLatin1String(LockName));
        break;
    case QLockFile::PermissionError:
        *error = QStringLiteral("cannot write into %1: permission denied")
                     .arg(QDir::toNativeSeparators(folder));
        break;
    default:
        *error = QStringLiteral("cannot write into %1: %2")
                     .arg(QDir::toNativeSeparators(folder),
                         QString::fromLocal8Bit(std::strerror(errno)));
        break;
    }
    m_lock.reset();
    return false;
}

void FolderLock::unlock()
{
    m_lock.reset();
}

bool FileSet::add(const QString& path, const Writer& write, QString* error)
{
    auto file = std::make_unique<QSaveFile>(path);
    bool ok = file->open(QIODevice::WriteOnly) && write(file.get()) && file->flush()
        && file->error() == QFileDevice::NoError;
    // On disks that allocate late, a full disk shows only here.
    int syncError = 0;
    if (ok && ::fsync(file->handle()) != 0) {
        syncError = errno;
        ok = false;
    }
    if (!ok) {
        const QString reason = syncError ? QString::fromLocal8Bit(std::strerror(syncError))
            : file->error() != QFileDevice::NoError
            ? file->errorString()
            : QStringLiteral("the data could not be written");
        *error = QStringLiteral("cannot write %1: %2").arg(QDir::toNativeSeparators(path), reason);
        file->cancelWriting();
        return false;
    }
    m_files.push_back(std::move(file));
    return true;
}

bool FileSet::commit(QString* error)
{
    for (auto& file : m_files) {
        if (!file->commit()) {
            *error = QStringLiteral("cannot write %1: %2")
                         .arg(QDir::toNativeSeparators(file->fileName()), file->errorString());
            discard();
            return false;
        }
    }
    m_files.clear();
    return true;
}

void FileSet::discard()
{
    for (auto& file : m_files)
        file->cancelWriting();
    m_files.clear();
}

} // namespace OutputFiles
