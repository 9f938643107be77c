// The Clauss Rodeon import page, used as a user would: its form, the combined
// script-and-photos dialog, the image dialog, the theta and phi ranges and
// their inversion, the error box, the preview and the record handed over.
#include "ClaussToSPP.h"
#include "LayoutPreview.h"
#include "PageTestHost.h"
#include "PageTestSupport.h"
#include "ReadingThread.h"
#include "UIWPClauss.h"
#include "ZUI.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

#include <cfloat>
#include <memory>

class tst_UIWPClauss : public PageTest<UIWPClauss>
{
    Q_OBJECT

private slots:
    void formMatchesTheDesign();
    void pictureIsShownWhenItExists();
    void scriptAndPhotosInOneDialog();
    void onlyPhotosOrOnlyAScript();
    void imageDialogSorts();
    void inverseFlipsThePhiRange();
    void leavingThePathReadsTheScriptAgain();
    void badScriptShowsAnErrorBox();
    void scriptWithoutShots();
    void resetShowsNotAvailable();
    void validateHandsTheRecordOver();
    void validateWithoutHostImportsNothing();
    void controlKeyOpensTheScriptsFolder();
    void previewDrawsEveryTimeInKeyOrder();
    void multiTurnScriptIsPreviewed_data();
    void multiTurnScriptIsPreviewed();

private:
    QStringList AddPhotos(int count, float focal, const QString& stem = "photo");
};

QStringList tst_UIWPClauss::AddPhotos(int count, float focal, const QString& stem)
{
    const QStringList paths = m_folder->AddPhotos(count, stem);
    for (int i = 0; i < paths.size(); ++i)
        m_host->AddImage(paths[i], focal, 0, i + 1, 0.0f, QColor::fromHsv(i * 30 % 360, 255, 255));
    return paths;
}

void tst_UIWPClauss::formMatchesTheDesign()
{
    UIWPClauss* page = NewPage();
    QCOMPARE(page->objectName(), QStringLiteral("UIWPClaussClass"));
    QCOMPARE(page->windowTitle(), QStringLiteral("Clauss panohead"));
    QCOMPARE(page->title(), QStringLiteral("Clauss panohead import"));
    QVERIFY(page->subTitle().contains(
        QStringLiteral(" provides special equipment for panoramic photography and VR "
                       "applications.")));
    QVERIFY(page->subTitle().contains(QStringLiteral(">Clauss<")));
    QVERIFY(!page->subTitle().contains(QStringLiteral("#DCDCDC")));
    QCOMPARE(page->minimumSize(), QSize(600, 600));
    const QList<QPair<const char*, QString>> texts = { { "label", "Script file:" },
        { "m_pbSelectConfigFile", "..." }, { "m_pbReset", "Reset" },
        { "label_5", "Number of shoot:" }, { "m_lbPapyLog", "N/A" }, { "label_6", "Theta:" },
        { "m_lbThetaMinMax", "N/A" }, { "label_9", "Phi:" }, { "m_lbPhiMinMax", "N/A" },
        { "m_pInverseCoordinates", "Inverse Y coordinates" }, { "m_lbImage_2", "Images:" },
        { "m_pbSelectImages", "..." }, { "label_10", "Number of image:" },
        { "m_lbImageLog", "N/A" }, { "m_autoStart", "Auto detection" },
        { "m_cleanLink", "Clean wrong link" }, { "m_noOptim", "Skip optimization" },
        { "m_GridOptim", "Guided optimization" }, { "label_2", "Zoom" } };
    for (const auto& entry : texts) {
        QWidget* widget = Child<QWidget>(page, entry.first);
        QVERIFY2(widget, entry.first);
        QCOMPARE(widget->property("text").toString(), entry.second);
    }
    for (const char* name : { "line", "line_2", "line_3" })
        QVERIFY2(Child<QFrame>(page, name), name);
    for (const char* name : { "m_rbLevelLinking0", "m_rbStackLinking0", "m_spFocal", "m_cbLensType",
             "m_pbRot90", "m_pbRot270" })
        QVERIFY2(!Child<QWidget>(page, name), name);
    auto* tabs = Child<QTabWidget>(page, "tabWidget");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->tabText(0), QStringLiteral("General"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("Options"));
    QCOMPARE(tabs->widget(0)->objectName(), QStringLiteral("tab"));
    QCOMPARE(tabs->widget(1)->objectName(), QStringLiteral("tab_2"));
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(
        Child<QWidget>(page, "groupBox")->property("title").toString(), QStringLiteral("Preview"));
    QCOMPARE(Child<QCheckBox>(page, "m_GridOptim")->checkState(), Qt::Checked);
    QCOMPARE(Child<QCheckBox>(page, "m_cleanLink")->checkState(), Qt::Unchecked);
    QCOMPARE(Child<QCheckBox>(page, "m_autoStart")->checkState(), Qt::Checked);
    QCOMPARE(Child<QCheckBox>(page, "m_noOptim")->checkState(), Qt::Unchecked);
    auto* zoom = Child<QSlider>(page, "m_hSlider");
    QCOMPARE(zoom->minimum(), 1);
    QCOMPARE(zoom->maximum(), 100);
    QCOMPARE(zoom->value(), 50);
    QVERIFY(Child<QLineEdit>(page, "m_leConfigFile")->completer());
    QVERIFY(!page->isComplete());
}

