// The panohead command line: every error of "import" and "stitch" with its
// one-line message and exit code, an import per head, and the stitch's
// checks of each step, driven through stand-ins for Hugin's programs that
// misbehave one at a time.
#include "CommandLine.h"
#include "DescriptionJson.h"
#include "StandInTools.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#include <signal.h>
#include <thread>
#include <unistd.h>

namespace {

struct Outcome
{
    int code = -1;
    QString out;
    QString err;
};

Outcome command(const QStringList& arguments)
{
    Outcome o;
    QTextStream out(&o.out), err(&o.err);
    Console console { out, err, false };
    o.code = CommandLine::run(arguments, console);
    out.flush();
    err.flush();
    return o;
}

QString importUsage(const QString& message)
{
    return QStringLiteral("panohead import: %1 (see panohead import --help)\n").arg(message);
}

QString importFailure(const QString& message)
{
    return QStringLiteral("panohead import: %1\n").arg(message);
}

int imageLines(const QString& project)
{
    QFile file(project);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    int count = 0;
    for (const QByteArray& line : file.readAll().split('\n'))
        count += line.startsWith("i ") ? 1 : 0;
    return count;
}

} // namespace

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void help();
    void importErrors_data();
    void importErrors();
    void importWrites_data();
    void importWrites();
    void importCannotWrite();
    void stitchUsage_data();
    void stitchUsage();
    void stitchMissingFiles();
    void stitchSteps_data();
    void stitchSteps();
    void stitchWithoutDetection();
    void stitchCpfindOption_data();
    void stitchCpfindOption();
    void stitchStoppedByInterrupt();
    void stitchCountsPicturesOnATerminal();

private:
    QString data(const QString& name) const
    {
        return QFINDTESTDATA(QStringLiteral("data/") + name);
    }
    QString path(const QString& name) const { return m_dir.filePath(name); }
    bool makeTools(const QString& folder, const QMap<QString, QString>& changes);

    QTemporaryDir m_dir;
    int m_toolSets = 0;
};

