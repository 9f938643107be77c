// The Papywizard import page, used as a user would: its form, the combined
// record-and-photos dialog, the image dialog, the labels and their warnings,
// the focal length and lens taken over from the photos, the preview, rotation
// and inversion, the options and the record handed to the host.
#include "PageTestHost.h"
#include "PageTestSupport.h"
#include "ReadingThread.h"
#include "UIWPMerlin.h"
#include "ZUI.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSlider>
#include <QStyle>
#include <QTabWidget>
#include <QTest>

#include <cfloat>
#include <cmath>
#include <memory>

namespace {

const QString kFltMaxRange = QStringLiteral("3.40282e+38,-3.40282e+38");

QString Warning(const QString& text)
{
    return QStringLiteral("<p style='color:red'>") + text + QStringLiteral("</p>");
}

} // namespace

class tst_UIWPMerlin : public PageTest<UIWPMerlin>
{
    Q_OBJECT

private slots:
    void formMatchesTheDesign();
    void subtitleLinkTakesTheThemeColour();
    void chooseRecordAndPhotosInOneDialog();
    void imageDialogSortsAndTellsTheHost();
    void cancelledImageDialogChangesNothing();
    void laterRecordInTheDialogWins();
    void cancelReadsTheRecordAgain();
    void typingThePathReadsTheRecordAtEveryKey();
    void failedReadShowsTheLargestFloat();
    void resetAndCleanupShowNotAvailable();
    void warnings_data();
    void warnings();
    void focalAndLensFollowThePhotos();
    void focalButtons();
    void controlKeyOpensTheFileBrowser();
    void linkingButtonsConstrainEachOther();
    void validateChecksBracketing();
    void validateHandsTheRecordOver();
    void validateTwiceHandsTheSameRecord();
    void validateWithoutHostImportsNothing();
    void options_data();
    void options();
    void previewSizeFollowsCanvasAndZoom();
    void previewOrdersByKey();
    void previewKeepsReadingOrderForSharedKeys();
    void previewCountGuard();
    void previewCellsAndImagesDisagree();
    void previewOfOneShotAndOfCloseShots();
    void rotationAddsToTheRoll();
    void inverseFlipsThePitch();
    void stateIsNotKept();
    void readingDoesNotBlockTheInterface();
    void unreadablePhotosKeepThePageIncomplete();

private:
    /// Registers photos with the host: focal, lens, keys 1, 2, 3 ... and
    /// distinct colours; returns their paths.
    QStringList AddPhotos(int count, float focal, int lens, const QString& stem = "photo");
    /// Chooses `fixture` and `photos` in the combined dialog and waits for the reading.
    bool Open(const QString& fixture, const QStringList& photos);
};

QStringList tst_UIWPMerlin::AddPhotos(int count, float focal, int lens, const QString& stem)
{
    const QStringList paths = m_folder->AddPhotos(count, stem);
    for (int i = 0; i < paths.size(); ++i)
        m_host->AddImage(
            paths[i], focal, lens, i + 1, 0.0f, QColor::fromHsv(i * 40 % 360, 255, 255));
    return paths;
}

bool tst_UIWPMerlin::Open(const QString& fixture, const QStringList& photos)
{
    const QString record = m_folder->AddFixture(fixture);
    if (record.isEmpty())
        return false;
    const SeenFileDialog seen = ClickAndChooseFiles(
        Child<QPushButton>(m_page.get(), "m_pbSelectConfigFile"), QStringList { record } + photos);
    return seen.seen && WaitForReading(m_page.get(), photos.size());
}

