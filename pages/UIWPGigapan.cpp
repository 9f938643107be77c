// The Gigapan import page.
#include "UIWPGigapan.h"

#include "BlockSignal.h"
#include "GigapanGrid.h"
#include "ImportOptions.h"
#include "LayoutPreview.h"
#include "ReadingThread.h"
#include "ZIApplication.h"


UIWPGigapan::UIWPGigapan(QWidget* parent) : UIWPPage(parent), m_converter(0, 0, 0, 1, 0)
{
    m_ui.setupUi(this);
    CreateReadingThread();
    CreateWidgets();
    CreateConnects();
    cleanupPage();
    AdaptSubtitleColour();
}

UIWPGigapan::~UIWPGigapan() = default;

void UIWPGigapan::CreateWidgets()
{
    CreatePreview(m_ui.m_saPreview);
}

void UIWPGigapan::CreateConnects()
{
    connect(m_ui.m_sbRow, SIGNAL(valueChanged(int)), this, SLOT(SetRow(int)));
    connect(m_ui.m_sbIgnore, SIGNAL(valueChanged(int)), this, SLOT(IgnoreNImages(int)));
    connect(m_ui.m_pbSelectImages, SIGNAL(clicked()), this, SLOT(SelectImages()));
    connect(m_ui.m_pbReset, SIGNAL(clicked()), this, SLOT(Reset()));
    connect(m_ui.m_sbBracket, SIGNAL(valueChanged(int)), this, SLOT(OnChangeBracket(int)));
    connect(m_ui.m_hSlider, SIGNAL(valueChanged(int)), this, SLOT(UpdateUI()));
    connect(m_readingThread, SIGNAL(Loaded()), this, SLOT(UpdatePreview()));
    connect(m_ui.m_rbMode0, SIGNAL(toggled(bool)), this, SLOT(OnMode0Toggled(bool)));
    connect(m_ui.m_rbMode1, SIGNAL(toggled(bool)), this, SLOT(OnMode1Toggled(bool)));
    connect(m_ui.m_rbMode2, SIGNAL(toggled(bool)), this, SLOT(OnMode2Toggled(bool)));
    connect(m_ui.m_rbMode3, SIGNAL(toggled(bool)), this, SLOT(OnMode3Toggled(bool)));
    connect(m_ui.m_rbLevelLinking1, SIGNAL(clicked(bool)), this, SLOT(OnLevelLinkingClicked(bool)));
    connect(m_ui.m_rbStackLinking0, SIGNAL(clicked(bool)), this, SLOT(OnStackLinkingClicked(bool)));
}

void UIWPGigapan::initializePage()
{
    Reset();
}

void UIWPGigapan::cleanupPage()
{
    ClearFrame();
    UpdateUI();
    emit completeChanged();
}

bool UIWPGigapan::validatePage()
{
    ZIApplication* host = Host();
    if (!host)
        return true;
    ClearGenerated(m_converter);
    m_converter.generateSPP(m_files, m_ui.m_cbIS360->isChecked());
    ImportOptions options;
    options.overlap = m_ui.m_dsbOverlapping->value();
    ReadLinking(options, m_ui.m_rbLevelLinking0, m_ui.m_rbLevelLinking1, m_ui.m_rbStackLinking0,
        m_ui.m_rbStackLinking1);
    options.autoDetection = IsChecked(m_ui.m_autoStart);
    options.skipOptimization = IsChecked(m_ui.m_noOptim);
    options.cleanWrongLinks = IsChecked(m_ui.m_cleanLink);
    options.WriteTo(Head::Gigapan, m_converter);
    Import(host, m_converter);
    return true;
}

bool UIWPGigapan::isComplete() const
{
    if (m_files.isEmpty())
        return false;
    return m_readingThread->ZIImageDefs().size() == m_files.size();
}

void UIWPGigapan::RestoreState(const QByteArray& state)
{
    Q_UNUSED(state)
    UpdatePreview();
}

void UIWPGigapan::SelectImages()
{
    if (!ChooseImages())
        return;
    m_converter.m_skipCount = 0;
    m_converter.m_stackSize = 1;
    const GigapanGrid grid = GigapanGrid::Proposed(m_files.size());
    m_converter.m_columns = grid.columns;
    m_converter.m_rows = grid.rows;
    UpdateUI();
    emit completeChanged();
}