void tst_UIWPClauss::pictureIsShownWhenItExists()
{
    UIWPClauss* page = NewPage();
    QCOMPARE(page->pixmap(QWizard::WatermarkPixmap).size(), QSize(12, 8));
    m_page.reset();
    Q_CLEANUP_RESOURCE(page_pictures);
    page = NewPage();
    QVERIFY(page->pixmap(QWizard::WatermarkPixmap).isNull());
    Q_INIT_RESOURCE(page_pictures);
}

void tst_UIWPClauss::scriptAndPhotosInOneDialog()
{
    UIWPClauss* page = NewPage();
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    const QStringList photos = AddPhotos(12, 50.0f);
    const QString script = m_folder->Path("RODEON.TXT");
    QVERIFY(QFile::copy(QFINDTESTDATA("data/clauss_twelve.txt"), script));
    // The photos typed from the last to the first, the script among them.
    QStringList typed = photos;
    std::reverse(typed.begin(), typed.end());
    typed.insert(5, script);
    const SeenFileDialog seen
        = ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), typed);
    QVERIFY(seen.seen);
    QCOMPARE(seen.caption, QStringLiteral("Select the preset file and/or images"));
    QCOMPARE(seen.nameFilters, QStringList { "All Files (*.*)" });
    QVERIFY(seen.nonNative);
    QCOMPARE(seen.parent, page);
    QVERIFY(WaitForReading(page, 12));
    QCOMPARE(Child<QLineEdit>(page, "m_leConfigFile")->text(), script);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("12"));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("0,330"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("-30,60"));
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("12"));
    // This dialog keeps the photos in the order the dialog gave them.
    QString names;
    for (int i = 12; i >= 1; --i)
        names += QStringLiteral("\"photo_%1.jpg\"; ").arg(i, 2, 10, QLatin1Char('0'));
    QCOMPARE(Child<QLineEdit>(page, "m_leImage")->text(), names);
    QVERIFY(page->isComplete());
    QTRY_VERIFY(complete.count() >= 1);
    QCOMPARE(m_host->CallsStartingWith("SetDefaultFolder"),
        QStringList { QStringLiteral("SetDefaultFolder(%1)").arg(script) });
}

