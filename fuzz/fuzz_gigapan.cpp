// Fuzz target: the Gigapan grid generator over the grid values that the page
// can produce: rows 1 to 100000 (the row box's range), bracketing 1 to 99 and
// skipped photos 0 to 99 (the spin boxes' ranges), order 0 to 4, the 360° flag
// and up to 1000 photos. The columns come from the page's own formula, so a
// grid never needs more photos than there are, but may have no column at all.
#include "FuzzCheck.h"
#include "GigapanToSPP.h"

#include <QStringList>

#include <cmath>

#include <fuzzer/FuzzedDataProvider.h>

namespace {

// A grid of this many cells reaches every branch a larger one does; each
// cell costs a stack and up to four links, each with a list of its own.
constexpr int kMaxPhotos = 1000;

// The columns as the page computes them after every grid edit.
int pageColumns(int photos, int skip, int bracket, int rows)
{
    return (photos - skip) / bracket / rows;
}

// The rows the page proposes after a choice of photos: the largest divisor of
// n not above its square root.
int proposedRows(int n)
{
    int rows = int(std::sqrt(double(float(n)))) + 1;
    int columns = 0;
    do {
        --rows;
        columns = n / rows + (n % rows ? 1 : 0);
    } while (rows * columns != n);
    return rows;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzedDataProvider in(data, size);
    // Mostly small photo lists, which run fast; one input in sixteen a large one.
    const int photos
        = in.ConsumeIntegralInRange(0, in.ConsumeIntegralInRange(0, 15) == 0 ? kMaxPhotos : 64);
    const bool proposed = in.ConsumeBool();
    int rows = in.ConsumeIntegralInRange(1, 100000);
    if (proposed && photos > 0)
        rows = proposedRows(photos);
    const int bracket = in.ConsumeIntegralInRange(1, 99);
    const int skip = in.ConsumeIntegralInRange(0, 99);
    const int order = in.ConsumeIntegralInRange(0, 4);
    const bool force360 = in.ConsumeBool();
    const int columns = pageColumns(photos, skip, bracket, rows);

    static const QStringList allFiles = [] {
        QStringList names;
        for (int k = 0; k < kMaxPhotos; ++k)
            names << QStringLiteral("/photos/G%1.JPG").arg(k);
        return names;
    }();
    const QStringList files = allFiles.mid(0, photos);

    GigapanToSPP conv(rows, columns, order, bracket, skip);
    conv.generateSPP(files, force360);

    const int cells = columns > 0 ? rows * columns : 0;
    FUZZ_CHECK(conv.m_stacks.size() == cells);
    for (int s = 0; s < conv.m_stacks.size(); ++s) {
        FUZZ_CHECK(conv.m_stacks[s].size() == bracket);
        FUZZ_CHECK(conv.m_stacks[s].first() == files[skip + s * bracket]);
    }
    for (const AuthorizedLink& link : conv.m_links) {
        FUZZ_CHECK(link.m_direction >= 1 && link.m_direction <= 4);
        FUZZ_CHECK(link.m_stackIndices.size() == 2);
        for (const int index : link.m_stackIndices)
            FUZZ_CHECK(index >= 0 && index < cells);
    }
    if (cells == 0)
        FUZZ_CHECK(conv.m_links.isEmpty());
    FUZZ_CHECK(conv.m_gridRows == rows);
    FUZZ_CHECK(conv.m_gridOrder == order);
    FUZZ_CHECK(conv.m_bracketCount == bracket);
    FUZZ_CHECK(conv.m_gridFlag == force360);
    return 0;
}
