// The panohead program run as a script runs it: as a process, with no
// display, no Qt platform and no runtime folder in its environment. Every bad
// input gets one line naming the file and the reason, and the exit code of
// its kind, and leaves the output folder as it was; Ctrl-C and SIGTERM end
// a stitch and its tools; a full disk leaves the earlier outputs whole.
#include "StandInTools.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLockFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Run
{
    int code = -1;
    bool crashed = false;
    QString out;
    QString err;
};

/// The environment of a service or a script on a machine without a screen.
QProcessEnvironment headless()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name :
        { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR", "QT_LOGGING_RULES" })
        env.remove(QLatin1String(name));
    return env;
}

Run panohead(const QStringList& arguments, const QProcessEnvironment& env = headless())
{
    QProcess process;
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(ZPH_PANOHEAD), arguments);
    Run run;
    if (!process.waitForFinished(60000)) {
        process.kill();
        process.waitForFinished();
    }
    run.crashed = process.exitStatus() != QProcess::NormalExit;
    run.code = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

/// The files of a folder (hidden ones too, work folders left out) with
/// their contents' checksums.
QMap<QString, QByteArray> snapshot(const QString& folder)
{
    QMap<QString, QByteArray> files;
    for (const QFileInfo& entry : QDir(folder).entryInfoList(
             QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name)) {
        QFile file(entry.absoluteFilePath());
        QByteArray sum = "unreadable";
        if (entry.isFile() && file.open(QIODevice::ReadOnly))
            sum = QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha1).toHex();
        files.insert(entry.fileName(), sum);
    }
    return files;
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool savePictures(const QString& folder, int count, const QSize& size = QSize(64, 48))
{
    if (!QDir().mkpath(folder))
        return false;
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    for (int i = 1; i <= count; ++i) {
        if (!picture.save(QDir(folder).filePath(QStringLiteral("P%1.jpg").arg(i)), "JPEG"))
            return false;
    }
    return true;
}

/// The bytes a process has read so far (0 when it is gone).
qint64 bytesRead(qint64 pid)
{
    QFile io(QStringLiteral("/proc/%1/io").arg(pid));
    if (!io.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : io.readAll().split('\n')) {
        if (line.startsWith("rchar: "))
            return line.mid(7).toLongLong();
    }
    return 0;
}

/// A process has ended: it is gone or only a zombie waiting for its parent.
bool ended(qint64 pid)
{
    if (pid <= 0)
        return false;
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return true;
    const QByteArray text = stat.readAll();
    const int close = text.lastIndexOf(')');
    return close > 0 && text.mid(close + 2, 1) == "Z";
}

qint64 readPid(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toLongLong() : 0;
}

bool mountTmpfs(const QString& folder, const QString& options)
{
    if (::getuid() != 0)
        return false;
    return QProcess::execute(QStringLiteral("mount"),
               { QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"), options,
                   QStringLiteral("tmpfs"), folder })
        == 0;
}

void unmount(const QString& folder)
{
    QProcess::execute(QStringLiteral("umount"), { folder });
}

} // namespace

class tst_CommandLineProgram : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void noDisplayNeeded_data();
    void noDisplayNeeded();
    void presetPlatform();
    void badInput_data();
    void badInput();
    void interrupted_data();
    void interrupted();
    void interruptedImport_data();
    void interruptedImport();
    void fullDisk();
    void lockedFolder();
    void layoutPictureIsNoPhotograph();
    void projectWithoutDescription();
    void batch();

private:
    QString data(const QString& name) const
    {
        return QFINDTESTDATA(QStringLiteral("data/") + name);
    }
    QString path(const QString& name) const { return m_dir.filePath(name); }
    bool importThreeShots(const QString& folder, const QString& photos);

    QTemporaryDir m_dir;
    QStringList m_mounts;
};

bool tst_CommandLineProgram::importThreeShots(const QString& folder, const QString& photos)
{
    const Run run = panohead({ QStringLiteral("import"), QStringLiteral("papywizard"),
        QStringLiteral("--focal"), QStringLiteral("35"), data(QStringLiteral("three-shots.xml")),
        photos, QStringLiteral("-o"), folder });
    if (run.code != 0)
        qWarning("%s", qPrintable(run.err));
    return run.code == 0;
}

