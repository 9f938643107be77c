// The Gigapan import page, used as a user would: its form, the photo dialog
// and the grid it proposes, the grid edits and their column formula, the
// shooting orders, reset, completeness, the grid preview with the photos read
// so far, and the record handed over.
#include "PageTestHost.h"
#include "PageTestSupport.h"
#include "ReadingThread.h"
#include "UIWPGigapan.h"
#include "ZUI.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

#include <memory>

Q_DECLARE_METATYPE(AuthorizedLink)
Q_DECLARE_METATYPE(QVector<AuthorizedLink>)

namespace {

AuthorizedLink Link(int direction, int from, int to)
{
    AuthorizedLink link;
    link.m_direction = direction;
    link.m_stackIndices = { from, to };
    return link;
}

} // namespace

class tst_UIWPGigapan : public PageTest<UIWPGigapan>
{
    Q_OBJECT

private slots:
    void formMatchesTheDesign();
    void gridProposal_data();
    void gridProposal();
    void gridEditsRecomputeTheColumns();
    void rowsBeyondThePhotosGiveNoStacks();
    void orderButtons();
    void resetAndEnteringThePage();
    void completeness();
    void validateHandsTheRecordOver_data();
    void validateHandsTheRecordOver();
    void validateWithoutHostImportsNothing();
    void previewShowsTheGridWithThePhotosReadSoFar();
    void linkingButtonsConstrainEachOther();

private:
    QStringList AddPhotos(int count, const QString& stem = "photo");
    bool Choose(const QStringList& photos);
};

QStringList tst_UIWPGigapan::AddPhotos(int count, const QString& stem)
{
    const QStringList paths = m_folder->AddPhotos(count, stem);
    for (int i = 0; i < paths.size(); ++i)
        m_host->AddImage(
            paths[i], 24.0f, 0, i + 1, 0.0f, QColor(10 * i % 250 + 5, 120, 200 - i % 100));
    return paths;
}

bool tst_UIWPGigapan::Choose(const QStringList& photos)
{
    return ClickAndChooseFiles(Child<QPushButton>(m_page.get(), "m_pbSelectImages"), photos).seen
        && WaitForReading(m_page.get(), photos.size());
}

