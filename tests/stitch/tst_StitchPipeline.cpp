// The stitch pipeline on a worker thread, driven through stand-ins for
// Hugin's programs (shell scripts in a temporary tools folder): the progress
// callback's events, each step's failure, and cancel() and the timeout
// ending a hanging program's whole process group without leaving its
// partial output.
#include "DescriptionJson.h"
#include "StitchPipeline.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <thread>

namespace {

using StepEvent = StitchPipeline::StepEvent;
using Result = StitchPipeline::Result;

/// Three stacks of one picture each: stacks 0 and 1 (yaw 0 and 40) are
/// linked, stack 2 (yaw 160) is not.
const char ProjectText[] = "p f2 w2736 h1368 v360 E12.9 R0 n\"TIFF_m c:LZW r:CROP\"\n"
                           "m i0\n"
                           "i w400 h300 f0 v52.6 Eev12.9 Er1 Eb1 r0 p0 y0 n\"P1.jpg\"\n"
                           "i w400 h300 f0 v=0 Eev12.9 Er1 Eb1 r0 p0 y40 n\"P2.jpg\"\n"
                           "i w400 h300 f0 v=0 Eev12.9 Er1 Eb1 r0 p0 y160 n\"P3.jpg\"\n"
                           "v r1 p1 y1\nv r2 p2 y2\nv\n";

/// A script with $out (after -o), $last (the last argument) and $images
/// (after each -i) set, then body.
bool writeScript(const QString& path, const QString& body)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("#!/bin/sh\nout=; prev=; last=; images=\n"
               "for a in \"$@\"; do\n"
               "  [ \"$prev\" = \"-o\" ] && out=\"$a\"\n"
               "  [ \"$prev\" = \"-i\" ] && images=\"$images $a\"\n"
               "  prev=\"$a\"; last=\"$a\"\n"
               "done\n");
    file.write(body.toUtf8());
    file.write("\n");
    file.close();
    return file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/// What each stand-in does when it behaves: the project passes through, the
/// control point finder adds one point between the linked stacks 0 and 1,
/// the canvas gets a 100 × 50 crop, nona writes its pictures and enblend a
/// 100 × 50 TIFF header.
QMap<QString, QString> wellBehavedTools()
{
    return {
        { QStringLiteral("cpfind"),
            QStringLiteral("cp \"$last\" \"$out\"; echo 'c n0 N1 x1 y1 X2 Y2 t0' >> \"$out\"") },
        { QStringLiteral("cpclean"), QStringLiteral("cp \"$last\" \"$out\"") },
        { QStringLiteral("autooptimiser"), QStringLiteral("cp \"$last\" \"$out\"") },
        { QStringLiteral("pano_modify"),
            QStringLiteral("sed 's/^p \\(.*\\)$/p \\1 S0,100,0,50/' \"$last\" > \"$out\"") },
        { QStringLiteral("nona"),
            QStringLiteral("for i in $images; do printf x > \"$(printf '%s%04d.tif' \"$out\" "
                           "\"$i\")\"; done") },
        { QStringLiteral("enblend"),
            QStringLiteral("printf '\\111\\111\\052\\000\\010\\000\\000\\000\\002\\000"
                           "\\000\\001\\003\\000\\001\\000\\000\\000\\144\\000\\000\\000"
                           "\\001\\001\\003\\000\\001\\000\\000\\000\\062\\000\\000\\000"
                           "\\000\\000\\000\\000' > \"$out\"") },
    };
}

/// True while pid names a process that has not ended (a zombie has ended).
bool processRuns(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = stat.readAll();
    // "pid (name) S ...": the state follows the name's closing parenthesis.
    const int close = text.lastIndexOf(')');
    return close >= 0 && close + 2 < text.size() && text.at(close + 2) != 'Z';
}

/// Runs pipeline on a thread of its own, recording the events and the
/// thread they come on.
class Worker
{
public:
    explicit Worker(StitchPipeline& pipeline) : m_pipeline(pipeline)
    {
        pipeline.setProgress([this](const StepEvent& event) {
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
    QStringLiteral("nona"), QStringLiteral("enblend") };
const QStringList AllNames = { QStringLiteral("Finding control points"),
    QStringLiteral("Removing points between positions that do not meet"),
    QStringLiteral("Removing wrong points"), QStringLiteral("Placing the pictures"),
    QStringLiteral("Choosing canvas and crop"), QStringLiteral("Remapping"),
    QStringLiteral("Blending") };

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
    void endsTheProcessGroup_data();
    void endsTheProcessGroup();
    void cancelBeforeRun();

private:
    /// A folder with the project, its description and stand-in tools (the
    /// well-behaved ones with changes); its options for the pipeline.
    StitchPipeline::Options makeStitch(
        const QMap<QString, QString>& changes, bool autoDetection = true);

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
    const QDir folder(m_dir.filePath(QStringLiteral("stitch-%1").arg(++m_folders)));
    StitchPipeline::Options options;
    if (!QDir().mkpath(folder.filePath(QStringLiteral("tools"))))
        return options;
    QFile project(folder.filePath(QStringLiteral("shoot.pto")));
    if (!project.open(QIODevice::WriteOnly))
        return options;
    project.write(ProjectText);
    project.close();
    StructuredPanoramaProperties panorama;
    for (const char* name : { "P1.jpg", "P2.jpg", "P3.jpg" })
        panorama.m_stacks << QStringList { folder.filePath(QLatin1String(name)) };
    AuthorizedLink link;
    link.m_direction = 2;
    link.m_stackIndices = { 0, 1 };
    panorama.m_links = { link };
    panorama.m_autoDetection = autoDetection;
    QString error;
    if (!DescriptionJson::write(panorama, folder.filePath(QStringLiteral("shoot.json")), &error))
        return options;
    QMap<QString, QString> tools = wellBehavedTools();
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
    const QVector<StepEvent>& events = worker.events();
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
    // enblend wrote beside the panorama; only the checked panorama is left.
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
    QTest::newRow("enblend fails")
        << "enblend"
        << "printf x > \"$out\"; echo 'out of memory'; exit 1" << 7 << "enblend exit code 1: "
        << " | out of memory";
    QTest::newRow("enblend writes no picture")
        << "enblend"
        << "echo garbage > \"$out\"" << 7
        << "enblend wrote a panorama of -1 × -1 instead of 100 × 50" << QString();
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
    const QVector<StepEvent>& events = worker.events();
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
    QTest::newRow("enblend stopped") << "enblend" << project << 7 << true;
    QTest::newRow("cpfind timed out") << "cpfind" << project << 1 << false;
    QTest::newRow("enblend timed out") << "enblend" << project << 7 << false;
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

QTEST_GUILESS_MAIN(tst_StitchPipeline)
#include "tst_StitchPipeline.moc"
