// The stitch pipeline on a worker thread, driven through stand-ins for
// Hugin's programs (shell scripts in a temporary tools folder): the progress
// callback's events, each step's failure, and cancel() and the timeout
// ending a hanging program's whole process group without leaving its
// partial output.
#include "DescriptionJson.h"
#include "PtoProject.h"
#include "StandInTools.h"
#include "StitchPipeline.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLockFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <thread>

namespace {

using StepEvent = StitchPipeline::StepEvent;
using Result = StitchPipeline::Result;

/// Three stacks of one picture each: stacks 0 and 1 (yaw 0 and 40) are
/// linked, stack 2 (yaw 160) is not. The camera chose a longer exposure for
/// the third.
const char ProjectText[] = "# written by ZPanoHead: 3 stacks, 3 images, 1 authorised links\n"
                           "p f2 w2736 h1368 v360 E12.9 R0 n\"TIFF_m c:LZW r:CROP\"\n"
                           "m i0\n"
                           "i w400 h300 f0 v52.6 Eev12.9 Er1 Eb1 r0 p0 y0 n\"P1.jpg\"\n"
                           "i w400 h300 f0 v=0 Eev12.9 Er1 Eb1 r0 p0 y40 n\"P2.jpg\"\n"
                           "i w400 h300 f0 v=0 Eev13.4 Er1 Eb1 r0 p0 y160 n\"P3.jpg\"\n"
                           "v r1 p1 y1\nv r2 p2 y2\nv\n";

/// The same three positions with two exposures each; the second of a stack
/// is hard-linked to the first and shares its stack number.
const char StackedProjectText[]
    = "# written by ZPanoHead: 3 stacks, 6 images, 1 authorised links\n"
      "p f2 w2736 h1368 v360 E12.9 R0 n\"TIFF_m c:LZW r:CROP\"\n"
      "m i0\n"
      "i w400 h300 f0 v52.6 Eev12.9 Er1 Eb1 r0 p0 y0 j0 n\"P1.jpg\"\n"
      "i w400 h300 f0 v=0 Eev13.9 Er1 Eb1 r=0 p=0 y=0 j=0 n\"P1b.jpg\"\n"
      "i w400 h300 f0 v=0 Eev12.9 Er1 Eb1 r0 p0 y40 j1 n\"P2.jpg\"\n"
      "i w400 h300 f0 v=0 Eev13.9 Er1 Eb1 r=2 p=2 y=2 j=2 n\"P2b.jpg\"\n"
      "i w400 h300 f0 v=0 Eev12.9 Er1 Eb1 r0 p0 y160 j2 n\"P3.jpg\"\n"
      "i w400 h300 f0 v=0 Eev13.9 Er1 Eb1 r=4 p=4 y=4 j=4 n\"P3b.jpg\"\n"
      "v r2 p2 y2\nv r4 p4 y4\nv\n";

/// What the stitch is given besides the stand-ins.
struct Shoot
{
    bool autoDetection = true;
    /// Two exposures per stack.
    bool stacked = false;
    int outputMode = -1;
    bool cleanWrongLinks = false;
    /// Stack 1 is also linked to stack 2, which it cannot meet (yaw 40 and
    /// 160), and cpfind finds one point between them.
    bool wrongLink = false;
    /// "For a stack:" 0 hard links, 1 detect control points.
    int stackLinking = 0;
    float focalLength = 0;
    bool useRecordedLocation = true;
    bool skipOptimization = false;
    /// Single pictures all shot at one exposure value.
    bool oneExposure = false;
    /// Real photographs instead of stand-ins: three of the bundled sample's
    /// at the angles its record gives (yaw 0 and 40 of the top row, yaw -80
    /// of the bottom row); single pictures only.
    bool samplePictures = false;
    /// With samplePictures: the second picture is of one grey, without
    /// anything to match.
    bool flatSecond = false;
    /// The p line's projection, field of view and size instead of the whole
    /// sphere's "f2 w2736 h1368 v360".
    QByteArray canvas;
    /// Other texts in the project: each pair's first replaced by its second.
    QVector<QPair<QByteArray, QByteArray>> changes;
};

/// Three points that agree with yaw 0 and 40 (at yaw 20 of the panorama)
/// and one between stacks 1 and 2 that agrees with nothing.
const char WrongLinkPoints[] = "c n0 N1 x347.21 y150 X52.79 Y150 t0\n"
                               "c n0 N1 x347.21 y100 X52.79 Y100 t0\n"
                               "c n0 N1 x347.21 y200 X52.79 Y200 t0\n"
                               "c n1 N2 x300 y150 X100 Y150 t0\n";

using StandInTools::processRuns;
using StandInTools::TiffHeader;
using StandInTools::writeScript;

QMap<QString, QString> wellBehavedTools()
{
    return StandInTools::wellBehaved();
}

/// Runs pipeline on a thread of its own, recording the events and the
/// thread they come on.
class Worker
{
public:
    /// observe (optional) is also called with each event, on the worker.
    explicit Worker(StitchPipeline& pipeline,
        const std::function<void(const StepEvent&)>& observe = {})
        : m_pipeline(pipeline)
    {
        pipeline.setProgress([this, observe](const StepEvent& event) {
            if (observe)
                observe(event);
            m_events << event;
            m_callbackThreads << std::this_thread::get_id();
        });
        m_thread = std::thread([this] {
            m_result = m_pipeline.run();
            m_done.store(true);
        });
    }
    ~Worker() { join(); }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    bool done() const { return m_done.load(); }
    /// Waits for run() to return; after it, the events and result may be read.
    void join()
    {
        if (m_thread.joinable()) {
            m_threadId = m_thread.get_id();
            m_thread.join();
        }
    }
    const QVector<StepEvent>& events() const { return m_events; }
    const Result& result() const { return m_result; }
    bool callbacksOnWorker() const
    {
        for (const std::thread::id& id : m_callbackThreads) {
            if (id != m_threadId)
                return false;
        }
        return true;
    }

private:
    StitchPipeline& m_pipeline;
    QVector<StepEvent> m_events;
    QVector<std::thread::id> m_callbackThreads;
    Result m_result;
    std::atomic<bool> m_done { false };
    std::thread m_thread;
    std::thread::id m_threadId;
};

const QStringList AllTools = { QStringLiteral("cpfind"), QStringLiteral("links"),
    QStringLiteral("cpclean"), QStringLiteral("autooptimiser"), QStringLiteral("pano_modify"),
    QStringLiteral("nona"), QStringLiteral("verdandi") };
const QStringList AllNames = { QStringLiteral("Finding control points"),
    QStringLiteral("Removing points between positions that do not meet"),
    QStringLiteral("Removing wrong points"), QStringLiteral("Placing the pictures"),
    QStringLiteral("Choosing canvas and crop"), QStringLiteral("Remapping"),
    QStringLiteral("Blending") };

/// The pictures each nona is given: the images dealt out in turn to one
/// nona per core, never more nonas than pictures.
QVector<QVector<int>> nonaShares(const QVector<int>& images)
{
    QVector<QVector<int>> shares(qBound(1, QThread::idealThreadCount(), int(images.size())));
    for (int i = 0; i < images.size(); ++i)
        shares[i % shares.size()] << images[i];
    return shares;
}

/// How many of the remapped pictures in folder the stand-in nona has
/// written whole ("xx").
int wholePictures(const QDir& folder, const QString& prefix)
{
    int whole = 0;
    for (const QString& name : folder.entryList({ prefix + QStringLiteral("[0-9]*") })) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly) && file.readAll() == "xx")
            ++whole;
    }
    return whole;
}

/// The events that start and end steps, without the counts of pictures.
QVector<StepEvent> startsAndEnds(const QVector<StepEvent>& events)
{
    QVector<StepEvent> kept;
    for (const StepEvent& event : events) {
        if (event.phase != StepEvent::Progressed)
            kept << event;
    }
    return kept;
}

} // namespace

