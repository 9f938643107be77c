// ImportResultPage: the import wizard's last page. Shows what the plug-in
// handed over (stacks, shots, links, the focal length and lens the project
// will use and where they come from, the options), draws the layout, saves
// the Hugin project with its description, and stitches the panorama with
// Hugin's programs on a worker thread, showing the progress and then the
// panorama.
#pragma once

#include "PhotoFocal.h"
#include "StitchRunner.h"
#include "StructuredPanoramaProperties.h"

#include <QWizardPage>

class HostApplication;
class PanoramaLayoutView;
class PanoramaPreview;
class QLabel;
class QPushButton;
class QTabWidget;
class QTextBrowser;
class StitchProgressWidget;

class ImportResultPage : public QWizardPage
{
    Q_OBJECT

public:
    explicit ImportResultPage(HostApplication* host, QWidget* parent = nullptr);
    ~ImportResultPage() override;

    /// Shows the host's last received description.
    void initializePage() override;
    /// False while a stitch runs: the wizard cannot be finished then.
    bool isComplete() const override;

    /// The page's text for `record` (HTML): counts, lens and options. With
    /// `used`, the focal length and lens are those the exports use, with
    /// where they come from.
    static QString Summary(const StructuredPanoramaProperties& record, const QString& pluginName,
        const PhotoFocal::Choice* used = nullptr);
    /// The Gigapan shooting order's name ("columns", "serpentine").
    static QString GridOrderName(int order);

    /// The name the project and the panorama are saved under: the head's
    /// record without its suffix ("shoot" for shoot.xml), else the
    /// photographs' folder, else "panorama".
    QString RecordName() const;

    /// Writes the shown description as a Hugin project / JSON file. False
    /// with `error` set when the file cannot be written.
    bool SaveHuginProject(const QString& path, QString* error = nullptr) const;
    bool SaveJson(const QString& path, QString* error = nullptr) const;
    /// The Hugin project at `path` and its description beside it (the same
    /// name with ".json"), which the stitch needs.
    bool SaveProject(const QString& path, QString* error = nullptr);
    /// The layout picture (PNG): each stack's first photograph where it points.
    bool SaveLayoutPicture(const QString& path, QString* error = nullptr) const;

    /// Writes the project and its description beside `panorama` under the
    /// record's name and starts stitching them into `panorama` (.jpg, .tif,
    /// or .exr for an HDR output). False with `error` when the project cannot
    /// be written, a program is missing or a stitch runs.
    bool StartStitch(const QString& panorama, QString* error = nullptr);
    bool IsStitching() const;
    void CancelStitch();
    /// The last stitch's result (outcome Failed with no step before any).
    const StitchPipeline::Result& LastStitch() const { return m_lastStitch; }

    /// An import is shown that was neither saved nor stitched.
    bool HasUnsavedImport() const { return m_hasRecord && !m_saved; }
    /// Asks where to save the project and saves it; false when cancelled or
    /// it failed (the reason shown).
    bool SaveProjectWithDialog();

    /// The name shown as the importing plug-in.
    void SetPluginName(const QString& name) { m_pluginName = name; }
    PanoramaLayoutView* LayoutView() const { return m_view; }
    StitchProgressWidget* ProgressWidget() const { return m_progress; }
    PanoramaPreview* Preview() const { return m_preview; }

signals:
    /// A stitch started (true) or ended (false).
    void StitchingChanged(bool running);
    /// A step started or ended; the progress shows it already.
    void StitchStep(const StitchPipeline::StepEvent& event);
    void StitchFinished(const StitchPipeline::Result& result);

private:
    void OnSaveLayout();
    void OnStitch();
    void OnStep(const StitchPipeline::StepEvent& event);
    void OnStitchFinished(const StitchPipeline::Result& result);
    /// Asks for a file to save to in `folder`; empty when cancelled.
    QString AskFile(const QString& caption, const QString& folder, const QString& name,
        const QString& filter, QString* selectedFilter = nullptr);
    void ShowError(const QString& title, const QString& text, const QString& details = QString());

    HostApplication* m_host;
    StructuredPanoramaProperties m_record;
    bool m_hasRecord = false;
    bool m_saved = false;
    QString m_pluginName;
    QTextBrowser* m_tbSummary = nullptr;
    QTabWidget* m_tabs = nullptr;
    PanoramaLayoutView* m_view = nullptr;
    PanoramaPreview* m_preview = nullptr;
    StitchProgressWidget* m_progress = nullptr;
    StitchRunner* m_runner = nullptr;
    StitchPipeline::Result m_lastStitch;
    QPushButton* m_pbSaveProject = nullptr;
    QPushButton* m_pbSaveLayout = nullptr;
    QPushButton* m_pbStitch = nullptr;
    QLabel* m_lbSaved = nullptr;
};
