// ToolRunner: runs one of Hugin's command-line programs, its output (both
// channels) going to a log file, and reports how it ended.
#pragma once

#include <QString>
#include <QStringList>

class ToolRunner
{
public:
    struct Result
    {
        bool started = false;
        bool timedOut = false;
        bool crashed = false;
        int exitCode = -1;
        /// The last lines of the log, for the error message.
        QString tail;

        bool succeeded() const { return started && !timedOut && !crashed && exitCode == 0; }
        /// "exit code 3", "crashed", "did not finish in 600 s", "cannot be started".
        QString failure() const;
    };

    /// folder: where the programs are; empty to look them up in PATH.
    explicit ToolRunner(const QString& folder = QString());

    /// The program's full path; empty when it cannot be found.
    QString program(const QString& name) const;

    /// Runs name with arguments in workingFolder, appending its output to
    /// logPath. timeoutSeconds: then the program is killed.
    Result run(const QString& name, const QStringList& arguments, const QString& workingFolder,
        const QString& logPath, int timeoutSeconds) const;

private:
    QString m_folder;
};
