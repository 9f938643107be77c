// Tests of the panorama description and its parts: defaults, field types and
// order (the host reads the record field for field), and that a copy is
// independent of its source.
#include "StructuredPanoramaProperties.h"

#include <QtTest>

#include <cstddef>
#include <cstring>
#include <type_traits>

using SPP = StructuredPanoramaProperties;

// A plain value type: no table of virtual operations, copyable, standard
// layout, so the offsets below are well defined.
static_assert(!std::is_polymorphic_v<SPP>);
static_assert(std::is_copy_constructible_v<SPP> && std::is_copy_assignable_v<SPP>);
static_assert(std::is_standard_layout_v<SPP>);
static_assert(std::is_standard_layout_v<ShootData>);
static_assert(std::is_standard_layout_v<AuthorizedLink>);

static_assert(std::is_same_v<std::underlying_type_t<LensModel>, qint32>);
static_assert(LensUnknown == -1 && LensStandard == 0 && LensFisheye == 1);

// Field types, in declaration order.
static_assert(std::is_same_v<decltype(SPP::m_stacks), QVector<QStringList>>);
static_assert(std::is_same_v<decltype(SPP::m_links), QVector<AuthorizedLink>>);
static_assert(std::is_same_v<decltype(SPP::m_yaw), QVector<float>>);
static_assert(std::is_same_v<decltype(SPP::m_pitch), QVector<float>>);
static_assert(std::is_same_v<decltype(SPP::m_roll), QVector<float>>);
static_assert(std::is_same_v<decltype(SPP::m_useShootData), bool>);
static_assert(std::is_same_v<decltype(SPP::m_focalLength), float>);
static_assert(std::is_same_v<decltype(SPP::m_flag2), bool>);
static_assert(std::is_same_v<decltype(SPP::m_lensModel), LensModel>);
static_assert(std::is_same_v<decltype(SPP::m_intA), qint32>);
static_assert(std::is_same_v<decltype(SPP::m_intB), qint32>);
static_assert(std::is_same_v<decltype(SPP::m_intC), qint32>);
static_assert(std::is_same_v<decltype(SPP::m_flag3), bool>);
static_assert(std::is_same_v<decltype(SPP::m_autoDetection), bool>);
static_assert(std::is_same_v<decltype(SPP::m_stackLinking), qint32>);
static_assert(std::is_same_v<decltype(SPP::m_levelLinking), qint32>);
static_assert(std::is_same_v<decltype(SPP::m_useRecordedLocation), bool>);
static_assert(std::is_same_v<decltype(SPP::m_skipOptimization), bool>);
static_assert(std::is_same_v<decltype(SPP::m_cleanWrongLinks), bool>);
static_assert(std::is_same_v<decltype(SPP::m_gridOrder), qint32>);
static_assert(std::is_same_v<decltype(SPP::m_gridRows), qint32>);
static_assert(std::is_same_v<decltype(SPP::m_bracketCount), qint32>);
static_assert(std::is_same_v<decltype(SPP::m_gridFlag), bool>);
static_assert(std::is_same_v<decltype(SPP::m_overlap), double>);
static_assert(std::is_same_v<decltype(SPP::m_indexA), qint32>);
static_assert(std::is_same_v<decltype(SPP::m_outputMode), qint32>);
static_assert(std::is_same_v<decltype(SPP::m_text1), QString>);
static_assert(std::is_same_v<decltype(SPP::m_text2), QString>);
static_assert(std::is_same_v<decltype(SPP::m_flag4), bool>);

static_assert(std::is_same_v<decltype(ShootData::m_reserved), qint64>);
static_assert(std::is_same_v<decltype(ShootData::m_yaw), float>);
static_assert(std::is_same_v<decltype(ShootData::m_pitch), float>);
static_assert(std::is_same_v<decltype(ShootData::m_roll), float>);
static_assert(std::is_same_v<decltype(ShootData::m_id), qint32>);
static_assert(std::is_same_v<decltype(ShootData::m_bracket), qint32>);
static_assert(std::is_same_v<decltype(ShootData::m_time), QDateTime>);

static_assert(std::is_same_v<decltype(AuthorizedLink::m_direction), qint32>);
static_assert(std::is_same_v<decltype(AuthorizedLink::m_stackIndices), QVector<int>>);

