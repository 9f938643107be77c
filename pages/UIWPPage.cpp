// The frame shared by the import wizard pages.
#include "UIWPPage.h"

#include "ImportOptions.h"
#include "LayoutPreview.h"
#include "PagesLogging.h"
#include "ReadingThread.h"
#include "StructuredPanoramaProperties.h"
#include "ZIApplication.h"
#include "ZUI.h"
#include "ZuiPixmapHelper.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDesktopServices>
#include <QDirModel>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QUrl>

#include <algorithm>
#include <cfloat>

UIWPPage::UIWPPage(QWidget* parent) : QWizardPage(parent)
{
    SetRangeUnread();
}

UIWPPage::~UIWPPage() = default;

bool UIWPPage::isComplete() const
{
    const int files = m_files.size();
    return files == m_readingThread->ZIImageDefs().size() && files == m_expectedImages;
}

QByteArray UIWPPage::SaveState() const
{
    return QByteArray();
}

ZIApplication* UIWPPage::Host()
{
    if (!qApp)
        return nullptr;
    return static_cast<ZIApplication*>(qApp->qt_metacast("ZIApplication"));
}

void UIWPPage::CreateReadingThread()
{
    m_readingThread = new ReadingThread(this);
}

void UIWPPage::CreatePreview(QScrollArea* area)
{
    m_preview = new QLabel();
    m_preview->setAlignment(Qt::AlignCenter);
    area->setWidget(m_preview);
}

void UIWPPage::AttachFileCompleter(QLineEdit* edit)
{
    // The completer lists what the file system holds as the user types.
    // QDirModel is what it is built on; its deprecation is silenced here only.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    auto* model = new QDirModel(this);
    model->setFilter(QDir::AllEntries | QDir::NoDotAndDotDot);
    QT_WARNING_POP
    edit->setCompleter(new QCompleter(model, this));
}

void UIWPPage::SetInitialOptions(
    QCheckBox* gridOptim, QCheckBox* cleanLink, QCheckBox* autoStart, QCheckBox* noOptim)
{
    gridOptim->setCheckState(Qt::Checked);
    cleanLink->setCheckState(Qt::Unchecked);
    autoStart->setCheckState(Qt::Checked);
    noOptim->setCheckState(Qt::Unchecked);
}

void UIWPPage::FillLensTypes(QComboBox* combo)
{
    combo->addItem(tr("Standard"));
    combo->addItem(tr("Fisheye"));
    // Fisheye first: with it the generators make no links, which is the safe
    // choice until the photos or the record say otherwise.
    combo->setCurrentIndex(1);
}

void UIWPPage::AdaptSubtitleColour()
{
    const QString colour = m_preview->palette().brush(QPalette::WindowText).color().name();
    QString text = subTitle();
    text.replace(QStringLiteral("#DCDCDC"), colour, Qt::CaseSensitive);
    setSubTitle(text);
}

void UIWPPage::SetPagePicture(QWizard::WizardPixmap which, const QString& path)
{
    if (!QFile::exists(path)) {
        qCDebug(lcPages) << "page picture" << path << "is not in the resources";
        return;
    }
    setPixmap(which, ZuiPixmapHelper::CreateHighDpiPixmap(path, 255));
}

void UIWPPage::SetRangeUnread()
{
    m_yawMin = -FLT_MAX;
    m_yawMax = FLT_MAX;
    m_pitchMin = -FLT_MAX;
    m_pitchMax = FLT_MAX;
}

void UIWPPage::StartRange()
{
    m_yawMin = FLT_MAX;
    m_yawMax = -FLT_MAX;
    m_pitchMin = FLT_MAX;
    m_pitchMax = -FLT_MAX;
}

void UIWPPage::WidenRange(const QVector<ShootData>& shots)
{
    for (const ShootData& shot : shots) {
        m_yawMin = std::min(m_yawMin, shot.m_yaw);
        m_yawMax = std::max(m_yawMax, shot.m_yaw);
        m_pitchMin = std::min(m_pitchMin, shot.m_pitch);
        m_pitchMax = std::max(m_pitchMax, shot.m_pitch);
    }
}

void UIWPPage::ClearFrame()
{
    SetRangeUnread();
    m_expectedImages = -1;
    m_imageLens = 0;
    m_configFile.clear();
    m_files.clear();
    m_readingThread->Clear();
    m_images.clear();
}

bool UIWPPage::OpenInFileBrowser(const QString& location)
{
    if (!(QGuiApplication::keyboardModifiers() & Qt::ControlModifier))
        return false;
    QDesktopServices::openUrl(QUrl(QStringLiteral("file:///") + location));
    return true;
}

