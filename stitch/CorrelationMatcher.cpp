#include "CorrelationMatcher.h"

#include <QImage>
#include <QImageReader>
#include <QThread>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace {

const double Degree = M_PI / 180.0;

/// The largest error of a recorded position the search covers, in degrees.
/// Records that store whole degrees are up to half a degree off before the
/// head's own play, and grids that only give the rows' and columns' counts
/// are estimated positions: several degrees off is usual there.
const double SearchDegrees = 5.0;
/// The reduced level where the search starts is at most this wide.
const int CoarseWidth = 400;
/// Patches are (2 × TemplateRadius + 1) pixels square, at every level.
const int TemplateRadius = 7;
/// Below the reduced level the match moves by at most this many pixels.
const int FineRadius = 2;
/// The least correlation of a kept match at full resolution.
const double MinimumCorrelation = 0.9;
/// The least correlation at the reduced level.
const double CoarseCorrelation = 0.7;
/// At the reduced level the best place must beat every place farther than
/// PeakExclusion pixels from it by this much: else the patch repeats.
const double PeakMargin = 0.05;
const int PeakExclusion = 3;
/// Candidate points: the best corner in each cell of a Cells × Cells grid
/// over the overlap.
const int Cells = 6;
/// A pair's matches are checked against the rotation they share when there
/// are at least this many; a match farther than ConsistentPixels (or
/// OutlierFactor times the median) from it is dropped.
const int MinimumForRotation = 5;
const double ConsistentPixels = 0.3;
const double OutlierFactor = 3.0;
/// A patch whose grey levels vary less than this (standard deviation, of
/// 255) holds nothing to match.
const double MinimumDeviation = 2.0;

/// A picture's geometry: Hugin's pixel coordinates (the centre of the top
/// left pixel at 0, 0; rows counted from the top) and directions in the
/// panorama's frame (x to the right, y up, z ahead at yaw 0 and pitch 0).
struct Camera
{
    double width = 0;
    double height = 0;
    double centreX = 0;
    double centreY = 0;
    /// Pixels per unit of tangent (rectilinear) or per radian (equidistant).
    double focal = 1;
    bool equidistant = false;
    /// Radial distortion: the picture's radius is the ideal radius r times
    /// a r³ + b r² + c r + d, radii in units of half the shorter side.
    double a = 0, b = 0, c = 0, d = 1;
    double unit = 1;
    bool distorted = false;
    /// Camera frame (x to the right, y up, z ahead) to the panorama's frame.
    double m[3][3] = {};

    double distortion(double r) const { return ((a * r + b) * r + c) * r + d; }

    bool toDirection(double x, double y, double out[3]) const
    {
        double cx = x - centreX;
        double cy = -(y - centreY);
        if (distorted) {
            const double source = std::hypot(cx, cy) / unit;
            if (source > 0) {
                // Newton's method on r × distortion(r) = source.
                double r = source;
                for (int i = 0; i < 20; ++i) {
                    const double f = r * distortion(r) - source;
                    const double df = ((4 * a * r + 3 * b) * r + 2 * c) * r + d;
                    if (df == 0)
                        return false;
                    const double step = f / df;
                    r -= step;
                    if (std::fabs(step) < 1e-12)
                        break;
                }
                if (!(r > 0))
                    return false;
                cx *= r / source;
                cy *= r / source;
            }
        }
        double v[3];
        if (equidistant) {
            const double radius = std::hypot(cx, cy);
            const double theta = radius / focal;
            if (theta >= M_PI)
                return false;
            const double s = radius > 0 ? std::sin(theta) / radius : 1.0 / focal;
            v[0] = cx * s;
            v[1] = cy * s;
            v[2] = std::cos(theta);
        } else {
            const double length = std::sqrt(cx * cx + cy * cy + focal * focal);
            v[0] = cx / length;
            v[1] = cy / length;
            v[2] = focal / length;
        }
        for (int i = 0; i < 3; ++i)
            out[i] = m[i][0] * v[0] + m[i][1] * v[1] + m[i][2] * v[2];
        return true;
    }

