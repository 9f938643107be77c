// ZUI's process-wide state: adopting the host's record, initialising itself,
// the file-dialog choice and the one-time loading of the JavaScript library.
// The functions run in order; each leaves ZUI uninitialised.
#include "ZUI.h"
#include "ZUIInstances.h"
#include "ZuiFileBrowser.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

int g_jsMessages = 0;
QtMessageHandler g_previousHandler = nullptr;

void CountJsMessages(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtCriticalMsg && qstrcmp(context.category, "zph.ui") == 0
        && message == QLatin1String("Cannot load closure-library.rcc file needed by ZUI"))
        ++g_jsMessages;
    g_previousHandler(type, context, message);
}

} // namespace

class tst_ZUI : public QObject
{
    Q_OBJECT

private slots:
    void hostRecordAdoptedAndSurvivesExit();
    void initNullTwice();
    void ownRecordStartsNative();
    void hostThenOwnRecord();
    void exitWithoutInit();
    void noRecordIsSafe();
    void loadJSLibrariesLogsOnce();
    void selectInFileBrowserWithoutRunner();
};

void tst_ZUI::hostRecordAdoptedAndSurvivesExit()
{
    ZUISettings settings;
    settings.useSystemFileDialog = false;
    ZUIInstances instances;
    instances.settings = &settings;

    ZUI::init(&instances);
    // The host's record is the one read and written.
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options(QFileDialog::DontUseNativeDialog));
    ZUI::SetUseSystemFileDialog(true);
    QVERIFY(settings.useSystemFileDialog);
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options());
    // Nothing else is done for a host: no "UI:" search path.
    QVERIFY(QDir::searchPaths(QStringLiteral("UI")).isEmpty());

    // exit() leaves the host's record alone (freeing this stack object would
    // be caught by the address sanitizer) and ZUI still points at it.
    ZUI::exit();
    QVERIFY(settings.useSystemFileDialog);
    ZUI::SetUseSystemFileDialog(false);
    QVERIFY(!settings.useSystemFileDialog);
    QCOMPARE(instances.settings, &settings);
}

void tst_ZUI::initNullTwice()
{
    ZUI::init(nullptr);
    QCOMPARE(QDir::searchPaths(QStringLiteral("UI")), QStringList { QStringLiteral(":/UI") });
    QVERIFY(QFile::exists(QStringLiteral("UI:iconwait_01.png")));
    ZUI::SetUseSystemFileDialog(false);

    // The second call keeps the record of the first.
    ZUI::init(nullptr);
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options(QFileDialog::DontUseNativeDialog));

    ZUI::exit();
}

void tst_ZUI::ownRecordStartsNative()
{
    ZUI::init(nullptr);
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options());
    ZUI::SetUseSystemFileDialog(false);
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options(QFileDialog::DontUseNativeDialog));
    ZUI::SetUseSystemFileDialog(true);
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options());
    ZUI::exit();

    // A new initialisation makes a new record, native again.
    ZUI::init(nullptr);
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options());
    ZUI::exit();
}

void tst_ZUI::hostThenOwnRecord()
{
    ZUISettings settings;
    ZUIInstances instances;
    instances.settings = &settings;

    // Adopting a host record does not count as initialised: a later null
    // initialisation makes the library's own record.
    ZUI::init(&instances);
    ZUI::init(nullptr);
    ZUI::SetUseSystemFileDialog(false);
    QVERIFY(settings.useSystemFileDialog);
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options(QFileDialog::DontUseNativeDialog));

    // Once initialised, the library keeps its own record and adopts no host record.
    ZUI::init(&instances);
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options(QFileDialog::DontUseNativeDialog));
    ZUI::exit();
    QVERIFY(settings.useSystemFileDialog);
}

void tst_ZUI::exitWithoutInit()
{
    ZUI::exit();
    ZUI::exit();
    // Still usable afterwards.
    ZUI::init(nullptr);
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options());
    ZUI::exit();
}

void tst_ZUI::noRecordIsSafe()
{
    // After exit() the library's own record is gone; asking is a caller's
    // error that is logged, not a crash.
    ZUI::init(nullptr);
    ZUI::exit();
    QTest::ignoreMessage(QtWarningMsg, "UseSystemFileDialog called before ZUI::init");
    QCOMPARE(ZUI::UseSystemFileDialog(), QFileDialog::Options());
    QTest::ignoreMessage(QtWarningMsg, "SetUseSystemFileDialog called before ZUI::init");
    ZUI::SetUseSystemFileDialog(false);
}

void tst_ZUI::loadJSLibrariesLogsOnce()
{
    const QString rcc = QCoreApplication::applicationDirPath()
        + QStringLiteral("/../Resources/closure-library.rcc");
    QVERIFY2(!QFile::exists(rcc), qPrintable(rcc));

    g_jsMessages = 0;
    g_previousHandler = qInstallMessageHandler(CountJsMessages);
    ZUI::loadJSLibraries();
    ZUI::loadJSLibraries();
    QCOMPARE(g_jsMessages, 1);

    // Not tried again later in the process either, even after a new initialisation.
    ZUI::init(nullptr);
    ZUI::exit();
    ZUI::loadJSLibraries();
    qInstallMessageHandler(g_previousHandler);
    QCOMPARE(g_jsMessages, 1);
}

void tst_ZUI::selectInFileBrowserWithoutRunner()
{
    // This system has no AppleScript runner: nothing runs, even for a real file.
    QVERIFY(!QFile::exists(QStringLiteral("/usr/bin/osascript")));
    QCOMPARE(ZuiFileBrowser::DefaultRunner(), QStringLiteral("/usr/bin/osascript"));
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString file = dir.filePath(QStringLiteral("picture.jpg"));
    QFile touch(file);
    QVERIFY(touch.open(QIODevice::WriteOnly));
    touch.close();
    const QList<QUrl> urls { QUrl::fromLocalFile(file) };
    QCOMPARE(ZuiFileBrowser::Reveal(ZuiFileBrowser::DefaultRunner(), urls), 0);
    ZUI::SelectInFileBrowser(this, urls);
    QVERIFY(QFile::exists(file));
}

QTEST_MAIN(tst_ZUI)
#include "tst_ZUI.moc"
