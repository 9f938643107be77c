// Reading and editing Hugin projects: images and their linked variables,
// control points, canvas and crop, projects of some images only.
#include "PtoProject.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

namespace {

const char* const Project
    = "# hugin project file\n"
      "p f2 w3000 h1500 v360 E0 R0 S10,2010,20,1020 n\"TIFF_m c:LZW r:CROP\"\n"
      "m i0\n"
      "\n"
      "i w400 h300 f0 v50 Eev12 r0 p10 y-20 j0 n\"a b.jpg\"\n"
      "i w400 h300 f0 v=0 Eev13 r=0 p=0 y=0 j=0 n\"photos/c.jpg\"\n"
      "#-hugin  cropFactor=1\n"
      "i w400 h300 f0 v=0 Eev12 r0 p-10 y=1 j2 n\"/abs/d.jpg\"\n"
      "\n"
      "v r2 p2 y2\n"
      "v\n"
      "k i1 t0 p\"0 0 10 10\"\n"
      "c n0 N2 x1 y2 X3 Y4 t0\n"
      "c n1 N2 x5 y6 X7 Y8 t0\n";

PtoProject parsed(const QString& text = QString::fromLatin1(Project))
{
    PtoProject p;
    QString error;
    if (!p.parse(text, &error))
        qWarning() << error;
    return p;
}

} // namespace

class tst_PtoProject : public QObject
{
    Q_OBJECT

private slots:
    void images();
    void linkedValues();
    void controlPoints();
    void canvasAndCrop();
    void panoramaNumber_data();
    void panoramaNumber();
    void subset();
    void renumbered();
    void absoluteNames();
    void writeAndRead();
    void carriageReturns_data();
    void carriageReturns();
    void namesFromTheProjectFolder_data();
    void namesFromTheProjectFolder();
    void rejects_data();
    void rejects();
    void pointError_data();
    void pointError();
};

void tst_PtoProject::images()
{
    const PtoProject p = parsed();
    QCOMPARE(p.imageCount(), 3);
    QCOMPARE(p.imageName(0), QStringLiteral("a b.jpg"));
    QCOMPARE(p.imageName(1), QStringLiteral("photos/c.jpg"));
    QCOMPARE(p.imageName(2), QStringLiteral("/abs/d.jpg"));
    QCOMPARE(p.imageName(3), QString());
}

void tst_PtoProject::linkedValues()
{
    const PtoProject p = parsed();
    QCOMPARE(p.value(1, QStringLiteral("v")), QStringLiteral("50"));
    QCOMPARE(p.value(1, QStringLiteral("Eev")), QStringLiteral("13"));
    // A chain of links: image 2's yaw is image 1's, which is image 0's.
    QCOMPARE(p.value(2, QStringLiteral("y")), QStringLiteral("-20"));
    QCOMPARE(p.value(2, QStringLiteral("p")), QStringLiteral("-10"));
    QCOMPARE(p.value(0, QStringLiteral("TrX")), QString());
    bool ok = false;
    QCOMPARE(p.number(1, QStringLiteral("p"), &ok), 10.0);
    QVERIFY(ok);
    p.number(0, QStringLiteral("n"), &ok);
    QVERIFY(!ok);
    // Links that go round in a circle have no value.
    const PtoProject circle = parsed(QStringLiteral("i y=1 n\"a\"\ni y=0 n\"b\"\n"));
    QCOMPARE(circle.imageCount(), 2);
    QCOMPARE(circle.value(0, QStringLiteral("y")), QString());
}

void tst_PtoProject::controlPoints()
{
    PtoProject p = parsed();
    const QVector<PtoProject::ControlPoint> points = p.controlPoints();
    QCOMPARE(points.size(), 2);
    QCOMPARE(points[0].first, 0);
    QCOMPARE(points[0].second, 2);
    QCOMPARE(points[1].line, QStringLiteral("c n1 N2 x5 y6 X7 Y8 t0"));
    p.setControlPoints({ points[1] });
    QCOMPARE(p.controlPoints().size(), 1);
    QCOMPARE(p.controlPoints()[0].first, 1);
    QVERIFY(!p.text().contains(QStringLiteral("c n0 N2")));
    QCOMPARE(p.imageCount(), 3);
}

