// Helpers of the page tests.
#include "PageTestSupport.h"

#include "PageTestHost.h"
#include "ReadingThread.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>

DialogAnswerer::DialogAnswerer(
    const char* className, std::function<void(QWidget*)> answer, int timeoutMs)
    : m_className(className), m_answer(std::move(answer)), m_ticksLeft(timeoutMs / 10)
{
    m_timer.setInterval(10);
    QObject::connect(&m_timer, &QTimer::timeout, [this] { Poll(); });
    m_timer.start();
}

void DialogAnswerer::Poll()
{
    if (--m_ticksLeft < 0) {
        m_timer.stop();
        return;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && window->inherits(m_className.constData())) {
            m_timer.stop();
            m_answered = true;
            m_answer(window);
            return;
        }
    }
}

void ShowTabOf(QWidget* widget)
{
    for (QWidget* w = widget; w; w = w->parentWidget()) {
        auto* tabs = qobject_cast<QTabWidget*>(w);
        if (!tabs)
            continue;
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->widget(i)->isAncestorOf(widget))
                tabs->setCurrentIndex(i);
        }
    }
}

void Click(QAbstractButton* button, Qt::KeyboardModifiers modifiers)
{
    ShowTabOf(button);
    // Let the tab that just came to the front lay out its widgets.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    // Near the left edge: a check box or radio button is hit on its indicator
    // and text only, not across its whole width.
    const QPoint point(qMin(8, button->width() / 2), button->height() / 2);
    QTest::mouseClick(button, Qt::LeftButton, modifiers, point);
}

SeenFileDialog ClickAndChooseFiles(QAbstractButton* button, const QStringList& paths)
{
    SeenFileDialog seen;
    DialogAnswerer answerer("QFileDialog", [&](QWidget* window) {
        auto* dialog = static_cast<QFileDialog*>(window);
        seen.seen = true;
        seen.caption = dialog->windowTitle();
        seen.directory = dialog->directory().absolutePath();
        seen.nameFilters = dialog->nameFilters();
        seen.selectedNameFilter = dialog->selectedNameFilter();
        seen.nonNative = dialog->testOption(QFileDialog::DontUseNativeDialog);
        seen.fileMode = dialog->fileMode();
        seen.parent = dialog->parentWidget();
        if (paths.isEmpty()) {
            dialog->reject();
            return;
        }
        // Typed as a user would: every name in double quotes.
        QStringList quoted;
        for (const QString& path : paths)
            quoted << QLatin1Char('"') + path + QLatin1Char('"');
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        edit->setText(quoted.join(QLatin1Char(' ')));
        static_cast<QDialog*>(dialog)->accept();
    });
    Click(button);
    return seen;
}

static SeenMessageBox AnswerBox(const std::function<void()>& action)
{
    SeenMessageBox seen;
    DialogAnswerer answerer("QMessageBox", [&](QWidget* window) {
        auto* box = static_cast<QMessageBox*>(window);
        seen.seen = true;
        seen.icon = box->icon();
        seen.title = box->windowTitle();
        seen.text = box->text();
        seen.buttons = box->standardButtons();
        seen.flags = box->windowFlags();
        seen.parent = box->parentWidget();
        seen.modal = box->isModal();
        box->button(QMessageBox::Ok)->click();
    });
    action();
    return seen;
}

SeenMessageBox ClickAndAnswerBox(QAbstractButton* button)
{
    return AnswerBox([button] { Click(button); });
}

SeenMessageBox RunAndAnswerBox(const std::function<void()>& action)
{
    return AnswerBox(action);
}

QPixmap PreviewPixmap(QWidget* page)
{
    auto* area = page->findChild<QScrollArea*>(QStringLiteral("m_saPreview"));
    auto* label = area ? qobject_cast<QLabel*>(area->widget()) : nullptr;
    return label ? label->pixmap(Qt::ReturnByValue) : QPixmap();
}

ReadingThread* ReaderOf(QWidget* page)
{
    return page->findChild<ReadingThread*>();
}

bool WaitForReading(QWidget* page, int count)
{
    ReadingThread* reader = ReaderOf(page);
    if (!reader)
        return false;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 20000) {
        if (!reader->isRunning() && reader->ZIImageDefs().size() == count) {
            // Loaded() was queued before the thread ended; deliver it.
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
            return true;
        }
        QTest::qWait(5);
    }
    return false;
}

UrlCatcher::UrlCatcher(const QString& scheme) : m_scheme(scheme)
{
    QDesktopServices::setUrlHandler(scheme, this, "Open");
}

UrlCatcher::~UrlCatcher()
{
    QDesktopServices::unsetUrlHandler(m_scheme);
}

void UrlCatcher::Open(const QUrl& url)
{
    urls << url;
}

ContextTranslator::ContextTranslator()
{
    QCoreApplication::installTranslator(this);
}

ContextTranslator::~ContextTranslator()
{
    QCoreApplication::removeTranslator(this);
}

