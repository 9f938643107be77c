// Revealing files with a stand-in script runner that logs its arguments: which
// URLs lead to runs, with which scripts, in which order.
#include "ZuiFileBrowser.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString kActivate = QStringLiteral("tell application \"Finder\" to activate");

QString RevealScript(const QString& path)
{
    return QStringLiteral("tell application \"Finder\" to reveal POSIX file \"") + path
        + QLatin1Char('"');
}

} // namespace

class tst_ZuiFileBrowser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void reveal_data();
    void reveal();
    void missingRunnerRunsNothing();

private:
    /// Each run of the runner, as its argument list.
    QList<QStringList> Runs() const;
    QUrl FileUrl(const QString& name) const { return QUrl::fromLocalFile(m_dir.filePath(name)); }

    QTemporaryDir m_dir;
    QString m_runner;
    QString m_log;
};

void tst_ZuiFileBrowser::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_runner = m_dir.filePath(QStringLiteral("runner.sh"));
    m_log = m_dir.filePath(QStringLiteral("runs.log"));
    QFile script(m_runner);
    QVERIFY(script.open(QIODevice::WriteOnly));
    // One line per argument, then a separator line per run.
    script.write(
        "#!/bin/sh\n"
        "for a in \"$@\"; do printf '%s\\n' \"$a\" >> \"$(dirname \"$0\")/runs.log\"; done\n"
        "echo '<end>' >> \"$(dirname \"$0\")/runs.log\"\n"
        "exit 3\n");
    script.close();
    QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));

    for (const char* name : { "a.jpg", "b c.jpg", "d.jpg" }) {
        QFile file(m_dir.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("folder")));
}

void tst_ZuiFileBrowser::init()
{
    QFile::remove(m_log);
}

QList<QStringList> tst_ZuiFileBrowser::Runs() const
{
    QList<QStringList> runs;
    QFile log(m_log);
    if (!log.open(QIODevice::ReadOnly))
        return runs;
    QStringList current;
    for (const QByteArray& line : log.readAll().split('\n')) {
        if (line == "<end>") {
            runs << current;
            current.clear();
        } else if (!line.isEmpty()) {
            current << QString::fromUtf8(line);
        }
    }
    return runs;
}

void tst_ZuiFileBrowser::reveal_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<QStringList>("revealed");

    const QString a = m_dir.filePath(QStringLiteral("a.jpg"));
    const QString bc = m_dir.filePath(QStringLiteral("b c.jpg"));
    const QString d = m_dir.filePath(QStringLiteral("d.jpg"));

    QTest::newRow("no URLs") << QList<QUrl>() << QStringList();
    QTest::newRow("one file") << QList<QUrl> { FileUrl(QStringLiteral("a.jpg")) }
                              << QStringList { a };
    QTest::newRow("files in given order") << QList<QUrl> { FileUrl(QStringLiteral("d.jpg")),
        FileUrl(QStringLiteral("b c.jpg")), FileUrl(QStringLiteral("a.jpg")) }
                                          << QStringList { d, bc, a };
    QTest::newRow("missing file skipped") << QList<QUrl> { FileUrl(QStringLiteral("missing.jpg")),
        FileUrl(QStringLiteral("a.jpg")) } << QStringList { a };
    QTest::newRow("other schemes skipped")
        << QList<QUrl> { QUrl(QStringLiteral("http://example.com") + a),
               QUrl(QStringLiteral("ftp://host/x.jpg")), FileUrl(QStringLiteral("d.jpg")) }
        << QStringList { d };
    QTest::newRow("scheme-less path skipped") << QList<QUrl> { QUrl(a) } << QStringList();
    QTest::newRow("empty URL skipped") << QList<QUrl> { QUrl() } << QStringList();
    QTest::newRow("existing folder revealed")
        << QList<QUrl> { FileUrl(QStringLiteral("folder")) }
        << QStringList { m_dir.filePath(QStringLiteral("folder")) };
    QTest::newRow("same file twice")
        << QList<QUrl> { FileUrl(QStringLiteral("a.jpg")), FileUrl(QStringLiteral("a.jpg")) }
        << QStringList { a, a };
}

void tst_ZuiFileBrowser::reveal()
{
    QFETCH(QList<QUrl>, urls);
    QFETCH(QStringList, revealed);

    const int runs = ZuiFileBrowser::Reveal(m_runner, urls);
    QCOMPARE(runs, 2 * revealed.size());

    // Per file: reveal it, then bring the browser forward; exit codes ignored.
    QList<QStringList> expected;
    for (const QString& path : revealed) {
        expected << QStringList { QStringLiteral("-e"), RevealScript(path) };
        expected << QStringList { QStringLiteral("-e"), kActivate };
    }
    QCOMPARE(Runs(), expected);
}

void tst_ZuiFileBrowser::missingRunnerRunsNothing()
{
    const QList<QUrl> urls { FileUrl(QStringLiteral("a.jpg")), FileUrl(QStringLiteral("d.jpg")) };
    QCOMPARE(ZuiFileBrowser::Reveal(m_dir.filePath(QStringLiteral("no-runner")), urls), 0);
    QVERIFY(Runs().isEmpty());
    QVERIFY(!QFile::exists(m_log));
}

QTEST_MAIN(tst_ZuiFileBrowser)
#include "tst_ZuiFileBrowser.moc"
