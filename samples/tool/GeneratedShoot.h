// GeneratedShoot: a shoot of any shape, as a motorised head takes it. The
// head is told a grid (rows × columns, over a full circle or part of one) or
// a list of positions; at each it takes a bracket of exposures. The camera
// lands a little off every position but the first (a random error drawn from
// the seed); the head's record holds the positions it was told.
//
// Written into the output folder:
//   IMG_0001.jpg ...          the photographs, with EXIF data, in shooting order
//   ground-truth.csv          where each photograph really points
//   papywizard.xml            the Papywizard record, complete
//   papywizard-headerless.xml the same shots without header, id, roll or time;
//                             the exposure index in `bracket`
//   vrdrive2.xml              the VR Drive 2 preset
//   clauss.txt                the Clauss Rodeon script (whole degrees)
//   gigapan-args.txt          the options of "panohead import gigapan"
//   shoot.txt                 the generator's options that give this shoot
#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

class GeneratedShoot
{
public:
    /// How the photographs of a portrait shoot are stored.
    enum class Portrait {
        /// Landscape shoot.
        No,
        /// Pixels stored standing (taller than wide), orientation 1.
        Turned,
        /// Pixels stored as the sensor lies (wider than tall), EXIF
        /// orientation 6.
        Tagged
    };

    struct Plan
    {
        int rows = 2;
        int columns = 4;
        /// Yaw, pitch in degrees; when not empty, replaces the grid.
        QVector<QPointF> positions;
        int bracket = 1;
        /// EV between neighbouring exposures of a bracket, shot in the order
        /// 0, -step, +step, -2 step, +2 step, ...
        double evStep = 1.0;
        /// The sensor's picture, landscape (width >= height).
        int width = 200;
        int height = 150;
        /// Full-frame equivalent focal length, millimetres.
        double focal35 = 35.0;
        /// The sensor's crop factor: the EXIF focal length is focal35 / crop.
        double cropFactor = 1.0;
        Portrait portrait = Portrait::No;
        /// The columns close a full circle (360 / columns apart); otherwise
        /// they are the picture's width less the overlap apart.
        bool fullCircle = false;
        /// Percent of a picture shared with the next one (rows always; the
        /// columns of a partial circle).
        double overlap = 30.0;
        /// Shooting order of the grid, as Gigapan numbers it: 0 columns
        /// (each from the top), 1 rows from the top, 2 rows from the bottom,
        /// 3 columns from the right, 4 serpentine from the bottom.
        int order = 0;
        /// Largest positioning error in yaw and in pitch, degrees.
        double error = 1.0;
        quint32 seed = 1;
        quint32 sceneSeed = 20240601;
        /// Pixels of the scene for 360 degrees; 0 chooses from the pictures'
        /// resolution.
        int sceneWidth = 0;
        /// Samples per pixel along each side when rendering.
        int samples = 3;
        int jpegQuality = 90;
    };

    struct Shot
    {
        QString name;
        int stack = 0;
        /// Exposure offset in EV.
        double ev = 0.0;
    };

    struct Position
    {
        /// Where the head was told to point (what its record holds).
        double plannedYaw = 0.0;
        double plannedPitch = 0.0;
        /// Where the camera really points.
        double trueYaw = 0.0;
        double truePitch = 0.0;
    };

    explicit GeneratedShoot(const Plan& plan);

    /// Reads a Plan from command-line options (see usage()); false with a
    /// reason in *error.
    static bool parse(const QStringList& arguments, Plan* plan, QString* error);
    static QString usage();

    bool write(const QString& folder, QString* error) const;

    const QVector<Position>& positions() const { return m_positions; }
    /// Field of view across and up the picture as it stands, degrees.
    double hfov() const { return m_hfov; }
    double vfov() const { return m_vfov; }

private:
    QString papywizard(bool complete, const QString& title) const;
    QString clauss() const;
    QString gigapanArguments() const;
    QString options() const;

    Plan m_plan;
    QVector<Position> m_positions;
    double m_hfov = 0.0;
    double m_vfov = 0.0;
};
