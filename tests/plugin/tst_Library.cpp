// The plug-in library as a host meets it: loaded with QPluginLoader from the
// build, its metadata read before loading, its root object, the catalogue
// (Plugins), its own description, the translation file it asks the host for,
// and unloading.

#include "PluginTestSupport.h"

#include <QFile>
#include <QIcon>
#include <QJsonObject>
#include <QPluginLoader>
#include <QProcess>
#include <QSignalSpy>
#include <QWizardPage>

class tst_Library : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void metaDataBeforeLoading();
    void rootObjectAndInterfaces();
    void rootObjectIsSingleUntilDeleted();
    void about();
    void translationFileName_data();
    void translationFileName();
    void translationReachesTheTexts();
    void uiInstancesAskedOnce();
    void plugins_data();
    void plugins();
    void pluginsAccumulate();
    void pluginsZeroAfterEarlierCalls();
    void pluginObjectsAreOwnedByTheLibrary();
    void pluginDeletedFromOutside();
    void withoutHostApplication();
    void unloadDeletesTheRootObject();

private:
    /// The root object of the loaded library, made afresh by the first call
    /// of each test.
    QObject* FreshRoot();
    ZIPluginLibrary* Catalogue();

    QPluginLoader m_loader;
};

void tst_Library::initTestCase()
{
    QVERIFY2(QFile::exists(PluginFile()), qPrintable(PluginFile()));
    m_loader.setFileName(PluginFile());
}

void tst_Library::init()
{
    // Each test starts with a loaded library, no root object and a clean host.
    if (m_loader.isLoaded())
        delete m_loader.instance();
    Host()->Reset();
}

void tst_Library::cleanupTestCase()
{
    if (m_loader.isLoaded())
        m_loader.unload();
}

QObject* tst_Library::FreshRoot()
{
    // init() has deleted the previous one.
    QObject* root = m_loader.instance();
    if (!root)
        qWarning() << m_loader.errorString();
    return root;
}

ZIPluginLibrary* tst_Library::Catalogue()
{
    return qobject_cast<ZIPluginLibrary*>(m_loader.instance());
}

namespace {

/// The version moc records for a plug-in: the major and minor of the Qt the
/// build compiles against, with the patch level 0.
constexpr int kBuildQtVersion = QT_VERSION_CHECK(QT_VERSION_MAJOR, QT_VERSION_MINOR, 0);

/// moc marks a plug-in as a debug build unless QT_NO_DEBUG is defined, which
/// the Qt targets define for every build type but Debug; this suite is built
/// with the same type as the library.
#ifdef QT_NO_DEBUG
constexpr bool kDebugBuild = false;
#else
constexpr bool kDebugBuild = true;
#endif

} // namespace

void tst_Library::metaDataBeforeLoading()
{
    QPluginLoader loader(PluginFile());
    QVERIFY(!loader.isLoaded() || m_loader.isLoaded());
    const QJsonObject meta = loader.metaData();
    QCOMPARE(meta.value(QLatin1String("IID")).toString(), QStringLiteral("com.zelmo.panohead"));
    QCOMPARE(meta.value(QLatin1String("className")).toString(), QStringLiteral("Library"));
    QVERIFY(meta.value(QLatin1String("version")).isDouble());
    QCOMPARE(meta.value(QLatin1String("version")).toInt(), kBuildQtVersion);
    QVERIFY(meta.value(QLatin1String("debug")).isBool());
    QCOMPARE(meta.value(QLatin1String("debug")).toBool(), kDebugBuild);
    // No metadata file: the plug-in declares nothing beyond its class.
    QVERIFY(!meta.contains(QLatin1String("MetaData")));
}

