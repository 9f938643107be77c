#include "ImportResultPage.h"

#include "HostApplication.h"
#include "HostSettingsDialog.h"
#include "ImageDefinition.h"
#include "PanoramaLayoutView.h"
#include "PanoramaPreview.h"
#include "StitchProgressWidget.h"
#include "StitchRunner.h"

#include "DescriptionJson.h"
#include "ExportInputBuilder.h"
#include "HuginProjectWriter.h"
#include "LayoutPicture.h"
#include "PhotoFocal.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include <memory>
#include <vector>

namespace {

QString yesNo(bool value)
{
    return value ? ImportResultPage::tr("yes") : ImportResultPage::tr("no");
}

QString row(const QString& name, const QString& value)
{
    return QStringLiteral("<tr><td style=\"padding-right:12px\"><b>%1</b></td><td>%2</td></tr>")
        .arg(name.toHtmlEscaped(), value.toHtmlEscaped());
}

/// The photographs of `r` as the host read them (read here, into `readHere`,
/// when the host holds no definition of one). False with `error` when one
/// cannot be read.
bool photographs(const StructuredPanoramaProperties& r, const HostApplication* host,
    std::vector<std::unique_ptr<ImageDefinition>>* readHere, QHash<QString, ImageInfo>* images,
    QList<ZIImageDef*>* photos, QString* error)
{
    QHash<QString, const ImageDefinition*> known;
    if (host) {
        for (const ImageDefinition* def : host->ImageDefinitions())
            known.insert(def->Path(), def);
    }
    for (const QStringList& stack : r.m_stacks) {
        for (const QString& path : stack) {
            const ImageDefinition* def = known.value(path);
            if (!def) {
                readHere->emplace_back(ImageDefinition::Read(path, ImageDefinition::WithThumbnail));
                def = readHere->back().get();
                if (!def) {
                    if (error)
                        *error = ImportResultPage::tr("Cannot read %1.")
                                     .arg(QDir::toNativeSeparators(path));
                    return false;
                }
                known.insert(path, def);
            }
            if (images)
                images->insert(path, ImageInfo::From(path, *def));
            *photos << const_cast<ImageDefinition*>(def);
        }
    }
    return true;
}

/// What the exports draw from: the record, what the host read of each
/// photograph, and the focal length and lens the record or its photographs
/// give.
bool exportInput(const StructuredPanoramaProperties& r, const HostApplication* host,
    ExportInput* input, QString* error)
{
    std::vector<std::unique_ptr<ImageDefinition>> readHere;
    QHash<QString, ImageInfo> images;
    QList<ZIImageDef*> photos;
    if (!photographs(r, host, &readHere, &images, &photos, error))
        return false;
    const PhotoFocal::Choice lens = PhotoFocal::ForDescription(r, photos);
    return ExportInputBuilder::Build(r, images, lens.focal, LensModel(lens.lens), input, error);
}

} // namespace