void tst_UIWPGigapan::formMatchesTheDesign()
{
    UIWPGigapan* page = NewPage();
    QCOMPARE(page->objectName(), QStringLiteral("UIWPGigapanClass"));
    QCOMPARE(page->windowTitle(), QStringLiteral("UIWPGigapan"));
    QCOMPARE(page->title(), QStringLiteral("Gigapan panorama import"));
    QVERIFY(page->subTitle().contains(
        QStringLiteral(" allows users to upload, share, and explore brilliant gigapixel+ "
                       "panoramas from around the globe.")));
    QVERIFY(!page->subTitle().contains(QStringLiteral("#DCDCDC")));
    const QList<QPair<const char*, QString>> texts = { { "label_6", "Images :" },
        { "m_pbSelectImages", "..." }, { "m_pbReset", "Reset" }, { "m_lbImage", "0 images in " },
        { "label_3", "rows and" }, { "label_2", "columns." }, { "label", "Ignore N files " },
        { "label_4", "Nb image per location ( bracketing )" }, { "m_rbMode3", "Columns: to left" },
        { "m_rbMode0", "Columns (default)" }, { "m_rbMode2", "Rows: upward" },
        { "m_rbMode1", "Rows: downward" }, { "label_11", "Layout" },
        { "m_cbIS360", QString::fromUtf8("Force 360° panorama") }, { "label_14", "Overlapping" },
        { "label_13", "Detect links in:" }, { "m_rbLevelLinking0", "The reference level" },
        { "m_rbLevelLinking1", "All stack levels" }, { "label_5", "For a stack:" },
        { "m_rbStackLinking0", "Use hard links" }, { "m_rbStackLinking1", "Detect control points" },
        { "m_autoStart", "Auto detection" }, { "m_cleanLink", "Clean wrong link" },
        { "m_noOptim", "Skip optimization" }, { "label_7", "Zoom" } };
    for (const auto& entry : texts) {
        QWidget* widget = Child<QWidget>(page, entry.first);
        QVERIFY2(widget, entry.first);
        QCOMPARE(widget->property("text").toString(), entry.second);
    }
    for (const char* name : { "label_8", "label_9", "label_10", "label_12" })
        QVERIFY2(Child<QLabel>(page, name), name);
    QVERIFY(!Child<QCheckBox>(page, "m_GridOptim"));
    auto* tabs = Child<QTabWidget>(page, "tabWidget");
    const QStringList tabTexts
        = { "General", "Shoot layout", "Shoot setup", "Stack", "Detection options" };
    const QStringList tabNames = { "tab", "tab_3", "tab_4", "tab_5", "tab_2" };
    QCOMPARE(tabs->count(), 5);
    for (int i = 0; i < tabs->count(); ++i) {
        QCOMPARE(tabs->tabText(i), tabTexts[i]);
        QCOMPARE(tabs->widget(i)->objectName(), tabNames[i]);
    }
    auto* rows = Child<QSpinBox>(page, "m_sbRow");
    auto* columns = Child<QSpinBox>(page, "m_sbColumn");
    QCOMPARE(rows->minimum(), 1);
    QCOMPARE(rows->maximum(), 100000);
    QCOMPARE(columns->minimum(), 1);
    QCOMPARE(columns->maximum(), 100000);
    QVERIFY(columns->isReadOnly());
    auto* bracket = Child<QSpinBox>(page, "m_sbBracket");
    QCOMPARE(bracket->minimum(), 1);
    QCOMPARE(bracket->value(), 1);
    auto* overlap = Child<QDoubleSpinBox>(page, "m_dsbOverlapping");
    QCOMPARE(overlap->minimum(), 5.0);
    QCOMPARE(overlap->maximum(), 100.0);
    QCOMPARE(overlap->singleStep(), 5.0);
    QCOMPARE(overlap->value(), 40.0);
    QVERIFY(Child<QRadioButton>(page, "m_rbMode0")->isChecked());
    QVERIFY(Child<QRadioButton>(page, "m_rbLevelLinking0")->isChecked());
    QVERIFY(Child<QRadioButton>(page, "m_rbStackLinking0")->isChecked());
    QCOMPARE(Child<QCheckBox>(page, "m_autoStart")->checkState(), Qt::Checked);
    QCOMPARE(Child<QCheckBox>(page, "m_cleanLink")->checkState(), Qt::Unchecked);
    QCOMPARE(Child<QCheckBox>(page, "m_noOptim")->checkState(), Qt::Unchecked);
    QVERIFY(!Child<QCheckBox>(page, "m_cbIS360")->isChecked());
    auto* zoom = Child<QSlider>(page, "m_hSlider");
    QCOMPARE(zoom->minimum(), 1);
    QCOMPARE(zoom->maximum(), 100);
    QCOMPARE(zoom->value(), 50);
    // The mode pictures stand beside their buttons: mode 3 and 0 on the first line.
    QCOMPARE(Child<QWidget>(page, "m_rbMode3")->y(), Child<QWidget>(page, "m_rbMode0")->y());
    QCOMPARE(Child<QWidget>(page, "m_rbMode2")->y(), Child<QWidget>(page, "m_rbMode1")->y());
    QVERIFY(!page->isComplete());
}

void tst_UIWPGigapan::gridProposal_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::newRow("12") << 12 << 3 << 4;
    QTest::newRow("18") << 18 << 3 << 6;
    QTest::newRow("7, a prime") << 7 << 1 << 7;
    QTest::newRow("24") << 24 << 4 << 6;
    QTest::newRow("16, a square") << 16 << 4 << 4;
    QTest::newRow("1") << 1 << 1 << 1;
}

void tst_UIWPGigapan::gridProposal()
{
    QFETCH(int, photos);
    QFETCH(int, rows);
    QFETCH(int, columns);
    UIWPGigapan* page = NewPage();
    page->initializePage();
    // Skipped photos and bracketing start afresh with every choice.
    Child<QSpinBox>(page, "m_sbBracket")->setValue(2);
    Child<QSpinBox>(page, "m_sbIgnore")->setValue(1);
    const QStringList paths = AddPhotos(photos);
    QVERIFY(Choose(paths));
    QCOMPARE(Child<QSpinBox>(page, "m_sbRow")->value(), rows);
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), columns);
    QCOMPARE(Child<QSpinBox>(page, "m_sbBracket")->value(), 1);
    QCOMPARE(Child<QSpinBox>(page, "m_sbIgnore")->value(), 0);
    QCOMPARE(Child<QLabel>(page, "m_lbImage")->text(), QStringLiteral("%1 images in ").arg(photos));
    QVERIFY(page->validatePage());
    const StructuredPanoramaProperties record = m_host->Imports().last();
    QCOMPARE(record.m_gridRows, rows);
    QCOMPARE(record.m_stacks.size(), rows * columns);
}

