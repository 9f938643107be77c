// The VR Drive 2 import page.
#include "UIWPVRDrive2.h"

#include "ReadingThread.h"

UIWPVRDrive2::UIWPVRDrive2(QWidget* parent) : UIWPXmlPage(parent, Flavour::VRDrive2)
{
    m_ui.setupUi(this);
    BindForm(m_ui, &m_converter);
    ConstructPage();
    SetPagePicture(QWizard::LogoPixmap,
        QStringLiteral(":/5A656C6D-6F20-2020-2020-B662C695C918/Resources/VRDrive2.png"));
}

UIWPVRDrive2::~UIWPVRDrive2() = default;

bool UIWPVRDrive2::validatePage()
{
    ZIApplication* host = Host();
    if (!host)
        return true;
    if (!CheckBracketing())
        return false;
    ClearGenerated(m_converter);
    m_converter.generateSPP(m_files, m_readingThread->ZIImageDefs(), m_ui.m_spFocal->value(),
        LensModel(m_ui.m_cbLensType->currentIndex()));
    ImportOptions options = ReadOptions();
    options.outputMode = m_ui.m_rbOutputMode1->isChecked() ? 2 : 3;
    options.WriteTo(Head::VRDrive2, m_converter);
    Import(host, m_converter);
    return true;
}