class tst_StitchPipeline : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void progress_data();
    void progress();
    void failure_data();
    void failure();
    void beforeTheSteps_data();
    void beforeTheSteps();
    void namedDescriptionMissing();
    void withoutDescription_data();
    void withoutDescription();
    void endsTheProcessGroup_data();
    void endsTheProcessGroup();
    void cancelBeforeRun();
    void busyWorkFolder();
    void render_data();
    void render();
    void renderFailure_data();
    void renderFailure();
    void hdrNeedsAFloatFormat();
    void cleanWrongLink_data();
    void cleanWrongLink();
    void remapCountsPictures_data();
    void remapCountsPictures();
    void remapCountsWhileNonasRun();
    void remapFailureNamesThePictures();
    void cancelEndsEveryNona();
    void referencesOnlyWithHardLinks_data();
    void referencesOnlyWithHardLinks();
    void optimisesWhatTheHeadLeavesOpen_data();
    void optimisesWhatTheHeadLeavesOpen();
    void centresAcrossTheSeam_data();
    void centresAcrossTheSeam();
    void correlationOrCpfind_data();
    void correlationOrCpfind();

private:
    /// A folder with the project, its description and stand-in tools (the
    /// well-behaved ones with changes); its options for the pipeline.
    StitchPipeline::Options makeStitch(
        const QMap<QString, QString>& changes, bool autoDetection = true);
    StitchPipeline::Options makeStitch(const QMap<QString, QString>& changes, const Shoot& shoot);

    QTemporaryDir m_dir;
    int m_folders = 0;
};

void tst_StitchPipeline::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

StitchPipeline::Options tst_StitchPipeline::makeStitch(
    const QMap<QString, QString>& changes, bool autoDetection)
{
    Shoot shoot;
    shoot.autoDetection = autoDetection;
    return makeStitch(changes, shoot);
}

StitchPipeline::Options tst_StitchPipeline::makeStitch(
    const QMap<QString, QString>& changes, const Shoot& shoot)
{
    const QDir folder(m_dir.filePath(QStringLiteral("stitch-%1").arg(++m_folders)));
    StitchPipeline::Options options;
    if (!QDir().mkpath(folder.filePath(QStringLiteral("tools"))))
        return options;
    QFile project(folder.filePath(QStringLiteral("shoot.pto")));
    if (!project.open(QIODevice::WriteOnly))
        return options;
    QByteArray text = shoot.stacked ? StackedProjectText : ProjectText;
    if (shoot.oneExposure)
        text.replace("Eev13.4", "Eev12.9");
    if (!shoot.canvas.isEmpty())
        text.replace("f2 w2736 h1368 v360", shoot.canvas);
    for (const auto& change : shoot.changes)
        text.replace(change.first, change.second);
    if (shoot.samplePictures) {
        text.replace("v52.6 ", "v52.622545 ");
        text.replace("r0 p0 y0 ", "r0 p15.8 y-0.4 ");
        text.replace("r0 p0 y40 ", "r0 p15.5 y39.7 ");
        text.replace("r0 p0 y160 ", "r0 p-15.2 y-81.4 ");
    }
    project.write(text);
    project.close();
    StructuredPanoramaProperties panorama;
    for (const char* name : { "P1", "P2", "P3" }) {
        QStringList stack { folder.filePath(QLatin1String(name) + QStringLiteral(".jpg")) };
        if (shoot.stacked)
            stack << folder.filePath(QLatin1String(name) + QStringLiteral("b.jpg"));
        panorama.m_stacks << stack;
        if (shoot.samplePictures) {
            const QString photo = stack.first();
            // P1 and P2 are neighbours of the top row, P3 is far from both.
            const QStringList names { QStringLiteral("P1"), QStringLiteral("P2"),
                QStringLiteral("P3") };
            const QStringList numbers { QStringLiteral("07"), QStringLiteral("10"),
                QStringLiteral("28") };
            const QString source = QStringLiteral(ZPH_SAMPLE_SHOOT "/IMG_00%1.jpg")
                                       .arg(numbers.value(names.indexOf(QLatin1String(name))));
            if (shoot.flatSecond && QLatin1String(name) == QLatin1String("P2")) {
                QImage grey(400, 300, QImage::Format_RGB32);
                grey.fill(qRgb(128, 128, 128));
                if (!grey.save(photo))
                    return options;
            } else if (!QFile::copy(source, photo)) {
                return options;
            }
            continue;
        }
        // The stand-ins never read a photograph; the stitch checks it is there.
        for (const QString& photo : stack) {
            QFile file(photo);
            if (!file.open(QIODevice::WriteOnly) || file.write("x") != 1)
                return options;
        }
    }
    AuthorizedLink link;
    link.m_direction = 2;
    link.m_stackIndices = { 0, 1 };
    panorama.m_links = { link };
    if (shoot.wrongLink) {
        link.m_stackIndices = { 1, 2 };
        panorama.m_links << link;
    }
    panorama.m_autoDetection = shoot.autoDetection;
    panorama.m_outputMode = shoot.outputMode;
    panorama.m_cleanWrongLinks = shoot.cleanWrongLinks;
    panorama.m_stackLinking = shoot.stackLinking;
    panorama.m_focalLength = shoot.focalLength;
    panorama.m_useRecordedLocation = shoot.useRecordedLocation;
    panorama.m_skipOptimization = shoot.skipOptimization;
    QString error;
    if (!DescriptionJson::write(panorama, folder.filePath(QStringLiteral("shoot.json")), &error))
        return options;
    QMap<QString, QString> tools = wellBehavedTools();
    if (shoot.wrongLink)
        tools[QStringLiteral("cpfind")]
            = QStringLiteral("cp \"$last\" \"$out\"; printf '%1' >> \"$out\"")
                  .arg(QLatin1String(WrongLinkPoints));
    for (auto it = changes.constBegin(); it != changes.constEnd(); ++it)
        tools[it.key()] = it.value();
    for (auto it = tools.constBegin(); it != tools.constEnd(); ++it) {
        if (!writeScript(folder.filePath(QStringLiteral("tools/") + it.key()), it.value()))
            return options;
    }
    options.project = project.fileName();
    options.tools = folder.filePath(QStringLiteral("tools"));
    options.timeoutSeconds = 20;
    return options;
}

void tst_StitchPipeline::progress_data()
{
    QTest::addColumn<bool>("autoDetection");
    QTest::addColumn<QStringList>("tools");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("control points") << true << AllTools << AllNames;
    QTest::newRow("recorded positions")
        << false << QStringList(AllTools.mid(3)) << QStringList(AllNames.mid(3));
}

void tst_StitchPipeline::progress()
{
    QFETCH(bool, autoDetection);
    QFETCH(QStringList, tools);
    QFETCH(QStringList, names);
    const StitchPipeline::Options options = makeStitch({}, autoDetection);
    QVERIFY(!options.project.isEmpty());
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QVERIFY2(result.succeeded(), qPrintable(result.error));
    const int count = tools.size();
    QCOMPARE(result.stepCount, count);
    QCOMPARE(result.step, 0);
    QVERIFY(result.error.isEmpty());

    // Every step starts, then ends well, in order, on the worker's thread.
    const QVector<StepEvent> events = startsAndEnds(worker.events());
    QCOMPARE(events.size(), 2 * count);
    QVERIFY(worker.callbacksOnWorker());
    for (int i = 0; i < count; ++i) {
        const StepEvent& start = events[2 * i];
        const StepEvent& end = events[2 * i + 1];
        QCOMPARE(start.phase, StepEvent::Started);
        QCOMPARE(end.phase, StepEvent::Done);
        for (const StepEvent* e : { &start, &end }) {
            QCOMPARE(e->step, i + 1);
            QCOMPARE(e->count, count);
            QCOMPARE(e->tool, tools[i]);
            QCOMPARE(e->name, names[i]);
        }
        QCOMPARE(start.elapsedMilliseconds, 0);
        QVERIFY(end.elapsedMilliseconds >= 0);
        QVERIFY(end.elapsedMilliseconds <= result.elapsedMilliseconds);
    }
    if (autoDetection) {
        QCOMPARE(events[1].note, QStringLiteral("1 points"));
        QCOMPARE(events[3].note, QStringLiteral("1 points kept, 0 removed"));
    } else {
        QCOMPARE(events[1].note, QStringLiteral("no control points: recorded positions"));
    }
    QCOMPARE(events.last().note, QStringLiteral("100 × 50"));

    const QDir folder = QFileInfo(options.project).absoluteDir();
    QCOMPARE(result.panorama, folder.filePath(QStringLiteral("shoot.tif")));
    QCOMPARE(result.panoramaSize, QSize(100, 50));
    QVERIFY(QFileInfo(result.panorama).isFile());
    QCOMPARE(result.workFolder, folder.filePath(QStringLiteral("shoot.stitch")));
    QCOMPARE(result.stitchedProject, folder.filePath(QStringLiteral("shoot.stitch/05-final.pto")));
    QCOMPARE(result.log, folder.filePath(QStringLiteral("shoot.stitch/stitch.log")));
    QVERIFY(QFileInfo(result.log).size() > 0);
    // The blender wrote beside the panorama; only the checked panorama is left.
    QCOMPARE(folder.entryList({ QStringLiteral("*.tif") }), QStringList { "shoot.tif" });
}