void tst_UIWPGigapan::gridEditsRecomputeTheColumns()
{
    UIWPGigapan* page = NewPage();
    page->initializePage();
    const QStringList photos = AddPhotos(24);
    QVERIFY(Choose(photos));
    QCOMPARE(Child<QSpinBox>(page, "m_sbRow")->value(), 4);
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), 6);
    Child<QSpinBox>(page, "m_sbBracket")->setValue(3);
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), (24 - 0) / 3 / 4);
    Child<QSpinBox>(page, "m_sbIgnore")->setValue(2);
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), (24 - 2) / 3 / 4);
    Child<QSpinBox>(page, "m_sbRow")->setValue(2);
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), (24 - 2) / 3 / 2);
    QVERIFY(page->validatePage());
    const StructuredPanoramaProperties record = m_host->Imports().last();
    // Two rows of three columns of three photos each, after the two skipped.
    QCOMPARE(record.m_stacks.size(), 6);
    for (int k = 0; k < 6; ++k)
        QCOMPARE(record.m_stacks[k], photos.mid(2 + 3 * k, 3));
    QCOMPARE(record.m_bracketCount, 3);
    QCOMPARE(record.m_gridRows, 2);
}

void tst_UIWPGigapan::rowsBeyondThePhotosGiveNoStacks()
{
    UIWPGigapan* page = NewPage();
    page->initializePage();
    QVERIFY(Choose(AddPhotos(6)));
    Child<QSpinBox>(page, "m_sbRow")->setValue(7);
    // No column fits; the read-only box cannot show less than 1.
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), 1);
    QVERIFY(PreviewPixmap(page).isNull());
    QVERIFY(page->isComplete());
    QVERIFY(page->validatePage());
    const StructuredPanoramaProperties record = m_host->Imports().last();
    QVERIFY(record.m_stacks.isEmpty());
    QVERIFY(record.m_links.isEmpty());
    QCOMPARE(record.m_gridRows, 7);
}

void tst_UIWPGigapan::orderButtons()
{
    UIWPGigapan* page = NewPage();
    page->initializePage();
    QVERIFY(Choose(AddPhotos(6)));
    QSignalSpy redraws(page, &QWizardPage::completeChanged);
    // Checking another order does its work once; the button turned off does nothing.
    Click(Child<QRadioButton>(page, "m_rbMode2"));
    QCOMPARE(redraws.count(), 1);
    // Clicking the checked button again changes nothing.
    Click(Child<QRadioButton>(page, "m_rbMode2"));
    QCOMPARE(redraws.count(), 1);
    QVERIFY(page->validatePage());
    QCOMPARE(m_host->Imports().last().m_gridOrder, 2);
    Click(Child<QRadioButton>(page, "m_rbMode3"));
    QVERIFY(page->validatePage());
    QCOMPARE(m_host->Imports().last().m_gridOrder, 3);
    Click(Child<QRadioButton>(page, "m_rbMode1"));
    QVERIFY(page->validatePage());
    QCOMPARE(m_host->Imports().last().m_gridOrder, 1);
    // Order 4 has no button but its slot still selects it.
    QVERIFY(QMetaObject::invokeMethod(page, "OnMode4Toggled", Q_ARG(bool, true)));
    QVERIFY(QMetaObject::invokeMethod(page, "OnMode0Toggled", Q_ARG(bool, false)));
    QVERIFY(page->validatePage());
    QCOMPARE(m_host->Imports().last().m_gridOrder, 4);
    Click(Child<QRadioButton>(page, "m_rbMode0"));
    QVERIFY(page->validatePage());
    QCOMPARE(m_host->Imports().last().m_gridOrder, 0);
}

