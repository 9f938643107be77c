// The Clauss Rodeon import page.
#include "UIWPClauss.h"

#include "BlockSignal.h"
#include "ImportOptions.h"
#include "ReadingThread.h"
#include "ZIApplication.h"
#include "ZUI.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

UIWPClauss::UIWPClauss(QWidget* parent) : UIWPPage(parent)
{
    m_ui.setupUi(this);
    CreateReadingThread();
    CreateWidgets();
    CreateConnects();
    cleanupPage();
    AdaptSubtitleColour();
    SetPagePicture(QWizard::WatermarkPixmap,
        QStringLiteral(":/5A656C6D-6F20-2020-2020-D6D081182F97/Resources/Clauss_wp.png"));
}

UIWPClauss::~UIWPClauss() = default;

void UIWPClauss::CreateWidgets()
{
    CreatePreview(m_ui.m_saPreview);
    AttachFileCompleter(m_ui.m_leConfigFile);
    SetInitialOptions(m_ui.m_GridOptim, m_ui.m_cleanLink, m_ui.m_autoStart, m_ui.m_noOptim);
}

void UIWPClauss::CreateConnects()
{
    connect(m_ui.m_pbSelectImages, SIGNAL(clicked()), this, SLOT(SelectImages()));
    connect(m_ui.m_pbSelectConfigFile, SIGNAL(clicked()), this, SLOT(SelectConfigFile()));
    connect(m_ui.m_pbReset, SIGNAL(clicked()), this, SLOT(Reset()));
    connect(m_ui.m_leConfigFile, SIGNAL(editingFinished()), this, SLOT(SetConfigFFilename()));
    connect(m_ui.m_hSlider, SIGNAL(valueChanged(int)), this, SLOT(UpdatePreview()));
    connect(m_readingThread, SIGNAL(Loaded()), this, SLOT(UpdatePreview()));
    connect(m_ui.m_pInverseCoordinates, SIGNAL(clicked()), this, SLOT(OnInverseCoordinates()));
}

void UIWPClauss::cleanupPage()
{
    ClearFrame();
    m_converter.m_shots = QVector<ShootData>();
    UpdateUI();
    emit completeChanged();
}

bool UIWPClauss::validatePage()
{
    ZIApplication* host = Host();
    if (!host)
        return true;
    ClearGenerated(m_converter);
    m_converter.generateSPP(m_files, m_readingThread->ZIImageDefs());
    ImportOptions options;
    options.autoDetection = IsChecked(m_ui.m_autoStart);
    options.skipOptimization = IsChecked(m_ui.m_noOptim);
    options.useRecordedLocation = IsChecked(m_ui.m_GridOptim);
    options.cleanWrongLinks = IsChecked(m_ui.m_cleanLink);
    options.WriteTo(Head::Clauss, m_converter);
    Import(host, m_converter);
    return true;
}

void UIWPClauss::RestoreState(const QByteArray& state)
{
    Q_UNUSED(state)
    UpdatePreview();
}

void UIWPClauss::ParseConfigFile(const QString& fileName)
{
    m_expectedImages = -1;
    if (!m_converter.parse(fileName)) {
        QMessageBox::critical(
            this, tr("Error"), tr("Error parse file:%1").arg(fileName), QMessageBox::Ok);
        return;
    }
    m_expectedImages = m_converter.m_shots.size();
    StartRange();
    WidenRange(m_converter.m_shots);
}

void UIWPClauss::BrowserWeb(const QString& _url)
{
    OpenWebPage(_url);
}

void UIWPClauss::SelectImages()
{
    if (!ChooseImages())
        return;
    UpdateUI();
    emit completeChanged();
}

void UIWPClauss::SelectConfigFile()
{
    ZIApplication* host = Host();
    if (QGuiApplication::keyboardModifiers() & Qt::ControlModifier) {
        QDesktopServices::openUrl(
            QUrl(QStringLiteral("file:///") + QFileInfo(m_configFile).absolutePath()));
        return;
    }
    QString start = m_configFile;
    if (start.isEmpty() && host)
        start = host->DefaultFolder();
    const QStringList chosen
        = QFileDialog::getOpenFileNames(this, tr("Select the preset file and/or images"), start,
            QStringLiteral("All Files (*.*)"), nullptr, ZUI::UseSystemFileDialog());

    QString script;
    QStringList photos;
    for (const QString& path : chosen) {
        if (path.endsWith(QStringLiteral(".txt"), Qt::CaseInsensitive))
            script = path;
        else
            photos << path;
    }
    if (!script.isEmpty()) {
        if (host)
            host->SetDefaultFolder(script);
        m_configFile = script;
        ParseConfigFile(m_configFile);
    }
    // The photos keep the dialog's order here.
    if (!photos.isEmpty()) {
        m_files = photos;
        m_readingThread->Start(m_files);
    }
    UpdateUI();
}

void UIWPClauss::UpdateUI()
{
    {
        const BlockSignal blocker(this);
        m_ui.m_leConfigFile->setText(m_configFile);
        m_ui.m_lbPapyLog->setText(CountText(m_expectedImages, tr("N/A")));
        m_ui.m_leImage->setText(ImageNames(m_files));
        m_ui.m_lbImageLog->setText(CountText(m_files.size(), tr("N/A")));
        m_ui.m_lbThetaMinMax->setText(RangeText(m_yawMin, m_yawMax, QStringLiteral("N/A")));
        m_ui.m_lbPhiMinMax->setText(RangeText(m_pitchMin, m_pitchMax, QStringLiteral("N/A")));
    }
    UpdatePreview();
}

void UIWPClauss::UpdatePreview()
{
    // Drawn on every call, in shooting order by key.
    UpdateShotPreview(m_converter.m_shots, m_ui.m_hSlider->value(), false, true);
    // Reached after every change of script, photos, photos read and zoom.
    emit completeChanged();
}

void UIWPClauss::OnInverseCoordinates()
{
    InvertPitch(m_converter.m_shots);
    UpdateUI();
}

void UIWPClauss::Reset()
{
    cleanupPage();
}

void UIWPClauss::SetConfigFFilename()
{
    // The error box takes the focus from the line edit, which then reports
    // editingFinished() once more: one reading per edit is enough.
    if (m_settingScript)
        return;
    m_settingScript = true;
    m_configFile = m_ui.m_leConfigFile->text();
    ParseConfigFile(m_configFile);
    UpdateUI();
    m_settingScript = false;
}