void tst_CommandLine::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    const struct
    {
        const char* folder;
        int count;
    } folders[] = { { "photos", 4 }, { "three", 3 }, { "five", 5 } };
    for (const auto& f : folders) {
        QVERIFY(QDir().mkpath(path(QLatin1String(f.folder))));
        for (int i = 1; i <= f.count; ++i)
            QVERIFY(picture.save(
                path(QStringLiteral("%1/P%2.jpg").arg(QLatin1String(f.folder)).arg(i)), "JPEG"));
    }
    QVERIFY(QDir().mkpath(path(QStringLiteral("empty"))));
    QFile note(path(QStringLiteral("empty/notes.txt")));
    QVERIFY(note.open(QIODevice::WriteOnly));
    note.write("no pictures here");
    note.close();
    QVERIFY(QDir().mkpath(path(QStringLiteral("bad"))));
    QVERIFY(picture.save(path(QStringLiteral("bad/good.jpg")), "JPEG"));
    for (const char* name : { "bad/bad.jpg", "bad/worse.jpg" }) {
        QFile file(path(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("not a picture");
    }
}

bool tst_CommandLine::makeTools(const QString& folder, const QMap<QString, QString>& changes)
{
    return StandInTools::make(folder, changes);
}

void tst_CommandLine::help()
{
    Outcome o = command({ QStringLiteral("import"), QStringLiteral("--help") });
    QCOMPARE(o.code, 0);
    QVERIFY(o.out.startsWith(QStringLiteral("Usage: panohead import <head>")));
    QVERIFY(o.err.isEmpty());
    o = command({ QStringLiteral("import"), QStringLiteral("gigapan"), QStringLiteral("-h") });
    QCOMPARE(o.code, 0);
    QVERIFY(o.out.startsWith(QStringLiteral("Usage: panohead import")));
    o = command({ QStringLiteral("stitch"), QStringLiteral("--help") });
    QCOMPARE(o.code, 0);
    QVERIFY(o.out.startsWith(QStringLiteral("Usage: panohead stitch")));
    // The 8-bit panorama is blended by verdandi, the HDR one by enblend.
    const QString oneLine = o.out.simplified();
    QVERIFY2(oneLine.contains(QStringLiteral("verdandi blends the stacks into the 8-bit panorama")),
        qPrintable(o.out));
    QVERIFY2(oneLine.contains(QStringLiteral("enblend blends the stacks into an OpenEXR")),
        qPrintable(o.out));
    o = command({ QStringLiteral("frob") });
    QCOMPARE(o.code, 2);
    QCOMPARE(o.err,
        QStringLiteral("panohead: unknown command \"frob\"; the commands are import, stitch "
                       "and batch (see panohead --help)\n"));
}

void tst_CommandLine::importErrors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");
    const QString photos = path(QStringLiteral("photos"));
    const QString three = path(QStringLiteral("three"));
    const QString threeShots = data(QStringLiteral("three-shots.xml"));
    const QString i = QStringLiteral("import");
    const QString papy = QStringLiteral("papywizard");
    const QString giga = QStringLiteral("gigapan");
    const QString focal = QStringLiteral("--focal");

    QTest::newRow("no head") << QStringList { i } << 2
                             << importUsage(
                                    "name the head: papywizard, vrdrive2, clauss or gigapan");
    QTest::newRow("unknown head") << QStringList {
        i, QStringLiteral("merlin")
    } << 2 << importUsage("unknown head \"merlin\": papywizard, vrdrive2, clauss or gigapan");
    QTest::newRow("no record") << QStringList { i, papy } << 2
                               << importUsage("papywizard: give the record file, then the "
                                              "photographs");
    QTest::newRow("no photographs") << QStringList { i, papy, threeShots } << 2
                                    << importUsage("give the photographs (files or folders)");
    QTest::newRow("option of another head") << QStringList {
        i, papy, QStringLiteral("--rows"), QStringLiteral("2"), threeShots, photos
    } << 2 << importUsage("option --rows does not apply to papywizard");
    QTest::newRow("clauss has no stack linking")
        << QStringList { i, QStringLiteral("clauss"), QStringLiteral("--stack-linking"),
               QStringLiteral("hard"), data(QStringLiteral("two-shots.txt")), photos }
        << 2 << importUsage("option --stack-linking does not apply to clauss");
    QTest::newRow("focal not a number") << QStringList { i, giga, focal, QStringLiteral("abc"),
        photos } << 2 << importUsage("--focal is a length from 1 to 10000 mm or \"images\"");
    QTest::newRow("record focal without a record")
        << QStringList { i, giga, focal, QStringLiteral("record"), photos } << 2
        << importUsage("--focal is a length from 1 to 10000 mm or \"images\"");
    QTest::newRow("focal out of range")
        << QStringList { i, papy, focal, QStringLiteral("0.5"), threeShots, three } << 2
        << importUsage("--focal is a length from 1 to 10000 mm, \"images\" or \"record\"");
    QTest::newRow("unknown lens") << QStringList { i, giga, QStringLiteral("--lens"),
        QStringLiteral("tele"), photos }
                                  << 2 << importUsage("--lens is standard, fisheye or images");
    QTest::newRow("all levels with hard links")
        << QStringList { i, papy, QStringLiteral("--level-linking"), QStringLiteral("all"),
               QStringLiteral("--stack-linking"), QStringLiteral("hard"), threeShots, three }
        << 2 << importUsage("--level-linking all needs --stack-linking points");
    QTest::newRow("overlap out of range")
        << QStringList { i, giga, QStringLiteral("--overlap"), QStringLiteral("200"), photos } << 2
        << importUsage("--overlap is a percentage from 5 to 100");
    QTest::newRow("rotation not a quarter turn") << QStringList {
        i, papy, QStringLiteral("--rotate"), QStringLiteral("45"), threeShots, three
    } << 2 << importUsage("--rotate is a multiple of 90 degrees");
    QTest::newRow("unknown order")
        << QStringList { i, giga, QStringLiteral("--order"), QStringLiteral("7"), photos } << 2
        << importUsage(
               "--order is columns, rows-down, rows-up, columns-left, serpentine or 0 to 4");
    QTest::newRow("unknown option") << QStringList { i, giga, QStringLiteral("--frobnicate"),
        photos } << 2 << importUsage("Unknown option 'frobnicate'.");
    QTest::newRow("tools without stitch") << QStringList { i, giga, QStringLiteral("--tools"),
        photos, photos } << 2 << importUsage("--tools goes with --stitch");

    QTest::newRow("missing record")
        << QStringList { i, papy, path(QStringLiteral("none.xml")), photos } << 1
        << importFailure(QStringLiteral("cannot read the record %1: no such file")
                             .arg(path(QStringLiteral("none.xml"))));
    QTest::newRow("malformed record")
        << QStringList { i, papy, data(QStringLiteral("broken.xml")), photos } << 1
        << importFailure(QStringLiteral("cannot read the record %1: not a readable XML record")
                             .arg(data(QStringLiteral("broken.xml"))));
    QTest::newRow("malformed preset")
        << QStringList { i, QStringLiteral("vrdrive2"), data(QStringLiteral("broken.xml")), photos }
        << 1
        << importFailure(QStringLiteral("cannot read the record %1: not a readable XML record")
                             .arg(data(QStringLiteral("broken.xml"))));
    QTest::newRow("script with a bad angle")
        << QStringList { i, QStringLiteral("clauss"), data(QStringLiteral("bad-angle.txt")),
               photos }
        << 1
        << importFailure(QStringLiteral("cannot read the record %1: not a readable shooting "
                                        "script (an angle that is not a number?)")
                             .arg(data(QStringLiteral("bad-angle.txt"))));
    QTest::newRow("more photographs than shots") << QStringList { i, papy, threeShots,
        photos } << 1 << importFailure("the record holds 3 shots but 4 photographs were given");
    QTest::newRow("fewer photographs than shots")
        << QStringList { i, papy, threeShots, path(QStringLiteral("photos/P1.jpg")) } << 1
        << importFailure("the record holds 3 shots but 1 photograph was given");
    QTest::newRow("script and photographs disagree") << QStringList {
        i, QStringLiteral("clauss"), data(QStringLiteral("two-shots.txt")), photos
    } << 1 << importFailure("the record holds 2 shots but 4 photographs were given");
    QTest::newRow("not a multiple of the bracketing")
        << QStringList { i, papy, data(QStringLiteral("four-shots-bracket3.xml")), photos } << 1
        << importFailure("the number of photographs (4) is not a multiple of the bracketing (3)");
    QTest::newRow("grid not a multiple of the bracketing")
        << QStringList { i, giga, QStringLiteral("--bracket"), QStringLiteral("2"),
               path(QStringLiteral("five")) }
        << 1
        << importFailure("the number of photographs (5) is not a multiple of the bracketing (2)");
    QTest::newRow("grid of too many rows")
        << QStringList { i, giga, QStringLiteral("--rows"), QStringLiteral("5"), photos } << 1
        << importFailure("5 rows of 1 photograph need at least 5 after the 0 skipped; 4 given");
    QTest::newRow("every photograph skipped")
        << QStringList { i, giga, QStringLiteral("--skip"), QStringLiteral("4"), photos } << 1
        << importFailure("all 4 photographs are skipped (--skip 4)");
    QTest::newRow("unreadable photographs")
        << QStringList { i, giga, focal, QStringLiteral("35"), path(QStringLiteral("bad")) } << 1
        << importFailure("cannot read 2 photographs: bad.jpg, worse.jpg");
    QTest::newRow("no focal length in the photographs") << QStringList { i, giga,
        photos } << 1 << importFailure("no focal length: the photographs give none; use --focal");
    QTest::newRow("no focal length anywhere")
        << QStringList { i, papy, threeShots, three } << 1
        << importFailure("no focal length: neither the photographs nor the record give one; use "
                         "--focal");
    QTest::newRow("record without focal length")
        << QStringList { i, papy, focal, QStringLiteral("record"), threeShots, three } << 1
        << importFailure("the record gives no focal length; use --focal");
    QTest::newRow("photographs without focal length") << QStringList { i, papy, focal,
        QStringLiteral("images"), data(QStringLiteral("two-by-two-bracket2.xml")),
        photos } << 1 << importFailure("the photographs give no focal length; use --focal");
    QTest::newRow("folder without photographs")
        << QStringList { i, giga, path(QStringLiteral("empty")) } << 1
        << importFailure(QStringLiteral("no photographs in the folder %1")
                             .arg(path(QStringLiteral("empty"))));
    QTest::newRow("missing photograph")
        << QStringList { i, giga, path(QStringLiteral("none.jpg")) } << 1
        << importFailure(QStringLiteral("no such photograph or folder: %1")
                             .arg(path(QStringLiteral("none.jpg"))));
}