bool UIWPPage::ChooseImages()
{
    ZIApplication* host = Host();
    QString start = m_files.value(0);
    if (start.isEmpty() && host)
        start = host->DefaultFolder();
    if (OpenInFileBrowser(start))
        return false;
    const QString filter = tr("All Files (*.*)");
    QString selectedFilter = filter;
    QStringList chosen = QFileDialog::getOpenFileNames(
        this, tr("Select images"), start, filter, &selectedFilter, ZUI::UseSystemFileDialog());
    chosen.sort(Qt::CaseSensitive);
    if (chosen.isEmpty())
        return false;
    if (host)
        host->SetDefaultFolder(chosen.first());
    m_files = chosen;
    m_images.clear();
    m_readingThread->Start(m_files);
    return true;
}

void UIWPPage::OpenWebPage(const QString& url)
{
    QDesktopServices::openUrl(QUrl(url, QUrl::TolerantMode));
}

QString UIWPPage::ImageNames(const QStringList& files)
{
    QString text;
    for (const QString& file : files)
        text += QLatin1Char('"') + QFileInfo(file).fileName() + QStringLiteral("\"; ");
    return text;
}

QString UIWPPage::RangeText(float min, float max, const QString& unread)
{
    if (min == -FLT_MAX || max == FLT_MAX)
        return unread;
    return QStringLiteral("%1,%2").arg(double(min)).arg(double(max));
}

QString UIWPPage::CountText(int count, const QString& none)
{
    return count < 1 ? none : QStringLiteral("%1").arg(count);
}

bool UIWPPage::IsChecked(const QCheckBox* box)
{
    return box->checkState() == Qt::Checked;
}

void UIWPPage::ReadLinking(ImportOptions& options, const QRadioButton* level0,
    const QRadioButton* level1, const QRadioButton* stack0, const QRadioButton* stack1)
{
    options.levelLinking = level1->isChecked() ? 1 : level0->isChecked() ? 0 : ImportOptions::Keep;
    options.stackLinking = stack1->isChecked() ? 1 : stack0->isChecked() ? 0 : ImportOptions::Keep;
}

void UIWPPage::LinkAllLevels(bool en, QRadioButton* stack0, QRadioButton* stack1)
{
    if (!en)
        return;
    ImportOptions options;
    options.ChooseLevelLinking(1);
    stack0->setChecked(options.stackLinking == 0);
    stack1->setChecked(options.stackLinking == 1);
}

void UIWPPage::LinkStacksHard(bool en, QRadioButton* level0, QRadioButton* level1)
{
    if (!en)
        return;
    ImportOptions options;
    options.ChooseStackLinking(0);
    level0->setChecked(options.levelLinking == 0);
    level1->setChecked(options.levelLinking == 1);
}

void UIWPPage::RotateShots(QVector<ShootData>& shots, float degrees)
{
    for (ShootData& shot : shots)
        shot.m_roll += degrees;
}

void UIWPPage::InvertPitch(QVector<ShootData>& shots)
{
    for (ShootData& shot : shots)
        shot.m_pitch = -shot.m_pitch;
    const float oldMin = m_pitchMin;
    m_pitchMin = -m_pitchMax;
    m_pitchMax = -oldMin;
}

void UIWPPage::ClearGenerated(StructuredPanoramaProperties& record)
{
    record.m_stacks.clear();
    record.m_links.clear();
    record.m_yaw.clear();
    record.m_pitch.clear();
    record.m_roll.clear();
}

void UIWPPage::Import(ZIApplication* host, const StructuredPanoramaProperties& record)
{
    const StructuredPanoramaProperties copy(record);
    host->ImportStructuredPanorama(copy);
}

void UIWPPage::UpdateShotPreview(const QVector<ShootData>& shots, int zoom, bool cached, bool byKey)
{
    if (shots.isEmpty()) {
        m_preview->setPixmap(QPixmap());
        return;
    }
    const QList<ZIImageDef*> defs = m_readingThread->ZIImageDefs();
    if (cached && defs.size() == m_images.size())
        return;
    m_images = byKey ? LayoutPreview::OrderedByKey(defs) : defs;
    const QBrush background = palette().brush(QPalette::Window);
    m_preview->setPixmap(LayoutPreview::PreviewShots(
        shots, m_images, m_yawMin, m_yawMax, m_pitchMin, m_pitchMax, background, zoom));
}

void UIWPPage::ShowPreview(const QPixmap& preview)
{
    m_preview->setPixmap(preview);
}
