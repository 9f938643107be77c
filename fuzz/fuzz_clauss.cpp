// Fuzz target: the Clauss Rodeon script reader, then layout generation with
// as many photos and image definitions as the script has shots (the only case
// the page lets through), with focal lengths chosen by the input.
#include "ClaussToSPP.h"
#include "FuzzCheck.h"
#include "FuzzImageDef.h"

#include <QByteArray>
#include <QStringList>

#include <memory>
#include <vector>

namespace {

// Linking tests all pairs of photos; beyond this a run costs too much time
// for a fuzzer and adds no new paths.
constexpr int kMaxPhotos = 32;

// Focal lengths a host may report: none (0), ordinary ones, absurd ones.
constexpr float kFocals[] = { 0.0f, 4.5f, 12.0f, 24.0f, 50.0f, 600.0f, 1e-30f, 3.4e38f };

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ClaussToSPP conv;
    // False for a bad angle, but the shots read are kept.
    conv.parseScript(QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size)),
        QStringLiteral("script"));
    const int shots = conv.m_shots.size();
    for (int k = 0; k < shots; ++k) {
        FUZZ_CHECK(conv.m_shots[k].m_id == k);
        FUZZ_CHECK(conv.m_shots[k].m_roll == 0.0f);
        FUZZ_CHECK(conv.m_shots[k].m_bracket == 0);
    }

    const int photos = shots < kMaxPhotos ? shots : kMaxPhotos;
    QStringList files;
    std::vector<std::unique_ptr<FuzzImageDef>> owned;
    QList<ZIImageDef*> defs;
    for (int k = 0; k < photos; ++k) {
        files << QStringLiteral("/photos/P%1.JPG").arg(k);
        const uint8_t pick = size ? data[size_t(k) % size] : 0;
        const float focal = kFocals[pick % (sizeof kFocals / sizeof *kFocals)];
        owned.push_back(std::make_unique<FuzzImageDef>(focal, 0.0f));
        defs << owned.back().get();
    }
    conv.generateSPP(files, defs);

    FUZZ_CHECK(conv.m_stacks.size() == photos);
    FUZZ_CHECK(conv.m_yaw.size() == shots);
    FUZZ_CHECK(conv.m_pitch.size() == shots);
    FUZZ_CHECK(conv.m_roll.isEmpty());
    int lastI = -1, lastJ = -1;
    for (const AuthorizedLink& link : conv.m_links) {
        FUZZ_CHECK(link.m_direction == 0);
        FUZZ_CHECK(link.m_stackIndices.size() == 2);
        const int i = link.m_stackIndices[0];
        const int j = link.m_stackIndices[1];
        FUZZ_CHECK(i >= 0 && i < j && j < photos);
        // Ordered by i, then j, each pair once.
        FUZZ_CHECK(i > lastI || (i == lastI && j > lastJ));
        lastI = i;
        lastJ = j;
    }
    return 0;
}
