// ZuiFileBrowser: reveals files in the Finder by running a script runner
// ("/usr/bin/osascript" for ZUI::SelectInFileBrowser). The runner is a
// parameter so that the URL filtering and the runs can be checked with a
// stand-in runner; the behaviour is the same for any runner path.
#pragma once

#include <QList>
#include <QString>
#include <QUrl>

class ZuiFileBrowser
{
public:
    /// The runner that ZUI::SelectInFileBrowser uses.
    static QString DefaultRunner();

    /// For each URL in order that names an existing local file, runs `runner`
    /// twice and waits for each run: with "-e" and the script revealing the
    /// file, then with "-e" and the script bringing the Finder forward. Other
    /// URLs are skipped; nothing runs when `runner` does not exist. Exit codes
    /// are ignored. Returns the number of runs made.
    static int Reveal(const QString& runner, const QList<QUrl>& urls);
};