void tst_CommandLineProgram::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(QFileInfo(QStringLiteral(ZPH_PANOHEAD)).isExecutable());
    QVERIFY(savePictures(path(QStringLiteral("three")), 3));
    QVERIFY(savePictures(path(QStringLiteral("photos")), 4));

    // The previous outputs every row must leave as they are.
    QVERIFY(importThreeShots(path(QStringLiteral("out")), path(QStringLiteral("three"))));
    QVERIFY(writeFile(path(QStringLiteral("out/three-shots.tif")), "the previous panorama"));

    // Photograph folders of three, the third one bad.
    const struct
    {
        const char* folder;
        const char* third;
    } thirds[] = { { "zero", "empty" }, { "notimage", "text" }, { "mixed", "small" },
        { "dangling", "dangling" }, { "loop", "loop" }, { "fifo", "fifo" },
        { "unreadable", "unreadable" } };
    for (const auto& t : thirds) {
        const QDir folder(path(QLatin1String(t.folder)));
        QVERIFY(savePictures(folder.path(), 2));
        const QString third = folder.filePath(QStringLiteral("P3.jpg"));
        const QByteArray name = QFile::encodeName(third);
        const QByteArray kind(t.third);
        if (kind == "empty")
            QVERIFY(writeFile(third, QByteArray()));
        else if (kind == "text")
            QVERIFY(writeFile(third, "not a picture"));
        else if (kind == "small")
            QVERIFY(QImage(QSize(32, 24), QImage::Format_RGB32).save(third, "JPEG"));
        else if (kind == "dangling")
            QVERIFY(QFile::link(folder.filePath(QStringLiteral("gone.jpg")), third));
        else if (kind == "loop")
            QCOMPARE(::symlink("P3.jpg", name.constData()), 0);
        else if (kind == "fifo")
            QCOMPARE(::mkfifo(name.constData(), 0600), 0);
        else if (kind == "unreadable")
            QVERIFY(QFile::copy(folder.filePath(QStringLiteral("P1.jpg")), third)
                && ::chmod(name.constData(), 0) == 0);
    }
    QVERIFY(savePictures(path(QStringLiteral("newline")), 2));
    QVERIFY(QFile::copy(
        path(QStringLiteral("newline/P1.jpg")), path(QStringLiteral("newline/P\n3.jpg"))));

    // Records.
    QVERIFY(QDir().mkpath(path(QStringLiteral("records/folder.xml"))));
    QVERIFY(writeFile(path(QStringLiteral("records/empty.xml")), QByteArray()));
    QVERIFY(writeFile(path(QStringLiteral("records/binary.xml")),
        QByteArray("<?xml version=\"1.0\"?>\0\0\x01\x02<papywizard>", 30)));
    {
        QFile large(path(QStringLiteral("records/large.xml")));
        QVERIFY(large.open(QIODevice::WriteOnly));
        QVERIFY(large.resize(16 * 1024 * 1024 + 1));
    }
    QFile threeShots(data(QStringLiteral("three-shots.xml")));
    QVERIFY(threeShots.open(QIODevice::ReadOnly));
    const QByteArray record = threeShots.readAll();
    QVERIFY(
        writeFile(path(QStringLiteral("records/truncated.xml")), record.left(record.size() / 2)));
    QVERIFY(writeFile(path(QStringLiteral("records/infinite.xml")),
        QByteArray(record).replace("yaw=\"40.0\"", "yaw=\"inf\"")));
    QFile preset(data(QStringLiteral("two-by-two-bracket2.xml")));
    QVERIFY(preset.open(QIODevice::ReadOnly));
    QVERIFY(writeFile(path(QStringLiteral("records/far-focal.xml")),
        preset.readAll().replace("<focal>24.0</focal>", "<focal>1e308</focal>")));

    // Projects: one not written by the import, one whose photograph went,
    // a description of other photographs.
    QVERIFY(QDir().mkpath(path(QStringLiteral("foreign"))));
    QVERIFY(writeFile(path(QStringLiteral("foreign/foreign.pto")),
        QByteArray("# hugin project file\np f2 w100 h50 v360\ni w64 h48 f0 v50 n\"")
            + QFile::encodeName(path(QStringLiteral("three/P1.jpg"))) + "\"\n"));
    QVERIFY(savePictures(path(QStringLiteral("moved/three")), 3));
    QVERIFY(importThreeShots(path(QStringLiteral("moved")), path(QStringLiteral("moved/three"))));
    QVERIFY(QFile::remove(path(QStringLiteral("moved/three/P2.jpg"))));
    const Run other
        = panohead({ QStringLiteral("import"), QStringLiteral("gigapan"), QStringLiteral("--focal"),
            QStringLiteral("35"), QStringLiteral("--name"), QStringLiteral("three-shots"),
            path(QStringLiteral("photos")), QStringLiteral("-o"), path(QStringLiteral("other")) });
    QVERIFY2(other.code == 0, qPrintable(other.err));

    // Hugin's programs: all, none, all but the blender, and failing ones.
    QVERIFY(StandInTools::make(path(QStringLiteral("tools/good")), {}));
    QVERIFY(QDir().mkpath(path(QStringLiteral("tools/none"))));
    QVERIFY(StandInTools::make(
        path(QStringLiteral("tools/no-verdandi")), { { QStringLiteral("verdandi"), QString() } }));
    QVERIFY(StandInTools::make(path(QStringLiteral("tools/cpfind-fails")),
        { { QStringLiteral("cpfind"), QStringLiteral("exit 3") } }));
    // A blender whose log holds NUL bytes before its reason.
    QVERIFY(StandInTools::make(path(QStringLiteral("tools/verdandi-nul")),
        { { QStringLiteral("verdandi"),
            QStringLiteral("printf 'progress\\000\\000 50%%\\000\\nverdandi: cannot write the "
                           "output: disk gone\\n'; exit 1") } }));

    // A folder that cannot be written: a read-only file system where the
    // machine allows mounting one, else a folder without write permission.
    const QString readOnly = path(QStringLiteral("read-only"));
    QVERIFY(QDir().mkpath(readOnly));
    if (mountTmpfs(readOnly, QStringLiteral("ro,size=64k")))
        m_mounts << readOnly;
    else
        QCOMPARE(::chmod(QFile::encodeName(readOnly).constData(), 0555), 0);
}

