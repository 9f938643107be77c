// ZuiPixmapHelper: loads resource pictures sharp on high-density screens (an
// "@2x" companion file is picked up) and fades pixmaps.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>

class ZuiPixmapHelper
{
public:
    ZuiPixmapHelper() = default;

    /// The picture at `path` at its logical size, with device pixel ratio 1 or
    /// 2 to suit the screen, faded to `alpha` (0..255) unless alpha is 255.
    /// The file must exist.
    static QPixmap CreateHighDpiPixmap(QString path, int alpha = 255);
    /// Redraws `pixmap` with opacity alpha / 255 (0 invisible, 255 unchanged),
    /// keeping its size and device pixel ratio.
    static void SetAlpha(QPixmap& pixmap, int alpha);
    /// The rectangle at (0, 0) in which `pixmap` is drawn in logical
    /// coordinates: pixel size divided by device pixel ratio, rounded.
    static QRect GetDisplayRect(QPixmap& pixmap);
};
