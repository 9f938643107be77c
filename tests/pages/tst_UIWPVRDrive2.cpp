// The VR Drive 2 import page: where it departs from the Papywizard page (form,
// range kept after a failed read, focal warning wording, output mode, the
// generator that puts the medium exposure first, a preview without cache or
// ordering) and the behaviour it shares with it.
#include "PageTestHost.h"
#include "PageTestSupport.h"
#include "ReadingThread.h"
#include "UIWPVRDrive2.h"
#include "ZUI.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

#include <memory>

namespace {

QString Warning(const QString& text)
{
    return QStringLiteral("<p style='color:red'>") + text + QStringLiteral("</p>");
}

} // namespace

class tst_UIWPVRDrive2 : public PageTest<UIWPVRDrive2>
{
    Q_OBJECT

private slots:
    void formMatchesTheDesign();
    void logoIsShownWhenThePictureExists();
    void failedPresetKeepsTheEarlierRange();
    void focalWarningSaysLength();
    void bracketingWarningUsesThePapywizardWording();
    void validateHandsTheRecordOver();
    void outputMode_data();
    void outputMode();
    void previewDrawsEveryTimeInReadingOrder();
    void sharedBehaviour();

private:
    QStringList AddBracketedPhotos(int positions, float focal);
    bool Open(const QString& fixture, const QStringList& photos);
};

QStringList tst_UIWPVRDrive2::AddBracketedPhotos(int positions, float focal)
{
    // Every bracket shot dark, medium, bright: -2, 0, +2.
    const QStringList paths = m_folder->AddPhotos(positions * 3);
    const float exposures[] = { -2.0f, 0.0f, 2.0f };
    for (int i = 0; i < paths.size(); ++i)
        m_host->AddImage(
            paths[i], focal, 0, i + 1, exposures[i % 3], QColor::fromHsv(i * 50 % 360, 255, 255));
    return paths;
}

bool tst_UIWPVRDrive2::Open(const QString& fixture, const QStringList& photos)
{
    const QString record = m_folder->AddFixture(fixture);
    const SeenFileDialog seen = ClickAndChooseFiles(
        Child<QPushButton>(m_page.get(), "m_pbSelectConfigFile"), QStringList { record } + photos);
    return seen.seen && WaitForReading(m_page.get(), photos.size());
}

