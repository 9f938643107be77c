// Fuzz target: the Hugin project writer over fuzzed records: stacks of
// photographs with awkward paths (blanks, quotes, line breaks, non-Latin
// letters, shared between stacks), links between existing stacks, angle
// vectors of any length and value, positions that may be missing or not
// finite, photographs of any declared size and orientation, and any focal
// length. The writer either refuses with a reason or writes one image line
// per photograph, whatever the paths hold.
#include "FuzzCheck.h"
#include "HuginProjectWriter.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <limits>

namespace {

constexpr int kMaxStacks = 48;

double anyDouble(FuzzedDataProvider& in)
{
    switch (in.ConsumeIntegralInRange(0, 7)) {
    case 0:
        return std::numeric_limits<double>::quiet_NaN();
    case 1:
        return in.ConsumeBool() ? std::numeric_limits<double>::infinity()
                                : -std::numeric_limits<double>::infinity();
    case 2:
        return in.ConsumeFloatingPoint<double>();
    case 3:
        return 0.0;
    default:
        return in.ConsumeFloatingPointInRange(-720.0, 720.0);
    }
}

QString anyPath(FuzzedDataProvider& in, int k)
{
    static const char* const kNames[] = {
        "/photos/IMG_%1.JPG",
        "/photos/with blank %1.jpg",
        "relative/%1.jpg",
        "/ph\xc3\xb6tos/\xe5\x86\x99%1.jpg",
        "/photos/quote\"%1.jpg",
        "/photos/line\nbreak%1.jpg",
        "/photos/%1\ni n\"x.jpg\"",
        "/photos/#%1.jpg",
        "/photos/tab\t%1.jpg",
        "%1",
        "/photos/../up/%1.jpg",
        "/photos/same.jpg",
    };
    const char* pattern = kNames[in.ConsumeIntegralInRange<size_t>(0, std::size(kNames) - 1)];
    return QString::fromUtf8(pattern).arg(k);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzedDataProvider in(data, size);
    ExportInput input;
    StructuredPanoramaProperties& record = input.panorama;

    const int stacks = in.ConsumeIntegralInRange(0, kMaxStacks);
    int photos = 0;
    for (int s = 0; s < stacks; ++s) {
        QStringList stack;
        const int n = in.ConsumeIntegralInRange(1, 5);
        for (int i = 0; i < n; ++i)
            stack << anyPath(in, photos++);
        record.m_stacks << stack;
    }
    const int links = stacks ? in.ConsumeIntegralInRange(0, 3 * stacks) : 0;
    for (int l = 0; l < links; ++l) {
        AuthorizedLink link;
        link.m_direction = in.ConsumeIntegralInRange(-1, 5);
        link.m_stackIndices = { in.ConsumeIntegralInRange(0, stacks - 1),
            in.ConsumeIntegralInRange(0, stacks - 1) };
        record.m_links << link;
    }
    for (QVector<float>* angles : { &record.m_yaw, &record.m_pitch, &record.m_roll }) {
        const int n = in.ConsumeIntegralInRange(0, stacks * 5 + 2);
        for (int i = 0; i < n; ++i)
            *angles << float(anyDouble(in));
    }
    record.m_stackLinking = in.ConsumeIntegralInRange(-1, 2);
    record.m_levelLinking = in.ConsumeIntegralInRange(-1, 2);
    record.m_bracketCount = in.ConsumeIntegralInRange(0, 9);
    record.m_overlap = anyDouble(in);
    record.m_focalLength = float(anyDouble(in));
    record.m_lensModel = in.ConsumeBool() ? LensFisheye : LensStandard;

    // Positions: usually one per stack, now and then one short.
    const int positions = stacks - (in.ConsumeIntegralInRange(0, 9) == 0 ? 1 : 0);
    for (int s = 0; s < positions; ++s)
        input.positions << StackPosition { anyDouble(in), anyDouble(in), anyDouble(in) };

    // What is known of each photograph; now and then one is missing.
    for (const QStringList& stack : qAsConst(record.m_stacks)) {
        for (const QString& path : stack) {
            if (in.ConsumeIntegralInRange(0, 15) == 0)
                continue;
            ImageInfo info;
            info.path = path;
            info.pixelSize
                = QSize(in.ConsumeIntegralInRange(-2, 70000), in.ConsumeIntegralInRange(-2, 70000));
            info.orientation = in.ConsumeIntegralInRange(0, 9);
            info.hasExposure = in.ConsumeBool();
            info.exposureValue = anyDouble(in);
            input.images.insert(path, info);
        }
    }
    input.focalLength = anyDouble(in);
    input.lens = in.ConsumeBool() ? LensFisheye : LensStandard;

    const int shotsPerStack = in.ConsumeIntegralInRange(0, 8);
    const QVector<StackPosition> recorded
        = HuginProjectWriter::recordedPositions(record, shotsPerStack);
    FUZZ_CHECK(recorded.size() == stacks);

    QString project;
    QString error;
    const HuginProjectWriter writer(input);
    if (!writer.text(QStringLiteral("/photos"), &project, &error)) {
        FUZZ_CHECK(!error.isEmpty());
        return 0;
    }
    FUZZ_CHECK(!project.isEmpty());
    // One image line per photograph: nothing in a path may start a line.
    int imageLines = 0;
    for (const QString& line : project.split(QLatin1Char('\n')))
        imageLines += line.startsWith(QLatin1String("i ")) ? 1 : 0;
    FUZZ_CHECK(imageLines == photos);
    return 0;
}
