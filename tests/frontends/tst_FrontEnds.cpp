// One rule, one place: the same shoots imported through the plug-in's pages
// (the real, built library in the host's wizard, with the host's image
// reading, as a user does it) and through the command line's import give the
// same description, bit for bit, for every head and for a full-frame and a
// crop-sensor camera; and the Hugin projects both front ends write give each
// picture the field of view of its full-frame-equivalent focal length. Where
// the command line deliberately does better, the row names the fields that
// differ.
#include "HeadImport.h"
#include "HostApplication.h"
#include "HuginProjectWriter.h"
#include "ImportResultPage.h"
#include "ImportScenario.h"
#include "ImportWizard.h"
#include "PluginLibraryLoader.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <cstring>
#include <memory>

namespace {

constexpr double Pi = 3.141592653589793;

QString settingsPath()
{
    static const QString path = QDir::temp().filePath(
        QStringLiteral("tst_FrontEnds-%1.ini").arg(QCoreApplication::applicationPid()));
    return path;
}

template<class T> bool sameBits(const T& a, const T& b)
{
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

bool sameFloats(const QVector<float>& a, const QVector<float>& b)
{
    return a.size() == b.size()
        && (a.isEmpty() || std::memcmp(a.constData(), b.constData(), sizeof(float) * a.size()) == 0);
}

bool sameLinks(const QVector<AuthorizedLink>& a, const QVector<AuthorizedLink>& b)
{
    if (a.size() != b.size())
        return false;
    for (int i = 0; i < a.size(); ++i) {
        if (a[i].m_direction != b[i].m_direction || a[i].m_stackIndices != b[i].m_stackIndices)
            return false;
    }
    return true;
}

/// The names of the fields in which two descriptions differ.
QStringList differences(const StructuredPanoramaProperties& a, const StructuredPanoramaProperties& b)
{
    QStringList d;
    const auto check = [&d](bool same, const char* name) {
        if (!same)
            d << QLatin1String(name);
    };
    check(a.m_stacks == b.m_stacks, "stacks");
    check(sameLinks(a.m_links, b.m_links), "links");
    check(sameFloats(a.m_yaw, b.m_yaw), "yaw");
    check(sameFloats(a.m_pitch, b.m_pitch), "pitch");
    check(sameFloats(a.m_roll, b.m_roll), "roll");
    check(a.m_useShootData == b.m_useShootData, "useShootData");
    check(sameBits(a.m_focalLength, b.m_focalLength), "focalLength");
    check(a.m_flag2 == b.m_flag2, "flag2");
    check(a.m_lensModel == b.m_lensModel, "lensModel");
    check(a.m_intA == b.m_intA && a.m_intB == b.m_intB && a.m_intC == b.m_intC, "ints");
    check(a.m_flag3 == b.m_flag3, "flag3");
    check(a.m_autoDetection == b.m_autoDetection, "autoDetection");
    check(a.m_stackLinking == b.m_stackLinking, "stackLinking");
    check(a.m_levelLinking == b.m_levelLinking, "levelLinking");
    check(a.m_useRecordedLocation == b.m_useRecordedLocation, "useRecordedLocation");
    check(a.m_skipOptimization == b.m_skipOptimization, "skipOptimization");
    check(a.m_cleanWrongLinks == b.m_cleanWrongLinks, "cleanWrongLinks");
    check(a.m_gridOrder == b.m_gridOrder, "gridOrder");
    check(a.m_gridRows == b.m_gridRows, "gridRows");
    check(a.m_bracketCount == b.m_bracketCount, "bracketCount");
    check(a.m_gridFlag == b.m_gridFlag, "gridFlag");
    check(sameBits(a.m_overlap, b.m_overlap), "overlap");
    check(a.m_indexA == b.m_indexA, "indexA");
    check(a.m_outputMode == b.m_outputMode, "outputMode");
    check(a.m_text1 == b.m_text1 && a.m_text2 == b.m_text2, "texts");
    check(a.m_flag4 == b.m_flag4, "flag4");
    return d;
}

/// The "v" (horizontal field of view, degrees) of every image line of a project.
QVector<double> fieldsOfView(const QString& project)
{
    QVector<double> v;
    QFile file(project);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return v;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (!line.startsWith("i "))
            continue;
        for (const QByteArray& field : line.split(' ')) {
            if (field.startsWith('v') && field.size() > 1 && field.at(1) != '=')
                v << field.mid(1).toDouble();
        }
    }
    return v;
}

Head headOf(const QString& plugin)
{
    if (plugin == QLatin1String("Clauss"))
        return Head::Clauss;
    if (plugin == QLatin1String("Gigapan"))
        return Head::Gigapan;
    if (plugin == QLatin1String("VRDrive2"))
        return Head::VRDrive2;
    return Head::Papywizard;
}

} // namespace