void tst_CommandLineProgram::cleanupTestCase()
{
    for (const QString& mount : m_mounts)
        unmount(mount);
    ::chmod(QFile::encodeName(path(QStringLiteral("read-only"))).constData(), 0755);
}

void tst_CommandLineProgram::noDisplayNeeded_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");
    QTest::newRow("help") << QStringList { QStringLiteral("--help") } << 0
                          << "Exit code: 0 done, 1 an input is wrong" << QString();
    QTest::newRow("version") << QStringList { QStringLiteral("--version") } << 0 << "\nexiv2 "
                             << QString();
    QTest::newRow("import help") << QStringList { QStringLiteral("import"), QStringLiteral("-h") }
                                 << 0 << "130 stopped by Ctrl-C" << QString();
    QTest::newRow("stitch help") << QStringList { QStringLiteral("stitch"),
        QStringLiteral("--help") }
                                 << 0 << "143 stopped by SIGTERM" << QString();
    QTest::newRow("mistyped command") << QStringList { QStringLiteral("help") } << 2 << QString()
                                      << "panohead: unknown command \"help\"; the commands are "
                                         "import, stitch and batch (see panohead --help)\n";
    QTest::newRow("unknown option") << QStringList { QStringLiteral("--frob") } << 2 << QString()
                                    << "panohead: Unknown option 'frob'. (see panohead --help)\n";
    QTest::newRow("the wizard") << QStringList {} << 1 << QString()
                                << "panohead: the import wizard needs a display: no display "
                                   "(neither DISPLAY nor WAYLAND_DISPLAY is set); the commands "
                                   "need none (see panohead --help)\n";
}

void tst_CommandLineProgram::noDisplayNeeded()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, out);
    QFETCH(QString, err);
    const Run run = panohead(arguments);
    QVERIFY(!run.crashed);
    QCOMPARE(run.code, code);
    QCOMPARE(run.err, err);
    QVERIFY2(run.out.contains(out), qPrintable(run.out));
    if (QTest::currentDataTag() == QByteArray("version")) {
        QVERIFY2(run.out.startsWith(QStringLiteral("panohead ")), qPrintable(run.out));
        QVERIFY(run.out.contains(QStringLiteral("\nQt ")));
        for (const char* tool : { "cpfind", "autooptimiser", "nona", "enblend" })
            QVERIFY2(run.out.contains(QLatin1String(tool)), tool);
        // One line per program: its name, spaces, then where it is or why not.
        const QStringList lines = run.out.split(QLatin1Char('\n'));
        const int first = lines.indexOf(QStringLiteral("Hugin's programs:")) + 1;
        QVERIFY(first > 0);
        QVERIFY(lines.size() > first + 8);
        const QRegularExpression toolLine(QStringLiteral("^  [a-z_]+ +(/|not found)"));
        for (int i = first; i < lines.size() && !lines.at(i).isEmpty(); ++i)
            QVERIFY2(toolLine.match(lines.at(i)).hasMatch(), qPrintable(lines.at(i)));
    }
}

void tst_CommandLineProgram::presetPlatform()
{
    // A platform that needs a display it does not have must not stop the
    // commands; they draw offscreen.
    for (const char* platform : { "xcb", "wayland" }) {
        QProcessEnvironment env = headless();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QLatin1String(platform));
        const QString folder = path(QStringLiteral("platform-") + QLatin1String(platform));
        const Run run = panohead(
            { QStringLiteral("import"), QStringLiteral("papywizard"), QStringLiteral("--focal"),
                QStringLiteral("35"), data(QStringLiteral("three-shots.xml")),
                path(QStringLiteral("three")), QStringLiteral("-o"), folder },
            env);
        QVERIFY(!run.crashed);
        QVERIFY2(run.code == 0, qPrintable(run.err));
        QCOMPARE(run.err, QString());
        QVERIFY(!QImage(QDir(folder).filePath(QStringLiteral("three-shots-layout.png"))).isNull());
        const Run stitch = panohead({ QStringLiteral("stitch"), QStringLiteral("--tools"),
                                        path(QStringLiteral("tools/good")),
                                        QDir(folder).filePath(QStringLiteral("three-shots.pto")) },
            env);
        QVERIFY2(stitch.code == 0, qPrintable(stitch.err));
        QCOMPARE(stitch.err, QString());
    }
}

