// HostWindow: the host's main window around the import wizard. The wizard
// sits in a scroll area, so a screen smaller than a page's minimum size
// (1366 × 768 with a panel) still reaches every button; the window's size is
// kept in the settings from one start to the next. Closing the window is the
// wizard's Cancel (which may ask or refuse); the wizard's end closes it.
#pragma once

#include <QWidget>

class HostApplication;
class ImportWizard;
class QScrollArea;

class HostWindow : public QWidget
{
    Q_OBJECT

public:
    /// Shows `wizard` (not owned; handed back by the destructor).
    HostWindow(HostApplication* host, ImportWizard* wizard, QWidget* parent = nullptr);
    ~HostWindow() override;

    /// The size a first start opens at, within `available` (the screen's
    /// free area).
    static QSize DefaultSize(const QSize& available);

    QScrollArea* ScrollArea() const { return m_scroll; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void SaveSize();

    HostApplication* m_host;
    ImportWizard* m_wizard;
    QScrollArea* m_scroll = nullptr;
};
