// Loading and unloading the library again and again, letting the system
// unmap it each time: the resource tree comes and goes with the library, every
// round starts from a fresh root object, and (under LeakSanitizer) nothing the
// library allocated is left behind.
//
// This process never loads the library with Qt's default hint, which would
// keep it mapped for the rest of the process.

#include "PluginTestSupport.h"

#include <QFile>
#include <QPluginLoader>
#include <QWizardPage>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#define ZPH_LEAK_CHECK 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/lsan_interface.h>
#define ZPH_LEAK_CHECK 1
#endif
#endif

namespace {

const QString kCatalogue = QStringLiteral(":/Translation/ZPanoHead_de.qm");
const QString kPicture
    = QStringLiteral(":/5A656C6D-6F20-2020-2020-483181480AB7/Resources/rot90left.png");

/// One host session: load, make every plug-in and look at its page, unload.
bool Round(int apx, QString* failure)
{
    QPluginLoader loader(PluginFile());
    loader.setLoadHints(QLibrary::LoadHints());
    if (!loader.load()) {
        *failure = loader.errorString();
        return false;
    }
    if (!QFile::exists(kCatalogue) || !QFile::exists(kPicture)) {
        *failure = QStringLiteral("resources missing while loaded");
        return false;
    }
    QPointer<QObject> root = loader.instance();
    auto* catalogue = qobject_cast<ZIPluginLibrary*>(root);
    if (!catalogue) {
        *failure = QStringLiteral("no root object");
        return false;
    }
    const QList<QPointer<QObject>> plugins = catalogue->Plugins(Apx(apx));
    for (const QPointer<QObject>& plugin : plugins) {
        const QList<QWizardPage*> pages = qobject_cast<ZIPluginImport*>(plugin)->WizardPages();
        if (pages.size() != 1 || !pages.at(0)) {
            *failure = QStringLiteral("no page");
            return false;
        }
    }
    if (!loader.unload()) {
        *failure = loader.errorString();
        return false;
    }
    for (const QPointer<QObject>& plugin : plugins) {
        if (plugin) {
            *failure = QStringLiteral("a plug-in object outlived the library");
            return false;
        }
    }
    if (root) {
        *failure = QStringLiteral("the root object outlived the library");
        return false;
    }
    if (QFile::exists(kCatalogue)) {
        *failure = QStringLiteral("resources still registered after unloading");
        return false;
    }
    return true;
}

} // namespace

class tst_PluginLoadLoop : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void hundredRounds();
    void settingsAcrossRounds();
};

void tst_PluginLoadLoop::init()
{
    Host()->Reset();
}

void tst_PluginLoadLoop::cleanup()
{
    Host()->RemoveTranslation();
}

void tst_PluginLoadLoop::hundredRounds()
{
    QVERIFY(!QFile::exists(kCatalogue));
    QString failure;
    QVERIFY2(Round(3, &failure), qPrintable(failure));
    const int sets = Host()->m_sets.size();
    QCOMPARE(sets, 4);

    for (int round = 1; round < 100; ++round) {
        // Mostly the small catalogue, every tenth round all four pages.
        const int apx = round % 10 == 0 ? 3 : 1;
        QVERIFY2(Round(apx, &failure),
            qPrintable(QStringLiteral("round %1: %2").arg(round).arg(failure)));
    }
    QCOMPARE(Host()->m_sets.size(), sets + 9 * 4 + 90 * 2);
    QCOMPARE(Host()->m_translationRequests.size(), 100);

#ifdef ZPH_LEAK_CHECK
    QCOMPARE(__lsan_do_recoverable_leak_check(), 0);
#endif
}

void tst_PluginLoadLoop::settingsAcrossRounds()
{
    // What one session saves, the next one reads back.
    QString failure;
    QVERIFY2(Round(1, &failure), qPrintable(failure));
    QCOMPARE(Host()->m_settings.size(), 2);
    Host()->m_gets.clear();
    QVERIFY2(Round(1, &failure), qPrintable(failure));
    QCOMPARE(Host()->m_gets.size(), 2);
    for (const PluginTestHost::SettingCall& get : qAsConst(Host()->m_gets))
        QVERIFY(Host()->m_settings.contains(qMakePair(get.section, get.key)));
}

ZPH_PLUGIN_TEST_MAIN(tst_PluginLoadLoop)
#include "tst_PluginLoadLoop.moc"
