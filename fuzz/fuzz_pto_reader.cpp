// Fuzz target: the Hugin project reader the stitch runs on every project it
// is given, over the bytes of a file as read() sees them, then what the stitch
// asks of a project it has read: the images' names and variables, the control
// points, the panorama's size and crop, a project of some images only, the
// names made absolute and the points' errors. A project that reads must write
// text that reads again to the same images and points.
#include "FuzzCheck.h"
#include "PtoProject.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <cmath>

namespace {

// The variables the stitch reads, and a few more of an i line.
const QStringList& variableNames()
{
    static const QStringList names = { QStringLiteral("w"), QStringLiteral("h"),
        QStringLiteral("f"), QStringLiteral("v"), QStringLiteral("y"), QStringLiteral("p"),
        QStringLiteral("r"), QStringLiteral("TrX"), QStringLiteral("Eev"), QStringLiteral("a"),
        QStringLiteral("Vm") };
    return names;
}

// Images beyond this count add no path and cost a quadratic subset.
constexpr int kMaxChecked = 64;

void checkSameImages(const PtoProject& a, const PtoProject& b)
{
    FUZZ_CHECK(a.imageCount() == b.imageCount());
    const int n = a.imageCount() < kMaxChecked ? a.imageCount() : kMaxChecked;
    for (int i = 0; i < n; ++i) {
        FUZZ_CHECK(a.imageName(i) == b.imageName(i));
        for (const QString& v : variableNames())
            FUZZ_CHECK(a.value(i, v) == b.value(i, v));
    }
}

void checkSamePoints(const PtoProject& a, const PtoProject& b)
{
    const QVector<PtoProject::ControlPoint> pa = a.controlPoints();
    const QVector<PtoProject::ControlPoint> pb = b.controlPoints();
    FUZZ_CHECK(pa.size() == pb.size());
    for (int k = 0; k < pa.size(); ++k) {
        FUZZ_CHECK(pa[k].first == pb[k].first && pa[k].second == pb[k].second);
        FUZZ_CHECK(pa[k].line == pb[k].line);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    PtoProject project;
    QString error;
    if (!project.parse(text, &error)) {
        FUZZ_CHECK(!error.isEmpty());
        FUZZ_CHECK(project.imageCount() == 0);
        return 0;
    }

    // Written and read again: the same images, variables and points.
    const QString written = project.text();
    FUZZ_CHECK(written.endsWith(QLatin1Char('\n')));
    PtoProject again;
    FUZZ_CHECK(again.parse(written, &error));
    checkSameImages(project, again);
    checkSamePoints(project, again);
    FUZZ_CHECK(again.text() == written);

    const int images = project.imageCount();
    const QVector<PtoProject::ControlPoint> points = project.controlPoints();
    for (const PtoProject::ControlPoint& point : points) {
        FUZZ_CHECK(point.first >= 0 && point.first < images);
        FUZZ_CHECK(point.second >= 0 && point.second < images);
        bool ok = false;
        const double angle = project.pointError(point, &ok);
        if (ok)
            FUZZ_CHECK(angle >= 0.0 && angle <= 180.0);
        else
            FUZZ_CHECK(angle == 0.0);
    }
    for (int i = 0; i < images && i < kMaxChecked; ++i) {
        for (const QString& v : variableNames()) {
            bool ok = false;
            const double d = project.number(i, v, &ok);
            FUZZ_CHECK(ok ? std::isfinite(d) : d == 0.0);
        }
    }

    const QSize panorama = project.panoramaSize();
    (void)panorama;
    const QRect crop = project.crop();
    if (!crop.isNull())
        FUZZ_CHECK(crop.width() > 0 && crop.height() > 0);

    // Setting the points it has leaves a project that writes the same points.
    PtoProject same = project;
    same.setControlPoints(points);
    FUZZ_CHECK(same.imageCount() == images);
    checkSamePoints(project, same);

    if (images <= kMaxChecked) {
        // All images in order: the same project, but for its c lines' order.
        QVector<int> all;
        for (int i = 0; i < images; ++i)
            all << i;
        const PtoProject whole = project.subset(all);
        checkSameImages(project, whole);
        FUZZ_CHECK(whole.controlPoints().size() == points.size());

        // Every second image, last first, and an index that does not exist:
        // the kept images' names in that order, points only between them.
        QVector<int> some;
        for (int i = images - 1; i >= 0; i -= 2)
            some << i;
        some << images << -1;
        const PtoProject part = project.subset(some);
        FUZZ_CHECK(part.imageCount() == some.size() - 2);
        for (int k = 0; k < part.imageCount(); ++k)
            FUZZ_CHECK(part.imageName(k) == project.imageName(some[k]));
        for (const PtoProject::ControlPoint& point : part.controlPoints())
            FUZZ_CHECK(point.first < part.imageCount() && point.second < part.imageCount());
    }

    // Names made absolute: each one absolute, and the project still reads.
    PtoProject absolute = project;
    absolute.makeImageNamesAbsolute(QStringLiteral("/shoot/folder"));
    PtoProject reread;
    FUZZ_CHECK(reread.parse(absolute.text(), &error));
    FUZZ_CHECK(reread.imageCount() == images);
    for (int i = 0; i < images; ++i)
        FUZZ_CHECK(reread.imageName(i).startsWith(QLatin1Char('/')));
    return 0;
}
