#include "SceneTexture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>
#include <QRandomGenerator>

namespace {

QColor randomColour(QRandomGenerator& random, int minValue, int maxValue)
{
    return QColor::fromHsv(random.bounded(360), 80 + random.bounded(176),
        minValue + random.bounded(maxValue - minValue + 1));
}

/// Draws `paint` three times, shifted by one full turn to each side, so that
/// shapes crossing the left or right border wrap around the sphere.
template<typename Paint> void wrapped(QPainter& painter, int width, Paint paint)
{
    for (int shift : { -width, 0, width }) {
        painter.save();
        painter.translate(shift, 0);
        paint();
        painter.restore();
    }
}

void drawSky(QPainter& painter, int width, int height)
{
    QLinearGradient sky(0, 0, 0, height / 2.0);
    sky.setColorAt(0.0, QColor(20, 60, 140));
    sky.setColorAt(1.0, QColor(170, 205, 235));
    painter.fillRect(QRectF(0, 0, width, height / 2.0), sky);
    QLinearGradient ground(0, height / 2.0, 0, height);
    ground.setColorAt(0.0, QColor(110, 100, 70));
    ground.setColorAt(1.0, QColor(50, 40, 30));
    painter.fillRect(QRectF(0, height / 2.0, width, height / 2.0), ground);
}

void drawClouds(QPainter& painter, QRandomGenerator& random, int width, int height)
{
    for (int i = 0; i < 120; ++i) {
        const double x = random.bounded(width);
        const double y = height * (0.05 + 0.33 * random.generateDouble());
        const double w = 40 + random.bounded(160);
        const double h = 10 + random.bounded(40);
        const QColor colour(235 + random.bounded(20), 235 + random.bounded(20), 240, 170);
        wrapped(painter, width, [&] {
            painter.setPen(Qt::NoPen);
            painter.setBrush(colour);
            painter.drawEllipse(QRectF(x, y, w, h));
            painter.drawEllipse(QRectF(x + w * 0.3, y - h * 0.4, w * 0.5, h));
        });
    }
}

void drawSkyline(QPainter& painter, QRandomGenerator& random, int width, int height)
{
    const double horizon = height / 2.0;
    double x = 0;
    while (x < width) {
        const double w = 25 + random.bounded(70);
        const double h = 30 + random.bounded(170);
        const QColor wall = randomColour(random, 60, 200);
        // Every window differs in size, place and light, so that no two
        // façades match each other.
        struct Window
        {
            QRectF rect;
            QColor colour;
        };
        QVector<Window> windows;
        const int count = int(w * h / 250);
        for (int i = 0; i < count; ++i) {
            const double ww = 3 + random.bounded(8);
            const double wh = 4 + random.bounded(9);
            const QRectF rect(x + 2 + random.generateDouble() * (w - ww - 4),
                horizon - h + 3 + random.generateDouble() * (h - wh - 6), ww, wh);
            windows.append({ rect,
                random.bounded(3) == 0 ? wall.darker(150 + random.bounded(60))
                                       : QColor::fromHsv(20 + random.bounded(60),
                                           40 + random.bounded(180), 150 + random.bounded(106)) });
        }
        const bool roof = random.bounded(2) == 0;
        wrapped(painter, width, [&] {
            painter.setPen(QPen(Qt::black, 1.5));
            painter.setBrush(wall);
            painter.drawRect(QRectF(x, horizon - h, w, h + 6));
            if (roof) {
                painter.drawPolygon(QPolygonF({ QPointF(x - 3, horizon - h),
                    QPointF(x + w / 2, horizon - h - w * 0.4), QPointF(x + w + 3, horizon - h) }));
            }
            painter.setPen(Qt::NoPen);
            for (const Window& window : windows) {
                painter.setBrush(window.colour);
                painter.drawRect(window.rect);
            }
        });
        x += w + random.bounded(12);
    }
}

void drawShapes(QPainter& painter, QRandomGenerator& random, int width, int height, int count)
{
    for (int i = 0; i < count; ++i) {
        const double x = random.bounded(width);
        // Keep away from the poles, where the picture is stretched the most.
        const double y = height * (0.12 + 0.76 * random.generateDouble());
        const double size = 6 + random.bounded(34);
        const QColor fill = randomColour(random, 40, 255);
        const QColor line = randomColour(random, 0, 120);
        const int kind = random.bounded(4);
        const double angle = random.bounded(360);
        wrapped(painter, width, [&] {
            painter.save();
            painter.translate(x, y);
            painter.rotate(angle);
            painter.setPen(QPen(line, 2));
            painter.setBrush(fill);
            switch (kind) {
            case 0:
                painter.drawEllipse(QPointF(0, 0), size / 2, size / 2);
                break;
            case 1:
                painter.drawRect(QRectF(-size / 2, -size / 3, size, size * 2 / 3));
                break;
            case 2:
                painter.drawPolygon(QPolygonF({ QPointF(0, -size / 2), QPointF(size / 2, size / 2),
                    QPointF(-size / 2, size / 2) }));
                break;
            default:
                painter.drawLine(QPointF(-size / 2, 0), QPointF(size / 2, 0));
                painter.drawLine(QPointF(0, -size / 2), QPointF(0, size / 2));
                break;
            }
            painter.restore();
        });
    }
}

/// Periodic value noise: a lattice of random values every `cell` pixels,
/// smoothly interpolated, wrapping around horizontally.
class ValueNoise
{
public:
    ValueNoise(QRandomGenerator& random, int width, int height, int cell)
        : m_cell(cell), m_columns(width / cell), m_rows(height / cell + 2)
    {
        m_values.resize(m_columns * m_rows);
        for (float& v : m_values)
            v = float(random.generateDouble() * 2.0 - 1.0);
    }

