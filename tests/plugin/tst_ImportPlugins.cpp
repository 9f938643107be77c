// The four import plug-ins, made by the loaded library: what they say about
// themselves, the page each owns, and the page state they keep in the host's
// settings (restored once at construction, saved once at destruction).

#include "PluginTestSupport.h"

#include <QFile>
#include <QIcon>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QWizard>
#include <QWizardPage>

#include <memory>

namespace {

/// The position of each plug-in in the list of Plugins(2).
int IndexOf(const QString& className)
{
    static const QStringList order { QStringLiteral("ZClaussImport"),
        QStringLiteral("ZGigapanImport"), QStringLiteral("ZMerlinImport"),
        QStringLiteral("ZVRDrive2Import") };
    return order.indexOf(className);
}

} // namespace

class tst_ImportPlugins : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void about_data();
    void about();
    void interfaces_data();
    void interfaces();
    void wizardPagesTwice_data();
    void wizardPagesTwice();
    void firstRunRestoresEmptyState();
    void stateReadAtCreationWrittenAtDeletion_data();
    void stateReadAtCreationWrittenAtDeletion();
    void twoObjectsOfOneClassLastDestroyedWins();
    void pageDeletedByTheHost();
    void pageInsertedIntoAWizard();

private:
    /// A fresh root object's Plugins(2): one object of each class.
    QList<QPointer<QObject>> FreshPlugins();

    QPluginLoader m_loader;
};

void tst_ImportPlugins::initTestCase()
{
    m_loader.setFileName(PluginFile());
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
}

void tst_ImportPlugins::init()
{
    delete m_loader.instance();
    Host()->Reset();
}

void tst_ImportPlugins::cleanupTestCase()
{
    QVERIFY(m_loader.unload());
}

QList<QPointer<QObject>> tst_ImportPlugins::FreshPlugins()
{
    delete m_loader.instance();
    auto* catalogue = qobject_cast<ZIPluginLibrary*>(m_loader.instance());
    return catalogue ? catalogue->Plugins(Apx(2)) : QList<QPointer<QObject>>();
}

void tst_ImportPlugins::about_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("comment");
    QTest::addColumn<QString>("uid");
    QTest::addColumn<QString>("icon");

    QTest::newRow("Clauss") << "ZClaussImport"
                            << "Clauss"
                            << "Clauss Rodeon import plugin"
                            << "5A656C6D-6F20-2020-2020-D6D081182F97"
                            << "ZClauss.png";
    QTest::newRow("Gigapan") << "ZGigapanImport"
                             << "Gigapan"
                             << "Gigapan import plugin"
                             << "5A656C6D-6F20-2020-2020-6028D47773DF"
                             << "ZGigapan.png";
    QTest::newRow("Papywizard") << "ZMerlinImport"
                                << "Papywizard"
                                << "Papywizard XML import plugin"
                                << "5A656C6D-6F20-2020-2020-483181480AB7"
                                << "Papywizard.png";
    QTest::newRow("VR Drive 2") << "ZVRDrive2Import"
                                << "VRDrive2"
                                << "VRDrive2 XML import plugin"
                                << "5A656C6D-6F20-2020-2020-B662C695C918"
                                << "VRDrive2.png";
}

