// The lens of a panorama; the pages' lens combo box lists the values in this
// order, so a combo index is a LensModel value.
#pragma once

#include <QtGlobal>

enum LensModel : qint32 {
    /// Not known: take the lens from the head's file.
    LensUnknown = -1,
    /// A rectilinear lens.
    LensStandard = 0,
    LensFisheye = 1,
};
