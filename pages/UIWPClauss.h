// UIWPClauss: the wizard page of the Clauss Rodeon import. The user names the
// head's shooting script and the photographs (one dialog can choose both),
// sees how many shots the script records and the range of its horizontal
// (theta) and vertical (phi) angles, may flip the vertical axis, and validates;
// ClaussToSPP then builds one stack per photo. No focal length, lens or
// bracketing handling on this page.
#pragma once

#include "ClaussToSPP.h"
#include "UIWPPage.h"
#include "ui_UIWPClauss.h"

class UIWPClauss : public UIWPPage
{
    Q_OBJECT

public:
    explicit UIWPClauss(QWidget* parent = nullptr);
    ~UIWPClauss() override;

    void cleanupPage() override;
    /// Without a host: true, nothing imported. Otherwise ClaussToSPP's
    /// generator with the photos and their definitions, the options, and a
    /// copy of the record to the host.
    bool validatePage() override;

    /// Redraws the preview; the bytes are ignored (the page keeps no state).
    void RestoreState(const QByteArray& state);

    /// Reads the script; a failure is shown in a message box and leaves the
    /// range as it was. The widgets are refreshed by the caller.
    void ParseConfigFile(const QString& fileName);

public slots:
    void BrowserWeb(const QString& _url);
    void SelectImages();
    void SelectConfigFile();
    void UpdateUI();
    void UpdatePreview();
    void OnInverseCoordinates();
    void Reset();
    void SetConfigFFilename();

private:
    void CreateWidgets();
    void CreateConnects();

    ClaussToSPP m_converter;
    Ui::UIWPClaussClass m_ui;
    /// Set while SetConfigFFilename runs.
    bool m_settingScript = false;
};
