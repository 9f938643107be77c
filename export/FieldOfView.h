// FieldOfView: the angle a picture covers, from a full-frame-equivalent focal
// length. The picture's diagonal stands for the 43.27 mm diagonal of a 36 × 24
// mm frame, so pictures of any aspect ratio and crop come out right.
#pragma once

#include "FullFrame.h"
#include "LensModel.h"

class FieldOfView
{
public:
    /// Diagonal of a 36 × 24 mm frame, millimetres.
    static constexpr double FrameDiagonal = FullFrame::Diagonal;

    /// Degrees covered by `extent` pixels of a width × height picture through
    /// a lens of focal length `focal` (mm, full-frame equivalent). A standard
    /// lens is rectilinear (2·atan(s / 2f)); a fisheye is equidistant (s / f
    /// radians), s being the extent's share of the frame diagonal in mm.
    /// Returns 0 for a focal, width or height that is not positive.
    static double degrees(double focal, LensModel lens, int width, int height, int extent);

    /// Across the stored width (Hugin's "v").
    static double horizontal(double focal, LensModel lens, int width, int height)
    {
        return degrees(focal, lens, width, height, width);
    }
    static double vertical(double focal, LensModel lens, int width, int height)
    {
        return degrees(focal, lens, width, height, height);
    }
};
