// The page shape shared by the Papywizard and VR Drive 2 import pages.
#include "UIWPXmlPage.h"

#include "BlockSignal.h"
#include "Bracketing.h"
#include "PhotoFocal.h"
#include "ReadingThread.h"
#include "ZIApplication.h"
#include "ZIImageDef.h"
#include "ZUI.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>

#include <algorithm>
#include <cmath>

UIWPXmlPage::UIWPXmlPage(QWidget* parent, Flavour flavour)
    : UIWPPage(parent), m_flavour(flavour) { }

UIWPXmlPage::~UIWPXmlPage() = default;

void UIWPXmlPage::ConstructPage()
{
    CreateReadingThread();
    CreateWidgets();
    CreateConnects();
    cleanupPage();
    AdaptSubtitleColour();
}

void UIWPXmlPage::CreateWidgets()
{
    CreatePreview(m_w.m_saPreview);
    AttachFileCompleter(m_w.m_leConfigFile);
    SetInitialOptions(m_w.m_GridOptim, m_w.m_cleanLink, m_w.m_autoStart, m_w.m_noOptim);
    FillLensTypes(m_w.m_cbLensType);
}

void UIWPXmlPage::CreateConnects()
{
    connect(m_w.m_pbSelectImages, SIGNAL(clicked()), this, SLOT(SelectImages()));
    connect(m_w.m_pbSelectConfigFile, SIGNAL(clicked()), this, SLOT(SelectConfigFile()));
    connect(m_w.m_pbReset, SIGNAL(clicked()), this, SLOT(Reset()));
    connect(m_w.m_leConfigFile, SIGNAL(textEdited(const QString&)), this,
        SLOT(SetConfigFFilename(const QString&)));
    connect(m_w.m_hSlider, SIGNAL(valueChanged(int)), this, SLOT(OnZoomChanged()));
    connect(m_readingThread, SIGNAL(Loaded()), this, SLOT(OnImageLoaded()));
    connect(m_w.m_pInverseCoordinates, SIGNAL(clicked()), this, SLOT(OnInverseCoordinates()));
    connect(m_w.m_pbRot90, SIGNAL(clicked()), this, SLOT(OnRotate90()));
    connect(m_w.m_pbRot270, SIGNAL(clicked()), this, SLOT(OnRotate270()));
    connect(m_w.m_rbLevelLinking1, SIGNAL(clicked(bool)), this, SLOT(OnLevelLinkingClicked(bool)));
    connect(m_w.m_rbStackLinking0, SIGNAL(clicked(bool)), this, SLOT(OnStackLinkingClicked(bool)));
    connect(m_w.m_pbFLUseXML, SIGNAL(clicked()), this, SLOT(OnFLUseXML()));
    connect(m_w.m_pbFLUseImage, SIGNAL(clicked()), this, SLOT(OnFLUseImage()));
}

void UIWPXmlPage::cleanupPage()
{
    ClearFrame();
    m_record->m_nbPicts = -1;
    m_record->m_xmlLensType = 0;
    m_record->m_shoots = QVector<ShootData>();
    UpdateUI();
    emit completeChanged();
}

void UIWPXmlPage::RestoreState(const QByteArray& state)
{
    Q_UNUSED(state)
    UpdatePreview();
}

void UIWPXmlPage::BrowserWeb(const QString& _url)
{
    OpenWebPage(_url);
}

void UIWPXmlPage::SelectImages()
{
    if (!ChooseImages())
        return;
    UpdateUI();
    emit completeChanged();
}

void UIWPXmlPage::SelectConfigFile()
{
    ZIApplication* host = Host();
    QString start = m_configFile;
    if (start.isEmpty() && host)
        start = host->DefaultFolder();
    if (OpenInFileBrowser(start))
        return;
    QString selectedFilter = tr("All Files (*.*)");
    const QStringList chosen
        = QFileDialog::getOpenFileNames(this, tr("Select the preset file and/or images"), start,
            tr("All Files (*.*);;XML files (*.xml)"), &selectedFilter, ZUI::UseSystemFileDialog());

    QString head = start;
    QStringList images;
    for (const QString& path : chosen) {
        if (path.endsWith(QStringLiteral(".xml"), Qt::CaseInsensitive))
            head = path;
        else
            images << path;
    }
    images.sort(Qt::CaseSensitive);
    // Also after a cancelled dialog: the current record is read again.
    if (host)
        host->SetDefaultFolder(head);
    m_configFile = head;
    ParseConfigFile(m_configFile);
    if (!images.isEmpty()) {
        m_files = images;
        m_images.clear();
        m_readingThread->Start(m_files);
    }
    UpdateUI();
    emit completeChanged();
}