void tst_StitchPipeline::failure_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("error");
    // A program that fails is named with how it ended and the last lines of
    // the log, which end with its own output; a check's failure is the reason.
    QTest::addColumn<QString>("output");
    QTest::newRow("cpfind fails") << "cpfind"
                                  << "echo 'no features'; exit 3" << 1 << "cpfind exit code 3: "
                                  << " | no features";
    QTest::newRow("cpfind crashes") << "cpfind"
                                    << "kill -SEGV $$" << 1 << "cpfind crashed: "
                                    << "/shoot.stitch/00-project.pto";
    QTest::newRow("points only between unlinked stacks")
        << "cpfind"
        << "cp \"$last\" \"$out\"; echo 'c n0 N2 x1 y1 X2 Y2 t0' >> \"$out\"" << 2
        << "no control point joins two linked stacks (1 removed)" << QString();
    QTest::newRow("cpclean removes everything")
        << "cpclean"
        << "grep -v '^c ' \"$last\" > \"$out\"" << 3 << "cpclean removed every control point"
        << QString();
    QTest::newRow("autooptimiser chooses no size")
        << "autooptimiser"
        << "sed 's/^p .*$/p f2 v360/' \"$last\" > \"$out\"" << 4
        << "autooptimiser chose no panorama size" << QString();
    QTest::newRow("pano_modify finds no crop")
        << "pano_modify"
        << "cp \"$last\" \"$out\"" << 5 << "pano_modify found no crop inside the canvas"
        << QString();
    QTest::newRow("nona writes nothing")
        << "nona"
        << "exit 0" << 6 << "nona wrote no remapped picture" << QString();
    QTest::newRow("verdandi fails")
        << "verdandi"
        << "printf x > \"$out\"; echo 'out of memory'; exit 1" << 7 << "verdandi exit code 1: "
        << " | out of memory";
    QTest::newRow("verdandi writes no picture")
        << "verdandi"
        << "echo garbage > \"$out\"" << 7
        << "verdandi wrote a panorama of -1 × -1 instead of 100 × 50" << QString();
}

void tst_StitchPipeline::failure()
{
    QFETCH(QString, tool);
    QFETCH(QString, script);
    QFETCH(int, step);
    QFETCH(QString, error);
    QFETCH(QString, output);
    const StitchPipeline::Options options = makeStitch({ { tool, script } });
    QVERIFY(!options.project.isEmpty());
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QCOMPARE(result.outcome, Result::Failed);
    QCOMPARE(result.step, step);
    QCOMPARE(result.stepCount, 7);
    QCOMPARE(result.tool, AllTools[step - 1]);
    QCOMPARE(result.name, AllNames[step - 1]);
    if (output.isEmpty()) {
        QCOMPARE(result.error, error);
    } else {
        QVERIFY2(result.error.startsWith(error), qPrintable(result.error));
        QVERIFY2(result.error.endsWith(output), qPrintable(result.error));
    }
    QVERIFY(QFileInfo(result.log).isFile());

    // The steps before it ended well; the failed one ends with its reason.
    const QVector<StepEvent> events = startsAndEnds(worker.events());
    QCOMPARE(events.size(), 2 * step);
    for (int i = 0; i < events.size(); ++i) {
        QCOMPARE(events[i].step, i / 2 + 1);
        QCOMPARE(events[i].phase,
            i % 2 == 0                  ? StepEvent::Started
                : i + 1 < events.size() ? StepEvent::Done
                                        : StepEvent::Failed);
    }
    QCOMPARE(events.last().tool, result.tool);
    QCOMPARE(events.last().note, result.error);

    // A failed stitch leaves no panorama, whole or partial.
    const QDir folder = QFileInfo(options.project).absoluteDir();
    QVERIFY(!QFileInfo::exists(result.panorama));
    QVERIFY(folder.entryList({ QStringLiteral("*.tif") }).isEmpty());
}

void tst_StitchPipeline::beforeTheSteps_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("error");
    QTest::newRow("project") << "shoot.pto"
                             << "cannot read the project %1/shoot.pto: no such file";
    QTest::newRow("program") << "tools/nona"
                             << "Hugin's program nona is not found in %1/tools";
    QTest::newRow("photograph") << "P2.jpg"
                                << "the project's photograph %1/P2.jpg cannot be used: no such "
                                   "file";
}

void tst_StitchPipeline::beforeTheSteps()
{
    QFETCH(QString, missing);
    QFETCH(QString, error);
    StitchPipeline::Options options = makeStitch({});
    QVERIFY(!options.project.isEmpty());
    const QDir folder = QFileInfo(options.project).absoluteDir();
    QVERIFY(QFile::remove(folder.filePath(missing)));
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QCOMPARE(result.outcome, Result::Failed);
    QCOMPARE(result.step, 0);
    QCOMPARE(result.error, error.arg(folder.absolutePath()));
    QVERIFY(worker.events().isEmpty());
}

void tst_StitchPipeline::namedDescriptionMissing()
{
    StitchPipeline::Options options = makeStitch({});
    QVERIFY(!options.project.isEmpty());
    const QDir folder = QFileInfo(options.project).absoluteDir();
    options.description = folder.filePath(QStringLiteral("other.json"));
    StitchPipeline pipeline(options);
    QString error;
    QVERIFY(!pipeline.check(&error));
    QCOMPARE(error,
        QStringLiteral("cannot read %1: No such file or directory").arg(options.description));
    const Result result = pipeline.run();
    QCOMPARE(result.outcome, Result::Failed);
    QCOMPARE(result.step, 0);
    QCOMPARE(result.error, error);
}

void tst_StitchPipeline::withoutDescription_data()
{
    QTest::addColumn<bool>("described");
    QTest::addColumn<bool>("stacked");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("fused");
    // Single pictures: the point between images 1 and 2 joins stacks the
    // description does not link. Stacks: images 0 and 1 are the first
    // stack's, image 2 the second's first.
    QTest::newRow("described") << true << false << "--prealigned"
                               << "1 points kept, 1 removed (stacks 1-2)" << QString();
    QTest::newRow("alone") << false << false << "--multirow"
                           << "2 points kept, 0 removed" << QString();
    QTest::newRow("alone, stacks") << false << true << "--multirow"
                                   << "2 points kept, 0 removed"
                                   << "3 stacks";
}

void tst_StitchPipeline::withoutDescription()
{
    QFETCH(bool, described);
    QFETCH(bool, stacked);
    QFETCH(QString, search);
    QFETCH(QString, kept);
    QFETCH(QString, fused);
    Shoot shoot;
    shoot.stacked = stacked;
    // cpfind keeps its arguments beside its output.
    StitchPipeline::Options options = makeStitch(
        { { QStringLiteral("cpfind"),
            QStringLiteral(
                "echo \"$*\" > \"$out.arguments\"; cp \"$last\" \"$out\"\n"
                "printf 'c n0 N1 x1 y1 X2 Y2 t0\\nc n1 N2 x1 y1 X2 Y2 t0\\n' >> \"$out\"") } },
        shoot);
    QVERIFY(!options.project.isEmpty());
    const QDir folder = QFileInfo(options.project).absoluteDir();
    if (!described)
        QVERIFY(QFile::remove(folder.filePath(QStringLiteral("shoot.json"))));
    StitchPipeline pipeline(options);
    QString error;
    QVERIFY2(pipeline.check(&error), qPrintable(error));
    const QString note = described
        ? QString()
        : QStringLiteral("no description beside %1: every pair of pictures is searched")
              .arg(options.project);
    QCOMPARE(pipeline.inputs().note, note);
    QCOMPARE(pipeline.inputs().description.isEmpty(), !described);
    QCOMPARE(pipeline.inputs().photographs.size(), stacked ? 6 : 3);
    QCOMPARE(pipeline.inputs().photographs.first(), folder.filePath(QStringLiteral("P1.jpg")));
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QVERIFY2(result.succeeded(), qPrintable(result.error));
    QCOMPARE(result.note, note);
    QCOMPARE(result.stepCount, AllTools.size() + (stacked ? 1 : 0));
    const QVector<StepEvent>& events = worker.events();
    const auto noteOf = [&events](const char* tool) {
        for (const StepEvent& event : events) {
            if (event.tool == QLatin1String(tool) && event.phase == StepEvent::Done)
                return event.note;
        }
        return QString();
    };
    QCOMPARE(noteOf("links"), kept);
    QCOMPARE(noteOf("enfuse"), fused);
    QFile arguments(QDir(result.workFolder).filePath(QStringLiteral("01-cpfind.pto.arguments")));
    QVERIFY(arguments.open(QIODevice::ReadOnly));
    const QStringList words = QString::fromUtf8(arguments.readAll()).split(QLatin1Char(' '));
    QVERIFY2(words.contains(search), qPrintable(words.join(QLatin1Char(' '))));
}