void tst_Library::rootObjectAndInterfaces()
{
    QObject* root = FreshRoot();
    QVERIFY(root);
    // The metadata read after loading, from the library's own entry point.
    QCOMPARE(m_loader.metaData().value(QLatin1String("version")).toInt(), kBuildQtVersion);
    QCOMPARE(m_loader.metaData().value(QLatin1String("className")).toString(),
        QStringLiteral("Library"));
    QCOMPARE(root->metaObject()->className(), "Library");
    QCOMPARE(root->objectName(), QStringLiteral("ZPanoHead"));
    QVERIFY(!root->parent());
    QVERIFY(root->qt_metacast("Library"));
    QVERIFY(root->qt_metacast("ZIPluginLibrary"));
    QVERIFY(root->qt_metacast("ZIAbout"));
    QVERIFY(!root->qt_metacast("ZIPluginImport"));
    QVERIFY(qobject_cast<ZIPluginLibrary*>(root));
    QVERIFY(qobject_cast<ZIAbout*>(root));
    QVERIFY(!qobject_cast<ZIPluginImport*>(root));
    // The interfaces are distinct sub-objects of the one object.
    QVERIFY(static_cast<void*>(qobject_cast<ZIPluginLibrary*>(root))
        != static_cast<void*>(qobject_cast<ZIAbout*>(root)));
    // No signals, slots or properties of its own.
    QCOMPARE(root->metaObject()->methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(root->metaObject()->propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_Library::rootObjectIsSingleUntilDeleted()
{
    QPointer<QObject> first = FreshRoot();
    QVERIFY(first);
    QCOMPARE(m_loader.instance(), first.data());
    QPluginLoader second(PluginFile());
    QCOMPARE(second.instance(), first.data());

    delete first.data();
    QVERIFY(!first);
    QObject* again = m_loader.instance();
    QVERIFY(again);
    QCOMPARE(again->metaObject()->className(), "Library");
    QVERIFY(Catalogue()->Plugins(Apx(0)).isEmpty());
}

void tst_Library::about()
{
    QObject* root = FreshRoot();
    ZIAbout* about = qobject_cast<ZIAbout*>(root);
    QVERIFY(about);
    QCOMPARE(about->Name(), QStringLiteral("ZPanoHead"));
    QCOMPARE(about->Company(), QStringLiteral("Zelmo"));
    QCOMPARE(about->Version(), QStringLiteral("3.0.0.400"));
    QCOMPARE(about->UID(), QStringLiteral("5A656C6D-6F20-2020-2020-2D91D0DDB961"));
    QCOMPARE(about->UID().size(), 36);
    // The placeholder word, untranslated under the host's en_US locale.
    QCOMPARE(about->Comment(), QStringLiteral("Comment"));
    QVERIFY(!about->Author().isEmpty());
    // The library's icon names a picture that lies only under the Gigapan
    // plug-in's folder: it has no picture and draws nothing, while the
    // Gigapan picture exists.
    QVERIFY(!QFile::exists(
        QStringLiteral(":/5A656C6D-6F20-2020-2020-2D91D0DDB961/Resources/ZGigapan.png")));
    QVERIFY(QFile::exists(
        QStringLiteral(":/5A656C6D-6F20-2020-2020-6028D47773DF/Resources/ZGigapan.png")));
    QVERIFY(about->Icon().availableSizes().isEmpty());
    QVERIFY(about->Icon().pixmap(64, 64).isNull());

    // One author for the library and every plug-in.
    const QList<QPointer<QObject>> plugins = Catalogue()->Plugins(Apx(2));
    QCOMPARE(plugins.size(), 4);
    for (const QPointer<QObject>& plugin : plugins)
        QCOMPARE(qobject_cast<ZIAbout*>(plugin)->Author(), about->Author());
}

void tst_Library::translationFileName_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("installed");

    QTest::newRow("de_DE") << QLocale(QLocale::German, QLocale::Germany) << "ZPanoHead_de_DE.qm"
                           << ":/Translation/ZPanoHead_de.qm";
    QTest::newRow("fr_FR") << QLocale(QLocale::French, QLocale::France) << "ZPanoHead_fr_FR.qm"
                           << ":/Translation/ZPanoHead_fr.qm";
    QTest::newRow("zh_TW") << QLocale(QLocale::Chinese, QLocale::TraditionalChineseScript,
        QLocale::Taiwan) << "ZPanoHead_zh_TW.qm"
                           << ":/Translation/ZPanoHead_zh_TW.qm";
    QTest::newRow("zh_CN") << QLocale(QLocale::Chinese, QLocale::China) << "ZPanoHead_zh_CN.qm"
                           << ":/Translation/ZPanoHead_zh_CN.qm";
    QTest::newRow("ja_JP") << QLocale(QLocale::Japanese, QLocale::Japan) << "ZPanoHead_ja_JP.qm"
                           << ":/Translation/ZPanoHead_ja.qm";
    QTest::newRow("pt_BR, no catalogue")
        << QLocale(QLocale::Portuguese, QLocale::Brazil) << "ZPanoHead_pt_BR.qm"
        << "";
    QTest::newRow("C") << QLocale::c() << "ZPanoHead_C.qm"
                       << "";
}

void tst_Library::translationFileName()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, fileName);
    QFETCH(QString, installed);

    Host()->m_locale = locale;
    QVERIFY(FreshRoot());
    QCOMPARE(Host()->m_translationRequests, QStringList { fileName });
    QCOMPARE(Host()->m_installedTranslation, installed);
}

