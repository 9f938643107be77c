// The host end to end: loads the real, built plug-in library, and runs each of
// the four imports through the wizard on the offscreen platform as a user
// would (Qt's own file dialog, photographs written at test time), checking the
// description the host receives. Also checks what the library asks of the
// host on the way: the translation for the German locale, the folder of the
// chosen files, and the pages' state saved in the host's settings.
#include "DescriptionJson.h"
#include "HostApplication.h"
#include "ImportResultPage.h"
#include "ImportScenario.h"
#include "ImportWizard.h"
#include "PanoramaLayoutView.h"
#include "PluginChoicePage.h"
#include "PluginLibraryLoader.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <memory>

namespace {

QString settingsPath()
{
    static const QString path = QDir::temp().filePath(
        QStringLiteral("tst_HostImport-%1.ini").arg(QCoreApplication::applicationPid()));
    return path;
}

/// Degrees to the record's radians: double arithmetic, stored as float.
float radians(float degrees)
{
    return float(double(degrees) * 3.141592653589793 / 180.0);
}

QVector<float> radiansOf(const QVector<float>& degrees)
{
    QVector<float> out;
    for (float d : degrees)
        out << radians(d);
    return out;
}

/// "direction:from>to" for every link, in order.
QStringList linkTexts(const QVector<AuthorizedLink>& links)
{
    QStringList texts;
    for (const AuthorizedLink& link : links) {
        QStringList indices;
        for (int i : link.m_stackIndices)
            indices << QString::number(i);
        texts << QStringLiteral("%1:%2").arg(link.m_direction).arg(indices.join(QLatin1Char('>')));
    }
    return texts;
}

} // namespace

class tst_HostImport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void offersTheFourPlugins();
    void loadsTheLanguageCatalogue();
    void imports_data();
    void imports();
    void remembersTheFolderAndSavesPageState();

private:
    HostApplication* host() const { return HostApplication::instance(); }

    QTemporaryDir m_dir;
    ImportScenario m_scenario;
    PluginLibraryLoader m_loader;
    std::unique_ptr<ImportWizard> m_wizard;
};

void tst_HostImport::initTestCase()
{
    QVERIFY(host());
    QVERIFY(m_dir.isValid());
    QVERIFY2(m_scenario.Prepare(m_dir.path()), qPrintable(m_scenario.ErrorString()));
    // Qt's own file dialog, so the test can fill it in.
    host()->SetUseNativeFileDialogs(false);
    host()->SetLocale(QLocale(QStringLiteral("de_DE")));
    QVERIFY2(
        m_loader.Load(PluginLibraryLoader::SearchFolders()), qPrintable(m_loader.ErrorString()));
    QVERIFY(QFileInfo(m_loader.FileName()).fileName().contains(QLatin1String("ZPanoHead")));
    m_wizard.reset(new ImportWizard(host(), &m_loader));
    m_wizard->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_wizard.get()));
}

void tst_HostImport::cleanupTestCase()
{
    m_wizard.reset();
    m_loader.Unload();
    host()->ReleaseImageDefinitions();
    QFile::remove(settingsPath());
}

void tst_HostImport::offersTheFourPlugins()
{
    QTreeWidget* list = m_wizard->ChoicePage()->PluginList();
    QStringList names;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        names << list->topLevelItem(row)->text(0);
        QCOMPARE(list->topLevelItem(row)->text(1), QStringLiteral("3.0.0.400"));
        QVERIFY(!list->topLevelItem(row)->text(2).isEmpty());
        QVERIFY(!list->topLevelItem(row)->icon(0).isNull());
    }
    QCOMPARE(names, ImportScenario::PluginNames());
}

void tst_HostImport::loadsTheLanguageCatalogue()
{
    // The library asked for ZPanoHead_de_DE.qm; the host fell back to the
    // language alone, which the library's resources hold, and added Qt's own.
    const QStringList loaded = host()->LoadedTranslations();
    QVERIFY2(loaded.contains(QStringLiteral(":/Translation/ZPanoHead_de.qm")),
        qPrintable(loaded.join(QLatin1Char(' '))));
    bool qtCatalogue = false;
    for (const QString& path : loaded)
        qtCatalogue |= QFileInfo(path).fileName().startsWith(QLatin1String("qt_de"));
    QVERIFY2(qtCatalogue, qPrintable(loaded.join(QLatin1Char(' '))));
}