void tst_UIWPGigapan::resetAndEnteringThePage()
{
    UIWPGigapan* page = NewPage();
    // Entering the page: 4 rows; the row box changed, so the columns were
    // computed from no photo at all.
    page->initializePage();
    QCOMPARE(Child<QSpinBox>(page, "m_sbRow")->value(), 4);
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), 1);
    QVERIFY(PreviewPixmap(page).isNull());
    // Again: the row box keeps its value and the 4 x 5 proposal stands.
    Click(Child<QPushButton>(page, "m_pbReset"));
    QCOMPARE(Child<QSpinBox>(page, "m_sbRow")->value(), 4);
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), 5);
    QCOMPARE(PreviewPixmap(page).size(), QSize((5 * 96 + 4) / 2, (4 * 96 + 4) / 2));
    // After photos, a layout and an order, Reset starts afresh.
    QVERIFY(Choose(AddPhotos(12)));
    Child<QSpinBox>(page, "m_sbBracket")->setValue(2);
    Click(Child<QRadioButton>(page, "m_rbMode2"));
    QVERIFY(page->isComplete());
    Click(Child<QPushButton>(page, "m_pbReset"));
    QCOMPARE(Child<QLineEdit>(page, "m_leImage")->text(), QString());
    QCOMPARE(Child<QLabel>(page, "m_lbImage")->text(), QStringLiteral("0 images in "));
    QCOMPARE(Child<QSpinBox>(page, "m_sbBracket")->value(), 1);
    QCOMPARE(Child<QSpinBox>(page, "m_sbIgnore")->value(), 0);
    QVERIFY(Child<QRadioButton>(page, "m_rbMode0")->isChecked());
    QVERIFY(!page->isComplete());
    QVERIFY(ReaderOf(page)->ZIImageDefs().isEmpty());
    QVERIFY(page->validatePage());
    const StructuredPanoramaProperties record = m_host->Imports().last();
    QCOMPARE(record.m_gridRows, 4);
    QCOMPARE(record.m_gridOrder, 0);
    QCOMPARE(record.m_bracketCount, 1);
    QVERIFY(record.m_stacks.isEmpty());
}

void tst_UIWPGigapan::completeness()
{
    UIWPGigapan* page = NewPage();
    page->initializePage();
    QVERIFY(!page->isComplete());
    QSignalSpy complete(page, &QWizardPage::completeChanged);
    QStringList photos = AddPhotos(5);
    QVERIFY(Choose(photos));
    QVERIFY(page->isComplete());
    QVERIFY(complete.count() >= 1);
    // The grid is not checked: more rows than fit leave the page complete.
    Child<QSpinBox>(page, "m_sbRow")->setValue(3);
    QVERIFY(page->isComplete());
    // A photo the host cannot read keeps it incomplete.
    photos << m_folder->AddText("unreadable.jpg", QByteArray());
    QVERIFY(ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectImages"), photos).seen);
    QVERIFY(WaitForReading(page, 5));
    QVERIFY(!page->isComplete());
    page->cleanupPage();
    QVERIFY(!page->isComplete());
}

void tst_UIWPGigapan::validateHandsTheRecordOver_data()
{
    QTest::addColumn<bool>("force360");
    QTest::addColumn<QVector<AuthorizedLink>>("links");
    QTest::newRow("2 x 3") << false
                           << QVector<AuthorizedLink> { Link(1, 0, 1), Link(2, 0, 2), Link(4, 1, 2),
                                  Link(3, 0, 3), Link(1, 2, 3), Link(2, 2, 4), Link(4, 3, 4),
                                  Link(3, 2, 5), Link(1, 4, 5), Link(2, 1, 3), Link(2, 3, 5) };
    QTest::newRow("2 x 3, 360 degrees")
        << true
        << QVector<AuthorizedLink> { Link(1, 0, 1), Link(2, 0, 2), Link(4, 1, 2), Link(3, 0, 3),
               Link(1, 2, 3), Link(2, 2, 4), Link(4, 3, 4), Link(3, 2, 5), Link(1, 4, 5),
               Link(2, 4, 0), Link(4, 5, 0), Link(3, 4, 1), Link(2, 1, 3), Link(2, 3, 5),
               Link(2, 5, 1) };
}

void tst_UIWPGigapan::validateHandsTheRecordOver()
{
    QFETCH(bool, force360);
    QFETCH(QVector<AuthorizedLink>, links);
    UIWPGigapan* page = NewPage();
    page->initializePage();
    const QStringList photos = AddPhotos(6);
    QVERIFY(Choose(photos));
    QCOMPARE(Child<QSpinBox>(page, "m_sbRow")->value(), 2);
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), 3);
    if (force360)
        Click(Child<QCheckBox>(page, "m_cbIS360"));
    Child<QDoubleSpinBox>(page, "m_dsbOverlapping")->setValue(55.0);
    Click(Child<QCheckBox>(page, "m_noOptim"));
    Click(Child<QRadioButton>(page, "m_rbLevelLinking1"));
    QVERIFY(page->validatePage());
    QCOMPARE(m_host->Imports().size(), 1);

    StructuredPanoramaProperties expected;
    for (const QString& photo : photos)
        expected.m_stacks << QStringList { photo };
    expected.m_links = links;
    expected.m_useShootData = false;
    expected.m_flag2 = false;
    expected.m_autoDetection = true;
    expected.m_levelLinking = 1;
    expected.m_stackLinking = 1;
    expected.m_skipOptimization = true;
    expected.m_gridRows = 2;
    expected.m_gridOrder = 0;
    expected.m_bracketCount = 1;
    expected.m_gridFlag = force360;
    expected.m_overlap = 55.0;
    CompareRecords(m_host->Imports().first(), expected);
    // Validating again hands over the same record.
    QVERIFY(page->validatePage());
    CompareRecords(m_host->Imports().last(), expected);
}