void tst_UIWPClauss::onlyPhotosOrOnlyAScript()
{
    UIWPClauss* page = NewPage();
    const QString script = m_folder->AddFixture("clauss_three.txt");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { script });
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("N/A"));
    const QStringList photos = AddPhotos(3, 50.0f);
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), photos);
    QVERIFY(WaitForReading(page, 3));
    QCOMPARE(Child<QLineEdit>(page, "m_leConfigFile")->text(), script);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("3"));
    QVERIFY(page->isComplete());
    // Another script alone keeps the photos.
    const QString twelve = m_folder->AddFixture("clauss_twelve.txt");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { twelve });
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("12"));
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("3"));
    QVERIFY(!page->isComplete());
    // A cancelled dialog changes nothing.
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), {});
    QCOMPARE(Child<QLineEdit>(page, "m_leConfigFile")->text(), twelve);
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("3"));
}

void tst_UIWPClauss::imageDialogSorts()
{
    UIWPClauss* page = NewPage();
    const QStringList photos = AddPhotos(3, 50.0f);
    const SeenFileDialog seen = ClickAndChooseFiles(
        Child<QPushButton>(page, "m_pbSelectImages"), { photos[2], photos[0], photos[1] });
    QCOMPARE(seen.caption, QStringLiteral("Select images"));
    QCOMPARE(seen.directory, m_folder->path());
    QVERIFY(WaitForReading(page, 3));
    QCOMPARE(Child<QLineEdit>(page, "m_leImage")->text(),
        QStringLiteral("\"photo_01.jpg\"; \"photo_02.jpg\"; \"photo_03.jpg\"; "));
    QCOMPARE(m_host->CallsStartingWith("SetDefaultFolder"),
        QStringList { QStringLiteral("SetDefaultFolder(%1)").arg(photos[0]) });
}

void tst_UIWPClauss::inverseFlipsThePhiRange()
{
    UIWPClauss* page = NewPage();
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"),
        { m_folder->AddFixture("clauss_twelve.txt") });
    Click(Child<QPushButton>(page, "m_pInverseCoordinates"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("-60,30"));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("0,330"));
    Click(Child<QPushButton>(page, "m_pInverseCoordinates"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("-30,60"));
}

void tst_UIWPClauss::leavingThePathReadsTheScriptAgain()
{
    UIWPClauss* page = NewPage();
    const QString script = m_folder->AddFixture("clauss_three.txt");
    auto* edit = Child<QLineEdit>(page, "m_leConfigFile");
    edit->setFocus();
    QTest::keyClicks(edit, script);
    // Typing alone reads nothing.
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("N/A"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
    // The same path once more, after the file changed: read again.
    QFile::remove(script);
    QVERIFY(QFile::copy(QFINDTESTDATA("data/clauss_twelve.txt"), script));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("12"));
    QCOMPARE(edit->text(), script);
}

void tst_UIWPClauss::badScriptShowsAnErrorBox()
{
    UIWPClauss* page = NewPage();
    const QString bad = m_folder->AddFixture("clauss_bad.txt");
    // A bad script on a fresh page: the range stays unread, nothing drawn.
    SeenMessageBox box = RunAndAnswerBox(
        [&] { ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { bad }); });
    QVERIFY(box.seen);
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.title, QStringLiteral("Error"));
    QCOMPARE(box.text, QStringLiteral("Error parse file:") + bad);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, page);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("N/A"));
    QVERIFY(PreviewPixmap(page).isNull());
    // After a good script, the bad one keeps the good range and its own shots
    // read before the bad line are drawn.
    const QStringList photos = AddPhotos(2, 50.0f);
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"),
        QStringList { m_folder->AddFixture("clauss_twelve.txt") } + photos);
    QVERIFY(WaitForReading(page, 2));
    box = RunAndAnswerBox([&] {
        auto* edit = Child<QLineEdit>(page, "m_leConfigFile");
        edit->setFocus();
        edit->setText(bad);
        QTest::keyClick(edit, Qt::Key_Return);
    });
    QVERIFY(box.seen);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("0,330"));
    QVERIFY(!PreviewPixmap(page).isNull());
    QVERIFY(!page->isComplete());
}

