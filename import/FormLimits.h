// FormLimits: the ranges of the import pages' number boxes. The command line
// accepts exactly what the forms accept, and holds a value the way the form's
// box holds it (rounded to the box's decimals), so that both hand the same
// number to the converters.
#pragma once

namespace FormLimits {

/// Focal length boxes (Papywizard, VR Drive 2), millimetres.
constexpr double MinFocal = 1.0;
constexpr double MaxFocal = 10000.0;
constexpr int FocalDecimals = 2;

/// Gigapan grid: rows (and the columns shown beside them).
constexpr int MinRows = 1;
constexpr int MaxRows = 100000;
/// Gigapan grid: photographs per position.
constexpr int MinBracket = 1;
constexpr int MaxBracket = 99;
/// Gigapan grid: photographs left out at the start.
constexpr int MinSkip = 0;
constexpr int MaxSkip = 100000;
/// Gigapan grid: overlap between neighbours, per cent.
constexpr double MinOverlap = 5.0;
constexpr double MaxOverlap = 100.0;
constexpr int OverlapDecimals = 2;
constexpr double DefaultOverlap = 40.0;

/// `value` as a decimal number box with `decimals` decimals and the range
/// [minimum, maximum] holds it once set: rounded to its decimals, then
/// bounded. Not-a-number gives the maximum, as it does in the box.
double AsShown(double value, int decimals, double minimum, double maximum);

/// A focal length as the pages' focal box holds it.
inline double FocalAsShown(double focal)
{
    return AsShown(focal, FocalDecimals, MinFocal, MaxFocal);
}

/// An overlap as the Gigapan page's overlap box holds it.
inline double OverlapAsShown(double overlap)
{
    return AsShown(overlap, OverlapDecimals, MinOverlap, MaxOverlap);
}

} // namespace FormLimits