void tst_StitchPipeline::endsTheProcessGroup_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("output");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("cancel");
    // What each program's stand-in writes before it hangs, from "$out".
    const QString project = QStringLiteral("$out");
    const QString remapped = QStringLiteral("${out}0000.tif");
    QTest::newRow("cpfind stopped") << "cpfind" << project << 1 << true;
    QTest::newRow("cpclean stopped") << "cpclean" << project << 3 << true;
    QTest::newRow("nona stopped") << "nona" << remapped << 6 << true;
    QTest::newRow("verdandi stopped") << "verdandi" << project << 7 << true;
    QTest::newRow("cpfind timed out") << "cpfind" << project << 1 << false;
    QTest::newRow("verdandi timed out") << "verdandi" << project << 7 << false;
}

void tst_StitchPipeline::endsTheProcessGroup()
{
    QFETCH(QString, tool);
    QFETCH(QString, output);
    QFETCH(int, step);
    QFETCH(bool, cancel);
    // The stand-in starts a program of its own in the background, writes a
    // partial output, says where both are, and waits.
    const QString state = m_dir.filePath(QStringLiteral("hang-%1").arg(m_folders + 1));
    const QString script = QStringLiteral("sleep 30 &\n"
                                          "printf partial > \"%1\"\n"
                                          "echo \"$! %1\" > \"%2.tmp\"\n"
                                          "mv \"%2.tmp\" \"%2\"\n"
                                          "sleep 30")
                               .arg(output, state);
    StitchPipeline::Options options = makeStitch({ { tool, script } });
    QVERIFY(!options.project.isEmpty());
    if (!cancel)
        options.timeoutSeconds = 1;
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(state), 10000);
    QFile stateFile(state);
    QVERIFY(stateFile.open(QIODevice::ReadOnly));
    const QStringList written
        = QString::fromLocal8Bit(stateFile.readAll()).trimmed().split(QLatin1Char(' '));
    QCOMPARE(written.size(), 2);
    const qint64 grandchild = written[0].toLongLong();
    const QString partial = written[1];
    QVERIFY(processRuns(grandchild));
    QVERIFY(QFileInfo::exists(partial));

    QElapsedTimer timer;
    timer.start();
    if (cancel) {
        pipeline.cancel();
        QTRY_VERIFY_WITH_TIMEOUT(worker.done(), 1000);
    } else {
        QTRY_VERIFY_WITH_TIMEOUT(worker.done(), 3000);
    }
    worker.join();
    QVERIFY2(
        timer.elapsed() < (cancel ? 1000 : 3000), qPrintable(QString::number(timer.elapsed())));

    const Result& result = worker.result();
    QCOMPARE(result.step, step);
    QCOMPARE(result.tool, tool);
    QCOMPARE(result.name, AllNames[step - 1]);
    const StepEvent& last = worker.events().last();
    QCOMPARE(last.step, step);
    if (cancel) {
        QCOMPARE(result.outcome, Result::Stopped);
        QVERIFY(result.error.isEmpty());
        QCOMPARE(last.phase, StepEvent::Stopped);
    } else {
        QCOMPARE(result.outcome, Result::Failed);
        QVERIFY2(result.error.startsWith(tool + QStringLiteral(" did not finish in time")),
            qPrintable(result.error));
        QCOMPARE(last.phase, StepEvent::Failed);
    }
    // Nothing of the program's group runs on, and nothing it half wrote is left.
    QTRY_VERIFY_WITH_TIMEOUT(!processRuns(grandchild), 1000);
    QVERIFY2(!QFileInfo::exists(partial), qPrintable(partial));
    QVERIFY(!QFileInfo::exists(result.panorama));
}

void tst_StitchPipeline::cancelBeforeRun()
{
    const QString marker = m_dir.filePath(QStringLiteral("cpfind-ran"));
    const StitchPipeline::Options options = makeStitch(
        { { QStringLiteral("cpfind"), QStringLiteral("touch \"%1\"; exit 1").arg(marker) } });
    QVERIFY(!options.project.isEmpty());
    StitchPipeline pipeline(options);
    pipeline.cancel();
    QVERIFY(pipeline.isCancelled());
    Worker worker(pipeline);
    worker.join();
    QCOMPARE(worker.result().outcome, Result::Stopped);
    QCOMPARE(worker.result().step, 1);
    QVERIFY(worker.events().isEmpty());
    QVERIFY(!QFileInfo::exists(marker));
}

void tst_StitchPipeline::busyWorkFolder()
{
    const QString marker = m_dir.filePath(QStringLiteral("cpfind-ran-busy"));
    QMap<QString, QString> tools = wellBehavedTools();
    tools[QStringLiteral("cpfind")]
        = QStringLiteral("touch \"%1\"\n").arg(marker) + tools.value(QStringLiteral("cpfind"));
    StitchPipeline::Options options = makeStitch(tools);
    QVERIFY(!options.project.isEmpty());
    const QString work = QFileInfo(options.project).absolutePath() + QStringLiteral("/other.stitch");
    options.workFolder = work;
    QVERIFY(QDir().mkpath(work));
    // Another stitch holds the work folder.
    {
        QLockFile held(work + QStringLiteral("/stitch.lock"));
        QVERIFY(held.tryLock(0));
        StitchPipeline pipeline(options);
        Worker worker(pipeline);
        worker.join();
        QCOMPARE(worker.result().outcome, Result::Failed);
        QCOMPARE(worker.result().step, 0);
        QCOMPARE(worker.result().error,
            QStringLiteral("another stitch (process %1) is using the work folder %2; wait until "
                           "it has finished")
                .arg(QCoreApplication::applicationPid())
                .arg(work));
        QVERIFY(!QFileInfo::exists(marker));
    }
    // Once it has finished, the folder is free again, and free after the stitch.
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    QVERIFY2(worker.result().succeeded(), qPrintable(worker.result().error));
    QVERIFY(QFileInfo::exists(marker));
    QVERIFY(!QFileInfo::exists(work + QStringLiteral("/stitch.lock")));
}

using Output = StitchPipeline::Output;
Q_DECLARE_METATYPE(Output)

void tst_StitchPipeline::render_data()
{
    QTest::addColumn<bool>("stacked");
    QTest::addColumn<int>("outputMode");
    QTest::addColumn<Output>("mode");
    QTest::addColumn<bool>("clean");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("panorama");
    QTest::addColumn<QString>("preview");
    const QString detection = QStringLiteral("cpfind links cpclean autooptimiser pano_modify ");
    const QString fused = detection + QStringLiteral("nona enfuse verdandi");
    const QString hdr = fused + QStringLiteral(" nona hugin_hdrmerge enblend");
    QTest::newRow("single pictures") << false << -1 << Output::Automatic << false
                                     << detection + QStringLiteral("nona verdandi") << "shoot.tif"
                                     << "";
    QTest::newRow("stacks fused") << true << -1 << Output::Automatic << false << fused
                                  << "shoot.tif"
                                  << "";
    QTest::newRow("output mode HDR")
        << true << 3 << Output::Automatic << false << hdr << "shoot.exr"
        << "shoot.jpg";
    QTest::newRow("output mode HDR, fused asked")
        << true << 3 << Output::Fused << false << fused << "shoot.tif"
        << "";
    QTest::newRow("HDR asked") << true << 2 << Output::Hdr << false << hdr << "shoot.exr"
                               << "shoot.jpg";
    QTest::newRow("HDR of single pictures")
        << false << -1 << Output::Hdr << false
        << detection + QStringLiteral("nona verdandi nona hugin_hdrmerge enblend") << "shoot.exr"
        << "shoot.jpg";
    QTest::newRow("clean wrong link")
        << false << -1 << Output::Automatic << true
        << QStringLiteral("cpfind links cpclean autooptimiser linkcheck pano_modify nona verdandi")
        << "shoot.tif"
        << "";
}