void tst_CommandLine::importErrors()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, message);
    const QString output = path(QStringLiteral("error-output"));
    arguments << QStringLiteral("--output") << output;
    const Outcome o = command(arguments);
    QCOMPARE(o.err, message);
    QCOMPARE(o.code, code);
    // A failed import leaves no project behind.
    QVERIFY(QDir(output).entryList({ QStringLiteral("*.pto") }).isEmpty());
}

void tst_CommandLine::importWrites_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("images");
    QTest::addColumn<int>("stacks");
    QTest::addColumn<int>("links");
    const QString i = QStringLiteral("import");
    QTest::newRow("papywizard") << QStringList { i, QStringLiteral("papywizard"),
        QStringLiteral("--focal"), QStringLiteral("35"), data(QStringLiteral("three-shots.xml")),
        path(QStringLiteral("three")) }
                                << "three-shots" << 3 << 3 << 1;
    QTest::newRow("vrdrive2") << QStringList { i, QStringLiteral("vrdrive2"),
        QStringLiteral("--output-mode"), QStringLiteral("hdr"),
        data(QStringLiteral("two-by-two-bracket2.xml")), path(QStringLiteral("photos")) }
                              << "two-by-two-bracket2" << 4 << 2 << 1;
    QTest::newRow("clauss") << QStringList { i, QStringLiteral("clauss"), QStringLiteral("--focal"),
        QStringLiteral("35"), data(QStringLiteral("two-shots.txt")),
        path(QStringLiteral("three/P2.jpg")), path(QStringLiteral("three/P1.jpg")) }
                            << "two-shots" << 2 << 2 << 1;
    QTest::newRow("gigapan") << QStringList { i, QStringLiteral("gigapan"),
        QStringLiteral("--focal"), QStringLiteral("35"), QStringLiteral("--rows"),
        QStringLiteral("2"), QStringLiteral("--name"), QStringLiteral("grid"),
        path(QStringLiteral("photos")) }
                             << "grid" << 4 << 4 << 6;
}