    /// False when the direction is not in front of the camera.
    bool toPixel(const double direction[3], double* x, double* y) const
    {
        double v[3];
        for (int i = 0; i < 3; ++i)
            v[i] = m[0][i] * direction[0] + m[1][i] * direction[1] + m[2][i] * direction[2];
        double cx, cy;
        if (equidistant) {
            const double theta = std::acos(std::max(-1.0, std::min(1.0, v[2])));
            const double sine = std::hypot(v[0], v[1]);
            if (theta > M_PI * 0.99)
                return false;
            const double scale = sine > 0 ? focal * theta / sine : focal;
            cx = v[0] * scale;
            cy = v[1] * scale;
        } else {
            if (v[2] < 1e-6)
                return false;
            cx = focal * v[0] / v[2];
            cy = focal * v[1] / v[2];
        }
        if (distorted) {
            const double r = std::hypot(cx, cy) / unit;
            const double factor = distortion(r);
            cx *= factor;
            cy *= factor;
        }
        *x = cx + centreX;
        *y = centreY - cy;
        return true;
    }

    bool inside(double x, double y, double margin) const
    {
        return x >= margin && y >= margin && x <= width - 1 - margin && y <= height - 1 - margin;
    }
};

/// Builds the camera of a project's image; false with a reason when a value
/// is missing or the projection is not supported.
bool makeCamera(const PtoProject& project, int image, Camera* camera, QString* reason)
{
    const auto fail = [reason](const QString& text) {
        if (reason)
            *reason = text;
        return false;
    };
    const char* needed[] = { "w", "h", "f", "v", "y", "p", "r" };
    double values[7];
    for (int i = 0; i < 7; ++i) {
        bool ok = false;
        values[i] = project.number(image, QLatin1String(needed[i]), &ok);
        if (!ok)
            return fail(QStringLiteral("image %1 has no value %2")
                            .arg(image)
                            .arg(QLatin1String(needed[i])));
    }
    const double width = values[0], height = values[1], projection = values[2], fov = values[3];
    if (width < 1 || height < 1 || fov <= 0)
        return fail(QStringLiteral("image %1 has no size or field of view").arg(image));
    Camera& c = *camera;
    c.width = width;
    c.height = height;
    c.centreX = width / 2.0 - 0.5;
    c.centreY = height / 2.0 - 0.5;
    if (projection == 0) {
        if (fov >= 180.0)
            return fail(QStringLiteral("image %1 is rectilinear with a field of view of %2°")
                            .arg(image)
                            .arg(fov));
        c.focal = width / 2.0 / std::tan(fov * Degree / 2.0);
        c.equidistant = false;
    } else if (projection == 2 || projection == 3) {
        c.focal = width / 2.0 / (fov * Degree / 2.0);
        c.equidistant = true;
    } else {
        return fail(QStringLiteral("image %1 has projection f%2, neither rectilinear nor an "
                                   "equidistant fisheye")
                        .arg(image)
                        .arg(projection));
    }
    const char* lens[] = { "a", "b", "c" };
    double* coefficients[] = { &c.a, &c.b, &c.c };
    for (int i = 0; i < 3; ++i) {
        bool ok = false;
        const double value = project.number(image, QLatin1String(lens[i]), &ok);
        *coefficients[i] = ok ? value : 0.0;
    }
    c.d = 1.0 - c.a - c.b - c.c;
    c.distorted = c.a != 0 || c.b != 0 || c.c != 0;
    c.unit = std::min(width, height) / 2.0;
    // Roll turns the camera clockwise about its axis as seen from behind it
    // (at 90° the picture's top looks to the right), pitch raises the axis,
    // yaw turns it to the right: m = yaw × pitch × roll.
    const double w = values[4] * Degree, p = values[5] * Degree, r = values[6] * Degree;
    const double roll[3][3]
        = { { std::cos(r), std::sin(r), 0 }, { -std::sin(r), std::cos(r), 0 }, { 0, 0, 1 } };
    const double pitch[3][3]
        = { { 1, 0, 0 }, { 0, std::cos(p), std::sin(p) }, { 0, -std::sin(p), std::cos(p) } };
    const double yaw[3][3]
        = { { std::cos(w), 0, std::sin(w) }, { 0, 1, 0 }, { -std::sin(w), 0, std::cos(w) } };
    double pr[3][3];
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            pr[i][j] = 0;
            for (int k = 0; k < 3; ++k)
                pr[i][j] += pitch[i][k] * roll[k][j];
        }
    }
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            c.m[i][j] = 0;
            for (int k = 0; k < 3; ++k)
                c.m[i][j] += yaw[i][k] * pr[k][j];
        }
    }
    return true;
}

