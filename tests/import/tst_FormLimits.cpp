// The number ranges the command line shares with the import pages' forms:
// the forms hold exactly these ranges, and a value is held the way the forms'
// boxes hold it.
#include "FormLimits.h"

#include "ui_UIWPGigapan.h"
#include "ui_UIWPMerlin.h"
#include "ui_UIWPVRDrive2.h"

#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QWizardPage>
#include <QtTest>

#include <cmath>
#include <limits>

class tst_FormLimits : public QObject
{
    Q_OBJECT

private slots:
    void gigapanForm();
    void focalBoxes();
    void asShownIsWhatTheBoxHolds_data();
    void asShownIsWhatTheBoxHolds();
};

void tst_FormLimits::gigapanForm()
{
    QWizardPage page;
    Ui::UIWPGigapanClass ui;
    ui.setupUi(&page);
    QCOMPARE(ui.m_sbRow->minimum(), FormLimits::MinRows);
    QCOMPARE(ui.m_sbRow->maximum(), FormLimits::MaxRows);
    QCOMPARE(ui.m_sbBracket->minimum(), FormLimits::MinBracket);
    QCOMPARE(ui.m_sbBracket->maximum(), FormLimits::MaxBracket);
    QCOMPARE(ui.m_sbIgnore->minimum(), FormLimits::MinSkip);
    QCOMPARE(ui.m_sbIgnore->maximum(), FormLimits::MaxSkip);
    QCOMPARE(ui.m_dsbOverlapping->minimum(), FormLimits::MinOverlap);
    QCOMPARE(ui.m_dsbOverlapping->maximum(), FormLimits::MaxOverlap);
    QCOMPARE(ui.m_dsbOverlapping->decimals(), FormLimits::OverlapDecimals);
    QCOMPARE(ui.m_dsbOverlapping->value(), FormLimits::DefaultOverlap);
}

void tst_FormLimits::focalBoxes()
{
    QWizardPage merlinPage;
    Ui::UIWPMerlinClass merlin;
    merlin.setupUi(&merlinPage);
    QWizardPage vrPage;
    Ui::UIWPVRDrive2Class vr;
    vr.setupUi(&vrPage);
    for (const QDoubleSpinBox* box : { merlin.m_spFocal, vr.m_spFocal }) {
        QCOMPARE(box->minimum(), FormLimits::MinFocal);
        QCOMPARE(box->maximum(), FormLimits::MaxFocal);
        QCOMPARE(box->decimals(), FormLimits::FocalDecimals);
    }
}

void tst_FormLimits::asShownIsWhatTheBoxHolds_data()
{
    QTest::addColumn<double>("value");

    const double values[] = { 24.0, 27.0, 33.833333333333336, 35.0 * 5 / 6, 24.005, 24.004999,
        18.125, 0.5, 0.994, 1.0, 10000.0, 10000.004, 10000.006, 1e308, -3.0, 0.0,
        std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
        12.344999999999999, 50.675 };
    for (double v : values)
        QTest::newRow(qPrintable(QString::number(v, 'g', 17))) << v;
}

void tst_FormLimits::asShownIsWhatTheBoxHolds()
{
    QFETCH(double, value);
    // The focal box of the pages' forms, set as the pages set it.
    QDoubleSpinBox focalBox;
    focalBox.setDecimals(FormLimits::FocalDecimals);
    focalBox.setRange(FormLimits::MinFocal, FormLimits::MaxFocal);
    focalBox.setValue(value);
    const double held = focalBox.value();
    const double shown = FormLimits::FocalAsShown(value);
    QCOMPARE(memcmp(&held, &shown, sizeof held), 0);

    QDoubleSpinBox overlapBox;
    overlapBox.setDecimals(FormLimits::OverlapDecimals);
    overlapBox.setRange(FormLimits::MinOverlap, FormLimits::MaxOverlap);
    overlapBox.setValue(value);
    QCOMPARE(FormLimits::OverlapAsShown(value), overlapBox.value());
}

QTEST_MAIN(tst_FormLimits)
#include "tst_FormLimits.moc"