void tst_CommandLine::importWrites()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, name);
    QFETCH(int, images);
    QFETCH(int, stacks);
    QFETCH(int, links);
    const QDir output(path(QStringLiteral("import-") + QLatin1String(QTest::currentDataTag())));
    arguments << QStringLiteral("-o") << output.path();
    const Outcome o = command(arguments);
    QVERIFY2(o.code == 0, qPrintable(o.err));
    QVERIFY(o.err.isEmpty());
    const QString project = output.filePath(name + QStringLiteral(".pto"));
    QVERIFY2(o.out.contains(QStringLiteral("Hugin project:    ") + project), qPrintable(o.out));
    QCOMPARE(imageLines(project), images);
    StructuredPanoramaProperties p;
    QString error;
    QVERIFY2(DescriptionJson::read(output.filePath(name + QStringLiteral(".json")), &p, &error),
        qPrintable(error));
    QCOMPARE(p.m_stacks.size(), stacks);
    QCOMPARE(p.m_links.size(), links);
    QVERIFY(!QImage(output.filePath(name + QStringLiteral("-layout.png"))).isNull());
    if (QTest::currentDataTag() == QByteArray("vrdrive2"))
        QCOMPARE(p.m_outputMode, 3);
    if (QTest::currentDataTag() == QByteArray("clauss"))
        QVERIFY(p.m_stacks[0].first().endsWith(QStringLiteral("P1.jpg")));
}