/// One level of a picture's grey levels; level k has a pixel for every
/// 2^k × 2^k pixels of the picture.
struct Level
{
    int width = 0;
    int height = 0;
    std::vector<float> pixels;

    float at(int x, int y) const { return pixels[size_t(y) * size_t(width) + size_t(x)]; }

    /// Bilinear; false outside.
    bool sample(double x, double y, float* value) const
    {
        if (!(x >= 0 && y >= 0 && x <= width - 1 && y <= height - 1))
            return false;
        const int x0 = std::min(int(x), std::max(0, width - 2));
        const int y0 = std::min(int(y), std::max(0, height - 2));
        const int x1 = std::min(x0 + 1, width - 1);
        const int y1 = std::min(y0 + 1, height - 1);
        const double fx = x - x0, fy = y - y0;
        const double top = at(x0, y0) + (at(x1, y0) - at(x0, y0)) * fx;
        const double bottom = at(x0, y1) + (at(x1, y1) - at(x0, y1)) * fx;
        *value = float(top + (bottom - top) * fy);
        return true;
    }

    Level reduced() const
    {
        Level half;
        half.width = std::max(1, width / 2);
        half.height = std::max(1, height / 2);
        half.pixels.resize(size_t(half.width) * size_t(half.height));
        for (int y = 0; y < half.height; ++y) {
            const int y0 = std::min(2 * y, height - 1), y1 = std::min(2 * y + 1, height - 1);
            for (int x = 0; x < half.width; ++x) {
                const int x0 = std::min(2 * x, width - 1), x1 = std::min(2 * x + 1, width - 1);
                half.pixels[size_t(y) * size_t(half.width) + size_t(x)]
                    = (at(x0, y0) + at(x1, y0) + at(x0, y1) + at(x1, y1)) / 4.0f;
            }
        }
        return half;
    }
};

/// Picture coordinates to level k's and back: level k's pixel j covers the
/// picture's pixels j 2^k to j 2^k + 2^k - 1.
double toLevel(double x, int k)
{
    const double scale = double(1 << k);
    return (x - (scale - 1) / 2.0) / scale;
}

double fromLevel(double x, int k)
{
    const double scale = double(1 << k);
    return x * scale + (scale - 1) / 2.0;
}

struct Picture
{
    std::vector<Level> levels;
    /// Per pixel of the coarsest level: the smaller eigenvalue of the
    /// structure tensor over a 5 × 5 window.
    std::vector<float> corners;
    int coarse = 0;
};

/// How many times a picture of this width is halved for the search's start.
int coarseLevel(double width)
{
    int level = 1;
    while (width / double(1 << level) > CoarseWidth)
        ++level;
    return level;
}

/// Decodes one picture at a time: Qt's image readers share the plug-ins'
/// state between threads under Qt's own locks, which ThreadSanitizer cannot
/// see. The other threads go on matching meanwhile.
QImage decode(const QString& path, QString* reason)
{
    static std::mutex decoding;
    const std::lock_guard<std::mutex> lock(decoding);
    QImageReader reader(path);
    reader.setAutoTransform(false);
    QImage image = reader.read();
    if (image.isNull())
        *reason = QStringLiteral("cannot read %1: %2").arg(path, reader.errorString());
    return image;
}

