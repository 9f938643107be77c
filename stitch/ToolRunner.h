// ToolRunner: runs one of Hugin's command-line programs, its output (both
// channels) going to a log file, and reports how it ended. The program runs in
// a process group of its own, so that a timeout or a stop ends it together
// with every program it started.
#pragma once

#include <QString>
#include <QStringList>

#include <QVector>

#include <atomic>
#include <functional>

class ToolRunner
{
public:
    struct Result
    {
        bool started = false;
        bool timedOut = false;
        /// Ended because the stop flag was raised.
        bool stopped = false;
        bool crashed = false;
        int exitCode = -1;
        /// The last lines of the log, for the error message.
        QString tail;

        bool succeeded() const
        {
            return started && !timedOut && !stopped && !crashed && exitCode == 0;
        }
        /// "exit code 3", "crashed", "did not finish in time", "was stopped",
        /// "cannot be started".
        QString failure() const;
    };

    /// folder: where the programs are; empty to look them up in PATH.
    explicit ToolRunner(const QString& folder = QString());

    /// The program's full path; empty when it cannot be found.
    QString program(const QString& name) const;

    /// Runs name with arguments in workingFolder, appending its output to
    /// logPath, and waits for it on the calling thread (no event loop needed).
    /// After timeoutSeconds, or within 0.1 s of *stop (optional) turning true,
    /// the program's whole process group is sent SIGTERM and, after a grace
    /// of one second, SIGKILL.
    Result run(const QString& name, const QStringList& arguments, const QString& workingFolder,
        const QString& logPath, int timeoutSeconds, const std::atomic<bool>* stop = nullptr) const;

    /// One run of a program: its arguments and the log its output goes to.
    struct Job
    {
        QStringList arguments;
        QString logPath;
    };
    /// Called on the calling thread as each job ends, in the order they end;
    /// false stops the rest.
    using Finished = std::function<bool(int job, const Result& result)>;
    /// Called on the calling thread about every 0.1 s while jobs run, to
    /// look at what they have written so far.
    using Polled = std::function<void()>;

    /// Runs name once per job, up to parallel (at least 1) at once, each run
    /// in a process group of its own as run() does, and waits for them on the
    /// calling thread. All of them together may take timeoutSeconds; a run
    /// still going then ends as timed out. When *stop (optional) turns true or
    /// finished returns false, the running programs' groups are ended within
    /// about 0.2 s and no further job starts. polled (optional) is called
    /// while any job runs, before the ended jobs are passed to finished.
    /// Returns each job's result; a job that was not started for that reason
    /// is stopped.
    QVector<Result> runEach(const QString& name, const QVector<Job>& jobs,
        const QString& workingFolder, int parallel, int timeoutSeconds,
        const std::atomic<bool>* stop, const Finished& finished,
        const Polled& polled = Polled()) const;

private:
    QString m_folder;
};
