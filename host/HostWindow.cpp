#include "HostWindow.h"

#include "HostApplication.h"
#include "ImportWizard.h"

#include <QCloseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

HostWindow::HostWindow(HostApplication* host, ImportWizard* wizard, QWidget* parent)
    : QWidget(parent), m_host(host), m_wizard(wizard)
{
    setObjectName(QStringLiteral("HostWindow"));
    setWindowTitle(wizard->windowTitle());
    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(QStringLiteral("m_scroll"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    // A dialog becomes an ordinary child widget inside the scroll area.
    wizard->setWindowFlags(Qt::Widget);
    m_scroll->setWidget(wizard);
    wizard->show();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_scroll);
    connect(wizard, &QWizard::finished, this, [this] {
        SaveSize();
        close();
    });

    const QSize available = screen() ? screen()->availableSize() : QSize(1366, 768);
    QSize size = host->GetSetting(QLatin1String(HostApplication::SettingsSection),
                         QLatin1String(HostApplication::WindowSizeKey), QVariant())
                     .toSize();
    if (!size.isValid())
        size = DefaultSize(available);
    resize(size.boundedTo(available));
}

HostWindow::~HostWindow()
{
    SaveSize();
    // The wizard is its owner's: out of the scroll area before it is deleted.
    if (m_scroll->widget() == m_wizard) {
        m_scroll->takeWidget();
        m_wizard->hide();
        m_wizard->setParent(nullptr);
    }
}

QSize HostWindow::DefaultSize(const QSize& available)
{
    // Room for a plug-in page's 600 × 600 with the wizard's header and
    // buttons, within the screen less a margin for the window's frame.
    const QSize wanted(900, 760);
    return wanted.boundedTo(available - QSize(40, 60)).expandedTo(QSize(480, 360));
}

void HostWindow::closeEvent(QCloseEvent* event)
{
    if (m_wizard->isVisible()) {
        // The wizard's Cancel: it may ask about an unsaved import, or refuse
        // while a stitch runs; it closes this window when it ends.
        event->ignore();
        m_wizard->reject();
        return;
    }
    SaveSize();
    event->accept();
}

void HostWindow::SaveSize()
{
    m_host->SetSetting(QLatin1String(HostApplication::SettingsSection),
        QLatin1String(HostApplication::WindowSizeKey), size());
}