bool loadPicture(const QString& path, const Camera& camera, Picture* picture, QString* reason)
{
    QImage image = decode(path, reason);
    if (image.isNull())
        return false;
    if (image.width() != int(camera.width) || image.height() != int(camera.height)) {
        *reason = QStringLiteral("%1 is %2 × %3 pixels, the project says %4 × %5")
                      .arg(path)
                      .arg(image.width())
                      .arg(image.height())
                      .arg(camera.width)
                      .arg(camera.height);
        return false;
    }
    // Grey levels of the formats JPEG decodes to are taken here rather than
    // by QImage's conversions, which split large pictures over Qt's global
    // thread pool: the pictures are already read on several threads of ours.
    // Other formats go through RGB32 first.
    const bool grey = image.format() == QImage::Format_Grayscale8;
    if (!grey && image.format() != QImage::Format_RGB32 && image.format() != QImage::Format_ARGB32)
        image = image.convertToFormat(QImage::Format_RGB32);
    Level full;
    full.width = image.width();
    full.height = image.height();
    full.pixels.resize(size_t(full.width) * size_t(full.height));
    for (int y = 0; y < full.height; ++y) {
        float* out = full.pixels.data() + size_t(y) * size_t(full.width);
        if (grey) {
            const uchar* line = image.constScanLine(y);
            for (int x = 0; x < full.width; ++x)
                out[x] = line[x];
        } else {
            const QRgb* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            for (int x = 0; x < full.width; ++x)
                out[x] = float(qGray(line[x]));
        }
    }
    picture->coarse = coarseLevel(camera.width);
    picture->levels.push_back(std::move(full));
    for (int k = 1; k <= picture->coarse; ++k)
        picture->levels.push_back(picture->levels.back().reduced());

    const Level& level = picture->levels.back();
    const int w = level.width, h = level.height;
    std::vector<float> gxx(size_t(w) * size_t(h)), gyy(gxx.size()), gxy(gxx.size());
    for (int y = 1; y + 1 < h; ++y) {
        for (int x = 1; x + 1 < w; ++x) {
            const float gx = (level.at(x + 1, y) - level.at(x - 1, y)) / 2.0f;
            const float gy = (level.at(x, y + 1) - level.at(x, y - 1)) / 2.0f;
            const size_t i = size_t(y) * size_t(w) + size_t(x);
            gxx[i] = gx * gx;
            gyy[i] = gy * gy;
            gxy[i] = gx * gy;
        }
    }
    picture->corners.assign(gxx.size(), 0.0f);
    for (int y = 3; y + 3 < h; ++y) {
        for (int x = 3; x + 3 < w; ++x) {
            double sxx = 0, syy = 0, sxy = 0;
            for (int dy = -2; dy <= 2; ++dy) {
                for (int dx = -2; dx <= 2; ++dx) {
                    const size_t i = size_t(y + dy) * size_t(w) + size_t(x + dx);
                    sxx += gxx[i];
                    syy += gyy[i];
                    sxy += gxy[i];
                }
            }
            const double mean = (sxx + syy) / 2.0;
            const double spread = std::sqrt((sxx - syy) * (sxx - syy) / 4.0 + sxy * sxy);
            picture->corners[size_t(y) * size_t(w) + size_t(x)] = float(mean - spread);
        }
    }
    return true;
}

/// A square of grey levels, row by row, centred on a point.
struct Patch
{
    static const int Side = 2 * TemplateRadius + 1;
    float values[Side * Side];
};

/// Makes values zero-mean and of unit norm; false when they vary too little
/// to be matched.
bool normalise(float* values, int count)
{
    double sum = 0, squares = 0;
    for (int i = 0; i < count; ++i)
        sum += values[i];
    const double mean = sum / count;
    for (int i = 0; i < count; ++i) {
        values[i] = float(values[i] - mean);
        squares += double(values[i]) * values[i];
    }
    if (std::sqrt(squares / count) < MinimumDeviation)
        return false;
    const double norm = std::sqrt(squares);
    for (int i = 0; i < count; ++i)
        values[i] = float(values[i] / norm);
    return true;
}

/// Correlation of the patch with level's window centred at (x, y), which
/// must lie inside.
double correlation(const Patch& patch, const Level& level, int x, int y)
{
    const int side = Patch::Side;
    const int count = side * side;
    double sum = 0, squares = 0, dot = 0;
    int i = 0;
    for (int dy = -TemplateRadius; dy <= TemplateRadius; ++dy) {
        const float* row
            = level.pixels.data() + size_t(y + dy) * size_t(level.width) + (x - TemplateRadius);
        for (int dx = 0; dx < side; ++dx, ++i) {
            const double value = row[dx];
            sum += value;
            squares += value * value;
            dot += value * patch.values[i];
        }
    }
    const double variance = squares - sum * sum / count;
    if (variance <= 1e-6)
        return -1.0;
    // The patch has zero mean, so the window's mean does not change dot.
    return dot / std::sqrt(variance);
}

struct Match
{
    double ax = 0, ay = 0, bx = 0, by = 0;
};