void tst_HostImport::imports_data()
{
    QTest::addColumn<QString>("plugin");
    for (const QString& plugin : ImportScenario::PluginNames())
        QTest::newRow(qPrintable(plugin)) << plugin;
}

void tst_HostImport::imports()
{
    QFETCH(QString, plugin);
    host()->ClearImportedPanorama();
    QVERIFY2(m_scenario.Run(m_wizard.get(), plugin), qPrintable(m_scenario.ErrorString()));
    QVERIFY(host()->HasImportedPanorama());
    const StructuredPanoramaProperties& r = host()->ImportedPanorama();
    const QStringList p = m_scenario.Photos(plugin);

    if (plugin == QLatin1String("Papywizard")) {
        QCOMPARE(r.m_stacks,
            (QVector<QStringList> { { p[0] }, { p[1] }, { p[2] }, { p[3] }, { p[4] }, { p[5] } }));
        QCOMPARE(r.m_yaw, radiansOf({ 0, 40, 80, 0, 40, 80 }));
        QCOMPARE(r.m_pitch, radiansOf({ 0, 0, 0, -30, -30, -30 }));
        QCOMPARE(r.m_roll, radiansOf({ 0, 0, 0, 0, 0, 0 }));
        QCOMPARE(r.m_focalLength, 24.0f);
        // The photographs' EXIF data say a standard lens.
        QCOMPARE(int(r.m_lensModel), int(LensStandard));
        // Worked out by hand from the positions: with 24 mm, neighbours 40°
        // across, 30° down and the down-right diagonal (48°) overlap, the
        // 80° pairs do not.
        QCOMPARE(linkTexts(r.m_links),
            (QStringList { "2:0>1", "1:0>3", "2:0>4", "2:1>2", "1:1>4", "2:1>5", "1:2>5", "2:3>1",
                "2:3>4", "2:4>2", "2:4>5" }));
        QCOMPARE(r.m_outputMode, -1);
        QVERIFY(r.m_useRecordedLocation);
        QVERIFY(r.m_autoDetection);
        QCOMPARE(r.m_overlap, 80.0);
    } else if (plugin == QLatin1String("VRDrive2")) {
        // Exposures 1/500, 1/125, 1/30 s: the middle one (the second photo of
        // each bracket) becomes each stack's reference.
        QCOMPARE(r.m_stacks, (QVector<QStringList> { { p[1], p[0], p[2] }, { p[4], p[3], p[5] } }));
        QCOMPARE(r.m_yaw, radiansOf({ 0, 0, 0, 40, 40, 40 }));
        QCOMPARE(r.m_pitch, radiansOf({ 0, 0, 0, 0, 0, 0 }));
        QCOMPARE(linkTexts(r.m_links), QStringList { "2:0>1" });
        QCOMPARE(r.m_focalLength, 24.0f);
        QCOMPARE(int(r.m_lensModel), int(LensStandard));
        // "8-bits / 16-bits tonemapped", the initial choice.
        QCOMPARE(r.m_outputMode, 2);
    } else if (plugin == QLatin1String("Clauss")) {
        QCOMPARE(r.m_stacks, (QVector<QStringList> { { p[0] }, { p[1] }, { p[2] }, { p[3] } }));
        QCOMPARE(r.m_yaw, radiansOf({ 0, 35, 70, 105 }));
        QCOMPARE(r.m_pitch, radiansOf({ 0, 0, 0, 0 }));
        QVERIFY(r.m_roll.isEmpty());
        // 35° apart overlap at 24 mm, 70° apart do not; no direction is known.
        QCOMPARE(linkTexts(r.m_links), (QStringList { "0:0>1", "0:1>2", "0:2>3" }));
        QCOMPARE(r.m_overlap, 25.0);
    } else if (plugin == QLatin1String("Gigapan")) {
        // Six photographs: the page proposes 2 rows of 3, shot column by column.
        QCOMPARE(r.m_stacks,
            (QVector<QStringList> { { p[0] }, { p[1] }, { p[2] }, { p[3] }, { p[4] }, { p[5] } }));
        QVERIFY(r.m_yaw.isEmpty());
        QVERIFY(!r.m_useShootData);
        QCOMPARE(r.m_gridRows, 2);
        QCOMPARE(r.m_gridOrder, 0);
        QCOMPARE(r.m_bracketCount, 1);
        QVERIFY(!r.m_gridFlag);
        QCOMPARE(linkTexts(r.m_links),
            (QStringList { "1:0>1", "2:0>2", "4:1>2", "3:0>3", "1:2>3", "2:2>4", "4:3>4", "3:2>5",
                "1:4>5", "2:1>3", "2:3>5" }));
        // The page's overlap box starts at 40 %.
        QCOMPARE(r.m_overlap, 40.0);
    } else {
        QFAIL("unknown plug-in");
    }

    // The last page shows it.
    ImportResultPage* result = m_wizard->ResultPage();
    QCOMPARE(m_wizard->currentPage(), static_cast<QWizardPage*>(result));
    QCOMPARE(PanoramaLayoutView::StackPositions(r).positions.size(), r.m_stacks.size());
    QVERIFY(host()->ImageDefinitionCount() >= p.size());

    // And saves it: a Hugin project with one image line per photograph, a
    // JSON description that reads back to the same record, a layout picture.
    QString error;
    const QString pto = m_dir.filePath(plugin + QStringLiteral(".pto"));
    QVERIFY2(result->SaveHuginProject(pto, &error), qPrintable(error));
    QFile project(pto);
    QVERIFY(project.open(QIODevice::ReadOnly | QIODevice::Text));
    int imageLines = 0;
    int images = 0;
    for (const QStringList& stack : r.m_stacks)
        images += stack.size();
    while (!project.atEnd())
        imageLines += project.readLine().startsWith("i ") ? 1 : 0;
    QCOMPARE(imageLines, images);

    const QString json = m_dir.filePath(plugin + QStringLiteral(".json"));
    QVERIFY2(result->SaveJson(json, &error), qPrintable(error));
    StructuredPanoramaProperties back;
    QVERIFY2(DescriptionJson::read(json, &back, &error), qPrintable(error));
    QCOMPARE(back.m_stacks, r.m_stacks);
    QCOMPARE(back.m_yaw, r.m_yaw);
    QCOMPARE(back.m_pitch, r.m_pitch);
    QCOMPARE(linkTexts(back.m_links), linkTexts(r.m_links));
    QCOMPARE(back.m_overlap, r.m_overlap);

    const QString png = m_dir.filePath(plugin + QStringLiteral("-layout.png"));
    QVERIFY2(result->SaveLayoutPicture(png, &error), qPrintable(error));
    QVERIFY(!QImage(png).isNull());
}

