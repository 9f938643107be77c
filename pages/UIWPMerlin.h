// UIWPMerlin: the wizard page of the Papywizard import (Merlin and Orion
// heads). The user chooses the Papywizard XML record and the photographs; the
// page shows the record's header, shots, range, bracketing and focal length
// beside what the photos say, warns when they disagree, previews the layout
// and on validation hands the generated record to the host.
#pragma once

#include "MerlinToSPP.h"
#include "UIWPXmlPage.h"
#include "ui_UIWPMerlin.h"

class UIWPMerlin : public UIWPXmlPage
{
    Q_OBJECT

public:
    explicit UIWPMerlin(QWidget* parent = nullptr);
    ~UIWPMerlin() override;

    /// Empties the preview cache, so that the next update draws again.
    void initializePage() override;
    /// Without a host: true, nothing imported. Otherwise the bracketing
    /// check, MerlinToSPP::generateSPP with the photos, the focal length and
    /// the lens, the options, and a copy of the record to the host.
    bool validatePage() override;

private:
    MerlinToSPP m_converter;
    Ui::UIWPMerlinClass m_ui;
};