ImportResultPage::ImportResultPage(HostApplication* host, QWidget* parent)
    : QWizardPage(parent), m_host(host)
{
    setObjectName(QStringLiteral("ImportResultPage"));
    setTitle(tr("Imported panorama"));
    setSubTitle(tr("What the plug-in handed over: the stacks of photographs, their positions "
                   "and the links along which control points will be looked for."));
    setFinalPage(true);

    m_tbSummary = new QTextBrowser(this);
    m_tbSummary->setObjectName(QStringLiteral("m_tbSummary"));
    m_tbSummary->setOpenLinks(false);
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("m_tabs"));
    m_view = new PanoramaLayoutView(m_tabs);
    m_preview = new PanoramaPreview(m_tabs);
    m_tabs->addTab(m_view, tr("Layout"));
    m_tabs->addTab(m_preview, tr("Panorama"));
    m_tabs->setTabEnabled(1, false);
    connect(m_preview, &PanoramaPreview::OpenRequested, this,
        [](const QUrl& url) { QDesktopServices::openUrl(url); });

    m_progress = new StitchProgressWidget(this);
    m_progress->hide();
    m_runner = new StitchRunner(this);
    connect(
        m_progress, &StitchProgressWidget::CancelRequested, this, &ImportResultPage::CancelStitch);
    connect(m_runner, &StitchRunner::Step, this, &ImportResultPage::OnStep);
    connect(m_runner, &StitchRunner::Finished, this, &ImportResultPage::OnStitchFinished);

    m_pbSaveProject = new QPushButton(tr("Save project..."), this);
    m_pbSaveProject->setObjectName(QStringLiteral("m_pbSaveProject"));
    m_pbSaveProject->setToolTip(
        tr("Saves the Hugin project and its description (.json), which the stitch needs."));
    m_pbSaveLayout = new QPushButton(tr("Save layout picture..."), this);
    m_pbSaveLayout->setObjectName(QStringLiteral("m_pbSaveLayout"));
    m_pbStitch = new QPushButton(tr("Stitch panorama..."), this);
    m_pbStitch->setObjectName(QStringLiteral("m_pbStitch"));
    m_pbStitch->setDefault(true);
    m_lbSaved = new QLabel(this);
    m_lbSaved->setObjectName(QStringLiteral("m_lbSaved"));
    m_lbSaved->setWordWrap(true);
    m_lbSaved->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(m_pbSaveProject, &QPushButton::clicked, this, &ImportResultPage::SaveProjectWithDialog);
    connect(m_pbSaveLayout, &QPushButton::clicked, this, &ImportResultPage::OnSaveLayout);
    connect(m_pbStitch, &QPushButton::clicked, this, &ImportResultPage::OnStitch);

    auto* top = new QHBoxLayout;
    top->addWidget(m_tbSummary, 2);
    top->addWidget(m_tabs, 3);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_pbSaveProject);
    buttons->addWidget(m_pbSaveLayout);
    buttons->addWidget(m_lbSaved, 1);
    buttons->addWidget(m_pbStitch);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addWidget(m_progress);
    layout->addLayout(buttons);
}

ImportResultPage::~ImportResultPage()
{
    // The runner ends a running stitch and waits for its thread.
    delete m_runner;
}

void ImportResultPage::initializePage()
{
    m_hasRecord = m_host && m_host->HasImportedPanorama();
    m_record = m_hasRecord ? m_host->ImportedPanorama() : StructuredPanoramaProperties();
    m_saved = false;
    m_lbSaved->clear();
    m_preview->Clear();
    m_tabs->setTabEnabled(1, false);
    m_tabs->setCurrentIndex(0);
    if (!m_hasRecord) {
        m_tbSummary->setHtml(tr("<p>The plug-in handed nothing over.</p>"));
        m_view->SetPanorama(StructuredPanoramaProperties());
    } else {
        std::vector<std::unique_ptr<ImageDefinition>> readHere;
        QList<ZIImageDef*> photos;
        const bool read = photographs(m_record, m_host, &readHere, nullptr, &photos, nullptr);
        const PhotoFocal::Choice used = PhotoFocal::ForDescription(m_record, photos);
        m_tbSummary->setHtml(Summary(m_record, m_pluginName, read ? &used : nullptr));
        m_view->SetPanorama(m_record);
        ExportInput input;
        if (exportInput(m_record, m_host, &input, nullptr))
            m_view->SetPicture(LayoutPicture::render(input));
    }
    for (QPushButton* button : { m_pbSaveProject, m_pbSaveLayout, m_pbStitch })
        button->setEnabled(m_hasRecord && !IsStitching());
}

bool ImportResultPage::isComplete() const
{
    return !IsStitching();
}

QString ImportResultPage::GridOrderName(int order)
{
    switch (order) {
    case 0:
        return tr("columns");
    case 1:
        return tr("rows downward");
    case 2:
        return tr("rows upward");
    case 3:
        return tr("columns to the left");
    case 4:
        return tr("serpentine");
    default:
        return tr("order %1").arg(order);
    }
}

QString ImportResultPage::RecordName() const
{
    const QString chosen = m_host ? m_host->LastChosenFile() : QString();
    bool isPhoto = false;
    for (const QStringList& stack : m_record.m_stacks) {
        for (const QString& path : stack)
            isPhoto = isPhoto || QFileInfo(path).absoluteFilePath() == chosen;
    }
    if (!chosen.isEmpty() && !isPhoto && !QFileInfo(chosen).completeBaseName().isEmpty())
        return QFileInfo(chosen).completeBaseName();
    if (!m_record.m_stacks.isEmpty() && !m_record.m_stacks.first().isEmpty()) {
        const QString folder = QFileInfo(m_record.m_stacks.first().first()).absoluteDir().dirName();
        if (!folder.isEmpty())
            return folder;
    }
    return QStringLiteral("panorama");
}