Q_DECLARE_METATYPE(ImportScenario::Camera)

class tst_FrontEnds : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void sameDescription_data();
    void sameDescription();

private:
    HostApplication* host() const { return HostApplication::instance(); }

    QTemporaryDir m_dir;
    PluginLibraryLoader m_loader;
    std::unique_ptr<ImportWizard> m_wizard;
};

void tst_FrontEnds::initTestCase()
{
    QVERIFY(host());
    QVERIFY(m_dir.isValid());
    host()->SetUseNativeFileDialogs(false);
    QVERIFY2(
        m_loader.Load(PluginLibraryLoader::SearchFolders()), qPrintable(m_loader.ErrorString()));
    m_wizard.reset(new ImportWizard(host(), &m_loader));
    m_wizard->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_wizard.get()));
}

void tst_FrontEnds::cleanupTestCase()
{
    m_wizard.reset();
    m_loader.Unload();
    host()->ReleaseImageDefinitions();
    QFile::remove(settingsPath());
}

void tst_FrontEnds::sameDescription_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<ImportScenario::Camera>("camera");
    /// The full-frame-equivalent focal length the projects' field of view is
    /// expected at (through the pages; the command line's where it differs).
    QTest::addColumn<double>("pageFocal");
    QTest::addColumn<double>("cliFocal");
    /// Fields in which the command line deliberately differs.
    QTest::addColumn<QStringList>("expectedDifferences");

    ImportScenario::Camera fullFrame;
    ImportScenario::Camera crop;
    crop.focals = QVector<int>(6, 18);
    crop.crop = 1.5;
    // Focal lengths whose mean the pages' focal box rounds: 157 / 6 mm.
    ImportScenario::Camera uneven;
    uneven.focals = { 17, 18, 21, 26, 33, 42 };
    // One photograph without EXIF focal length among six at 35 mm: the pages
    // count it as 0 (mean 29.17 mm), the command line leaves it out (35 mm).
    ImportScenario::Camera oneMissing;
    oneMissing.focals = { 35, 0, 35, 35, 35, 35 };

    for (const QString& plugin : ImportScenario::PluginNames()) {
        const bool recordsFocal = plugin == QLatin1String("Papywizard")
            || plugin == QLatin1String("VRDrive2");
        // Clauss imports take four photographs, the others six.
        const int count = plugin == QLatin1String("Clauss") ? 4 : 6;
        const auto mean = [count](const QVector<int>& focals, bool zeros) {
            double sum = 0.0;
            int n = 0;
            for (int i = 0; i < count; ++i) {
                sum += focals.value(i, 24);
                n += zeros || focals.value(i, 24) > 0 ? 1 : 0;
            }
            return sum / n;
        };
        const QByteArray name = plugin.toLatin1();
        QTest::newRow((name + ", full frame 24 mm").constData())
            << plugin << fullFrame << 24.0 << 24.0 << QStringList();
        QTest::newRow((name + ", crop sensor 18 mm (27 mm equivalent)").constData())
            << plugin << crop << 27.0 << 27.0 << QStringList();
        // The pages hold the mean in a two-decimal box; the command line too.
        const double unevenMean = mean(uneven.focals, true);
        const double shown = recordsFocal ? std::round(unevenMean * 100) / 100 : unevenMean;
        QTest::newRow((name + ", uneven focal lengths").constData())
            << plugin << uneven << shown << shown << QStringList();
        if (recordsFocal) {
            QTest::newRow((name + ", one photograph without focal length").constData())
                << plugin << oneMissing << std::round(mean(oneMissing.focals, true) * 100) / 100
                << 35.0 << QStringList { QStringLiteral("focalLength") };
        } else {
            // The description holds no focal length: both front ends export
            // with the photographs that give one.
            QTest::newRow((name + ", one photograph without focal length").constData())
                << plugin << oneMissing << 35.0 << 35.0 << QStringList();
        }
    }
}

