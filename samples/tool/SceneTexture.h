// SceneTexture: a procedural equirectangular picture of an imaginary place:
// sky, clouds, a skyline with lit windows along the horizon and scattered
// coloured shapes, so that every part of the sphere has distinct details for
// the control point finder. The same seed always gives the same picture.
#pragma once

#include <QImage>

class SceneTexture
{
public:
    /// width: pixels for 360 degrees; the height is half of it. Row 0 is the
    /// zenith, column width/2 is yaw 0, yaw grows to the right.
    static QImage render(int width, quint32 seed);
};
