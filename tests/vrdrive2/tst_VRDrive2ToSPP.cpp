// Tests of VRDrive2ToSPP: the layout of MerlinToSPP with the medium exposure
// of every bracket moved to the front of its stack.
#include "TestImageDef.h"
#include "VRDrive2ToSPP.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace {

using Figures = QVector<float>;

quint32 bitsOf(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

float radiansOf(float degrees)
{
    return float(double(degrees) * 3.141592653589793 / 180.0);
}

/// The position of the medium exposure in a bracket: the figure of rank
/// (b - 1) / 2 in ascending order (the lower middle one of an even bracket),
/// at the last position holding it.
int mediumPosition(const Figures& figures)
{
    std::vector<double> ranked(figures.cbegin(), figures.cend());
    std::sort(ranked.begin(), ranked.end());
    const double medium = ranked[(ranked.size() - 1) / 2];
    for (int k = figures.size() - 1; k >= 0; --k) {
        if (double(figures[k]) == medium)
            return k;
    }
    return 0;
}

/// A recorded panorama: stacks in a row 20 degrees apart, b shots each, and
/// one image definition per image. The first bracket carries the figures
/// under test; the later ones carry them reversed, which must not matter.
class Shooting
{
public:
    Shooting(int stacks, const Figures& firstBracket) : m_bracket(firstBracket.size())
    {
        for (int k = 0; k < stacks; ++k) {
            for (int t = 0; t < m_bracket; ++t) {
                ShootData shot;
                shot.m_yaw = 20.0f * float(k);
                shot.m_pitch = float(k % 3) - 1.0f;
                shot.m_id = k * m_bracket + t;
                shot.m_bracket = t + 1;
                m_shots.append(shot);
                const float figure = k == 0 ? firstBracket[t] : firstBracket[m_bracket - 1 - t];
                m_defs.push_back(std::make_unique<TestImageDef>(24.0f, 0, shot.m_id, figure));
                m_defList.append(m_defs.back().get());
                m_images.append(QStringLiteral("/hdr/S%1_E%2.tif").arg(k).arg(t));
            }
        }
    }

    /// Fills what the reader would have read from the preset.
    void prepare(MerlinToSPP& converter, int lensType = 0) const
    {
        converter.m_shoots = m_shots;
        converter.m_nbPicts = m_bracket;
        converter.m_xmlFocal = 20.0;
        converter.m_xmlLensType = lensType;
    }

    /// The stacks before reordering: b consecutive images each.
    QVector<QStringList> groupedStacks() const
    {
        QVector<QStringList> stacks;
        for (int k = 0; k + m_bracket <= m_images.size(); k += m_bracket)
            stacks.append(m_images.mid(k, m_bracket));
        return stacks;
    }

    QStringList& images() { return m_images; }
    const QList<ZIImageDef*>& defs() const { return m_defList; }
    const QVector<ShootData>& shots() const { return m_shots; }

private:
    int m_bracket;
    QVector<ShootData> m_shots;
    std::vector<std::unique_ptr<TestImageDef>> m_defs;
    QList<ZIImageDef*> m_defList;
    QStringList m_images;
};

QVector<QStringList> withFront(QVector<QStringList> stacks, int position)
{
    for (QStringList& stack : stacks)
        std::swap(stack[0], stack[position]);
    return stacks;
}

bool sameLinks(const QVector<AuthorizedLink>& a, const QVector<AuthorizedLink>& b)
{
    if (a.size() != b.size())
        return false;
    for (int k = 0; k < a.size(); ++k) {
        if (a[k].m_direction != b[k].m_direction || a[k].m_stackIndices != b[k].m_stackIndices)
            return false;
    }
    return true;
}

} // namespace

class tst_VRDrive2ToSPP : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void mediumExposureFirst_data();
    void mediumExposureFirst();
    void fisheyePreset();
    void noBracketing();
    void notANumberFigure();
    void tooFewImageDefinitions();
    void missingImageDefinition();
    void shortStackKept();
};

void tst_VRDrive2ToSPP::construction()
{
    const VRDrive2ToSPP converter;
    QCOMPARE(converter.m_useShootData, true);
    QCOMPARE(converter.m_flag2, true);
    QCOMPARE(converter.m_useRecordedLocation, true);
    QCOMPARE(converter.m_overlap, 80.0);
    QCOMPARE(converter.m_lensModel, LensUnknown);
    QCOMPARE(converter.m_outputMode, -1);
    QVERIFY(converter.m_stacks.isEmpty());
    QVERIFY(converter.m_shoots.isEmpty());
}

void tst_VRDrive2ToSPP::mediumExposureFirst_data()
{
    QTest::addColumn<Figures>("figures");
    QTest::addColumn<int>("reference"); // -1: only computed

    QTest::newRow("-2 0 +2") << Figures { -2, 0, 2 } << 1;
    QTest::newRow("0 -2 +2") << Figures { 0, -2, 2 } << 0;
    QTest::newRow("+2 +1 0 -1 -2") << Figures { 2, 1, 0, -1, -2 } << 2;
    QTest::newRow("-3 -1 +1 +3") << Figures { -3, -1, 1, 3 } << 1;
    QTest::newRow("medium twice, later wins") << Figures { 0, 1, 1 } << 2;
    QTest::newRow("two, lower first") << Figures { -1, 1 } << 0;
    QTest::newRow("two, lower second") << Figures { 1, -1 } << 1;

    QRandomGenerator random(11);
    for (int b = 1; b <= 9; ++b) {
        Figures rising, falling, equal, pairs, fallingPairs, vee, drawn;
        for (int k = 0; k < b; ++k) {
            rising.append(float(k) - 4.0f);
            falling.append(4.0f - float(k));
            equal.append(0.5f);
            pairs.append(float(k / 2));
            fallingPairs.append(float((b - 1 - k) / 2));
            vee.append(std::fabs(float(k) - float(b / 2)));
            drawn.append(float(int(random.bounded(5)) - 2) * 0.33f);
        }
        QTest::addRow("%d rising", b) << rising << -1;
        QTest::addRow("%d falling", b) << falling << -1;
        QTest::addRow("%d equal", b) << equal << b - 1;
        QTest::addRow("%d rising pairs", b) << pairs << -1;
        QTest::addRow("%d falling pairs", b) << fallingPairs << -1;
        QTest::addRow("%d vee", b) << vee << -1;
        QTest::addRow("%d drawn", b) << drawn << -1;
    }
}

