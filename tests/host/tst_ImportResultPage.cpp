// The result page's stitch, save and close behaviour, offscreen, with
// stand-ins for Hugin's programs (shell scripts in a temporary tools folder):
// the progress goes through every step in order while the event loop keeps
// running, Cancel ends a sleeping program and leaves no panorama, a failing
// step is named with its reason, the file dialogs propose the record's name,
// the wizard asks before it drops an unsaved import and cannot be left while
// a stitch runs, and the window keeps its size.
#include "DescriptionJson.h"
#include "HostApplication.h"
#include "HostSettingsDialog.h"
#include "HostWindow.h"
#include "ImportResultPage.h"
#include "ImportWizard.h"
#include "PanoramaLayoutView.h"
#include "PanoramaPreview.h"
#include "PhotoFixture.h"
#include "PluginLibraryLoader.h"
#include "StandInTools.h"
#include "StitchProgressWidget.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTextDocument>
#include <QtTest>

#include <cmath>
#include <functional>

namespace {

using StepEvent = StitchPipeline::StepEvent;
using Result = StitchPipeline::Result;

QTemporaryDir& scratch()
{
    static QTemporaryDir dir;
    return dir;
}

QString settingsPath()
{
    return scratch().filePath(QStringLiteral("settings.ini"));
}

HostApplication* host()
{
    return HostApplication::instance();
}

using StandInTools::writeScript;

const QStringList AllNames = { QStringLiteral("Finding control points"),
    QStringLiteral("Removing points between positions that do not meet"),
    QStringLiteral("Removing wrong points"), QStringLiteral("Placing the pictures"),
    QStringLiteral("Choosing canvas and crop"), QStringLiteral("Remapping"),
    QStringLiteral("Blending") };

using StandInTools::processRuns;

/// Answers the next file dialog: checks it with `check`, types `name` and
/// accepts (or rejects when `name` is empty).
void answerFileDialog(const QString& name, std::function<void(QFileDialog*)> check = {})
{
    auto* timer = new QTimer(qApp);
    timer->setInterval(20);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, name, check] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        timer->stop();
        timer->deleteLater();
        if (check)
            check(dialog);
        if (name.isEmpty()) {
            dialog->reject();
            return;
        }
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (edit)
            edit->setText(name);
        static_cast<QDialog*>(dialog)->accept();
    });
    timer->start();
}

/// Presses `button` of the next message box named `objectName`; its text
/// goes to *text.
void answerMessageBox(const QString& objectName, QMessageBox::StandardButton button, QString* text)
{
    auto* timer = new QTimer(qApp);
    timer->setInterval(20);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, objectName, button, text] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || box->objectName() != objectName)
            return;
        timer->stop();
        timer->deleteLater();
        if (text)
            *text = box->text();
        box->button(button)->click();
    });
    timer->start();
}

/// Qt's file dialog reads folders on a thread of its own, and the Qt here is
/// not built for ThreadSanitizer: under it, races inside Qt's dialog would be
/// reported. The suites that open a file dialog run in every other build.
#if defined(__SANITIZE_THREAD__)
#define SKIP_FILE_DIALOG_UNDER_THREAD_SANITIZER()                                                \
    QSKIP("Qt's file dialog thread is not built for ThreadSanitizer")
#else
#define SKIP_FILE_DIALOG_UNDER_THREAD_SANITIZER()
#endif

} // namespace

class tst_ImportResultPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void summaryShowsWhatIsUsed();
    void layoutViewDrawsThePicture();
    void progressReachesEveryStep();
    void eventLoopRunsDuringAStitch();
    void cancelEndsTheSleepingTool();
    void failingStepIsNamed_data();
    void failingStepIsNamed();
    void missingProgramNamesItsPackage();
    void stitchDialog();
    void stitchDialogOffersExrForHdr();
    void saveProjectDialog();
    void finishWithUnsavedWork_data();
    void finishWithUnsavedWork();
    void wizardLockedWhileStitching();
    void windowKeepsItsSize();
    void smallScreenScrolls();
    void settingsDialog();
    void hostCatalogues_data();
    void hostCatalogues();