QString ContextTranslator::translate(
    const char* context, const char* sourceText, const char*, int) const
{
    return QStringLiteral("[%1] %2").arg(QString::fromUtf8(context), QString::fromUtf8(sourceText));
}

FixtureFolder::FixtureFolder() = default;

QString FixtureFolder::AddFixture(const QString& name)
{
    const QString source = QFINDTESTDATA(QStringLiteral("data/") + name);
    const QString target = Path(name);
    QFile::remove(target);
    if (source.isEmpty() || !QFile::copy(source, target))
        return QString();
    QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    return target;
}

QString FixtureFolder::AddText(const QString& name, const QByteArray& content)
{
    QFile file(Path(name));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return QString();
    file.write(content);
    return file.fileName();
}

QStringList FixtureFolder::AddPhotos(int count, const QString& stem)
{
    QStringList paths;
    for (int i = 1; i <= count; ++i) {
        const QString path = AddText(
            QStringLiteral("%1_%2.jpg").arg(stem).arg(i, 2, 10, QLatin1Char('0')), QByteArray());
        paths << path;
    }
    paths.sort(Qt::CaseSensitive);
    return paths;
}

QString FixtureFolder::Path(const QString& name) const
{
    return m_dir.filePath(name);
}

void CompareRecords(
    const StructuredPanoramaProperties& actual, const StructuredPanoramaProperties& expected)
{
    QCOMPARE(actual.m_stacks, expected.m_stacks);
    QCOMPARE(actual.m_links.size(), expected.m_links.size());
    for (int i = 0; i < actual.m_links.size(); ++i) {
        QCOMPARE(actual.m_links[i].m_direction, expected.m_links[i].m_direction);
        QCOMPARE(actual.m_links[i].m_stackIndices, expected.m_links[i].m_stackIndices);
    }
    // Vectors of float compare exactly, bit for bit for finite values.
    QVERIFY(actual.m_yaw == expected.m_yaw);
    QVERIFY(actual.m_pitch == expected.m_pitch);
    QVERIFY(actual.m_roll == expected.m_roll);
    QCOMPARE(actual.m_useShootData, expected.m_useShootData);
    QVERIFY2(actual.m_focalLength == expected.m_focalLength,
        qPrintable(QStringLiteral("focal %1 != %2")
                       .arg(double(actual.m_focalLength))
                       .arg(double(expected.m_focalLength))));
    QCOMPARE(actual.m_flag2, expected.m_flag2);
    QCOMPARE(int(actual.m_lensModel), int(expected.m_lensModel));
    QCOMPARE(actual.m_intA, expected.m_intA);
    QCOMPARE(actual.m_intB, expected.m_intB);
    QCOMPARE(actual.m_intC, expected.m_intC);
    QCOMPARE(actual.m_flag3, expected.m_flag3);
    QCOMPARE(actual.m_autoDetection, expected.m_autoDetection);
    QCOMPARE(actual.m_stackLinking, expected.m_stackLinking);
    QCOMPARE(actual.m_levelLinking, expected.m_levelLinking);
    QCOMPARE(actual.m_useRecordedLocation, expected.m_useRecordedLocation);
    QCOMPARE(actual.m_skipOptimization, expected.m_skipOptimization);
    QCOMPARE(actual.m_cleanWrongLinks, expected.m_cleanWrongLinks);
    QCOMPARE(actual.m_gridOrder, expected.m_gridOrder);
    QCOMPARE(actual.m_gridRows, expected.m_gridRows);
    QCOMPARE(actual.m_bracketCount, expected.m_bracketCount);
    QCOMPARE(actual.m_gridFlag, expected.m_gridFlag);
    QVERIFY2(actual.m_overlap == expected.m_overlap,
        qPrintable(
            QStringLiteral("overlap %1 != %2").arg(actual.m_overlap).arg(expected.m_overlap)));
    QCOMPARE(actual.m_indexA, expected.m_indexA);
    QCOMPARE(actual.m_outputMode, expected.m_outputMode);
    QCOMPARE(actual.m_text1, expected.m_text1);
    QCOMPARE(actual.m_text2, expected.m_text2);
    QCOMPARE(actual.m_flag4, expected.m_flag4);
}

float Radians(float degrees)
{
    return float(double(degrees) * 3.141592653589793 / 180.0);
}

void PageTestBase::init()
{
    m_host = PageTestHost::instance();
    m_host->StopHolding();
    m_host->SetInterfaceHidden(false);
    m_folder = std::make_unique<FixtureFolder>();
    QVERIFY(m_folder->isValid());
    m_host->SetFolder(m_folder->path());
    m_host->ClearCalls();
    m_host->ClearImports();
}

void PageTestBase::cleanup()
{
    m_host->StopHolding();
    if (m_page) {
        ReaderOf(m_page.get())->wait(10000);
        m_page.reset();
    }
    m_host->ForgetImages();
    m_folder.reset();
}
