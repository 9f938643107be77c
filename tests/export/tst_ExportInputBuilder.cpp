// What the exports draw from, put together once for every front end:
// refusals, recorded positions, grid positions at the first photograph's
// field of view.
#include "ExportInputBuilder.h"
#include "FieldOfView.h"
#include "GigapanPositions.h"

#include <QtTest>

namespace {

constexpr double Pi = 3.141592653589793;

ImageInfo info(const QString& path, QSize size = QSize(600, 400), int orientation = 1)
{
    ImageInfo i;
    i.path = path;
    i.pixelSize = size;
    i.orientation = orientation;
    return i;
}

/// Stacks of `bracket` photographs named p0, p1, ... and their infos.
StructuredPanoramaProperties stacks(int count, int bracket, QHash<QString, ImageInfo>* images,
    QSize size = QSize(600, 400), int orientation = 1)
{
    StructuredPanoramaProperties r;
    int n = 0;
    for (int k = 0; k < count; ++k) {
        QStringList stack;
        for (int b = 0; b < bracket; ++b, ++n) {
            const QString path = QStringLiteral("/shoot/p%1.jpg").arg(n);
            stack << path;
            images->insert(path, info(path, size, orientation));
        }
        r.m_stacks << stack;
    }
    return r;
}

} // namespace

class tst_ExportInputBuilder : public QObject
{
    Q_OBJECT

private slots:
    void refuses_data();
    void refuses();
    void recordedPositionsAtEachStacksFirstShot();
    void gridPositions_data();
    void gridPositions();
    void lensIsStandardOrFisheye();
};

void tst_ExportInputBuilder::refuses_data()
{
    QTest::addColumn<int>("stackCount");
    QTest::addColumn<bool>("dropImage");
    QTest::addColumn<double>("focal");
    QTest::addColumn<QString>("reason");

    QTest::newRow("no stack") << 0 << false << 24.0 << "The description holds no stack.";
    QTest::newRow("unknown photograph") << 2 << true << 24.0 << "Nothing is known of /shoot/p1.jpg.";
    QTest::newRow("no focal") << 2 << false << 0.0
                              << "Neither the description nor the photographs give a focal "
                                 "length.";
    QTest::newRow("focal not a number") << 2 << false << std::nan("")
                                        << "Neither the description nor the photographs give a "
                                           "focal length.";
}

void tst_ExportInputBuilder::refuses()
{
    QFETCH(int, stackCount);
    QFETCH(bool, dropImage);
    QFETCH(double, focal);
    QFETCH(QString, reason);
    QHash<QString, ImageInfo> images;
    const StructuredPanoramaProperties r = stacks(stackCount, 1, &images);
    if (dropImage)
        images.remove(QStringLiteral("/shoot/p1.jpg"));
    ExportInput input;
    QString error;
    QVERIFY(!ExportInputBuilder::Build(r, images, focal, LensStandard, &input, &error));
    QCOMPARE(error, reason);
}

void tst_ExportInputBuilder::recordedPositionsAtEachStacksFirstShot()
{
    QHash<QString, ImageInfo> images;
    StructuredPanoramaProperties r = stacks(2, 3, &images);
    const float yaw[] = { 10, 11, 12, 50, 51, 52 };
    for (float y : yaw) {
        r.m_yaw << float(double(y) * Pi / 180.0);
        r.m_pitch << float(double(-y / 10) * Pi / 180.0);
        r.m_roll << 0.0f;
    }
    ExportInput input;
    QString error;
    QVERIFY2(ExportInputBuilder::Build(r, images, 24.0, LensStandard, &input, &error),
        qPrintable(error));
    QCOMPARE(input.positions.size(), 2);
    QCOMPARE(input.positions[0].yaw, double(r.m_yaw[0]) * 180.0 / Pi);
    QCOMPARE(input.positions[1].yaw, double(r.m_yaw[3]) * 180.0 / Pi);
    QCOMPARE(input.positions[1].pitch, double(r.m_pitch[3]) * 180.0 / Pi);
    QCOMPARE(input.focalLength, 24.0);
    QCOMPARE(input.images.size(), 6);
    QCOMPARE(input.panorama.m_stacks, r.m_stacks);
}

void tst_ExportInputBuilder::gridPositions_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("order");
    QTest::addColumn<bool>("force360");

    QTest::newRow("landscape, columns") << 1 << 0 << false;
    QTest::newRow("turned by EXIF, rows") << 6 << 1 << false;
    QTest::newRow("serpentine, 360") << 1 << 4 << true;
}

void tst_ExportInputBuilder::gridPositions()
{
    QFETCH(int, orientation);
    QFETCH(int, order);
    QFETCH(bool, force360);
    QHash<QString, ImageInfo> images;
    StructuredPanoramaProperties r = stacks(6, 1, &images, QSize(600, 400), orientation);
    r.m_useShootData = false;
    r.m_gridRows = 2;
    r.m_gridOrder = order;
    r.m_overlap = 30.0;
    r.m_gridFlag = force360;
    ExportInput input;
    QString error;
    QVERIFY2(ExportInputBuilder::Build(r, images, 35.0, LensStandard, &input, &error),
        qPrintable(error));
    // The picture as it stands on the head: a turned picture swaps its extents.
    const bool turned = orientation >= 5;
    const double across = FieldOfView::degrees(35.0, LensStandard, 600, 400, turned ? 400 : 600);
    const double up = FieldOfView::degrees(35.0, LensStandard, 600, 400, turned ? 600 : 400);
    const QVector<StackPosition> expected
        = GigapanPositions::compute(2, 3, order, 30.0, across, up, force360);
    QCOMPARE(input.positions.size(), expected.size());
    for (int k = 0; k < expected.size(); ++k) {
        QCOMPARE(input.positions[k].yaw, expected[k].yaw);
        QCOMPARE(input.positions[k].pitch, expected[k].pitch);
    }
}

void tst_ExportInputBuilder::lensIsStandardOrFisheye()
{
    QHash<QString, ImageInfo> images;
    const StructuredPanoramaProperties r = stacks(1, 1, &images);
    ExportInput input;
    QVERIFY(ExportInputBuilder::Build(r, images, 24.0, LensUnknown, &input, nullptr));
    QCOMPARE(input.lens, LensStandard);
    QVERIFY(ExportInputBuilder::Build(r, images, 8.0, LensFisheye, &input, nullptr));
    QCOMPARE(input.lens, LensFisheye);
}

QTEST_GUILESS_MAIN(tst_ExportInputBuilder)
#include "tst_ExportInputBuilder.moc"
