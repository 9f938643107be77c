// PtoProject: a Hugin project file (.pto) as text lines, with what the stitch
// needs to read and change in it: the images (names and variables, following
// "=<image>" links), the control points, the panorama's size and crop, and a
// project of some of the images only.
#pragma once

#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

class PtoProject
{
public:
    struct ControlPoint
    {
        /// The two images, as the "n" and "N" fields of the c line.
        int first = -1;
        int second = -1;
        /// The whole line, as read.
        QString line;
    };

    /// Reads and parses path. False with a reason in *error.
    bool read(const QString& path, QString* error);
    /// Parses text: every line is kept; i lines must have a name (n"...") and
    /// well-formed variables, c lines must name existing images.
    bool parse(const QString& text, QString* error);
    QString text() const;
    bool write(const QString& path, QString* error) const;

    int imageCount() const { return m_images.size(); }
    /// The image's file name as written (n"..."), maybe relative.
    QString imageName(int image) const;
    /// The literal value of the image's variable, following "=<image>" links;
    /// empty when the variable is absent or the links go round in a circle.
    QString value(int image, const QString& variable) const;
    /// value() as a number; false in *ok when absent or not a finite number.
    double number(int image, const QString& variable, bool* ok) const;

    QVector<ControlPoint> controlPoints() const;
    /// Replaces every c line by these (after the images' lines).
    void setControlPoints(const QVector<ControlPoint>& points);

    /// The p line's w and h; invalid when missing.
    QSize panoramaSize() const;
    /// A number of the p line: "f" its projection, "v" its horizontal field
    /// of view; false in *ok when absent or not a finite number.
    double panoramaNumber(const QString& variable, bool* ok) const;
    /// The p line's crop (S<left>,<right>,<top>,<bottom>) as a rectangle;
    /// null when there is none.
    QRect crop() const;

    /// Rewrites every image name that is relative as an absolute path,
    /// resolved from folder (the folder of the file the project came from),
    /// so that the project can be written anywhere.
    void makeImageNamesAbsolute(const QString& folder);
    /// name as a path from folder: unchanged when it starts with '/', else
    /// joined to folder's absolute path. A leading ':' is part of the file
    /// name (QDir would take it for one of Qt's resources).
    static QString inFolder(const QString& folder, const QString& name);

    /// A project of the given images only (indices into this one, in the
    /// order given), renumbered 0, 1, ...: links to a kept image follow it,
    /// links to a dropped image become that image's literal value; control
    /// points, masks and optimiser variables of dropped images are dropped.
    PtoProject subset(const QVector<int>& images) const;

    /// The angle in degrees between the directions in which the control
    /// point's two ends lie, seen through the images' positions (y, p, r),
    /// fields of view and projections: near 0 when the positions agree with
    /// the point. False in *ok when an image's projection is neither
    /// rectilinear nor an equidistant fisheye, or a value is missing.
    double pointError(const ControlPoint& point, bool* ok) const;

    /// A control point of this project with its images renumbered: image i
    /// becomes mapping[i].
    static ControlPoint renumbered(const ControlPoint& point, const QVector<int>& mapping);

private:
    /// One variable of an i line, as places in the image's text: its name
    /// and either its value or the index of the image it links to ("=<image>").
    struct Variable
    {
        int nameFrom = 0;
        int nameLength = 0;
        int valueFrom = 0;
        int valueLength = 0;
        bool linked = false;
        int target = -1;
    };
    struct Image
    {
        /// Index of the i line in m_lines.
        int line = -1;
        /// The i line as read, which the variables point into.
        QString text;
        QVector<Variable> variables;
        QString name;

        QStringRef nameOf(const Variable& v) const
        {
            return QStringRef(&text, v.nameFrom, v.nameLength);
        }
        QStringRef valueOf(const Variable& v) const
        {
            return QStringRef(&text, v.valueFrom, v.valueLength);
        }
    };

    static bool parseImage(const QString& line, Image* image, QString* error);
    /// The i line of the image: its variables in their order, then its name.
    /// With mapping, a link to image k links to mapping[k], or, when that is
    /// -1, becomes the value it leads to.
    QString imageLine(int image, const QVector<int>* mapping = nullptr) const;
    /// The image and variable found by following links from image; false
    /// when the variable is absent or the links go round in a circle.
    bool variable(
        int image, const QString& name, const Image** owner, const Variable** found) const;
    /// The unit vector of image pixel (x, y) in the panorama's frame: z
    /// ahead at yaw 0 and pitch 0, x to the right, y up.
    bool direction(int image, double x, double y, double out[3]) const;
    /// The first p line; null when there is none.
    const QString* panoramaLine() const;

    QStringList m_lines;
    QVector<Image> m_images;
    /// The c lines' points, in the order of the lines: only parse() changes them.
    QVector<ControlPoint> m_points;
};