private:
    /// A tools folder with well-behaved stand-ins, `changes` replacing some.
    QString makeTools(const QMap<QString, QString>& changes);
    /// Runs `page`'s stitch into `panorama` and waits for its end.
    bool stitch(ImportResultPage* page, const QString& panorama, Result* result);
    QString newFolder();

    QDir m_shoot;
    QString m_tools;
    StructuredPanoramaProperties m_record;
    QScopedPointer<ImportResultPage> m_page;
    int m_folders = 0;
};

QString tst_ImportResultPage::newFolder()
{
    const QString path = scratch().filePath(QStringLiteral("out-%1").arg(++m_folders));
    QDir().mkpath(path);
    return path;
}

void tst_ImportResultPage::initTestCase()
{
    QVERIFY(scratch().isValid());
    m_shoot = QDir(scratch().filePath(QStringLiteral("shoot")));
    QVERIFY(QDir().mkpath(m_shoot.path()));
    // Three photographs at 35 mm; stacks 0 and 1 (yaw 0 and 40) are linked.
    const double yaws[] = { 0, 40, 160 };
    for (int i = 0; i < 3; ++i) {
        PhotoFixture photo;
        photo.size = QSize(300, 200);
        photo.seed = i + 1;
        photo.focalNum = 35;
        photo.focalDen = 1;
        photo.thumbnail = QSize(120, 80);
        const QString path = m_shoot.filePath(QStringLiteral("P%1.jpg").arg(i + 1));
        QVERIFY2(photo.write(path), qPrintable(photo.errorString()));
        m_record.m_stacks << QStringList { path };
        m_record.m_yaw << float(yaws[i] * M_PI / 180.0);
        m_record.m_pitch << 0.0f;
        m_record.m_roll << 0.0f;
    }
    AuthorizedLink link;
    link.m_direction = 2;
    link.m_stackIndices = { 0, 1 };
    m_record.m_links = { link };
    m_record.m_autoDetection = true;
    m_record.m_outputMode = 2;
    QFile head(m_shoot.filePath(QStringLiteral("morning.xml")));
    QVERIFY(head.open(QIODevice::WriteOnly));
    head.write("<papywizard/>\n");
    head.close();
    host()->SetUseNativeFileDialogs(false);
}

void tst_ImportResultPage::init()
{
    m_tools = makeTools({});
    QVERIFY(!m_tools.isEmpty());
    host()->SetToolsFolder(m_tools);
    host()->SetDefaultFolder(m_shoot.filePath(QStringLiteral("morning.xml")));
    host()->ImportStructuredPanorama(m_record);
    m_page.reset(new ImportResultPage(host()));
    m_page->resize(900, 600);
    m_page->show();
    m_page->initializePage();
}

void tst_ImportResultPage::cleanup()
{
    m_page.reset();
}

QString tst_ImportResultPage::makeTools(const QMap<QString, QString>& changes)
{
    const QDir folder(newFolder());
    // A real 100 × 50 JPEG for the blender to "write".
    QImage picture(100, 50, QImage::Format_RGB32);
    picture.fill(QColor(40, 120, 200));
    const QString jpeg = folder.filePath(QStringLiteral("blended.jpg"));
    if (!picture.save(jpeg, "JPEG"))
        return QString();
    QMap<QString, QString> tools {
        { QStringLiteral("cpfind"),
            QStringLiteral("cp \"$last\" \"$out\"; echo 'c n0 N1 x1 y1 X2 Y2 t0' >> \"$out\"") },
        { QStringLiteral("cpclean"), QStringLiteral("cp \"$last\" \"$out\"") },
        { QStringLiteral("autooptimiser"), QStringLiteral("cp \"$last\" \"$out\"") },
        { QStringLiteral("pano_modify"),
            QStringLiteral("sed 's/^p \\(.*\\)$/p \\1 S0,100,0,50/' \"$last\" > \"$out\"") },
        { QStringLiteral("nona"),
            QStringLiteral("for i in $images; do printf x > \"$(printf '%s%04d.tif' \"$out\" "
                           "\"$i\")\"; done") },
        { QStringLiteral("verdandi"), QStringLiteral("cp '%1' \"$out\"").arg(jpeg) },
    };
    for (auto it = changes.constBegin(); it != changes.constEnd(); ++it)
        tools[it.key()] = it.value();
    // Programs the stitch may need beyond these behave like cp.
    for (const QString& program : StitchPipeline::programs()) {
        if (!tools.contains(program))
            tools[program] = QStringLiteral("cp \"$last\" \"$out\"");
    }
    for (auto it = tools.constBegin(); it != tools.constEnd(); ++it) {
        if (!writeScript(folder.filePath(it.key()), it.value()))
            return QString();
    }
    return folder.path();
}

