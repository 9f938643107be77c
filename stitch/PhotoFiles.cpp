#include "PhotoFiles.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PhotoFiles {

namespace {

    bool holdsControlCharacter(const QString& text)
    {
        for (const QChar c : text) {
            if (c.unicode() < 0x20 || c.unicode() == 0x7f)
                return true;
        }
        return false;
    }

} // namespace

QString printable(const QString& name)
{
    if (!holdsControlCharacter(name))
        return name;
    QString text;
    for (const QChar c : name) {
        if (c == QLatin1Char('\n'))
            text += QStringLiteral("\\n");
        else if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            text += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
        else
            text += c;
    }
    return text;
}

QString problem(const QString& path)
{
    if (holdsControlCharacter(path))
        return QStringLiteral("its name holds a line break or another control character, which "
                              "a Hugin project cannot hold");
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0) {
        const int error = errno;
        struct stat link = {};
        const bool isLink = ::lstat(name.constData(), &link) == 0 && S_ISLNK(link.st_mode);
        if (error == ELOOP)
            return QStringLiteral("a link loop");
        if (isLink && error == ENOENT)
            return QStringLiteral("a dangling link");
        if (error == ENOENT)
            return QStringLiteral("no such file");
        return QString::fromLocal8Bit(std::strerror(error));
    }
    if (S_ISDIR(status.st_mode))
        return QStringLiteral("a folder");
    if (S_ISFIFO(status.st_mode))
        return QStringLiteral("not a regular file (a FIFO)");
    if (!S_ISREG(status.st_mode))
        return QStringLiteral("not a regular file");
    if (status.st_size == 0)
        return QStringLiteral("empty (0 bytes)");
    const int fd = ::open(name.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return QStringLiteral("unreadable: %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
    ::close(fd);
    return QString();
}

bool isLayoutPicture(const QString& fileName)
{
    return fileName.endsWith(QLatin1String("-layout.png"), Qt::CaseInsensitive);
}

QString collect(
    const QStringList& arguments, const QStringList& suffixes, bool sortByName, QStringList* photos)
{
    for (const QString& argument : arguments) {
        const QFileInfo info(argument);
        if (info.isDir()) {
            QStringList inFolder;
            QStringList refused;
            const QDir folder(argument);
            // System: dangling links and FIFOs are listed too, to be named.
            for (const QFileInfo& entry : folder.entryInfoList(
                     QDir::Files | QDir::System | QDir::NoDotAndDotDot, QDir::Name)) {
                if (!suffixes.contains(entry.suffix().toLower())
                    || isLayoutPicture(entry.fileName()))
                    continue;
                const QString reason = problem(entry.absoluteFilePath());
                if (reason.isEmpty())
                    inFolder << entry.absoluteFilePath();
                else
                    refused << QStringLiteral("%1 (%2)").arg(printable(entry.fileName()), reason);
            }
            if (!refused.isEmpty())
                return QStringLiteral("cannot use %1 in the folder %2: %3")
                    .arg(refused.size() == 1 ? QStringLiteral("1 file")
                                             : QStringLiteral("%1 files").arg(refused.size()),
                        argument, refused.join(QStringLiteral(", ")));
            if (inFolder.isEmpty())
                return QStringLiteral("no photographs in the folder %1").arg(argument);
            inFolder.sort(Qt::CaseSensitive);
            *photos << inFolder;
            continue;
        }
        if (!info.exists() && !info.isSymLink() && !holdsControlCharacter(argument))
            return QStringLiteral("no such photograph or folder: %1").arg(argument);
        const QString reason = problem(argument);
        if (!reason.isEmpty())
            return QStringLiteral("cannot use the photograph %1: %2")
                .arg(printable(argument), reason);
        *photos << info.absoluteFilePath();
    }
    photos->removeDuplicates();
    if (sortByName)
        photos->sort(Qt::CaseSensitive);
    return QString();
}

} // namespace PhotoFiles