void tst_CommandLine::importCannotWrite()
{
    // A folder cannot be made below a file.
    const QString output = path(QStringLiteral("photos/P1.jpg/out"));
    const Outcome o
        = command({ QStringLiteral("import"), QStringLiteral("gigapan"), QStringLiteral("--focal"),
            QStringLiteral("35"), path(QStringLiteral("photos")), QStringLiteral("-o"), output });
    QCOMPARE(o.code, 1);
    QCOMPARE(o.err,
        importFailure(QStringLiteral("cannot create the output folder %1: %2 is a file")
                          .arg(output, path(QStringLiteral("photos/P1.jpg")))));
}

void tst_CommandLine::stitchUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const QString s = QStringLiteral("stitch");
    QTest::newRow("no project") << QStringList { s } << "give the project (.pto)";
    QTest::newRow("two projects") << QStringList { s, QStringLiteral("a.pto"),
        QStringLiteral("b.pto") } << "give one project only";
    QTest::newRow("panorama not a tif or jpg")
        << QStringList { s, QStringLiteral("-o"), QStringLiteral("p.png"), QStringLiteral("a.pto") }
        << "the panorama is a .tif or .jpg file";
    QTest::newRow("timeout not a number") << QStringList { s, QStringLiteral("--timeout"),
        QStringLiteral("soon"), QStringLiteral("a.pto") }
                                          << "--timeout is a number of seconds from 1 to 86400";
    QTest::newRow("timeout beyond a day") << QStringList { s, QStringLiteral("--timeout"),
        QStringLiteral("4294968"), QStringLiteral("a.pto") }
                                          << "--timeout is a number of seconds from 1 to 86400";
}

void tst_CommandLine::stitchUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const Outcome o = command(arguments);
    QCOMPARE(o.code, 2);
    QCOMPARE(
        o.err, QStringLiteral("panohead stitch: %1 (see panohead stitch --help)\n").arg(message));
}

void tst_CommandLine::stitchMissingFiles()
{
    Outcome o = command({ QStringLiteral("stitch"), path(QStringLiteral("none.pto")) });
    QCOMPARE(o.code, 1);
    QCOMPARE(o.err,
        QStringLiteral("panohead stitch: cannot read the project %1: no such file\n")
            .arg(path(QStringLiteral("none.pto"))));

    const QString folder = path(QStringLiteral("no-description"));
    o = command({ QStringLiteral("import"), QStringLiteral("papywizard"), QStringLiteral("--focal"),
        QStringLiteral("35"), data(QStringLiteral("three-shots.xml")),
        path(QStringLiteral("three")), QStringLiteral("-o"), folder });
    QCOMPARE(o.code, 0);
    // A description named on purpose must be there.
    const QString description = QDir(folder).filePath(QStringLiteral("three-shots.json"));
    QVERIFY(QFile::remove(description));
    o = command({ QStringLiteral("stitch"), QStringLiteral("--description"), description,
        QDir(folder).filePath(QStringLiteral("three-shots.pto")) });
    QCOMPARE(o.code, 1);
    QCOMPARE(o.err,
        QStringLiteral("panohead stitch: cannot read %1: No such file or directory\n")
            .arg(description));

    // A description of other photographs does not fit the project.
    const QString other = path(QStringLiteral("other"));
    o = command({ QStringLiteral("import"), QStringLiteral("gigapan"), QStringLiteral("--focal"),
        QStringLiteral("35"), QStringLiteral("--name"), QStringLiteral("three-shots"),
        path(QStringLiteral("photos")), QStringLiteral("-o"), other });
    QCOMPARE(o.code, 0);
    o = command({ QStringLiteral("stitch"), QStringLiteral("--description"),
        QDir(other).filePath(QStringLiteral("three-shots.json")),
        QDir(folder).filePath(QStringLiteral("three-shots.pto")) });
    QCOMPARE(o.code, 1);
    QCOMPARE(o.err,
        QStringLiteral("panohead stitch: the description %1 (4 stacks, 4 photographs) does not "
                       "fit the project %2 (3 stacks, 3 images)\n")
            .arg(QDir(other).filePath(QStringLiteral("three-shots.json")),
                QDir(folder).filePath(QStringLiteral("three-shots.pto"))));

    const QString noTools = path(QStringLiteral("no-tools"));
    QVERIFY(QDir().mkpath(noTools));
    const QString project = path(QStringLiteral("other/three-shots.pto"));
    o = command({ QStringLiteral("stitch"), QStringLiteral("--tools"), noTools, project });
    QCOMPARE(o.code, 3);
    QCOMPARE(o.err,
        QStringLiteral("panohead stitch: Hugin's program cpfind is not found in %1 (Debian "
                       "package hugin-tools)\n")
            .arg(noTools));
}