void tst_UIWPMerlin::formMatchesTheDesign()
{
    UIWPMerlin* page = NewPage();
    QCOMPARE(page->objectName(), QStringLiteral("UIWPMerlinClass"));
    QCOMPARE(page->windowTitle(), QStringLiteral("Papywizard panohead control software"));
    QCOMPARE(page->title(), QStringLiteral("Papywizard import"));
    QVERIFY(page->subTitle().contains(
        QStringLiteral("is a free project to drive Merlin/Orion panorama heads. The XML file "
                       "format is open and used by a wide range of motorized panorama heads.")));
    QCOMPARE(page->minimumSize(), QSize(600, 600));

    const QList<QPair<const char*, QString>> texts = { { "label", "XML:" },
        { "m_pbSelectConfigFile", "..." }, { "m_pbReset", "Reset" },
        { "label_4", "Number of images:" }, { "m_lbPapyLog", "N/A" }, { "label_2", "Yaw:" },
        { "m_lbThetaMinMax", "N/A" }, { "label_9", "Pitch:" }, { "m_lbPhiMinMax", "N/A" },
        { "label_10", "Bracketing:" }, { "m_lbBracket", "N/A" }, { "label_12", "XML focal:" },
        { "m_lbFocalLength", "N/A" }, { "m_pbSelectImages", "..." }, { "m_lbImage", "Images:" },
        { "label_5", "Number of images:" }, { "m_lbImageLog", "N/A" },
        { "label_14", "Image focal:" }, { "m_lbFocalLengthImage", "N/A" },
        { "m_lbWarning", Warning(QString()) }, { "m_pInverseCoordinates", "Inverse Y coordinates" },
        { "label_15", "Focal length:" }, { "label_16", "Lens Type:" },
        { "m_pbFLUseXML", "Use XML information" }, { "m_pbFLUseImage", "Use image information" },
        { "label_13", "Detect links in:" }, { "m_rbLevelLinking0", "The reference level" },
        { "m_rbLevelLinking1", "All stack levels" }, { "label_11", "For a stack:" },
        { "m_rbStackLinking0", "Use hard links" }, { "m_rbStackLinking1", "Detect control points" },
        { "m_autoStart", "Auto detection" }, { "m_cleanLink", "Clean wrong link" },
        { "m_noOptim", "Skip optimization" }, { "m_GridOptim", "Use recorded location" },
        { "label_6", "Title:" }, { "label_7", "GPS:" }, { "label_8", "Comment:" },
        { "label_3", "Zoom" } };
    for (const auto& entry : texts) {
        QWidget* widget = Child<QWidget>(page, entry.first);
        QVERIFY2(widget, entry.first);
        QCOMPARE(widget->property("text").toString(), entry.second);
    }
    const QList<QPair<const char*, const char*>> kinds = { { "m_leConfigFile", "QLineEdit" },
        { "m_leImage", "QLineEdit" }, { "m_leHeaderTitle", "QLineEdit" },
        { "m_leHeaderGps", "QLineEdit" }, { "m_leHeaderComment", "QLineEdit" },
        { "m_pbRot270", "QPushButton" }, { "m_pbRot90", "QPushButton" },
        { "m_spFocal", "QDoubleSpinBox" }, { "m_cbLensType", "QComboBox" },
        { "groupBox", "QGroupBox" }, { "m_saPreview", "QScrollArea" }, { "m_hSlider", "QSlider" },
        { "line", "QFrame" }, { "line_2", "QFrame" }, { "line_3", "QFrame" },
        { "line_4", "QFrame" }, { "line_5", "QFrame" }, { "m_lbWarning", "QLabel" },
        { "buttonGroup", "QButtonGroup" } };
    for (const auto& entry : kinds) {
        QObject* object = page->findChild<QObject*>(QString::fromLatin1(entry.first));
        QVERIFY2(object, entry.first);
        QVERIFY2(object->inherits(entry.second), entry.first);
    }
    auto* tabs = Child<QTabWidget>(page, "tabWidget");
    QCOMPARE(tabs->count(), 5);
    QCOMPARE(tabs->currentIndex(), 0);
    const QStringList tabTexts
        = { "General", "Shoot setup", "Stack", "Detection options", "Header details" };
    const QStringList tabNames = { "General", "tab_4", "tab_3", "tab_2" };
    for (int i = 0; i < tabs->count(); ++i) {
        QCOMPARE(tabs->tabText(i), tabTexts[i]);
        if (i < tabNames.size())
            QCOMPARE(tabs->widget(i)->objectName(), tabNames[i]);
    }
    QCOMPARE(
        Child<QWidget>(page, "groupBox")->property("title").toString(), QStringLiteral("Preview"));
    QVERIFY(!tabs->isAncestorOf(Child<QWidget>(page, "groupBox")));

    auto* focal = Child<QDoubleSpinBox>(page, "m_spFocal");
    QCOMPARE(focal->minimum(), 1.0);
    QCOMPARE(focal->maximum(), 10000.0);
    auto* zoom = Child<QSlider>(page, "m_hSlider");
    QCOMPARE(zoom->minimum(), 1);
    QCOMPARE(zoom->maximum(), 100);
    QCOMPARE(zoom->value(), 50);
    QCOMPARE(zoom->orientation(), Qt::Horizontal);
    auto* lens = Child<QComboBox>(page, "m_cbLensType");
    QCOMPARE(lens->count(), 2);
    QCOMPARE(lens->itemText(0), QStringLiteral("Standard"));
    QCOMPARE(lens->itemText(1), QStringLiteral("Fisheye"));
    QCOMPARE(lens->currentIndex(), 1);
    QCOMPARE(Child<QCheckBox>(page, "m_GridOptim")->checkState(), Qt::Checked);
    QCOMPARE(Child<QCheckBox>(page, "m_cleanLink")->checkState(), Qt::Unchecked);
    QCOMPARE(Child<QCheckBox>(page, "m_autoStart")->checkState(), Qt::Checked);
    QCOMPARE(Child<QCheckBox>(page, "m_noOptim")->checkState(), Qt::Unchecked);
    QVERIFY(Child<QRadioButton>(page, "m_rbLevelLinking0")->isChecked());
    QVERIFY(!Child<QRadioButton>(page, "m_rbLevelLinking1")->isChecked());
    QVERIFY(Child<QRadioButton>(page, "m_rbStackLinking0")->isChecked());
    QVERIFY(!Child<QRadioButton>(page, "m_rbStackLinking1")->isChecked());
    QVERIFY(Child<QLineEdit>(page, "m_leImage")->isReadOnly());
    QCOMPARE(Child<QPushButton>(page, "m_pbRot270")->iconSize(), QSize(32, 32));
    QCOMPARE(Child<QPushButton>(page, "m_pbRot90")->iconSize(), QSize(32, 32));
    QVERIFY(!Child<QPushButton>(page, "m_pbFLUseXML")->isEnabled());
    QVERIFY(!Child<QPushButton>(page, "m_pbFLUseImage")->isEnabled());
    QVERIFY(Child<QLineEdit>(page, "m_leConfigFile")->completer());
    // The preview label replaced the form's scroll contents.
    auto* area = Child<QScrollArea>(page, "m_saPreview");
    QVERIFY(area->widgetResizable());
    auto* preview = qobject_cast<QLabel*>(area->widget());
    QVERIFY(preview);
    QCOMPARE(preview->alignment(), Qt::AlignCenter);
    QVERIFY(!page->findChild<QWidget*>(QStringLiteral("scrollAreaWidgetContents")));
    QVERIFY(PreviewPixmap(page).isNull());
    QVERIFY(!page->isComplete());
    QVERIFY(ReaderOf(page));
    QCOMPARE(ReaderOf(page)->parent(), page);
}

void tst_UIWPMerlin::subtitleLinkTakesTheThemeColour()
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::WindowText, QColor(0x12, 0x34, 0x56));
    QApplication::setPalette(palette);
    UIWPMerlin* page = NewPage();
    QApplication::setPalette(QApplication::style()->standardPalette());
    QVERIFY(!page->subTitle().contains(QStringLiteral("#DCDCDC")));
    QVERIFY(page->subTitle().contains(QStringLiteral("color:#123456")));
    QVERIFY(page->subTitle().contains(QStringLiteral(">Papywizard<")));
}