void UIWPGigapan::UpdateUI()
{
    {
        const BlockSignal blocker(m_ui.m_leImage);
        m_ui.m_leImage->setText(ImageNames(m_files));
    }
    m_ui.m_lbImage->setText(QStringLiteral("%1 ").arg(m_files.size()) + tr("images in "));
    // Not blocked: a box whose value changes calls its slot, which stores the
    // same value and updates once more.
    m_ui.m_sbColumn->setValue(m_converter.m_columns);
    m_ui.m_sbRow->setValue(m_converter.m_rows);
    m_ui.m_sbIgnore->setValue(m_converter.m_skipCount);
    m_ui.m_sbBracket->setValue(m_converter.m_stackSize);
    UpdatePreview();
}

void UIWPGigapan::UpdatePreview()
{
    // Each grid cell shows the first photo of its stack once it is read.
    m_images = m_readingThread->ZIImageDefs();
    const int rows = m_converter.m_rows;
    const int columns = m_converter.m_columns;
    QVector<ZIImageDef*> cellImages;
    if (rows > 0 && columns > 0 && qint64(rows) * columns <= LayoutPreview::MaxGridCells) {
        const int cells = rows * columns;
        cellImages.reserve(cells);
        for (int k = 0; k < cells; ++k) {
            const qint64 photo = m_converter.m_skipCount + qint64(k) * m_converter.m_stackSize;
            const bool read = photo >= 0 && photo < m_images.size();
            cellImages << (read ? m_images[int(photo)] : nullptr);
        }
    }
    ShowPreview(LayoutPreview::PreviewGrid(rows, columns, m_converter.m_order, cellImages,
        palette().brush(QPalette::Window), m_ui.m_hSlider->value()));
    // Reached after every change of photos, photos read, grid and zoom.
    emit completeChanged();
}

void UIWPGigapan::Reset()
{
    m_files.clear();
    m_converter.m_skipCount = 0;
    m_converter.m_columns = 5;
    m_converter.m_rows = 4;
    m_converter.m_stackSize = 1;
    m_converter.m_order = 0;
    // Show the order the converter holds.
    m_ui.m_rbMode0->setChecked(true);
    m_readingThread->Clear();
    m_images.clear();
    UpdateUI();
    emit completeChanged();
}

void UIWPGigapan::ComputeColumns()
{
    // Rows and bracketing come from boxes whose minimum is 1; the converter
    // starts with 0 rows until the page is reset.
    m_converter.m_columns = GigapanGrid::Columns(m_files.size(), m_converter.m_skipCount,
        m_converter.m_stackSize, m_converter.m_rows);
}

void UIWPGigapan::IgnoreNImages(int n)
{
    m_converter.m_skipCount = n;
    ComputeColumns();
    UpdateUI();
}

void UIWPGigapan::SetRow(int r)
{
    m_converter.m_rows = r;
    ComputeColumns();
    UpdateUI();
}

void UIWPGigapan::OnChangeBracket(int b)
{
    m_converter.m_stackSize = b;
    ComputeColumns();
    UpdateUI();
}

void UIWPGigapan::SelectOrder(int order, bool on)
{
    if (m_inOrderToggle || !on)
        return;
    m_inOrderToggle = true;
    m_converter.m_order = order;
    m_images.clear();
    UpdatePreview();
    m_inOrderToggle = false;
}

void UIWPGigapan::OnMode0Toggled(bool on)
{
    SelectOrder(0, on);
}

void UIWPGigapan::OnMode1Toggled(bool on)
{
    SelectOrder(1, on);
}

void UIWPGigapan::OnMode2Toggled(bool on)
{
    SelectOrder(2, on);
}

void UIWPGigapan::OnMode3Toggled(bool on)
{
    SelectOrder(3, on);
}

void UIWPGigapan::OnMode4Toggled(bool on)
{
    SelectOrder(4, on);
}

void UIWPGigapan::OnLevelLinkingClicked(bool en)
{
    LinkAllLevels(en, m_ui.m_rbStackLinking0, m_ui.m_rbStackLinking1);
}

void UIWPGigapan::OnStackLinkingClicked(bool en)
{
    LinkStacksHard(en, m_ui.m_rbLevelLinking0, m_ui.m_rbLevelLinking1);
}