bool tst_ImportResultPage::stitch(ImportResultPage* page, const QString& panorama, Result* result)
{
    QSignalSpy finished(page, &ImportResultPage::StitchFinished);
    QString error;
    if (!page->StartStitch(panorama, &error)) {
        qWarning() << error;
        return false;
    }
    if (!finished.wait(30000))
        return false;
    *result = finished.first().first().value<Result>();
    return true;
}

void tst_ImportResultPage::summaryShowsWhatIsUsed()
{
    const QString html
        = m_page->findChild<QTextBrowser*>(QStringLiteral("m_tbSummary"))->toPlainText();
    QVERIFY2(html.contains(QStringLiteral("35 mm (from the photographs)")), qPrintable(html));
    QVERIFY2(html.contains(QStringLiteral("Standard (from the photographs)")), qPrintable(html));

    StructuredPanoramaProperties grid;
    grid.m_useShootData = false;
    grid.m_gridRows = 2;
    grid.m_gridOrder = 4;
    grid.m_focalLength = 50.0f;
    grid.m_lensModel = LensStandard;
    const PhotoFocal::Choice used { 50.0, LensStandard, false };
    QTextDocument document;
    document.setHtml(ImportResultPage::Summary(grid, QString(), &used));
    const QString text = document.toPlainText();
    QVERIFY2(text.contains(QStringLiteral("50 mm (from the record)")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("Standard (from the record)")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("2 rows, shot by serpentine")), qPrintable(text));
    QCOMPARE(ImportResultPage::GridOrderName(0), QStringLiteral("columns"));
    QCOMPARE(ImportResultPage::GridOrderName(1), QStringLiteral("rows downward"));
    QCOMPARE(ImportResultPage::GridOrderName(2), QStringLiteral("rows upward"));
    QCOMPARE(ImportResultPage::GridOrderName(3), QStringLiteral("columns to the left"));
    QCOMPARE(m_page->RecordName(), QStringLiteral("morning"));
}

void tst_ImportResultPage::layoutViewDrawsThePicture()
{
    // The view shows the layout picture (thumbnails, links, numbers), not dots.
    const QImage picture = m_page->LayoutView()->Picture();
    QVERIFY(!picture.isNull());
    PanoramaLayoutView dots;
    dots.SetPanorama(m_record);
    QVERIFY(m_page->LayoutView()->Render(QSize(400, 240)) != dots.Render(QSize(400, 240)));
}

