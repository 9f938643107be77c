// UIWPVRDrive2: the wizard page of the VR Drive 2 import. The head's XML
// preset is read with the Papywizard reader; the page is the Papywizard page
// without the header details, with an output mode (tonemapped or HDR), and
// with VRDrive2ToSPP's generator, which makes the medium exposure of every
// bracket the reference image of its stack.
#pragma once

#include "UIWPXmlPage.h"
#include "VRDrive2ToSPP.h"
#include "ui_UIWPVRDrive2.h"

class UIWPVRDrive2 : public UIWPXmlPage
{
    Q_OBJECT

public:
    explicit UIWPVRDrive2(QWidget* parent = nullptr);
    ~UIWPVRDrive2() override;

    /// Without a host: true, nothing imported. Otherwise the bracketing check
    /// (with the Papywizard page's very message), VRDrive2ToSPP::generateSPP
    /// with the photos and their definitions, the options, the output mode
    /// (2 tonemapped, otherwise 3) and a copy of the record to the host.
    bool validatePage() override;

private:
    VRDrive2ToSPP m_converter;
    Ui::UIWPVRDrive2Class m_ui;
};
