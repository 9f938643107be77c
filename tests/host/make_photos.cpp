// zph_make_photos: writes photographs with EXIF data for benchmarks and
// manual tries.
//   zph_make_photos <folder> [count] [width] [height] [thumbnails:every|none|half]
// Files are named photo-NNNN.jpg; with "half", even-numbered photographs
// carry a 160 × 120 embedded EXIF thumbnail and odd ones none.
#include "PhotoFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>
#include <QTextStream>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    QTextStream err(stderr);
    if (args.isEmpty()) {
        err << "usage: zph_make_photos <folder> [count] [width] [height] [every|none|half]\n";
        return 2;
    }
    const QString folder = args.at(0);
    const int count = args.value(1, QStringLiteral("10")).toInt();
    const int width = args.value(2, QStringLiteral("6000")).toInt();
    const int height = args.value(3, QStringLiteral("4000")).toInt();
    const QString thumbnails = args.value(4, QStringLiteral("half"));
    if (count <= 0 || width <= 0 || height <= 0 || !QDir().mkpath(folder)) {
        err << "bad arguments or cannot create " << folder << "\n";
        return 2;
    }
    for (int i = 0; i < count; ++i) {
        PhotoFixture f;
        f.size = QSize(width, height);
        f.quality = 90;
        f.seed = i;
        f.noise = 6;
        f.focalNum = 24;
        f.focalDen = 1;
        f.exposureNum = 1;
        f.exposureDen = 125 << (i % 3);
        f.fNumberNum = 8;
        f.fNumberDen = 1;
        f.iso = 100;
        f.dateTimeOriginal = QStringLiteral("2024:06:01 12:%1:%2")
                                 .arg(i / 60 % 60, 2, 10, QLatin1Char('0'))
                                 .arg(i % 60, 2, 10, QLatin1Char('0'))
                                 .toLatin1();
        f.subSecTimeOriginal = "25";
        f.orientation = 1;
        f.make = "Zcam";
        f.model = "Z1";
        f.lensModel = "24mm F1.4";
        const bool thumb = thumbnails == QLatin1String("every")
            || (thumbnails == QLatin1String("half") && i % 2 == 0);
        if (thumb)
            f.thumbnail = QSize(160, 120);
        const QString path
            = QDir(folder).filePath(QStringLiteral("photo-%1.jpg").arg(i, 4, 10, QLatin1Char('0')));
        if (!f.write(path)) {
            err << path << ": " << f.errorString() << "\n";
            return 1;
        }
    }
    return 0;
}
