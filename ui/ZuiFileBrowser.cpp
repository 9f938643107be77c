// Revealing files through an AppleScript runner.
#include "ZuiFileBrowser.h"

#include <QFileInfo>
#include <QProcess>
#include <QStringList>

QString ZuiFileBrowser::DefaultRunner()
{
    return QStringLiteral("/usr/bin/osascript");
}

int ZuiFileBrowser::Reveal(const QString& runner, const QList<QUrl>& urls)
{
    const bool hasRunner = QFileInfo::exists(runner);
    int runs = 0;
    for (const QUrl& url : urls) {
        if (url.scheme() != QLatin1String("file") || !QFileInfo::exists(url.toLocalFile()))
            continue;
        if (!hasRunner)
            continue;
        const QString reveal
            = QStringLiteral("tell application \"Finder\" to reveal POSIX file \"%1\"")
                  .arg(url.toLocalFile());
        QProcess::execute(runner, { QStringLiteral("-e"), reveal });
        // Brought forward once per file, so the last one revealed is in front.
        QProcess::execute(runner,
            { QStringLiteral("-e"), QStringLiteral("tell application \"Finder\" to activate") });
        runs += 2;
    }
    return runs;
}
