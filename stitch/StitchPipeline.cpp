#include "StitchPipeline.h"

#include "ControlPointFilter.h"
#include "DescriptionJson.h"
#include "ImageSize.h"
#include "PtoProject.h"
#include "ToolRunner.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QVector>

#include <cerrno>
#include <cstdio>
#include <cstring>

// cancel() stores into the flag from signal handlers too.
static_assert(std::atomic<bool>::is_always_lock_free, "the stop flag must be lock-free");

namespace {

/// What one step reports: empty error on success, else why it failed.
struct Outcome
{
    QString error;
    QString note;
    /// The step's program was ended by cancel().
    bool stopped = false;
};

/// The state the steps pass on.
struct Stitch
{
    StitchPipeline::Options options;
    ToolRunner tools;
    const std::atomic<bool>* stop = nullptr;
    StructuredPanoramaProperties panorama;
    /// Per image of the project: its stack and whether it is the stack's first.
    QVector<int> stackOf;
    QVector<bool> isReference;
    QVector<int> references;
    QDir work;
    QString log;
    /// The project the next step reads.
    QString current;
    PtoProject currentProject;
    int imageCount = 0;

    QString workFile(const QString& name) const { return work.filePath(name); }

    ToolRunner::Result run(const QString& tool, const QStringList& arguments) const
    {
        return tools.run(tool, arguments, work.absolutePath(), log, options.timeoutSeconds, stop);
    }
};

/// "cpfind exit code 3: <the last lines of its output>".
Outcome toolFailure(const QString& tool, const ToolRunner::Result& result)
{
    Outcome outcome;
    outcome.error = QStringLiteral("%1 %2%3").arg(tool, result.failure(),
        result.tail.isEmpty() ? QString() : QStringLiteral(": ") + result.tail);
    outcome.stopped = result.stopped;
    return outcome;
}

Outcome failure(const QString& error)
{
    return { error, QString(), false };
}

Outcome done(const QString& note = QString())
{
    return { QString(), note, false };
}

QString pairText(const QMap<QPair<int, int>, int>& removed)
{
    QStringList pairs;
    for (auto it = removed.constBegin(); it != removed.constEnd(); ++it)
        pairs << QStringLiteral("%1-%2").arg(it.key().first).arg(it.key().second);
    return pairs.join(QStringLiteral(", "));
}

/// Runs a tool that writes a project, and checks that it wrote a project of
/// all the images (Hugin's tools may end with exit code 0 having written
/// nothing useful). A tool that failed leaves no output behind.
Outcome runProjectTool(Stitch& s, const QString& tool, const QStringList& arguments,
    const QString& output, PtoProject* written, int expectedImages)
{
    QFile::remove(output);
    const ToolRunner::Result result = s.run(tool, arguments);
    if (!result.succeeded()) {
        QFile::remove(output);
        return toolFailure(tool, result);
    }
    if (!QFileInfo(output).isFile() || QFileInfo(output).size() == 0)
        return failure(QStringLiteral("%1 wrote no project (%2)").arg(tool, output));
    QString error;
    if (!written->read(output, &error))
        return failure(
            QStringLiteral("%1 wrote a project that cannot be read: %2").arg(tool, error));
    if (written->imageCount() != expectedImages)
        return failure(QStringLiteral("%1 wrote a project of %2 images instead of %3")
                           .arg(tool)
                           .arg(written->imageCount())
                           .arg(expectedImages));
    return done();
}

Outcome findControlPoints(Stitch& s)
{
    const StructuredPanoramaProperties& p = s.panorama;
    // With hard links inside the stacks and links detected in the reference
    // level, only the stacks' first images need control points.
    const bool referencesOnly
        = p.m_levelLinking == 0 && p.m_stackLinking == 0 && s.references.size() < s.imageCount;
    QString input = s.current;
    int expected = s.imageCount;
    if (referencesOnly) {
        input = s.workFile(QStringLiteral("01-references.pto"));
        QString error;
        if (!s.currentProject.subset(s.references).write(input, &error))
            return failure(error);
        expected = s.references.size();
    }
    const QString output = s.workFile(referencesOnly ? QStringLiteral("01-cpfind-references.pto")
                                                     : QStringLiteral("01-cpfind.pto"));
    QStringList arguments;
    // "Use recorded location": the recorded positions say which pictures
    // overlap; otherwise every pair is tried, row by row.
    arguments << (p.m_useRecordedLocation ? QStringLiteral("--prealigned")
                                          : QStringLiteral("--multirow"))
              // Up to 3 points per cell of the overlap's 5 × 5 grid: the
              // narrow overlaps of a motorised head then hold enough points.
              << QStringLiteral("--sieve2size=3") << QStringLiteral("-o") << output << input;
    PtoProject found;
    Outcome outcome
        = runProjectTool(s, QStringLiteral("cpfind"), arguments, output, &found, expected);
    if (!outcome.error.isEmpty())
        return outcome;
    QVector<PtoProject::ControlPoint> points = found.controlPoints();
    if (points.isEmpty())
        return failure(QStringLiteral("cpfind found no control points"));
    if (referencesOnly) {
        for (PtoProject::ControlPoint& point : points)
            point = PtoProject::renumbered(point, s.references);
        PtoProject full = s.currentProject;
        full.setControlPoints(points);
        const QString merged = s.workFile(QStringLiteral("01-cpfind.pto"));
        QString error;
        if (!full.write(merged, &error))
            return failure(error);
        s.current = merged;
        s.currentProject = full;
    } else {
        s.current = output;
        s.currentProject = found;
    }
    return done(QStringLiteral("%1 points").arg(points.size()));
}

Outcome removeUnlinkedPoints(Stitch& s)
{
    const ControlPointFilter filter(
        s.panorama, s.stackOf, s.isReference, s.panorama.m_levelLinking == 0);
    QMap<QPair<int, int>, int> removed;
    const QVector<PtoProject::ControlPoint> before = s.currentProject.controlPoints();
    const QVector<PtoProject::ControlPoint> kept = filter.filter(before, &removed);
    if (kept.isEmpty())
        return failure(QStringLiteral("no control point joins two linked stacks (%1 removed)")
                           .arg(before.size()));
    PtoProject project = s.currentProject;
    project.setControlPoints(kept);
    const QString output = s.workFile(QStringLiteral("02-links.pto"));
    QString error;
    if (!project.write(output, &error))
        return failure(error);
    s.current = output;
    s.currentProject = project;
    QString note = QStringLiteral("%1 points kept, %2 removed")
                       .arg(kept.size())
                       .arg(before.size() - kept.size());
    if (!removed.isEmpty())
        note += QStringLiteral(" (stacks %1)").arg(pairText(removed));
    return done(note);
}

Outcome cleanPoints(Stitch& s)
{
    const QString output = s.workFile(QStringLiteral("03-cpclean.pto"));
    PtoProject cleaned;
    Outcome outcome = runProjectTool(s, QStringLiteral("cpclean"),
        { QStringLiteral("-o"), output, s.current }, output, &cleaned, s.imageCount);
    if (!outcome.error.isEmpty())
        return outcome;
    const int before = s.currentProject.controlPoints().size();
    const int after = cleaned.controlPoints().size();
    if (after == 0)
        return failure(QStringLiteral("cpclean removed every control point"));
    s.current = output;
    s.currentProject = cleaned;
    return done(QStringLiteral("%1 points kept, %2 removed").arg(after).arg(before - after));
}

Outcome optimise(Stitch& s)
{
    const bool points = !s.currentProject.controlPoints().isEmpty();
    QStringList arguments;
    if (points && !s.panorama.m_skipOptimization)
        arguments << QStringLiteral("-a") << QStringLiteral("-m") << QStringLiteral("-l");
    else if (points)
        arguments << QStringLiteral("-m") << QStringLiteral("-l");
    arguments << QStringLiteral("-s");
    const QString output = s.workFile(QStringLiteral("04-optimised.pto"));
    arguments << QStringLiteral("-o") << output << s.current;
    PtoProject optimised;
    Outcome outcome = runProjectTool(
        s, QStringLiteral("autooptimiser"), arguments, output, &optimised, s.imageCount);
    if (!outcome.error.isEmpty())
        return outcome;
    for (int i = 0; i < optimised.imageCount(); ++i) {
        for (const char* v : { "y", "p", "r", "v" }) {
            bool ok = false;
            optimised.number(i, QLatin1String(v), &ok);
            if (!ok)
                return failure(QStringLiteral("autooptimiser left image %1 without a valid %2 (%3)")
                                   .arg(i)
                                   .arg(QLatin1String(v), optimised.value(i, QLatin1String(v))));
        }
    }
    if (!optimised.panoramaSize().isValid() || optimised.panoramaSize().isEmpty())
        return failure(QStringLiteral("autooptimiser chose no panorama size"));
    s.current = output;
    s.currentProject = optimised;
    return done(points ? QString() : QStringLiteral("no control points: recorded positions"));
}

Outcome chooseCanvas(Stitch& s)
{
    const QString output = s.workFile(QStringLiteral("05-final.pto"));
    PtoProject final;
    Outcome outcome = runProjectTool(s, QStringLiteral("pano_modify"),
        { QStringLiteral("--canvas=AUTO"), QStringLiteral("--crop=AUTO"), QStringLiteral("-o"),
            output, s.current },
        output, &final, s.imageCount);
    if (!outcome.error.isEmpty())
        return outcome;
    const QSize size = final.panoramaSize();
    if (!size.isValid() || size.isEmpty())
        return failure(QStringLiteral("pano_modify chose no canvas"));
    if (final.crop().isNull())
        return failure(QStringLiteral("pano_modify found no crop inside the canvas"));
    s.current = output;
    s.currentProject = final;
    return done(QStringLiteral("canvas %1 × %2, crop %3 × %4")
                    .arg(size.width())
                    .arg(size.height())
                    .arg(final.crop().width())
                    .arg(final.crop().height()));
}

QString remappedFile(const Stitch& s, int image)
{
    return s.workFile(QStringLiteral("remapped%1.tif").arg(image, 4, 10, QLatin1Char('0')));
}

void removeRemapped(const Stitch& s)
{
    for (const QFileInfo& old : s.work.entryInfoList({ QStringLiteral("remapped*.tif") }))
        QFile::remove(old.absoluteFilePath());
}

Outcome remap(Stitch& s)
{
    removeRemapped(s);
    // The first image of every stack, corrected to the panorama's exposure.
    QStringList arguments = { QStringLiteral("-m"), QStringLiteral("TIFF_m"), QStringLiteral("-o"),
        s.workFile(QStringLiteral("remapped")) };
    for (int image : s.references)
        arguments << QStringLiteral("-i") << QString::number(image);
    arguments << s.current;
    const ToolRunner::Result result = s.run(QStringLiteral("nona"), arguments);
    if (!result.succeeded()) {
        if (result.stopped || result.timedOut)
            removeRemapped(s);
        return toolFailure(QStringLiteral("nona"), result);
    }
    int written = 0;
    for (int image : s.references) {
        const QFileInfo file(remappedFile(s, image));
        if (file.isFile() && file.size() > 0)
            ++written;
    }
    if (written == 0)
        return failure(QStringLiteral("nona wrote no remapped picture"));
    // A picture that lies wholly outside the crop is not written; that is no error.
    return done(QStringLiteral("%1 of %2 pictures").arg(written).arg(s.references.size()));
}

/// Where enblend writes before the panorama is checked: beside it, so that
/// the finished file takes its name by a rename and no half-written panorama
/// ever carries the panorama's name.
QString partialPanorama(const QString& output)
{
    const QFileInfo info(output);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    return info.absoluteDir().filePath(
        info.completeBaseName() + QStringLiteral(".partial") + suffix);
}

Outcome blendInto(Stitch& s, const QString& partial)
{
    QStringList arguments = { QStringLiteral("-o"), partial };
    const QString suffix = QFileInfo(s.options.output).suffix().toLower();
    if (suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg"))
        arguments << QStringLiteral("--compression=90");
    for (int image : s.references) {
        if (QFileInfo(remappedFile(s, image)).isFile())
            arguments << remappedFile(s, image);
    }
    const ToolRunner::Result result = s.run(QStringLiteral("enblend"), arguments);
    if (!result.succeeded())
        return toolFailure(QStringLiteral("enblend"), result);
    const QFileInfo file(partial);
    if (!file.isFile() || file.size() == 0)
        return failure(QStringLiteral("enblend wrote no panorama"));
    const QSize size = ImageSize::read(partial);
    const QSize expected = s.currentProject.crop().size();
    if (size != expected)
        return failure(QStringLiteral("enblend wrote a panorama of %1 × %2 instead of %3 × %4")
                           .arg(size.width())
                           .arg(size.height())
                           .arg(expected.width())
                           .arg(expected.height()));
    // rename(2) replaces an older panorama in one step; QFile::rename would not.
    if (std::rename(
            QFile::encodeName(partial).constData(), QFile::encodeName(s.options.output).constData())
        != 0)
        return failure(
            QStringLiteral("cannot rename %1 to %2: %3")
                .arg(partial, s.options.output, QString::fromLocal8Bit(std::strerror(errno))));
    return done(QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()));
}

Outcome blend(Stitch& s)
{
    // An older panorama stays until the new one, complete and checked, takes
    // its name; a failed or stopped blend leaves it as it was.
    const QString partial = partialPanorama(s.options.output);
    QFile::remove(partial);
    const Outcome outcome = blendInto(s, partial);
    if (!outcome.error.isEmpty())
        QFile::remove(partial);
    return outcome;
}

struct StepDefinition
{
    const char* tool;
    const char* name;
    Outcome (*run)(Stitch&);
    /// Runs only when control points are looked for ("Auto detection").
    bool detection;
};

const StepDefinition Steps[] = {
    { "cpfind", QT_TRANSLATE_NOOP("StitchPipeline", "Finding control points"), findControlPoints,
        true },
    { "links",
        QT_TRANSLATE_NOOP("StitchPipeline", "Removing points between positions that do not meet"),
        removeUnlinkedPoints, true },
    { "cpclean", QT_TRANSLATE_NOOP("StitchPipeline", "Removing wrong points"), cleanPoints, true },
    { "autooptimiser", QT_TRANSLATE_NOOP("StitchPipeline", "Placing the pictures"), optimise,
        false },
    { "pano_modify", QT_TRANSLATE_NOOP("StitchPipeline", "Choosing canvas and crop"), chooseCanvas,
        false },
    { "nona", QT_TRANSLATE_NOOP("StitchPipeline", "Remapping"), remap, false },
    { "enblend", QT_TRANSLATE_NOOP("StitchPipeline", "Blending"), blend, false },
};

QString withSuffix(const QString& project, const QString& suffix)
{
    const QFileInfo info(project);
    return info.absoluteDir().filePath(info.completeBaseName() + suffix);
}

} // namespace

