// High-density resource pictures and pixmap fading.
#include "ZuiPixmapHelper.h"

#include "ZuiLogging.h"

#include <QIcon>
#include <QPainter>

#include <cmath>

QPixmap ZuiPixmapHelper::CreateHighDpiPixmap(QString path, int alpha)
{
    // QIcon adds the "@2x" companion of the file when the screen wants it, and
    // hands out the matching resolution at the base picture's logical size.
    const QIcon icon(path);
    const QList<QSize> sizes = icon.availableSizes(QIcon::Normal, QIcon::Off);
    if (sizes.isEmpty()) {
        qCWarning(lcZui) << "Cannot load picture" << path;
        return QPixmap();
    }
    QPixmap pixmap = icon.pixmap(sizes.first(), QIcon::Normal, QIcon::Off);
    if (alpha != 255)
        SetAlpha(pixmap, alpha);
    return pixmap;
}

void ZuiPixmapHelper::SetAlpha(QPixmap& pixmap, int alpha)
{
    if (pixmap.isNull())
        return;
    // Work in physical pixels, then give the ratio back.
    const qreal ratio = pixmap.devicePixelRatio();
    pixmap.setDevicePixelRatio(1.0);

    QPixmap faded(pixmap.size());
    faded.fill(Qt::transparent);
    {
        QPainter painter(&faded);
        // Out-of-range alphas are clamped by the painter to 0..1.
        painter.setOpacity(static_cast<float>(alpha) / 255.0f);
        painter.drawPixmap(faded.rect(), pixmap, pixmap.rect());
    }
    pixmap = faded;
    pixmap.setDevicePixelRatio(ratio);
}

QRect ZuiPixmapHelper::GetDisplayRect(QPixmap& pixmap)
{
    const qreal ratio = pixmap.devicePixelRatio();
    // Halves round away from zero: 101 pixels at ratio 2 are drawn 51 wide.
    const int width = static_cast<int>(std::lround(pixmap.width() / ratio));
    const int height = static_cast<int>(std::lround(pixmap.height() / ratio));
    return QRect(0, 0, width, height);
}
