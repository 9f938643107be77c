// LayoutPicture: a picture of the panorama's layout, yaw across and pitch up:
// each stack's first photograph drawn where it points, at the size of its
// field of view, numbered by stack, and every authorised link as a line
// between the two stacks' centres (blue: below, green: right, orange: the
// diagonals, grey: no direction). A link across the ±180° seam leaves one
// edge of the picture and comes back in from the other.
#pragma once

#include "ExportInput.h"

#include <QImage>
#include <QString>

class LayoutPicture
{
public:
    /// Longest side of the picture, pixels, at most.
    static constexpr int MaximumSide = 1400;

    /// Needs a QGuiApplication for its texts. A stack without a position or
    /// a photograph without a thumbnail is drawn as an outlined empty cell.
    /// A null image when there is no stack.
    static QImage render(const ExportInput& input);

    /// Renders and saves as PNG. False with a reason in *error.
    static bool write(const ExportInput& input, const QString& path, QString* error);
};
