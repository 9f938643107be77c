// The host's application object as the plug-in library sees it: found by
// interface name, settings by section and key, the remembered folder, the
// locale, translation catalogues with their language fallback, the UI
// library's record, image definitions and the hand-over of a description.
#include "HostApplication.h"
#include "ImageDefinition.h"
#include "PhotoFixture.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString settingsPath()
{
    static const QString path = QDir::temp().filePath(
        QStringLiteral("tst_HostApplication-%1.ini").arg(QCoreApplication::applicationPid()));
    return path;
}

} // namespace

class tst_HostApplication : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void foundByInterfaceName();
    void settingsBySectionAndKey();
    void remembersTheFolderOfTheLastChoice();
    void localeIsTheSystemsUnlessChosen();
    void translationFallback_data();
    void translationFallback();
    void loadsQtsOwnTranslations();
    void uiInstancesFollowTheSetting();
    void applicationKindDefaultsToAllPlugins();
    void keepsACopyOfTheImportedPanorama();
    void createsAndOwnsImageDefinitions();

private:
    HostApplication* host() const { return HostApplication::instance(); }
    QTemporaryDir m_dir;
};

void tst_HostApplication::initTestCase()
{
    QVERIFY(host());
    QVERIFY(m_dir.isValid());
    QCOMPARE(host()->SettingsFile(), settingsPath());
}

void tst_HostApplication::cleanupTestCase()
{
    host()->RemoveTranslations();
    host()->ReleaseImageDefinitions();
    QFile::remove(settingsPath());
}

void tst_HostApplication::foundByInterfaceName()
{
    void* found = qApp->qt_metacast("ZIApplication");
    QVERIFY(found);
    QCOMPARE(static_cast<ZIApplication*>(found), static_cast<ZIApplication*>(host()));
    QVERIFY(!qApp->qt_metacast("ZIPluginLibrary"));
}

void tst_HostApplication::settingsBySectionAndKey()
{
    ZIApplication* app = host();
    const QString section = QStringLiteral("5A656C6D-6F20-2020-2020-483181480AB7");
    QCOMPARE(app->GetSetting(section, QStringLiteral("ZMerlinImport"), QVariant()), QVariant());
    QCOMPARE(app->GetSetting(section, QStringLiteral("ZMerlinImport"), 7).toInt(), 7);
    app->SetSetting(section, QStringLiteral("ZMerlinImport"), QByteArray("\x01\x02state", 7));
    app->SetSetting(QStringLiteral("Other"), QStringLiteral("ZMerlinImport"), 5);
    QCOMPARE(app->GetSetting(section, QStringLiteral("ZMerlinImport"), QVariant()).toByteArray(),
        QByteArray("\x01\x02state", 7));
    QCOMPARE(
        app->GetSetting(QStringLiteral("Other"), QStringLiteral("ZMerlinImport"), 0).toInt(), 5);
    // The section is a group of the settings file.
    host()->Settings().sync();
    const QSettings stored(settingsPath(), QSettings::IniFormat);
    QCOMPARE(stored.value(section + QStringLiteral("/ZMerlinImport")).toByteArray(),
        QByteArray("\x01\x02state", 7));
}

void tst_HostApplication::remembersTheFolderOfTheLastChoice()
{
    ZIApplication* app = host();
    const QString folder = m_dir.filePath(QStringLiteral("shoot"));
    QVERIFY(QDir().mkpath(folder));
    app->SetDefaultFolder(folder + QStringLiteral("/IMG_0001.JPG"));
    QCOMPARE(app->DefaultFolder(), QFileInfo(folder).absoluteFilePath());
    // A folder is remembered as it is; an empty path changes nothing.
    app->SetDefaultFolder(m_dir.path());
    QCOMPARE(app->DefaultFolder(), QFileInfo(m_dir.path()).absoluteFilePath());
    app->SetDefaultFolder(QString());
    QCOMPARE(app->DefaultFolder(), QFileInfo(m_dir.path()).absoluteFilePath());
    // A remembered folder that has gone: the pictures folder, else the home folder.
    app->SetDefaultFolder(folder + QStringLiteral("/x.jpg"));
    QVERIFY(QDir(folder).removeRecursively());
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString expected = QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
    QCOMPARE(app->DefaultFolder(), expected);
}

void tst_HostApplication::localeIsTheSystemsUnlessChosen()
{
    QCOMPARE(host()->Locale(), QLocale::system());
    host()->SetLocale(QLocale(QStringLiteral("fr_FR")));
    QCOMPARE(host()->Locale().name(), QStringLiteral("fr_FR"));
    host()->SetLocale(QLocale::system());
}

void tst_HostApplication::translationFallback_data()
{
    QTest::addColumn<QString>("requested");
    QTest::addColumn<QString>("loaded");
    QTest::addColumn<QString>("comment");
    QTest::newRow("de_DE falls back to de") << "ZPanoHead_de_DE.qm"
                                            << ":/Translation/ZPanoHead_de.qm"
                                            << "Kommentar (Test)";
    QTest::newRow("de itself") << "ZPanoHead_de.qm"
                               << ":/Translation/ZPanoHead_de.qm"
                               << "Kommentar (Test)";
    QTest::newRow("pt_BR found as it is")
        << "ZPanoHead_pt_BR.qm"
        << ":/Translation/ZPanoHead_pt_BR.qm" << QString::fromUtf8("Comentário (teste, Brasil)");
    QTest::newRow("pt_PT falls back to pt")
        << "ZPanoHead_pt_PT.qm"
        << ":/Translation/ZPanoHead_pt.qm" << QString::fromUtf8("Comentário (teste)");
    QTest::newRow("unknown locale") << "ZPanoHead_xx_YY.qm" << QString() << "Comment";
    QTest::newRow("C locale") << "ZPanoHead_C.qm" << QString() << "Comment";
    QTest::newRow("empty name") << QString() << QString() << "Comment";
    QTest::newRow("path, not a name") << "../Translation/ZPanoHead_de.qm" << QString() << "Comment";
    QTest::newRow("another library") << "ZOther_de_DE.qm" << QString() << "Comment";
}