void tst_VRDrive2ToSPP::mediumExposureFirst()
{
    QFETCH(Figures, figures);
    QFETCH(int, reference);

    const int position = mediumPosition(figures);
    if (reference >= 0)
        QCOMPARE(position, reference); // the rule of the test agrees with the examples

    Shooting shooting(7, figures);
    VRDrive2ToSPP converter;
    shooting.prepare(converter);
    converter.generateSPP(shooting.images(), shooting.defs(), -1.0, LensUnknown);

    QCOMPARE(converter.m_stacks, withFront(shooting.groupedStacks(), position));

    // Everything else is the plain layout.
    MerlinToSPP plain;
    shooting.prepare(plain);
    plain.generateSPP(shooting.images(), -1.0, LensUnknown);
    QVERIFY(sameLinks(converter.m_links, plain.m_links));
    QVERIFY(!converter.m_links.isEmpty());
    QCOMPARE(converter.m_focalLength, 20.0f);
    QCOMPARE(converter.m_lensModel, LensStandard);
    QCOMPARE(converter.m_yaw.size(), shooting.shots().size());
    QCOMPARE(converter.m_pitch.size(), shooting.shots().size());
    for (int k = 0; k < shooting.shots().size(); ++k) {
        QCOMPARE(bitsOf(converter.m_yaw[k]), bitsOf(radiansOf(shooting.shots()[k].m_yaw)));
        QCOMPARE(bitsOf(converter.m_pitch[k]), bitsOf(radiansOf(shooting.shots()[k].m_pitch)));
    }
}

void tst_VRDrive2ToSPP::fisheyePreset()
{
    Shooting shooting(5, { -2, 0, 2 });
    VRDrive2ToSPP converter;
    shooting.prepare(converter, LensFisheye);
    converter.generateSPP(shooting.images(), shooting.defs(), -1.0, LensUnknown);
    QCOMPARE(converter.m_lensModel, LensFisheye);
    QVERIFY(converter.m_links.isEmpty());
    QCOMPARE(converter.m_stacks, withFront(shooting.groupedStacks(), 1));
}

void tst_VRDrive2ToSPP::noBracketing()
{
    // A preset without bracketing: one image per stack, nothing to move.
    Shooting shooting(4, { 3 });
    VRDrive2ToSPP converter;
    shooting.prepare(converter);
    converter.m_nbPicts = -1;
    converter.generateSPP(shooting.images(), shooting.defs(), 24.0, LensStandard);
    QCOMPARE(converter.m_stacks, shooting.groupedStacks());
}

void tst_VRDrive2ToSPP::notANumberFigure()
{
    // A figure that is not a number ranks after every number: (0, 1) remain,
    // the medium is 1.
    Shooting shooting(3, { std::numeric_limits<float>::quiet_NaN(), 0, 1 });
    VRDrive2ToSPP converter;
    shooting.prepare(converter);
    converter.generateSPP(shooting.images(), shooting.defs(), -1.0, LensUnknown);
    QCOMPARE(converter.m_stacks, withFront(shooting.groupedStacks(), 2));
}

void tst_VRDrive2ToSPP::tooFewImageDefinitions()
{
    Shooting shooting(3, { -2, 0, 2 });
    VRDrive2ToSPP converter;
    shooting.prepare(converter);
    const QList<ZIImageDef*> some = shooting.defs().mid(0, 2);
    converter.generateSPP(shooting.images(), some, -1.0, LensUnknown);
    QCOMPARE(converter.m_stacks, shooting.groupedStacks());

    VRDrive2ToSPP none;
    shooting.prepare(none);
    none.generateSPP(shooting.images(), {}, -1.0, LensUnknown);
    QCOMPARE(none.m_stacks, shooting.groupedStacks());
}

void tst_VRDrive2ToSPP::missingImageDefinition()
{
    Shooting shooting(3, { -2, 0, 2 });
    QList<ZIImageDef*> defs = shooting.defs();
    defs[1] = nullptr;
    VRDrive2ToSPP converter;
    shooting.prepare(converter);
    converter.generateSPP(shooting.images(), defs, -1.0, LensUnknown);
    QCOMPARE(converter.m_stacks, shooting.groupedStacks());
}

void tst_VRDrive2ToSPP::shortStackKept()
{
    // A stack already in the record that is too short for the medium's
    // position stays as it is; the new ones are reordered.
    Shooting shooting(3, { 2, 1, 0, -1, -2 });
    VRDrive2ToSPP converter;
    shooting.prepare(converter);
    const QStringList earlier { QStringLiteral("/hdr/earlier_a.tif"),
        QStringLiteral("/hdr/earlier_b.tif") };
    converter.m_stacks.append(earlier);
    converter.generateSPP(shooting.images(), shooting.defs(), -1.0, LensUnknown);
    QCOMPARE(converter.m_stacks,
        QVector<QStringList> { earlier } + withFront(shooting.groupedStacks(), 2));
}

QTEST_GUILESS_MAIN(tst_VRDrive2ToSPP)
#include "tst_VRDrive2ToSPP.moc"