/// The point (ax, ay) of picture a looked for in b around the full-picture
/// position (ex, ey); true with the match when it is sure.
bool matchPoint(const Camera& ca, const Picture& pa, const Camera& cb, const Picture& pb, double ax,
    double ay, double ex, double ey, Match* match)
{
    const int coarse = std::min(pa.coarse, pb.coarse);
    // Full resolution is searched twice: the second patch is sampled at the
    // first's fraction of a pixel, which leaves the parabola only the small
    // rest to fit, where it is least biased.
    for (int pass = coarse + 1; pass >= 0; --pass) {
        const int k = std::max(0, pass - 1);
        const Level& la = pa.levels[size_t(k)];
        const Level& lb = pb.levels[size_t(k)];
        double anchor[3];
        if (!cb.toDirection(ex, ey, anchor))
            return false;
        double anchorX, anchorY;
        if (!ca.toPixel(anchor, &anchorX, &anchorY))
            return false;
        const int cx = int(std::lround(toLevel(ex, k)));
        const int cy = int(std::lround(toLevel(ey, k)));
        // The patch of a around (ax, ay) as b's pixels around (cx, cy) see it.
        Patch patch;
        int i = 0;
        for (int dy = -TemplateRadius; dy <= TemplateRadius; ++dy) {
            for (int dx = -TemplateRadius; dx <= TemplateRadius; ++dx, ++i) {
                double direction[3], x, y;
                if (!cb.toDirection(fromLevel(cx + dx, k), fromLevel(cy + dy, k), direction)
                    || !ca.toPixel(direction, &x, &y))
                    return false;
                if (!la.sample(toLevel(ax + x - anchorX, k), toLevel(ay + y - anchorY, k),
                        &patch.values[i]))
                    return false;
            }
        }
        if (!normalise(patch.values, Patch::Side * Patch::Side))
            return false;
        int radius = FineRadius;
        if (k == coarse) {
            radius = int(std::ceil(SearchDegrees * Degree * cb.focal / double(1 << k)));
            radius = std::max(FineRadius + 1, std::min(radius, 64));
        }
        // Only windows wholly inside b; the best place must not be on the
        // search's edge.
        const int x0 = std::max(cx - radius, TemplateRadius);
        const int x1 = std::min(cx + radius, lb.width - 1 - TemplateRadius);
        const int y0 = std::max(cy - radius, TemplateRadius);
        const int y1 = std::min(cy + radius, lb.height - 1 - TemplateRadius);
        if (x0 > x1 || y0 > y1)
            return false;
        const int sw = x1 - x0 + 1;
        std::vector<double> scores(size_t(sw) * size_t(y1 - y0 + 1));
        double best = -2.0;
        int bx = 0, by = 0;
        for (int y = y0; y <= y1; ++y) {
            for (int x = x0; x <= x1; ++x) {
                const double score = correlation(patch, lb, x, y);
                scores[size_t(y - y0) * size_t(sw) + size_t(x - x0)] = score;
                if (score > best) {
                    best = score;
                    bx = x;
                    by = y;
                }
            }
        }
        if (bx == x0 || bx == x1 || by == y0 || by == y1)
            return false;
        if (k == coarse) {
            if (best < CoarseCorrelation)
                return false;
            double second = -2.0;
            for (int y = y0; y <= y1; ++y) {
                for (int x = x0; x <= x1; ++x) {
                    if (std::max(std::abs(x - bx), std::abs(y - by)) > PeakExclusion)
                        second = std::max(
                            second, scores[size_t(y - y0) * size_t(sw) + size_t(x - x0)]);
                }
            }
            if (best - second < PeakMargin)
                return false;
        }
        double fx = 0, fy = 0;
        if (k == 0) {
            if (best < MinimumCorrelation)
                return false;
            const auto at = [&](int x, int y) {
                return scores[size_t(y - y0) * size_t(sw) + size_t(x - x0)];
            };
            const auto vertex = [](double left, double centre, double right) {
                const double curvature = left - 2 * centre + right;
                return curvature < 0
                    ? std::max(-0.5, std::min(0.5, (left - right) / (2 * curvature)))
                    : 0.0;
            };
            fx = vertex(at(bx - 1, by), best, at(bx + 1, by));
            fy = vertex(at(bx, by - 1), best, at(bx, by + 1));
        }
        // The match moved by (bx - cx, by - cy) pixels of level k from the
        // estimate's pixel; the estimate itself was off that pixel's centre.
        ex = fromLevel(bx + fx, k) + (ex - fromLevel(cx, k));
        ey = fromLevel(by + fy, k) + (ey - fromLevel(cy, k));
        if (!cb.inside(ex, ey, 0))
            return false;
    }
    match->ax = ax;
    match->ay = ay;
    match->bx = ex;
    match->by = ey;
    return true;
}