void tst_ImportResultPage::progressReachesEveryStep()
{
    QStringList shown;
    QVector<int> steps;
    QStringList counted;
    connect(m_page.data(), &ImportResultPage::StitchStep, this, [&](const StepEvent& event) {
        if (event.phase == StepEvent::Started) {
            shown << m_page->ProgressWidget()->StepText();
            steps << event.step;
        } else if (event.phase == StepEvent::Progressed) {
            counted << m_page->ProgressWidget()->StepText();
        }
    });
    QSignalSpy running(m_page.data(), &ImportResultPage::StitchingChanged);
    const QDir out(newFolder());
    Result result;
    QVERIFY(stitch(m_page.data(), out.filePath(QStringLiteral("morning.jpg")), &result));
    QVERIFY2(result.succeeded(), qPrintable(result.error));
    QCOMPARE(steps, (QVector<int> { 1, 2, 3, 4, 5, 6, 7 }));
    QStringList expected;
    for (int i = 0; i < AllNames.size(); ++i)
        expected << QStringLiteral("Step %1 of 7: %2").arg(i + 1).arg(AllNames[i]);
    QCOMPARE(shown, expected);
    // The remapping counts its three pictures.
    QStringList remapped;
    for (int done = 0; done <= 3; ++done)
        remapped << QStringLiteral("Step 6 of 7: Remapping %1 of 3").arg(done);
    QCOMPARE(counted, remapped);
    QCOMPARE(running.size(), 2);
    QCOMPARE(running[0].first().toBool(), true);
    QCOMPARE(running[1].first().toBool(), false);

    // The project and its description under the record's name, beside the panorama.
    QVERIFY(QFileInfo(out.filePath(QStringLiteral("morning.pto"))).isFile());
    QVERIFY(QFileInfo(out.filePath(QStringLiteral("morning.json"))).isFile());
    QVERIFY(!m_page->HasUnsavedImport());

    // The panorama on screen with its size and the stitched project.
    QVERIFY(m_page->ProgressWidget()->isHidden());
    auto* tabs = m_page->findChild<QTabWidget*>(QStringLiteral("m_tabs"));
    QCOMPARE(tabs->currentWidget(), static_cast<QWidget*>(m_page->Preview()));
    QCOMPARE(m_page->Preview()->Picture().size(), QSize(100, 50));
    QCOMPARE(m_page->Preview()->SizeText(), QStringLiteral("morning.jpg: 100 × 50 pixels"));
    QVERIFY(m_page->Preview()->ProjectText().endsWith(
        QDir::toNativeSeparators(result.stitchedProject)));
    QVERIFY(result.stitchedProject.endsWith(QStringLiteral("05-final.pto")));
    QSignalSpy open(m_page->Preview(), &PanoramaPreview::OpenRequested);
    m_page->Preview()->findChild<QPushButton*>(QStringLiteral("m_pbShowFolder"))->click();
    QCOMPARE(open.size(), 1);
    QCOMPARE(open.first().first().toUrl(), QUrl::fromLocalFile(out.absolutePath()));
}

void tst_ImportResultPage::eventLoopRunsDuringAStitch()
{
    m_tools = makeTools({ { QStringLiteral("cpfind"),
        QStringLiteral(
            "sleep 1; cp \"$last\" \"$out\"; echo 'c n0 N1 x1 y1 X2 Y2 t0' >> \"$out\"") } });
    host()->SetToolsFolder(m_tools);
    int ticks = 0;
    QTimer timer;
    timer.setInterval(50);
    connect(&timer, &QTimer::timeout, this, [&] { ++ticks; });
    timer.start();
    QSignalSpy finished(m_page.data(), &ImportResultPage::StitchFinished);
    QVERIFY(m_page->StartStitch(QDir(newFolder()).filePath(QStringLiteral("p.jpg"))));
    // StartStitch returned while cpfind sleeps.
    QVERIFY(m_page->IsStitching());
    QVERIFY(finished.wait(20000));
    QVERIFY2(ticks >= 10, qPrintable(QString::number(ticks)));
    QVERIFY(m_page->LastStitch().succeeded());
}

void tst_ImportResultPage::cancelEndsTheSleepingTool()
{
    const QDir out(newFolder());
    const QString pidFile = out.filePath(QStringLiteral("verdandi.pid"));
    m_tools = makeTools({ { QStringLiteral("verdandi"),
        QStringLiteral("printf partial > \"$out\"; echo $$ > '%1'; sleep 60").arg(pidFile) } });
    host()->SetToolsFolder(m_tools);
    QSignalSpy finished(m_page.data(), &ImportResultPage::StitchFinished);
    QVERIFY(m_page->StartStitch(out.filePath(QStringLiteral("p.jpg"))));
    QTRY_VERIFY_WITH_TIMEOUT(QFile(pidFile).size() > 0, 20000);
    QFile file(pidFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const qint64 pid = file.readAll().trimmed().toLongLong();
    QVERIFY(processRuns(pid));
    QVERIFY(!m_page->isComplete());

    QElapsedTimer clock;
    clock.start();
    m_page->ProgressWidget()->CancelButton()->click();
    QVERIFY(finished.wait(10000));
    QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(m_page->LastStitch().outcome, Result::Stopped);
    QTRY_VERIFY_WITH_TIMEOUT(!processRuns(pid), 3000);
    QVERIFY(!m_page->IsStitching());
    QVERIFY(m_page->isComplete());
    // Neither the panorama nor the blender's partial file is left.
    QVERIFY(out.entryList({ QStringLiteral("*.jpg") }).isEmpty());
    QCOMPARE(m_page->findChild<QLabel*>(QStringLiteral("m_lbSaved"))->text(),
        QStringLiteral("The stitch was cancelled; no panorama was written."));
}

void tst_ImportResultPage::failingStepIsNamed_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("reason");
    QTest::newRow("cpfind fails") << "cpfind"
                                  << "echo 'no features'; exit 3"
                                  << "Finding control points"
                                  << "no features";
    QTest::newRow("nona writes nothing") << "nona"
                                         << "exit 0"
                                         << "Remapping"
                                         << "nona wrote no remapped picture";
}

