// End to end through the window: the built plug-in library's Papywizard page
// imports the bundled sample shoot (its record and 30 photographs, chosen in
// Qt's file dialog), the result page's "Stitch panorama..." stitches it with
// Hugin's real programs, and the panorama on the page is checked against the
// true angles the sample was rendered at.
#include "HostApplication.h"
#include "ImageSize.h"
#include "ImportResultPage.h"
#include "ImportScenario.h"
#include "ImportWizard.h"
#include "PanoramaPreview.h"
#include "PluginChoicePage.h"
#include "PluginLibraryLoader.h"
#include "PtoProject.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <memory>

namespace {

QString settingsPath()
{
    static const QString path
        = QDir::temp().filePath(QStringLiteral("tst_ResultPageSampleStitch-%1.ini")
                                    .arg(QCoreApplication::applicationPid()));
    return path;
}

struct Truth
{
    double yaw = 0.0;
    double pitch = 0.0;
};

/// ground-truth.csv: image,stack,yaw,pitch,roll after comment lines.
QMap<QString, Truth> readTruth(const QString& path)
{
    QMap<QString, Truth> truth;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return truth;
    for (const QByteArray& raw : file.readAll().split('\n')) {
        const QString line = QString::fromUtf8(raw).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))
            || line.startsWith(QLatin1String("image,")))
            continue;
        const QStringList f = line.split(QLatin1Char(','));
        if (f.size() == 5)
            truth.insert(f[0], Truth { f[2].toDouble(), f[3].toDouble() });
    }
    return truth;
}

double yawDifference(double a, double b)
{
    double d = std::fmod(a - b, 360.0);
    if (d > 180.0)
        d -= 360.0;
    if (d < -180.0)
        d += 360.0;
    return d;
}

} // namespace

class tst_ResultPageSampleStitch : public QObject
{
    Q_OBJECT

private slots:
    void importAndStitch();
};

void tst_ResultPageSampleStitch::importAndStitch()
{
    HostApplication* host = HostApplication::instance();
    const QDir shoot(QStringLiteral(ZPH_SAMPLE_SHOOT));
    const QMap<QString, Truth> truth
        = readTruth(shoot.filePath(QStringLiteral("ground-truth.csv")));
    QCOMPARE(truth.size(), 30);
    QTemporaryDir out;
    QVERIFY(out.isValid());
    host->SetUseNativeFileDialogs(false);
    // Hugin's programs from PATH.
    host->SetToolsFolder(QString());
    host->SetOutputFolder(out.path());

    PluginLibraryLoader loader;
    QVERIFY2(loader.Load(PluginLibraryLoader::SearchFolders()), qPrintable(loader.ErrorString()));
    {
        ImportWizard wizard(host, &loader);
        wizard.show();
        QVERIFY(
            wizard.ChoicePage()->ChoosePlugin(ImportScenario::Uid(QStringLiteral("Papywizard"))));
        wizard.next();
        QVERIFY(!wizard.PluginPages().isEmpty());
        QWizardPage* page = wizard.PluginPages().first();
        QCOMPARE(wizard.currentPage(), page);
        QStringList names { QStringLiteral("shoot.xml") };
        for (const QString& photo :
            shoot.entryList({ QStringLiteral("IMG_*.jpg") }, QDir::Files, QDir::Name))
            names << photo;
        QCOMPARE(names.size(), 31);
        ImportScenario scenario;
        scenario.AnswerNextFileDialog(shoot.path(), names);
        page->findChild<QAbstractButton*>(QStringLiteral("m_pbSelectConfigFile"))->click();
        QTRY_VERIFY_WITH_TIMEOUT(page->isComplete(), 60000);
        wizard.next();
        QCOMPARE(wizard.currentId(), int(ImportWizard::ResultPageId));
        ImportResultPage* result = wizard.ResultPage();
        QCOMPARE(result->RecordName(), QStringLiteral("shoot"));

        // "Stitch panorama...", the proposed name accepted.
        QString proposed;
        auto* timer = new QTimer(&wizard);
        timer->setInterval(20);
        connect(timer, &QTimer::timeout, timer, [timer, &proposed] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            timer->stop();
            proposed = dialog->selectedFiles().value(0);
            static_cast<QDialog*>(dialog)->accept();
        });
        timer->start();
        QSignalSpy finished(result, &ImportResultPage::StitchFinished);
        result->findChild<QPushButton*>(QStringLiteral("m_pbStitch"))->click();
        QCOMPARE(QFileInfo(proposed).fileName(), QStringLiteral("shoot.jpg"));
        QVERIFY(result->IsStitching());
        QVERIFY(finished.wait(600000));
        const StitchPipeline::Result& stitched = result->LastStitch();
        QVERIFY2(stitched.succeeded(),
            qPrintable(stitched.name + QStringLiteral(": ") + stitched.error));
        QCOMPARE(QFileInfo(stitched.panorama).canonicalFilePath(),
            QFileInfo(QDir(out.path()).filePath(QStringLiteral("shoot.jpg"))).canonicalFilePath());
        QVERIFY(QFileInfo(QDir(out.path()).filePath(QStringLiteral("shoot.pto"))).isFile());
        QVERIFY(QFileInfo(QDir(out.path()).filePath(QStringLiteral("shoot.json"))).isFile());

        // Every picture ends within a degree of where it was rendered.
        PtoProject final;
        QString error;
        QVERIFY2(final.read(stitched.stitchedProject, &error), qPrintable(error));
        QCOMPARE(final.imageCount(), 30);
        for (int i = 0; i < final.imageCount(); ++i) {
            const QString name = QFileInfo(final.imageName(i)).fileName();
            QVERIFY2(truth.contains(name), qPrintable(name));
            bool yawOk = false, pitchOk = false;
            const double yaw = final.number(i, QStringLiteral("y"), &yawOk);
            const double pitch = final.number(i, QStringLiteral("p"), &pitchOk);
            QVERIFY(yawOk && pitchOk);
            const Truth t = truth.value(name);
            QVERIFY2(
                std::fabs(yawDifference(yaw, t.yaw)) <= 1.0 && std::fabs(pitch - t.pitch) <= 1.0,
                qPrintable(QStringLiteral("%1 at yaw %2, pitch %3; true %4, %5")
                               .arg(name)
                               .arg(yaw)
                               .arg(pitch)
                               .arg(t.yaw)
                               .arg(t.pitch)));
        }

        // The panorama has the final crop's size, and the page shows it.
        const QRect crop = final.crop();
        QVERIFY(!crop.isNull());
        QCOMPARE(ImageSize::read(stitched.panorama), crop.size());
        QCOMPARE(stitched.panoramaSize, crop.size());
        QVERIFY2(
            crop.width() > 1200 && crop.width() < 2000, qPrintable(QString::number(crop.width())));
        const QImage shown = result->Preview()->Picture();
        QVERIFY(!shown.isNull());
        QCOMPARE(shown.size(), crop.size());
        QVERIFY(result->Preview()->SizeText().contains(
            QStringLiteral("%1 × %2").arg(crop.width()).arg(crop.height())));
        QVERIFY(!result->HasUnsavedImport());
    }
    loader.Unload();
    host->ReleaseImageDefinitions();
}

int main(int argc, char** argv)
{
    QFile::remove(settingsPath());
    HostApplication app(argc, argv, settingsPath());
    tst_ResultPageSampleStitch test;
    QTEST_SET_MAIN_SOURCE_PATH
    const int result = QTest::qExec(&test, argc, argv);
    QFile::remove(settingsPath());
    return result;
}

#include "tst_ResultPageSampleStitch.moc"