QString ImportResultPage::Summary(const StructuredPanoramaProperties& r, const QString& pluginName,
    const PhotoFocal::Choice* used)
{
    int images = 0;
    int smallest = r.m_stacks.isEmpty() ? 0 : INT_MAX;
    int largest = 0;
    for (const QStringList& stack : r.m_stacks) {
        images += stack.size();
        smallest = qMin(smallest, int(stack.size()));
        largest = qMax(largest, int(stack.size()));
    }
    QMap<int, int> byDirection;
    for (const AuthorizedLink& link : r.m_links)
        ++byDirection[link.m_direction];
    QStringList directions;
    static const char* const names[] = { QT_TR_NOOP("no direction"), QT_TR_NOOP("below"),
        QT_TR_NOOP("right"), QT_TR_NOOP("below right"), QT_TR_NOOP("above right") };
    for (auto it = byDirection.cbegin(); it != byDirection.cend(); ++it) {
        const QString name = it.key() >= 0 && it.key() <= 4 ? tr(names[it.key()])
                                                            : tr("direction %1").arg(it.key());
        directions << tr("%1 %2").arg(it.value()).arg(name);
    }

    QString lens;
    switch (used ? LensModel(used->lens) : r.m_lensModel) {
    case LensStandard:
        lens = tr("Standard");
        break;
    case LensFisheye:
        lens = tr("Fisheye");
        break;
    default:
        lens = tr("not known");
        break;
    }
    QString focal = r.m_focalLength > 0.0f ? tr("%1 mm").arg(double(r.m_focalLength), 0, 'g', 6)
                                           : tr("not set");
    if (used) {
        const QString origin
            = used->fromPhotos ? tr("from the photographs") : tr("from the record");
        focal = used->focal > 0.0
            ? tr("%1 mm (%2)").arg(used->focal, 0, 'g', 6).arg(origin)
            : tr("not known: neither the record nor the photographs give one");
        const bool lensFromRecord = r.m_lensModel == LensStandard || r.m_lensModel == LensFisheye;
        lens = tr("%1 (%2)").arg(
            lens, lensFromRecord ? tr("from the record") : tr("from the photographs"));
    }
    QString output;
    switch (r.m_outputMode) {
    case 2:
        output = tr("8-bits / 16-bits tonemapped");
        break;
    case 3:
        output = tr("32-bits HDR radiance");
        break;
    default:
        output = tr("not chosen");
        break;
    }

    QString html = QStringLiteral("<table>");
    if (!pluginName.isEmpty())
        html += row(tr("Plug-in"), pluginName);
    html += row(tr("Stacks"), QString::number(r.m_stacks.size()));
    html += row(tr("Images"),
        smallest == largest ? tr("%1 (%2 per stack)").arg(images).arg(largest)
                            : tr("%1 (%2 to %3 per stack)").arg(images).arg(smallest).arg(largest));
    html += row(tr("Shots with angles"), QString::number(r.m_yaw.size()));
    html += row(tr("Links"),
        r.m_links.isEmpty()
            ? tr("none (no restriction)")
            : tr("%1: %2").arg(r.m_links.size()).arg(directions.join(QStringLiteral(", "))));
    html += row(tr("Focal length"), focal);
    html += row(tr("Lens"), lens);
    html += row(tr("Auto detection"), yesNo(r.m_autoDetection));
    html += row(tr("For a stack"),
        r.m_stackLinking == 1 ? tr("Detect control points") : tr("Use hard links"));
    html += row(tr("Detect links in"),
        r.m_levelLinking == 1 ? tr("All stack levels") : tr("The reference level"));
    html += row(tr("Use recorded location"), yesNo(r.m_useRecordedLocation));
    html += row(tr("Skip optimization"), yesNo(r.m_skipOptimization));
    html += row(tr("Clean wrong link"), yesNo(r.m_cleanWrongLinks));
    html += row(tr("Overlap"), tr("%1 %").arg(r.m_overlap, 0, 'g', 6));
    html += row(tr("Output"), output);
    if (!r.m_useShootData)
        html += row(tr("Grid"),
            tr("%1 rows, shot by %2, %3 per stack%4")
                .arg(r.m_gridRows)
                .arg(GridOrderName(r.m_gridOrder))
                .arg(r.m_bracketCount)
                .arg(r.m_gridFlag ? tr(", full 360°") : QString()));
    html += QStringLiteral("</table>");

    // The stacks' photographs by file name, the reference first.
    constexpr int ShownStacks = 40;
    html += QStringLiteral("<p><b>%1</b></p><table>")
                .arg(tr("Stacks, reference image first").toHtmlEscaped());
    for (int k = 0; k < r.m_stacks.size() && k < ShownStacks; ++k) {
        QStringList names;
        for (const QString& path : r.m_stacks[k])
            names << QFileInfo(path).fileName();
        html += QStringLiteral("<tr><td align=\"right\" style=\"padding-right:8px\">%1</td>"
                               "<td>%2</td></tr>")
                    .arg(k)
                    .arg(names.join(QStringLiteral(", ")).toHtmlEscaped());
    }
    html += QStringLiteral("</table>");
    if (r.m_stacks.size() > ShownStacks)
        html += QStringLiteral("<p>%1</p>")
                    .arg(tr("and %1 more").arg(r.m_stacks.size() - ShownStacks));
    return html;
}

