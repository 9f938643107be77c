// ZUI::loadJSLibraries with "closure-library.rcc" present in the Resources
// folder beside the application's folder (the build lays the suite out as
// jsbundle/MacOS/<suite> and jsbundle/Resources/closure-library.rcc).
#include "ZUI.h"

#include <QFile>
#include <QTest>

namespace {
int g_criticals = 0;
QtMessageHandler g_previousHandler = nullptr;

void CountCriticals(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtCriticalMsg)
        ++g_criticals;
    g_previousHandler(type, context, message);
}
} // namespace

class tst_ZuiJsLibrary : public QObject
{
    Q_OBJECT

private slots:
    void loadsAndExitUnloads();
};

void tst_ZuiJsLibrary::loadsAndExitUnloads()
{
    const QString rcc = QCoreApplication::applicationDirPath()
        + QStringLiteral("/../Resources/closure-library.rcc");
    QVERIFY2(QFile::exists(rcc), qPrintable(rcc));
    const QString script = QStringLiteral(":/closure-library/goog/base.js");
    QVERIFY(!QFile::exists(script));

    ZUI::init(nullptr);
    g_previousHandler = qInstallMessageHandler(CountCriticals);
    ZUI::loadJSLibraries();
    qInstallMessageHandler(g_previousHandler);
    QCOMPARE(g_criticals, 0);
    QVERIFY(QFile::exists(script));
    QFile file(script);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("goog.provide"));
    file.close();

    // exit() of the library's own initialisation unregisters the file.
    ZUI::exit();
    QVERIFY(!QFile::exists(script));
}

QTEST_MAIN(tst_ZuiJsLibrary)
#include "tst_ZuiJsLibrary.moc"
