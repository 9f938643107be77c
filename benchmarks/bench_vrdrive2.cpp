// VRDrive2ToSPP generation of 3,000 images in brackets of 5 (600 positions),
// including the layout it builds on (target: under 50 ms).
#include "VRDrive2ToSPP.h"
#include "ZIImageDef.h"

#include <QPixmap>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

/// An image definition with an exposure figure only; no pixmap is made unless asked.
class ExposureOnlyImageDef : public ZIImageDef
{
public:
    explicit ExposureOnlyImageDef(float exposure) : m_exposure(exposure) { }
    const QPixmap& Thumbnail() const override
    {
        static const QPixmap none;
        return none;
    }
    float FocalLength() const override { return 24.0f; }
    int LensType() const override { return 0; }
    qint64 OrderKey() const override { return 0; }
    float Exposure() const override { return m_exposure; }

private:
    float m_exposure;
};

void BM_VRDrive2Generate3000In5(benchmark::State& state)
{
    constexpr int kBracket = 5;
    constexpr int kPositions = 600; // 6 rows of 100
    const float figures[kBracket] = { 0.0f, -2.0f, 2.0f, -4.0f, 4.0f };
    QVector<ShootData> shots;
    QStringList images;
    std::vector<std::unique_ptr<ExposureOnlyImageDef>> owned;
    QList<ZIImageDef*> defs;
    for (int p = 0; p < kPositions; ++p) {
        for (int t = 0; t < kBracket; ++t) {
            ShootData shot;
            shot.m_yaw = 3.6f * float(p % 100);
            shot.m_pitch = -50.0f + 20.0f * float(p / 100);
            shot.m_id = shots.size();
            shot.m_bracket = t + 1;
            shots.append(shot);
            images.append(QStringLiteral("/vrdrive/IMG_%1.CR2").arg(shots.size()));
            owned.push_back(std::make_unique<ExposureOnlyImageDef>(figures[t]));
            defs.append(owned.back().get());
        }
    }
    qint64 links = 0;
    for (auto _ : state) {
        VRDrive2ToSPP converter;
        converter.m_shoots = shots;
        converter.m_nbPicts = kBracket;
        converter.m_xmlFocal = 50.0;
        converter.generateSPP(images, defs, -1.0, LensUnknown);
        links = converter.m_links.size();
        benchmark::DoNotOptimize(converter.m_stacks.constData());
    }
    state.counters["links"] = double(links);
}
BENCHMARK(BM_VRDrive2Generate3000In5)->Unit(benchmark::kMillisecond);

} // namespace
