// A whole import, as a host runs it: the library loaded from the build, the
// plug-ins from Plugins, a page shown in the host's wizard, the files chosen
// in the page's dialog, the photographs read by the host on the page's
// thread, validation, and the record handed to the host.

#include "PluginTestSupport.h"

#include <QAbstractButton>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QWizard>
#include <QWizardPage>

#include <cstring>
#include <memory>

namespace {

/// Answers the next modal file dialog by typing `names` (files in `folder`)
/// and accepting, as a user would.
class FileDialogAnswer : public QObject
{
public:
    FileDialogAnswer(const QString& folder, const QStringList& names)
        : m_folder(folder), m_names(names)
    {
        connect(&m_timer, &QTimer::timeout, this, &FileDialogAnswer::Poll);
        m_timer.start(10);
    }

    bool m_answered = false;
    /// Whether the dialog was Qt's own rather than the system's.
    bool m_qtDialog = false;

private:
    void Poll()
    {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        m_timer.stop();
        m_qtDialog = dialog->testOption(QFileDialog::DontUseNativeDialog);
        dialog->setDirectory(m_folder);
        QStringList quoted;
        for (const QString& name : m_names)
            quoted.append(QLatin1Char('"') + name + QLatin1Char('"'));
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (edit)
            edit->setText(quoted.join(QLatin1Char(' ')));
        // QFileDialog::accept checks the typed names, as the Open button does.
        static_cast<QDialog*>(dialog)->accept();
        m_answered = edit != nullptr;
    }

    QString m_folder;
    QStringList m_names;
    QTimer m_timer;
};

quint32 Bits(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/// Degrees as a head records them (float) to the record's radians.
float Radians(float degrees)
{
    return float(double(degrees) * 3.141592653589793 / 180.0);
}

QList<QPair<int, QVector<int>>> Links(const StructuredPanoramaProperties& record)
{
    QList<QPair<int, QVector<int>>> links;
    for (const AuthorizedLink& link : record.m_links)
        links.append(qMakePair(link.m_direction, link.m_stackIndices));
    return links;
}

} // namespace

class tst_PluginImport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void gigapanGrid();
    void papywizardRecord();

private:
    /// The page of the plug-in `className` among Plugins(1), shown as the
    /// only page of a fresh host wizard.
    QWizardPage* ShowPage(const char* className);
    /// Empty files with these names in the temporary folder.
    bool MakeFiles(const QStringList& names);
    /// Waits until the page's thread has read every photograph and the page
    /// has taken in the last progress signal, as the Finish button shows.
    bool WaitForReading(QWizardPage* page);
    /// Clicks the page's button `buttonName` and answers its dialog.
    /// `qtDialog` tells whether the dialog was Qt's own.
    bool ChooseFiles(
        QWizardPage* page, const char* buttonName, const QStringList& names, bool* qtDialog);

    QPluginLoader m_loader;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QWizard> m_wizard;
};

void tst_PluginImport::initTestCase()
{
    m_loader.setFileName(PluginFile());
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
}

void tst_PluginImport::init()
{
    Host()->Reset();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    Host()->SetFolder(m_folder->path());
}

void tst_PluginImport::cleanup()
{
    // The host takes its page back out of the wizard, waits for the page's
    // reading to end, and deletes the root object, which saves the state.
    if (m_wizard) {
        for (int id : m_wizard->pageIds()) {
            QWizardPage* page = m_wizard->page(id);
            m_wizard->removePage(id);
            page->setParent(nullptr);
            for (QThread* thread : page->findChildren<QThread*>())
                QVERIFY(thread->wait(10000));
        }
        m_wizard.reset();
    }
    delete m_loader.instance();
    m_folder.reset();
}

void tst_PluginImport::cleanupTestCase()
{
    QVERIFY(m_loader.unload());
}

QWizardPage* tst_PluginImport::ShowPage(const char* className)
{
    auto* catalogue = qobject_cast<ZIPluginLibrary*>(m_loader.instance());
    if (!catalogue)
        return nullptr;
    QWizardPage* page = nullptr;
    for (const QPointer<QObject>& plugin : catalogue->Plugins(Apx(1))) {
        if (qstrcmp(plugin->metaObject()->className(), className) == 0)
            page = qobject_cast<ZIPluginImport*>(plugin)->WizardPages().value(0);
    }
    if (!page)
        return nullptr;
    m_wizard = std::make_unique<QWizard>();
    m_wizard->addPage(page);
    m_wizard->show();
    return m_wizard->currentPage() == page ? page : nullptr;
}