void tst_UIWPMerlin::chooseRecordAndPhotosInOneDialog()
{
    UIWPMerlin* page = NewPage();
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    const QStringList photos = AddPhotos(3, 24.0f, 0);
    const QString record = m_folder->AddFixture("merlin_three.xml");
    // Typed in another order than sorted; the record among them.
    const SeenFileDialog seen
        = ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"),
            { photos[2], record, photos[0], photos[1] });
    QVERIFY(seen.seen);
    QCOMPARE(seen.caption, QStringLiteral("Select the preset file and/or images"));
    QCOMPARE(seen.nameFilters, (QStringList { "All Files (*.*)", "XML files (*.xml)" }));
    QCOMPARE(seen.selectedNameFilter, QStringLiteral("All Files (*.*)"));
    QVERIFY(seen.nonNative);
    QCOMPARE(seen.fileMode, QFileDialog::ExistingFiles);
    QCOMPARE(seen.parent, page);
    // No record yet: the dialog starts in the host's folder.
    QCOMPARE(seen.directory, m_folder->path());
    QVERIFY(WaitForReading(page, 3));

    QCOMPARE(Child<QLineEdit>(page, "m_leConfigFile")->text(), record);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("0,60"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("-10,20"));
    QCOMPARE(Child<QLabel>(page, "m_lbBracket")->text(), QStringLiteral("1"));
    QCOMPARE(Child<QLabel>(page, "m_lbFocalLength")->text(), QStringLiteral("20.00mm"));
    QCOMPARE(Child<QLineEdit>(page, "m_leImage")->text(),
        QStringLiteral("\"photo_01.jpg\"; \"photo_02.jpg\"; \"photo_03.jpg\"; "));
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("3"));
    QCOMPARE(Child<QLabel>(page, "m_lbFocalLengthImage")->text(), QStringLiteral("24.00mm"));
    QCOMPARE(Child<QLineEdit>(page, "m_leHeaderTitle")->text(), QStringLiteral("Harbour at dusk"));
    QCOMPARE(
        Child<QLineEdit>(page, "m_leHeaderGps")->text(), QStringLiteral("48.3904 N, 4.4861 W"));
    QCOMPARE(Child<QLineEdit>(page, "m_leHeaderComment")->text(),
        QStringLiteral("Three shots in a row"));
    QCOMPARE(Child<QLineEdit>(page, "m_leConfigFile")->toolTip(),
        QStringLiteral("Harbour at dusk\n48.3904 N, 4.4861 W\nThree shots in a row"));
    // 24 against 20: 4 x 10 > 24.
    QCOMPARE(Child<QLabel>(page, "m_lbWarning")->text(),
        Warning("Focal Length difference between EXIF and XML"));
    QVERIFY(Child<QPushButton>(page, "m_pbFLUseXML")->isEnabled());
    QVERIFY(Child<QPushButton>(page, "m_pbFLUseImage")->isEnabled());
    QVERIFY(page->isComplete());
    QVERIFY(complete.count() >= 2);
    // The host was asked for its folder, told the record's path, and read the sorted photos.
    QCOMPARE(m_host->CallsStartingWith("DefaultFolder"), QStringList { "DefaultFolder()" });
    QCOMPARE(m_host->CallsStartingWith("SetDefaultFolder"),
        QStringList { QStringLiteral("SetDefaultFolder(%1)").arg(record) });
    QStringList reads;
    for (const QString& photo : photos)
        reads << QStringLiteral("CreateImageDef(%1)").arg(photo);
    QCOMPARE(m_host->CallsStartingWith("CreateImageDef"), reads);
    // A second dialog starts at the record.
    const SeenFileDialog again
        = ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), {});
    QCOMPARE(again.directory, m_folder->path());
    QCOMPARE(m_host->CallsStartingWith("DefaultFolder").size(), 1);
}

void tst_UIWPMerlin::imageDialogSortsAndTellsTheHost()
{
    UIWPMerlin* page = NewPage();
    const QStringList photos = AddPhotos(4, 24.0f, 0);
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    const SeenFileDialog seen = ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectImages"),
        { photos[3], photos[1], photos[0], photos[2] });
    QVERIFY(seen.seen);
    QCOMPARE(seen.caption, QStringLiteral("Select images"));
    QCOMPARE(seen.nameFilters, QStringList { "All Files (*.*)" });
    QCOMPARE(seen.selectedNameFilter, QStringLiteral("All Files (*.*)"));
    QVERIFY(seen.nonNative);
    QCOMPARE(seen.directory, m_folder->path());
    QVERIFY(WaitForReading(page, 4));
    QCOMPARE(Child<QLineEdit>(page, "m_leImage")->text(),
        QStringLiteral("\"photo_01.jpg\"; \"photo_02.jpg\"; \"photo_03.jpg\"; "
                       "\"photo_04.jpg\"; "));
    QCOMPARE(m_host->CallsStartingWith("SetDefaultFolder"),
        QStringList { QStringLiteral("SetDefaultFolder(%1)").arg(photos[0]) });
    QVERIFY(complete.count() >= 1);
    // No record: never complete, and no warning.
    QVERIFY(!page->isComplete());
    QCOMPARE(Child<QLabel>(page, "m_lbWarning")->text(), Warning(QString()));
    // The next dialog starts at the first photo; the host's folder is not asked.
    m_host->ClearCalls();
    const SeenFileDialog again
        = ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectImages"), {});
    QCOMPARE(again.directory, m_folder->path());
    QVERIFY(m_host->CallsStartingWith("DefaultFolder").isEmpty());
}

void tst_UIWPMerlin::cancelledImageDialogChangesNothing()
{
    UIWPMerlin* page = NewPage();
    const QStringList photos = AddPhotos(3, 24.0f, 0);
    QVERIFY(Open("merlin_three.xml", photos));
    m_host->ClearCalls();
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectImages"), {});
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("3"));
    QVERIFY(page->isComplete());
    QCOMPARE(complete.count(), 0);
    QVERIFY(m_host->CallsStartingWith("SetDefaultFolder").isEmpty());
    QVERIFY(m_host->CallsStartingWith("CreateImageDef").isEmpty());
}

void tst_UIWPMerlin::laterRecordInTheDialogWins()
{
    UIWPMerlin* page = NewPage();
    const QString one = m_folder->AddFixture("merlin_one.xml");
    const QString three = m_folder->AddFixture("merlin_three.xml");
    // Case does not matter in the ".xml" test.
    const QString upper = m_folder->Path("THREE.XML");
    QVERIFY(QFile::copy(three, upper));
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { one, upper });
    QCOMPARE(Child<QLineEdit>(page, "m_leConfigFile")->text(), upper);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { upper, one });
    QCOMPARE(Child<QLineEdit>(page, "m_leConfigFile")->text(), one);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("1"));
    // Only a record: the photos stay as they were (none).
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("N/A"));
}

