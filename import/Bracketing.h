// Bracketing: how many exposures a head takes at each position, as the
// photographs must bear it out.
#pragma once

#include <QtGlobal>

namespace Bracketing {

/// A bracketing above 1 must divide the number of photographs; a count of 1
/// or below (none recorded) fits any number.
constexpr bool Fits(qint64 photos, int bracket)
{
    return bracket <= 1 || photos % bracket == 0;
}

/// The bracketing to group by: a count below 1 (none recorded) means 1.
constexpr int Normalised(int bracket)
{
    return bracket > 1 ? bracket : 1;
}

} // namespace Bracketing
