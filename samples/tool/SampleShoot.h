// SampleShoot: the bundled sample shoot. A motorised head shoots a grid of
// 2 rows × 5 columns, three exposures per position (0, -1 and +1 EV), with a
// 35 mm lens (full-frame equivalent) on a 400 × 300 camera. It writes the
// photographs with their EXIF data, the head's XML record (whose angles carry
// the small errors of a real head) and the true angles of every photograph.
#pragma once

#include <QString>
#include <QVector>

class SampleShoot
{
public:
    struct Position
    {
        double trueYaw;
        double truePitch;
        /// What the head records: the true angle plus its error, 0.1° steps.
        double recordedYaw;
        double recordedPitch;
    };

    SampleShoot();

    /// Renders everything into folder (created if needed). False with a
    /// reason in *error on failure. texturePath: where to save the scene
    /// picture too, or empty.
    bool write(const QString& folder, const QString& texturePath, QString* error) const;

    const QVector<Position>& positions() const { return m_positions; }

    static constexpr int imageWidth = 400;
    static constexpr int imageHeight = 300;
    static constexpr int focalLength = 35;
    static constexpr int bracket = 3;

private:
    QVector<Position> m_positions;
};
