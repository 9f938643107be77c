// ClaussToSPP link generation over 5,000 photos, beside the plain all-pairs
// loop that takes acos of every pair over precomputed direction vectors. Both
// make the same links; the generator should be no slower than the plain loop.
#include "ClaussToSPP.h"
#include "ZIImageDef.h"

#include <QPixmap>

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>
#include <vector>

namespace {

/// An image definition with a focal length only; no pixmap is made unless asked.
class FocalOnlyImageDef : public ZIImageDef
{
public:
    explicit FocalOnlyImageDef(float focal) : m_focal(focal) { }
    const QPixmap& Thumbnail() const override
    {
        static const QPixmap none;
        return none;
    }
    float FocalLength() const override { return m_focal; }
    int LensType() const override { return 0; }
    qint64 OrderKey() const override { return 0; }
    float Exposure() const override { return 0.0f; }

private:
    float m_focal;
};

/// A gigapixel-style spherical grid: 50 rows of 100 photos at 300 mm, with
/// a few wider photos among them.
struct ClaussPanorama
{
    static constexpr int kRows = 50;
    static constexpr int kColumns = 100;

    ClaussPanorama()
    {
        for (int r = 0; r < kRows; ++r) {
            for (int c = 0; c < kColumns; ++c) {
                ShootData shot;
                shot.m_yaw = 3.6f * float(c) + (r % 2 ? 1.8f : 0.0f);
                shot.m_pitch = -60.0f + 120.0f * float(r) / float(kRows - 1);
                shot.m_id = shots.size();
                shots.append(shot);
                owned.push_back(std::make_unique<FocalOnlyImageDef>(c % 97 == 0 ? 85.0f : 300.0f));
                defs.append(owned.back().get());
                files.append(QStringLiteral("/rodeon/IMG_%1.JPG").arg(shots.size()));
            }
        }
    }

    QVector<ShootData> shots;
    std::vector<std::unique_ptr<FocalOnlyImageDef>> owned;
    QList<ZIImageDef*> defs;
    QStringList files;
};

const ClaussPanorama& panorama()
{
    static const ClaussPanorama instance;
    return instance;
}

float radians(float degrees)
{
    return float(double(degrees) * 3.141592653589793 / 180.0);
}

void BM_ClaussGenerate5000(benchmark::State& state)
{
    const ClaussPanorama& pano = panorama();
    QStringList files = pano.files;
    qint64 links = 0;
    for (auto _ : state) {
        ClaussToSPP converter;
        converter.m_shots = pano.shots;
        converter.generateSPP(files, pano.defs);
        links = converter.m_links.size();
        benchmark::DoNotOptimize(converter.m_links.constData());
    }
    state.counters["links"] = double(links);
}
BENCHMARK(BM_ClaussGenerate5000)->Unit(benchmark::kMillisecond);

void BM_ClaussPlainAcosLoop5000(benchmark::State& state)
{
    const ClaussPanorama& pano = panorama();
    const int n = pano.shots.size();
    std::vector<double> xs(n), ys(n), zs(n);
    std::vector<float> half(n);
    for (int k = 0; k < n; ++k) {
        const double yaw = radians(pano.shots[k].m_yaw);
        const double pitch = radians(pano.shots[k].m_pitch);
        xs[k] = std::cos(pitch) * std::cos(yaw);
        ys[k] = std::cos(pitch) * std::sin(yaw);
        zs[k] = -std::sin(pitch);
        const float twice = 2.0f * pano.defs[k]->FocalLength();
        half[k] = float(std::atan(43.266615305567875 / double(twice)));
    }
    qint64 count = 0;
    for (auto _ : state) {
        QVector<AuthorizedLink> links;
        for (int i = 0; i < n; ++i) {
            for (int j = i + 1; j < n; ++j) {
                const double angle = std::acos(xs[i] * xs[j] + ys[i] * ys[j] + zs[i] * zs[j]);
                const double threshold = angle * double(0.7f);
                if (double(half[i]) > threshold || double(half[j]) > threshold) {
                    AuthorizedLink link;
                    link.m_stackIndices = { i, j };
                    links.append(link);
                }
            }
        }
        count = links.size();
        benchmark::DoNotOptimize(links.constData());
    }
    state.counters["links"] = double(count);
}
BENCHMARK(BM_ClaussPlainAcosLoop5000)->Unit(benchmark::kMillisecond);

} // namespace
