// What the four import pages share, one row per page: the keyboard's path
// through the form and the translation contexts under which the texts are
// looked up (the form's class for the form's texts, the page's class, or the
// frame's, for the texts the code sets).
#include "PageTestHost.h"
#include "PageTestSupport.h"
#include "UIWPClauss.h"
#include "UIWPGigapan.h"
#include "UIWPMerlin.h"
#include "UIWPVRDrive2.h"
#include "ZUI.h"

#include <QComboBox>
#include <QTest>
#include <QWizardPage>

class tst_PageCommon : public PageTestBase
{
    Q_OBJECT

private slots:
    void tabOrder_data();
    void tabOrder();
    void textsAreTranslatedUnderTheirContexts_data();
    void textsAreTranslatedUnderTheirContexts();

private:
    /// A new page of the class `name`, 700 x 700 and shown.
    QWizardPage* NewPage(const QString& name);
};

namespace {

/// What the page shows for `what`: "@title" for the page's title,
/// "<combo>#<index>" for an item of a combo box, otherwise the text of the
/// child of that name.
QString Shown(QWizardPage* page, const QString& what)
{
    if (what == QLatin1String("@title"))
        return page->title();
    const int hash = what.indexOf(QLatin1Char('#'));
    if (hash > 0) {
        auto* combo = page->findChild<QComboBox*>(what.left(hash));
        return combo ? combo->itemText(what.mid(hash + 1).toInt()) : QString();
    }
    QWidget* widget = page->findChild<QWidget*>(what);
    return widget ? widget->property("text").toString() : QStringLiteral("<missing>");
}

} // namespace

QWizardPage* tst_PageCommon::NewPage(const QString& name)
{
    std::unique_ptr<QWizardPage> page;
    if (name == QLatin1String("UIWPMerlin"))
        page = std::make_unique<UIWPMerlin>();
    else if (name == QLatin1String("UIWPVRDrive2"))
        page = std::make_unique<UIWPVRDrive2>();
    else if (name == QLatin1String("UIWPClauss"))
        page = std::make_unique<UIWPClauss>();
    else if (name == QLatin1String("UIWPGigapan"))
        page = std::make_unique<UIWPGigapan>();
    if (!page)
        return nullptr;
    QWizardPage* shown = page.get();
    shown->resize(700, 700);
    shown->show();
    m_page = std::move(page);
    return shown;
}

void tst_PageCommon::tabOrder_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("UIWPMerlin") << "UIWPMerlin"
                                << QStringList { "tabWidget", "m_leConfigFile",
                                       "m_pbSelectConfigFile", "m_pbReset", "m_leImage",
                                       "m_pbSelectImages", "m_pInverseCoordinates", "m_pbRot270",
                                       "m_pbRot90", "m_spFocal", "m_cbLensType", "m_pbFLUseXML",
                                       "m_pbFLUseImage", "m_rbLevelLinking0", "m_rbLevelLinking1",
                                       "m_rbStackLinking0", "m_rbStackLinking1", "m_autoStart",
                                       "m_cleanLink", "m_noOptim", "m_GridOptim",
                                       "m_leHeaderTitle", "m_leHeaderGps", "m_leHeaderComment",
                                       "m_saPreview", "m_hSlider" };
    QTest::newRow("UIWPVRDrive2") << "UIWPVRDrive2"
                                  << QStringList { "tabWidget", "m_leImage", "m_pbSelectImages",
                                         "m_leConfigFile", "m_pbSelectConfigFile", "m_pbReset",
                                         "m_rbOutputMode1", "m_rbOutputMode2",
                                         "m_pInverseCoordinates", "m_pbRot270", "m_pbRot90",
                                         "m_spFocal", "m_cbLensType", "m_pbFLUseXML",
                                         "m_pbFLUseImage", "m_rbLevelLinking0",
                                         "m_rbLevelLinking1", "m_rbStackLinking0",
                                         "m_rbStackLinking1", "m_autoStart", "m_cleanLink",
                                         "m_noOptim", "m_GridOptim", "m_saPreview", "m_hSlider" };
    QTest::newRow("UIWPClauss") << "UIWPClauss"
                                << QStringList { "tabWidget", "m_leConfigFile",
                                       "m_pbSelectConfigFile", "m_pbReset", "m_pInverseCoordinates",
                                       "m_leImage", "m_pbSelectImages", "m_autoStart",
                                       "m_cleanLink", "m_noOptim", "m_GridOptim", "m_saPreview",
                                       "m_hSlider" };
    QTest::newRow("UIWPGigapan") << "UIWPGigapan"
                                 << QStringList { "tabWidget", "m_leImage", "m_pbSelectImages",
                                        "m_pbReset", "m_sbRow", "m_sbColumn", "m_sbIgnore",
                                        "m_sbBracket", "m_rbMode3", "m_rbMode0", "m_rbMode2",
                                        "m_rbMode1", "m_cbIS360", "m_dsbOverlapping",
                                        "m_rbLevelLinking0", "m_rbLevelLinking1",
                                        "m_rbStackLinking0", "m_rbStackLinking1", "m_autoStart",
                                        "m_cleanLink", "m_noOptim", "m_saPreview", "m_hSlider" };
}

