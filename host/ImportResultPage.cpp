#include "ImportResultPage.h"

#include "HostApplication.h"
#include "ImageDefinition.h"
#include "PanoramaLayoutView.h"

#include "DescriptionJson.h"
#include "ExportInputBuilder.h"
#include "HuginProjectWriter.h"
#include "LayoutPicture.h"
#include "PhotoFocal.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBrowser>
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

/// What the exports draw from: the record, what the host read of each
/// photograph (read here when the host holds no definition of it), and the
/// focal length and lens the record or its photographs give.
bool exportInput(const StructuredPanoramaProperties& r, const HostApplication* host,
    ExportInput* input, QString* error)
{
    QHash<QString, const ImageDefinition*> known;
    if (host) {
        for (const ImageDefinition* def : host->ImageDefinitions())
            known.insert(def->Path(), def);
    }
    std::vector<std::unique_ptr<ImageDefinition>> readHere;
    QHash<QString, ImageInfo> images;
    QList<ZIImageDef*> photos;
    for (const QStringList& stack : r.m_stacks) {
        for (const QString& path : stack) {
            const ImageDefinition* def = known.value(path);
            if (!def) {
                readHere.emplace_back(ImageDefinition::Read(path, ImageDefinition::WithThumbnail));
                def = readHere.back().get();
                if (!def) {
                    if (error)
                        *error = ImportResultPage::tr("Cannot read %1.")
                                     .arg(QDir::toNativeSeparators(path));
                    return false;
                }
                known.insert(path, def);
            }
            images.insert(path, ImageInfo::From(path, *def));
            photos << const_cast<ImageDefinition*>(def);
        }
    }
    const PhotoFocal::Choice lens = PhotoFocal::ForDescription(r, photos);
    return ExportInputBuilder::Build(
        r, images, lens.focal, LensModel(lens.lens), input, error);
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
    m_view = new PanoramaLayoutView(this);

    m_pbSaveHugin = new QPushButton(tr("Save Hugin project..."), this);
    m_pbSaveHugin->setObjectName(QStringLiteral("m_pbSaveHugin"));
    m_pbSaveJson = new QPushButton(tr("Save JSON..."), this);
    m_pbSaveJson->setObjectName(QStringLiteral("m_pbSaveJson"));
    m_pbSaveLayout = new QPushButton(tr("Save layout picture..."), this);
    m_pbSaveLayout->setObjectName(QStringLiteral("m_pbSaveLayout"));
    m_lbSaved = new QLabel(this);
    m_lbSaved->setObjectName(QStringLiteral("m_lbSaved"));
    m_lbSaved->setWordWrap(true);
    connect(m_pbSaveHugin, &QPushButton::clicked, this, &ImportResultPage::OnSaveHugin);
    connect(m_pbSaveJson, &QPushButton::clicked, this, &ImportResultPage::OnSaveJson);
    connect(m_pbSaveLayout, &QPushButton::clicked, this, &ImportResultPage::OnSaveLayout);

    auto* top = new QHBoxLayout;
    top->addWidget(m_tbSummary, 2);
    top->addWidget(m_view, 3);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_pbSaveHugin);
    buttons->addWidget(m_pbSaveJson);
    buttons->addWidget(m_pbSaveLayout);
    buttons->addWidget(m_lbSaved, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addLayout(buttons);
}

void ImportResultPage::initializePage()
{
    m_hasRecord = m_host && m_host->HasImportedPanorama();
    m_record = m_hasRecord ? m_host->ImportedPanorama() : StructuredPanoramaProperties();
    m_lbSaved->clear();
    if (!m_hasRecord) {
        m_tbSummary->setHtml(tr("<p>The plug-in handed nothing over.</p>"));
        m_view->SetPanorama(StructuredPanoramaProperties());
    } else {
        m_tbSummary->setHtml(Summary(m_record, m_pluginName));
        m_view->SetPanorama(m_record);
    }
    for (QPushButton* button : { m_pbSaveHugin, m_pbSaveJson, m_pbSaveLayout })
        button->setEnabled(m_hasRecord);
}

QString ImportResultPage::Summary(const StructuredPanoramaProperties& r, const QString& pluginName)
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
    switch (r.m_lensModel) {
    case LensStandard:
        lens = tr("Standard");
        break;
    case LensFisheye:
        lens = tr("Fisheye");
        break;
    default:
        lens = tr("not known (%1)").arg(int(r.m_lensModel));
        break;
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
    html += row(tr("Focal length"),
        r.m_focalLength > 0.0f ? tr("%1 mm").arg(double(r.m_focalLength), 0, 'g', 6)
                               : tr("not set"));
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
            tr("%1 rows, order %2, %3 per stack%4")
                .arg(r.m_gridRows)
                .arg(r.m_gridOrder)
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

bool ImportResultPage::SaveLayoutPicture(const QString& path, QString* error) const
{
    ExportInput input;
    if (!exportInput(m_record, m_host, &input, error))
        return false;
    return LayoutPicture::write(input, path, error);
}

QString ImportResultPage::AskFile(
    const QString& caption, const QString& name, const QString& filter)
{
    const QString start = m_host ? m_host->DefaultFolder() : QDir::homePath();
    return QFileDialog::getSaveFileName(this, caption, QDir(start).filePath(name), filter, nullptr,
        m_host && !m_host->UseNativeFileDialogs() ? QFileDialog::DontUseNativeDialog
                                                  : QFileDialog::Options());
}

void ImportResultPage::OnSaveHugin()
{
    const QString path = AskFile(
        tr("Save Hugin project"), QStringLiteral("panorama.pto"), tr("Hugin projects (*.pto)"));
    if (path.isEmpty())
        return;
    QString error;
    if (SaveHuginProject(path, &error))
        m_lbSaved->setText(tr("Saved %1").arg(QDir::toNativeSeparators(path)));
    else
        QMessageBox::warning(this, tr("Save Hugin project"), error);
}

void ImportResultPage::OnSaveJson()
{
    const QString path
        = AskFile(tr("Save JSON"), QStringLiteral("panorama.json"), tr("JSON files (*.json)"));
    if (path.isEmpty())
        return;
    QString error;
    if (SaveJson(path, &error))
        m_lbSaved->setText(tr("Saved %1").arg(QDir::toNativeSeparators(path)));
    else
        QMessageBox::warning(this, tr("Save JSON"), error);
}

void ImportResultPage::OnSaveLayout()
{
    const QString path = AskFile(tr("Save layout picture"), QStringLiteral("panorama-layout.png"),
        tr("PNG pictures (*.png)"));
    if (path.isEmpty())
        return;
    QString error;
    if (SaveLayoutPicture(path, &error))
        m_lbSaved->setText(tr("Saved %1").arg(QDir::toNativeSeparators(path)));
    else
        QMessageBox::warning(this, tr("Save layout picture"), error);
}
