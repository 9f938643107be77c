// Field of view from a full-frame-equivalent focal length.
#include "FieldOfView.h"

#include <QtTest>

#include <cmath>

class tst_FieldOfView : public QObject
{
    Q_OBJECT

private slots:
    void degrees_data();
    void degrees();
};

void tst_FieldOfView::degrees_data()
{
    QTest::addColumn<double>("focal");
    QTest::addColumn<int>("lens");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("across");
    QTest::addColumn<double>("expected");
    const double d = 43.266615305567875;
    const double toDegrees = 180.0 / 3.141592653589793;
    // A 3:2 picture is the 36 × 24 mm frame itself.
    QTest::newRow("3:2 across, 50 mm")
        << 50.0 << 0 << 3000 << 2000 << true << 2.0 * std::atan(36.0 / 100.0) * toDegrees;
    QTest::newRow("3:2 up, 50 mm")
        << 50.0 << 0 << 3000 << 2000 << false << 2.0 * std::atan(24.0 / 100.0) * toDegrees;
    QTest::newRow("4:3 across, 35 mm")
        << 35.0 << 0 << 400 << 300 << true << 2.0 * std::atan(d * 0.8 / 70.0) * toDegrees;
    QTest::newRow("fisheye across, 8 mm")
        << 8.0 << 1 << 3000 << 2000 << true << 36.0 / 8.0 * toDegrees;
    QTest::newRow("no focal") << 0.0 << 0 << 400 << 300 << true << 0.0;
    QTest::newRow("no size") << 35.0 << 0 << 0 << 300 << true << 0.0;
}

void tst_FieldOfView::degrees()
{
    QFETCH(double, focal);
    QFETCH(int, lens);
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(bool, across);
    QFETCH(double, expected);
    const double actual = across ? FieldOfView::horizontal(focal, LensModel(lens), width, height)
                                 : FieldOfView::vertical(focal, LensModel(lens), width, height);
    QVERIFY2(std::fabs(actual - expected) < 1e-9,
        qPrintable(
            QStringLiteral("%1 instead of %2").arg(actual, 0, 'g', 17).arg(expected, 0, 'g', 17)));
}

QTEST_MAIN(tst_FieldOfView)
#include "tst_FieldOfView.moc"