void tst_CommandLine::stitchSteps_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("failure");
    QTest::newRow("every step fine") << QString() << QString() << QString();
    QTest::newRow("cpfind fails") << "cpfind"
                                  << "exit 3"
                                  << "step 1/7 (cpfind) failed: cpfind exit code 3";
    QTest::newRow("cpfind crashes") << "cpfind"
                                    << "kill -SEGV $$"
                                    << "step 1/7 (cpfind) failed: cpfind crashed";
    QTest::newRow("cpfind hangs") << "cpfind"
                                  << "exec sleep 20"
                                  << "step 1/7 (cpfind) failed: cpfind did not finish in time";
    QTest::newRow("cpfind writes nothing") << "cpfind"
                                           << "exit 0"
                                           << "step 1/7 (cpfind) failed: cpfind wrote no project";
    QTest::newRow("cpfind finds nothing")
        << "cpfind"
        << "cp \"$last\" \"$out\""
        << "step 1/7 (cpfind) failed: cpfind found no control points";
    QTest::newRow("cpfind loses an image")
        << "cpfind"
        << "grep -v 'P3.jpg' \"$last\" > \"$out\""
        << "step 1/7 (cpfind) failed: cpfind wrote a project of 2 images instead of 3";
    QTest::newRow("cpfind writes garbage")
        << "cpfind"
        << "echo 'i w10 h10' > \"$out\""
        << "step 1/7 (cpfind) failed: cpfind wrote a project that cannot be read: ";
    QTest::newRow("points only between unlinked stacks")
        << "cpfind"
        << "cp \"$last\" \"$out\"; echo 'c n0 N2 x1 y1 X2 Y2 t0' >> \"$out\""
        << "step 2/7 (links) failed: no control point joins two linked stacks (1 removed)";
    QTest::newRow("cpclean removes everything")
        << "cpclean"
        << "grep -v '^c ' \"$last\" > \"$out\""
        << "step 3/7 (cpclean) failed: cpclean removed every control point";
    QTest::newRow("autooptimiser loses a position")
        << "autooptimiser"
        << "sed 's/ y0 / y- /' \"$last\" > \"$out\""
        << "step 4/7 (autooptimiser) failed: autooptimiser left image 0 without a valid y (-)";
    QTest::newRow("autooptimiser chooses no size")
        << "autooptimiser"
        << "sed 's/^p .*$/p f2 v360/' \"$last\" > \"$out\""
        << "step 4/7 (autooptimiser) failed: autooptimiser chose no panorama size";
    QTest::newRow("pano_modify finds no crop")
        << "pano_modify"
        << "cp \"$last\" \"$out\""
        << "step 5/7 (pano_modify) failed: pano_modify found no crop inside the canvas";
    QTest::newRow("nona writes nothing")
        << "nona"
        << "exit 0"
        << "step 6/7 (nona) failed: nona wrote no remapped picture";
    QTest::newRow("verdandi writes nothing")
        << "verdandi"
        << "exit 0"
        << "step 7/7 (verdandi) failed: verdandi wrote no panorama";
    QTest::newRow("verdandi writes no picture")
        << "verdandi"
        << "echo garbage > \"$out\""
        << "step 7/7 (verdandi) failed: verdandi wrote a panorama of -1 × -1 instead of 100 × 50";
}

