// The focal length and lens taken from photographs and records: the pages'
// mean over every photograph, the command line's mean over those that give
// one, the preset rule and the rule for a handed-over description.
#include "PhotoFocal.h"
#include "StructuredPanoramaProperties.h"
#include "TestImageDef.h"

#include <QtTest>

#include <memory>
#include <vector>

namespace {

/// Definitions with the given focal lengths and lens types, kept alive by `keep`.
QList<ZIImageDef*> photos(const QVector<float>& focals, const QVector<int>& lenses,
    std::vector<std::unique_ptr<TestImageDef>>& keep)
{
    QList<ZIImageDef*> list;
    for (int i = 0; i < focals.size(); ++i) {
        keep.push_back(std::make_unique<TestImageDef>(focals[i], lenses.value(i, 0)));
        list << keep.back().get();
    }
    return list;
}

} // namespace

class tst_PhotoFocal : public QObject
{
    Q_OBJECT

private slots:
    void means_data();
    void means();
    void meanOverAllSumsInOrder();
    void lastLens();
    void preset_data();
    void preset();
    void forDescription_data();
    void forDescription();
};

void tst_PhotoFocal::means_data()
{
    QTest::addColumn<QVector<float>>("focals");
    QTest::addColumn<double>("overAll");
    QTest::addColumn<double>("overKnown");
    QTest::addColumn<QVector<int>>("missing");

    QTest::newRow("none") << QVector<float> {} << 0.0 << 0.0 << QVector<int> {};
    QTest::newRow("all 24") << QVector<float> { 24, 24, 24 } << 24.0 << 24.0 << QVector<int> {};
    QTest::newRow("crop camera, 35 mm equivalents")
        << QVector<float> { 27, 27 } << 27.0 << 27.0 << QVector<int> {};
    // One photograph without EXIF data among six at 35 mm.
    QTest::newRow("one without") << QVector<float> { 35, 35, 0, 35, 35, 35 } << 35.0 * 5 / 6
                                 << 35.0 << QVector<int> { 2 };
    QTest::newRow("none known") << QVector<float> { 0, 0 } << 0.0 << 0.0 << QVector<int> { 0, 1 };
    QTest::newRow("mixed") << QVector<float> { 20, 30 } << 25.0 << 25.0 << QVector<int> {};
}

void tst_PhotoFocal::means()
{
    QFETCH(QVector<float>, focals);
    QFETCH(double, overAll);
    QFETCH(double, overKnown);
    QFETCH(QVector<int>, missing);
    std::vector<std::unique_ptr<TestImageDef>> keep;
    const QList<ZIImageDef*> list = photos(focals, {}, keep);
    QCOMPARE(PhotoFocal::MeanOverAll(list), overAll);
    QVector<int> named;
    QCOMPARE(PhotoFocal::MeanOverKnown(list, &named), overKnown);
    QCOMPARE(named, missing);
}

void tst_PhotoFocal::meanOverAllSumsInOrder()
{
    // Bit for bit the pages' arithmetic: doubles summed in list order, then
    // divided once.
    const QVector<float> focals = { 17.3f, 24.1f, 0.0f, 105.7f, 35.35f, 50.05f, 12.0f };
    std::vector<std::unique_ptr<TestImageDef>> keep;
    const QList<ZIImageDef*> list = photos(focals, {}, keep);
    double sum = 0.0;
    for (float f : focals)
        sum += double(f);
    const double expected = sum / focals.size();
    const double got = PhotoFocal::MeanOverAll(list);
    QCOMPARE(memcmp(&got, &expected, sizeof got), 0);
}

void tst_PhotoFocal::lastLens()
{
    std::vector<std::unique_ptr<TestImageDef>> keep;
    QCOMPARE(PhotoFocal::LastLens(photos({ 24, 24 }, { 1, 0 }, keep), 5), 0);
    QCOMPARE(PhotoFocal::LastLens(photos({ 24, 24 }, { 0, 1 }, keep), 5), 1);
    QCOMPARE(PhotoFocal::LastLens({}, 5), 5);
}

void tst_PhotoFocal::preset_data()
{
    QTest::addColumn<double>("photoFocal");
    QTest::addColumn<int>("photoLens");
    QTest::addColumn<double>("recordFocal");
    QTest::addColumn<int>("recordLens");
    QTest::addColumn<double>("focal");
    QTest::addColumn<int>("lens");
    QTest::addColumn<bool>("fromPhotos");

    QTest::newRow("photos win") << 24.0 << 0 << 30.0 << 1 << 24.0 << 0 << true;
    QTest::newRow("record when photos say nothing") << 0.0 << 0 << 30.0 << 1 << 30.0 << 1 << false;
    QTest::newRow("no record focal") << 0.0 << 0 << -1.0 << 0 << 0.0 << 0 << false;
    QTest::newRow("nothing at all") << 0.0 << 1 << 0.0 << 0 << 0.0 << 0 << false;
}

void tst_PhotoFocal::preset()
{
    QFETCH(double, photoFocal);
    QFETCH(int, photoLens);
    QFETCH(double, recordFocal);
    QFETCH(int, recordLens);
    QFETCH(double, focal);
    QFETCH(int, lens);
    QFETCH(bool, fromPhotos);
    const PhotoFocal::Choice c = PhotoFocal::Preset(photoFocal, photoLens, recordFocal, recordLens);
    QCOMPARE(c.focal, focal);
    QCOMPARE(c.lens, lens);
    QCOMPARE(c.fromPhotos, fromPhotos);
}

void tst_PhotoFocal::forDescription_data()
{
    QTest::addColumn<float>("recordFocal");
    QTest::addColumn<int>("recordLens");
    QTest::addColumn<QVector<float>>("focals");
    QTest::addColumn<QVector<int>>("lenses");
    QTest::addColumn<double>("focal");
    QTest::addColumn<int>("lens");

    QTest::newRow("the description's own") << 24.5f << int(LensStandard)
                                          << QVector<float> { 35, 35 } << QVector<int> { 1, 1 }
                                          << 24.5 << int(LensStandard);
    QTest::newRow("photographs, zeros left out")
        << 0.0f << int(LensUnknown) << QVector<float> { 35, 0, 35 } << QVector<int> { 0, 0, 0 }
        << 35.0 << int(LensStandard);
    QTest::newRow("unknown lens: the last photograph's")
        << 0.0f << int(LensUnknown) << QVector<float> { 10, 10 } << QVector<int> { 0, 1 } << 10.0
        << int(LensFisheye);
    QTest::newRow("fisheye description") << 8.0f << int(LensFisheye) << QVector<float> { 8 }
                                         << QVector<int> { 0 } << 8.0 << int(LensFisheye);
    QTest::newRow("nothing") << 0.0f << int(LensUnknown) << QVector<float> {} << QVector<int> {}
                             << 0.0 << int(LensStandard);
}

void tst_PhotoFocal::forDescription()
{
    QFETCH(float, recordFocal);
    QFETCH(int, recordLens);
    QFETCH(QVector<float>, focals);
    QFETCH(QVector<int>, lenses);
    QFETCH(double, focal);
    QFETCH(int, lens);
    StructuredPanoramaProperties r;
    r.m_focalLength = recordFocal;
    r.m_lensModel = LensModel(recordLens);
    std::vector<std::unique_ptr<TestImageDef>> keep;
    const PhotoFocal::Choice c = PhotoFocal::ForDescription(r, photos(focals, lenses, keep));
    QCOMPARE(c.focal, focal);
    QCOMPARE(c.lens, lens);
}

QTEST_GUILESS_MAIN(tst_PhotoFocal)
#include "tst_PhotoFocal.moc"
