// zph_host_screenshots: runs the four imports through the host's wizard in a
// real window and saves a picture of every step:
//   host-1-choice.png               the plug-in list
//   host-2-<plugin>-dialog.png      the file dialog with the files picked
//   host-3-<plugin>-page.png        the plug-in's page once every photo is read
//   host-4-<plugin>-result.png      what the host received
//   host-5-stitch-progress.png      the bundled sample stitching from the result page
//   host-6-stitch-result.png        the stitched panorama on the result page
// Usage: zph_host_screenshots <output folder>   (run by scripts/host-screenshots.sh
// under Xvfb; any X display works).
#include "HostApplication.h"
#include "ImportResultPage.h"
#include "ImportScenario.h"
#include "ImportWizard.h"
#include "PluginChoicePage.h"
#include "PluginLibraryLoader.h"

#include <QAbstractButton>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <QWindow>

namespace {

/// Lets the window system draw for `ms` milliseconds.
void settle(int ms)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(5);
    }
}

bool grab(QWidget* window, const QString& path)
{
    settle(300);
    QScreen* screen = window->windowHandle() ? window->windowHandle()->screen()
                                             : QGuiApplication::primaryScreen();
    const QPixmap shot = screen->grabWindow(window->winId());
    if (shot.isNull() || !shot.save(path)) {
        QTextStream(stderr) << "cannot save " << path << "\n";
        return false;
    }
    QTextStream(stdout) << "wrote " << path << "\n";
    return true;
}

/// Imports the bundled sample through the Papywizard page, presses "Stitch
/// panorama..." and takes the progress (while the pictures are remapped) and
/// the finished panorama.
bool stitchSample(
    ImportWizard* wizard, ImportScenario* scenario, const QString& work, const QDir& out)
{
    const QDir shoot(QStringLiteral(ZPH_SAMPLE_SHOOT));
    wizard->restart();
    wizard->ChoicePage()->ChoosePlugin(ImportScenario::Uid(QStringLiteral("Papywizard")));
    wizard->next();
    if (wizard->PluginPages().isEmpty())
        return false;
    QWizardPage* page = wizard->PluginPages().first();
    QStringList names { QStringLiteral("shoot.xml") };
    names << shoot.entryList({ QStringLiteral("IMG_*.jpg") }, QDir::Files, QDir::Name);
    scenario->onDialog = nullptr;
    scenario->AnswerNextFileDialog(shoot.path(), names);
    page->findChild<QAbstractButton*>(QStringLiteral("m_pbSelectConfigFile"))->click();
    QElapsedTimer clock;
    clock.start();
    while (!page->isComplete() && clock.elapsed() < 60000)
        settle(50);
    wizard->next();
    ImportResultPage* result = wizard->ResultPage();
    if (wizard->currentPage() != result)
        return false;

    bool ok = true;
    bool progressTaken = false;
    QObject::connect(
        result, &ImportResultPage::StitchStep, result, [&](const StitchPipeline::StepEvent& event) {
            if (!progressTaken && event.phase == StitchPipeline::StepEvent::Started
                && event.tool == QLatin1String("nona")) {
                progressTaken = true;
                ok = grab(wizard, out.filePath(QStringLiteral("host-5-stitch-progress.png"))) && ok;
            }
        });
    HostApplication::instance()->SetOutputFolder(work);
    // The dialog proposes shoot.jpg in the output folder: accepted as it is.
    auto* answer = new QTimer(wizard);
    answer->setInterval(20);
    QObject::connect(answer, &QTimer::timeout, answer, [answer] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        answer->stop();
        static_cast<QDialog*>(dialog)->accept();
    });
    answer->start();
    QSignalSpy finished(result, &ImportResultPage::StitchFinished);
    result->findChild<QPushButton*>(QStringLiteral("m_pbStitch"))->click();
    if (!finished.wait(600000) || !result->LastStitch().succeeded()) {
        QTextStream(stderr) << "the sample's stitch failed: " << result->LastStitch().error << "\n";
        return false;
    }
    return grab(wizard, out.filePath(QStringLiteral("host-6-stitch-result.png"))) && ok
        && progressTaken;
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir work;
    if (!work.isValid())
        return 1;
    HostApplication app(argc, argv, work.filePath(QStringLiteral("settings.ini")));
    const QStringList args = QCoreApplication::arguments();
    if (args.size() < 2) {
        QTextStream(stderr) << "usage: zph_host_screenshots <output folder>\n";
        return 2;
    }
    const QDir out(args.at(1));
    if (!QDir().mkpath(out.path()))
        return 1;
    app.SetUseNativeFileDialogs(false);
    app.SetLocale(QLocale(QStringLiteral("en_US")));

    ImportScenario scenario;
    if (!scenario.Prepare(work.filePath(QStringLiteral("shoot")))) {
        QTextStream(stderr) << scenario.ErrorString() << "\n";
        return 1;
    }
    PluginLibraryLoader loader;
    if (!loader.Load(PluginLibraryLoader::SearchFolders())) {
        QTextStream(stderr) << loader.ErrorString() << "\n";
        return 1;
    }
    int result = 0;
    {
        ImportWizard wizard(&app, &loader);
        wizard.resize(980, 860);
        wizard.show();
        wizard.ChoicePage()->ChoosePlugin(ImportScenario::Uid(QStringLiteral("Papywizard")));
        if (!grab(&wizard, out.filePath(QStringLiteral("host-1-choice.png"))))
            result = 1;
        for (const QString& plugin : ImportScenario::PluginNames()) {
            const QString name = plugin.toLower();
            scenario.onDialog = [&](QFileDialog* dialog) {
                dialog->resize(820, 520);
                if (!grab(dialog, out.filePath(QStringLiteral("host-2-%1-dialog.png").arg(name))))
                    result = 1;
            };
            scenario.onPageReady = [&](QWizardPage*) {
                if (!grab(&wizard, out.filePath(QStringLiteral("host-3-%1-page.png").arg(name))))
                    result = 1;
            };
            if (!scenario.Run(&wizard, plugin)) {
                QTextStream(stderr) << scenario.ErrorString() << "\n";
                result = 1;
                continue;
            }
            if (!grab(&wizard, out.filePath(QStringLiteral("host-4-%1-result.png").arg(name))))
                result = 1;
        }
        if (!stitchSample(&wizard, &scenario, work.path(), out))
            result = 1;
    }
    loader.Unload();
    app.ReleaseImageDefinitions();
    return result;
}
