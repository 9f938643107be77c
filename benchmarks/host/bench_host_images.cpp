// The host's image reading, measured per photograph against its floors in
// one run, on 24-megapixel JPEG files (scripts/make-benchmark-photos.sh;
// even-numbered files carry an EXIF thumbnail, odd ones none):
//
//   with a thumbnail     ImageDefinition::Read   vs exiftool reading FocalLength,
//                                                ExposureTime, FNumber and ISO
//                                                from the same files in one process
//                                                (at least 5 times faster), and vs a
//                                                minimal exiv2 loop reading the same
//                                                fields and decoding the embedded
//                                                thumbnail (within 1.5 times);
//   without a thumbnail  ImageDefinition::Read   vs a bare QImageReader scaled
//                                                decode of the same file (within
//                                                1.2 times);
//   memory               heap kept per definition (at most 128 KiB).
//
// Usage: zph_bench_host [--photos FOLDER] [Google Benchmark options]
// FOLDER defaults to $ZPH_BENCH_PHOTOS, then /tmp/zph-bench-photos.
#include "ImageDefinition.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QStandardPaths>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <memory>
#include <vector>

#include <malloc.h>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <exiv2/exiv2.hpp>

namespace {

QStringList g_withThumbnail;
QStringList g_withoutThumbnail;

void BM_ReadWithThumbnail(benchmark::State& state)
{
    int i = 0;
    for (auto _ : state) {
        std::unique_ptr<ImageDefinition> def(
            ImageDefinition::Read(g_withThumbnail[i++ % g_withThumbnail.size()]));
        if (!def || !def->ThumbnailIsEmbedded())
            state.SkipWithError("a photograph with a thumbnail could not be read");
        benchmark::DoNotOptimize(def.get());
    }
}

/// The floor: exiv2 reads the four fields, Qt decodes the embedded thumbnail.
void BM_FloorExiv2AndThumbnail(benchmark::State& state)
{
    int i = 0;
    for (auto _ : state) {
        const QString path = g_withThumbnail[i++ % g_withThumbnail.size()];
        Exiv2::Image::AutoPtr image
            = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
        image->readMetadata();
        const Exiv2::ExifData& exif = image->exifData();
        float fields = 0;
        for (const char* key : { "Exif.Photo.FocalLength", "Exif.Photo.ExposureTime",
                 "Exif.Photo.FNumber", "Exif.Photo.ISOSpeedRatings" }) {
            const auto it = exif.findKey(Exiv2::ExifKey(key));
            if (it != exif.end())
                fields += it->toFloat();
        }
        Exiv2::ExifThumbC thumb(exif);
        const Exiv2::DataBuf data = thumb.copy();
        const QImage decoded = QImage::fromData(data.pData_, int(data.size_));
        if (decoded.isNull())
            state.SkipWithError("no thumbnail");
        benchmark::DoNotOptimize(fields);
        benchmark::DoNotOptimize(decoded.constBits());
    }
}

/// exiftool over all photographs with a thumbnail, in one process; the
/// reported time is per photograph (the process's time divided by their count).
void BM_ExiftoolFourFields(benchmark::State& state)
{
    const QString exiftool = QStandardPaths::findExecutable(QStringLiteral("exiftool"));
    if (exiftool.isEmpty()) {
        state.SkipWithError("exiftool is not installed");
        return;
    }
    QStringList args = { QStringLiteral("-n"), QStringLiteral("-T"), QStringLiteral("-FocalLength"),
        QStringLiteral("-ExposureTime"), QStringLiteral("-FNumber"), QStringLiteral("-ISO") };
    args += g_withThumbnail;
    for (auto _ : state) {
        QProcess process;
        process.start(exiftool, args);
        if (!process.waitForFinished(600000) || process.exitCode() != 0) {
            state.SkipWithError("exiftool failed");
            break;
        }
        const QByteArray out = process.readAllStandardOutput();
        if (out.count('\n') != g_withThumbnail.size())
            state.SkipWithError("exiftool printed an unexpected number of lines");
        benchmark::DoNotOptimize(out.constData());
    }
    state.counters["photos"] = g_withThumbnail.size();
}

void BM_ReadWithoutThumbnail(benchmark::State& state)
{
    int i = 0;
    for (auto _ : state) {
        std::unique_ptr<ImageDefinition> def(
            ImageDefinition::Read(g_withoutThumbnail[i++ % g_withoutThumbnail.size()]));
        if (!def || def->ThumbnailIsEmbedded() || def->ThumbnailImage().isNull())
            state.SkipWithError("a photograph without a thumbnail could not be read");
        benchmark::DoNotOptimize(def.get());
    }
}

/// The floor: Qt's reader decoding the picture reduced to 192 pixels.
void BM_FloorScaledDecode(benchmark::State& state)
{
    int i = 0;
    for (auto _ : state) {
        QImageReader reader(g_withoutThumbnail[i++ % g_withoutThumbnail.size()]);
        const QSize size = reader.size();
        reader.setScaledSize(size.scaled(
            ImageDefinition::ThumbnailSide, ImageDefinition::ThumbnailSide, Qt::KeepAspectRatio));
        const QImage image = reader.read();
        if (image.isNull())
            state.SkipWithError("cannot decode");
        benchmark::DoNotOptimize(image.constBits());
    }
}

/// Heap kept per definition, all 200 kept at once, as the pages keep them.
void BM_MemoryPerDefinition(benchmark::State& state)
{
    const QStringList all = g_withThumbnail + g_withoutThumbnail;
    double perDefinition = 0;
    double footprint = 0;
    for (auto _ : state) {
        std::vector<std::unique_ptr<ImageDefinition>> kept;
        kept.reserve(size_t(all.size()));
        malloc_trim(0);
        const size_t before = mallinfo2().uordblks;
        for (const QString& path : all)
            kept.emplace_back(ImageDefinition::Read(path));
        const size_t after = mallinfo2().uordblks;
        perDefinition = double(after - before) / double(all.size());
        footprint = 0;
        for (const auto& def : kept)
            footprint += def ? double(def->MemoryFootprint()) : 0.0;
        footprint /= double(all.size());
    }
    state.counters["heap_bytes_per_def"] = perDefinition;
    state.counters["footprint_bytes_per_def"] = footprint;
}

/// Keeps each benchmark's real time per iteration, and its counters.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                seconds[run.run_name.function_name]
                    = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
                for (const auto& counter : run.counters)
                    counters[run.run_name.function_name + "/" + counter.first]
                        = counter.second.value;
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> seconds;
    std::map<std::string, double> counters;
};

} // namespace

