// End to end on the bundled sample shoot: import the Papywizard record with
// its 30 photographs, stitch with Hugin's real tools (every exposure fused),
// and check the result against the true angles the sample was rendered at.
#include "CommandLine.h"
#include "DescriptionJson.h"
#include "ImageSize.h"
#include "PtoProject.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

namespace {

struct Truth
{
    int stack = -1;
    double yaw = 0.0;
    double pitch = 0.0;
};

/// ground-truth.csv: image,stack,yaw,pitch,roll after comment lines.
QMap<QString, Truth> readTruth(const QString& path)
{
    QMap<QString, Truth> truth;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return truth;
    for (const QByteArray& raw : file.readAll().split('\n')) {
        const QString line = QString::fromUtf8(raw).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))
            || line.startsWith(QLatin1String("image,")))
            continue;
        const QStringList f = line.split(QLatin1Char(','));
        if (f.size() != 5)
            continue;
        truth.insert(f[0], Truth { f[1].toInt(), f[2].toDouble(), f[3].toDouble() });
    }
    return truth;
}

double yawDifference(double a, double b)
{
    double d = std::fmod(a - b, 360.0);
    if (d > 180.0)
        d -= 360.0;
    if (d < -180.0)
        d += 360.0;
    return d;
}

/// The control points of a project as pairs of stacks, the stack of an image
/// found from its file name in the truth table.
QVector<QPair<int, int>> stackPairs(const PtoProject& project, const QMap<QString, Truth>& truth)
{
    QVector<QPair<int, int>> pairs;
    for (const PtoProject::ControlPoint& point : project.controlPoints()) {
        const int a = truth.value(QFileInfo(project.imageName(point.first)).fileName()).stack;
        const int b = truth.value(QFileInfo(project.imageName(point.second)).fileName()).stack;
        pairs.append(qMakePair(qMin(a, b), qMax(a, b)));
    }
    return pairs;
}

} // namespace

class tst_SampleStitch : public QObject
{
    Q_OBJECT

private slots:
    void importAndStitch();
};

void tst_SampleStitch::importAndStitch()
{
    const QDir shoot(QStringLiteral(ZPH_SAMPLE_SHOOT));
    const QMap<QString, Truth> truth
        = readTruth(shoot.filePath(QStringLiteral("ground-truth.csv")));
    QCOMPARE(truth.size(), 30);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());

    QString outText, errText;
    QTextStream out(&outText), err(&errText);
    Console console { out, err, false };
    int code = CommandLine::run({ QStringLiteral("import"), QStringLiteral("papywizard"),
                                    shoot.filePath(QStringLiteral("shoot.xml")), shoot.path(),
                                    QStringLiteral("-o"), dir.path() },
        console);
    err.flush();
    QVERIFY2(code == 0, qPrintable(errText));
    StructuredPanoramaProperties panorama;
    QString error;
    QVERIFY2(DescriptionJson::read(dir.filePath(QStringLiteral("shoot.json")), &panorama, &error),
        qPrintable(error));
    QCOMPARE(panorama.m_stacks.size(), 10);
    QSet<QPair<int, int>> links;
    for (const AuthorizedLink& link : panorama.m_links) {
        const int a = link.m_stackIndices.value(0);
        const int b = link.m_stackIndices.value(1);
        links.insert(qMakePair(qMin(a, b), qMax(a, b)));
    }

    code = CommandLine::run(
        { QStringLiteral("stitch"), dir.filePath(QStringLiteral("shoot.pto")) }, console);
    out.flush();
    err.flush();
    QVERIFY2(code == 0, qPrintable(errText + outText));
    qInfo().noquote() << outText;
    // Every photograph reaches the panorama: all 30 are remapped and each
    // stack's three exposures fused.
    QVERIFY2(outText.contains(QStringLiteral("remapping ... "))
            && outText.contains(QStringLiteral(": 30 of 30 pictures")),
        qPrintable(outText));
    QVERIFY2(outText.contains(QStringLiteral("enfuse: fusing exposures ... done"))
            && outText.contains(QStringLiteral(": 10 stacks")),
        qPrintable(outText));

    const QDir work(dir.filePath(QStringLiteral("shoot.stitch")));
    PtoProject found, filtered, final;
    QVERIFY2(found.read(work.filePath(QStringLiteral("01-cpfind.pto")), &error), qPrintable(error));
    QVERIFY2(
        filtered.read(work.filePath(QStringLiteral("02-links.pto")), &error), qPrintable(error));
    QVERIFY2(final.read(work.filePath(QStringLiteral("05-final.pto")), &error), qPrintable(error));

    // The record's positions are used: the points are found by correlation
    // between linked stacks only. A point between stacks without a link (a
    // feature detector finds some between the diagonal neighbours, which
    // overlap a little) would be removed by the links step; none comes back
    // later.
    QVERIFY2(outText.contains(QStringLiteral(" points by correlation at the recorded positions")),
        qPrintable(outText));
    int unlinkedFound = 0;
    for (const auto& pair : stackPairs(found, truth))
        unlinkedFound += pair.first != pair.second && !links.contains(pair) ? 1 : 0;
    QCOMPARE(unlinkedFound, 0);
    QCOMPARE(filtered.controlPoints().size(), found.controlPoints().size());
    const QVector<QPair<int, int>> finalPairs = stackPairs(final, truth);
    QVERIFY(finalPairs.size() > 50);
    for (const auto& pair : finalPairs) {
        QVERIFY(pair.first >= 0);
        QVERIFY2(pair.first == pair.second || links.contains(pair),
            qPrintable(
                QStringLiteral("a point joins stacks %1 and %2").arg(pair.first).arg(pair.second)));
    }

    // Every picture ends within a degree of where it was rendered, although
    // the record's angles are up to 1.5° off.
    QCOMPARE(final.imageCount(), 30);
    for (int i = 0; i < final.imageCount(); ++i) {
        const QString name = QFileInfo(final.imageName(i)).fileName();
        QVERIFY2(truth.contains(name), qPrintable(name));
        bool yawOk = false, pitchOk = false;
        const double yaw = final.number(i, QStringLiteral("y"), &yawOk);
        const double pitch = final.number(i, QStringLiteral("p"), &pitchOk);
        QVERIFY(yawOk && pitchOk);
        const Truth t = truth.value(name);
        QVERIFY2(std::fabs(yawDifference(yaw, t.yaw)) <= 1.0 && std::fabs(pitch - t.pitch) <= 1.0,
            qPrintable(QStringLiteral("%1 at yaw %2, pitch %3; true %4, %5")
                           .arg(name)
                           .arg(yaw)
                           .arg(pitch)
                           .arg(t.yaw)
                           .arg(t.pitch)));
    }

    // The panorama has the size of the final project's crop.
    const QString panoramaPath = dir.filePath(QStringLiteral("shoot.tif"));
    QVERIFY(QFileInfo(panoramaPath).size() > 0);
    const QRect crop = final.crop();
    QVERIFY(!crop.isNull());
    QCOMPARE(ImageSize::read(panoramaPath), crop.size());
    // 212° by 70° of scene at about 7.6 pixels per degree.
    QVERIFY2(crop.width() > 1200 && crop.width() < 2000, qPrintable(QString::number(crop.width())));
    QVERIFY2(
        crop.height() > 350 && crop.height() < 700, qPrintable(QString::number(crop.height())));
}

QTEST_MAIN(tst_SampleStitch)
#include "tst_SampleStitch.moc"