void tst_Library::translationReachesTheTexts()
{
    Host()->m_locale = QLocale(QLocale::German, QLocale::Germany);
    QObject* root = FreshRoot();
    QCOMPARE(Host()->m_translationRequests, QStringList { QStringLiteral("ZPanoHead_de_DE.qm") });
    QCOMPARE(qobject_cast<ZIAbout*>(root)->Comment(), QStringLiteral("Kommentar"));
    const QList<QPointer<QObject>> plugins = Catalogue()->Plugins(Apx(1));
    QCOMPARE(
        qobject_cast<ZIAbout*>(plugins.at(0))->Comment(), QStringLiteral("Gigapan-Import-Plugin"));
    QCOMPARE(qobject_cast<ZIAbout*>(plugins.at(1))->Comment(),
        QStringLiteral("Papywizard-XML-Import-Plugin"));
    Host()->RemoveTranslation();
    QCOMPARE(qobject_cast<ZIAbout*>(root)->Comment(), QStringLiteral("Comment"));
}

void tst_Library::uiInstancesAskedOnce()
{
    QVERIFY(FreshRoot());
    QCOMPARE(Host()->CallsStartingWith(QStringLiteral("UIInstances()")).size(), 1);
    Catalogue()->Plugins(Apx(3));
    QCOMPARE(Host()->CallsStartingWith(QStringLiteral("UIInstances()")).size(), 1);
}

void tst_Library::plugins_data()
{
    QTest::addColumn<int>("apx");
    QTest::addColumn<QStringList>("classes");

    const QStringList two { QStringLiteral("ZGigapanImport"), QStringLiteral("ZMerlinImport") };
    const QStringList four { QStringLiteral("ZClaussImport"), QStringLiteral("ZGigapanImport"),
        QStringLiteral("ZMerlinImport"), QStringLiteral("ZVRDrive2Import") };
    QTest::newRow("0: nothing") << 0 << QStringList();
    QTest::newRow("1") << 1 << two;
    QTest::newRow("2: the flag") << 2 << four;
    QTest::newRow("3") << 3 << four;
    QTest::newRow("4: other bit only") << 4 << two;
    QTest::newRow("5") << 5 << two;
    QTest::newRow("6") << 6 << four;
    QTest::newRow("-1: every bit") << -1 << four;
    QTest::newRow("0x40000000") << 0x40000000 << two;
}

void tst_Library::plugins()
{
    QFETCH(int, apx);
    QFETCH(QStringList, classes);

    QVERIFY(FreshRoot());
    const QList<QPointer<QObject>> plugins = Catalogue()->Plugins(Apx(apx));
    QCOMPARE(ClassNames(plugins), classes);
    for (const QPointer<QObject>& plugin : plugins) {
        QVERIFY(plugin);
        QVERIFY(!plugin->parent());
        QVERIFY(qobject_cast<ZIPluginImport*>(plugin));
        QVERIFY(qobject_cast<ZIAbout*>(plugin));
        QVERIFY(!qobject_cast<ZIPluginLibrary*>(plugin));
    }
}

void tst_Library::pluginsAccumulate()
{
    QVERIFY(FreshRoot());
    const QList<QPointer<QObject>> first = Catalogue()->Plugins(Apx(2));
    QCOMPARE(first.size(), 4);
    const QList<QPointer<QObject>> second = Catalogue()->Plugins(Apx(2));
    QCOMPARE(second.size(), 8);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(second.at(i).data(), first.at(i).data());
        // A fresh set, not the same objects again.
        QVERIFY(second.at(i + 4).data() != first.at(i).data());
        QCOMPARE(
            second.at(i + 4)->metaObject()->className(), first.at(i)->metaObject()->className());
    }
    const QList<QPointer<QObject>> third = Catalogue()->Plugins(Apx(1));
    QCOMPARE(third.size(), 10);
    QCOMPARE(ClassNames(third.mid(8)),
        (QStringList { QStringLiteral("ZGigapanImport"), QStringLiteral("ZMerlinImport") }));
}

void tst_Library::pluginsZeroAfterEarlierCalls()
{
    QVERIFY(FreshRoot());
    const QList<QPointer<QObject>> made = Catalogue()->Plugins(Apx(1));
    const QList<QPointer<QObject>> again = Catalogue()->Plugins(Apx(0));
    QCOMPARE(again, made);
    QCOMPARE(again.size(), 2);
}