void tst_UIWPMerlin::cancelReadsTheRecordAgain()
{
    UIWPMerlin* page = NewPage();
    // With no record yet, a cancelled dialog tries the start folder as a record.
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), {});
    QCOMPARE(Child<QLineEdit>(page, "m_leConfigFile")->text(), m_folder->path());
    QCOMPARE(m_host->CallsStartingWith("SetDefaultFolder"),
        QStringList { QStringLiteral("SetDefaultFolder(%1)").arg(m_folder->path()) });
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), kFltMaxRange);

    const QString record = m_folder->AddFixture("merlin_three.xml");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { record });
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
    // The file changes on disk; cancelling the dialog reads it again.
    QFile::remove(record);
    QVERIFY(QFile::copy(QFINDTESTDATA("data/merlin_one.xml"), record));
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), {});
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("1"));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("10,10"));
    QCOMPARE(Child<QLineEdit>(page, "m_leHeaderTitle")->text(), QStringLiteral("One"));
}

void tst_UIWPMerlin::typingThePathReadsTheRecordAtEveryKey()
{
    UIWPMerlin* page = NewPage();
    const QString record = m_folder->AddFixture("merlin_three.xml");
    auto* edit = Child<QLineEdit>(page, "m_leConfigFile");
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    edit->setFocus();
    QTest::keyClicks(edit, record);
    QCOMPARE(edit->text(), record);
    QCOMPARE(edit->cursorPosition(), record.size());
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
    QCOMPARE(complete.count(), record.size());
    // One more key: the path names no file; the key after it brings it back.
    QTest::keyClick(edit, Qt::Key_X);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), kFltMaxRange);
    QTest::keyClick(edit, Qt::Key_Backspace);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("-10,20"));
}

void tst_UIWPMerlin::failedReadShowsTheLargestFloat()
{
    UIWPMerlin* page = NewPage();
    const QString broken = m_folder->AddFixture("merlin_broken.xml");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { broken });
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), kFltMaxRange);
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), kFltMaxRange);
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLabel>(page, "m_lbBracket")->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLabel>(page, "m_lbFocalLength")->text(), QStringLiteral("N/A"));
    QVERIFY(!page->isComplete());
    QVERIFY(PreviewPixmap(page).isNull());
}