void tst_UIWPGigapan::validateWithoutHostImportsNothing()
{
    UIWPGigapan* page = NewPage();
    page->initializePage();
    QVERIFY(Choose(AddPhotos(4)));
    m_host->SetInterfaceHidden(true);
    QVERIFY(page->validatePage());
    m_host->SetInterfaceHidden(false);
    QVERIFY(m_host->Imports().isEmpty());
}

void tst_UIWPGigapan::previewShowsTheGridWithThePhotosReadSoFar()
{
    UIWPGigapan* page = NewPage();
    page->initializePage();
    auto* zoom = Child<QSlider>(page, "m_hSlider");
    zoom->setValue(100);
    // Twelve photos, the host reads ten and is held: the grid is proposed
    // at once, the first ten photos show, the last two cells stay empty.
    const QStringList photos = AddPhotos(12);
    m_host->HoldReading();
    m_host->ReleaseReading(10);
    QVERIFY(ClickAndChooseFiles(Child<QPushButton>(page, "m_pbSelectImages"), photos).seen);
    QTRY_COMPARE(ReaderOf(page)->ZIImageDefs().size(), 10);
    QCOMPARE(Child<QSpinBox>(page, "m_sbRow")->value(), 3);
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), 4);
    const QColor background = page->palette().color(QPalette::Window);
    auto cellColour = [&](int row, int column) {
        return PreviewPixmap(page).toImage().pixelColor(2 + column * 96 + 60, 2 + row * 96 + 60);
    };
    auto photoColour = [](int i) { return QColor(10 * i % 250 + 5, 120, 200 - i % 100); };
    // Order 0: column by column from the left, each from the top down.
    QTRY_COMPARE(cellColour(0, 0), photoColour(0));
    QCOMPARE(PreviewPixmap(page).size(), QSize(4 * 96 + 4, 3 * 96 + 4));
    QCOMPARE(cellColour(1, 0), photoColour(1));
    QCOMPARE(cellColour(0, 1), photoColour(3));
    QCOMPARE(cellColour(0, 3), photoColour(9));
    QCOMPARE(cellColour(1, 3), background);
    QCOMPARE(cellColour(2, 3), background);
    QVERIFY(!page->isComplete());
    m_host->ReleaseReading(2);
    QVERIFY(WaitForReading(page, 12));
    QCOMPARE(cellColour(2, 3), photoColour(11));
    QVERIFY(page->isComplete());
    // Another order moves the photos; the bracketing shows each stack's first photo.
    Click(Child<QRadioButton>(page, "m_rbMode1"));
    QCOMPARE(cellColour(0, 1), photoColour(1));
    QCOMPARE(cellColour(1, 0), photoColour(4));
    Child<QSpinBox>(page, "m_sbBracket")->setValue(2);
    QCOMPARE(Child<QSpinBox>(page, "m_sbColumn")->value(), 2);
    QCOMPARE(cellColour(0, 1), photoColour(2));
    QCOMPARE(cellColour(1, 0), photoColour(4));
    // Zoom scales the whole grid.
    zoom->setValue(30);
    QCOMPARE(PreviewPixmap(page).size(), QSize((2 * 96 + 4) * 30 / 100, (3 * 96 + 4) * 30 / 100));
    QVERIFY(page->SaveState().isEmpty());
}

void tst_UIWPGigapan::linkingButtonsConstrainEachOther()
{
    UIWPGigapan* page = NewPage();
    Click(Child<QRadioButton>(page, "m_rbLevelLinking1"));
    QVERIFY(Child<QRadioButton>(page, "m_rbStackLinking1")->isChecked());
    Click(Child<QRadioButton>(page, "m_rbStackLinking0"));
    QVERIFY(Child<QRadioButton>(page, "m_rbLevelLinking0")->isChecked());
    QVERIFY(!Child<QRadioButton>(page, "m_rbLevelLinking1")->isChecked());
}

ZPH_PAGE_TEST_MAIN(tst_UIWPGigapan)
#include "tst_UIWPGigapan.moc"
