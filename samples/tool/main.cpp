// zph_make_sample: renders the bundled sample shoot, or any other shoot.
// Usage: zph_make_sample <output folder> [--texture <scene.png>]
//        zph_make_sample --generate <output folder> [options]
//        (a shoot of any shape with every head's record; see GeneratedShoot)
//        zph_make_sample --shrink <picture> <smaller.jpg|.png> <width>
//        (a small copy of a picture, for the documentation)
#include "GeneratedShoot.h"
#include "SampleShoot.h"

#include <QGuiApplication>
#include <QImage>
#include <QStringList>

#include <cstdio>

int main(int argc, char** argv)
{
    // Painting needs a GUI application; no display is used.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    if (args.value(0) == QLatin1String("--shrink")) {
        bool ok = false;
        const int width = args.value(3).toInt(&ok);
        const QImage picture(args.value(1));
        if (args.size() != 4 || !ok || width < 1 || picture.isNull()) {
            std::fprintf(stderr, "usage: zph_make_sample --shrink <picture> <out> <width>\n");
            return 2;
        }
        const QImage small = picture.width() > width
            ? picture.scaledToWidth(width, Qt::SmoothTransformation)
            : picture;
        if (!small.save(args[2], nullptr, 85)) {
            std::fprintf(stderr, "zph_make_sample: cannot write %s\n", qPrintable(args[2]));
            return 1;
        }
        return 0;
    }
    if (args.value(0) == QLatin1String("--generate")) {
        GeneratedShoot::Plan plan;
        QString error;
        if (args.size() < 2 || args[1].startsWith(QLatin1String("--"))
            || !GeneratedShoot::parse(args.mid(2), &plan, &error)) {
            if (!error.isEmpty())
                std::fprintf(stderr, "zph_make_sample: %s\n", qPrintable(error));
            std::fprintf(stderr, "%s", qPrintable(GeneratedShoot::usage()));
            return 2;
        }
        const GeneratedShoot shoot(plan);
        if (!shoot.write(args[1], &error)) {
            std::fprintf(stderr, "zph_make_sample: %s\n", qPrintable(error));
            return 1;
        }
        std::printf("zph_make_sample: wrote %d photographs to %s\n",
            int(shoot.positions().size()) * plan.bracket, qPrintable(args[1]));
        return 0;
    }
    if (args.isEmpty() || args.size() == 2 || args.size() > 3
        || (args.size() == 3 && args[1] != QLatin1String("--texture"))) {
        std::fprintf(stderr, "usage: zph_make_sample <output folder> [--texture <scene.png>]\n");
        return 2;
    }
    QString error;
    const SampleShoot shoot;
    if (!shoot.write(args[0], args.size() == 3 ? args[2] : QString(), &error)) {
        std::fprintf(stderr, "zph_make_sample: %s\n", qPrintable(error));
        return 1;
    }
    std::printf("zph_make_sample: wrote %d photographs to %s\n",
        int(shoot.positions().size()) * SampleShoot::bracket, qPrintable(args[0]));
    return 0;
}
