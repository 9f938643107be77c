#include "ViewRenderer.h"

#include <QThread>
#include <QtMath>

#include <cmath>
#include <thread>
#include <vector>

ViewRenderer::ViewRenderer(const QImage& scene)
    : m_scene(scene.convertToFormat(QImage::Format_RGB32))
{
}

void ViewRenderer::sample(double x, double y, double rgb[3]) const
{
    const int w = m_scene.width();
    const int h = m_scene.height();
    x -= 0.5;
    y = qBound(0.0, y - 0.5, double(h - 1));
    const double fx = std::floor(x);
    const double fy = std::floor(y);
    const double ax = x - fx;
    const double ay = y - fy;
    const int x0 = ((int(fx) % w) + w) % w;
    const int x1 = (x0 + 1) % w;
    const int y0 = int(fy);
    const int y1 = qMin(y0 + 1, h - 1);
    const QRgb* row0 = reinterpret_cast<const QRgb*>(m_scene.constScanLine(y0));
    const QRgb* row1 = reinterpret_cast<const QRgb*>(m_scene.constScanLine(y1));
    const QRgb p[4] = { row0[x0], row0[x1], row1[x0], row1[x1] };
    const double wgt[4] = { (1 - ax) * (1 - ay), ax * (1 - ay), (1 - ax) * ay, ax * ay };
    rgb[0] = rgb[1] = rgb[2] = 0;
    for (int i = 0; i < 4; ++i) {
        rgb[0] += wgt[i] * qRed(p[i]);
        rgb[1] += wgt[i] * qGreen(p[i]);
        rgb[2] += wgt[i] * qBlue(p[i]);
    }
}

QImage ViewRenderer::render(
    double yaw, double pitch, double hfov, int width, int height, int samples) const
{
    const double y = qDegreesToRadians(yaw);
    const double p = qDegreesToRadians(pitch);
    // Camera frame in world coordinates: x towards yaw 0 on the horizon,
    // y towards yaw 90 (to the right), z up.
    const double forward[3] = { std::cos(p) * std::cos(y), std::cos(p) * std::sin(y), std::sin(p) };
    const double right[3] = { -std::sin(y), std::cos(y), 0.0 };
    const double up[3] = { -std::sin(p) * std::cos(y), -std::sin(p) * std::sin(y), std::cos(p) };
    const double focal = width / 2.0 / std::tan(qDegreesToRadians(hfov) / 2.0);
    const double sceneWidth = m_scene.width();
    const double sceneHeight = m_scene.height();

    QImage view(width, height, QImage::Format_RGB32);
    // The rows are written through one pointer taken before the threads start.
    uchar* const pixels = view.bits();
    const qsizetype stride = view.bytesPerLine();
    const auto renderRows = [&](int firstRow, int endRow) {
        for (int row = firstRow; row < endRow; ++row) {
            QRgb* out = reinterpret_cast<QRgb*>(pixels + row * stride);
            for (int column = 0; column < width; ++column) {
                double sum[3] = { 0, 0, 0 };
                for (int sy = 0; sy < samples; ++sy) {
                    for (int sx = 0; sx < samples; ++sx) {
                        const double u = column + (sx + 0.5) / samples - width / 2.0;
                        const double v = height / 2.0 - (row + (sy + 0.5) / samples);
                        double d[3];
                        for (int k = 0; k < 3; ++k)
                            d[k] = focal * forward[k] + u * right[k] + v * up[k];
                        const double lon = std::atan2(d[1], d[0]);
                        const double lat = std::atan2(d[2], std::hypot(d[0], d[1]));
                        const double sxPix = (lon / (2 * M_PI) + 0.5) * sceneWidth;
                        const double syPix = (0.5 - lat / M_PI) * sceneHeight;
                        double rgb[3];
                        sample(sxPix, syPix, rgb);
                        for (int k = 0; k < 3; ++k)
                            sum[k] += rgb[k];
                    }
                }
                const double n = samples * samples;
                out[column]
                    = qRgb(int(sum[0] / n + 0.5), int(sum[1] / n + 0.5), int(sum[2] / n + 0.5));
            }
        }
    };
    const int threads = qBound(1, QThread::idealThreadCount(), qMax(1, height / 16));
    std::vector<std::thread> workers;
    for (int t = 1; t < threads; ++t)
        workers.emplace_back(renderRows, height * t / threads, height * (t + 1) / threads);
    renderRows(0, height / threads);
    for (std::thread& worker : workers)
        worker.join();
    return view;
}