void tst_CommandLineProgram::badInput_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("watched");
    const QString out = path(QStringLiteral("out"));
    const QString project = path(QStringLiteral("out/three-shots.pto"));
    const QString i = QStringLiteral("import");
    const QString s = QStringLiteral("stitch");
    const QString papy = QStringLiteral("papywizard");
    const QString focal = QStringLiteral("--focal");
    const QString mm = QStringLiteral("35");
    const QString o = QStringLiteral("-o");
    const QString force = QStringLiteral("--force");
    const QString tools = QStringLiteral("--tools");
    const QString three = path(QStringLiteral("three"));
    const QString shots = data(QStringLiteral("three-shots.xml"));
    const auto record = [this](const char* name) {
        return path(QStringLiteral("records/") + QLatin1String(name));
    };
    const auto photos = [this](const char* folder) { return path(QLatin1String(folder)); };
    const auto importWith = [&](const QString& rec, const QString& pictures) {
        return QStringList { i, papy, focal, mm, force, rec, pictures, o, out };
    };

    // The record.
    QTest::newRow("record is a folder")
        << importWith(record("folder.xml"), three) << 1
        << QStringLiteral("the record %1 is a folder, not a file").arg(record("folder.xml")) << out;
    QTest::newRow("record is empty")
        << importWith(record("empty.xml"), three) << 1
        << QStringLiteral("the record %1 is empty").arg(record("empty.xml")) << out;
    QTest::newRow("record is binary")
        << importWith(record("binary.xml"), three) << 1
        << QStringLiteral("the record %1 holds binary data").arg(record("binary.xml")) << out;
    QTest::newRow("record is too large")
        << importWith(record("large.xml"), three) << 1
        << QStringLiteral("the record %1 is larger than 16 MiB").arg(record("large.xml")) << out;
    QTest::newRow("record is truncated")
        << importWith(record("truncated.xml"), three) << 1
        << QStringLiteral("cannot read the record %1: not a readable XML record")
               .arg(record("truncated.xml"))
        << out;
    QTest::newRow("record of another head")
        << importWith(data(QStringLiteral("two-shots.txt")), three) << 1
        << QStringLiteral("the record %1 is a Clauss shooting script, not an XML record")
               .arg(data(QStringLiteral("two-shots.txt")))
        << out;
    QTest::newRow("script of another head")
        << QStringList { i, QStringLiteral("clauss"), focal, mm, force, shots, three, o, out } << 1
        << QStringLiteral("the record %1 is an XML record, not a Clauss shooting script").arg(shots)
        << out;
    QTest::newRow("angle not finite")
        << importWith(record("infinite.xml"), three) << 1
        << QStringLiteral("gives stack 1 an angle that is not a finite number") << out;
    QTest::newRow("record focal far too long") << QStringList { i, papy, focal,
        QStringLiteral("record"), force, record("far-focal.xml"), photos("photos"), o,
        out } << 1 << QStringLiteral("the record's focal length 1e+308 mm is outside 1 to 10000 mm")
                                               << out;

    // The photographs.
    QTest::newRow("photograph missing")
        << importWith(shots, path(QStringLiteral("none.jpg"))) << 1
        << QStringLiteral("no such photograph or folder: %1").arg(path(QStringLiteral("none.jpg")))
        << out;
    QTest::newRow("photograph of zero bytes")
        << importWith(shots, photos("zero")) << 1
        << QStringLiteral("cannot use 1 file in the folder %1: P3.jpg (empty (0 bytes))")
               .arg(photos("zero"))
        << out;
    QTest::newRow("photograph not a picture")
        << importWith(shots, photos("notimage")) << 1
        << QStringLiteral("cannot read 1 photograph: P3.jpg") << out;
    QTest::newRow("photographs of mixed sizes")
        << importWith(shots, photos("mixed")) << 1
        << QStringLiteral("the photographs are not all of one size: P1.jpg is 64 × 48 pixels, "
                          "P3.jpg is 32 × 24")
        << out;
    QTest::newRow("dangling link") << importWith(shots, photos("dangling")) << 1
                                   << QStringLiteral("P3.jpg (a dangling link)") << out;
    QTest::newRow("link loop") << importWith(shots, photos("loop")) << 1
                               << QStringLiteral("P3.jpg (a link loop)") << out;
    QTest::newRow("FIFO") << importWith(shots, photos("fifo")) << 1
                          << QStringLiteral("P3.jpg (not a regular file (a FIFO))") << out;
    if (::getuid() != 0)
        QTest::newRow("unreadable photograph")
            << importWith(shots, photos("unreadable")) << 1
            << QStringLiteral("P3.jpg (unreadable: Permission denied)") << out;
    QTest::newRow("line break in a name")
        << importWith(shots, photos("newline")) << 1
        << QStringLiteral("P\\n3.jpg (its name holds a line break or another control character")
        << out;

    // The outputs.
    QTest::newRow("outputs exist")
        << QStringList { i, papy, focal, mm, shots, three, o, out } << 1
        << QStringLiteral("%1 exists; give --force to replace it").arg(project) << out;
    QTest::newRow("output folder is a file") << importWith(shots, three).mid(0, 7)
            + QStringList { o, path(QStringLiteral("three/P1.jpg")) }
                                             << 1
                                             << QStringLiteral("the output folder %1 is a file")
                                                    .arg(path(QStringLiteral("three/P1.jpg")))
                                             << three;
    QTest::newRow("output folder read-only")
        << importWith(shots, three).mid(0, 7) + QStringList { o, path(QStringLiteral("read-only")) }
        << 1 << QStringLiteral("the output folder %1 is").arg(path(QStringLiteral("read-only")))
        << path(QStringLiteral("read-only"));
    QTest::newRow("panorama exists")
        << QStringList { s, tools, path(QStringLiteral("tools/good")), project } << 1
        << QStringLiteral("%1 exists; give --force to replace it")
               .arg(path(QStringLiteral("out/three-shots.tif")))
        << out;
    QTest::newRow("panorama replaces a photograph")
        << QStringList { s, force, o, path(QStringLiteral("three/P1.jpg")), project } << 2
        << QStringLiteral("the panorama %1 would replace the input")
               .arg(path(QStringLiteral("three/P1.jpg")))
        << three;
    QTest::newRow("panorama into a missing folder")
        << QStringList { s, force, o, path(QStringLiteral("nowhere/pano.tif")), project } << 1
        << QStringLiteral("the panorama's folder %1 does not exist")
               .arg(path(QStringLiteral("nowhere")))
        << out;

    // The project and Hugin's programs.
    QTest::newRow("project not made by the import")
        << QStringList { s, force, path(QStringLiteral("foreign/foreign.pto")) } << 1
        << QStringLiteral("was not written by panohead import") << path(QStringLiteral("foreign"));
    QTest::newRow("description does not fit")
        << QStringList { s, force, QStringLiteral("--description"),
               path(QStringLiteral("other/three-shots.json")), project }
        << 1 << QStringLiteral("(4 stacks, 4 photographs) does not fit the project") << out;
    QTest::newRow("named description missing")
        << QStringList { s, force, QStringLiteral("--description"),
               path(QStringLiteral("none.json")), project }
        << 1
        << QStringLiteral("cannot read %1: No such file or directory")
               .arg(path(QStringLiteral("none.json")))
        << out;
    QTest::newRow("photograph gone at stitch time")
        << QStringList { s, force, path(QStringLiteral("moved/three-shots.pto")) } << 1
        << QStringLiteral("the project's photograph %1 cannot be used: no such file")
               .arg(path(QStringLiteral("moved/three/P2.jpg")))
        << path(QStringLiteral("moved"));
    QTest::newRow("no Hugin tools")
        << QStringList { s, force, tools, path(QStringLiteral("tools/none")), project } << 3
        << QStringLiteral("Hugin's program cpfind is not found in %1 (Debian package "
                          "hugin-tools)")
               .arg(path(QStringLiteral("tools/none")))
        << out;
    QTest::newRow("no blender")
        << QStringList { s, force, tools, path(QStringLiteral("tools/no-verdandi")), project } << 3
        << QStringLiteral("Hugin's program verdandi is not found in %1 (Debian package "
                          "hugin-tools)")
               .arg(path(QStringLiteral("tools/no-verdandi")))
        << out;
    QTest::newRow("a tool fails") << QStringList { s, force, tools,
        path(QStringLiteral("tools/cpfind-fails")),
        project } << 3 << QStringLiteral("step 1/7 (cpfind) failed: cpfind exit code 3")
                                  << out;
    QTest::newRow("a tool's log holds NUL bytes")
        << QStringList { s, force, tools, path(QStringLiteral("tools/verdandi-nul")), project } << 3
        << QStringLiteral("| progress 50% | verdandi: cannot write the output: disk gone; log: ")
        << out;

    // The command line.
    QTest::newRow("timeout beyond a day")
        << QStringList { s, QStringLiteral("--timeout"), QStringLiteral("4294968"), project } << 2
        << QStringLiteral("--timeout is a number of seconds from 1 to 86400") << out;
    QTest::newRow("focal beyond the forms")
        << QStringList { i, papy, focal, QStringLiteral("1e308"), shots, three, o, out } << 2
        << QStringLiteral("--focal is a length from 1 to 10000 mm") << out;
}

