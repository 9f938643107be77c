// ImportWizard: the host's import wizard. First page: the choice of import
// plug-in; then the chosen plug-in's own pages; last: what was imported.
// The plug-in pages are the library's: the wizard hands them back (out of its
// widget tree) when another plug-in is chosen and when it is destroyed, so the
// library can save their state and delete them itself. While the last page
// stitches, the wizard can be neither left nor finished; an import that was
// never saved is not thrown away without asking.
#pragma once

#include <QList>
#include <QMessageBox>
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

    /// Finish and Cancel: refused while a stitch runs; with an unsaved
    /// import, asks Save / Discard / Cancel first.
    void done(int result) override;

    /// The question done() asks about an unsaved import, open while it asks;
    /// null otherwise (the tests answer it).
    QMessageBox* UnsavedQuestion() const { return m_unsavedQuestion; }
    /// Opens the host's settings.
    void ShowSettings();

    PluginChoicePage* ChoicePage() const { return m_choicePage; }
    ImportResultPage* ResultPage() const { return m_resultPage; }
    /// The pages of the chosen plug-in, as inserted.
    QList<QWizardPage*> PluginPages() const { return m_pluginPages; }

private:
    void SetPlugin(QObject* plugin);
    void OnStitching(bool running);
    void DetachPluginPages();

    HostApplication* m_host;
    PluginChoicePage* m_choicePage = nullptr;
    ImportResultPage* m_resultPage = nullptr;
    QList<QWizardPage*> m_pluginPages;
    QPointer<QObject> m_plugin;
    QPointer<QMessageBox> m_unsavedQuestion;
};
