#include "ToolRunner.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <vector>

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

std::mutex& setUpMutex()
{
    static std::mutex mutex;
    return mutex;
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
    // Setting a program up and collecting its end go through Qt's shared
    // caches (executable lookup, file names, text codecs), which Qt guards
    // with mutexes of its own that ThreadSanitizer cannot see; programs run
    // at once from several threads take these parts in turn under a mutex of
    // ours. The waiting in between is each program's own and runs freely.
    std::unique_lock<std::mutex> turn(setUpMutex());
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
    turn.unlock();
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
    turn.lock();
    if (!result.stopped && !result.timedOut) {
        result.crashed = process.exitStatus() == QProcess::CrashExit;
        result.exitCode = process.exitCode();
    }
    result.tail = lastLines(logPath, 3);
    return result;
}

QVector<ToolRunner::Result> ToolRunner::runEach(const QString& name, const QVector<Job>& jobs,
    const QString& workingFolder, int parallel, int timeoutSeconds, const std::atomic<bool>* stop,
    const Finished& finished, const Polled& polled) const
{
    std::vector<Result> results(size_t(jobs.size()));
    std::mutex mutex;
    std::condition_variable changed;
    int next = 0;
    int working = 0;
    std::deque<int> ended;
    // Raised by a stop, a refusal of finished(); every running program
    // watches it.
    std::atomic<bool> halt { false };
    const QDeadlineTimer deadline(qint64(timeoutSeconds) * 1000);

    const auto work = [&] {
        for (;;) {
            int job = 0;
            {
                const std::lock_guard<std::mutex> lock(mutex);
                if (halt.load() || next >= jobs.size())
                    break;
                job = next++;
            }
            // Each run may take what is left of the time of them all.
            const qint64 left = deadline.remainingTime();
            Result result;
            if (left == 0) {
                result.started = true;
                result.timedOut = true;
            } else {
                result = run(name, jobs[job].arguments, workingFolder, jobs[job].logPath,
                    int(qMax<qint64>(1, (left + 999) / 1000)), &halt);
            }
            const std::lock_guard<std::mutex> lock(mutex);
            results[size_t(job)] = result;
            ended.push_back(job);
            changed.notify_all();
        }
        const std::lock_guard<std::mutex> lock(mutex);
        --working;
        changed.notify_all();
    };

    const int threads = qBound(1, parallel, qMax(1, int(jobs.size())));
    QVector<QThread*> workers;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        working = threads;
    }
    for (int i = 0; i < threads; ++i) {
        QThread* thread = QThread::create(work);
        thread->setObjectName(QStringLiteral("%1 %2").arg(name).arg(i + 1));
        workers << thread;
        thread->start();
    }
    std::unique_lock<std::mutex> lock(mutex);
    for (;;) {
        changed.wait_for(lock, std::chrono::milliseconds(PollMilliseconds / 2),
            [&] { return !ended.empty() || working == 0; });
        if (polled) {
            lock.unlock();
            polled();
            lock.lock();
        }
        while (!ended.empty()) {
            const int job = ended.front();
            ended.pop_front();
            lock.unlock();
            const bool goOn = !finished || finished(job, results[size_t(job)]);
            lock.lock();
            if (!goOn)
                halt.store(true);
        }
        if (stop && stop->load())
            halt.store(true);
        if (working == 0 && ended.empty())
            break;
    }
    for (int job = next; job < jobs.size(); ++job) {
        results[size_t(job)].started = true;
        results[size_t(job)].stopped = true;
    }
    lock.unlock();
    for (QThread* thread : qAsConst(workers)) {
        thread->wait();
        delete thread;
    }
    return QVector<Result>(results.begin(), results.end());
}