void tst_UIWPVRDrive2::formMatchesTheDesign()
{
    UIWPVRDrive2* page = NewPage();
    QCOMPARE(page->objectName(), QStringLiteral("UIWPVRDrive2Class"));
    QCOMPARE(page->windowTitle(), QStringLiteral("VR Drive II import plugin"));
    QCOMPARE(page->title(), QStringLiteral("VR Drive 2"));
    QVERIFY(page->subTitle().startsWith(QStringLiteral("The ")));
    QVERIFY(!page->subTitle().contains(QStringLiteral("#DCDCDC")));
    QCOMPARE(page->minimumSize(), QSize(600, 600));
    const QList<QPair<const char*, QString>> texts = { { "label", "XML:" },
        { "m_pbSelectConfigFile", "..." }, { "m_pbReset", "Reset" },
        { "label_4", "Number of images:" }, { "m_lbPapyLog", "N/A" }, { "label_2", "Yaw:" },
        { "m_lbThetaMinMax", "N/A" }, { "label_9", "Pitch:" }, { "m_lbPhiMinMax", "N/A" },
        { "label_10", "Bracketing:" }, { "m_lbBracket", "N/A" }, { "label_12", "XML focal:" },
        { "m_lbFocalLength", "N/A" }, { "m_pbSelectImages", "..." }, { "m_lbImage", "Images:" },
        { "label_5", "Number of images:" }, { "m_lbImageLog", "N/A" },
        { "label_14", "Image focal:" }, { "m_lbFocalLengthImage", "N/A" }, { "label_6", "Output:" },
        { "m_rbOutputMode1", "8-bits / 16-bits tonemapped" },
        { "m_rbOutputMode2", "32-bits HDR radiance" },
        // "TextLabel" in the form, replaced when the page first refreshes.
        { "m_lbWarning", Warning(QString()) }, { "m_pInverseCoordinates", "Inverse Y coordinates" },
        { "label_15", "Focal length:" }, { "label_16", "Lens Type:" },
        { "m_pbFLUseXML", "Use XML information" }, { "m_pbFLUseImage", "Use image information" },
        { "label_13", "Detect links in:" }, { "m_rbLevelLinking0", "The reference level" },
        { "m_rbLevelLinking1", "All stack levels" }, { "label_11", "For a stack:" },
        { "m_rbStackLinking0", "Use hard links" }, { "m_rbStackLinking1", "Detect control points" },
        { "m_autoStart", "Auto detection" }, { "m_cleanLink", "Clean wrong link" },
        { "m_noOptim", "Skip optimization" }, { "m_GridOptim", "Use recorded location" },
        { "label_3", "Zoom" } };
    for (const auto& entry : texts) {
        QWidget* widget = Child<QWidget>(page, entry.first);
        QVERIFY2(widget, entry.first);
        QCOMPARE(widget->property("text").toString(), entry.second);
    }
    QVERIFY(Child<QRadioButton>(page, "m_rbOutputMode1")->isChecked());
    QVERIFY(!Child<QRadioButton>(page, "m_rbOutputMode2")->isChecked());
    QVERIFY(!Child<QLineEdit>(page, "m_leHeaderTitle"));
    auto* tabs = Child<QTabWidget>(page, "tabWidget");
    QCOMPARE(tabs->count(), 4);
    const QStringList tabTexts = { "General", "Shoot setup", "Stack", "Detection options" };
    for (int i = 0; i < tabs->count(); ++i)
        QCOMPARE(tabs->tabText(i), tabTexts[i]);
    // The photos' block stands first in the General tab.
    QVERIFY(Child<QWidget>(page, "m_pbSelectImages")->y()
        < Child<QWidget>(page, "m_pbSelectConfigFile")->y());
    auto* lens = Child<QComboBox>(page, "m_cbLensType");
    QCOMPARE(lens->count(), 2);
    QCOMPARE(lens->currentIndex(), 1);
    auto* focal = Child<QDoubleSpinBox>(page, "m_spFocal");
    QCOMPARE(focal->minimum(), 1.0);
    QCOMPARE(focal->maximum(), 10000.0);
    auto* zoom = Child<QSlider>(page, "m_hSlider");
    QCOMPARE(zoom->minimum(), 1);
    QCOMPARE(zoom->maximum(), 100);
    QCOMPARE(zoom->value(), 50);
    QCOMPARE(Child<QPushButton>(page, "m_pbRot90")->iconSize(), QSize(32, 32));
}

void tst_UIWPVRDrive2::logoIsShownWhenThePictureExists()
{
    UIWPVRDrive2* page = NewPage();
    QCOMPARE(page->pixmap(QWizard::LogoPixmap).size(), QSize(12, 8));
    m_page.reset();
    // Without the picture in the resources the page simply has no logo.
    Q_CLEANUP_RESOURCE(page_pictures);
    page = NewPage();
    QVERIFY(page->pixmap(QWizard::LogoPixmap).isNull());
    Q_INIT_RESOURCE(page_pictures);
}

void tst_UIWPVRDrive2::failedPresetKeepsTheEarlierRange()
{
    UIWPVRDrive2* page = NewPage();
    QVERIFY(Open("vrd_b3.xml", AddBracketedPhotos(2, 20.0f)));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("0,60"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("10,10"));
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("6"));
    const QString broken = m_folder->AddFixture("merlin_broken.xml");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { broken });
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("0,60"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("10,10"));
    QCOMPARE(Child<QLabel>(page, "m_lbPapyLog")->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLabel>(page, "m_lbBracket")->text(), QStringLiteral("N/A"));
    QVERIFY(!page->isComplete());
    // A good preset replaces the range.
    const QString other = m_folder->AddFixture("vrd_other.xml");
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"), { other });
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("-20,100"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("-40,50"));
    // A failed read on a fresh page leaves the no-record range.
    m_page.reset();
    page = NewPage();
    ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectConfigFile"),
        { m_folder->AddFixture("merlin_broken.xml") });
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("N/A"));
}