void tst_StitchPipeline::render()
{
    QFETCH(bool, stacked);
    QFETCH(int, outputMode);
    QFETCH(Output, mode);
    QFETCH(bool, clean);
    QFETCH(QString, steps);
    QFETCH(QString, panorama);
    QFETCH(QString, preview);
    Shoot shoot;
    shoot.stacked = stacked;
    shoot.outputMode = outputMode;
    shoot.cleanWrongLinks = clean;
    StitchPipeline::Options options = makeStitch({}, shoot);
    QVERIFY(!options.project.isEmpty());
    options.mode = mode;
    const QDir folder = QFileInfo(options.project).absoluteDir();
    // What the stand-ins were given: one line per program run.
    const QString calls = folder.filePath(QStringLiteral("calls"));
    for (const QString& tool : { QStringLiteral("enfuse"), QStringLiteral("hugin_hdrmerge"),
             QStringLiteral("autooptimiser") }) {
        QFile script(folder.filePath(QStringLiteral("tools/") + tool));
        QVERIFY(script.open(QIODevice::Append));
        script.write(QStringLiteral("echo \"%1 $*\" >> \"%2\"\n").arg(tool, calls).toUtf8());
    }
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QVERIFY2(result.succeeded(), qPrintable(result.error));
    QStringList tools;
    for (const StepEvent& event : worker.events()) {
        if (event.phase == StepEvent::Done)
            tools << event.tool;
    }
    QCOMPARE(tools.join(QLatin1Char(' ')), steps);
    QCOMPARE(result.stepCount, tools.size());
    QCOMPARE(result.hdr, !preview.isEmpty());
    QCOMPARE(result.panorama, folder.filePath(panorama));
    QVERIFY(QFileInfo(result.panorama).isFile());
    QCOMPARE(result.preview, preview.isEmpty() ? QString() : folder.filePath(preview));
    QStringList left = folder.entryList(
        { QStringLiteral("*.tif"), QStringLiteral("*.exr"), QStringLiteral("*.jpg") });
    QStringList expected = { panorama };
    if (!preview.isEmpty())
        expected << preview;
    // Besides the shoot's photographs.
    expected << folder.entryList({ QStringLiteral("P?.jpg"), QStringLiteral("P?b.jpg") });
    std::sort(left.begin(), left.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(left, expected);

    // Each stack's exposures went to enfuse and, for HDR, to hugin_hdrmerge.
    QFile file(calls);
    const QStringList lines = file.open(QIODevice::ReadOnly)
        ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)
        : QStringList();
    const int fusions = stacked ? 3 : 0;
    const int merges = stacked && !preview.isEmpty() ? 3 : 0;
    QCOMPARE(lines.filter(QStringLiteral("enfuse ")).size(), fusions);
    QCOMPARE(lines.filter(QStringLiteral("hugin_hdrmerge ")).size(), merges);
    for (const QString& line : lines.filter(QStringLiteral("enfuse ")))
        QVERIFY2(line.contains(QStringLiteral("remapped0000.tif "))
                == line.contains(QStringLiteral("remapped0001.tif")),
            qPrintable(line));
    // Photometric optimisation only for single pictures.
    const QStringList optimiser = lines.filter(QStringLiteral("autooptimiser "));
    QVERIFY(!optimiser.isEmpty());
    for (const QString& line : optimiser)
        QCOMPARE(line.contains(QStringLiteral(" -m ")), !stacked);
    for (const QString& line : lines.filter(QStringLiteral("hugin_hdrmerge ")))
        QVERIFY2(line.contains(QStringLiteral("linear")), qPrintable(line));
}

void tst_StitchPipeline::renderFailure_data()
{
    QTest::addColumn<bool>("hdr");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("output");
    const QString tiffOrGarbage = QStringLiteral("case \"$out\" in *.exr) echo garbage > "
                                                 "\"$out\";; *) %1;; esac")
                                      .arg(TiffHeader);
    QTest::newRow("enfuse fails") << false << "enfuse"
                                  << "echo 'bad layer'; exit 1" << 7 << "Fusing exposures"
                                  << "stack 0: enfuse exit code 1: "
                                  << " | bad layer";
    QTest::newRow("enfuse writes nothing") << false << "enfuse"
                                           << "exit 0" << 7 << "Fusing exposures"
                                           << "enfuse wrote no picture for stack 0" << QString();
    QTest::newRow("nona writes no linear picture")
        << true << "nona"
        << "case \"$*\" in *EXR_m*) exit 0;; esac\n"
           "for i in $images; do printf x > \"$(printf '%s%04d.tif' \"$out\" \"$i\")\"; done"
        << 9 << "Remapping to linear light"
        << "nona wrote no remapped picture" << QString();
    QTest::newRow("hugin_hdrmerge fails")
        << true << "hugin_hdrmerge"
        << "echo 'cannot merge'; exit 2" << 10 << "Merging exposures"
        << "stack 0: hugin_hdrmerge exit code 2: "
        << " | cannot merge";
    QTest::newRow("hugin_hdrmerge writes nothing")
        << true << "hugin_hdrmerge"
        << "exit 0" << 10 << "Merging exposures"
        << "hugin_hdrmerge wrote no picture for stack 0" << QString();
    QTest::newRow("HDR blend writes no picture")
        << true << "enblend" << tiffOrGarbage << 11 << "Blending the HDR panorama"
        << "enblend wrote a panorama of -1 × -1 instead of 100 × 50" << QString();
}

void tst_StitchPipeline::renderFailure()
{
    QFETCH(bool, hdr);
    QFETCH(QString, tool);
    QFETCH(QString, script);
    QFETCH(int, step);
    QFETCH(QString, name);
    QFETCH(QString, error);
    QFETCH(QString, output);
    Shoot shoot;
    shoot.stacked = true;
    StitchPipeline::Options options = makeStitch({ { tool, script } }, shoot);
    QVERIFY(!options.project.isEmpty());
    options.mode = hdr ? Output::Hdr : Output::Fused;
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QCOMPARE(result.outcome, Result::Failed);
    QCOMPARE(result.step, step);
    QCOMPARE(result.stepCount, hdr ? 11 : 8);
    QCOMPARE(result.tool, tool);
    QCOMPARE(result.name, name);
    if (output.isEmpty()) {
        QCOMPARE(result.error, error);
    } else {
        QVERIFY2(result.error.startsWith(error), qPrintable(result.error));
        QVERIFY2(result.error.endsWith(output), qPrintable(result.error));
    }
    QVERIFY(!result.error.contains(QLatin1Char('\n')) || !output.isEmpty());
    QCOMPARE(worker.events().last().phase, StepEvent::Failed);
    QCOMPARE(worker.events().last().note, result.error);
    QVERIFY(!QFileInfo::exists(result.panorama));
}

void tst_StitchPipeline::hdrNeedsAFloatFormat()
{
    Shoot shoot;
    shoot.stacked = true;
    shoot.outputMode = 3;
    StitchPipeline::Options options = makeStitch({}, shoot);
    QVERIFY(!options.project.isEmpty());
    options.output = QFileInfo(options.project).absoluteDir().filePath(QStringLiteral("hdr.jpg"));
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QCOMPARE(result.outcome, Result::Failed);
    QCOMPARE(result.step, 0);
    QCOMPARE(result.error,
        QStringLiteral("an HDR panorama is an OpenEXR (.exr) or float TIFF (.tif) file, not %1")
            .arg(options.output));
    QVERIFY(worker.events().isEmpty());
}

void tst_StitchPipeline::cleanWrongLink_data()
{
    QTest::addColumn<bool>("clean");
    QTest::addColumn<int>("points");
    QTest::newRow("set: the link that disagrees loses its points") << true << 3;
    QTest::newRow("off: every linked pair keeps its points") << false << 4;
}

void tst_StitchPipeline::cleanWrongLink()
{
    QFETCH(bool, clean);
    QFETCH(int, points);
    Shoot shoot;
    shoot.wrongLink = true;
    shoot.cleanWrongLinks = clean;
    const StitchPipeline::Options options = makeStitch({}, shoot);
    QVERIFY(!options.project.isEmpty());
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QVERIFY2(result.succeeded(), qPrintable(result.error));
    PtoProject final;
    QString error;
    QVERIFY2(final.read(result.stitchedProject, &error), qPrintable(error));
    QCOMPARE(final.controlPoints().size(), points);
    QString note;
    for (const StepEvent& event : worker.events()) {
        if (event.tool == QLatin1String("linkcheck") && event.phase == StepEvent::Done)
            note = event.note;
    }
    if (clean) {
        QVERIFY2(
            note.startsWith(QStringLiteral("links removed: 1-2 (1 points, ")), qPrintable(note));
        for (const PtoProject::ControlPoint& point : final.controlPoints())
            QCOMPARE(point.second, 1);
    } else {
        QVERIFY(note.isEmpty());
    }
}

