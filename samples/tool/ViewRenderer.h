// ViewRenderer: what a rectilinear camera sees of an equirectangular scene.
// Angles in degrees: yaw grows to the right, pitch is positive upward, the
// camera is held level (no roll).
#pragma once

#include <QImage>

class ViewRenderer
{
public:
    /// scene: equirectangular, yaw 0 in the middle column, zenith in row 0.
    explicit ViewRenderer(const QImage& scene);

    /// A width × height view centred on (yaw, pitch) with horizontal field of
    /// view hfov, sampled bilinearly with samples × samples per pixel. The
    /// rows are shared among the machine's cores; the picture does not depend
    /// on how.
    QImage render(
        double yaw, double pitch, double hfov, int width, int height, int samples = 3) const;

private:
    /// Bilinear sample at scene pixel coordinates, wrapping around in yaw.
    void sample(double x, double y, double rgb[3]) const;

    QImage m_scene;
};
