// UIWPXmlPage: what the Papywizard page (UIWPMerlin) and the VR Drive 2 page
// (UIWPVRDrive2) share. Both read an XML record of the same shape with
// MerlinToSPP::parse, show it beside what the photographs say, take the
// focal length and lens over from the photos as they are read, preview the
// layout and rotate or flip it. Their forms name their widgets alike; a page
// binds its form and its converter with BindForm. The two pages differ only
// where the flavour says so: the range kept after a failed read, the focal
// warning's wording, the preview's cache and ordering, the header fields,
// the generator and the output mode.
#pragma once

#include "ImportOptions.h"
#include "MerlinToSPP.h"
#include "UIWPPage.h"

class QDoubleSpinBox;
class QPushButton;
class QSlider;
class QTabWidget;

class UIWPXmlPage : public UIWPPage
{
    Q_OBJECT

public:
    enum class Flavour { Papywizard, VRDrive2 };

    void cleanupPage() override;

    /// Redraws the preview; the bytes are ignored (the pages keep no state).
    void RestoreState(const QByteArray& state);

public slots:
    void BrowserWeb(const QString& _url);
    void SelectImages();
    void SelectConfigFile();
    void OnZoomChanged();
    void OnImageLoaded();
    void OnInverseCoordinates();
    void OnRotate90();
    void OnRotate270();
    void OnFLUseXML();
    void OnFLUseImage();
    void Reset();
    void SetConfigFFilename(const QString& text);
    void OnLevelLinkingClicked(bool en);
    void OnStackLinkingClicked(bool en);

protected:
    UIWPXmlPage(QWidget* parent, Flavour flavour);
    ~UIWPXmlPage() override;

    /// The widgets of the form that this class works with.
    struct Widgets
    {
        QTabWidget* tabWidget = nullptr;
        QLineEdit* m_leConfigFile = nullptr;
        QPushButton* m_pbSelectConfigFile = nullptr;
        QPushButton* m_pbReset = nullptr;
        QLabel* m_lbPapyLog = nullptr;
        QLabel* m_lbThetaMinMax = nullptr;
        QLabel* m_lbPhiMinMax = nullptr;
        QLabel* m_lbBracket = nullptr;
        QLabel* m_lbFocalLength = nullptr;
        QLineEdit* m_leImage = nullptr;
        QPushButton* m_pbSelectImages = nullptr;
        QLabel* m_lbImageLog = nullptr;
        QLabel* m_lbFocalLengthImage = nullptr;
        QLabel* m_lbWarning = nullptr;
        QPushButton* m_pInverseCoordinates = nullptr;
        QPushButton* m_pbRot270 = nullptr;
        QPushButton* m_pbRot90 = nullptr;
        QDoubleSpinBox* m_spFocal = nullptr;
        QComboBox* m_cbLensType = nullptr;
        QPushButton* m_pbFLUseXML = nullptr;
        QPushButton* m_pbFLUseImage = nullptr;
        QRadioButton* m_rbLevelLinking0 = nullptr;
        QRadioButton* m_rbLevelLinking1 = nullptr;
        QRadioButton* m_rbStackLinking0 = nullptr;
        QRadioButton* m_rbStackLinking1 = nullptr;
        QCheckBox* m_autoStart = nullptr;
        QCheckBox* m_cleanLink = nullptr;
        QCheckBox* m_noOptim = nullptr;
        QCheckBox* m_GridOptim = nullptr;
        QScrollArea* m_saPreview = nullptr;
        QSlider* m_hSlider = nullptr;
        /// Papywizard only: the record's header.
        QLineEdit* m_leHeaderTitle = nullptr;
        QLineEdit* m_leHeaderGps = nullptr;
        QLineEdit* m_leHeaderComment = nullptr;
    };

    /// Binds a generated form (after setupUi) and the page's converter.
    template<class Form> void BindForm(Form& ui, MerlinToSPP* converter)
    {
        m_record = converter;
        m_w.tabWidget = ui.tabWidget;
        m_w.m_leConfigFile = ui.m_leConfigFile;
        m_w.m_pbSelectConfigFile = ui.m_pbSelectConfigFile;
        m_w.m_pbReset = ui.m_pbReset;
        m_w.m_lbPapyLog = ui.m_lbPapyLog;
        m_w.m_lbThetaMinMax = ui.m_lbThetaMinMax;
        m_w.m_lbPhiMinMax = ui.m_lbPhiMinMax;
        m_w.m_lbBracket = ui.m_lbBracket;
        m_w.m_lbFocalLength = ui.m_lbFocalLength;
        m_w.m_leImage = ui.m_leImage;
        m_w.m_pbSelectImages = ui.m_pbSelectImages;
        m_w.m_lbImageLog = ui.m_lbImageLog;
        m_w.m_lbFocalLengthImage = ui.m_lbFocalLengthImage;
        m_w.m_lbWarning = ui.m_lbWarning;
        m_w.m_pInverseCoordinates = ui.m_pInverseCoordinates;
        m_w.m_pbRot270 = ui.m_pbRot270;
        m_w.m_pbRot90 = ui.m_pbRot90;
        m_w.m_spFocal = ui.m_spFocal;
        m_w.m_cbLensType = ui.m_cbLensType;
        m_w.m_pbFLUseXML = ui.m_pbFLUseXML;
        m_w.m_pbFLUseImage = ui.m_pbFLUseImage;
        m_w.m_rbLevelLinking0 = ui.m_rbLevelLinking0;
        m_w.m_rbLevelLinking1 = ui.m_rbLevelLinking1;
        m_w.m_rbStackLinking0 = ui.m_rbStackLinking0;
        m_w.m_rbStackLinking1 = ui.m_rbStackLinking1;
        m_w.m_autoStart = ui.m_autoStart;
        m_w.m_cleanLink = ui.m_cleanLink;
        m_w.m_noOptim = ui.m_noOptim;
        m_w.m_GridOptim = ui.m_GridOptim;
        m_w.m_saPreview = ui.m_saPreview;
        m_w.m_hSlider = ui.m_hSlider;
    }

    /// The construction steps after the form is bound: reading thread,
    /// widgets, connections, the empty state, the subtitle's link colour.
    void ConstructPage();
    void CreateWidgets();
    void CreateConnects();

    /// Reads the record at `path` into the converter, the expected count and
    /// the range; the widgets are refreshed by the caller.
    void ParseConfigFile(const QString& path);
    /// Refills the widgets from the page's state (signals blocked), then
    /// redraws the preview.
    void UpdateUI();
    void UpdatePreview();

    /// The bracketing check of validatePage: with a bracket count above 1 that
    /// does not divide the number of photos, warns and returns false;
    /// otherwise forces a count below 1 to 1 and returns true.
    bool CheckBracketing();
    /// The options as the form shows them: linking, "Skip optimization",
    /// "Use recorded location", "Auto detection", "Clean wrong link".
    ImportOptions ReadOptions() const;

    Flavour m_flavour;
    MerlinToSPP* m_record = nullptr;
    Widgets m_w;
};