void tst_StitchPipeline::remapCountsPictures_data()
{
    QTest::addColumn<bool>("stacked");
    QTest::addColumn<Output>("mode");
    // The steps that count their pictures, with how many each remaps.
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("pictures");
    QTest::newRow("single pictures")
        << false << Output::Fused << QStringList { QStringLiteral("Remapping") } << 3;
    QTest::newRow("stacks fused")
        << true << Output::Fused << QStringList { QStringLiteral("Remapping") } << 6;
    QTest::newRow("stacks HDR") << true << Output::Hdr
                                << QStringList { QStringLiteral("Remapping"),
                                       QStringLiteral("Remapping to linear light") }
                                << 6;
}

void tst_StitchPipeline::remapCountsPictures()
{
    QFETCH(bool, stacked);
    QFETCH(Output, mode);
    QFETCH(QStringList, names);
    QFETCH(int, pictures);
    Shoot shoot;
    shoot.stacked = stacked;
    StitchPipeline::Options options = makeStitch({}, shoot);
    QVERIFY(!options.project.isEmpty());
    options.mode = mode;
    options.workFolder = QFileInfo(options.project).dir().filePath(QStringLiteral("work"));
    StitchPipeline pipeline(options);
    // A picture counts once it is written whole: when a count arrives, at
    // least that many pictures of the step are.
    const QDir work(options.workFolder);
    QStringList early;
    Worker worker(pipeline, [&](const StepEvent& event) {
        if (event.phase != StepEvent::Progressed)
            return;
        const int whole = wholePictures(work,
            event.name == QStringLiteral("Remapping") ? QStringLiteral("remapped")
                                                      : QStringLiteral("linear"));
        if (whole < event.done)
            early << QStringLiteral("%1: %2 counted, %3 whole").arg(event.name).arg(event.done).arg(whole);
    });
    worker.join();
    QVERIFY2(worker.result().succeeded(), qPrintable(worker.result().error));
    QVERIFY(worker.callbacksOnWorker());
    QVERIFY2(early.isEmpty(), qPrintable(early.join(QStringLiteral("; "))));

    // Between a counting step's start and end: 0, 1, ... of all its pictures,
    // in order, each naming the step.
    QStringList counted;
    const QVector<StepEvent>& events = worker.events();
    for (int i = 0; i < events.size(); ++i) {
        if (events[i].phase != StepEvent::Progressed)
            continue;
        const StepEvent& start = events[i - 1];
        QCOMPARE(start.phase, StepEvent::Started);
        counted << start.name;
        for (int done = 0; done <= pictures; ++done, ++i) {
            const StepEvent& event = events[i];
            QCOMPARE(event.phase, StepEvent::Progressed);
            QCOMPARE(event.done, done);
            QCOMPARE(event.total, pictures);
            QCOMPARE(event.step, start.step);
            QCOMPARE(event.count, start.count);
            QCOMPARE(event.tool, QStringLiteral("nona"));
            QCOMPARE(event.name, start.name);
        }
        QCOMPARE(events[i].phase, StepEvent::Done);
        QCOMPARE(events[i].step, start.step);
        QCOMPARE(events[i].note, QStringLiteral("%1 of %1 pictures").arg(pictures));
    }
    QCOMPARE(counted, names);
    // Every other step starts and ends without counts.
    for (const StepEvent& event : events) {
        if (event.phase != StepEvent::Progressed) {
            QCOMPARE(event.done, 0);
            QCOMPARE(event.total, 0);
        }
    }
    // Per step one nona per core, up to one per picture, each given an even
    // share of the pictures; together they are given every picture once.
    QFile log(worker.result().log);
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QStringList runs = QString::fromLocal8Bit(log.readAll())
                                 .split(QLatin1Char('\n'))
                                 .filter(QRegularExpression(QStringLiteral("^\\$ nona ")));
    const int nonas = qBound(1, QThread::idealThreadCount(), pictures);
    QCOMPARE(runs.size(), nonas * names.size());
    const QRegularExpression image(QStringLiteral(" -i (\\d+)"));
    for (int step = 0; step < names.size(); ++step) {
        QVector<int> given;
        for (const QString& run : runs.mid(step * nonas, nonas)) {
            int share = 0;
            for (auto it = image.globalMatch(run); it.hasNext(); ++share)
                given << it.next().captured(1).toInt();
            QVERIFY2(share == pictures / nonas || share == pictures / nonas + 1, qPrintable(run));
        }
        std::sort(given.begin(), given.end());
        QVector<int> all;
        for (int i = 0; i < pictures; ++i)
            all << i;
        QCOMPARE(given, all);
    }
}

void tst_StitchPipeline::remapCountsWhileNonasRun()
{
    // Each nona writes its pictures, then waits to be let go: every picture
    // but each nona's last is counted while all of them still run.
    const QString release = m_dir.filePath(QStringLiteral("release-%1").arg(m_folders + 1));
    const QString nona = StandInTools::wellBehaved().value(QStringLiteral("nona"));
    Shoot shoot;
    shoot.stacked = true;
    StitchPipeline::Options options = makeStitch({ { QStringLiteral("nona"),
        nona + QStringLiteral("\nwhile [ ! -e \"%1\" ]; do sleep 0.05; done").arg(release) } },
        shoot);
    QVERIFY(!options.project.isEmpty());
    const QVector<QVector<int>> shares = nonaShares({ 0, 1, 2, 3, 4, 5 });
    if (shares.size() == 6)
        QSKIP("one nona per picture: each picture counts as its nona ends");
    std::atomic<int> counted { 0 };
    StitchPipeline pipeline(options);
    Worker worker(pipeline, [&](const StepEvent& event) {
        if (event.phase == StepEvent::Progressed)
            counted.store(event.done);
    });
    QTRY_COMPARE_WITH_TIMEOUT(counted.load(), 6 - shares.size(), 10000);
    QTest::qWait(300);
    QCOMPARE(counted.load(), 6 - shares.size());
    QVERIFY(!worker.done());
    QFile marker(release);
    QVERIFY(marker.open(QIODevice::WriteOnly));
    marker.close();
    worker.join();
    QVERIFY2(worker.result().succeeded(), qPrintable(worker.result().error));
    QCOMPARE(counted.load(), 6);
}

void tst_StitchPipeline::remapFailureNamesThePictures()
{
    // Picture 1 of six cannot be remapped; the others can. The nona given
    // picture 1 fails, and the error names every picture it was given.
    const QString nona = StandInTools::wellBehaved().value(QStringLiteral("nona"));
    Shoot shoot;
    shoot.stacked = true;
    StitchPipeline::Options options = makeStitch({ { QStringLiteral("nona"),
        QStringLiteral("case \"$images \" in *' 1 '*) echo 'cannot read P1b.jpg'; exit 4;; esac\n")
            + nona } }, shoot);
    QVERIFY(!options.project.isEmpty());
    QVector<int> failing;
    for (const QVector<int>& share : nonaShares({ 0, 1, 2, 3, 4, 5 })) {
        if (share.contains(1))
            failing = share;
    }
    QStringList numbers;
    for (int image : failing)
        numbers << QString::number(image);
    const QString named = (failing.size() == 1 ? QStringLiteral("image ") : QStringLiteral("images "))
        + numbers.join(QStringLiteral(", "));
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QCOMPARE(result.outcome, Result::Failed);
    QCOMPARE(result.step, 6);
    QCOMPARE(result.tool, QStringLiteral("nona"));
    // The reason ends with the last lines of that nona.
    QVERIFY2(result.error.startsWith(named + QStringLiteral(": nona exit code 4: ")),
        qPrintable(result.error));
    QVERIFY2(result.error.endsWith(QStringLiteral(" -i %1 %2 | cannot read P1b.jpg")
                                       .arg(failing.last())
                                       .arg(QFileInfo(result.stitchedProject).absoluteFilePath())),
        qPrintable(result.error));
    QCOMPARE(worker.events().last().phase, StepEvent::Failed);
    QCOMPARE(worker.events().last().note, result.error);
    QVERIFY(!QFileInfo::exists(result.panorama));
}