void tst_UIWPClauss::scriptWithoutShots()
{
    UIWPClauss* page = NewPage();
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"),
        { m_folder->AddFixture("clauss_empty.txt") });
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("N/A"));
    // The range a read starts from, printed as numbers.
    QCOMPARE(
        Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("3.40282e+38,-3.40282e+38"));
    QCOMPARE(
        Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("3.40282e+38,-3.40282e+38"));
    QVERIFY(PreviewPixmap(page).isNull());
}

void tst_UIWPClauss::resetShowsNotAvailable()
{
    UIWPClauss* page = NewPage();
    const QStringList photos = AddPhotos(3, 50.0f);
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"),
        QStringList { m_folder->AddFixture("clauss_three.txt") } + photos);
    QVERIFY(WaitForReading(page, 3));
    QVERIFY(page->isComplete());
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    Click(Child<QPushButton>(page, "m_pbReset"));
    QVERIFY(complete.count() >= 1);
    for (const char* name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbImageLog" })
        QCOMPARE(Child<QLabel>(page, name)->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLineEdit>(page, "m_leConfigFile")->text(), QString());
    QCOMPARE(Child<QLineEdit>(page, "m_leImage")->text(), QString());
    QVERIFY(PreviewPixmap(page).isNull());
    QVERIFY(!page->isComplete());
}

void tst_UIWPClauss::validateHandsTheRecordOver()
{
    UIWPClauss* page = NewPage();
    const QStringList photos = AddPhotos(3, 50.0f);
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"),
        QStringList { m_folder->AddFixture("clauss_three.txt") } + photos);
    QVERIFY(WaitForReading(page, 3));
    Click(Child<QCheckBox>(page, "m_cleanLink"));
    Click(Child<QCheckBox>(page, "m_GridOptim"));
    QVERIFY(page->validatePage());
    QCOMPARE(m_host->Imports().size(), 1);

    StructuredPanoramaProperties expected;
    expected.m_stacks = { { photos[0] }, { photos[1] }, { photos[2] } };
    expected.m_yaw = { Radians(0), Radians(20), Radians(90) };
    expected.m_pitch = { Radians(0), Radians(0), Radians(0) };
    // At 50 mm half the diagonal view is about 23.4 degrees: shots 20 degrees
    // apart are linked (0.7 x 20 < 23.4), shots 70 and 90 apart are not.
    AuthorizedLink link;
    link.m_direction = 0;
    link.m_stackIndices = { 0, 1 };
    expected.m_links = { link };
    expected.m_flag2 = false;
    expected.m_overlap = 25.0;
    expected.m_autoDetection = true;
    expected.m_cleanWrongLinks = true;
    expected.m_useRecordedLocation = false;
    CompareRecords(m_host->Imports().first(), expected);
    // Validating again hands over the same record.
    QVERIFY(page->validatePage());
    CompareRecords(m_host->Imports().last(), expected);
}

void tst_UIWPClauss::validateWithoutHostImportsNothing()
{
    UIWPClauss* page = NewPage();
    m_host->SetInterfaceHidden(true);
    QVERIFY(page->validatePage());
    m_host->SetInterfaceHidden(false);
    QVERIFY(m_host->Imports().isEmpty());
}

void tst_UIWPClauss::controlKeyOpensTheScriptsFolder()
{
    UIWPClauss* page = NewPage();
    const QString script = m_folder->AddFixture("clauss_three.txt");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { script });
    UrlCatcher catcher(QStringLiteral("file"));
    DialogAnswerer unexpected(
        "QFileDialog", [](QWidget* w) { w->close(); }, 300);
    Click(Child<QPushButton>(page, "m_pbSelectConfigFile"), Qt::ControlModifier);
    QCOMPARE(catcher.urls, QList<QUrl> { QUrl(QStringLiteral("file:///") + m_folder->path()) });
    Click(Child<QPushButton>(page, "m_pbSelectImages"), Qt::ControlModifier);
    QCOMPARE(catcher.urls.size(), 2);
    QCOMPARE(catcher.urls[1], QUrl(QStringLiteral("file:///") + m_folder->path()));
    QTest::qWait(350);
    QVERIFY(!unexpected.answered());
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
}