void tst_HostImport::remembersTheFolderAndSavesPageState()
{
    // Every page told the host where the files were chosen.
    QCOMPARE(QDir(host()->DefaultFolder()).canonicalPath(), QDir(m_dir.path()).canonicalPath());
    // Handing the pages back and releasing the library makes each plug-in
    // save its page's state under its UID.
    m_wizard.reset();
    m_loader.Unload();
    host()->Settings().sync();
    const QSettings stored(settingsPath(), QSettings::IniFormat);
    const QStringList groups = stored.childGroups();
    for (const QString& plugin : ImportScenario::PluginNames())
        QVERIFY2(groups.contains(ImportScenario::Uid(plugin)),
            qPrintable(groups.join(QLatin1Char(' '))));
    QCOMPARE(stored
                 .value(QStringLiteral("%1/ZMerlinImport")
                            .arg(ImportScenario::Uid(QStringLiteral("Papywizard"))))
                 .toByteArray(),
        QByteArray());
    QVERIFY(stored.contains(
        QStringLiteral("%1/ZMerlinImport").arg(ImportScenario::Uid(QStringLiteral("Papywizard")))));
    QCOMPARE(stored.value(QStringLiteral("Host/LastPlugin")).toString(),
        ImportScenario::Uid(ImportScenario::PluginNames().last()));
}

int main(int argc, char** argv)
{
    QFile::remove(settingsPath());
    HostApplication app(argc, argv, settingsPath());
    tst_HostImport test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_HostImport.moc"
