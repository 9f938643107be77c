// Helpers of the page tests: answering the dialogs that a page opens, finding
// a page's widgets and preview, waiting for its reading, fixture folders and a
// field-by-field comparison of panorama records.
#pragma once

#include "StructuredPanoramaProperties.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QUrl>
#include <QWidget>

#include <functional>
#include <memory>

class PageTestHost;
class QAbstractButton;
class ReadingThread;

/// What a file dialog looked like when the test answered it.
struct SeenFileDialog
{
    bool seen = false;
    QString caption;
    QString directory;
    QStringList nameFilters;
    QString selectedNameFilter;
    bool nonNative = false;
    QFileDialog::FileMode fileMode = QFileDialog::AnyFile;
    QWidget* parent = nullptr;
};

/// What a message box looked like when the test answered it.
struct SeenMessageBox
{
    bool seen = false;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    Qt::WindowFlags flags;
    QWidget* parent = nullptr;
    bool modal = false;
};

/// Waits (polling the top-level windows) for a visible dialog of the class
/// `className` and hands it to `answer`, once. Create it before the click that
/// opens the dialog; it stops polling after `timeoutMs`.
class DialogAnswerer : public QObject
{
public:
    DialogAnswerer(
        const char* className, std::function<void(QWidget*)> answer, int timeoutMs = 10000);
    bool answered() const { return m_answered; }

private:
    void Poll();

    QByteArray m_className;
    std::function<void(QWidget*)> m_answer;
    QTimer m_timer;
    int m_ticksLeft;
    bool m_answered = false;
};

/// Brings the tab that holds `widget` to the front, so that it can be clicked.
void ShowTabOf(QWidget* widget);
/// Clicks `button` (on whatever tab it is) with the mouse, keys held.
void Click(QAbstractButton* button, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Clicks `button` and answers the file dialog it opens with `paths`, typed in
/// this order (an empty list cancels). Returns what the dialog showed.
SeenFileDialog ClickAndChooseFiles(QAbstractButton* button, const QStringList& paths);
/// Clicks `button` and presses Ok in the message box it opens.
SeenMessageBox ClickAndAnswerBox(QAbstractButton* button);
/// Runs `action` and presses Ok in the message box it opens.
SeenMessageBox RunAndAnswerBox(const std::function<void()>& action);

/// A page's child by object name; the test fails when it is missing.
template<class T> T* Child(QWidget* page, const char* name)
{
    return page->findChild<T*>(QString::fromLatin1(name));
}

/// The pixmap that the page's preview label shows now.
QPixmap PreviewPixmap(QWidget* page);
/// The page's reading thread.
ReadingThread* ReaderOf(QWidget* page);
/// Waits until the page's reading thread has ended with `count` definitions
/// and the queued notifications have been delivered.
bool WaitForReading(QWidget* page, int count);

/// A folder with copies of the named fixtures of data/ and empty photo
/// files; full paths of what it holds come from Path().
class FixtureFolder
{
public:
    FixtureFolder();
    bool isValid() const { return m_dir.isValid(); }
    /// Copies data/<name> into the folder; returns the copy's full path.
    QString AddFixture(const QString& name);
    /// Writes `content` into <name>; returns its full path.
    QString AddText(const QString& name, const QByteArray& content);
    /// Creates empty photo files "<stem>_01.jpg"...; returns their sorted paths.
    QStringList AddPhotos(int count, const QString& stem = QStringLiteral("photo"));
    QString Path(const QString& name) const;
    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};

/// Receives the URLs opened through QDesktopServices with `scheme` while it
/// lives, instead of the desktop.
class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    explicit UrlCatcher(const QString& scheme);
    ~UrlCatcher() override;

    QList<QUrl> urls;

public slots:
    void Open(const QUrl& url);

private:
    QString m_scheme;
};

/// While it lives, translates every text to "[context] text", so that a test
/// sees under which context each text is looked up.
class ContextTranslator : public QTranslator
{
public:
    ContextTranslator();
    ~ContextTranslator() override;

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText,
        const char* disambiguation = nullptr, int n = -1) const override;
};

/// Compares every field of two records; fails the current test on the first
/// difference.
void CompareRecords(
    const StructuredPanoramaProperties& actual, const StructuredPanoramaProperties& expected);

/// Degrees to the record's radians: double arithmetic, stored as float.
float Radians(float degrees);

/// The fixture of the page suites: before each test the host forgets what
/// the last one did (calls, records, a hidden interface, held readings) and a
/// fresh FixtureFolder becomes its default folder; after each test the page's
/// reading is waited for, then the page, the host's images and the folder go.
class PageTestBase : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

protected:
    PageTestHost* m_host = nullptr;
    std::unique_ptr<FixtureFolder> m_folder;
    /// The page of the current test, made by PageTest::NewPage.
    std::unique_ptr<QWidget> m_page;
};

/// PageTestBase for one kind of page.
template<class Page> class PageTest : public PageTestBase
{
protected:
    /// A new page, 700 x 700 and shown, owned by the fixture until cleanup.
    Page* NewPage()
    {
        auto page = std::make_unique<Page>();
        Page* shown = page.get();
        shown->resize(700, 700);
        shown->show();
        m_page = std::move(page);
        return shown;
    }
};
