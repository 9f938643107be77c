// The plug-in library loaded and unloaded 100 times by the host, the way the
// host program does it (PluginLibraryLoader over the built module), while a
// reading thread of the host reads a folder of 500 photographs (small JPEGs
// made at test time) over and over. In every cycle the pages are reset and
// validated before the unload. In every fifth cycle the Gigapan page is also
// given the 500 photographs through its own file dialog and validated while
// its reading thread works; every second time it is left reading when the
// library is unloaded. Run under AddressSanitizer with
// LeakSanitizer and, separately, under ThreadSanitizer.
#include "HostApplication.h"
#include "JpegFactory.h"
#include "PeakMemory.h"
#include "PluginLibraryLoader.h"
#include "ReadingThread.h"
#include "ZIImageDef.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QWizardPage>
#include <QtTest>

#include <malloc.h>
#include <memory>

namespace {

constexpr int kPhotos = 500;
constexpr int kCycles = 100;

/// Resident memory after returning freed memory to the system, kB.
qint64 residentKb()
{
    malloc_trim(0);
    return PeakMemory::field("VmRSS:");
}

} // namespace

/// Answers the file dialogs that pages open: chooses the given files and
/// accepts. Closes any message box and counts it, since none is expected.
class DialogAnswerer : public QObject
{
    Q_OBJECT

public:
    DialogAnswerer()
    {
        connect(&m_timer, &QTimer::timeout, this, &DialogAnswerer::Look);
        m_timer.start(5);
    }

    QString m_folder;
    QStringList m_names;
    int m_dialogs = 0;
    int m_messageBoxes = 0;

private slots:
    void Look()
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (!widget->isVisible())
                continue;
            if (auto* dialog = qobject_cast<QFileDialog*>(widget)) {
                ++m_dialogs;
                dialog->setDirectory(m_folder);
                QString typed;
                for (const QString& name : qAsConst(m_names))
                    typed += QLatin1Char('"') + name + QStringLiteral("\" ");
                // Typed without the dialog's completion, which is quadratic in
                // the number of names.
                if (auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
                    const QSignalBlocker blocker(edit);
                    edit->setText(typed);
                }
                static_cast<QDialog*>(dialog)->accept(); // QFileDialog hides it
            } else if (auto* box = qobject_cast<QMessageBox*>(widget)) {
                ++m_messageBoxes;
                box->done(QMessageBox::Ok);
            }
        }
    }

private:
    QTimer m_timer;
};

class tst_LoadUnload : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void loadUnloadWhileReading();
    void cleanupTestCase();

private:
    /// The host's reading thread has read the folder: count its definitions
    /// and read again. The definitions belong to the host, which releases
    /// them after every unload; this reader never looks into them.
    void HostReadingDone();
    void RunCycle(int cycle);

    QTemporaryDir m_dir;
    QStringList m_photos;
    ReadingThread m_hostReader;
    bool m_keepReading = true;
    int m_hostRounds = 0;
    int m_hostDefinitions = 0;
    DialogAnswerer m_answerer;
};

void tst_LoadUnload::initTestCase()
{
    QVERIFY(m_dir.isValid());
    for (int i = 0; i < kPhotos; ++i) {
        const QString name = QStringLiteral("IMG_%1.jpg").arg(i, 4, 10, QLatin1Char('0'));
        // Focal lengths and exposures vary, as in a bracketed panorama.
        const QByteArray jpeg
            = JpegFactory::photo(96, 64, 17.0 + (i % 3), 1.0 / (60 << (i % 3)), i);
        QFile file(m_dir.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(jpeg), qint64(jpeg.size()));
        m_photos << file.fileName();
    }
    m_answerer.m_folder = m_dir.path();
    for (const QString& path : qAsConst(m_photos))
        m_answerer.m_names << QFileInfo(path).fileName();

    connect(
        &m_hostReader, &ReadingThread::Done, this, [this] { HostReadingDone(); },
        Qt::QueuedConnection);
    m_hostReader.Start(m_photos);
}

void tst_LoadUnload::HostReadingDone()
{
    // Done() is the body's last act; the thread ends right after it.
    m_hostReader.wait();
    const QList<ZIImageDef*> defs = m_hostReader.ZIImageDefs();
    m_hostDefinitions += defs.size();
    ++m_hostRounds;
    if (m_keepReading)
        m_hostReader.Start(m_photos);
}

