#include "ToolRunner.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <signal.h>
#include <unistd.h>

namespace {

/// How often a running program is checked for the stop flag and the timeout.
constexpr int PollMilliseconds = 100;
/// How long a program may take to end after SIGTERM before it gets SIGKILL.
constexpr int GraceMilliseconds = 1000;

/// A process that leads a process group of its own: the group's id is the
/// process's id, and ending the group ends the program's children too.
class GroupLeaderProcess : public QProcess
{
protected:
    void setupChildProcess() override { ::setpgid(0, 0); }
};

QString lastLines(const QString& path, int count)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    const qint64 size = file.size();
    file.seek(qMax<qint64>(0, size - 4096));
    // Progress output may hold NUL bytes (and carriage returns); they would
    // cut the reason short.
    QByteArray tail = file.readAll();
    tail.replace('\0', QByteArray());
    tail.replace('\r', '\n');
    QStringList lines = QString::fromLocal8Bit(tail).split(QLatin1Char('\n'));
    for (QString& l : lines)
        l = l.trimmed();
    lines.removeAll(QString());
    return lines.mid(qMax(0, lines.size() - count)).join(QStringLiteral(" | "));
}

/// Ends the process group led by process: SIGTERM, then SIGKILL to whatever
/// of the group is left after the grace.
void endGroup(QProcess& process)
{
    const pid_t group = pid_t(process.processId());
    if (group <= 0)
        return;
    ::kill(-group, SIGTERM);
    process.waitForFinished(GraceMilliseconds);
    // The group outlives its leader while a child of it runs; SIGKILL goes to
    // the group even when the leader has ended.
    ::kill(-group, SIGKILL);
    if (process.state() != QProcess::NotRunning)
        process.waitForFinished(GraceMilliseconds);
}

} // namespace

QString ToolRunner::Result::failure() const
{
    if (!started)
        return QStringLiteral("cannot be started");
    if (stopped)
        return QStringLiteral("was stopped");
    if (timedOut)
        return QStringLiteral("did not finish in time");
    if (crashed)
        return QStringLiteral("crashed");
    return QStringLiteral("exit code %1").arg(exitCode);
}

ToolRunner::ToolRunner(const QString& folder) : m_folder(folder) { }

QString ToolRunner::program(const QString& name) const
{
    if (m_folder.isEmpty())
        return QStandardPaths::findExecutable(name);
    return QStandardPaths::findExecutable(name, { m_folder });
}

ToolRunner::Result ToolRunner::run(const QString& name, const QStringList& arguments,
    const QString& workingFolder, const QString& logPath, int timeoutSeconds,
    const std::atomic<bool>* stop) const
{
    Result result;
    const QString path = program(name);
    {
        QFile log(logPath);
        if (log.open(QIODevice::Append)) {
            log.write(QStringLiteral("$ %1 %2\n")
                          .arg(name, arguments.join(QLatin1Char(' ')))
                          .toLocal8Bit());
        }
    }
    if (path.isEmpty())
        return result;
    const auto stopped = [stop] { return stop && stop->load(); };
    if (stopped()) {
        result.started = true;
        result.stopped = true;
        return result;
    }
    GroupLeaderProcess process;
    process.setProgram(path);
    process.setArguments(arguments);
    process.setWorkingDirectory(workingFolder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardOutputFile(logPath, QIODevice::Append);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start();
    if (!process.waitForStarted(30000))
        return result;
    result.started = true;
    const QDeadlineTimer deadline(qint64(timeoutSeconds) * 1000);
    while (!process.waitForFinished(PollMilliseconds)) {
        if (process.state() == QProcess::NotRunning)
            break;
        if (stopped())
            result.stopped = true;
        else if (deadline.hasExpired())
            result.timedOut = true;
        else
            continue;
        endGroup(process);
        break;
    }
    if (!result.stopped && !result.timedOut) {
        result.crashed = process.exitStatus() == QProcess::CrashExit;
        result.exitCode = process.exitCode();
    }
    result.tail = lastLines(logPath, 3);
    return result;
}
