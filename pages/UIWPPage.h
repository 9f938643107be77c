// UIWPPage: the frame every import wizard page shares. It owns the page's
// background reading of the chosen photographs and the preview label, keeps
// the page's view of the head's record (its file, its number of shots, its yaw
// and pitch range) and of the photographs (their paths, mean focal length and
// lens), and gives the pages the steps they have in common: choosing photos,
// the Control-key shortcut to the file browser, the preview, the option
// hand-over and the hand-over of the record to the host. The concrete pages
// (UIWPMerlin, UIWPVRDrive2, UIWPClauss, UIWPGigapan) hold their converter
// and form and declare their own slots. GUI thread only.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWizard>
#include <QWizardPage>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QScrollArea;
class ReadingThread;
struct ImportOptions;
class StructuredPanoramaProperties;
class ZIApplication;
class ZIImageDef;
struct ShootData;

class UIWPPage : public QWizardPage
{
    Q_OBJECT

public:
    /// The frame only; the page builds its form and then calls the Create*
    /// steps below.
    explicit UIWPPage(QWidget* parent);
    /// The reading thread, a child, is deleted with the page without being
    /// stopped: the host deletes pages only when no reading is under way.
    ~UIWPPage() override;

    /// Every file read and as many files as the head's record has shots.
    /// Never true while no record is read.
    bool isComplete() const override;

    /// The pages keep nothing from one run of the host to the next: empty.
    QByteArray SaveState() const;

protected:
    /// The host's application object, or null when there is none.
    static ZIApplication* Host();

    /// The reading thread, a child of the page; its Loaded() reaches the page
    /// through a queued connection.
    void CreateReadingThread();
    /// m_preview, centred, becomes the widget of `area` (which deletes the
    /// widget it held).
    void CreatePreview(QScrollArea* area);
    /// A completer over the file system for the head-file line edit.
    void AttachFileCompleter(QLineEdit* edit);
    /// The initial option states: recorded location and auto detection on.
    static void SetInitialOptions(
        QCheckBox* gridOptim, QCheckBox* cleanLink, QCheckBox* autoStart, QCheckBox* noOptim);
    /// "Standard" then "Fisheye" (index = LensModel), "Fisheye" selected.
    static void FillLensTypes(QComboBox* combo);
    /// Draws the subtitle's link, written in "#DCDCDC", in the theme's text colour.
    void AdaptSubtitleColour();
    /// Sets a wizard picture from the resources; a missing picture is skipped.
    void SetPagePicture(QWizard::WizardPixmap which, const QString& path);

    /// The no-record range: (-FLT_MAX, +FLT_MAX) for yaw and pitch.
    void SetRangeUnread();
    /// The range a read starts from, narrowed shot by shot by WidenRange.
    void StartRange();
    void WidenRange(const QVector<ShootData>& shots);

    /// The empty state shared by cleanupPage and Reset: no record, no photos,
    /// the reading stopped and its list emptied, the preview cache emptied.
    void ClearFrame();

    /// With the Control (Command) key held, opens "file:///" + location in the
    /// desktop's file browser and returns true; otherwise returns false.
    static bool OpenInFileBrowser(const QString& location);

    /// The image dialog: starts at the first photo or the host's folder, sorts
    /// the choice, tells the host, makes it m_files and starts reading it.
    /// False when nothing changed (Control shortcut, cancelled dialog).
    bool ChooseImages();

    /// Opens `url`, parsed tolerantly, with the desktop's handler.
    static void OpenWebPage(const QString& url);

    /// "\"name\"; " for every path, folders left out.
    static QString ImageNames(const QStringList& files);
    /// "%1,%2" with min and max, or `unread` while the range is the no-record one.
    static QString RangeText(float min, float max, const QString& unread);
    /// "%1" with `count`, or `none` when count < 1.
    static QString CountText(int count, const QString& none);
    /// Check state Qt::Checked; a partly ticked box counts as unchecked.
    static bool IsChecked(const QCheckBox* box);

    /// "Detect links in:" and "For a stack:": a checked button gives its
    /// value; with neither checked the description keeps its value.
    static void ReadLinking(ImportOptions& options, const QRadioButton* level0,
        const QRadioButton* level1, const QRadioButton* stack0, const QRadioButton* stack1);
    /// Linking across all stack levels needs control points inside a stack.
    static void LinkAllLevels(bool en, QRadioButton* stack0, QRadioButton* stack1);
    /// Hard links inside a stack allow detection on the reference level only.
    static void LinkStacksHard(bool en, QRadioButton* level0, QRadioButton* level1);

    /// Adds `degrees` to every shot's roll, without reduction modulo 360.
    static void RotateShots(QVector<ShootData>& shots, float degrees);
    /// Negates every shot's pitch and flips the pitch range to match.
    void InvertPitch(QVector<ShootData>& shots);

    /// Empties the lists that a generator appends to, so that validating the
    /// page again hands over the same record, not a doubled one.
    static void ClearGenerated(StructuredPanoramaProperties& record);
    /// Hands a copy of `record` to the host.
    static void Import(ZIApplication* host, const StructuredPanoramaProperties& record);

    /// The preview of `shots` at `zoom` per cent. With `cached`, nothing is
    /// drawn while the reading list has as many definitions as m_images (empty
    /// m_images to force a redraw); with `byKey` the definitions are drawn in
    /// OrderKey order when their keys all differ. A layout too large to paint
    /// whole is drawn scaled (LayoutPreview::PreviewShots).
    void UpdateShotPreview(const QVector<ShootData>& shots, int zoom, bool cached, bool byKey);
    /// Shows `preview`, already zoomed.
    void ShowPreview(const QPixmap& preview);

    ReadingThread* m_readingThread = nullptr;
    /// The definitions drawn in the preview, in drawing order; not owned.
    QList<ZIImageDef*> m_images;
    QLabel* m_preview = nullptr;
    /// The head's file, as typed or chosen.
    QString m_configFile;
    /// The chosen photographs.
    QStringList m_files;
    /// Shots in the head's record; -1 while none is read.
    qint32 m_expectedImages = -1;
    /// Mean EXIF focal length of the photos read so far, millimetres; 0 when none.
    double m_imageFocal = 0.0;
    /// Lens type (LensModel value) of the last photo read.
    qint32 m_imageLens = 0;
    /// The record's range in degrees; see SetRangeUnread and StartRange.
    float m_yawMin;
    float m_yawMax;
    float m_pitchMin;
    float m_pitchMax;
};