void tst_UIWPVRDrive2::focalWarningSaysLength()
{
    UIWPVRDrive2* page = NewPage();
    QVERIFY(Open("vrd_b3.xml", AddBracketedPhotos(2, 30.0f)));
    QCOMPARE(Child<QLabel>(page, "m_lbWarning")->text(),
        Warning("Focal length difference between EXIF and XML"));
}

void tst_UIWPVRDrive2::bracketingWarningUsesThePapywizardWording()
{
    UIWPVRDrive2* page = NewPage();
    QStringList photos = AddBracketedPhotos(2, 20.0f);
    photos.removeLast();
    QVERIFY(Open("vrd_b3.xml", photos));
    QCOMPARE(Child<QLabel>(page, "m_lbWarning")->text(), Warning("Not the same as in XML fil"));
    const SeenMessageBox box = RunAndAnswerBox([&] { QVERIFY(!page->validatePage()); });
    QVERIFY(box.seen);
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.title, QStringLiteral("Warning"));
    QCOMPARE(box.text,
        QStringLiteral("Papywizard XML has bracketing and the number of images "
                       "isn't a multiple of this number of brackets."));
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, nullptr);
    QVERIFY(m_host->Imports().isEmpty());
}

void tst_UIWPVRDrive2::validateHandsTheRecordOver()
{
    UIWPVRDrive2* page = NewPage();
    const QStringList p = AddBracketedPhotos(2, 20.0f);
    QVERIFY(Open("vrd_b3.xml", p));
    QVERIFY(page->isComplete());
    QVERIFY(page->validatePage());
    QCOMPARE(m_host->Imports().size(), 1);

    StructuredPanoramaProperties expected;
    // The medium exposure (0) of every bracket becomes its stack's first image.
    expected.m_stacks = { { p[1], p[0], p[2] }, { p[4], p[3], p[5] } };
    expected.m_yaw = { Radians(0), Radians(0), Radians(0), Radians(60), Radians(60), Radians(60) };
    expected.m_pitch = QVector<float>(6, Radians(10));
    expected.m_roll = QVector<float>(6, Radians(0));
    expected.m_focalLength = 20.0f;
    expected.m_lensModel = LensStandard;
    // The two positions lie about 59 degrees apart, within 0.65 x d of the
    // 47.3 degrees half view at 20 mm; the second lies to the right.
    AuthorizedLink link;
    link.m_direction = 2;
    link.m_stackIndices = { 0, 1 };
    expected.m_links = { link };
    expected.m_autoDetection = true;
    expected.m_outputMode = 2;
    CompareRecords(m_host->Imports().first(), expected);
}

void tst_UIWPVRDrive2::outputMode_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<int>("mode");
    QTest::newRow("tonemapped") << 1 << 2;
    QTest::newRow("HDR radiance") << 2 << 3;
    QTest::newRow("neither") << 0 << 3;
}

void tst_UIWPVRDrive2::outputMode()
{
    QFETCH(int, choice);
    QFETCH(int, mode);
    UIWPVRDrive2* page = NewPage();
    QVERIFY(Open("vrd_b3.xml", AddBracketedPhotos(2, 20.0f)));
    auto* tonemapped = Child<QRadioButton>(page, "m_rbOutputMode1");
    auto* radiance = Child<QRadioButton>(page, "m_rbOutputMode2");
    if (choice == 1) {
        Click(radiance);
        Click(tonemapped);
    } else if (choice == 2) {
        Click(radiance);
    } else {
        tonemapped->setAutoExclusive(false);
        tonemapped->setChecked(false);
    }
    QVERIFY(page->validatePage());
    QCOMPARE(m_host->Imports().last().m_outputMode, mode);
}