void UIWPXmlPage::OnZoomChanged()
{
    m_images.clear();
    UpdatePreview();
    emit completeChanged();
}

void UIWPXmlPage::OnImageLoaded()
{
    const QList<ZIImageDef*> defs = m_readingThread->ZIImageDefs();
    m_imageFocal = PhotoFocal::MeanOverAll(defs);
    m_imageLens = PhotoFocal::LastLens(defs, m_imageLens);

    // Once the photos tell a focal length, it and their lens replace whatever
    // the record or the user said.
    const PhotoFocal::Choice preset = PhotoFocal::Preset(
        m_imageFocal, m_imageLens, m_record->m_xmlFocal, m_record->m_xmlLensType);
    if (preset.focal > 0) {
        m_w.m_spFocal->setValue(preset.focal);
        m_w.m_cbLensType->setCurrentIndex(preset.lens);
    }
    UpdateUI();
    emit completeChanged();
}

void UIWPXmlPage::OnInverseCoordinates()
{
    InvertPitch(m_record->m_shoots);
    m_images.clear();
    UpdateUI();
    emit completeChanged();
}

void UIWPXmlPage::OnRotate90()
{
    RotateShots(m_record->m_shoots, 90.0f);
    m_images.clear();
    UpdateUI();
    emit completeChanged();
}

void UIWPXmlPage::OnRotate270()
{
    RotateShots(m_record->m_shoots, -90.0f);
    m_images.clear();
    UpdateUI();
    emit completeChanged();
}

void UIWPXmlPage::OnFLUseXML()
{
    m_w.m_spFocal->setValue(m_record->m_xmlFocal);
    m_w.m_cbLensType->setCurrentIndex(m_record->m_xmlLensType);
    m_images.clear();
    UpdatePreview();
}

void UIWPXmlPage::OnFLUseImage()
{
    m_w.m_spFocal->setValue(m_imageFocal);
    m_w.m_cbLensType->setCurrentIndex(m_imageLens);
    m_images.clear();
    UpdatePreview();
}

void UIWPXmlPage::Reset()
{
    // Set before the empty state is shown, so that the labels show it too.
    m_record->m_xmlFocal = -1.0;
    m_imageFocal = 0.0;
    cleanupPage();
}

void UIWPXmlPage::SetConfigFFilename(const QString& text)
{
    // Every keystroke reads the record again.
    m_configFile = text;
    ParseConfigFile(m_configFile);
    UpdateUI();
    emit completeChanged();
}

void UIWPXmlPage::OnLevelLinkingClicked(bool en)
{
    LinkAllLevels(en, m_w.m_rbStackLinking0, m_w.m_rbStackLinking1);
}

void UIWPXmlPage::OnStackLinkingClicked(bool en)
{
    LinkStacksHard(en, m_w.m_rbLevelLinking0, m_w.m_rbLevelLinking1);
}

void UIWPXmlPage::ParseConfigFile(const QString& path)
{
    m_expectedImages = -1;
    // A Papywizard record that cannot be read leaves the range at the values a
    // read starts from; a VR Drive 2 preset leaves the range it had.
    if (m_flavour == Flavour::Papywizard)
        StartRange();
    if (!m_record->parse(path))
        return;
    m_expectedImages = m_record->m_shoots.size();
    if (m_w.m_leHeaderTitle) {
        m_w.m_leHeaderTitle->setText(m_record->m_title);
        m_w.m_leHeaderGps->setText(m_record->m_gps);
        m_w.m_leHeaderComment->setText(m_record->m_comment);
    }
    m_w.m_leConfigFile->setToolTip(
        QStringLiteral("%1\n%2\n%3").arg(m_record->m_title, m_record->m_gps, m_record->m_comment));
    if (m_flavour == Flavour::VRDrive2)
        StartRange();
    WidenRange(m_record->m_shoots);
}