BENCHMARK(BM_ReadWithThumbnail)->Unit(benchmark::kMicrosecond)->UseRealTime()->MinTime(2.0);
BENCHMARK(BM_FloorExiv2AndThumbnail)->Unit(benchmark::kMicrosecond)->UseRealTime()->MinTime(2.0);
BENCHMARK(BM_ExiftoolFourFields)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);
BENCHMARK(BM_ReadWithoutThumbnail)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(3.0);
BENCHMARK(BM_FloorScaledDecode)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(3.0);
BENCHMARK(BM_MemoryPerDefinition)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QString folder
        = qEnvironmentVariable("ZPH_BENCH_PHOTOS", QStringLiteral("/tmp/zph-bench-photos"));
    std::vector<char*> rest;
    for (int i = 0; i < argc; ++i) {
        if (std::string(argv[i]) == "--photos" && i + 1 < argc)
            folder = QString::fromLocal8Bit(argv[++i]);
        else
            rest.push_back(argv[i]);
    }
    const QStringList files
        = QDir(folder).entryList({ QStringLiteral("photo-*.jpg") }, QDir::Files, QDir::Name);
    for (const QString& name : files) {
        const QString path = QDir(folder).filePath(name);
        // make-benchmark-photos.sh gives even numbers a thumbnail.
        const int number = name.mid(6, 4).toInt();
        (number % 2 == 0 ? g_withThumbnail : g_withoutThumbnail) << path;
    }
    if (g_withThumbnail.isEmpty() || g_withoutThumbnail.isEmpty()) {
        std::fprintf(stderr, "no photographs in %s: run scripts/make-benchmark-photos.sh\n",
            qPrintable(folder));
        return 2;
    }
    // Warm the page cache so every contender reads from memory.
    for (const QString& path : g_withThumbnail + g_withoutThumbnail) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            while (!file.read(1 << 20).isEmpty()) { }
    }
    int restCount = int(rest.size());
    benchmark::Initialize(&restCount, rest.data());
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    auto value = [&](const char* name) {
        const auto it = reporter.seconds.find(name);
        return it == reporter.seconds.end() ? 0.0 : it->second;
    };
    const double with = value("BM_ReadWithThumbnail");
    const double floor = value("BM_FloorExiv2AndThumbnail");
    const double exiftool = value("BM_ExiftoolFourFields") / double(g_withThumbnail.size());
    const double without = value("BM_ReadWithoutThumbnail");
    const double decode = value("BM_FloorScaledDecode");
    std::printf("\nPer photograph (%d with an EXIF thumbnail, %d without), in %s:\n",
        int(g_withThumbnail.size()), int(g_withoutThumbnail.size()), qPrintable(folder));
    if (with > 0 && exiftool > 0)
        std::printf("  with thumbnail: %.3f ms; exiftool %.3f ms: %.1fx faster (goal >= 5x)\n",
            with * 1e3, exiftool * 1e3, exiftool / with);
    if (with > 0 && floor > 0)
        std::printf("  with thumbnail: %.3f ms; exiv2 + thumbnail floor %.3f ms: %.2fx the floor "
                    "(goal <= 1.5x)\n",
            with * 1e3, floor * 1e3, with / floor);
    if (without > 0 && decode > 0)
        std::printf("  without thumbnail: %.2f ms; bare scaled decode %.2f ms: %.2fx the floor "
                    "(goal <= 1.2x)\n",
            without * 1e3, decode * 1e3, without / decode);
    const auto heap = reporter.counters.find("BM_MemoryPerDefinition/heap_bytes_per_def");
    const auto footprint = reporter.counters.find("BM_MemoryPerDefinition/footprint_bytes_per_def");
    if (heap != reporter.counters.end() && footprint != reporter.counters.end())
        std::printf("  kept per definition: %.1f KiB on the heap, %.1f KiB by its own count "
                    "(goal <= 128 KiB)\n",
            heap->second / 1024.0, footprint->second / 1024.0);
    benchmark::Shutdown();
    return 0;
}

#pragma GCC diagnostic pop