void tst_UIWPMerlin::resetAndCleanupShowNotAvailable()
{
    UIWPMerlin* page = NewPage();
    QVERIFY(Open("merlin_three.xml", AddPhotos(3, 20.0f, 0)));
    QVERIFY(page->isComplete());
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    Click(Child<QPushButton>(page, "m_pbReset"));
    QVERIFY(complete.count() >= 1);
    QVERIFY(!page->isComplete());
    for (const char* name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbBracket",
             "m_lbFocalLength", "m_lbImageLog", "m_lbFocalLengthImage" })
        QCOMPARE(Child<QLabel>(page, name)->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLineEdit>(page, "m_leConfigFile")->text(), QString());
    QCOMPARE(Child<QLineEdit>(page, "m_leImage")->text(), QString());
    QVERIFY(PreviewPixmap(page).isNull());
    QVERIFY(ReaderOf(page)->ZIImageDefs().isEmpty());
    QVERIFY(!Child<QPushButton>(page, "m_pbFLUseXML")->isEnabled());

    // cleanupPage empties the page but keeps the record's focal length.
    QVERIFY(Open("merlin_three.xml", AddPhotos(3, 20.0f, 0)));
    page->cleanupPage();
    for (const char* name :
        { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbBracket", "m_lbImageLog" })
        QCOMPARE(Child<QLabel>(page, name)->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLabel>(page, "m_lbFocalLength")->text(), QStringLiteral("20.00mm"));
    QVERIFY(!page->isComplete());
}

void tst_UIWPMerlin::warnings_data()
{
    QTest::addColumn<QString>("fixture");
    QTest::addColumn<int>("photos");
    QTest::addColumn<float>("focal");
    QTest::addColumn<int>("lens");
    QTest::addColumn<QString>("warning");
    QTest::newRow("all agree") << "merlin_three.xml" << 3 << 20.0f << 0 << QString();
    QTest::newRow("bracketing") << "merlin_bracket13.xml" << 13 << 10.5f << 0
                                << "Bracketing used in XML, should be multiple of that number";
    QTest::newRow("count and bracketing")
        << "merlin_bracket13.xml" << 11 << 10.5f << 0 << "Not the same as in XML fil";
    QTest::newRow("count, 12 of 13")
        << "merlin_bracket13.xml" << 12 << 10.5f << 0 << "Not the same as in XML fil";
    QTest::newRow("focal 12 against 10.5") << "merlin_focal105.xml" << 3 << 12.0f << 0
                                           << "Focal Length difference between EXIF and XML";
    QTest::newRow("focal 11 against 10.5") << "merlin_focal105.xml" << 3 << 11.0f << 0 << QString();
    QTest::newRow("focal after count") << "merlin_bracket13.xml" << 12 << 20.0f << 0
                                       << "Focal Length difference between EXIF and XML";
    QTest::newRow("lens last of all") << "merlin_bracket13.xml" << 11 << 20.0f << 1
                                      << "Lens type difference between EXIF and XML";
    QTest::newRow("fisheye record, standard photos")
        << "merlin_fisheye.xml" << 4 << 8.0f << 0 << "Lens type difference between EXIF and XML";
    QTest::newRow("fisheye record, fisheye photos")
        << "merlin_fisheye.xml" << 4 << 8.0f << 1 << QString();
    QTest::newRow("no focal in the record") << "merlin_nolens.xml" << 3 << 50.0f << 0 << QString();
}

void tst_UIWPMerlin::warnings()
{
    QFETCH(QString, fixture);
    QFETCH(int, photos);
    QFETCH(float, focal);
    QFETCH(int, lens);
    QFETCH(QString, warning);
    UIWPMerlin* page = NewPage();
    QVERIFY(Open(fixture, AddPhotos(photos, focal, lens)));
    QCOMPARE(Child<QLabel>(page, "m_lbWarning")->text(), Warning(warning));
}

void tst_UIWPMerlin::focalAndLensFollowThePhotos()
{
    UIWPMerlin* page = NewPage();
    auto* focal = Child<QDoubleSpinBox>(page, "m_spFocal");
    auto* lens = Child<QComboBox>(page, "m_cbLensType");
    // Photos without EXIF focal: the record's focal and lens are shown.
    QVERIFY(Open("merlin_three.xml", AddPhotos(3, 0.0f, 1)));
    QCOMPARE(focal->value(), 20.0);
    QCOMPARE(lens->currentIndex(), 0);
    QCOMPARE(Child<QLabel>(page, "m_lbFocalLengthImage")->text(), QStringLiteral("N/A"));
    // Photos with focal lengths 18, 20, 25: their mean and the last one's lens win.
    const QStringList photos = m_folder->AddPhotos(3, "exif");
    m_host->AddImage(photos[0], 18.0f, 0, 1);
    m_host->AddImage(photos[1], 20.0f, 0, 2);
    m_host->AddImage(photos[2], 25.0f, 1, 3);
    focal->setValue(70.0);
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectImages"), photos);
    QVERIFY(WaitForReading(page, 3));
    const double mean = (double(18.0f) + double(20.0f) + double(25.0f)) / 3;
    QCOMPARE(focal->value(), std::round(mean * 100) / 100);
    QCOMPARE(lens->currentIndex(), 1);
    QCOMPARE(Child<QLabel>(page, "m_lbFocalLengthImage")->text(),
        QString::number(mean, 'f', 2) + QStringLiteral("mm"));
    // Neither the record nor the photos tell a focal length: nothing is preset.
    m_page.reset();
    page = NewPage();
    QVERIFY(Open("merlin_nolens.xml", AddPhotos(3, 0.0f, 0, "bare")));
    QCOMPARE(Child<QDoubleSpinBox>(page, "m_spFocal")->value(), 1.0);
    QCOMPARE(Child<QComboBox>(page, "m_cbLensType")->currentIndex(), 1);
}

void tst_UIWPMerlin::focalButtons()
{
    UIWPMerlin* page = NewPage();
    QVERIFY(Open("merlin_fisheye.xml", AddPhotos(4, 10.0f, 0)));
    auto* focal = Child<QDoubleSpinBox>(page, "m_spFocal");
    auto* lens = Child<QComboBox>(page, "m_cbLensType");
    QCOMPARE(focal->value(), 10.0);
    QCOMPARE(lens->currentIndex(), 0);
    Click(Child<QPushButton>(page, "m_pbFLUseXML"));
    QCOMPARE(focal->value(), 8.0);
    QCOMPARE(lens->currentIndex(), 1);
    Click(Child<QPushButton>(page, "m_pbFLUseImage"));
    QCOMPARE(focal->value(), 10.0);
    QCOMPARE(lens->currentIndex(), 0);
    // Without a focal length in the record its button is disabled.
    m_page.reset();
    page = NewPage();
    QVERIFY(Open("merlin_nolens.xml", AddPhotos(3, 35.0f, 0, "other")));
    QVERIFY(!Child<QPushButton>(page, "m_pbFLUseXML")->isEnabled());
    QVERIFY(Child<QPushButton>(page, "m_pbFLUseImage")->isEnabled());
}

void tst_UIWPMerlin::controlKeyOpensTheFileBrowser()
{
    UIWPMerlin* page = NewPage();
    UrlCatcher catcher(QStringLiteral("file"));
    {
        DialogAnswerer unexpected(
            "QFileDialog", [](QWidget* w) { w->close(); }, 300);
        Click(Child<QPushButton>(page, "m_pbSelectImages"), Qt::ControlModifier);
        QTest::qWait(350);
        QVERIFY(!unexpected.answered());
    }
    QCOMPARE(catcher.urls, QList<QUrl> { QUrl(QStringLiteral("file:///") + m_folder->path()) });
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("N/A"));
    QVERIFY(m_host->CallsStartingWith("SetDefaultFolder").isEmpty());

    const QString record = m_folder->AddFixture("merlin_three.xml");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { record });
    m_host->ClearCalls();
    {
        DialogAnswerer unexpected(
            "QFileDialog", [](QWidget* w) { w->close(); }, 300);
        Click(Child<QPushButton>(page, "m_pbSelectConfigFile"), Qt::ControlModifier);
        QTest::qWait(350);
        QVERIFY(!unexpected.answered());
    }
    QCOMPARE(catcher.urls.size(), 2);
    QCOMPARE(catcher.urls[1], QUrl(QStringLiteral("file:///") + record));
    QVERIFY(m_host->CallsStartingWith("SetDefaultFolder").isEmpty());
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
}

void tst_UIWPMerlin::linkingButtonsConstrainEachOther()
{
    UIWPMerlin* page = NewPage();
    auto* level0 = Child<QRadioButton>(page, "m_rbLevelLinking0");
    auto* level1 = Child<QRadioButton>(page, "m_rbLevelLinking1");
    auto* stack0 = Child<QRadioButton>(page, "m_rbStackLinking0");
    auto* stack1 = Child<QRadioButton>(page, "m_rbStackLinking1");
    Click(level1);
    QVERIFY(level1->isChecked() && !level0->isChecked());
    QVERIFY(stack1->isChecked() && !stack0->isChecked());
    Click(stack0);
    QVERIFY(stack0->isChecked() && !stack1->isChecked());
    QVERIFY(level0->isChecked() && !level1->isChecked());
    // The other two buttons constrain nothing.
    Click(stack1);
    QVERIFY(stack1->isChecked() && level0->isChecked());
    Click(level1);
    Click(level0);
    QVERIFY(level0->isChecked() && stack1->isChecked());
}

