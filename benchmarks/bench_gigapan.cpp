// GigapanToSPP generation of a 100 x 100 grid closing a full circle
// (target: under 50 ms).
#include "GigapanToSPP.h"

#include <benchmark/benchmark.h>

namespace {

void BM_GigapanGrid100x100Wrapped(benchmark::State& state)
{
    QStringList files;
    for (int k = 0; k < 100 * 100; ++k)
        files.append(QStringLiteral("/gigapan/IMG_%1.JPG").arg(k));
    qint64 links = 0;
    for (auto _ : state) {
        GigapanToSPP converter(100, 100, 0, 1, 0);
        converter.generateSPP(files, true);
        links = converter.m_links.size();
        benchmark::DoNotOptimize(converter.m_links.constData());
    }
    state.counters["links"] = double(links);
}
BENCHMARK(BM_GigapanGrid100x100Wrapped)->Unit(benchmark::kMillisecond);

} // namespace
