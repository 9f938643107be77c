#include "FieldOfView.h"

#include <cmath>

double FieldOfView::degrees(double focal, LensModel lens, int width, int height, int extent)
{
    if (!(focal > 0.0) || width <= 0 || height <= 0 || extent <= 0)
        return 0.0;
    const double diagonal = std::hypot(double(width), double(height));
    const double millimetres = FrameDiagonal * extent / diagonal;
    const double radians
        = lens == LensFisheye ? millimetres / focal : 2.0 * std::atan(millimetres / (2.0 * focal));
    return radians * 180.0 / M_PI;
}