void tst_UIWPClauss::previewDrawsEveryTimeInKeyOrder()
{
    UIWPClauss* page = NewPage();
    const QStringList photos = m_folder->AddPhotos(3);
    const QColor colours[] = { Qt::red, Qt::green, Qt::blue };
    for (int i = 0; i < 3; ++i)
        m_host->AddImage(photos[i], 50.0f, 0, 3 - i, 0.0f, colours[i]);
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"),
        QStringList { m_folder->AddFixture("clauss_three.txt") } + photos);
    QVERIFY(WaitForReading(page, 3));
    auto* zoom = Child<QSlider>(page, "m_hSlider");
    zoom->setValue(100);
    // Shots at yaw 0, 20, 90 and pitch 0: step 20, 4.8 pixels a degree.
    const float scale = 96.0f / 20.0f;
    const int width = int(90.0f * scale + 100);
    QImage preview = PreviewPixmap(page).toImage();
    QCOMPARE(preview.size(), QSize(width, 100));
    // The keys run backwards: shot 0 shows the last photo.
    QCOMPARE(preview.pixelColor(50 + 20, 50 + 20), QColor(Qt::blue));
    QCOMPARE(preview.pixelColor(int(20.0f * scale + 50) + 20, 50 + 20), QColor(Qt::green));
    zoom->setValue(37);
    QCOMPARE(PreviewPixmap(page).size(), QSize(width * 37 / 100, 100 * 37 / 100));
    const qint64 drawn = PreviewPixmap(page).cacheKey();
    page->RestoreState(QByteArray("x"));
    QVERIFY(PreviewPixmap(page).cacheKey() != drawn);
    QVERIFY(page->SaveState().isEmpty());
}

void tst_UIWPClauss::multiTurnScriptIsPreviewed_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QSize>("shown");
    // Yaw 117 to 1738, pitch 0 to 2, 12 pixels a degree: a canvas of
    // 1621 x 12 + 100 = 19552 by 124 pixels.
    QTest::newRow("50 %") << 50 << QSize(9776, 62);
    QTest::newRow("100 %") << 100 << QSize(19552, 124);
    QTest::newRow("7 %") << 7 << QSize(1368, 8);
}

void tst_UIWPClauss::multiTurnScriptIsPreviewed()
{
    QFETCH(int, zoom);
    QFETCH(QSize, shown);
    UIWPClauss* page = NewPage();
    const QString script = m_folder->AddFixture("clauss_multiturn.txt");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { script });
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("38"));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("117,1738"));
    Child<QSlider>(page, "m_hSlider")->setValue(zoom);
    const QPixmap preview = PreviewPixmap(page);
    QCOMPARE(preview.size(), shown);
    // Exactly the full-size drawing of the script's shots, zoomed.
    ClaussToSPP converter;
    QVERIFY(converter.parse(script));
    const QPixmap canvas = LayoutPreview::DrawShots(converter.m_shots, {}, 117, 1738, 0, 2,
        page->palette().brush(QPalette::Window));
    QCOMPARE(canvas.size(), QSize(19552, 124));
    const QImage expected = LayoutPreview::Zoom(canvas, zoom).toImage();
    QCOMPARE(preview.toImage(), expected);
    // Not blank: the cells' outlines and labels differ from the background.
    const QColor background = page->palette().color(QPalette::Window);
    int marks = 0;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x)
            marks += expected.pixelColor(x, y) != background ? 1 : 0;
    }
    QVERIFY2(marks > 0, "the preview shows only the background");
}

ZPH_PAGE_TEST_MAIN(tst_UIWPClauss)
#include "tst_UIWPClauss.moc"
