// Fuzz target: the Papywizard XML reader, then layout generation with a few
// image lists, and the VR Drive 2 generation over the same record. The lists
// are the ones a page can hand over: as many images as recorded shots, none,
// and one bracket more than the record holds (the generator must bound its
// reading of the shots). The bracketing count is forced to 1 or more as the
// pages do before generating.
#include "FuzzCheck.h"
#include "FuzzImageDef.h"
#include "MerlinToSPP.h"
#include "VRDrive2ToSPP.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace {

// Links are made over all pairs of stacks; beyond this many images a run
// costs too much time for a fuzzer and adds no new paths.
constexpr int kMaxImages = 128;

QStringList imageList(int n)
{
    QStringList images;
    images.reserve(n);
    for (int i = 0; i < n; ++i)
        images << QStringLiteral("/photos/IMG_%1.JPG").arg(i, 4, 10, QLatin1Char('0'));
    return images;
}

void checkResetValues(const MerlinToSPP& record)
{
    FUZZ_CHECK(record.m_shoots.isEmpty());
    FUZZ_CHECK(record.m_nbPicts == -1);
    FUZZ_CHECK(record.m_xmlFocal == -1.0);
    FUZZ_CHECK(record.m_sensorCoef == 1.0);
    FUZZ_CHECK(record.m_xmlLensType == 0);
    FUZZ_CHECK(!record.m_portrait);
    FUZZ_CHECK(record.m_title.isEmpty() && record.m_gps.isEmpty() && record.m_comment.isEmpty());
}

void checkGenerated(const MerlinToSPP& spp, int images, int bracket, int shots, LensModel lens)
{
    const int stacks = images / bracket;
    FUZZ_CHECK(spp.m_stacks.size() == stacks);
    for (const QStringList& stack : spp.m_stacks)
        FUZZ_CHECK(stack.size() == bracket);
    // Every recorded shot has its angles, brackets included.
    FUZZ_CHECK(spp.m_yaw.size() == shots);
    FUZZ_CHECK(spp.m_pitch.size() == shots);
    FUZZ_CHECK(spp.m_roll.size() == shots);
    FUZZ_CHECK(spp.m_lensModel == lens);
    if (lens == LensFisheye)
        FUZZ_CHECK(spp.m_links.isEmpty());
    for (const AuthorizedLink& link : spp.m_links) {
        FUZZ_CHECK(link.m_direction == 1 || link.m_direction == 2);
        FUZZ_CHECK(link.m_stackIndices.size() == 2);
        const int i = link.m_stackIndices[0];
        const int j = link.m_stackIndices[1];
        FUZZ_CHECK(i >= 0 && i < stacks && j >= 0 && j < stacks && i != j);
    }
}

// The exposure figure of image k, chosen by the input: small steps with
// repeats, and now and then a figure that does not compare (a host may
// report one for a file with a zero exposure time).
float exposureFor(const uint8_t* data, size_t size, int k)
{
    if (size == 0)
        return 0.0f;
    const uint8_t byte = data[size_t(k) % size];
    if (byte == 0x80)
        return std::numeric_limits<float>::quiet_NaN();
    if (byte == 0x81)
        return std::numeric_limits<float>::infinity();
    return float(int8_t(byte)) / 3.0f;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    MerlinToSPP record;
    if (!record.parseRecord(
            QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size)))) {
        checkResetValues(record);
        return 0;
    }
    const int shots = record.m_shoots.size();
    for (const ShootData& shot : record.m_shoots)
        FUZZ_CHECK(shot.m_roll == 0.0f);

    // The pages force a bracketing count below 1 to 1.
    const int bracket = std::max(record.m_nbPicts, 1);
    record.m_nbPicts = bracket;

    // The lens and focal length the page passes: chosen by the input's last byte.
    static const struct
    {
        double focal;
        LensModel lens;
    } kChoices[] = { { -1.0, LensUnknown }, { 24.0, LensStandard }, { 0.0, LensStandard },
        { 10.5, LensFisheye }, { -1.0, LensStandard }, { 1e-6, LensUnknown }, { 1e9, LensStandard },
        { 50.0, LensUnknown } };
    const auto& choice = kChoices[size ? data[size - 1] % 8 : 0];
    const LensModel expectedLens
        = choice.lens == LensUnknown ? LensModel(record.m_xmlLensType) : choice.lens;

    const long long beyond = (static_cast<long long>(shots) / bracket + 1) * bracket;
    const long long lists[] = { shots, 0, beyond };
    for (const long long n : lists) {
        if (n > kMaxImages)
            continue;
        MerlinToSPP spp = record;
        spp.generateSPP(imageList(int(n)), choice.focal, choice.lens);
        checkGenerated(spp, int(n), bracket, shots, expectedLens);
    }

    // VR Drive 2: the page goes on only with a complete list (as many images as
    // shots, a multiple of the bracket) and passes one definition per image.
    if (shots >= bracket && shots % bracket == 0 && shots <= kMaxImages) {
        VRDrive2ToSPP vr;
        static_cast<MerlinToSPP&>(vr) = record;
        std::vector<std::unique_ptr<FuzzImageDef>> owned;
        QList<ZIImageDef*> defs;
        for (int k = 0; k < shots; ++k) {
            owned.push_back(std::make_unique<FuzzImageDef>(24.0f, exposureFor(data, size, k)));
            defs << owned.back().get();
        }
        QStringList images = imageList(shots);
        vr.generateSPP(images, defs, choice.focal, choice.lens);
        checkGenerated(vr, shots, bracket, shots, expectedLens);
        // Only the order inside a stack may change: each stack keeps its images.
        const QStringList original = imageList(shots);
        for (int s = 0; s < vr.m_stacks.size(); ++s) {
            QStringList got = vr.m_stacks[s];
            QStringList want = original.mid(s * bracket, bracket);
            got.sort();
            want.sort();
            FUZZ_CHECK(got == want);
        }
    }
    return 0;
}