void tst_ImportPlugins::about()
{
    QFETCH(QString, className);
    QFETCH(QString, name);
    QFETCH(QString, comment);
    QFETCH(QString, uid);
    QFETCH(QString, icon);

    const QList<QPointer<QObject>> plugins = FreshPlugins();
    QCOMPARE(plugins.size(), 4);
    QObject* plugin = plugins.at(IndexOf(className));
    QCOMPARE(QString::fromLatin1(plugin->metaObject()->className()), className);
    ZIAbout* about = qobject_cast<ZIAbout*>(plugin);
    QVERIFY(about);
    QCOMPARE(about->Name(), name);
    QCOMPARE(about->Comment(), comment);
    QCOMPARE(about->Version(), QStringLiteral("3.0.0.400"));
    QCOMPARE(about->Company(), QStringLiteral("Zelmo"));
    QCOMPARE(about->Author(), qobject_cast<ZIAbout*>(m_loader.instance())->Author());
    QCOMPARE(about->UID(), uid);
    QVERIFY(QRegularExpression(QStringLiteral("^[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"))
                .match(about->UID())
                .hasMatch());

    // The icon is the plug-in's picture under its own UID folder.
    const QString path = QStringLiteral(":/%1/Resources/%2").arg(uid, icon);
    QVERIFY2(QFile::exists(path), qPrintable(path));
    const QIcon shown = about->Icon();
    QVERIFY(!shown.isNull());
    QVERIFY(shown.availableSizes().contains(QSize(64, 64)));
    QCOMPARE(shown.pixmap(64, 64).toImage(), QIcon(path).pixmap(64, 64).toImage());
}

void tst_ImportPlugins::interfaces_data()
{
    QTest::addColumn<QString>("className");
    for (const char* row :
        { "ZClaussImport", "ZGigapanImport", "ZMerlinImport", "ZVRDrive2Import" })
        QTest::newRow(row) << row;
}