void tst_FrontEnds::sameDescription()
{
    QFETCH(QString, plugin);
    QFETCH(ImportScenario::Camera, camera);
    QFETCH(double, pageFocal);
    QFETCH(double, cliFocal);
    QFETCH(QStringList, expectedDifferences);

    static int shoot = 0;
    const QString folder = m_dir.filePath(QStringLiteral("shoot%1").arg(++shoot));
    ImportScenario scenario;
    scenario.camera = camera;
    QVERIFY2(scenario.Prepare(folder), qPrintable(scenario.ErrorString()));

    // Through the pages.
    host()->ClearImportedPanorama();
    QVERIFY2(scenario.Run(m_wizard.get(), plugin), qPrintable(scenario.ErrorString()));
    QVERIFY(host()->HasImportedPanorama());
    const StructuredPanoramaProperties fromPages = host()->ImportedPanorama();
    const QString pagesProject = QDir(folder).filePath(QStringLiteral("pages.pto"));
    QString error;
    QVERIFY2(m_wizard->ResultPage()->SaveHuginProject(pagesProject, &error), qPrintable(error));

    // Through the command line's import.
    ImportRequest request;
    request.head = headOf(plugin);
    request.record = scenario.HeadFile(plugin);
    request.photoArguments = scenario.Photos(plugin);
    QString out;
    QString err;
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    Console console { outStream, errStream, false };
    ImportOutcome outcome;
    QVERIFY2(HeadImport::Run(request, console, &outcome, &error), qPrintable(error));
    const QString cliProject = QDir(folder).filePath(QStringLiteral("cli.pto"));
    QVERIFY2(HuginProjectWriter(outcome.input).write(cliProject, &error), qPrintable(error));

    QCOMPARE(differences(fromPages, outcome.input.panorama), expectedDifferences);

    // Both projects give each picture (480 × 320, 3:2 like the 36 × 24 mm
    // frame) the field of view of its full-frame-equivalent focal length.
    const QVector<double> pagesFov = fieldsOfView(pagesProject);
    const QVector<double> cliFov = fieldsOfView(cliProject);
    QVERIFY(!pagesFov.isEmpty());
    QCOMPARE(cliFov.size(), pagesFov.size());
    const double pagesExpected = 2.0 * std::atan(18.0 / pageFocal) * 180.0 / Pi;
    const double cliExpected = 2.0 * std::atan(18.0 / cliFocal) * 180.0 / Pi;
    for (int i = 0; i < pagesFov.size(); ++i) {
        // The project writes the angle with a few decimals; 0.01° is far below
        // the 0.3° a 1 % focal error makes here.
        QVERIFY2(std::abs(pagesFov[i] - pagesExpected) < 0.01,
            qPrintable(QStringLiteral("pages: %1 instead of %2").arg(pagesFov[i]).arg(pagesExpected)));
        QVERIFY2(std::abs(cliFov[i] - cliExpected) < 0.01,
            qPrintable(QStringLiteral("command line: %1 instead of %2").arg(cliFov[i]).arg(cliExpected)));
    }
    if (expectedDifferences.isEmpty())
        QCOMPARE(cliFov, pagesFov);
}

int main(int argc, char** argv)
{
    QFile::remove(settingsPath());
    HostApplication app(argc, argv, settingsPath());
    tst_FrontEnds test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_FrontEnds.moc"