bool ImportResultPage::SaveHuginProject(const QString& path, QString* error) const
{
    ExportInput input;
    if (!exportInput(m_record, m_host, &input, error))
        return false;
    return HuginProjectWriter(input).write(path, error);
}

bool ImportResultPage::SaveJson(const QString& path, QString* error) const
{
    if (!m_hasRecord) {
        if (error)
            *error = tr("Nothing was imported.");
        return false;
    }
    return DescriptionJson::write(m_record, path, error);
}

bool ImportResultPage::SaveProject(const QString& path, QString* error)
{
    const QFileInfo info(path);
    const QString json
        = info.absoluteDir().filePath(info.completeBaseName() + QStringLiteral(".json"));
    if (!SaveHuginProject(path, error) || !SaveJson(json, error))
        return false;
    m_saved = true;
    if (m_host)
        m_host->SetOutputFolder(info.absolutePath());
    return true;
}

bool ImportResultPage::SaveLayoutPicture(const QString& path, QString* error) const
{
    ExportInput input;
    if (!exportInput(m_record, m_host, &input, error))
        return false;
    return LayoutPicture::write(input, path, error);
}

QString ImportResultPage::AskFile(const QString& caption, const QString& folder,
    const QString& name, const QString& filter, QString* selectedFilter)
{
    return QFileDialog::getSaveFileName(this, caption, QDir(folder).filePath(name), filter,
        selectedFilter,
        m_host && !m_host->UseNativeFileDialogs() ? QFileDialog::DontUseNativeDialog
                                                  : QFileDialog::Options());
}

void ImportResultPage::ShowError(const QString& title, const QString& text, const QString& details)
{
    // Window-modal and not blocking: the page's own event handling goes on.
    auto* box = new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, this);
    box->setObjectName(QStringLiteral("m_mbError"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    if (!details.isEmpty())
        box->setDetailedText(details);
    box->open();
}

bool ImportResultPage::SaveProjectWithDialog()
{
    const QString folder = m_host ? m_host->OutputFolder() : QDir::homePath();
    QString path = AskFile(tr("Save project"), folder, RecordName() + QStringLiteral(".pto"),
        tr("Hugin projects (*.pto)"));
    if (path.isEmpty())
        return false;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".pto");
    QString error;
    if (!SaveProject(path, &error)) {
        ShowError(tr("Save project"), error);
        return false;
    }
    m_lbSaved->setText(tr("Saved %1 and its description").arg(QDir::toNativeSeparators(path)));
    return true;
}

void ImportResultPage::OnSaveLayout()
{
    const QString folder = m_host ? m_host->OutputFolder() : QDir::homePath();
    const QString path = AskFile(tr("Save layout picture"), folder,
        RecordName() + QStringLiteral("-layout.png"), tr("PNG pictures (*.png)"));
    if (path.isEmpty())
        return;
    QString error;
    if (SaveLayoutPicture(path, &error))
        m_lbSaved->setText(tr("Saved %1").arg(QDir::toNativeSeparators(path)));
    else
        ShowError(tr("Save layout picture"), error);
}

bool ImportResultPage::IsStitching() const
{
    return m_runner && m_runner->IsRunning();
}

void ImportResultPage::CancelStitch()
{
    if (m_runner)
        m_runner->Cancel();
}

