// ImportWizard: the host's import wizard. First page: the choice of import
// plug-in; then the chosen plug-in's own pages; last: what was imported.
// The plug-in pages are the library's: the wizard hands them back (out of its
// widget tree) when another plug-in is chosen and when it is destroyed, so the
// library can save their state and delete them itself.
#pragma once

#include <QList>
#include <QPointer>
#include <QWizard>

class HostApplication;
class ImportResultPage;
class PluginChoicePage;
class PluginLibraryLoader;

class ImportWizard : public QWizard
{
    Q_OBJECT

public:
    enum PageId { ChoicePageId = 0, FirstPluginPageId = 10, ResultPageId = 1000 };

    /// Settings key (section "Host") of the last chosen plug-in's UID.
    static const char* const LastPluginKey;

    ImportWizard(HostApplication* host, PluginLibraryLoader* loader, QWidget* parent = nullptr);
    ~ImportWizard() override;

    PluginChoicePage* ChoicePage() const { return m_choicePage; }
    ImportResultPage* ResultPage() const { return m_resultPage; }
    /// The pages of the chosen plug-in, as inserted.
    QList<QWizardPage*> PluginPages() const { return m_pluginPages; }

private:
    void SetPlugin(QObject* plugin);
    void DetachPluginPages();

    HostApplication* m_host;
    PluginChoicePage* m_choicePage = nullptr;
    ImportResultPage* m_resultPage = nullptr;
    QList<QWizardPage*> m_pluginPages;
    QPointer<QObject> m_plugin;
};
