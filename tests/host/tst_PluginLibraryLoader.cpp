// Finding and loading the plug-in library: where the host looks, how it tells
// a library of ours from other files and other Qt plug-ins before loading, the
// messages when none is found, and the catalogue the built library hands out.
#include "PluginLibraryLoader.h"
#include "ZIPluginImport.h"

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QWizardPage>

namespace {

QString foreignPlugin()
{
    return QLibraryInfo::location(QLibraryInfo::PluginsPath)
        + QStringLiteral("/imageformats/libqjpeg.so");
}

} // namespace

class tst_PluginLibraryLoader : public QObject
{
    Q_OBJECT

private slots:
    void searchFolders();
    void tellsOursFromOthers_data();
    void tellsOursFromOthers();
    void explainsWhenNothingIsFound();
    void loadsTheBuiltLibrary();
    void asksTheLibraryOnce();
    void basicKindGetsTwoPlugins();
};

void tst_PluginLibraryLoader::searchFolders()
{
    const QStringList folders = PluginLibraryLoader::SearchFolders({ QStringLiteral("/opt/x/") });
    QCOMPARE(folders.first(), QStringLiteral("/opt/x"));
    QVERIFY(folders.contains(QCoreApplication::applicationDirPath()));
    QVERIFY(folders.contains(QDir::cleanPath(QStringLiteral(ZPH_BUILD_PLUGIN_DIR))));
    QStringList unique = folders;
    QCOMPARE(unique.removeDuplicates(), 0);
    // The build tree is searched before the installation.
    QVERIFY(folders.indexOf(QDir::cleanPath(QStringLiteral(ZPH_BUILD_PLUGIN_DIR)))
        < folders.size() - 1);
}

void tst_PluginLibraryLoader::tellsOursFromOthers_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("ours");
    QTest::addColumn<QString>("reasonPart");
    QTest::newRow("Qt's JPEG plug-in") << foreignPlugin() << false << "not a ZPanoHead library";
    QTest::newRow("a text file") << QFINDTESTDATA("data/ZPanoHead_de.ts") << false
                                 << "is not a Qt plug-in";
    QTest::newRow("missing file") << QStringLiteral("/nonexistent/libZPanoHead.so") << false
                                  << "is not a Qt plug-in";
    QTest::newRow("the built library") << QStringLiteral(ZPH_TEST_PLUGIN_FILE) << true << QString();
    QTest::newRow("another interface") << QStringLiteral(ZPH_TEST_OTHER_IID_FILE) << false
                                       << "\"com.zelmo.other\", not a ZPanoHead library";
    QTest::newRow("another root class") << QStringLiteral(ZPH_TEST_OTHER_CLASS_FILE) << false
                                        << "the root class \"OtherRoot\" instead of \"Library\"";
}

void tst_PluginLibraryLoader::tellsOursFromOthers()
{
    QFETCH(QString, file);
    QFETCH(bool, ours);
    QFETCH(QString, reasonPart);
    if (file == foreignPlugin() && !QFile::exists(file))
        QSKIP("Qt's JPEG plug-in is not installed");
    QString reason;
    QCOMPARE(PluginLibraryLoader::IsOurs(file, &reason), ours);
    if (ours)
        QVERIFY(reason.isEmpty());
    else
        QVERIFY2(reason.contains(reasonPart), qPrintable(reason));
}