void tst_ImportPlugins::interfaces()
{
    QFETCH(QString, className);

    const QList<QPointer<QObject>> plugins = FreshPlugins();
    QObject* plugin = plugins.at(IndexOf(className));
    QCOMPARE(plugin->objectName(), className);
    QVERIFY(!plugin->parent());
    QVERIFY(plugin->qt_metacast(className.toLatin1().constData()));
    QVERIFY(plugin->qt_metacast("ZIPluginImport"));
    QVERIFY(plugin->qt_metacast("ZIAbout"));
    QVERIFY(!plugin->qt_metacast("ZIPluginLibrary"));
    QCOMPARE(static_cast<void*>(plugin->qt_metacast("ZIPluginImport")),
        static_cast<void*>(qobject_cast<ZIPluginImport*>(plugin)));
    QCOMPARE(static_cast<void*>(plugin->qt_metacast("ZIAbout")),
        static_cast<void*>(qobject_cast<ZIAbout*>(plugin)));
    QCOMPARE(plugin->metaObject()->methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(plugin->metaObject()->propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_ImportPlugins::wizardPagesTwice_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("pageClass");
    QTest::newRow("Clauss") << "ZClaussImport"
                            << "UIWPClauss";
    QTest::newRow("Gigapan") << "ZGigapanImport"
                             << "UIWPGigapan";
    QTest::newRow("Papywizard") << "ZMerlinImport"
                                << "UIWPMerlin";
    QTest::newRow("VR Drive 2") << "ZVRDrive2Import"
                                << "UIWPVRDrive2";
}

void tst_ImportPlugins::wizardPagesTwice()
{
    QFETCH(QString, className);
    QFETCH(QString, pageClass);

    const QList<QPointer<QObject>> plugins = FreshPlugins();
    QPointer<QObject> plugin = plugins.at(IndexOf(className));
    auto* import = qobject_cast<ZIPluginImport*>(plugin);
    const QList<QWizardPage*> first = import->WizardPages();
    const QList<QWizardPage*> second = import->WizardPages();
    QCOMPARE(first.size(), 1);
    QCOMPARE(second.size(), 1);
    QVERIFY(first.at(0));
    QCOMPARE(second.at(0), first.at(0));
    QCOMPARE(QString::fromLatin1(first.at(0)->metaObject()->className()), pageClass);
    QVERIFY(!first.at(0)->parent());

    // The page lives exactly as long as its plug-in.
    QPointer<QWizardPage> page = first.at(0);
    delete plugin.data();
    QVERIFY(!page);
}

void tst_ImportPlugins::firstRunRestoresEmptyState()
{
    const QList<QPointer<QObject>> plugins = FreshPlugins();
    QCOMPARE(plugins.size(), 4);
    // One read per plug-in, in creation order, with an invalid default: an
    // absent setting gives the page an empty array.
    const QList<PluginTestHost::SettingCall> gets = Host()->m_gets;
    QCOMPARE(gets.size(), 4);
    for (int i = 0; i < 4; ++i) {
        auto* about = qobject_cast<ZIAbout*>(plugins.at(i));
        QCOMPARE(gets.at(i).section, about->UID());
        QCOMPARE(gets.at(i).key, QString::fromLatin1(plugins.at(i)->metaObject()->className()));
        QVERIFY(!gets.at(i).value.isValid());
        QVERIFY(gets.at(i).value.toByteArray().isEmpty());
    }
    // Nothing is written before the plug-ins go.
    QVERIFY(Host()->m_sets.isEmpty());
}

void tst_ImportPlugins::stateReadAtCreationWrittenAtDeletion_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("uid");
    QTest::newRow("Clauss") << "ZClaussImport"
                            << "5A656C6D-6F20-2020-2020-D6D081182F97";
    QTest::newRow("Gigapan") << "ZGigapanImport"
                             << "5A656C6D-6F20-2020-2020-6028D47773DF";
    QTest::newRow("Papywizard") << "ZMerlinImport"
                                << "5A656C6D-6F20-2020-2020-483181480AB7";
    QTest::newRow("VR Drive 2") << "ZVRDrive2Import"
                                << "5A656C6D-6F20-2020-2020-B662C695C918";
}

void tst_ImportPlugins::stateReadAtCreationWrittenAtDeletion()
{
    QFETCH(QString, className);
    QFETCH(QString, uid);

    // A state saved by an earlier run; the pages keep nothing, so they give
    // it back empty.
    const QByteArray earlier("state of an earlier run");
    Host()->m_settings.insert(qMakePair(uid, className), QVariant(earlier));
    const QList<QPointer<QObject>> plugins = FreshPlugins();
    QPointer<QObject> plugin = plugins.at(IndexOf(className));
    QVERIFY(Host()->m_events.contains(QStringLiteral("get:") + className));
    qobject_cast<ZIPluginImport*>(plugin)->WizardPages();
    QVERIFY(Host()->m_sets.isEmpty());
    QCOMPARE(Host()->m_settings.value(qMakePair(uid, className)).toByteArray(), earlier);

    delete plugin.data();
    QCOMPARE(Host()->m_sets.size(), 1);
    const PluginTestHost::SettingCall set = Host()->m_sets.at(0);
    QCOMPARE(set.section, uid);
    QCOMPARE(set.key, className);
    QCOMPARE(set.value.userType(), int(QMetaType::QByteArray));
    QCOMPARE(set.value.toByteArray(), QByteArray());
}

void tst_ImportPlugins::twoObjectsOfOneClassLastDestroyedWins()
{
    delete m_loader.instance();
    QObject* root = m_loader.instance();
    auto* catalogue = qobject_cast<ZIPluginLibrary*>(root);
    catalogue->Plugins(Apx(2));
    const QList<QPointer<QObject>> all = catalogue->Plugins(Apx(2));
    QCOMPARE(all.size(), 8);
    // Both objects of a class read the same setting.
    QCOMPARE(Host()->m_events.filter(QStringLiteral("get:ZMerlinImport")).size(), 2);

    // Follow each object's write and its end: the library deletes in creation
    // order, so the second object of each class writes last.
    for (int i = 0; i < all.size(); ++i) {
        connect(all.at(i), &QObject::destroyed, this,
            [i] { Host()->m_events.append(QStringLiteral("destroyed:%1").arg(i)); });
    }
    Host()->m_events.clear();
    delete root;
    const QStringList expected {
        QStringLiteral("set:ZClaussImport"),
        QStringLiteral("destroyed:0"),
        QStringLiteral("set:ZGigapanImport"),
        QStringLiteral("destroyed:1"),
        QStringLiteral("set:ZMerlinImport"),
        QStringLiteral("destroyed:2"),
        QStringLiteral("set:ZVRDrive2Import"),
        QStringLiteral("destroyed:3"),
        QStringLiteral("set:ZClaussImport"),
        QStringLiteral("destroyed:4"),
        QStringLiteral("set:ZGigapanImport"),
        QStringLiteral("destroyed:5"),
        QStringLiteral("set:ZMerlinImport"),
        QStringLiteral("destroyed:6"),
        QStringLiteral("set:ZVRDrive2Import"),
        QStringLiteral("destroyed:7"),
    };
    QCOMPARE(Host()->m_events, expected);
    QCOMPARE(Host()->m_settings.size(), 4);

    // Destroyed the other way round, the first object's write stands last.
    Host()->Reset();
    root = m_loader.instance();
    catalogue = qobject_cast<ZIPluginLibrary*>(root);
    const QList<QPointer<QObject>> again = catalogue->Plugins(Apx(1)) + catalogue->Plugins(Apx(1));
    QCOMPARE(again.size(), 6);
    QPointer<QObject> firstMerlin = again.at(1);
    QPointer<QObject> secondMerlin = again.at(3);
    QCOMPARE(secondMerlin->metaObject()->className(), "ZMerlinImport");
    delete secondMerlin.data();
    Host()->m_events.append(QStringLiteral("second gone"));
    delete firstMerlin.data();
    QCOMPARE(Host()->m_events.filter(QRegularExpression(QStringLiteral("Merlin|gone"))),
        (QStringList { QStringLiteral("get:ZMerlinImport"), QStringLiteral("get:ZMerlinImport"),
            QStringLiteral("set:ZMerlinImport"), QStringLiteral("second gone"),
            QStringLiteral("set:ZMerlinImport") }));
}

void tst_ImportPlugins::pageDeletedByTheHost()
{
    // The host must not delete the pages it receives. If it does, the plug-in
    // still stores a state (the empty one every page saves) and says so.
    const QList<QPointer<QObject>> plugins = FreshPlugins();
    QPointer<QObject> plugin = plugins.at(IndexOf(QStringLiteral("ZGigapanImport")));
    auto* import = qobject_cast<ZIPluginImport*>(plugin);
    delete import->WizardPages().at(0);
    const QList<QWizardPage*> pages = import->WizardPages();
    QCOMPARE(pages.size(), 1);
    QVERIFY(!pages.at(0));

    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("ZGigapanImport lost its wizard page")));
    delete plugin.data();
    QCOMPARE(Host()->m_sets.size(), 1);
    QCOMPARE(Host()->m_sets.at(0).key, QStringLiteral("ZGigapanImport"));
    QCOMPARE(Host()->m_sets.at(0).value.userType(), int(QMetaType::QByteArray));
    QVERIFY(Host()->m_sets.at(0).value.toByteArray().isEmpty());
}

void tst_ImportPlugins::pageInsertedIntoAWizard()
{
    // A host shows the pages in its wizard and takes them out again before
    // the wizard goes.
    const QList<QPointer<QObject>> plugins = FreshPlugins();
    auto wizard = std::make_unique<QWizard>();
    QList<QPointer<QWizardPage>> pages;
    for (const QPointer<QObject>& plugin : plugins) {
        QWizardPage* page = qobject_cast<ZIPluginImport*>(plugin)->WizardPages().at(0);
        pages.append(page);
        wizard->addPage(page);
        QVERIFY(page->parent());
    }
    QCOMPARE(wizard->pageIds().size(), 4);
    for (int id : wizard->pageIds()) {
        QWizardPage* page = wizard->page(id);
        wizard->removePage(id);
        page->setParent(nullptr);
    }
    wizard.reset();
    for (const QPointer<QWizardPage>& page : qAsConst(pages))
        QVERIFY(page);
    delete m_loader.instance();
    for (const QPointer<QWizardPage>& page : qAsConst(pages))
        QVERIFY(!page);
    QCOMPARE(Host()->m_sets.size(), 4);
}

ZPH_PLUGIN_TEST_MAIN(tst_ImportPlugins)
#include "tst_ImportPlugins.moc"