StitchPipeline::StitchPipeline(const Options& options) : m_options(options) { }

void StitchPipeline::setProgress(Progress progress)
{
    m_progress = std::move(progress);
}

void StitchPipeline::cancel()
{
    m_cancelled.store(true);
}

bool StitchPipeline::isCancelled() const
{
    return m_cancelled.load();
}

QStringList StitchPipeline::programs()
{
    QStringList names;
    for (const StepDefinition& step : Steps) {
        if (QLatin1String(step.tool) != QLatin1String("links"))
            names << QLatin1String(step.tool);
    }
    return names;
}

StitchPipeline::Result StitchPipeline::run()
{
    QElapsedTimer total;
    total.start();
    Result result;
    const auto finish = [&result, &total](Result::Outcome outcome, const QString& error) {
        result.outcome = outcome;
        result.error = error;
        result.elapsedMilliseconds = total.elapsed();
        return result;
    };
    Stitch s;
    s.options = m_options;
    s.tools = ToolRunner(m_options.tools);
    s.stop = &m_cancelled;
    Options& o = s.options;
    const QFileInfo projectInfo(o.project);
    if (!projectInfo.isFile())
        return finish(Result::Failed,
            QStringLiteral("cannot read the project %1: no such file").arg(o.project));
    o.project = projectInfo.absoluteFilePath();
    if (o.description.isEmpty())
        o.description = withSuffix(o.project, QStringLiteral(".json"));
    if (o.output.isEmpty())
        o.output = withSuffix(o.project, QStringLiteral(".tif"));
    o.output = QFileInfo(o.output).absoluteFilePath();
    if (o.workFolder.isEmpty())
        o.workFolder = withSuffix(o.project, QStringLiteral(".stitch"));
    o.workFolder = QFileInfo(o.workFolder).absoluteFilePath();
    result.panorama = o.output;
    result.workFolder = o.workFolder;

    QString error;
    if (!s.currentProject.read(o.project, &error))
        return finish(Result::Failed, error);
    if (!DescriptionJson::read(o.description, &s.panorama, &error))
        return finish(Result::Failed, error);
    if (!ControlPointFilter::matchStacks(s.currentProject, projectInfo.absolutePath(), s.panorama,
            &s.stackOf, &s.isReference, &error))
        return finish(Result::Failed, error);
    s.imageCount = s.currentProject.imageCount();
    for (int i = 0; i < s.imageCount; ++i) {
        if (s.isReference[i])
            s.references << i;
    }
    for (const QString& tool : programs()) {
        if (s.tools.program(tool).isEmpty())
            return finish(Result::Failed,
                QStringLiteral("Hugin's program %1 is not found in %2")
                    .arg(tool, o.tools.isEmpty() ? QStringLiteral("PATH") : o.tools));
    }
    if (!QDir().mkpath(o.workFolder))
        return finish(
            Result::Failed, QStringLiteral("cannot create the work folder %1").arg(o.workFolder));
    s.work = QDir(o.workFolder);
    s.log = s.work.filePath(QStringLiteral("stitch.log"));
    result.log = s.log;
    QFile::remove(s.log);
    // The work folder's projects name their images by absolute paths.
    s.currentProject.makeImageNamesAbsolute(projectInfo.absolutePath());
    s.current = s.work.filePath(QStringLiteral("00-project.pto"));
    if (!s.currentProject.write(s.current, &error))
        return finish(Result::Failed, error);
    result.stitchedProject = s.current;

    QVector<const StepDefinition*> steps;
    for (const StepDefinition& step : Steps) {
        if (!step.detection || s.panorama.m_autoDetection)
            steps << &step;
    }
    result.stepCount = steps.size();
    for (int i = 0; i < steps.size(); ++i) {
        const StepDefinition& step = *steps[i];
        result.step = i + 1;
        result.tool = QLatin1String(step.tool);
        result.name = QLatin1String(step.name);
        if (isCancelled())
            return finish(Result::Stopped, QString());
        StepEvent event;
        event.step = result.step;
        event.count = result.stepCount;
        event.tool = result.tool;
        event.name = result.name;
        if (m_progress)
            m_progress(event);
        QElapsedTimer timer;
        timer.start();
        const Outcome outcome = step.run(s);
        result.stitchedProject = s.current;
        event.elapsedMilliseconds = timer.elapsed();
        event.phase = outcome.stopped ? StepEvent::Stopped
            : outcome.error.isEmpty() ? StepEvent::Done
                                      : StepEvent::Failed;
        event.note = outcome.stopped  ? QString()
            : outcome.error.isEmpty() ? outcome.note
                                      : outcome.error;
        if (m_progress)
            m_progress(event);
        if (outcome.stopped)
            return finish(Result::Stopped, QString());
        if (!outcome.error.isEmpty())
            return finish(Result::Failed, outcome.error);
    }
    result.step = 0;
    result.tool.clear();
    result.name.clear();
    result.panoramaSize = ImageSize::read(o.output);
    return finish(Result::Succeeded, QString());
}