/// v turned by the rotation vector w (axis times angle in radians).
void rotate(const double w[3], const double v[3], double out[3])
{
    const double angle = std::sqrt(w[0] * w[0] + w[1] * w[1] + w[2] * w[2]);
    if (angle == 0) {
        std::copy(v, v + 3, out);
        return;
    }
    const double k[3] = { w[0] / angle, w[1] / angle, w[2] / angle };
    const double c = std::cos(angle), s = std::sin(angle);
    const double dot = k[0] * v[0] + k[1] * v[1] + k[2] * v[2];
    const double cross[3]
        = { k[1] * v[2] - k[2] * v[1], k[2] * v[0] - k[0] * v[2], k[0] * v[1] - k[1] * v[0] };
    for (int i = 0; i < 3; ++i)
        out[i] = v[i] * c + cross[i] * s + k[i] * dot * (1 - c);
}

/// The rotation vector that best turns the directions a onto b (least
/// squares), from a start of none: a few Gauss-Newton steps, each solving
/// the small-angle equations b - a ≈ w × a.
bool fitRotation(const std::vector<std::array<double, 3>>& a,
    const std::vector<std::array<double, 3>>& b, double w[3])
{
    w[0] = w[1] = w[2] = 0;
    for (int iteration = 0; iteration < 4; ++iteration) {
        double n[3][3] = {}, r[3] = {};
        for (size_t i = 0; i < a.size(); ++i) {
            double t[3];
            rotate(w, a[i].data(), t);
            const double d[3] = { b[i][0] - t[0], b[i][1] - t[1], b[i][2] - t[2] };
            // d ≈ u × t = J u with J = -[t]×.
            const double j[3][3] = { { 0, t[2], -t[1] }, { -t[2], 0, t[0] }, { t[1], -t[0], 0 } };
            for (int p = 0; p < 3; ++p) {
                for (int q = 0; q < 3; ++q)
                    for (int m = 0; m < 3; ++m)
                        n[p][q] += j[m][p] * j[m][q];
                for (int m = 0; m < 3; ++m)
                    r[p] += j[m][p] * d[m];
            }
        }
        const double det = n[0][0] * (n[1][1] * n[2][2] - n[1][2] * n[2][1])
            - n[0][1] * (n[1][0] * n[2][2] - n[1][2] * n[2][0])
            + n[0][2] * (n[1][0] * n[2][1] - n[1][1] * n[2][0]);
        if (std::fabs(det) < 1e-18)
            return false;
        double u[3];
        for (int c = 0; c < 3; ++c) {
            double m[3][3];
            for (int p = 0; p < 3; ++p)
                for (int q = 0; q < 3; ++q)
                    m[p][q] = q == c ? r[p] : n[p][q];
            u[c] = (m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1])
                       - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0])
                       + m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]))
                / det;
        }
        // Composing the small step u after w is close enough to adding it
        // for rotations of a few degrees.
        for (int p = 0; p < 3; ++p)
            w[p] += u[p];
    }
    return true;
}