void tst_UIWPMerlin::validateChecksBracketing()
{
    UIWPMerlin* page = NewPage();
    QVERIFY(Open("merlin_nine_b3.xml", AddPhotos(10, 24.0f, 0)));
    const SeenMessageBox box = RunAndAnswerBox([&] { QVERIFY(!page->validatePage()); });
    QVERIFY(box.seen);
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.title, QStringLiteral("Warning"));
    QCOMPARE(box.text,
        QStringLiteral("Papywizard XML has bracketing and the number of images "
                       "isn't a multiple of this number of brackets."));
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(box.flags.testFlag(Qt::MSWindowsFixedSizeDialogHint));
    QCOMPARE(box.flags & Qt::WindowType_Mask, Qt::Dialog);
    QCOMPARE(box.parent, nullptr);
    QVERIFY(box.modal);
    QVERIFY(m_host->Imports().isEmpty());

    m_page.reset();
    page = NewPage();
    const QStringList photos = AddPhotos(9, 24.0f, 0, "nine");
    QVERIFY(Open("merlin_nine_b3.xml", photos));
    const SeenMessageBox none = RunAndAnswerBox([&] { QVERIFY(page->validatePage()); });
    QVERIFY(!none.seen);
    QCOMPARE(m_host->Imports().size(), 1);
    const StructuredPanoramaProperties record = m_host->Imports().first();
    QCOMPARE(record.m_stacks,
        (QVector<QStringList> { photos.mid(0, 3), photos.mid(3, 3), photos.mid(6, 3) }));
}

void tst_UIWPMerlin::validateHandsTheRecordOver()
{
    UIWPMerlin* page = NewPage();
    const QStringList photos = AddPhotos(3, 20.0f, 0);
    QVERIFY(Open("merlin_three.xml", photos));
    QCOMPARE(Child<QComboBox>(page, "m_cbLensType")->currentIndex(), 0);
    QVERIFY(page->validatePage());
    QCOMPARE(m_host->CallsStartingWith("ImportStructuredPanorama").size(), 1);

    StructuredPanoramaProperties expected;
    expected.m_stacks = { { photos[0] }, { photos[1] }, { photos[2] } };
    expected.m_yaw = { Radians(0), Radians(30), Radians(60) };
    expected.m_pitch = { Radians(-10), Radians(0), Radians(20) };
    expected.m_roll = { Radians(0), Radians(0), Radians(0) };
    expected.m_focalLength = 20.0f;
    expected.m_lensModel = LensStandard;
    // At 20 mm half the diagonal view is about 47.3 degrees; the three
    // positions lie 31.5, 35.5 and 66.2 degrees apart, each within 0.65 x d,
    // and every later one lies to the right of the earlier.
    auto link = [](int from, int to) {
        AuthorizedLink l;
        l.m_direction = 2;
        l.m_stackIndices = { from, to };
        return l;
    };
    expected.m_links = { link(0, 1), link(0, 2), link(1, 2) };
    expected.m_autoDetection = true;
    CompareRecords(m_host->Imports().first(), expected);
}

void tst_UIWPMerlin::validateTwiceHandsTheSameRecord()
{
    UIWPMerlin* page = NewPage();
    QVERIFY(Open("merlin_three.xml", AddPhotos(3, 20.0f, 1)));
    QVERIFY(page->validatePage());
    QVERIFY(page->validatePage());
    const auto imports = m_host->Imports();
    QCOMPARE(imports.size(), 2);
    QCOMPARE(imports[1].m_stacks.size(), 3);
    CompareRecords(imports[1], imports[0]);
    // Fisheye from the photos: no links.
    QVERIFY(imports[0].m_links.isEmpty());
    QCOMPARE(int(imports[0].m_lensModel), 1);
}

void tst_UIWPMerlin::validateWithoutHostImportsNothing()
{
    UIWPMerlin* page = NewPage();
    QVERIFY(Open("merlin_nine_b3.xml", AddPhotos(10, 24.0f, 0)));
    m_host->SetInterfaceHidden(true);
    const SeenMessageBox box = RunAndAnswerBox([&] { QVERIFY(page->validatePage()); });
    m_host->SetInterfaceHidden(false);
    QVERIFY(!box.seen);
    QVERIFY(m_host->Imports().isEmpty());
}

void tst_UIWPMerlin::options_data()
{
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("stack");
    QTest::addColumn<bool>("autoDetection");
    QTest::addColumn<bool>("clean");
    QTest::addColumn<bool>("skip");
    QTest::addColumn<bool>("recorded");
    QTest::newRow("as the page starts")
        << QStringList() << 0 << 0 << true << false << false << true;
    QTest::newRow("all stack levels")
        << QStringList { "m_rbLevelLinking1" } << 1 << 1 << true << false << false << true;
    QTest::newRow("control points only")
        << QStringList { "m_rbStackLinking1" } << 0 << 1 << true << false << false << true;
    QTest::newRow("back to hard links") << QStringList { "m_rbLevelLinking1", "m_rbStackLinking0" }
                                        << 0 << 0 << true << false << false << true;
    QTest::newRow("every box flipped")
        << QStringList { "m_autoStart", "m_cleanLink", "m_noOptim", "m_GridOptim" } << 0 << 0
        << false << true << true << false;
}

void tst_UIWPMerlin::options()
{
    QFETCH(QStringList, clicks);
    QFETCH(int, level);
    QFETCH(int, stack);
    QFETCH(bool, autoDetection);
    QFETCH(bool, clean);
    QFETCH(bool, skip);
    QFETCH(bool, recorded);
    UIWPMerlin* page = NewPage();
    QVERIFY(Open("merlin_three.xml", AddPhotos(3, 20.0f, 1)));
    for (const QString& name : clicks)
        Click(page->findChild<QAbstractButton*>(name));
    QVERIFY(page->validatePage());
    const StructuredPanoramaProperties record = m_host->Imports().last();
    QCOMPARE(record.m_levelLinking, level);
    QCOMPARE(record.m_stackLinking, stack);
    QCOMPARE(record.m_autoDetection, autoDetection);
    QCOMPARE(record.m_cleanWrongLinks, clean);
    QCOMPARE(record.m_skipOptimization, skip);
    QCOMPARE(record.m_useRecordedLocation, recorded);

    // A partly ticked box counts as unticked; with no button of a group
    // checked the record keeps what it had.
    auto* autoStart = Child<QCheckBox>(page, "m_autoStart");
    autoStart->setTristate(true);
    autoStart->setCheckState(Qt::PartiallyChecked);
    for (const char* name :
        { "m_rbLevelLinking0", "m_rbLevelLinking1", "m_rbStackLinking0", "m_rbStackLinking1" }) {
        auto* radio = Child<QRadioButton>(page, name);
        radio->setAutoExclusive(false);
        radio->setChecked(false);
    }
    Child<QButtonGroup>(page, "buttonGroup")->setExclusive(false);
    Child<QRadioButton>(page, "m_rbStackLinking1")->setChecked(false);
    Child<QRadioButton>(page, "m_rbStackLinking0")->setChecked(false);
    QVERIFY(page->validatePage());
    const StructuredPanoramaProperties again = m_host->Imports().last();
    QCOMPARE(again.m_autoDetection, false);
    QCOMPARE(again.m_levelLinking, level);
    QCOMPARE(again.m_stackLinking, stack);
}

