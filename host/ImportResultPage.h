// ImportResultPage: the import wizard's last page. Shows what the plug-in
// handed over (stacks, shots, links, focal length, lens and options), draws
// the positions and their links, and saves the description as a Hugin project
// and as JSON.
#pragma once

#include "StructuredPanoramaProperties.h"

#include <QWizardPage>

class HostApplication;
class PanoramaLayoutView;
class QLabel;
class QPushButton;
class QTextBrowser;

class ImportResultPage : public QWizardPage
{
    Q_OBJECT

public:
    explicit ImportResultPage(HostApplication* host, QWidget* parent = nullptr);

    /// Shows the host's last received description.
    void initializePage() override;

    /// The page's text for `record` (HTML): counts, lens and options.
    static QString Summary(const StructuredPanoramaProperties& record, const QString& pluginName);

    /// Writes the shown description as a Hugin project / JSON file. False
    /// with `error` set when the file cannot be written.
    bool SaveHuginProject(const QString& path, QString* error = nullptr) const;
    bool SaveJson(const QString& path, QString* error = nullptr) const;
    /// The layout picture (PNG): each stack's first photograph where it points.
    bool SaveLayoutPicture(const QString& path, QString* error = nullptr) const;

    /// The name shown as the importing plug-in.
    void SetPluginName(const QString& name) { m_pluginName = name; }
    PanoramaLayoutView* LayoutView() const { return m_view; }

private:
    void OnSaveHugin();
    void OnSaveJson();
    void OnSaveLayout();
    /// Asks for a file to save to; empty when cancelled.
    QString AskFile(const QString& caption, const QString& name, const QString& filter);

    HostApplication* m_host;
    StructuredPanoramaProperties m_record;
    bool m_hasRecord = false;
    QString m_pluginName;
    QTextBrowser* m_tbSummary = nullptr;
    PanoramaLayoutView* m_view = nullptr;
    QPushButton* m_pbSaveHugin = nullptr;
    QPushButton* m_pbSaveJson = nullptr;
    QPushButton* m_pbSaveLayout = nullptr;
    QLabel* m_lbSaved = nullptr;
};
