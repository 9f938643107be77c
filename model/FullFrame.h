// FullFrame: the 36 × 24 mm frame that every focal length in a panorama
// description is an equivalent for. Field-of-view rules and the link rules of
// the head converters measure a picture against its diagonal.
#pragma once

namespace FullFrame {

/// Diagonal of a 36 × 24 mm frame, millimetres: sqrt(36² + 24²).
constexpr double Diagonal = 43.266615305567875;

} // namespace FullFrame
