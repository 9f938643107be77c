// UIWPGigapan: the wizard page of the Gigapan import. A Gigapan head leaves no
// file: the user chooses the photos, the page proposes the grid of rows and
// columns that uses them all, and the user adjusts rows, skipped photos,
// bracketing, shooting order, the 360° flag and the overlap. The preview
// draws the grid cells in shooting order with the photos read so far.
#pragma once

#include "GigapanToSPP.h"
#include "UIWPPage.h"
#include "ui_UIWPGigapan.h"

class UIWPGigapan : public UIWPPage
{
    Q_OBJECT

public:
    explicit UIWPGigapan(QWidget* parent = nullptr);
    ~UIWPGigapan() override;

    /// Every time the wizard shows the page, the photos and the grid start
    /// afresh (the steps of Reset).
    void initializePage() override;
    void cleanupPage() override;
    /// Without a host: true, nothing imported. Otherwise GigapanToSPP's
    /// generator, the overlap, the options, and a copy of the record to the host.
    bool validatePage() override;
    /// Photos chosen and every one of them read; the grid is not checked.
    bool isComplete() const override;

    /// Redraws the preview; the bytes are ignored (the page keeps no state).
    void RestoreState(const QByteArray& state);

public slots:
    void SelectImages();
    void UpdateUI();
    void UpdatePreview();
    void Reset();
    void IgnoreNImages(int n);
    void SetRow(int r);
    void OnChangeBracket(int b);
    void OnMode0Toggled(bool on);
    void OnMode1Toggled(bool on);
    void OnMode2Toggled(bool on);
    void OnMode3Toggled(bool on);
    /// No widget is connected to it; order 4 stays reachable for generation.
    void OnMode4Toggled(bool on);
    void OnLevelLinkingClicked(bool en);
    void OnStackLinkingClicked(bool en);

private:
    void CreateWidgets();
    void CreateConnects();
    /// Columns that fit the photos after the skipped ones:
    /// (photos - skipped) / bracketing / rows, in integer division.
    void ComputeColumns();
    /// The work of the order slots: a toggle to true selects `order` and redraws.
    void SelectOrder(int order, bool on);

    GigapanToSPP m_converter;
    Ui::UIWPGigapanClass m_ui;
    /// Set while an order slot runs, against the toggles it causes itself.
    bool m_inOrderToggle = false;
};