void tst_CommandLine::stitchSteps()
{
    QFETCH(QString, tool);
    QFETCH(QString, script);
    QFETCH(QString, failure);
    // Stacks 0 and 1 (yaw 0 and 40) are linked; stack 2 (yaw 160) is not.
    const QString folder = path(QStringLiteral("steps-%1").arg(++m_toolSets));
    Outcome o = command({ QStringLiteral("import"), QStringLiteral("papywizard"),
        QStringLiteral("--focal"), QStringLiteral("35"), data(QStringLiteral("three-shots.xml")),
        path(QStringLiteral("three")), QStringLiteral("-o"), folder });
    QVERIFY2(o.code == 0, qPrintable(o.err));
    const QString tools = QDir(folder).filePath(QStringLiteral("tools"));
    QMap<QString, QString> changes;
    if (!tool.isEmpty())
        changes.insert(tool, script);
    QVERIFY(makeTools(tools, changes));
    const QString project = QDir(folder).filePath(QStringLiteral("three-shots.pto"));
    o = command({ QStringLiteral("stitch"), QStringLiteral("--tools"), tools,
        QStringLiteral("--timeout"), QStringLiteral("2"), project });
    if (failure.isEmpty()) {
        QVERIFY2(o.code == 0, qPrintable(o.err));
        QVERIFY(o.err.isEmpty());
        QVERIFY2(
            o.out.contains(QStringLiteral("[7/7] verdandi: blending ... done")), qPrintable(o.out));
        QVERIFY(o.out.contains(QStringLiteral("Panorama:         %1 (100 × 50)")
                                   .arg(QDir(folder).filePath(QStringLiteral("three-shots.tif")))));
        return;
    }
    QCOMPARE(o.code, 3);
    QVERIFY2(o.err.startsWith(QStringLiteral("panohead stitch: ") + failure), qPrintable(o.err));
    QVERIFY2(o.err.endsWith(
                 QStringLiteral("; log: %1\n")
                     .arg(QDir(folder).filePath(QStringLiteral("three-shots.stitch/stitch.log")))),
        qPrintable(o.err));
    QCOMPARE(o.err.count(QLatin1Char('\n')), 1);
    QVERIFY(o.out.contains(QStringLiteral("failed\n")));
}

void tst_CommandLine::stitchWithoutDetection()
{
    const QString folder = path(QStringLiteral("recorded-only"));
    Outcome o = command({ QStringLiteral("import"), QStringLiteral("papywizard"),
        QStringLiteral("--focal"), QStringLiteral("35"), QStringLiteral("--no-auto-detection"),
        data(QStringLiteral("three-shots.xml")), path(QStringLiteral("three")),
        QStringLiteral("-o"), folder });
    QCOMPARE(o.code, 0);
    const QString tools = QDir(folder).filePath(QStringLiteral("tools"));
    // Without auto detection no point is looked for: cpfind must not run.
    QVERIFY(makeTools(tools, { { QStringLiteral("cpfind"), QStringLiteral("exit 1") } }));
    o = command({ QStringLiteral("stitch"), QStringLiteral("--tools"), tools,
        QDir(folder).filePath(QStringLiteral("three-shots.pto")) });
    QVERIFY2(o.code == 0, qPrintable(o.err));
    QVERIFY(o.out.startsWith(QStringLiteral("[1/4] autooptimiser: placing the pictures ... done")));
    QVERIFY(o.out.contains(QStringLiteral("no control points: recorded positions")));
}

void tst_CommandLine::stitchCpfindOption_data()
{
    QTest::addColumn<bool>("cpfind");
    QTest::newRow("correlation first") << false;
    QTest::newRow("--cpfind") << true;
}

void tst_CommandLine::stitchCpfindOption()
{
    QFETCH(bool, cpfind);
    const QString folder = path(QStringLiteral("cpfind-%1").arg(++m_toolSets));
    Outcome o = command({ QStringLiteral("import"), QStringLiteral("papywizard"),
        QStringLiteral("--focal"), QStringLiteral("35"), data(QStringLiteral("three-shots.xml")),
        path(QStringLiteral("three")), QStringLiteral("-o"), folder });
    QCOMPARE(o.code, 0);
    const QString tools = QDir(folder).filePath(QStringLiteral("tools"));
    QVERIFY(makeTools(tools, {}));
    QStringList arguments { QStringLiteral("stitch"), QStringLiteral("--tools"), tools };
    if (cpfind)
        arguments << QStringLiteral("--cpfind");
    o = command(arguments << QDir(folder).filePath(QStringLiteral("three-shots.pto")));
    QVERIFY2(o.code == 0, qPrintable(o.err));
    // The record's positions are used: correlation is tried first unless
    // --cpfind asks for cpfind alone. The pictures are of one colour, so
    // correlation leaves the linked pair without points and cpfind runs.
    QFile log(QDir(folder).filePath(QStringLiteral("three-shots.stitch/stitch.log")));
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QByteArray text = log.readAll();
    QCOMPARE(text.contains("$ correlation of 1 pairs of pictures"), !cpfind);
    QVERIFY(text.contains("cpfind"));
}