void tst_ImportResultPage::failingStepIsNamed()
{
    QFETCH(QString, tool);
    QFETCH(QString, script);
    QFETCH(QString, step);
    QFETCH(QString, reason);
    m_tools = makeTools({ { tool, script } });
    host()->SetToolsFolder(m_tools);
    Result result;
    QVERIFY(stitch(m_page.data(), QDir(newFolder()).filePath(QStringLiteral("p.jpg")), &result));
    QCOMPARE(result.outcome, Result::Failed);
    // One dialog, naming the step, its program and the reason, the log behind "Show details".
    const QList<QMessageBox*> boxes
        = m_page->findChildren<QMessageBox*>(QStringLiteral("m_mbError"));
    QCOMPARE(boxes.size(), 1);
    QMessageBox* box = boxes.first();
    QVERIFY(box->isVisible());
    QVERIFY2(box->text().contains(QStringLiteral("\"%1\" (%2)").arg(step, tool)),
        qPrintable(box->text()));
    QVERIFY2(box->text().contains(reason), qPrintable(box->text()));
    QVERIFY2(box->detailedText().contains(tool), qPrintable(box->detailedText()));
    box->close();
    QVERIFY(m_page->Preview()->Panorama().isEmpty());
}

void tst_ImportResultPage::missingProgramNamesItsPackage()
{
    QVERIFY(QFile::remove(QDir(m_tools).filePath(QStringLiteral("nona"))));
    QString error;
    QVERIFY(!m_page->StartStitch(QDir(newFolder()).filePath(QStringLiteral("p.jpg")), &error));
    QVERIFY2(error.contains(QStringLiteral(": nona.")), qPrintable(error));
    QVERIFY2(error.contains(QStringLiteral("hugin-tools")), qPrintable(error));
    QVERIFY(!m_page->IsStitching());
    QCOMPARE(HostSettingsDialog::PackageOf(QStringLiteral("enblend")), QStringLiteral("enblend"));
    QCOMPARE(
        HostSettingsDialog::PackageOf(QStringLiteral("cpfind")), QStringLiteral("hugin-tools"));
}

void tst_ImportResultPage::stitchDialog()
{
    SKIP_FILE_DIALOG_UNDER_THREAD_SANITIZER();
    const QString out = newFolder();
    host()->SetOutputFolder(out);
    QStringList filters;
    QString proposed;
    answerFileDialog(QStringLiteral("chosen"), [&](QFileDialog* dialog) {
        filters = dialog->nameFilters();
        proposed = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
        QCOMPARE(QDir(dialog->directory()).canonicalPath(), QDir(out).canonicalPath());
    });
    QSignalSpy finished(m_page.data(), &ImportResultPage::StitchFinished);
    m_page->findChild<QPushButton*>(QStringLiteral("m_pbStitch"))->click();
    QCOMPARE(proposed, QStringLiteral("morning.jpg"));
    QCOMPARE(filters,
        (QStringList {
            QStringLiteral("JPEG pictures (*.jpg)"), QStringLiteral("TIFF pictures (*.tif)") }));
    QVERIFY(finished.wait(20000));
    QVERIFY2(m_page->LastStitch().succeeded(), qPrintable(m_page->LastStitch().error));
    // No suffix typed: the chosen filter's.
    QCOMPARE(m_page->LastStitch().panorama, QDir(out).filePath(QStringLiteral("chosen.jpg")));
    QVERIFY(QFileInfo(QDir(out).filePath(QStringLiteral("morning.pto"))).isFile());
}

