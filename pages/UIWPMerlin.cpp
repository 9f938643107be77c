// The Papywizard import page.
#include "UIWPMerlin.h"

UIWPMerlin::UIWPMerlin(QWidget* parent) : UIWPXmlPage(parent, Flavour::Papywizard)
{
    m_ui.setupUi(this);
    BindForm(m_ui, &m_converter);
    m_w.m_leHeaderTitle = m_ui.m_leHeaderTitle;
    m_w.m_leHeaderGps = m_ui.m_leHeaderGps;
    m_w.m_leHeaderComment = m_ui.m_leHeaderComment;
    ConstructPage();
}

UIWPMerlin::~UIWPMerlin() = default;

void UIWPMerlin::initializePage()
{
    m_images.clear();
}

bool UIWPMerlin::validatePage()
{
    ZIApplication* host = Host();
    if (!host)
        return true;
    if (!CheckBracketing())
        return false;
    ClearGenerated(m_converter);
    m_converter.generateSPP(
        m_files, m_ui.m_spFocal->value(), LensModel(m_ui.m_cbLensType->currentIndex()));
    ReadOptions().WriteTo(Head::Papywizard, m_converter);
    Import(host, m_converter);
    return true;
}