bool ImportResultPage::StartStitch(const QString& panorama, QString* error)
{
    auto fail = [error](const QString& text) {
        if (error)
            *error = text;
        return false;
    };
    if (IsStitching())
        return fail(tr("A stitch is running."));
    if (!m_hasRecord)
        return fail(tr("Nothing was imported."));
    const QString tools = m_host ? m_host->ToolsFolder() : QString();
    const QString missing = HostSettingsDialog::MissingProgramsText(tools);
    if (!missing.isEmpty())
        return fail(missing);
    const QFileInfo output(panorama);
    const QDir folder = output.absoluteDir();
    const QString project = folder.filePath(RecordName() + QStringLiteral(".pto"));
    QString saveError;
    if (!SaveProject(project, &saveError))
        return fail(saveError);

    StitchPipeline::Options options;
    options.project = project;
    options.output = output.absoluteFilePath();
    options.tools = tools;
    // The intermediate files go beside the panorama, in "<panorama>.stitch".
    options.workFolder
        = folder.filePath(QFileInfo(options.output).completeBaseName() + QStringLiteral(".stitch"));
    m_lastStitch = StitchPipeline::Result();
    m_preview->Clear();
    m_tabs->setTabEnabled(1, false);
    m_tabs->setCurrentIndex(0);
    m_lbSaved->setText(tr("Stitching %1").arg(QDir::toNativeSeparators(options.output)));
    m_progress->Begin();
    m_progress->show();
    for (QPushButton* button : { m_pbSaveProject, m_pbSaveLayout, m_pbStitch })
        button->setEnabled(false);
    m_runner->Start(options);
    emit completeChanged();
    emit StitchingChanged(true);
    return true;
}

void ImportResultPage::OnStitch()
{
    const bool hdr = m_record.m_outputMode == 3;
    const QString jpeg = tr("JPEG pictures (*.jpg)");
    const QString tiff = tr("TIFF pictures (*.tif)");
    const QString exr = tr("OpenEXR HDR pictures (*.exr)");
    const QStringList filters = hdr ? QStringList { exr, tiff } : QStringList { jpeg, tiff };
    QString selected = filters.first();
    const QString folder = m_host ? m_host->OutputFolder() : QDir::homePath();
    QString path = AskFile(tr("Stitch panorama"), folder,
        RecordName() + (hdr ? QStringLiteral(".exr") : QStringLiteral(".jpg")),
        filters.join(QStringLiteral(";;")), &selected);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += selected == tiff ? QStringLiteral(".tif")
            : selected == exr    ? QStringLiteral(".exr")
                                 : QStringLiteral(".jpg");
    QString error;
    if (!StartStitch(path, &error))
        ShowError(tr("Stitch panorama"), error);
}

void ImportResultPage::OnStep(const StitchPipeline::StepEvent& event)
{
    m_progress->ShowStep(event);
    emit StitchStep(event);
}

void ImportResultPage::OnStitchFinished(const StitchPipeline::Result& result)
{
    m_lastStitch = result;
    m_progress->End();
    m_progress->hide();
    for (QPushButton* button : { m_pbSaveProject, m_pbSaveLayout, m_pbStitch })
        button->setEnabled(m_hasRecord);
    const QString seconds = QString::number(double(result.elapsedMilliseconds) / 1000.0, 'f', 1);
    switch (result.outcome) {
    case StitchPipeline::Result::Succeeded:
        m_preview->SetPanorama(result.panorama, result.panoramaSize, result.stitchedProject);
        m_tabs->setTabEnabled(1, true);
        m_tabs->setCurrentIndex(1);
        m_lbSaved->setText(
            tr("Stitched %1 in %2 s").arg(QDir::toNativeSeparators(result.panorama), seconds));
        break;
    case StitchPipeline::Result::Stopped:
        m_lbSaved->setText(tr("The stitch was cancelled; no panorama was written."));
        break;
    case StitchPipeline::Result::Failed: {
        m_lbSaved->setText(tr("The stitch failed."));
        QString log;
        QFile file(result.log);
        if (!result.log.isEmpty() && file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            // The end of a long log holds the failing program's output.
            constexpr qint64 Shown = 200 * 1024;
            if (file.size() > Shown)
                file.seek(file.size() - Shown);
            log = QString::fromLocal8Bit(file.readAll());
        }
        const QString text = result.step > 0
            ? tr("The step \"%1\" (%2) failed:\n%3")
                  .arg(StitchProgressWidget::StepName(result.name), result.tool, result.error)
            : tr("The stitch could not start:\n%1").arg(result.error);
        ShowError(tr("Stitch panorama"), text, log);
        break;
    }
    }
    emit completeChanged();
    emit StitchingChanged(false);
    emit StitchFinished(result);
}