void tst_UIWPVRDrive2::previewDrawsEveryTimeInReadingOrder()
{
    UIWPVRDrive2* page = NewPage();
    const QStringList photos = m_folder->AddPhotos(2);
    // Keys say the second photo came first; this page draws in reading order.
    m_host->AddImage(photos[0], 20.0f, 0, 2, 0.0f, Qt::red);
    m_host->AddImage(photos[1], 20.0f, 0, 1, 0.0f, Qt::green);
    QVERIFY(Open("vrd_other.xml", photos));
    Child<QSlider>(page, "m_hSlider")->setValue(100);
    // Shots (-20, -40) and (100, 50): step 90, 96 / 90 pixels a degree.
    const float scale = 96.0f / 90.0f;
    const QImage preview = PreviewPixmap(page).toImage();
    QCOMPARE(preview.size(), QSize(int(120.0f * scale + 100), int(100 + 90.0f * scale)));
    const float x0 = (-20.0f - -20.0f) * scale + 50;
    const float y0 = ((90.0f - -40.0f) + -40.0f) * scale + 50;
    QCOMPARE(preview.pixelColor(int(x0) + 20, int(y0) + 20), QColor(Qt::red));
    // No cache: every update draws again.
    const qint64 drawn = PreviewPixmap(page).cacheKey();
    page->RestoreState(QByteArray());
    QVERIFY(PreviewPixmap(page).cacheKey() != drawn);
    // Entering the page does nothing.
    const qint64 again = PreviewPixmap(page).cacheKey();
    page->initializePage();
    QCOMPARE(PreviewPixmap(page).cacheKey(), again);
}

void tst_UIWPVRDrive2::sharedBehaviour()
{
    UIWPVRDrive2* page = NewPage();
    const QStringList photos = AddBracketedPhotos(2, 24.0f);
    QVERIFY(Open("vrd_b3.xml", photos));
    QCOMPARE(Child<QDoubleSpinBox>(page, "m_spFocal")->value(), 24.0);
    QCOMPARE(Child<QComboBox>(page, "m_cbLensType")->currentIndex(), 0);
    Click(Child<QPushButton>(page, "m_pbFLUseXML"));
    QCOMPARE(Child<QDoubleSpinBox>(page, "m_spFocal")->value(), 20.0);
    Click(Child<QPushButton>(page, "m_pInverseCoordinates"));
    QCOMPARE(Child<QLabel>(page, "m_lbPhiMinMax")->text(), QStringLiteral("-10,-10"));
    Click(Child<QPushButton>(page, "m_pbRot270"));
    Click(Child<QRadioButton>(page, "m_rbLevelLinking1"));
    QVERIFY(Child<QRadioButton>(page, "m_rbStackLinking1")->isChecked());
    QVERIFY(page->validatePage());
    const StructuredPanoramaProperties record = m_host->Imports().last();
    QVERIFY(record.m_pitch == QVector<float>(6, Radians(-10)));
    QVERIFY(record.m_roll == QVector<float>(6, Radians(-90)));
    QCOMPARE(record.m_levelLinking, 1);
    QCOMPARE(record.m_stackLinking, 1);
    QCOMPARE(record.m_focalLength, 20.0f);
    // Control on the record button shows the record in the file browser.
    UrlCatcher catcher(QStringLiteral("file"));
    Click(Child<QPushButton>(page, "m_pbSelectConfigFile"), Qt::ControlModifier);
    QCOMPARE(catcher.urls,
        QList<QUrl> { QUrl(QStringLiteral("file:///") + m_folder->Path("vrd_b3.xml")) });
    QVERIFY(page->SaveState().isEmpty());
    Click(Child<QPushButton>(page, "m_pbReset"));
    QCOMPARE(Child<QLabel>(page, "m_lbThetaMinMax")->text(), QStringLiteral("N/A"));
    QCOMPARE(Child<QLabel>(page, "m_lbFocalLength")->text(), QStringLiteral("N/A"));
    QVERIFY(!page->isComplete());
}

ZPH_PAGE_TEST_MAIN(tst_UIWPVRDrive2)
#include "tst_UIWPVRDrive2.moc"
