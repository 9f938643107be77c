// CorrelationMatcher: control points between pictures whose positions are
// known to within a few degrees, as a motorised head records them. For every
// pair of pictures asked for, corners of the first picture inside the
// overlap are looked for in the second by normalised cross-correlation: a
// patch of the first, warped through both pictures' recorded positions into
// the second's geometry, is searched around its predicted place from a
// reduced level down to full resolution and refined to a fraction of a pixel.
// Only rectilinear and equidistant fisheye pictures are supported; radial
// lens distortion (a, b, c) is applied. Pictures are read as stored (no EXIF
// orientation applied), in grey levels.
#pragma once

#include "PtoProject.h"

#include <QPair>
#include <QString>
#include <QVector>

#include <atomic>

class CorrelationMatcher
{
public:
    struct PairResult
    {
        int first = -1;
        int second = -1;
        /// The part (0 to 1) of the first picture that the second sees,
        /// through the recorded positions.
        double overlap = 0.0;
        /// Control points found between the two.
        int points = 0;
    };

    struct Result
    {
        enum Outcome {
            Matched,
            /// A picture's projection or values are not supported, or a
            /// picture cannot be read at its project's size; reason says which.
            Declined,
            /// The stop flag was raised.
            Stopped,
        };
        Outcome outcome = Declined;
        QString reason;
        /// Type 0 control points ("c n<first> N<second> x y X Y t0"), the
        /// pairs in the order asked for, each pair's points in a fixed order.
        QVector<PtoProject::ControlPoint> points;
        /// Per pair asked for, in that order.
        QVector<PairResult> pairs;
    };

    /// Whether the image's projection and values are supported; the reason
    /// in *reason (optional) when not.
    static bool supports(const PtoProject& project, int image, QString* reason);

    /// Matches the pairs of images of project (indices into it); their files
    /// are the images' names resolved from folder. threads: how many pairs
    /// are matched at once, 0 for one per core; the result does not depend
    /// on it. stop (optional) is polled between points. Blocks until done.
    static Result match(const PtoProject& project, const QString& folder,
        const QVector<QPair<int, int>>& pairs, int threads = 0,
        const std::atomic<bool>* stop = nullptr);
};
