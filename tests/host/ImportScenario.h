// ImportScenario: one import per plug-in, prepared on disk and driven through
// the host's wizard the way a user does it: choose the plug-in, press the
// page's browse button, pick the head's file and the photographs in Qt's own
// file dialog, wait for the photographs to be read, press Next. Shared by the
// end-to-end test and the screenshot program.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <functional>

class ImportWizard;
class QFileDialog;
class QWizardPage;

class ImportScenario
{
public:
    /// The plug-ins by the name their ZIAbout::Name() gives.
    static QStringList PluginNames();
    /// The plug-in's UID.
    static QString Uid(const QString& plugin);

    /// The camera the photographs say they come from.
    struct Camera
    {
        /// EXIF focal length of each photograph by its place in its import, in
        /// millimetres; 0 leaves the tag out. Photographs beyond the list: 24.
        QVector<int> focals;
        /// Crop factor of the sensor: above 1 the photographs also carry a 35
        /// mm equivalent (the focal length times the factor, rounded), and the
        /// heads' records hold that equivalent.
        double crop = 1.0;

        int FocalOf(int photo) const { return photo < focals.size() ? focals[photo] : 24; }
        int EquivalentOf(int photo) const;
    };
    Camera camera;

    /// Writes the head's file and the photographs of every plug-in's import
    /// under `folder`. False with ErrorString() on failure.
    bool Prepare(const QString& folder);
    QString ErrorString() const { return m_error; }

    /// The head's file of `plugin` (empty for Gigapan) and its photographs,
    /// in shooting order.
    QString HeadFile(const QString& plugin) const;
    QStringList Photos(const QString& plugin) const;

    /// Called with the open file dialog just before it is accepted.
    std::function<void(QFileDialog*)> onDialog;
    /// Called with the plug-in's page once every photograph is read.
    std::function<void(QWizardPage*)> onPageReady;

    /// From the wizard's first page: chooses `plugin`, goes to its page, picks
    /// the files in the dialog, waits (up to `timeoutMs`) until the page is
    /// complete and presses Next. True when the wizard reached its last page;
    /// otherwise false with ErrorString().
    bool Run(ImportWizard* wizard, const QString& plugin, int timeoutMs = 20000);

    /// Answers the next file dialog that opens: goes to `folder`, types the
    /// quoted `names` into the file name field and accepts. Must be armed
    /// before the button that opens the dialog is pressed.
    void AnswerNextFileDialog(const QString& folder, const QStringList& names);

private:
    bool WaitFor(const std::function<bool()>& condition, int timeoutMs);

    QString m_folder;
    QString m_error;
};