void tst_ImportResultPage::stitchDialogOffersExrForHdr()
{
    SKIP_FILE_DIALOG_UNDER_THREAD_SANITIZER();
    StructuredPanoramaProperties hdr = m_record;
    hdr.m_outputMode = 3;
    host()->ImportStructuredPanorama(hdr);
    m_page->initializePage();
    QStringList filters;
    QString proposed;
    answerFileDialog(QString(), [&](QFileDialog* dialog) {
        filters = dialog->nameFilters();
        proposed = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    });
    m_page->findChild<QPushButton*>(QStringLiteral("m_pbStitch"))->click();
    QCOMPARE(proposed, QStringLiteral("morning.exr"));
    QCOMPARE(filters.value(0), QStringLiteral("OpenEXR HDR pictures (*.exr)"));
    // Cancelled: nothing starts.
    QVERIFY(!m_page->IsStitching());
}

void tst_ImportResultPage::saveProjectDialog()
{
    SKIP_FILE_DIALOG_UNDER_THREAD_SANITIZER();
    const QString out = newFolder();
    host()->SetOutputFolder(out);
    QVERIFY(m_page->HasUnsavedImport());
    QString proposed;
    answerFileDialog(QStringLiteral("kept"), [&](QFileDialog* dialog) {
        proposed = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
        QCOMPARE(QDir(dialog->directory()).canonicalPath(), QDir(out).canonicalPath());
    });
    m_page->findChild<QPushButton*>(QStringLiteral("m_pbSaveProject"))->click();
    QCOMPARE(proposed, QStringLiteral("morning.pto"));
    // The project and its description together.
    QVERIFY(QFileInfo(QDir(out).filePath(QStringLiteral("kept.pto"))).size() > 0);
    StructuredPanoramaProperties back;
    QString error;
    QVERIFY2(DescriptionJson::read(QDir(out).filePath(QStringLiteral("kept.json")), &back, &error),
        qPrintable(error));
    QCOMPARE(back.m_stacks, m_record.m_stacks);
    QVERIFY(!m_page->HasUnsavedImport());
    QCOMPARE(QDir(host()->OutputFolder()).canonicalPath(), QDir(out).canonicalPath());
}

void tst_ImportResultPage::finishWithUnsavedWork_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("saved");
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
    QTest::newRow("save") << int(QMessageBox::Save) << true << true;
}

void tst_ImportResultPage::finishWithUnsavedWork()
{
    SKIP_FILE_DIALOG_UNDER_THREAD_SANITIZER();
    QFETCH(int, answer);
    QFETCH(bool, closes);
    QFETCH(bool, saved);
    PluginLibraryLoader loader;
    ImportWizard wizard(host(), &loader);
    wizard.show();
    wizard.ResultPage()->initializePage();
    QVERIFY(wizard.ResultPage()->HasUnsavedImport());
    const QString out = newFolder();
    host()->SetOutputFolder(out);
    QString question;
    answerMessageBox(QStringLiteral("m_mbUnsaved"), QMessageBox::StandardButton(answer), &question);
    if (saved)
        answerFileDialog(QStringLiteral("finished.pto"));
    wizard.done(QDialog::Accepted);
    QVERIFY2(question.contains(QStringLiteral("neither saved nor stitched")), qPrintable(question));
    QCOMPARE(wizard.isVisible(), !closes);
    QCOMPARE(QFileInfo(QDir(out).filePath(QStringLiteral("finished.pto"))).isFile(), saved);
    QCOMPARE(QFileInfo(QDir(out).filePath(QStringLiteral("finished.json"))).isFile(), saved);

    // Saved work closes without asking.
    if (!closes) {
        QVERIFY(wizard.ResultPage()->SaveProject(QDir(out).filePath(QStringLiteral("later.pto"))));
        wizard.done(QDialog::Accepted);
        QVERIFY(!wizard.isVisible());
    }
}

