// Writes test pictures: a 20 x 10 red "base.png" with a 40 x 20 blue
// "base@2x.png" companion, and a 20 x 10 green "single.png" without one.
#pragma once

#include <QColor>
#include <QDir>
#include <QImage>
#include <QString>

namespace TestPictures {

const QColor kBase(255, 0, 0);
const QColor kCompanion(0, 0, 255);
const QColor kSingle(0, 255, 0);

inline bool Write(const QString& path, int width, int height, const QColor& colour)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    return image.save(path, "PNG");
}

/// Returns false when a file cannot be written.
inline bool WriteAll(const QString& folder)
{
    const QDir dir(folder);
    return Write(dir.filePath(QStringLiteral("base.png")), 20, 10, kBase)
        && Write(dir.filePath(QStringLiteral("base@2x.png")), 40, 20, kCompanion)
        && Write(dir.filePath(QStringLiteral("single.png")), 20, 10, kSingle);
}

} // namespace TestPictures