void tst_PtoProject::canvasAndCrop()
{
    const PtoProject p = parsed();
    QCOMPARE(p.panoramaSize(), QSize(3000, 1500));
    QCOMPARE(p.crop(), QRect(10, 20, 2000, 1000));
    const PtoProject noCrop = parsed(QStringLiteral("p f2 w100 h50 v360\n"));
    QVERIFY(noCrop.crop().isNull());
    QCOMPARE(noCrop.panoramaSize(), QSize(100, 50));
    QVERIFY(!parsed(QStringLiteral("m i0\n")).panoramaSize().isValid());
    QVERIFY(parsed(QStringLiteral("p w100 h50 S10,5,0,50\n")).crop().isNull());
}

void tst_PtoProject::panoramaNumber_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<bool>("found");
    QTest::addColumn<double>("value");
    const QString line = QStringLiteral("p f2 w3000 h1500 v360 E12.5 R0 n\"TIFF_m c:LZW\"\n");
    QTest::newRow("projection") << line << "f" << true << 2.0;
    QTest::newRow("field of view") << line << "v" << true << 360.0;
    QTest::newRow("fraction") << line << "E" << true << 12.5;
    QTest::newRow("absent") << line << "k" << false << 0.0;
    QTest::newRow("a longer name") << QStringLiteral("p f2 vb3 v90\n") << "v" << true << 90.0;
    QTest::newRow("not a number") << QStringLiteral("p f2 vx\n") << "v" << false << 0.0;
    QTest::newRow("not finite") << QStringLiteral("p f2 vinf\n") << "v" << false << 0.0;
    QTest::newRow("no p line") << QStringLiteral("m i0\n") << "f" << false << 0.0;
}

void tst_PtoProject::panoramaNumber()
{
    QFETCH(QString, line);
    QFETCH(QString, variable);
    QFETCH(bool, found);
    QFETCH(double, value);
    bool ok = !found;
    QCOMPARE(parsed(line).panoramaNumber(variable, &ok), value);
    QCOMPARE(ok, found);
}

void tst_PtoProject::subset()
{
    const PtoProject p = parsed();
    const PtoProject s = p.subset({ 2, 1 });
    QCOMPARE(s.imageCount(), 2);
    QCOMPARE(s.imageName(0), QStringLiteral("/abs/d.jpg"));
    QCOMPARE(s.imageName(1), QStringLiteral("photos/c.jpg"));
    // Links to the dropped image 0 become its values; the link from old 2 to
    // old 1 follows image 1 to its new place.
    QCOMPARE(s.value(1, QStringLiteral("v")), QStringLiteral("50"));
    QCOMPARE(s.value(0, QStringLiteral("y")), QStringLiteral("-20"));
    QVERIFY(s.text().contains(QStringLiteral("y=1")));
    QVERIFY(s.text().contains(
        QStringLiteral("i w400 h300 f0 v50 Eev13 r0 p10 y-20 j0 n\"photos/c.jpg\"")));
    // Only the point between kept images stays, renumbered.
    QCOMPARE(s.controlPoints().size(), 1);
    QCOMPARE(s.controlPoints()[0].line, QStringLiteral("c n1 N0 x5 y6 X7 Y8 t0"));
    QVERIFY(s.text().contains(QStringLiteral("v r0 p0 y0\n")));
    QVERIFY(s.text().contains(QStringLiteral("k i1 t0 p\"0 0 10 10\"")));
    // The comment line that belongs to old image 2 travels with it.
    QVERIFY(s.text().contains(QStringLiteral("#-hugin  cropFactor=1\ni w400 h300 f0 v50")));
    QVERIFY(s.text().contains(QStringLiteral("p f2 w3000 h1500")));
    const PtoProject none = p.subset({ 0 });
    QCOMPARE(none.imageCount(), 1);
    QVERIFY(none.controlPoints().isEmpty());
    QVERIFY(!none.text().contains(QStringLiteral("k i")));
}

void tst_PtoProject::renumbered()
{
    PtoProject::ControlPoint point;
    point.first = 1;
    point.second = 0;
    point.line = QStringLiteral("c n1 N0 x1.5 y2 X3 Y4 t0");
    const PtoProject::ControlPoint r = PtoProject::renumbered(point, { 3, 9 });
    QCOMPARE(r.first, 9);
    QCOMPARE(r.second, 3);
    QCOMPARE(r.line, QStringLiteral("c n9 N3 x1.5 y2 X3 Y4 t0"));
    // Out of the mapping: unchanged.
    QCOMPARE(PtoProject::renumbered(point, { 3 }).line, point.line);
}