void tst_Library::pluginObjectsAreOwnedByTheLibrary()
{
    QObject* root = FreshRoot();
    const QList<QPointer<QObject>> plugins = Catalogue()->Plugins(Apx(3));
    QList<QPointer<QWizardPage>> pages;
    for (const QPointer<QObject>& plugin : plugins)
        pages.append(qobject_cast<ZIPluginImport*>(plugin)->WizardPages().value(0));
    QCOMPARE(pages.size(), 4);
    QVERIFY(Host()->m_sets.isEmpty());

    delete root;
    for (int i = 0; i < plugins.size(); ++i) {
        QVERIFY(!plugins.at(i));
        QVERIFY(!pages.at(i));
    }
    // Each saved its page's state once, in creation order.
    QCOMPARE(Host()->m_sets.size(), 4);
    QStringList keys;
    for (const PluginTestHost::SettingCall& call : qAsConst(Host()->m_sets))
        keys.append(call.key);
    QCOMPARE(keys,
        (QStringList { QStringLiteral("ZClaussImport"), QStringLiteral("ZGigapanImport"),
            QStringLiteral("ZMerlinImport"), QStringLiteral("ZVRDrive2Import") }));
}

void tst_Library::pluginDeletedFromOutside()
{
    QObject* root = FreshRoot();
    const QList<QPointer<QObject>> plugins = Catalogue()->Plugins(Apx(3));
    QPointer<QObject> gigapan = plugins.at(1);
    delete gigapan.data();
    QVERIFY(!gigapan);
    QCOMPARE(Host()->m_events.filter(QStringLiteral("set:")),
        QStringList { QStringLiteral("set:ZGigapanImport") });

    // The library's list keeps a null guard in its place.
    const QList<QPointer<QObject>> now = Catalogue()->Plugins(Apx(0));
    QCOMPARE(ClassNames(now),
        (QStringList { QStringLiteral("ZClaussImport"), QStringLiteral("null"),
            QStringLiteral("ZMerlinImport"), QStringLiteral("ZVRDrive2Import") }));

    // The destructor skips it: the other three are deleted and save once each.
    delete root;
    QCOMPARE(Host()->m_events.filter(QStringLiteral("set:")),
        (QStringList { QStringLiteral("set:ZGigapanImport"), QStringLiteral("set:ZClaussImport"),
            QStringLiteral("set:ZMerlinImport"), QStringLiteral("set:ZVRDrive2Import") }));
    for (const QPointer<QObject>& plugin : plugins)
        QVERIFY(!plugin);
}

void tst_Library::withoutHostApplication()
{
    // A process whose application object is not a host.
    QProcess bare;
    bare.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    bare.start(QStringLiteral(ZPH_BARE_HOST), { PluginFile() });
    QVERIFY2(bare.waitForFinished(60000), qPrintable(bare.errorString()));
    QCOMPARE(bare.exitStatus(), QProcess::NormalExit);
    QCOMPARE(bare.exitCode(), 0);
    const QStringList lines = QString::fromUtf8(bare.readAllStandardOutput())
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines,
        (QStringList {
            QStringLiteral("Library Comment"),
            QStringLiteral("ZClaussImport pages=1 Clauss Rodeon import plugin"),
            QStringLiteral("ZGigapanImport pages=1 Gigapan import plugin"),
            QStringLiteral("ZMerlinImport pages=1 Papywizard XML import plugin"),
            QStringLiteral("ZVRDrive2Import pages=1 VRDrive2 XML import plugin"),
            QStringLiteral("unloaded"),
        }));
}

void tst_Library::unloadDeletesTheRootObject()
{
    QPointer<QObject> root = FreshRoot();
    const QList<QPointer<QObject>> plugins = Catalogue()->Plugins(Apx(1));
    QCOMPARE(plugins.size(), 2);
    QVERIFY(m_loader.unload());
    QVERIFY(!m_loader.isLoaded());
    QVERIFY(!root);
    QVERIFY(!plugins.at(0));
    QVERIFY(!plugins.at(1));
    QCOMPARE(Host()->m_sets.size(), 2);
    // Loading again gives a new root object with an empty catalogue.
    QVERIFY(m_loader.load());
    QVERIFY(Catalogue());
    QVERIFY(Catalogue()->Plugins(Apx(0)).isEmpty());
}

ZPH_PLUGIN_TEST_MAIN(tst_Library)
#include "tst_Library.moc"