void tst_PluginLibraryLoader::explainsWhenNothingIsFound()
{
    QTemporaryDir empty;
    QTemporaryDir foreign;
    QVERIFY(empty.isValid() && foreign.isValid());
    if (QFile::exists(foreignPlugin()))
        QVERIFY(QFile::copy(foreignPlugin(), foreign.filePath(QStringLiteral("libqjpeg.so"))));
    PluginLibraryLoader loader;
    QVERIFY(!loader.Load({ empty.path(), foreign.path(), QStringLiteral("/nonexistent") }));
    const QString error = loader.ErrorString();
    QVERIFY2(error.contains(QDir::toNativeSeparators(empty.path())), qPrintable(error));
    QVERIFY2(error.contains(QStringLiteral("/nonexistent")), qPrintable(error));
    QVERIFY2(error.contains(QStringLiteral("--plugin-dir")), qPrintable(error));
    if (QFile::exists(foreignPlugin()))
        QVERIFY2(error.contains(QStringLiteral("not a ZPanoHead library")), qPrintable(error));
    QVERIFY(!loader.Root());
    QVERIFY(loader.Plugins(ZIPluginLibrary::ApxFull).isEmpty());
    QVERIFY(!loader.LoadFile(foreign.filePath(QStringLiteral("libqjpeg.so"))));
    QVERIFY(!loader.ErrorString().isEmpty());
}

void tst_PluginLibraryLoader::loadsTheBuiltLibrary()
{
    PluginLibraryLoader loader;
    QVERIFY2(
        loader.Load({ QStringLiteral(ZPH_BUILD_PLUGIN_DIR) }), qPrintable(loader.ErrorString()));
    QCOMPARE(QFileInfo(loader.FileName()).canonicalFilePath(),
        QFileInfo(QStringLiteral(ZPH_TEST_PLUGIN_FILE)).canonicalFilePath());
    QVERIFY(loader.Library());
    QVERIFY(loader.About());
    QCOMPARE(loader.About()->Name(), QStringLiteral("ZPanoHead"));
    QCOMPARE(loader.About()->UID(), QStringLiteral("5A656C6D-6F20-2020-2020-2D91D0DDB961"));
    QPointer<QObject> root = loader.Root();
    loader.Unload();
    QVERIFY(root.isNull());
    QVERIFY(!loader.Library());
}

void tst_PluginLibraryLoader::asksTheLibraryOnce()
{
    PluginLibraryLoader loader;
    QVERIFY2(
        loader.LoadFile(QStringLiteral(ZPH_TEST_PLUGIN_FILE)), qPrintable(loader.ErrorString()));
    const QList<QPointer<QObject>> first = loader.Plugins(ZIPluginLibrary::ApxFull);
    QCOMPARE(first.size(), 4);
    // Every call of the library's Plugins makes new objects: the loader asks once.
    QCOMPARE(loader.Plugins(ZIPluginLibrary::ApxFull), first);
    QStringList names;
    for (const QPointer<QObject>& plugin : first) {
        QVERIFY(qobject_cast<ZIPluginImport*>(plugin.data()));
        names << qobject_cast<ZIAbout*>(plugin.data())->Name();
    }
    QCOMPARE(names, (QStringList { "Clauss", "Gigapan", "Papywizard", "VRDrive2" }));
    const QList<QWizardPage*> pages = loader.Pages();
    QCOMPARE(pages.size(), 4);
    QPointer<QWizardPage> page = pages.first();
    loader.Unload();
    // The library deleted its plug-ins and they their pages.
    QVERIFY(page.isNull());
    for (const QPointer<QObject>& plugin : first)
        QVERIFY(plugin.isNull());
}

void tst_PluginLibraryLoader::basicKindGetsTwoPlugins()
{
    PluginLibraryLoader loader;
    QVERIFY2(
        loader.LoadFile(QStringLiteral(ZPH_TEST_PLUGIN_FILE)), qPrintable(loader.ErrorString()));
    const QList<QPointer<QObject>> plugins = loader.Plugins(ZIPluginLibrary::ApxBasic);
    QCOMPARE(plugins.size(), 2);
    QCOMPARE(qobject_cast<ZIAbout*>(plugins[0].data())->Name(), QStringLiteral("Gigapan"));
    QCOMPARE(qobject_cast<ZIAbout*>(plugins[1].data())->Name(), QStringLiteral("Papywizard"));
}

QTEST_MAIN(tst_PluginLibraryLoader)
#include "tst_PluginLibraryLoader.moc"