void tst_PtoProject::absoluteNames()
{
    PtoProject p = parsed();
    p.makeImageNamesAbsolute(QStringLiteral("/shoot/project"));
    QCOMPARE(p.imageName(0), QStringLiteral("/shoot/project/a b.jpg"));
    QCOMPARE(p.imageName(1), QStringLiteral("/shoot/project/photos/c.jpg"));
    QCOMPARE(p.imageName(2), QStringLiteral("/abs/d.jpg"));
    QVERIFY(p.text().contains(QStringLiteral("n\"/shoot/project/a b.jpg\"")));
    QCOMPARE(p.value(1, QStringLiteral("Eev")), QStringLiteral("13"));
}

void tst_PtoProject::writeAndRead()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("p.pto"));
    QString error;
    QVERIFY(parsed().write(path, &error));
    PtoProject back;
    QVERIFY2(back.read(path, &error), qPrintable(error));
    QCOMPARE(back.text(), parsed().text());
    QVERIFY(!back.read(dir.filePath(QStringLiteral("none.pto")), &error));
    QVERIFY(error.startsWith(QStringLiteral("cannot read")));
}

void tst_PtoProject::carriageReturns_data()
{
    // Every carriage return at a line's end belongs to the line break.
    QTest::addColumn<QString>("text");
    QTest::newRow("one") << "p f2 w3000 h1500 v360\r\ni w400 h300 y-20 n\"a.jpg\"\r\n";
    QTest::newRow("two") << "p f2 w3000 h1500 v360\r\r\ni w400 h300 y-20 n\"a.jpg\"\r\r\n";
    QTest::newRow("two on a comment") << "# hugin project file\r\r\np f2 w3000 h1500 v360\r\n"
                                         "i w400 h300 y-20 n\"a.jpg\"\n";
    QTest::newRow("three, no line feed at the end")
        << "p f2 w3000 h1500 v360\r\r\r\ni w400 h300 y-20 n\"a.jpg\"\r\r\r";
}

void tst_PtoProject::carriageReturns()
{
    QFETCH(QString, text);
    PtoProject p;
    QString error;
    QVERIFY2(p.parse(text, &error), qPrintable(error));
    QVERIFY(!p.text().contains(QLatin1Char('\r')));
    QCOMPARE(p.panoramaSize(), QSize(3000, 1500));
    QCOMPARE(p.imageName(0), QStringLiteral("a.jpg"));
    QCOMPARE(p.value(0, QStringLiteral("y")), QStringLiteral("-20"));
    // What is written reads back the same.
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("p.pto"));
    QVERIFY2(p.write(path, &error), qPrintable(error));
    PtoProject back;
    QVERIFY2(back.read(path, &error), qPrintable(error));
    QCOMPARE(back.text(), p.text());
    QCOMPARE(back.imageCount(), 1);
    QCOMPARE(back.imageName(0), QStringLiteral("a.jpg"));
}

void tst_PtoProject::rejects_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("image without name") << "i w400 h300 y0\n"
                                        << "line 1: an image has no name";
    QTest::newRow("unclosed name") << "i w400 n\"a.jpg\n"
                                   << "line 1: an image name has no closing quote";
    QTest::newRow("link to nowhere") << "i v=3 n\"a\"\n"
                                     << "line 1: \"v=3\" links to an image that does not exist";
    QTest::newRow("bad link") << "i v=x n\"a\"\n"
                              << "line 1: the link \"v=x\" names no image";
    QTest::newRow("point to nowhere") << "i n\"a\"\nc n0 N1 x1 y1 X1 Y1 t0\n"
                                      << "line 2: a control point names no existing image";
    QTest::newRow("number without name") << "i 12 n\"a\"\n"
                                         << "line 1: the image variable \"12\" has no name";
}

void tst_PtoProject::rejects()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    PtoProject p = parsed(QStringLiteral("i n\"kept\"\n"));
    QString error;
    QVERIFY(!p.parse(text, &error));
    QCOMPARE(error, reason);
    QCOMPARE(p.imageName(0), QStringLiteral("kept"));
}