void UIWPXmlPage::UpdateUI()
{
    {
        const BlockSignal blocker(this);
        // Only when it differs, so that typing keeps the cursor where it is.
        if (m_w.m_leConfigFile->text() != m_configFile)
            m_w.m_leConfigFile->setText(m_configFile);
        m_w.m_lbPapyLog->setText(CountText(m_expectedImages, tr("N/A")));
        m_w.m_leImage->setText(ImageNames(m_files));
        m_w.m_lbImageLog->setText(CountText(m_files.size(), tr("N/A")));
        // The yaw label's "N/A" is not translated, the pitch label's is.
        m_w.m_lbThetaMinMax->setText(RangeText(m_yawMin, m_yawMax, QStringLiteral("N/A")));
        m_w.m_lbPhiMinMax->setText(RangeText(m_pitchMin, m_pitchMax, tr("N/A")));
        m_w.m_lbBracket->setText(
            m_record->m_nbPicts == -1 ? tr("N/A") : QStringLiteral("%1").arg(m_record->m_nbPicts));

        const double xmlFocal = m_record->m_xmlFocal;
        const bool noXmlFocal = xmlFocal == -1.0;
        m_w.m_lbFocalLength->setText(
            noXmlFocal ? tr("N/A") : QStringLiteral("%1mm").arg(xmlFocal, 0, 'f', 2));
        m_w.m_pbFLUseXML->setEnabled(!noXmlFocal);
        const bool noImageFocal = m_imageFocal <= 0;
        m_w.m_lbFocalLengthImage->setText(
            noImageFocal ? tr("N/A") : QStringLiteral("%1mm").arg(m_imageFocal, 0, 'f', 2));
        m_w.m_pbFLUseImage->setEnabled(!noImageFocal);

        // Only the last warning that applies is shown.
        QString warning;
        const int files = m_files.size();
        if (m_expectedImages >= 1 && files > 0) {
            if (!Bracketing::Fits(files, m_record->m_nbPicts))
                warning = tr("Bracketing used in XML, should be multiple of that number");
            if (m_expectedImages != files)
                warning = tr("Not the same as in XML fil");
            if (m_imageFocal > 0 && !noXmlFocal
                && std::fabs(m_imageFocal - xmlFocal) * 10 > m_imageFocal)
                warning = m_flavour == Flavour::Papywizard
                    ? tr("Focal Length difference between EXIF and XML")
                    : tr("Focal length difference between EXIF and XML");
            if (m_imageLens != m_record->m_xmlLensType)
                warning = tr("Lens type difference between EXIF and XML");
        }
        m_w.m_lbWarning->setText(
            QStringLiteral("<p style='color:red'>") + warning + QStringLiteral("</p>"));
    }
    UpdatePreview();
}

void UIWPXmlPage::UpdatePreview()
{
    // Papywizard: drawn again only when new photos have been read, in shooting
    // order by key. VR Drive 2: drawn every time, in reading order.
    const bool papywizard = m_flavour == Flavour::Papywizard;
    UpdateShotPreview(m_record->m_shoots, m_w.m_hSlider->value(), papywizard, papywizard);
}

bool UIWPXmlPage::CheckBracketing()
{
    const int bracket = m_record->m_nbPicts;
    if (!Bracketing::Fits(m_files.size(), bracket)) {
        QMessageBox box(QMessageBox::Warning, tr("Warning"),
            tr("Papywizard XML has bracketing and the number of images isn't a "
               "multiple of this number of brackets."),
            QMessageBox::Ok, nullptr, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
        box.exec();
        return false;
    }
    m_record->m_nbPicts = Bracketing::Normalised(bracket);
    return true;
}

ImportOptions UIWPXmlPage::ReadOptions() const
{
    ImportOptions options;
    ReadLinking(options, m_w.m_rbLevelLinking0, m_w.m_rbLevelLinking1, m_w.m_rbStackLinking0,
        m_w.m_rbStackLinking1);
    options.skipOptimization = IsChecked(m_w.m_noOptim);
    options.useRecordedLocation = IsChecked(m_w.m_GridOptim);
    options.autoDetection = IsChecked(m_w.m_autoStart);
    options.cleanWrongLinks = IsChecked(m_w.m_cleanLink);
    return options;
}