void tst_StitchPipeline::cancelEndsEveryNona()
{
    // Each nona starts a program of its own, says which one, and waits.
    const QString states = m_dir.filePath(QStringLiteral("nonas-%1").arg(m_folders + 1));
    QVERIFY(QDir().mkpath(states));
    const QString script = QStringLiteral("sleep 30 &\n"
                                          "echo \"$$ $!\" > \"%1/tmp-$$\"\n"
                                          "mv \"%1/tmp-$$\" \"%1/$$\"\n"
                                          "sleep 30")
                               .arg(states);
    Shoot shoot;
    shoot.stacked = true;
    StitchPipeline::Options options = makeStitch({ { QStringLiteral("nona"), script } }, shoot);
    QVERIFY(!options.project.isEmpty());
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    // One nona per core, up to one per picture of the six.
    const int parallel = qBound(1, QThread::idealThreadCount(), 6);
    const QDir folder(states);
    QTRY_VERIFY_WITH_TIMEOUT(
        folder.entryList({ QStringLiteral("[0-9]*") }, QDir::Files).size() == parallel, 10000);
    QTest::qWait(300);
    const QStringList started = folder.entryList({ QStringLiteral("[0-9]*") }, QDir::Files);
    QCOMPARE(started.size(), parallel);
    QVector<qint64> pids;
    for (const QString& name : started) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (const QString& pid :
            QString::fromLocal8Bit(file.readAll()).trimmed().split(QLatin1Char(' ')))
            pids << pid.toLongLong();
    }
    QCOMPARE(pids.size(), 2 * parallel);
    for (qint64 pid : pids)
        QVERIFY(processRuns(pid));

    QElapsedTimer timer;
    timer.start();
    pipeline.cancel();
    QTRY_VERIFY_WITH_TIMEOUT(worker.done(), 2000);
    worker.join();
    QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(worker.result().outcome, Result::Stopped);
    QCOMPARE(worker.result().tool, QStringLiteral("nona"));
    QCOMPARE(worker.events().last().phase, StepEvent::Stopped);
    // Every nona and what each started ended; no further one started.
    for (qint64 pid : pids)
        QTRY_VERIFY_WITH_TIMEOUT(!processRuns(pid), 2000);
    QCOMPARE(folder.entryList({ QStringLiteral("[0-9]*") }, QDir::Files).size(), parallel);
    const QDir work(worker.result().workFolder);
    QVERIFY(work.entryList({ QStringLiteral("remapped*") }).isEmpty());
}

void tst_StitchPipeline::referencesOnlyWithHardLinks_data()
{
    QTest::addColumn<int>("stackLinking");
    // How many images cpclean and autooptimiser are given.
    QTest::addColumn<int>("images");
    QTest::newRow("hard links") << 0 << 3;
    QTest::newRow("points inside stacks") << 1 << 6;
}

void tst_StitchPipeline::referencesOnlyWithHardLinks()
{
    QFETCH(int, stackLinking);
    QFETCH(int, images);
    Shoot shoot;
    shoot.stacked = true;
    shoot.stackLinking = stackLinking;
    const QString calls = m_dir.filePath(QStringLiteral("calls-%1").arg(m_folders + 1));
    // autooptimiser turns the second position (yaw 40) to yaw 41 and its
    // field of view to 50.
    const QString count = QStringLiteral("echo \"$(basename $0) $(grep -c '^i ' \"$last\")\" >> \"%1\"\n")
                              .arg(calls);
    StitchPipeline::Options options = makeStitch(
        { { QStringLiteral("cpclean"), count + QStringLiteral("cp \"$last\" \"$out\"") },
            { QStringLiteral("autooptimiser"),
                count
                    + QStringLiteral("sed -e 's/ y40 / y41 /' -e 's/ v52.6 / v50 /' \"$last\" > "
                                     "\"$out\"") } },
        shoot);
    QVERIFY(!options.project.isEmpty());
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QVERIFY2(result.succeeded(), qPrintable(result.error));
    QFile file(calls);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromLocal8Bit(file.readAll()),
        QStringLiteral("cpclean %1\nautooptimiser %1\n").arg(images));

    // The whole project comes out, every exposure where its reference is,
    // with the reference's lens, and the control point between the references.
    PtoProject final;
    QString error;
    QVERIFY2(final.read(result.stitchedProject, &error), qPrintable(error));
    QCOMPARE(final.imageCount(), 6);
    const double yaws[] = { 0, 0, 41, 41, 160, 160 };
    for (int i = 0; i < 6; ++i) {
        bool ok = false;
        QCOMPARE(final.number(i, QStringLiteral("y"), &ok), yaws[i]);
        QVERIFY(ok);
        QCOMPARE(final.number(i, QStringLiteral("v"), &ok), 50.0);
        QCOMPARE(final.imageName(i).section(QLatin1Char('/'), -1),
            QStringLiteral("P%1%2.jpg").arg(i / 2 + 1).arg(i % 2 ? "b" : ""));
    }
    QCOMPARE(final.value(1, QStringLiteral("Eev")), QStringLiteral("13.9"));
    QCOMPARE(final.controlPoints().size(), 1);
    QCOMPARE(final.controlPoints().first().first, 0);
    QCOMPARE(final.controlPoints().first().second, stackLinking == 0 ? 2 : 1);
}

void tst_StitchPipeline::optimisesWhatTheHeadLeavesOpen_data()
{
    QTest::addColumn<float>("focalLength");
    QTest::addColumn<bool>("recorded");
    QTest::addColumn<bool>("skip");
    QTest::addColumn<bool>("oneExposure");
    // autooptimiser's options (single pictures: with photometric
    // optimisation) and the project's v lines it is given.
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("variables");
    QTest::addColumn<QByteArray>("canvas");
    const QByteArray sphere;
    QTest::newRow("recorded positions, known focal length")
        << 35.0f << true << false << false << "-n -m -l"
        << "v y1 p1 r1|v y2 p2 r2|v|" << sphere;
    QTest::newRow("unknown focal length") << 0.0f << true << false << false << "-n -m -l"
                                          << "v v0|v y1 p1 r1|v y2 p2 r2|v|" << sphere;
    QTest::newRow("every pair searched") << 35.0f << false << false << false << "-a -m -l"
                                         << "v r1 p1 y1|v r2 p2 y2|v|" << sphere;
    QTest::newRow("skip optimization") << 35.0f << true << true << false << "-m -l"
                                       << "v r1 p1 y1|v r2 p2 y2|v|" << sphere;
    // Nothing to bring to one exposure: no photometric optimisation.
    QTest::newRow("one exposure value") << 35.0f << true << false << true << "-n -l"
                                        << "v y1 p1 r1|v y2 p2 r2|v|" << sphere;
    QTest::newRow("one exposure value, every pair searched")
        << 35.0f << false << false << true << "-a -l"
        << "v r1 p1 y1|v r2 p2 y2|v|" << sphere;
    // A canvas that may leave pictures outside: autooptimiser chooses one.
    const QString variables = QStringLiteral("v y1 p1 r1|v y2 p2 r2|v|");
    QTest::newRow("rectilinear canvas") << 35.0f << true << false << false << "-n -m -l -s"
                                        << variables << QByteArray("f0 w2736 h1368 v360");
    QTest::newRow("equirectangular, part of the sphere")
        << 35.0f << true << false << false << "-n -m -l -s" << variables
        << QByteArray("f2 w2736 h1368 v180");
    QTest::newRow("equirectangular, a band of the sphere")
        << 35.0f << true << false << false << "-n -m -l -s" << variables
        << QByteArray("f2 w2736 h600 v360");
    QTest::newRow("cylindrical, whole width") << 35.0f << true << false << false << "-n -m -l -s"
                                              << variables << QByteArray("f1 w2736 h1368 v360");
}