void tst_PtoProject::pointError_data()
{
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("point");
    QTest::addColumn<double>("error");
    // The first image looks at yaw 0, pitch 0 with 52.6° across 400 pixels:
    // 404.67 pixels of focal length. Yaw 20° lies 147.29 pixels right of
    // the centre.
    QTest::newRow("yaw 40, the same direction") << "f0 v52.6 y40 p0 r0"
                                                << "c n0 N1 x347.29 y150 X52.71 Y150 t0" << 0.0;
    QTest::newRow("yaw 40, above the axis") << "f0 v52.6 y40 p0 r0"
                                            << "c n0 N1 x347.29 y100 X52.71 Y100 t0" << 0.0;
    // 137.29 pixels left of the centre is yaw 40 - 18.74.
    QTest::newRow("yaw 40, 10 pixels off") << "f0 v52.6 y40 p0 r0"
                                           << "c n0 N1 x347.29 y150 X62.71 Y150 t0" << 1.26;
    QTest::newRow("pitch 10: 5° up lies 35.40 pixels above the centre")
        << "f0 v52.6 y0 p10 r0"
        << "c n0 N1 x200 y114.60 X200 Y185.40 t0" << 0.0;
    QTest::newRow("yaw -40 is to the left") << "f0 v52.6 y-40 p0 r0"
                                            << "c n0 N1 x52.71 y150 X347.29 Y150 t0" << 0.0;
    // A camera rolled by 90° (a portrait picture stored standing) sees what
    // lies to the right above its centre.
    QTest::newRow("roll 90: 20° to the right lies 147.29 pixels above the centre")
        << "f0 v52.6 y0 p0 r90"
        << "c n0 N1 x347.29 y150 X200 Y2.71 t0" << 0.0;
    QTest::newRow("roll -90: 20° to the right lies 147.29 pixels below the centre")
        << "f0 v52.6 y0 p0 r-90"
        << "c n0 N1 x347.29 y150 X200 Y297.29 t0" << 0.0;
    QTest::newRow("fisheye 180° across, yaw 20: at its centre")
        << "f3 v180 y20 p0 r0"
        << "c n0 N1 x347.29 y150 X200 Y150 t0" << 0.0;
    QTest::newRow("no such projection") << "f4 v52.6 y40 p0 r0"
                                        << "c n0 N1 x347.29 y150 X52.71 Y150 t0" << -1.0;
}

void tst_PtoProject::pointError()
{
    QFETCH(QString, second);
    QFETCH(QString, point);
    QFETCH(double, error);
    PtoProject project;
    QString reason;
    QVERIFY2(project.parse(QStringLiteral("p f2 w2000 h1000 v360\n"
                                          "i w400 h300 f0 v52.6 y0 p0 r0 n\"a.jpg\"\n"
                                          "i w400 h300 %1 n\"b.jpg\"\n%2\n")
                               .arg(second, point),
                 &reason),
        qPrintable(reason));
    QCOMPARE(project.controlPoints().size(), 1);
    bool ok = false;
    const double found = project.pointError(project.controlPoints().first(), &ok);
    QCOMPARE(ok, error >= 0);
    if (ok)
        QVERIFY2(std::fabs(found - error) < 0.02, qPrintable(QString::number(found)));
}

void tst_PtoProject::namesFromTheProjectFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::newRow("relative") << "photos/a.jpg" << "/shoot/folder/photos/a.jpg";
    QTest::newRow("up a folder") << "../g1/a.jpg" << "/shoot/g1/a.jpg";
    QTest::newRow("absolute") << "/elsewhere/a.jpg" << "/elsewhere/a.jpg";
    // Not one of Qt's resources: a file whose name starts with a colon.
    QTest::newRow("leading colon") << ":../g1/a.jpg" << "/shoot/folder/:../g1/a.jpg";
    QTest::newRow("colon alone") << ":a.jpg" << "/shoot/folder/:a.jpg";
}

void tst_PtoProject::namesFromTheProjectFolder()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    QCOMPARE(PtoProject::inFolder(QStringLiteral("/shoot/folder"), name), path);
    PtoProject project;
    QString error;
    QVERIFY2(project.parse(QStringLiteral("p f2 w400 h200 v360 n\"TIFF_m\"\n"
                                          "i w400 h300 f0 v50 r0 p0 y0 n\"%1\"\n")
                               .arg(name),
                 &error),
        qPrintable(error));
    project.makeImageNamesAbsolute(QStringLiteral("/shoot/folder"));
    QCOMPARE(project.imageName(0), path);
    PtoProject reread;
    QVERIFY2(reread.parse(project.text(), &error), qPrintable(error));
    QCOMPARE(reread.imageName(0), path);
}

QTEST_MAIN(tst_PtoProject)
#include "tst_PtoProject.moc"
