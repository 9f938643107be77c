// ExportInputBuilder: puts together what the exports draw from, the same way
// for every front end: the description, what is known of each photograph,
// the focal length and lens, and where each stack points. A description with
// angles places each stack at its first shot; a grid without angles is laid
// out from its rows, order and overlap at the first photograph's field of view.
#pragma once

#include "ExportInput.h"

class ExportInputBuilder
{
public:
    /// Fills *input from `record`, `images` (an entry for every path of every
    /// stack), the full-frame-equivalent `focal` in millimetres and `lens`.
    /// False, with the reason in *error, for a description without stacks, a
    /// photograph without an entry or a focal length that is not positive.
    static bool Build(const StructuredPanoramaProperties& record,
        const QHash<QString, ImageInfo>& images, double focal, LensModel lens,
        ExportInput* input, QString* error);

    /// Where each stack of `record` points: recorded angles when it has any,
    /// else its grid laid out with `images`, `focal` and `lens`.
    static QVector<StackPosition> Positions(const StructuredPanoramaProperties& record,
        const QHash<QString, ImageInfo>& images, double focal, LensModel lens);
};