void tst_HostApplication::translationFallback()
{
    QFETCH(QString, requested);
    QFETCH(QString, loaded);
    QFETCH(QString, comment);
    host()->RemoveTranslations();
    host()->SetLocale(QLocale(QStringLiteral("de_DE")));
    host()->LoadTranslation(requested);
    const QStringList catalogues = host()->LoadedTranslations();
    if (loaded.isEmpty()) {
        QVERIFY2(catalogues.isEmpty(), qPrintable(catalogues.join(QLatin1Char(' '))));
    } else {
        QVERIFY(!catalogues.isEmpty());
        QCOMPARE(catalogues.first(), loaded);
    }
    QCOMPARE(QCoreApplication::translate("Library", "Comment"), comment);
    host()->RemoveTranslations();
    QCOMPARE(QCoreApplication::translate("Library", "Comment"), QStringLiteral("Comment"));
    host()->SetLocale(QLocale::system());
}

void tst_HostApplication::loadsQtsOwnTranslations()
{
    host()->RemoveTranslations();
    host()->SetLocale(QLocale(QStringLiteral("de_DE")));
    host()->LoadTranslation(QStringLiteral("ZPanoHead_de_DE.qm"));
    const QStringList catalogues = host()->LoadedTranslations();
    QCOMPARE(catalogues.size(), 2);
    QCOMPARE(QFileInfo(catalogues.at(1)).fileName(), QStringLiteral("qt_de.qm"));
    // A text of Qt's own dialogs, in German under this locale.
    QCOMPARE(QCoreApplication::translate("QFileDialog", "&Open"), QString::fromUtf8("&Öffnen"));
    host()->RemoveTranslations();
    host()->SetLocale(QLocale::system());
}

void tst_HostApplication::uiInstancesFollowTheSetting()
{
    ZUIInstances* instances = host()->UIInstances();
    QVERIFY(instances);
    QVERIFY(instances->settings);
    QCOMPARE(host()->UIInstances(), instances);
    host()->SetUseNativeFileDialogs(false);
    QVERIFY(!instances->settings->useSystemFileDialog);
    host()->SetUseNativeFileDialogs(true);
    QVERIFY(instances->settings->useSystemFileDialog);
    host()->SetUseNativeFileDialogs(false);
    host()->Settings().sync();
    QSettings stored(settingsPath(), QSettings::IniFormat);
    QCOMPARE(stored.value(QStringLiteral("Host/NativeFileDialogs")).toBool(), false);
}

void tst_HostApplication::applicationKindDefaultsToAllPlugins()
{
    QCOMPARE(int(host()->ApplicationKind()), 2);
    host()->SetApplicationKind(ZIPluginLibrary::ApxBasic);
    QCOMPARE(int(host()->ApplicationKind()), 1);
    host()->SetApplicationKind(ZIPluginLibrary::ApxFull);
    QCOMPARE(int(host()->ApplicationKind()), 2);
}

void tst_HostApplication::keepsACopyOfTheImportedPanorama()
{
    QSignalSpy spy(host(), &HostApplication::PanoramaImported);
    QVERIFY(!host()->HasImportedPanorama());
    StructuredPanoramaProperties record;
    record.m_stacks = { { QStringLiteral("a.jpg") }, { QStringLiteral("b.jpg") } };
    record.m_yaw = { 0.0f, 0.5f };
    record.m_focalLength = 12.5f;
    record.m_links = { AuthorizedLink { 2, { 0, 1 } } };
    static_cast<ZIApplication*>(host())->ImportStructuredPanorama(record);
    QCOMPARE(spy.count(), 1);
    record.m_stacks.clear();
    record.m_yaw[0] = 9.0f;
    QVERIFY(host()->HasImportedPanorama());
    const StructuredPanoramaProperties& kept = host()->ImportedPanorama();
    QCOMPARE(kept.m_stacks.size(), 2);
    QCOMPARE(kept.m_yaw, (QVector<float> { 0.0f, 0.5f }));
    QCOMPARE(kept.m_focalLength, 12.5f);
    QCOMPARE(kept.m_links.size(), 1);
    QCOMPARE(kept.m_links[0].m_stackIndices, (QVector<int> { 0, 1 }));
    host()->ClearImportedPanorama();
    QVERIFY(!host()->HasImportedPanorama());
}

void tst_HostApplication::createsAndOwnsImageDefinitions()
{
    PhotoFixture f;
    f.focalNum = 35;
    f.focalDen = 1;
    const QString photo = m_dir.filePath(QStringLiteral("p.jpg"));
    QVERIFY(f.write(photo));
    const int before = host()->ImageDefinitionCount();
    ZIImageDef* def = static_cast<ZIApplication*>(host())->CreateImageDef(photo);
    QVERIFY(def);
    QCOMPARE(def->FocalLength(), 35.0f);
    QVERIFY(!def->Thumbnail().isNull());
    QVERIFY(!static_cast<ZIApplication*>(host())->CreateImageDef(
        m_dir.filePath(QStringLiteral("none.jpg"))));
    QCOMPARE(host()->ImageDefinitionCount(), before + 1);
    host()->ReleaseImageDefinitions();
    QCOMPARE(host()->ImageDefinitionCount(), 0);
}

int main(int argc, char** argv)
{
    QFile::remove(settingsPath());
    HostApplication app(argc, argv, settingsPath());
    tst_HostApplication test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_HostApplication.moc"