void tst_StitchPipeline::optimisesWhatTheHeadLeavesOpen()
{
    QFETCH(float, focalLength);
    QFETCH(bool, recorded);
    QFETCH(bool, skip);
    QFETCH(bool, oneExposure);
    QFETCH(QString, options);
    QFETCH(QString, variables);
    QFETCH(QByteArray, canvas);
    Shoot shoot;
    shoot.canvas = canvas;
    shoot.focalLength = focalLength;
    shoot.useRecordedLocation = recorded;
    shoot.skipOptimization = skip;
    shoot.oneExposure = oneExposure;
    const QString calls = m_dir.filePath(QStringLiteral("calls-%1").arg(m_folders + 1));
    StitchPipeline::Options stitch = makeStitch({ { QStringLiteral("autooptimiser"),
                                                    QStringLiteral("echo \"$*\" >> \"%1\"\n"
                                                                   "grep '^v' \"$last\" | tr '\\n' "
                                                                   "'|' >> \"%1\"\n"
                                                                   "cp \"$last\" \"$out\"")
                                                        .arg(calls) } },
        shoot);
    QVERIFY(!stitch.project.isEmpty());
    StitchPipeline pipeline(stitch);
    Worker worker(pipeline);
    worker.join();
    QVERIFY2(worker.result().succeeded(), qPrintable(worker.result().error));
    QFile file(calls);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromLocal8Bit(file.readAll()).split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines[0].startsWith(options + QStringLiteral(" -o ")), qPrintable(lines[0]));
    QCOMPARE(lines[1], variables);
}

void tst_StitchPipeline::centresAcrossTheSeam_data()
{
    // The three pictures' positions ("y0 ", "y40 ", "y160 " at pitch 0) and
    // their field of view, and whether pano_modify is to centre them.
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<QByteArray>("third");
    QTest::addColumn<QByteArray>("fov");
    QTest::addColumn<bool>("centred");
    QTest::newRow("0 to 80") << QByteArray("p0 y0 ") << QByteArray("p0 y40 ")
                             << QByteArray("p0 y80 ") << QByteArray("v52.6 ") << false;
    QTest::newRow("150 to 210, across the edge")
        << QByteArray("p0 y150 ") << QByteArray("p0 y180 ") << QByteArray("p0 y-150 ")
        << QByteArray("v52.6 ") << true;
    QTest::newRow("a picture at 160 reaching past 180")
        << QByteArray("p0 y0 ") << QByteArray("p0 y40 ") << QByteArray("p0 y160 ")
        << QByteArray("v52.6 ") << true;
    QTest::newRow("all the way round") << QByteArray("p0 y0 ") << QByteArray("p0 y120 ")
                                       << QByteArray("p0 y-120 ") << QByteArray("v130 ") << false;
    QTest::newRow("gaps, no picture across the edge")
        << QByteArray("p0 y0 ") << QByteArray("p0 y120 ") << QByteArray("p0 y-120 ")
        << QByteArray("v80 ") << false;
    QTest::newRow("gaps, a picture across the edge")
        << QByteArray("p0 y0 ") << QByteArray("p0 y120 ") << QByteArray("p0 y180 ")
        << QByteArray("v80 ") << true;
    QTest::newRow("across the edge, one picture at a pole")
        << QByteArray("p0 y150 ") << QByteArray("p0 y180 ") << QByteArray("p80 y-150 ")
        << QByteArray("v52.6 ") << false;
}

void tst_StitchPipeline::centresAcrossTheSeam()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    QFETCH(QByteArray, third);
    QFETCH(QByteArray, fov);
    QFETCH(bool, centred);
    Shoot shoot;
    shoot.changes
        = { { "p0 y0 ", first }, { "p0 y40 ", second }, { "p0 y160 ", third }, { "v52.6 ", fov } };
    const QString calls = m_dir.filePath(QStringLiteral("pano_modify-calls-%1").arg(m_folders + 1));
    StitchPipeline::Options stitch
        = makeStitch({ { QStringLiteral("pano_modify"),
                         QStringLiteral("echo \"$*\" >> \"%1\"\n").arg(calls)
                             + wellBehavedTools().value(QStringLiteral("pano_modify")) } },
            shoot);
    QVERIFY(!stitch.project.isEmpty());
    StitchPipeline pipeline(stitch);
    Worker worker(pipeline);
    worker.join();
    QVERIFY2(worker.result().succeeded(), qPrintable(worker.result().error));
    QFile file(calls);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString options = QString::fromLocal8Bit(file.readAll());
    QVERIFY2(options.startsWith(QLatin1String("--center ")) == centred, qPrintable(options));
    QVERIFY(options.contains(QLatin1String("--canvas=AUTO --crop=AUTO -o ")));
}

void tst_StitchPipeline::correlationOrCpfind_data()
{
    QTest::addColumn<bool>("recorded");
    QTest::addColumn<bool>("flatSecond");
    QTest::addColumn<bool>("option");
    QTest::addColumn<bool>("cpfindRuns");
    QTest::addColumn<QString>("note");
    const QString correlated
        = QStringLiteral("^\\d+ points by correlation at the recorded positions$");
    QTest::newRow("recorded positions: correlation")
        << true << false << false << false << correlated;
    QTest::newRow("cpfind asked for")
        << true << false << true << true << QStringLiteral("^1 points$");
    QTest::newRow("without recorded positions")
        << false << false << false << true << QStringLiteral("^1 points$");
    QTest::newRow("a linked pair without points falls back")
        << true << true << false << true
        << QStringLiteral("^1 points by cpfind: correlation found none for stacks 0-1$");
}

void tst_StitchPipeline::correlationOrCpfind()
{
    QFETCH(bool, recorded);
    QFETCH(bool, flatSecond);
    QFETCH(bool, option);
    QFETCH(bool, cpfindRuns);
    QFETCH(QString, note);
    Shoot shoot;
    shoot.samplePictures = true;
    shoot.flatSecond = flatSecond;
    shoot.useRecordedLocation = recorded;
    const QString marker = m_dir.filePath(QStringLiteral("cpfind-ran-%1").arg(m_folders + 1));
    const QString cleanCalls
        = m_dir.filePath(QStringLiteral("cpclean-calls-%1").arg(m_folders + 1));
    StitchPipeline::Options options
        = makeStitch({ { QStringLiteral("cpfind"),
                           QStringLiteral("touch \"%1\"\n").arg(marker)
                               + wellBehavedTools().value(QStringLiteral("cpfind")) },
                         { QStringLiteral("cpclean"),
                             QStringLiteral("echo \"$*\" >> \"%1\"\n").arg(cleanCalls)
                                 + wellBehavedTools().value(QStringLiteral("cpclean")) } },
            shoot);
    QVERIFY(!options.project.isEmpty());
    options.cpfind = option;
    StitchPipeline pipeline(options);
    Worker worker(pipeline);
    worker.join();
    const Result& result = worker.result();
    QVERIFY2(result.succeeded(), qPrintable(result.error));
    QCOMPARE(QFile::exists(marker), cpfindRuns);

    const QVector<StepEvent> events = startsAndEnds(worker.events());
    QVERIFY(events.size() > 4);
    QCOMPARE(events[1].tool, QStringLiteral("cpfind"));
    QCOMPARE(events[1].phase, StepEvent::Done);
    QVERIFY2(QRegularExpression(note).match(events[1].note).hasMatch(), qPrintable(events[1].note));
    // Points by correlation were checked against their pair's rotation as
    // they were found: cpclean checks them pair by pair only (-p). cpfind's
    // points get both of its checks.
    QFile cleaning(cleanCalls);
    QVERIFY(cleaning.open(QIODevice::ReadOnly));
    const QString cleaningOptions = QString::fromLocal8Bit(cleaning.readAll());
    QCOMPARE(cleaningOptions.startsWith(QLatin1String("-p ")), !cpfindRuns);

    PtoProject found;
    QString error;
    const QDir work(result.workFolder);
    QVERIFY2(found.read(work.filePath(QStringLiteral("01-cpfind.pto")), &error), qPrintable(error));
    const QVector<PtoProject::ControlPoint> points = found.controlPoints();
    if (cpfindRuns) {
        QCOMPARE(points.size(), 1);
        return;
    }
    // Only the linked pair is searched; its points agree with the recorded
    // positions to within their error of about a degree.
    QVERIFY2(points.size() >= 10, qPrintable(QString::number(points.size())));
    for (const PtoProject::ControlPoint& point : points) {
        QCOMPARE(point.first, 0);
        QCOMPARE(point.second, 1);
        bool ok = false;
        QVERIFY(found.pointError(point, &ok) < 2.0);
        QVERIFY(ok);
    }
    QCOMPARE(events[3].note, QStringLiteral("%1 points kept, 0 removed").arg(points.size()));
    QFile log(result.log);
    QVERIFY(log.open(QIODevice::ReadOnly));
    QVERIFY(log.readAll().contains("correlation of 1 pairs of pictures"));
}

QTEST_GUILESS_MAIN(tst_StitchPipeline)
#include "tst_StitchPipeline.moc"