namespace {

quint32 bitsOf(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

quint64 bitsOf(double value)
{
    quint64 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/// The first index whose offset is not larger than the one before it, or -1.
template<size_t N> int firstOutOfOrder(const size_t (&offsets)[N])
{
    for (size_t k = 1; k < N; ++k) {
        if (offsets[k - 1] >= offsets[k])
            return int(k);
    }
    return -1;
}

AuthorizedLink makeLink(qint32 direction, int from, int to)
{
    AuthorizedLink link;
    link.m_direction = direction;
    link.m_stackIndices = { from, to };
    return link;
}

} // namespace

class tst_StructuredPanoramaProperties : public QObject
{
    Q_OBJECT

private slots:
    void defaultsFieldByField();
    void partsDefaults();
    void fieldsInDeclaredOrder();
    void copyIsIndependentOfItsSource();
    void sourceChangesLeaveTheCopy();
};

void tst_StructuredPanoramaProperties::defaultsFieldByField()
{
    const SPP record;
    QVERIFY(record.m_stacks.isEmpty());
    QVERIFY(record.m_links.isEmpty());
    QVERIFY(record.m_yaw.isEmpty());
    QVERIFY(record.m_pitch.isEmpty());
    QVERIFY(record.m_roll.isEmpty());
    QCOMPARE(record.m_useShootData, true);
    QCOMPARE(bitsOf(record.m_focalLength), bitsOf(0.0f));
    QCOMPARE(record.m_flag2, true);
    QCOMPARE(qint32(record.m_lensModel), -1);
    QCOMPARE(record.m_intA, 0);
    QCOMPARE(record.m_intB, 0);
    QCOMPARE(record.m_intC, 0);
    QCOMPARE(record.m_flag3, false);
    QCOMPARE(record.m_autoDetection, false);
    QCOMPARE(record.m_stackLinking, 0);
    QCOMPARE(record.m_levelLinking, 0);
    QCOMPARE(record.m_useRecordedLocation, true);
    QCOMPARE(record.m_skipOptimization, false);
    QCOMPARE(record.m_cleanWrongLinks, false);
    QCOMPARE(record.m_gridOrder, 0);
    QCOMPARE(record.m_gridRows, 0);
    QCOMPARE(record.m_bracketCount, 1);
    QCOMPARE(record.m_gridFlag, false);
    QCOMPARE(bitsOf(record.m_overlap), bitsOf(80.0));
    QCOMPARE(record.m_indexA, -1);
    QCOMPARE(record.m_outputMode, -1);
    QVERIFY(record.m_text1.isNull());
    QVERIFY(record.m_text2.isNull());
    QCOMPARE(record.m_flag4, false);
}

void tst_StructuredPanoramaProperties::partsDefaults()
{
    const ShootData shot;
    QCOMPARE(shot.m_reserved, qint64(0));
    QCOMPARE(bitsOf(shot.m_yaw), bitsOf(0.0f));
    QCOMPARE(bitsOf(shot.m_pitch), bitsOf(0.0f));
    QCOMPARE(bitsOf(shot.m_roll), bitsOf(0.0f));
    QCOMPARE(shot.m_id, 0);
    QCOMPARE(shot.m_bracket, 0);
    QVERIFY(!shot.m_time.isValid());

    const AuthorizedLink link;
    QCOMPARE(link.m_direction, 0);
    QVERIFY(link.m_stackIndices.isEmpty());
}

void tst_StructuredPanoramaProperties::fieldsInDeclaredOrder()
{
    const size_t record[] = {
        offsetof(SPP, m_stacks),
        offsetof(SPP, m_links),
        offsetof(SPP, m_yaw),
        offsetof(SPP, m_pitch),
        offsetof(SPP, m_roll),
        offsetof(SPP, m_useShootData),
        offsetof(SPP, m_focalLength),
        offsetof(SPP, m_flag2),
        offsetof(SPP, m_lensModel),
        offsetof(SPP, m_intA),
        offsetof(SPP, m_intB),
        offsetof(SPP, m_intC),
        offsetof(SPP, m_flag3),
        offsetof(SPP, m_autoDetection),
        offsetof(SPP, m_stackLinking),
        offsetof(SPP, m_levelLinking),
        offsetof(SPP, m_useRecordedLocation),
        offsetof(SPP, m_skipOptimization),
        offsetof(SPP, m_cleanWrongLinks),
        offsetof(SPP, m_gridOrder),
        offsetof(SPP, m_gridRows),
        offsetof(SPP, m_bracketCount),
        offsetof(SPP, m_gridFlag),
        offsetof(SPP, m_overlap),
        offsetof(SPP, m_indexA),
        offsetof(SPP, m_outputMode),
        offsetof(SPP, m_text1),
        offsetof(SPP, m_text2),
        offsetof(SPP, m_flag4),
    };
    QCOMPARE(record[0], size_t(0));
    QCOMPARE(firstOutOfOrder(record), -1);

    const size_t shot[] = {
        offsetof(ShootData, m_reserved),
        offsetof(ShootData, m_yaw),
        offsetof(ShootData, m_pitch),
        offsetof(ShootData, m_roll),
        offsetof(ShootData, m_id),
        offsetof(ShootData, m_bracket),
        offsetof(ShootData, m_time),
    };
    QCOMPARE(firstOutOfOrder(shot), -1);

    const size_t link[]
        = { offsetof(AuthorizedLink, m_direction), offsetof(AuthorizedLink, m_stackIndices) };
    QCOMPARE(firstOutOfOrder(link), -1);
}

void tst_StructuredPanoramaProperties::copyIsIndependentOfItsSource()
{
    SPP source;
    source.m_stacks = { QStringList { QStringLiteral("/a/1.jpg"), QStringLiteral("/a/2.jpg") },
        QStringList { QStringLiteral("/a/3.jpg") } };
    source.m_links = { makeLink(2, 0, 1) };
    source.m_yaw = { 0.5f, 1.5f };
    source.m_pitch = { -0.25f, 0.0f };
    source.m_roll = { 0.0f, 0.125f };
    source.m_focalLength = 24.0f;
    source.m_text1 = QStringLiteral("first");

    SPP copy(source);
    QCOMPARE(copy.m_stacks, source.m_stacks);
    QCOMPARE(bitsOf(copy.m_focalLength), bitsOf(24.0f));

    copy.m_stacks[0][1] = QStringLiteral("/b/2.jpg");
    copy.m_stacks.append(QStringList { QStringLiteral("/b/4.jpg") });
    copy.m_links[0].m_stackIndices[1] = 7;
    copy.m_links[0].m_direction = 1;
    copy.m_links.append(makeLink(1, 1, 0));
    copy.m_yaw[0] = 9.0f;
    copy.m_pitch.clear();
    copy.m_roll.append(3.0f);
    copy.m_text1.append(QStringLiteral(" changed"));

    QCOMPARE(source.m_stacks.size(), 2);
    QCOMPARE(source.m_stacks.at(0),
        (QStringList { QStringLiteral("/a/1.jpg"), QStringLiteral("/a/2.jpg") }));
    QCOMPARE(source.m_links.size(), 1);
    QCOMPARE(source.m_links.at(0).m_direction, 2);
    QCOMPARE(source.m_links.at(0).m_stackIndices, (QVector<int> { 0, 1 }));
    QCOMPARE(bitsOf(source.m_yaw.at(0)), bitsOf(0.5f));
    QCOMPARE(source.m_pitch.size(), 2);
    QCOMPARE(source.m_roll.size(), 2);
    QCOMPARE(source.m_text1, QStringLiteral("first"));
}

void tst_StructuredPanoramaProperties::sourceChangesLeaveTheCopy()
{
    SPP source;
    source.m_yaw = { 1.0f };
    source.m_links = { makeLink(2, 0, 1) };
    SPP copy;
    copy = source;
    source.m_yaw[0] = 2.0f;
    source.m_links[0].m_stackIndices.append(5);
    source.m_lensModel = LensFisheye;
    QCOMPARE(bitsOf(copy.m_yaw.at(0)), bitsOf(1.0f));
    QCOMPARE(copy.m_links.at(0).m_stackIndices, (QVector<int> { 0, 1 }));
    QCOMPARE(copy.m_lensModel, LensUnknown);
}

QTEST_GUILESS_MAIN(tst_StructuredPanoramaProperties)
#include "tst_StructuredPanoramaProperties.moc"