bool tst_PluginImport::MakeFiles(const QStringList& names)
{
    for (const QString& name : names) {
        QFile file(QDir(m_folder->path()).filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            return false;
    }
    return true;
}

bool tst_PluginImport::WaitForReading(QWizardPage* page)
{
    QElapsedTimer clock;
    clock.start();
    while (!page->isComplete() && clock.elapsed() < 10000)
        QTest::qWait(5);
    for (QThread* thread : page->findChildren<QThread*>()) {
        if (!thread->wait(10000))
            return false;
    }
    QCoreApplication::sendPostedEvents();
    return page->isComplete() && m_wizard->button(QWizard::FinishButton)->isEnabled();
}

bool tst_PluginImport::ChooseFiles(
    QWizardPage* page, const char* buttonName, const QStringList& names, bool* qtDialog)
{
    auto* button = page->findChild<QAbstractButton*>(QLatin1String(buttonName));
    if (!button)
        return false;
    FileDialogAnswer answer(m_folder->path(), names);
    button->click();
    *qtDialog = answer.m_qtDialog;
    return answer.m_answered;
}

void tst_PluginImport::gigapanGrid()
{
    QWizardPage* page = ShowPage("ZGigapanImport");
    QVERIFY(page);
    QCOMPARE(page->metaObject()->className(), "UIWPGigapan");
    QVERIFY(!page->isComplete());

    QStringList names;
    for (int i = 1; i <= 6; ++i)
        names.append(QStringLiteral("grid_%1.jpg").arg(i));
    QVERIFY(MakeFiles(names));
    // The host's UI settings, passed on by the library, choose Qt's dialog.
    Host()->SetSystemFileDialog(false);
    bool qtDialog = false;
    QVERIFY(ChooseFiles(page, "m_pbSelectImages", names, &qtDialog));
    QVERIFY(qtDialog);
    const QDir folder(m_folder->path());
    QCOMPARE(Host()->CallsStartingWith(QStringLiteral("SetDefaultFolder(")),
        QStringList { QStringLiteral("SetDefaultFolder(%1)").arg(folder.filePath(names.first())) });

    // The host reads the six photographs on the page's thread.
    QVERIFY(WaitForReading(page));

    // Finishing the wizard validates the page, which hands over the record.
    m_wizard->accept();
    QCOMPARE(m_wizard->result(), int(QDialog::Accepted));
    QCOMPARE(Host()->Imports().size(), 1);
    const StructuredPanoramaProperties record = Host()->Imports().at(0);

    // Six photographs make a grid of 2 rows and 3 columns, shot column by
    // column: one stack per photograph, in shooting order.
    QCOMPARE(record.m_stacks.size(), 6);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(record.m_stacks.at(i), QStringList { folder.filePath(names.at(i)) });
    QCOMPARE(record.m_gridRows, 2);
    QCOMPARE(record.m_gridOrder, 0);
    QCOMPARE(record.m_bracketCount, 1);
    QCOMPARE(record.m_gridFlag, false);
    QCOMPARE(record.m_overlap, 40.0);
    const QList<QPair<int, QVector<int>>> expected {
        { 1, { 0, 1 } },
        { 2, { 0, 2 } },
        { 4, { 1, 2 } },
        { 3, { 0, 3 } },
        { 1, { 2, 3 } },
        { 2, { 2, 4 } },
        { 4, { 3, 4 } },
        { 3, { 2, 5 } },
        { 1, { 4, 5 } },
        { 2, { 1, 3 } },
        { 2, { 3, 5 } },
    };
    QCOMPARE(Links(record), expected);
    QCOMPARE(record.m_levelLinking, 0);
    QCOMPARE(record.m_stackLinking, 0);
}

void tst_PluginImport::papywizardRecord()
{
    QWizardPage* page = ShowPage("ZMerlinImport");
    QVERIFY(page);
    QCOMPARE(page->metaObject()->className(), "UIWPMerlin");

    // The record and its photographs, chosen together in one dialog.
    const QString record = QStringLiteral("four_shots.xml");
    QVERIFY(
        QFile::copy(QFINDTESTDATA("data/four_shots.xml"), QDir(m_folder->path()).filePath(record)));
    const QStringList images { QStringLiteral("img1.jpg"), QStringLiteral("img2.jpg"),
        QStringLiteral("img3.jpg"), QStringLiteral("img4.jpg") };
    QVERIFY(MakeFiles(images));
    // This time the host's UI settings ask for the system's dialog.
    Host()->SetSystemFileDialog(true);
    bool qtDialog = true;
    QVERIFY(ChooseFiles(page, "m_pbSelectConfigFile", QStringList { record } + images, &qtDialog));
    QVERIFY(!qtDialog);
    QVERIFY(WaitForReading(page));

    m_wizard->accept();
    QCOMPARE(m_wizard->result(), int(QDialog::Accepted));
    QCOMPARE(Host()->Imports().size(), 1);
    const StructuredPanoramaProperties out = Host()->Imports().at(0);

    const QDir folder(m_folder->path());
    QCOMPARE(out.m_stacks.size(), 4);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(out.m_stacks.at(i), QStringList { folder.filePath(images.at(i)) });

    // The recorded angles, in radians, to the bit.
    const float yaw[] = { -10.3f, 10.7f, 30.1f, 49.9f };
    QCOMPARE(out.m_yaw.size(), 4);
    QCOMPARE(out.m_pitch.size(), 4);
    QCOMPARE(out.m_roll.size(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(Bits(out.m_yaw.at(i)), Bits(Radians(yaw[i])));
        QCOMPARE(Bits(out.m_pitch.at(i)), Bits(Radians(7.3f)));
        QCOMPARE(Bits(out.m_roll.at(i)), Bits(0.0f));
    }
    // The record's 20 mm rectilinear lens, taken over by the page since the
    // photographs carry no focal length.
    QCOMPARE(out.m_focalLength, 20.0f);
    QCOMPARE(out.m_lensModel, LensStandard);
    // One row within the field of view of 20 mm: every pair linked once,
    // from the left stack, direction "right".
    const QList<QPair<int, QVector<int>>> expected {
        { 2, { 0, 1 } },
        { 2, { 0, 2 } },
        { 2, { 0, 3 } },
        { 2, { 1, 2 } },
        { 2, { 1, 3 } },
        { 2, { 2, 3 } },
    };
    QCOMPARE(Links(out), expected);
    QCOMPARE(out.m_useRecordedLocation, true);
    QCOMPARE(out.m_autoDetection, true);
}

ZPH_PLUGIN_TEST_MAIN(tst_PluginImport)
#include "tst_PluginImport.moc"