void tst_CommandLineProgram::badInput()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, message);
    QFETCH(QString, watched);
    const QMap<QString, QByteArray> before = snapshot(watched);
    QVERIFY(!before.isEmpty() || watched.endsWith(QLatin1String("read-only")));
    const Run run = panohead(arguments);
    QVERIFY(!run.crashed);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QCOMPARE(run.err.count(QLatin1Char('\n')), 1);
    QVERIFY(run.err.endsWith(QLatin1Char('\n')));
    QCOMPARE(run.code, code);
    QCOMPARE(snapshot(watched), before);
}

void tst_CommandLineProgram::interrupted_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<int>("code");
    QTest::newRow("Ctrl-C while cpfind runs") << int(SIGINT) << "cpfind" << 130;
    QTest::newRow("SIGTERM while verdandi writes") << int(SIGTERM) << "verdandi" << 143;
}

void tst_CommandLineProgram::interrupted()
{
    QFETCH(int, signal);
    QFETCH(QString, tool);
    QFETCH(int, code);
    const QDir folder(path(QStringLiteral("stopped-") + tool));
    QVERIFY(importThreeShots(folder.path(), path(QStringLiteral("three"))));
    const QString panorama = folder.filePath(QStringLiteral("three-shots.tif"));
    QVERIFY(writeFile(panorama, "the previous panorama"));
    const QMap<QString, QByteArray> before = snapshot(folder.path());

    // The tool writes part of its output, starts a child and waits for it.
    const QString toolPid = folder.filePath(QStringLiteral("tool.pid"));
    const QString childPid = folder.filePath(QStringLiteral("child.pid"));
    const QString tools = folder.filePath(QStringLiteral("tools"));
    QVERIFY(StandInTools::make(tools,
        { { tool,
            QStringLiteral("printf partial > \"$out\"; sleep 30 & echo $! > \"%1\"; "
                           "echo $$ > \"%2\"; wait")
                .arg(childPid, toolPid) } }));
    QProcess process;
    process.setProcessEnvironment(headless());
    process.start(QStringLiteral(ZPH_PANOHEAD),
        { QStringLiteral("stitch"), QStringLiteral("--force"), QStringLiteral("--tools"), tools,
            folder.filePath(QStringLiteral("three-shots.pto")) });
    QVERIFY(process.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(readPid(toolPid) > 0, 10000);
    const qint64 toolProcess = readPid(toolPid);
    const qint64 child = readPid(childPid);
    QVERIFY(child > 0);
    QVERIFY(!ended(toolProcess));

    QElapsedTimer timer;
    timer.start();
    QCOMPARE(::kill(pid_t(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished(5000));
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), code);
    const QString err = QString::fromUtf8(process.readAllStandardError());
    QVERIFY2(err.startsWith(QStringLiteral("panohead stitch: stopped")), qPrintable(err));
    QCOMPARE(err.count(QLatin1Char('\n')), 1);

    // The tool and its child are gone; nothing half written is left and the
    // previous panorama is whole.
    QTRY_VERIFY_WITH_TIMEOUT(ended(toolProcess) && ended(child), 1000);
    QVERIFY(QFile::remove(toolPid) && QFile::remove(childPid));
    QCOMPARE(snapshot(folder.path()), before);
    const QDir work(folder.filePath(QStringLiteral("three-shots.stitch")));
    if (tool == QLatin1String("cpfind"))
        QVERIFY(!work.exists(QStringLiteral("01-cpfind.pto")));

    // The next run on the same project works.
    QVERIFY(StandInTools::make(tools, {}));
    const Run again = panohead({ QStringLiteral("stitch"), QStringLiteral("--force"),
        QStringLiteral("--tools"), tools, folder.filePath(QStringLiteral("three-shots.pto")) });
    QVERIFY2(again.code == 0, qPrintable(again.err));
    QVERIFY(snapshot(folder.path()).value(QStringLiteral("three-shots.tif"))
        != before.value(QStringLiteral("three-shots.tif")));
}

void tst_CommandLineProgram::interruptedImport_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("code");
    QTest::newRow("Ctrl-C while photographs are read") << int(SIGINT) << 130;
    QTest::newRow("SIGTERM while photographs are read") << int(SIGTERM) << 143;
}