void tst_CommandLine::stitchStoppedByInterrupt()
{
    const QString folder = path(QStringLiteral("interrupted"));
    Outcome o = command({ QStringLiteral("import"), QStringLiteral("papywizard"),
        QStringLiteral("--focal"), QStringLiteral("35"), data(QStringLiteral("three-shots.xml")),
        path(QStringLiteral("three")), QStringLiteral("-o"), folder });
    QCOMPARE(o.code, 0);
    // cpfind says it runs, then hangs until the interrupt ends it.
    const QString started = QDir(folder).filePath(QStringLiteral("cpfind-started"));
    const QString tools = QDir(folder).filePath(QStringLiteral("tools"));
    QVERIFY(makeTools(tools,
        { { QStringLiteral("cpfind"),
            QStringLiteral("touch \"%1\"; exec sleep 30").arg(started) } }));
    // Ctrl-C, sent to the process once cpfind runs; the stitch catches it.
    std::thread interrupt([started] {
        for (int i = 0; i < 200 && !QFileInfo::exists(started); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        ::kill(::getpid(), SIGINT);
    });
    QElapsedTimer timer;
    timer.start();
    o = command({ QStringLiteral("stitch"), QStringLiteral("--tools"), tools,
        QDir(folder).filePath(QStringLiteral("three-shots.pto")) });
    interrupt.join();
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(o.code, 130);
    QCOMPARE(o.out, QStringLiteral("[1/7] cpfind: finding control points ... stopped\n"));
    QCOMPARE(o.err,
        QStringLiteral("panohead stitch: stopped at step 1/7 (cpfind); log: %1\n")
            .arg(QDir(folder).filePath(QStringLiteral("three-shots.stitch/stitch.log"))));
}

void tst_CommandLine::stitchCountsPicturesOnATerminal()
{
    const QString folder = path(QStringLiteral("terminal"));
    Outcome o = command({ QStringLiteral("import"), QStringLiteral("papywizard"),
        QStringLiteral("--focal"), QStringLiteral("35"), data(QStringLiteral("three-shots.xml")),
        path(QStringLiteral("three")), QStringLiteral("-o"), folder });
    QVERIFY2(o.code == 0, qPrintable(o.err));
    const QString tools = QDir(folder).filePath(QStringLiteral("tools"));
    QVERIFY(makeTools(tools, {}));
    const QStringList arguments = { QStringLiteral("stitch"), QStringLiteral("--tools"), tools,
        QStringLiteral("--force"), QDir(folder).filePath(QStringLiteral("three-shots.pto")) };
    // On a terminal the remapping's line counts the pictures in place.
    Outcome terminal;
    {
        QTextStream out(&terminal.out), err(&terminal.err);
        Console console { out, err, true };
        terminal.code = CommandLine::run(arguments, console);
    }
    QVERIFY2(terminal.code == 0, qPrintable(terminal.err));
    QVERIFY2(terminal.out.contains(QStringLiteral(
                 "[6/7] nona: remapping ... \r[6/7] nona: remapping 0 of 3 ... "
                 "\r[6/7] nona: remapping 1 of 3 ... \r[6/7] nona: remapping 2 of 3 ... "
                 "\r[6/7] nona: remapping 3 of 3 ... done in ")),
        qPrintable(terminal.out));
    // Into a file the step's line comes once.
    o = command(arguments);
    QVERIFY2(o.code == 0, qPrintable(o.err));
    QVERIFY2(o.out.contains(QStringLiteral("[6/7] nona: remapping ... done in ")), qPrintable(o.out));
    QVERIFY(!o.out.contains(QLatin1Char('\r')));
}

QTEST_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
