// OutputFiles: how a command puts its results on disk. Every file is written
// to a temporary file in its own folder and renamed into place only when all
// of the set are complete, so a failed, stopped or out-of-space run leaves the
// previous files as they were; a lock file in the output folder keeps two
// runs from mixing their files; existing outputs are replaced only when the
// user asked for it.
#pragma once

#include <QLockFile>
#include <QSaveFile>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class QIODevice;

namespace OutputFiles {

/// The lock file a run holds in its output folder while it writes there.
extern const char LockName[];

/// Whether outputs can go into folder: an existing folder that can be
/// written, or a folder still to be made below one. False with one line in
/// *error ("the output folder /x is a file", "... is read-only").
bool checkFolder(const QString& folder, const QString& what, QString* error);

/// The first of outputs that exists, unless force; empty when none.
QString existing(const QStringList& outputs, bool force);

/// "<file> exists; give --force to replace it".
QString existsMessage(const QString& file);

/// True when path and other name one existing file (links followed).
bool sameFile(const QString& path, const QString& other);

/// Holds the lock of one output folder while it lives.
class FolderLock
{
public:
    /// Takes the lock at once or fails with one line naming the folder and
    /// the run that holds it. A lock left by a run that no longer exists is
    /// taken over.
    bool lock(const QString& folder, QString* error);
    void unlock();

private:
    std::unique_ptr<QLockFile> m_lock;
};

/// Files written as one set: add() writes each to its temporary file,
/// commit() renames them all into place. Destroyed uncommitted, it removes
/// the temporary files.
class FileSet
{
public:
    using Writer = std::function<bool(QIODevice*)>;

    /// Writes path's temporary file with write and makes sure it reached the
    /// disk. False with "cannot write <path>: <reason>" in *error.
    bool add(const QString& path, const Writer& write, QString* error);
    /// Renames every file into place, in the order added.
    bool commit(QString* error);
    /// Removes the temporary files.
    void discard();

private:
    std::vector<std::unique_ptr<QSaveFile>> m_files;
};

} // namespace OutputFiles