void tst_CommandLineProgram::interruptedImport()
{
    QFETCH(int, signal);
    QFETCH(int, code);
    // Thousands of photographs (links to one), so that reading them outlasts
    // the signal by far.
    const QDir many(path(QStringLiteral("many")));
    if (!many.exists()) {
        QVERIFY(savePictures(many.path(), 1, QSize(640, 480)));
        const QByteArray first = QFile::encodeName(many.filePath(QStringLiteral("P1.jpg")));
        for (int i = 2; i <= 4000; ++i) {
            const QByteArray name
                = QFile::encodeName(many.filePath(QStringLiteral("P%1.jpg").arg(i)));
            QCOMPARE(::link(first.constData(), name.constData()), 0);
        }
    }
    const QString folder = path(QStringLiteral("stopped-import-%1").arg(code));
    QVERIFY(importThreeShots(folder, path(QStringLiteral("three"))));
    const QMap<QString, QByteArray> before = snapshot(folder);
    const QStringList foldersBefore = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);

    QProcess process;
    process.setProcessEnvironment(headless());
    process.start(QStringLiteral(ZPH_PANOHEAD),
        { QStringLiteral("import"), QStringLiteral("gigapan"), QStringLiteral("--force"),
            QStringLiteral("--focal"), QStringLiteral("35"), QStringLiteral("--name"),
            QStringLiteral("three-shots"), many.path(), QStringLiteral("-o"), folder });
    QVERIFY(process.waitForStarted());
    const qint64 pid = process.processId();
    // A few hundred photographs read of the 4000: the reading has begun.
    const qint64 photoBytes = QFileInfo(many.filePath(QStringLiteral("P1.jpg"))).size();
    QTRY_VERIFY_WITH_TIMEOUT(bytesRead(pid) > 300 * photoBytes, 10000);
    QCOMPARE(process.state(), QProcess::Running);

    QElapsedTimer timer;
    timer.start();
    QCOMPARE(::kill(pid_t(pid), signal), 0);
    QVERIFY(process.waitForFinished(5000));
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), code);
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
        QStringLiteral("panohead import: stopped\n"));
    QVERIFY(process.readAllStandardOutput().isEmpty());

    // The earlier import's files are whole and nothing was added beside them.
    QCOMPARE(snapshot(folder), before);
    QCOMPARE(QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot), foldersBefore);
}