void tst_ImportResultPage::wizardLockedWhileStitching()
{
    const QDir out(newFolder());
    const QString pidFile = out.filePath(QStringLiteral("cpfind.pid"));
    host()->SetToolsFolder(makeTools(
        { { QStringLiteral("cpfind"), QStringLiteral("echo $$ > '%1'; sleep 60").arg(pidFile) } }));
    PluginLibraryLoader loader;
    ImportWizard wizard(host(), &loader);
    wizard.show();
    wizard.ResultPage()->initializePage();
    QVERIFY(wizard.ResultPage()->StartStitch(out.filePath(QStringLiteral("p.jpg"))));
    QTRY_VERIFY_WITH_TIMEOUT(QFile(pidFile).size() > 0, 20000);
    QVERIFY(!wizard.button(QWizard::CancelButton)->isEnabled());
    QVERIFY(!wizard.button(QWizard::BackButton)->isEnabled());
    QVERIFY(!wizard.ResultPage()->isComplete());
    // Neither Finish nor Cancel nor closing the window ends it.
    wizard.done(QDialog::Accepted);
    wizard.reject();
    QVERIFY(wizard.isVisible());

    QSignalSpy finished(wizard.ResultPage(), &ImportResultPage::StitchFinished);
    wizard.ResultPage()->CancelStitch();
    QVERIFY(finished.wait(10000));
    QVERIFY(wizard.button(QWizard::CancelButton)->isEnabled());
    QVERIFY(wizard.ResultPage()->isComplete());
}

void tst_ImportResultPage::windowKeepsItsSize()
{
    PluginLibraryLoader loader;
    ImportWizard wizard(host(), &loader);
    {
        HostWindow window(host(), &wizard);
        window.show();
        // The wizard sits in a scroll area: a smaller window scrolls.
        QCOMPARE(window.ScrollArea()->widget(), static_cast<QWidget*>(&wizard));
        window.resize(711, 533);
        QCOMPARE(window.size(), QSize(711, 533));
    }
    // Handed back, not deleted.
    QVERIFY(wizard.parent() == nullptr);
    HostWindow again(host(), &wizard);
    QCOMPARE(again.size(), QSize(711, 533));
    // A first start fits a 1366 × 768 screen.
    const QSize first = HostWindow::DefaultSize(QSize(1366, 738));
    QVERIFY(first.width() <= 1366 - 40 && first.height() <= 738 - 60);
}

void tst_ImportResultPage::smallScreenScrolls()
{
    // A page with the plug-in pages' 600 × 600 minimum in a window the size
    // of a 1366 × 768 screen less its panel and frame.
    PluginLibraryLoader loader;
    ImportWizard wizard(host(), &loader);
    auto* page = new QWizardPage;
    page->setMinimumSize(600, 600);
    wizard.setPage(ImportWizard::FirstPluginPageId, page);
    HostWindow window(host(), &wizard);
    window.show();
    window.resize(700, 560);
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    wizard.setStartId(ImportWizard::FirstPluginPageId);
    wizard.restart();
    QCOMPARE(wizard.currentPage(), page);
    QApplication::processEvents();
    // The page keeps its size; the window scrolls to the wizard's buttons.
    QVERIFY(page->height() >= 600);
    QScrollBar* bar = window.ScrollArea()->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QAbstractButton* next = wizard.button(QWizard::NextButton);
    window.ScrollArea()->ensureWidgetVisible(next);
    const QRect shown(next->mapTo(window.ScrollArea()->viewport(), QPoint(0, 0)), next->size());
    QVERIFY(window.ScrollArea()->viewport()->rect().contains(shown));
}

void tst_ImportResultPage::settingsDialog()
{
    host()->SetLanguage(QString());
    HostSettingsDialog dialog(host());
    auto* tools = dialog.findChild<QLineEdit*>(QStringLiteral("m_leTools"));
    auto* state = dialog.findChild<QLabel*>(QStringLiteral("m_lbTools"));
    auto* language = dialog.findChild<QComboBox*>(QStringLiteral("m_cbLanguage"));
    QCOMPARE(tools->text(), m_tools);
    QCOMPARE(state->text(), QStringLiteral("Every program the stitch needs is found."));
    QCOMPARE(language->count(), 11);
    QVERIFY(dialog.findChild<QLabel*>(QStringLiteral("m_lbLanguageNote"))
                ->text()
                .contains(QStringLiteral("next start")));
    const QString empty = newFolder();
    tools->setText(empty);
    QVERIFY2(state->text().contains(QStringLiteral("cpfind")), qPrintable(state->text()));
    QVERIFY2(state->text().contains(QStringLiteral("enblend")), qPrintable(state->text()));
    language->setCurrentIndex(language->findData(QStringLiteral("fr")));
    dialog.accept();
    QCOMPARE(host()->ToolsFolder(), empty);
    QCOMPARE(host()->Language(), QStringLiteral("fr"));
    // The language applies from the next start: the running host keeps its own.
    QCOMPARE(host()->Locale().name(), QLocale().name());
    HostApplication::instance()->SetSettingsFile(settingsPath());
    QCOMPARE(host()->Locale().name(), QStringLiteral("fr_FR"));
    host()->SetLanguage(QString());
    host()->SetSettingsFile(settingsPath());
}

