#include "ToolRunner.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace {

QString lastLines(const QString& path, int count)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    const qint64 size = file.size();
    file.seek(qMax<qint64>(0, size - 4096));
    QStringList lines = QString::fromLocal8Bit(file.readAll()).split(QLatin1Char('\n'));
    for (QString& l : lines)
        l = l.trimmed();
    lines.removeAll(QString());
    return lines.mid(qMax(0, lines.size() - count)).join(QStringLiteral(" | "));
}

} // namespace

QString ToolRunner::Result::failure() const
{
    if (!started)
        return QStringLiteral("cannot be started");
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
    const QString& workingFolder, const QString& logPath, int timeoutSeconds) const
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
    QProcess process;
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
    if (!process.waitForFinished(timeoutSeconds * 1000)) {
        result.timedOut = true;
        process.kill();
        process.waitForFinished(5000);
    } else {
        result.crashed = process.exitStatus() == QProcess::CrashExit;
        result.exitCode = process.exitCode();
    }
    result.tail = lastLines(logPath, 3);
    return result;
}