void tst_UIWPMerlin::previewSizeFollowsCanvasAndZoom()
{
    UIWPMerlin* page = NewPage();
    // Nothing is drawn before a photo is read.
    const QString record = m_folder->AddFixture("merlin_three.xml");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { record });
    QVERIFY(PreviewPixmap(page).isNull());
    QVERIFY(Open("merlin_three.xml", AddPhotos(3, 20.0f, 0)));
    // Shots at yaw 0, 30, 60 and pitch -10, 0, 20: the smallest step is 10 degrees.
    const float step = 10.0f;
    const float scale = 96.0f / std::max(8.0f, step);
    const int width = int(std::fabs(60.0f - 0.0f) * scale + 100);
    const int height = int(100 + std::fabs(20.0f - -10.0f) * scale);
    QCOMPARE(PreviewPixmap(page).size(), QSize(width * 50 / 100, height * 50 / 100));
    auto* zoom = Child<QSlider>(page, "m_hSlider");
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    zoom->setValue(73);
    QCOMPARE(PreviewPixmap(page).size(), QSize(width * 73 / 100, height * 73 / 100));
    QCOMPARE(complete.count(), 1);
    zoom->setValue(100);
    QCOMPARE(PreviewPixmap(page).size(), QSize(width, height));
    zoom->setValue(1);
    QCOMPARE(PreviewPixmap(page).size(), QSize(width / 100, height / 100));
}

void tst_UIWPMerlin::previewOrdersByKey()
{
    UIWPMerlin* page = NewPage();
    const QStringList photos = m_folder->AddPhotos(3);
    const QColor colours[] = { Qt::red, Qt::green, Qt::blue };
    // Keys in the reverse of the names' order.
    for (int i = 0; i < 3; ++i)
        m_host->AddImage(photos[i], 20.0f, 0, 30 - 10 * i, 0.0f, colours[i]);
    QVERIFY(Open("merlin_three.xml", photos));
    Child<QSlider>(page, "m_hSlider")->setValue(100);
    const QImage preview = PreviewPixmap(page).toImage();
    const float scale = 9.6f;
    // Shot i at yaw 30 i; pitch -10, 0, 20 drawn from the top at (20 - pitch).
    const float pitches[] = { -10, 0, 20 };
    for (int i = 0; i < 3; ++i) {
        const float x = (30.0f * i - 0.0f) * scale + 50;
        const float y = ((30.0f - pitches[i]) + -10.0f) * scale + 50;
        QCOMPARE(preview.pixelColor(int(x) + 20, int(y) + 20), colours[2 - i]);
    }
}

void tst_UIWPMerlin::previewKeepsReadingOrderForSharedKeys()
{
    UIWPMerlin* page = NewPage();
    const QStringList photos = m_folder->AddPhotos(3);
    const QColor colours[] = { Qt::red, Qt::green, Qt::blue };
    const qint64 keys[] = { 5, 5, 1 };
    for (int i = 0; i < 3; ++i)
        m_host->AddImage(photos[i], 20.0f, 0, keys[i], 0.0f, colours[i]);
    QVERIFY(Open("merlin_three.xml", photos));
    Child<QSlider>(page, "m_hSlider")->setValue(100);
    const QImage preview = PreviewPixmap(page).toImage();
    const float pitches[] = { -10, 0, 20 };
    for (int i = 0; i < 3; ++i) {
        const float x = 30.0f * i * 9.6f + 50;
        const float y = ((30.0f - pitches[i]) + -10.0f) * 9.6f + 50;
        QCOMPARE(preview.pixelColor(int(x) + 20, int(y) + 20), colours[i]);
    }
}

void tst_UIWPMerlin::previewCountGuard()
{
    UIWPMerlin* page = NewPage();
    QVERIFY(Open("merlin_three.xml", AddPhotos(3, 20.0f, 0)));
    const qint64 drawn = PreviewPixmap(page).cacheKey();
    // The same number of photos read: nothing is drawn again.
    page->RestoreState(QByteArray("ignored"));
    QCOMPARE(PreviewPixmap(page).cacheKey(), drawn);
    // Entering the page empties the cache: the next update draws.
    page->initializePage();
    QCOMPARE(PreviewPixmap(page).cacheKey(), drawn);
    page->RestoreState(QByteArray());
    QVERIFY(PreviewPixmap(page).cacheKey() != drawn);
}

void tst_UIWPMerlin::previewCellsAndImagesDisagree()
{
    UIWPMerlin* page = NewPage();
    const QStringList photos = m_folder->AddPhotos(2);
    m_host->AddImage(photos[0], 20.0f, 0, 1, 0.0f, Qt::red);
    m_host->AddImage(photos[1], 20.0f, 0, 2, 0.0f, Qt::green);
    QVERIFY(Open("merlin_three.xml", photos));
    Child<QSlider>(page, "m_hSlider")->setValue(100);
    const QImage preview = PreviewPixmap(page).toImage();
    const QColor background = page->palette().color(QPalette::Window);
    // Shot 2 (yaw 60, pitch 20) has no photo: outlined, labelled, empty.
    const float x = 60.0f * 9.6f + 50;
    const float y = ((30.0f - 20.0f) + -10.0f) * 9.6f + 50;
    QCOMPARE(preview.pixelColor(int(x) + 20, int(y) + 20), background);
    QCOMPARE(preview.pixelColor(int(x) - 20, int(y) + 20), background);
    QCOMPARE(preview.pixelColor(int(50) + 20, int(((30.0f + 10.0f) - 10.0f) * 9.6f + 50) + 20),
        QColor(Qt::red));
}