/// Drops the matches that disagree with the one rotation that the pair's
/// other matches share: the recorded positions may be off, but by one
/// turn of the camera per picture, the same for every point of the pair.
void keepConsistent(const Camera& ca, const Camera& cb, QVector<Match>* matches)
{
    if (matches->size() < MinimumForRotation)
        return;
    std::vector<std::array<double, 3>> a(size_t(matches->size())), b(a.size());
    for (int i = 0; i < matches->size(); ++i) {
        const Match& m = (*matches)[i];
        if (!ca.toDirection(m.ax, m.ay, a[size_t(i)].data())
            || !cb.toDirection(m.bx, m.by, b[size_t(i)].data()))
            return;
    }
    const double pixel = 1.0 / cb.focal;
    for (int round = 0; round < 2; ++round) {
        double w[3];
        if (a.size() < size_t(MinimumForRotation) || !fitRotation(a, b, w))
            return;
        std::vector<double> residuals(a.size());
        for (size_t i = 0; i < a.size(); ++i) {
            double t[3];
            rotate(w, a[i].data(), t);
            residuals[i] = std::sqrt((t[0] - b[i][0]) * (t[0] - b[i][0])
                + (t[1] - b[i][1]) * (t[1] - b[i][1]) + (t[2] - b[i][2]) * (t[2] - b[i][2]));
        }
        std::vector<double> sorted = residuals;
        std::nth_element(sorted.begin(), sorted.begin() + sorted.size() / 2, sorted.end());
        const double limit
            = std::max(ConsistentPixels * pixel, OutlierFactor * sorted[sorted.size() / 2]);
        QVector<Match> kept;
        std::vector<std::array<double, 3>> keptA, keptB;
        for (size_t i = 0; i < a.size(); ++i) {
            if (residuals[i] <= limit) {
                kept << (*matches)[int(i)];
                keptA.push_back(a[i]);
                keptB.push_back(b[i]);
            }
        }
        *matches = kept;
        a = keptA;
        b = keptB;
    }
}

/// One pair's matches, and how much of a's picture b sees.
void matchPair(const Camera& ca, const Picture& pa, const Camera& cb, const Picture& pb,
    const std::atomic<bool>* stop, QVector<Match>* matches, double* overlap)
{
    const int coarse = pa.coarse;
    const Level& level = pa.levels[size_t(coarse)];
    const int w = level.width, h = level.height;
    // The margins keep every patch inside its picture at every level.
    const int marginA = TemplateRadius + 2;
    const double marginB = (TemplateRadius + 2) * double(1 << std::min(coarse, pb.coarse));

    int seen = 0, total = 0;
    int left = w, right = -1, top = h, bottom = -1;
    std::vector<signed char> usable(size_t(w) * size_t(h), 0);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            double direction[3], bx, by;
            const bool visible
                = ca.toDirection(fromLevel(x, coarse), fromLevel(y, coarse), direction)
                && cb.toPixel(direction, &bx, &by);
            ++total;
            if (!visible || !cb.inside(bx, by, 0))
                continue;
            ++seen;
            if (x < marginA || y < marginA || x >= w - marginA || y >= h - marginA
                || !cb.inside(bx, by, marginB))
                continue;
            usable[size_t(y) * size_t(w) + size_t(x)] = 1;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    *overlap = total > 0 ? double(seen) / total : 0.0;
    if (right < left)
        return;
    const int boxWidth = right - left + 1, boxHeight = bottom - top + 1;
    for (int cy = 0; cy < Cells; ++cy) {
        for (int cx = 0; cx < Cells; ++cx) {
            if (stop && stop->load())
                return;
            const int x0 = left + boxWidth * cx / Cells, x1 = left + boxWidth * (cx + 1) / Cells;
            const int y0 = top + boxHeight * cy / Cells, y1 = top + boxHeight * (cy + 1) / Cells;
            float best = 0;
            int px = -1, py = -1;
            for (int y = y0; y < y1; ++y) {
                for (int x = x0; x < x1; ++x) {
                    const size_t i = size_t(y) * size_t(w) + size_t(x);
                    if (usable[i] && pa.corners[i] > best) {
                        best = pa.corners[i];
                        px = x;
                        py = y;
                    }
                }
            }
            if (px < 0)
                continue;
            const double ax = fromLevel(px, coarse), ay = fromLevel(py, coarse);
            double direction[3], ex, ey;
            if (!ca.toDirection(ax, ay, direction) || !cb.toPixel(direction, &ex, &ey))
                continue;
            Match match;
            if (matchPoint(ca, pa, cb, pb, ax, ay, ex, ey, &match))
                matches->append(match);
        }
    }
    keepConsistent(ca, cb, matches);
}

/// A picture decoded on first use and dropped after its last pair.
struct Slot
{
    std::mutex mutex;
    std::shared_ptr<const Picture> picture;
    bool failed = false;
    QString reason;
    int uses = 0;
};

} // namespace

bool CorrelationMatcher::supports(const PtoProject& project, int image, QString* reason)
{
    Camera camera;
    return makeCamera(project, image, &camera, reason);
}

