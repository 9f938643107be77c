// HuginProjectWriter: turns a panorama description into a Hugin project
// (.pto) that Hugin's tools (cpfind, autooptimiser, nona, ...) read.
//
// Images stand in stack order, the images of a stack one after the other.
// Every picture of one pixel size shares one lens: the first such image holds
// the lens values, the others link to it ("v=0"). Each image is placed at its
// stack's yaw and pitch; its roll is the stack's roll plus the turn that its
// EXIF orientation asks for. The images of a stack form a Hugin stack: they
// link their stack variable ("j=<first image>") and, with hard links inside
// stacks, their position too ("y=<first image>" ...). Exposure values (Eev)
// come from the photographs' EXIF data. A standard lens is rectilinear (f0);
// a fisheye is written as a full-frame fisheye (f3), the usual lens of a
// panoramic head, whose picture fills the frame.
#pragma once

#include "ExportInput.h"

#include <QLoggingCategory>
#include <QString>
#include <QVector>

Q_DECLARE_LOGGING_CATEGORY(zphExport)

class HuginProjectWriter
{
public:
    explicit HuginProjectWriter(const ExportInput& input);

    /// The project's text. Image names are written relative to projectFolder
    /// (Hugin resolves them from the project file's folder). False with a
    /// reason in *error when the input cannot make a project: no stack, a
    /// position missing, a photograph without its ImageInfo or pixel size, a
    /// focal length that is not positive, a path holding a double quote.
    bool text(const QString& projectFolder, QString* project, QString* error) const;

    /// Writes the project to path (its folder must exist). False with a
    /// reason in *error.
    bool write(const QString& path, QString* error) const;

    /// Where each stack points according to the recorded shots: stack k takes
    /// the angles of shot k·shotsPerStack (degrees from the record's radians;
    /// roll 0 when the record has none). A stack without its shot points at 0.
    static QVector<StackPosition> recordedPositions(
        const StructuredPanoramaProperties& panorama, int shotsPerStack);

    /// A number as the project file writes it: up to `decimals` decimals, no
    /// trailing zeros, "0" rather than "-0". Angles are written with 4
    /// decimals: the record keeps them as 32-bit floats in radians, whose
    /// last bits mean nothing in degrees (-80 comes back as -79.999998).
    static QString number(double value, int decimals = 6);

private:
    ExportInput m_input;
};