void tst_CommandLineProgram::fullDisk()
{
    const QString folder = path(QStringLiteral("small-disk"));
    QVERIFY(QDir().mkpath(folder));
    const bool mounted = mountTmpfs(folder, QStringLiteral("size=256k"));
    if (mounted)
        m_mounts << folder;
    QVERIFY(importThreeShots(folder, path(QStringLiteral("three"))));
    const QMap<QString, QByteArray> before = snapshot(folder);
    QCOMPARE(before.size(), 3);
    if (mounted) {
        // Fill the disk but for a few blocks: the project fits, the rest does not.
        QFile filler(QDir(folder).filePath(QStringLiteral("filler")));
        QVERIFY(filler.open(QIODevice::WriteOnly));
        const QByteArray block(4096, 'x');
        while (filler.write(block) == block.size() && filler.flush()) { }
        filler.close();
        QVERIFY(filler.resize(qMax<qint64>(0, filler.size() - 3 * 4096)));
    } else {
        // Without a small disk of its own, a folder that refuses new files
        // stands in for a full one.
        QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0555), 0);
    }
    const QMap<QString, QByteArray> full = snapshot(folder);
    const Run run = panohead({ QStringLiteral("import"), QStringLiteral("papywizard"),
        QStringLiteral("--focal"), QStringLiteral("50"), QStringLiteral("--force"),
        data(QStringLiteral("three-shots.xml")), path(QStringLiteral("three")),
        QStringLiteral("-o"), folder });
    ::chmod(QFile::encodeName(folder).constData(), 0755);
    QCOMPARE(run.code, 1);
    QVERIFY2(run.err.contains(mounted ? QStringLiteral("No space left on device")
                                      : QStringLiteral("is read-only")),
        qPrintable(run.err));
    QCOMPARE(run.err.count(QLatin1Char('\n')), 1);
    // The earlier set is whole, and nothing else was left behind.
    QCOMPARE(snapshot(folder), full);
}

void tst_CommandLineProgram::lockedFolder()
{
    const QString folder = path(QStringLiteral("locked"));
    QVERIFY(importThreeShots(folder, path(QStringLiteral("three"))));
    // Another run writes into the folder: this test holds its lock.
    QLockFile lock(QDir(folder).filePath(QStringLiteral(".panohead.lock")));
    QVERIFY(lock.tryLock(0));
    const QMap<QString, QByteArray> before = snapshot(folder);
    const QStringList import = { QStringLiteral("import"), QStringLiteral("papywizard"),
        QStringLiteral("--focal"), QStringLiteral("50"), QStringLiteral("--force"),
        data(QStringLiteral("three-shots.xml")), path(QStringLiteral("three")),
        QStringLiteral("-o"), folder };
    const Run refused = panohead(import);
    QCOMPARE(refused.code, 1);
    QCOMPARE(refused.err,
        QStringLiteral("panohead import: another run (process %1) is writing into %2; try again "
                       "when it has finished (lock file .panohead.lock)\n")
            .arg(QCoreApplication::applicationPid())
            .arg(folder));
    QCOMPARE(snapshot(folder), before);
    lock.unlock();
    const Run done = panohead(import);
    QVERIFY2(done.code == 0, qPrintable(done.err));
    QVERIFY(!QFileInfo::exists(QDir(folder).filePath(QStringLiteral(".panohead.lock"))));
}