void tst_LoadUnload::RunCycle(int cycle)
{
    // Counts the Gigapan page's batches. It counts on the page's reading
    // thread (a direct connection), and that thread may go on emitting until
    // the library is unloaded (it is left reading in some cycles): declared
    // before the loader, the spy goes after it.
    std::unique_ptr<QSignalSpy> loaded;
    auto* host = HostApplication::instance();
    PluginLibraryLoader loader;
    QVERIFY2(loader.Load(PluginLibraryLoader::SearchFolders()), qPrintable(loader.ErrorString()));
    const QList<QPointer<QObject>> plugins = loader.Plugins(ZIPluginLibrary::ApxFull);
    QCOMPARE(plugins.size(), 4);
    const QList<QWizardPage*> pages = loader.Pages();
    QCOMPARE(pages.size(), 4);
    QWizardPage* gigapan = pages.at(1);
    QCOMPARE(gigapan->metaObject()->className(), "UIWPGigapan");

    // In every fifth cycle the Gigapan page reads the 500 photographs on its
    // own thread, and is validated while it reads. (A file dialog of 500
    // names is slow under the sanitizers: not in every cycle.)
#ifdef ZPH_THREAD_SANITIZER
    // The file dialog's model reads the folder on a thread of Qt's own, whose
    // hand-overs inside the uninstrumented Qt libraries ThreadSanitizer cannot
    // see (and whose frames have no names to suppress): no dialog here. The
    // host's reading thread still runs through every cycle.
    const bool withPhotos = false;
#else
    const bool withPhotos = cycle % 5 == 0;
#endif
    if (withPhotos) {
        QThread* pageReader = gigapan->findChild<QThread*>();
        QVERIFY(pageReader);
        loaded.reset(new QSignalSpy(pageReader, SIGNAL(Loaded())));
        const int dialogsBefore = m_answerer.m_dialogs;
        QVERIFY(QMetaObject::invokeMethod(gigapan, "SelectImages"));
        QCOMPARE(m_answerer.m_dialogs, dialogsBefore + 1);
        // Validate at different moments of the reading: after the first
        // batch, after the third.
        QTRY_VERIFY_WITH_TIMEOUT(loaded->count() >= (cycle % 10 == 0 ? 1 : 3), 60000);
        host->ClearImportedPanorama();
        QVERIFY(gigapan->validatePage());
        QVERIFY(host->HasImportedPanorama());
        QCOMPARE(host->ImportedPanorama().m_stacks.size(), kPhotos);
    }

    // Reset and validate the empty pages; every second time the Gigapan page
    // has photos, it is left reading when the library goes away.
    const bool unloadWhileReading = withPhotos && cycle % 10 == 5;
    for (QWizardPage* page : pages) {
        if (page == gigapan && unloadWhileReading)
            continue;
        QVERIFY2(QMetaObject::invokeMethod(page, "Reset"), page->metaObject()->className());
        page->initializePage();
        QVERIFY(!page->isComplete());
        host->ClearImportedPanorama();
        QVERIFY(page->validatePage());
        QVERIFY(host->HasImportedPanorama());
        QVERIFY(host->ImportedPanorama().m_stacks.isEmpty());
        page->cleanupPage();
    }
    QCOMPARE(m_answerer.m_messageBoxes, 0);

    QCoreApplication::processEvents();
    loader.Unload();
    QVERIFY(loader.Root() == nullptr);
    QCoreApplication::processEvents();
    // No page is left to use the definitions read in this cycle.
    host->ReleaseImageDefinitions();
}

void tst_LoadUnload::loadUnloadWhileReading()
{
    // The lowest resident memory of cycles 5-9 and of the last five: the
    // host's own reader holds up to a round of definitions at any moment, so
    // a single reading says more about that round than about a leak, which
    // raises the lowest reading too.
    qint64 rssAfterWarmUp = -1;
    qint64 rssAtEnd = -1;
    const auto lowest = [](qint64 sofar, qint64 now) { return sofar < 0 ? now : qMin(sofar, now); };
    for (int cycle = 0; cycle < kCycles; ++cycle) {
        RunCycle(cycle);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("cycle %1 failed").arg(cycle)));
        if (cycle >= 5 && cycle <= 9)
            rssAfterWarmUp = lowest(rssAfterWarmUp, residentKb());
        if (cycle >= kCycles - 5)
            rssAtEnd = lowest(rssAtEnd, residentKb());
    }
    // Nothing a cycle makes outlives it: 90 cycles after the first ten leave
    // the resident memory within 48 MB of where it was.
    const qint64 grownMb = (rssAtEnd - rssAfterWarmUp) / 1024;
    QVERIFY2(grownMb < PeakMemory::allowedMb(48),
        qPrintable(QStringLiteral("resident memory grew by %1 MB over 90 cycles").arg(grownMb)));
    // The host's thread kept reading all along.
    QTRY_VERIFY_WITH_TIMEOUT(m_hostRounds >= 1, 120000);
    QCOMPARE(m_hostDefinitions % kPhotos, 0);
}

void tst_LoadUnload::cleanupTestCase()
{
    m_keepReading = false;
    m_hostReader.Clear();
    HostApplication::instance()->ReleaseImageDefinitions();
}

int main(int argc, char** argv)
{
    QTemporaryDir settings;
    HostApplication app(argc, argv, settings.filePath(QStringLiteral("host.ini")));
    tst_LoadUnload test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_LoadUnload.moc"