    float at(int x, int y) const
    {
        const float fx = float(x) / m_cell;
        const float fy = float(y) / m_cell;
        const int x0 = int(fx);
        const int y0 = int(fy);
        const float ax = smooth(fx - x0);
        const float ay = smooth(fy - y0);
        const int x1 = (x0 + 1) % m_columns;
        const float top = lerp(value(x0 % m_columns, y0), value(x1, y0), ax);
        const float bottom = lerp(value(x0 % m_columns, y0 + 1), value(x1, y0 + 1), ax);
        return lerp(top, bottom, ay);
    }

private:
    static float smooth(float t) { return t * t * (3.0f - 2.0f * t); }
    static float lerp(float a, float b, float t) { return a + (b - a) * t; }
    float value(int column, int row) const { return m_values[row * m_columns + column]; }

    int m_cell;
    int m_columns;
    int m_rows;
    QVector<float> m_values;
};

/// Gives every part of the picture a grain of its own, in brightness and
/// colour, at several scales, so that no two places look alike.
void addGrain(QImage& image, QRandomGenerator& random)
{
    const int width = image.width();
    const int height = image.height();
    QVector<ValueNoise> light;
    QVector<ValueNoise> tint;
    for (int cell : { 60, 24, 8 })
        light.append(ValueNoise(random, width, height, cell));
    for (int cell : { 40, 12 })
        tint.append(ValueNoise(random, width, height, cell));
    for (int y = 0; y < height; ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const float l = 1.0f + 0.18f * light[0].at(x, y) + 0.12f * light[1].at(x, y)
                + 0.10f * light[2].at(x, y);
            const float t = 0.12f * tint[0].at(x, y) + 0.08f * tint[1].at(x, y);
            const int r = qBound(0, int(qRed(row[x]) * l * (1.0f + t)), 255);
            const int g = qBound(0, int(qGreen(row[x]) * l), 255);
            const int b = qBound(0, int(qBlue(row[x]) * l * (1.0f - t)), 255);
            row[x] = qRgb(r, g, b);
        }
    }
}

} // namespace

QImage SceneTexture::render(int width, quint32 seed)
{
    const int height = width / 2;
    QImage image(width, height, QImage::Format_RGB32);
    QRandomGenerator random(seed);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSky(painter, width, height);
    drawClouds(painter, random, width, height);
    drawShapes(painter, random, width, height, width * 2 / 3);
    drawSkyline(painter, random, width, height);
    painter.end();
    addGrain(image, random);
    return image;
}