void tst_CommandLineProgram::layoutPictureIsNoPhotograph()
{
    // Imported into the photographs' own folder, twice: the layout picture
    // the first import left there is not taken for a photograph.
    const QString folder = path(QStringLiteral("own-folder"));
    QVERIFY(savePictures(folder, 4));
    const QStringList import = { QStringLiteral("import"), QStringLiteral("gigapan"),
        QStringLiteral("--focal"), QStringLiteral("35"), QStringLiteral("--force"), folder,
        QStringLiteral("-o"), folder };
    for (int run = 0; run < 2; ++run) {
        const Run r = panohead(import);
        QVERIFY2(r.code == 0, qPrintable(r.err));
        QVERIFY2(r.out.contains(QStringLiteral("4 stacks, 4 photographs,")), qPrintable(r.out));
        QVERIFY(QFileInfo(QDir(folder).filePath(QStringLiteral("panorama-layout.png"))).isFile());
    }
}

void tst_CommandLineProgram::projectWithoutDescription()
{
    // Only the Hugin project kept: the stitch says once, before its steps,
    // that every pair of pictures is searched, and makes the panorama.
    const QString folder = path(QStringLiteral("lone"));
    QVERIFY(importThreeShots(folder, path(QStringLiteral("three"))));
    QVERIFY(QFile::remove(QDir(folder).filePath(QStringLiteral("three-shots.json"))));
    const QString project = QDir(folder).filePath(QStringLiteral("three-shots.pto"));
    const Run run = panohead({ QStringLiteral("stitch"), QStringLiteral("--tools"),
        path(QStringLiteral("tools/good")), project });
    QVERIFY(!run.crashed);
    QVERIFY2(run.code == 0, qPrintable(run.err));
    QCOMPARE(run.err,
        QStringLiteral(
            "panohead stitch: no description beside %1: every pair of pictures is searched\n")
            .arg(project));
    QVERIFY2(run.out.startsWith(QStringLiteral("[1/7] cpfind: ")), qPrintable(run.out));
    QVERIFY(QFileInfo(QDir(folder).filePath(QStringLiteral("three-shots.tif"))).size() > 0);
}

void tst_CommandLineProgram::batch()
{
    // Three shoots, the middle one broken: two photographs for three shots.
    const QDir shoots(path(QStringLiteral("batch")));
    const QStringList names
        = { QStringLiteral("a-good"), QStringLiteral("b-broken"), QStringLiteral("c-good") };
    for (const QString& name : names) {
        QVERIFY(savePictures(shoots.filePath(name), name == names[1] ? 2 : 3));
        QVERIFY(QFile::copy(data(QStringLiteral("three-shots.xml")),
            shoots.filePath(name + QStringLiteral("/three-shots.xml"))));
    }
    const Run run = panohead({ QStringLiteral("batch"), QStringLiteral("--stitch"),
        QStringLiteral("--tools"), path(QStringLiteral("tools/good")), shoots.path(),
        QStringLiteral("--"), QStringLiteral("--focal"), QStringLiteral("35") });
    QVERIFY(!run.crashed);
    QCOMPARE(run.code, 1);
    const QString reason
        = QStringLiteral("panohead import: the record holds 3 shots but 2 photographs were given");
    QCOMPARE(run.err, reason + QLatin1Char('\n'));
    QVERIFY2(run.out.contains(QStringLiteral("\nBatch: 2 of 3 shoots done, 1 failed\n"
                                             "shoot     result  exit  reason\n"
                                             "a-good    done    0\n"
                                             "b-broken  failed  1     ")
                 + reason + QStringLiteral("\nc-good    done    0\n")),
        qPrintable(run.out));
    for (const QString& name : { names[0], names[2] })
        QVERIFY(QFileInfo(shoots.filePath(name + QStringLiteral("/three-shots.tif"))).isFile());
    QVERIFY(!QFileInfo::exists(shoots.filePath(QStringLiteral("b-broken/three-shots.pto"))));

    // The same shoots again, from a list file: the outputs exist now.
    const QString list = path(QStringLiteral("shoots.txt"));
    QByteArray lines = "# one import per line\n";
    for (const QString& name : names)
        lines += QStringLiteral("papywizard --focal 35 \"%1/three-shots.xml\" \"%1\" -o \"%1\"\n")
                     .arg(shoots.filePath(name))
                     .toUtf8();
    QVERIFY(writeFile(list, lines));
    const Run again = panohead({ QStringLiteral("batch"), list });
    QCOMPARE(again.code, 1);
    QVERIFY2(again.out.contains(QStringLiteral("Batch: 0 of 3 shoots done, 3 failed")),
        qPrintable(again.out));
    QVERIFY2(again.err.contains(QStringLiteral("exists; give --force to replace it")),
        qPrintable(again.err));
}

QTEST_GUILESS_MAIN(tst_CommandLineProgram)
#include "tst_CommandLineProgram.moc"