void tst_PageCommon::tabOrder()
{
    QFETCH(QString, page);
    QFETCH(QStringList, expected);
    QWizardPage* shown = NewPage(page);
    QVERIFY(shown);
    QStringList chain;
    QWidget* start = Child<QWidget>(shown, "tabWidget");
    QVERIFY(start);
    QWidget* w = start;
    do {
        if (expected.contains(w->objectName()) && !chain.contains(w->objectName()))
            chain << w->objectName();
        w = w->nextInFocusChain();
    } while (w && w != start);
    QCOMPARE(chain, expected);
}

void tst_PageCommon::textsAreTranslatedUnderTheirContexts_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("text");
    QTest::newRow("UIWPMerlin: form caption")
        << "UIWPMerlin" << "label" << "[UIWPMerlinClass] XML:";
    QTest::newRow("UIWPMerlin: title")
        << "UIWPMerlin" << "@title" << "[UIWPMerlinClass] Papywizard import";
    QTest::newRow("UIWPMerlin: lens type") << "UIWPMerlin" << "m_cbLensType#1"
                                           << "[UIWPPage] Fisheye";
    QTest::newRow("UIWPMerlin: shots") << "UIWPMerlin" << "m_lbPapyLog" << "[UIWPXmlPage] N/A";
    // The yaw label's "N/A" is not translated, the pitch label's is.
    QTest::newRow("UIWPMerlin: yaw range") << "UIWPMerlin" << "m_lbThetaMinMax" << "N/A";
    QTest::newRow("UIWPMerlin: pitch range")
        << "UIWPMerlin" << "m_lbPhiMinMax" << "[UIWPXmlPage] N/A";
    QTest::newRow("UIWPClauss: form caption")
        << "UIWPClauss" << "label" << "[UIWPClaussClass] Script file:";
    QTest::newRow("UIWPClauss: shots") << "UIWPClauss" << "m_lbPapyLog" << "[UIWPClauss] N/A";
    QTest::newRow("UIWPClauss: images") << "UIWPClauss" << "m_lbImageLog" << "[UIWPClauss] N/A";
    // The range labels' "N/A" is not translated.
    QTest::newRow("UIWPClauss: yaw range") << "UIWPClauss" << "m_lbThetaMinMax" << "N/A";
    QTest::newRow("UIWPClauss: pitch range") << "UIWPClauss" << "m_lbPhiMinMax" << "N/A";
    QTest::newRow("UIWPGigapan: form caption")
        << "UIWPGigapan" << "label_6" << "[UIWPGigapanClass] Images :";
    QTest::newRow("UIWPGigapan: images")
        << "UIWPGigapan" << "m_lbImage" << "0 [UIWPGigapan] images in ";
}

void tst_PageCommon::textsAreTranslatedUnderTheirContexts()
{
    QFETCH(QString, page);
    QFETCH(QString, what);
    QFETCH(QString, text);
    ContextTranslator translator;
    QWizardPage* shown = NewPage(page);
    QVERIFY(shown);
    QCOMPARE(Shown(shown, what), text);
}

ZPH_PAGE_TEST_MAIN(tst_PageCommon)
#include "tst_PageCommon.moc"