void tst_UIWPMerlin::previewOfOneShotAndOfCloseShots()
{
    UIWPMerlin* page = NewPage();
    Child<QSlider>(page, "m_hSlider")->setValue(100);
    // One shot, three photos: a 100 x 100 canvas holding the first photo only.
    QVERIFY(Open("merlin_one.xml", AddPhotos(3, 35.0f, 0)));
    QCOMPARE(PreviewPixmap(page).size(), QSize(100, 100));
    // Two shots 2 degrees apart are drawn 8 degrees apart: 12 pixels a degree.
    m_page.reset();
    page = NewPage();
    Child<QSlider>(page, "m_hSlider")->setValue(100);
    QVERIFY(Open("merlin_two_close.xml", AddPhotos(2, 50.0f, 0, "close")));
    QCOMPARE(PreviewPixmap(page).size(), QSize(int(2.0f * 12.0f + 100), 100));
}

void tst_UIWPMerlin::rotationAddsToTheRoll()
{
    UIWPMerlin* page = NewPage();
    const QStringList photos = m_folder->AddPhotos(3);
    // Thumbnails red on the left, blue on the right.
    for (int i = 0; i < 3; ++i) {
        TestImageDef* def = m_host->AddImage(photos[i], 20.0f, 1, i + 1);
        def->m_thumbnail = QPixmap(20, 10);
        def->m_thumbnail.fill(Qt::blue);
        QPainter painter(&def->m_thumbnail);
        painter.fillRect(0, 0, 10, 10, Qt::red);
    }
    QVERIFY(Open("merlin_three.xml", photos));
    Child<QSlider>(page, "m_hSlider")->setValue(100);
    const float y0 = ((30.0f + 10.0f) - 10.0f) * 9.6f + 50;
    QImage preview = PreviewPixmap(page).toImage();
    QCOMPARE(preview.pixelColor(50 - 24, int(y0) + 10), QColor(Qt::red));
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    Click(Child<QPushButton>(page, "m_pbRot90"));
    QCOMPARE(complete.count(), 1);
    preview = PreviewPixmap(page).toImage();
    QCOMPARE(preview.pixelColor(50 + 10, int(y0) - 24), QColor(Qt::red));
    QCOMPARE(preview.pixelColor(50 + 10, int(y0) + 24), QColor(Qt::blue));
    for (int i = 0; i < 3; ++i)
        Click(Child<QPushButton>(page, "m_pbRot90"));
    QVERIFY(page->validatePage());
    // Four quarter turns: every roll is 360 degrees, not 0.
    QVERIFY(m_host->Imports().last().m_roll
        == (QVector<float> { Radians(360), Radians(360), Radians(360) }));
    Click(Child<QPushButton>(page, "m_pbRot270"));
    QVERIFY(page->validatePage());
    QVERIFY(m_host->Imports().last().m_roll
        == (QVector<float> { Radians(270), Radians(270), Radians(270) }));
}

void tst_UIWPMerlin::inverseFlipsThePitch()
{
    UIWPMerlin* page = NewPage();
    QVERIFY(Open("merlin_three.xml", AddPhotos(3, 20.0f, 1)));
    const qint64 drawn = PreviewPixmap(page).cacheKey();
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    Click(Child<QPushButton>(page, "m_pInverseCoordinates"));
    QCOMPARE(complete.count(), 1);
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("-20,10"));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("0,60"));
    QVERIFY(PreviewPixmap(page).cacheKey() != drawn);
    QVERIFY(page->validatePage());
    QVERIFY(m_host->Imports().last().m_pitch
        == (QVector<float> { Radians(10), Radians(-0.0f), Radians(-20) }));
    Click(Child<QPushButton>(page, "m_pInverseCoordinates"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("-10,20"));
    // Without a record only the (unread) range flips, which stays unread.
    Click(Child<QPushButton>(page, "m_pbReset"));
    Click(Child<QPushButton>(page, "m_pInverseCoordinates"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("N/A"));
}

void tst_UIWPMerlin::stateIsNotKept()
{
    UIWPMerlin* page = NewPage();
    QVERIFY(Open("merlin_three.xml", AddPhotos(3, 20.0f, 0)));
    QVERIFY(page->SaveState().isEmpty());
    m_host->ClearCalls();
    page->RestoreState(QByteArray("\x01\x02 anything", 11));
    QVERIFY(m_host->Calls().isEmpty());
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("3"));
    QCOMPARE(Child<QComboBox>(page, "m_cbLensType")->currentIndex(), 0);
    QVERIFY(page->isComplete());
}

void tst_UIWPMerlin::readingDoesNotBlockTheInterface()
{
    UIWPMerlin* page = NewPage();
    const QStringList photos = AddPhotos(3, 30.0f, 0);
    m_host->HoldReading();
    const QString record = m_folder->AddFixture("merlin_three.xml");
    QVERIFY(ClickAndChooseFiles(
        Child<QPushButton>(page, "m_pbSelectConfigFile"), QStringList { record } + photos)
                .seen);
    // The page answers while the host still reads.
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("3"));
    QCOMPARE(Child<QLabel>(page, "m_lbFocalLengthImage")->text(), QStringLiteral("N/A"));
    QVERIFY(!page->isComplete());
    Child<QSlider>(page, "m_hSlider")->setValue(60);
    m_host->ReleaseReading(3);
    QVERIFY(WaitForReading(page, 3));
    QCOMPARE(Child<QLabel>(page, "m_lbFocalLengthImage")->text(), QStringLiteral("30.00mm"));
    QVERIFY(page->isComplete());
}

void tst_UIWPMerlin::unreadablePhotosKeepThePageIncomplete()
{
    UIWPMerlin* page = NewPage();
    const QStringList photos = AddPhotos(2, 20.0f, 0);
    const QString missing = m_folder->AddText("photo_03.jpg", QByteArray());
    const QString throwing = m_folder->AddText("photo_04.jpg", QByteArray());
    m_host->SetThrowing(throwing);
    const QString record = m_folder->AddFixture("merlin_three.xml");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"),
        QStringList { record } + photos + QStringList { missing });
    QVERIFY(WaitForReading(page, 2));
    QVERIFY(!page->isComplete());
    QCOMPARE(Child<QLabel>(page, "m_lbImageLog")->text(), QStringLiteral("3"));
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectImages"),
        QStringList { photos[0], photos[1], throwing });
    QVERIFY(WaitForReading(page, 2));
    QVERIFY(!page->isComplete());
}

ZPH_PAGE_TEST_MAIN(tst_UIWPMerlin)
#include "tst_UIWPMerlin.moc"