void tst_ImportResultPage::hostCatalogues_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("stitch");
    QTest::addColumn<QString>("remapping");
    // The progress line while the sixth of seven steps has remapped 12 of 30 pictures.
    QTest::addColumn<QString>("counted");
    QTest::newRow("fr_FR") << "fr_FR" << QStringLiteral("Assembler le panorama...")
                           << QStringLiteral("Reprojection")
        << QStringLiteral("Étape 6 sur 7 : Reprojection : 12 sur 30");
    QTest::newRow("de") << "de" << QStringLiteral("Panorama zusammenfügen...")
                        << QStringLiteral("Umrechnen")
        << QStringLiteral("Schritt 6 von 7: Umrechnen: 12 von 30");
    QTest::newRow("es") << "es" << QStringLiteral("Coser panorama...")
                        << QStringLiteral("Reproyectando")
        << QStringLiteral("Paso 6 de 7: Reproyectando: 12 de 30");
    QTest::newRow("it") << "it" << QStringLiteral("Unisci panorama...")
                        << QStringLiteral("Riproiezione")
        << QStringLiteral("Passo 6 di 7: Riproiezione: 12 di 30");
    QTest::newRow("pl") << "pl" << QStringLiteral("Sklej panoramę...")
                        << QStringLiteral("Przekształcanie")
        << QStringLiteral("Krok 6 z 7: Przekształcanie: 12 z 30");
    QTest::newRow("ru") << "ru" << QStringLiteral("Сшить панораму...")
                        << QStringLiteral("Перепроецирование")
        << QStringLiteral("Шаг 6 из 7: Перепроецирование: 12 из 30");
    QTest::newRow("ja") << "ja" << QStringLiteral("パノラマをスティッチ...")
                        << QStringLiteral("リマップ")
        << QStringLiteral("ステップ 6/7: リマップ 12/30");
    QTest::newRow("zh_CN") << "zh_CN" << QStringLiteral("拼接全景图...")
                           << QStringLiteral("重映射")
        << QStringLiteral("第 6 步，共 7 步：重映射：第 12 张，共 30 张");
    QTest::newRow("zh_TW") << "zh_TW" << QStringLiteral("拼接全景圖...")
                           << QStringLiteral("重新映射")
        << QStringLiteral("第 6 步，共 7 步：重新映射：第 12 張，共 30 張");
    QTest::newRow("en_GB") << "en_GB" << QStringLiteral("Stitch panorama...")
                           << QStringLiteral("Remapping")
        << QStringLiteral("Step 6 of 7: Remapping 12 of 30");
}

void tst_ImportResultPage::hostCatalogues()
{
    QFETCH(QString, locale);
    QFETCH(QString, stitch);
    QFETCH(QString, remapping);
    QFETCH(QString, counted);
    host()->SetLocale(QLocale(locale));
    QVERIFY(host()->LoadHostTranslation());
    ImportResultPage page(host());
    QCOMPARE(page.findChild<QPushButton*>(QStringLiteral("m_pbStitch"))->text(), stitch);
    QCOMPARE(StitchProgressWidget::StepName(QStringLiteral("Remapping")), remapping);
    StitchProgressWidget progress;
    progress.Begin();
    StepEvent event;
    event.phase = StepEvent::Progressed;
    event.step = 6;
    event.count = 7;
    event.tool = QStringLiteral("nona");
    event.name = QStringLiteral("Remapping");
    event.done = 12;
    event.total = 30;
    progress.ShowStep(event);
    QCOMPARE(progress.StepText(), counted);
    host()->SetLocale(QLocale::c());
    QVERIFY(!host()->LoadHostTranslation());
    QCOMPARE(
        StitchProgressWidget::StepName(QStringLiteral("Remapping")), QStringLiteral("Remapping"));
}

int main(int argc, char** argv)
{
    QFile::remove(settingsPath());
    HostApplication app(argc, argv, settingsPath());
    tst_ImportResultPage test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ImportResultPage.moc"