CorrelationMatcher::Result CorrelationMatcher::match(const PtoProject& project,
    const QString& folder, const QVector<QPair<int, int>>& pairs, int threads,
    const std::atomic<bool>* stop)
{
    Result result;
    const int images = project.imageCount();
    std::vector<Camera> cameras(size_t(std::max(0, images)));
    std::vector<bool> needed(cameras.size(), false);
    for (const auto& pair : pairs) {
        for (int image : { pair.first, pair.second }) {
            if (image < 0 || image >= images) {
                result.reason = QStringLiteral("no image %1 in the project").arg(image);
                return result;
            }
            needed[size_t(image)] = true;
        }
    }
    for (int i = 0; i < images; ++i) {
        if (needed[size_t(i)] && !makeCamera(project, i, &cameras[size_t(i)], &result.reason))
            return result;
    }
    std::vector<Slot> cache(cameras.size());
    for (const auto& pair : pairs) {
        ++cache[size_t(pair.first)].uses;
        ++cache[size_t(pair.second)].uses;
    }
    const auto acquire = [&](int image) -> std::shared_ptr<const Picture> {
        Slot& slot = cache[size_t(image)];
        std::lock_guard<std::mutex> lock(slot.mutex);
        if (!slot.picture && !slot.failed) {
            auto picture = std::make_shared<Picture>();
            QString reason;
            if (loadPicture(PtoProject::inFolder(folder, project.imageName(image)),
                    cameras[size_t(image)], picture.get(), &reason))
                slot.picture = picture;
            else {
                slot.failed = true;
                slot.reason = reason;
            }
        }
        return slot.picture;
    };
    const auto release = [&](int image) {
        Slot& slot = cache[size_t(image)];
        std::lock_guard<std::mutex> lock(slot.mutex);
        if (--slot.uses == 0)
            slot.picture.reset();
    };

    // Each worker writes the slots of its own pairs only.
    std::vector<QVector<Match>> found(size_t(pairs.size()));
    std::vector<double> overlaps(size_t(pairs.size()), 0.0);
    std::atomic<int> next { 0 };
    std::atomic<bool> failed { false };
    const auto work = [&]() {
        for (;;) {
            const int index = next.fetch_add(1);
            if (index >= pairs.size() || failed.load() || (stop && stop->load()))
                return;
            const int a = pairs[index].first, b = pairs[index].second;
            const std::shared_ptr<const Picture> pa = acquire(a);
            const std::shared_ptr<const Picture> pb = pa ? acquire(b) : nullptr;
            if (!pa || !pb) {
                failed.store(true);
                return;
            }
            matchPair(cameras[size_t(a)], *pa, cameras[size_t(b)], *pb, stop, &found[size_t(index)],
                &overlaps[size_t(index)]);
            release(a);
            release(b);
        }
    };
    const int count = std::max(
        1, std::min(threads > 0 ? threads : QThread::idealThreadCount(), int(pairs.size())));
    std::vector<std::thread> workers;
    for (int t = 1; t < count; ++t)
        workers.emplace_back(work);
    work();
    for (std::thread& worker : workers)
        worker.join();

    if (stop && stop->load()) {
        result.outcome = Result::Stopped;
        return result;
    }
    if (failed.load()) {
        for (const Slot& slot : cache) {
            if (slot.failed) {
                result.reason = slot.reason;
                break;
            }
        }
        return result;
    }
    for (int p = 0; p < pairs.size(); ++p) {
        PairResult pair;
        pair.first = pairs[p].first;
        pair.second = pairs[p].second;
        pair.overlap = overlaps[size_t(p)];
        pair.points = found[size_t(p)].size();
        result.pairs << pair;
        for (const Match& m : found[size_t(p)]) {
            PtoProject::ControlPoint point;
            point.first = pair.first;
            point.second = pair.second;
            point.line = QStringLiteral("c n%1 N%2 x%3 y%4 X%5 Y%6 t0")
                             .arg(pair.first)
                             .arg(pair.second)
                             .arg(m.ax, 0, 'f', 4)
                             .arg(m.ay, 0, 'f', 4)
                             .arg(m.bx, 0, 'f', 4)
                             .arg(m.by, 0, 'f', 4);
            result.points << point;
        }
    }
    result.outcome = Result::Matched;
    return result;
}
