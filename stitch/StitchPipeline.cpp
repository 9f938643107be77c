#include "StitchPipeline.h"

#include "ControlPointFilter.h"
#include "CorrelationMatcher.h"
#include "DescriptionJson.h"
#include "ImageSize.h"
#include "PhotoFiles.h"
#include "PtoProject.h"
#include "ToolRunner.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLockFile>
#include <QRegularExpression>
#include <QSet>
#include <QThread>
#include <QVector>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <ctime>

// cancel() stores into the flag from signal handlers too.
static_assert(std::atomic<bool>::is_always_lock_free, "the stop flag must be lock-free");

namespace {

/// The lock file a stitch holds in its work folder while it runs.
const char WorkLockName[] = "stitch.lock";

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
    /// Per stack its images in the project, the first one first.
    QVector<QVector<int>> stackImages;
    /// Some stack holds more than one image: its exposures are fused.
    bool stacked = false;
    bool hdr = false;
    /// The control points came from correlation, each pair's checked
    /// against the one rotation between its pictures.
    bool pointsByCorrelation = false;
    /// Where the fused panorama goes: the panorama, or for HDR the preview.
    QString fusedOutput;
    QDir work;
    QString log;
    /// The project the next step reads.
    QString current;
    PtoProject currentProject;
    int imageCount = 0;

    /// Tells the progress callback how much of the running step is done.
    std::function<void(int done, int total)> progressed = [](int, int) {};

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

/// With hard links inside the stacks, an image that is not its stack's
/// reference takes its position and lens from the reference, and when every
/// control point joins two references, tools that work on points and
/// positions need the references only: the other images add nothing but
/// their time.
bool referencesSuffice(const Stitch& s)
{
    if (s.panorama.m_stackLinking != 0 || s.references.size() == s.imageCount)
        return false;
    for (const PtoProject::ControlPoint& point : s.currentProject.controlPoints()) {
        if (!s.isReference.value(point.first) || !s.isReference.value(point.second))
            return false;
    }
    return true;
}

/// The i line with its links ("v=0") to image n of a project of the
/// references renumbered to mapping[n].
QString renumberedLinks(const QString& line, const QVector<int>& mapping)
{
    static const QRegularExpression link(QStringLiteral("(^|\\s)([A-Za-z]+)=(\\d+)"));
    QString result;
    int last = 0;
    QRegularExpressionMatchIterator it = link.globalMatch(line);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        const int image = match.captured(3).toInt();
        result += line.mid(last, match.capturedStart(3) - last);
        result += QString::number(mapping.value(image, image));
        last = match.capturedEnd(3);
    }
    return result + line.mid(last);
}

/// The current project with what a tool wrote into the references' project:
/// the references' image lines, the panorama line and the control points.
/// The other images keep their lines, whose links follow their references.
bool mergeReferences(const Stitch& s, const PtoProject& references, PtoProject* merged,
    QString* error)
{
    QStringList lines = s.currentProject.text().split(QLatin1Char('\n'));
    const QStringList written = references.text().split(QLatin1Char('\n'));
    const auto imageLines = [](const QStringList& text) {
        QVector<int> indices;
        for (int i = 0; i < text.size(); ++i) {
            if (text[i].startsWith(QLatin1String("i ")))
                indices << i;
        }
        return indices;
    };
    const QVector<int> fullImages = imageLines(lines);
    const QVector<int> writtenImages = imageLines(written);
    if (fullImages.size() != s.imageCount || writtenImages.size() != s.references.size()) {
        *error = QStringLiteral("the references' project does not match the project");
        return false;
    }
    for (int j = 0; j < s.references.size(); ++j)
        lines[fullImages[s.references[j]]]
            = renumberedLinks(written[writtenImages[j]], s.references);
    for (const QString& line : written) {
        if (!line.startsWith(QLatin1String("p ")))
            continue;
        for (QString& old : lines) {
            if (old.startsWith(QLatin1String("p ")))
                old = line;
        }
    }
    PtoProject project;
    if (!project.parse(lines.join(QLatin1Char('\n')), error))
        return false;
    QVector<PtoProject::ControlPoint> points = references.controlPoints();
    for (PtoProject::ControlPoint& point : points)
        point = PtoProject::renumbered(point, s.references);
    project.setControlPoints(points);
    *merged = project;
    return true;
}

/// runProjectTool on the whole project, or when the references suffice on
/// a project of the references (work/<name>-references.pto), merged back
/// into output.
Outcome runOnProject(Stitch& s, const QString& tool, const QStringList& options,
    const QString& output, PtoProject* written)
{
    if (!referencesSuffice(s))
        return runProjectTool(s, tool, options + QStringList { QStringLiteral("-o"), output, s.current },
            output, written, s.imageCount);
    const QString base = QFileInfo(output).completeBaseName();
    const QString input = s.workFile(base + QStringLiteral("-references-in.pto"));
    const QString partial = s.workFile(base + QStringLiteral("-references.pto"));
    QString error;
    if (!s.currentProject.subset(s.references).write(input, &error))
        return failure(error);
    PtoProject references;
    Outcome outcome = runProjectTool(s, tool,
        options + QStringList { QStringLiteral("-o"), partial, input }, partial, &references,
        s.references.size());
    if (!outcome.error.isEmpty())
        return outcome;
    QFile::remove(output);
    if (!mergeReferences(s, references, written, &error) || !written->write(output, &error))
        return failure(error);
    return done();
}

/// A linked pair of pictures that the recorded positions show overlapping
/// by at least this part of a picture must get points by correlation, else
/// cpfind looks for them.
const double SubstantialOverlap = 0.1;
/// A picture that overlaps a linked picture by at least this part must get
/// a point by correlation, else cpfind looks for them.
const double SomeOverlap = 0.02;

/// Whether the points can be found by correlation: the positions are
/// recorded and only the stacks' references need points (hard links inside
/// the stacks, or stacks of one picture).
bool correlating(const Stitch& s)
{
    return s.panorama.m_useRecordedLocation && !s.options.cpfind
        && (s.panorama.m_stackLinking == 0 || s.references.size() == s.imageCount);
}

/// The references of every two linked stacks, the smaller image first, in
/// order.
QVector<QPair<int, int>> linkedReferences(const Stitch& s)
{
    QVector<QPair<int, int>> pairs;
    for (const AuthorizedLink& link : s.panorama.m_links) {
        if (link.m_stackIndices.size() < 2)
            continue;
        const int a = link.m_stackIndices[0], b = link.m_stackIndices[1];
        if (a == b || a < 0 || b < 0 || a >= s.stackImages.size() || b >= s.stackImages.size()
            || s.stackImages[a].isEmpty() || s.stackImages[b].isEmpty())
            continue;
        const int first = s.stackImages[a].first(), second = s.stackImages[b].first();
        const QPair<int, int> pair(qMin(first, second), qMax(first, second));
        if (!pairs.contains(pair))
            pairs << pair;
    }
    std::sort(pairs.begin(), pairs.end());
    return pairs;
}

/// What correlation left without points that cpfind may find ("stacks 0-1,
/// 2-3" or "the picture of stack 4"); empty when nothing is missing.
QString correlationGaps(const Stitch& s, const CorrelationMatcher::Result& result)
{
    QStringList pairs;
    QMap<int, bool> pictures;
    for (const CorrelationMatcher::PairResult& pair : result.pairs) {
        if (pair.overlap >= SubstantialOverlap && pair.points == 0)
            pairs << QStringLiteral("%1-%2")
                         .arg(s.stackOf.value(pair.first))
                         .arg(s.stackOf.value(pair.second));
        for (int image : { pair.first, pair.second }) {
            if (pair.overlap >= SomeOverlap)
                pictures[image] = pictures.value(image) || pair.points > 0;
        }
    }
    if (!pairs.isEmpty())
        return QStringLiteral("stacks %1").arg(pairs.join(QStringLiteral(", ")));
    QStringList alone;
    for (auto it = pictures.constBegin(); it != pictures.constEnd(); ++it) {
        if (!it.value())
            alone << QString::number(s.stackOf.value(it.key()));
    }
    if (alone.isEmpty())
        return QString();
    return QStringLiteral("the picture of stack %1").arg(alone.join(QStringLiteral(", ")));
}

/// Appends lines to the stitch's log.
void appendToLog(const Stitch& s, const QString& text)
{
    QFile log(s.log);
    if (log.open(QIODevice::Append))
        log.write(text.toUtf8());
}

/// The references' points by correlation at the recorded positions, into
/// work/01-cpfind.pto. True in *fallBack when cpfind is to look instead;
/// *gaps then says what correlation left without points, and is empty when
/// correlation declined (a projection it does not support, a picture it
/// cannot read). The log says which and why.
Outcome correlate(Stitch& s, bool* fallBack, QString* gaps)
{
    *fallBack = false;
    const QVector<QPair<int, int>> pairs = linkedReferences(s);
    // The process's processor time, all threads: nothing else runs in the
    // process while the step does.
    const std::clock_t started = std::clock();
    const CorrelationMatcher::Result result = CorrelationMatcher::match(
        s.currentProject, QFileInfo(s.current).absolutePath(), pairs, 0, s.stop);
    const double seconds = double(std::clock() - started) / CLOCKS_PER_SEC;
    if (result.outcome == CorrelationMatcher::Result::Stopped) {
        Outcome outcome;
        outcome.stopped = true;
        return outcome;
    }
    QString log = QStringLiteral("$ correlation of %1 pairs of pictures\n").arg(pairs.size());
    if (result.outcome == CorrelationMatcher::Result::Declined) {
        appendToLog(
            s, log + QStringLiteral("declined: %1; cpfind looks instead\n").arg(result.reason));
        *fallBack = true;
        return done();
    }
    for (const CorrelationMatcher::PairResult& pair : result.pairs)
        log += QStringLiteral("images %1-%2 (stacks %3-%4): overlap %5%, %6 points\n")
                   .arg(pair.first)
                   .arg(pair.second)
                   .arg(s.stackOf.value(pair.first))
                   .arg(s.stackOf.value(pair.second))
                   .arg(qRound(pair.overlap * 100))
                   .arg(pair.points);
    *gaps = correlationGaps(s, result);
    if (result.points.isEmpty() && gaps->isEmpty())
        *gaps = QStringLiteral("every pair");
    if (!gaps->isEmpty()) {
        appendToLog(s, log + QStringLiteral("no points for %1; cpfind looks instead\n").arg(*gaps));
        *fallBack = true;
        return done();
    }
    appendToLog(s,
        log
            + QStringLiteral("%1 points, %2 s of processor time\n")
                  .arg(result.points.size())
                  .arg(seconds, 0, 'f', 2));
    PtoProject project = s.currentProject;
    project.setControlPoints(result.points);
    const QString output = s.workFile(QStringLiteral("01-cpfind.pto"));
    QString error;
    if (!project.write(output, &error))
        return failure(error);
    s.current = output;
    s.currentProject = project;
    s.pointsByCorrelation = true;
    return done(QStringLiteral("%1 points by correlation at the recorded positions")
                    .arg(result.points.size()));
}

Outcome findControlPointsWithCpfind(Stitch& s);

Outcome findControlPoints(Stitch& s)
{
    QString gaps;
    if (correlating(s)) {
        bool fallBack = false;
        const Outcome outcome = correlate(s, &fallBack, &gaps);
        if (!fallBack)
            return outcome;
    }
    Outcome outcome = findControlPointsWithCpfind(s);
    if (outcome.error.isEmpty() && !outcome.stopped && !gaps.isEmpty())
        outcome.note += QStringLiteral(" by cpfind: correlation found none for %1").arg(gaps);
    return outcome;
}

Outcome findControlPointsWithCpfind(Stitch& s)
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
    // cpclean first checks every pair's points against that pair alone, then
    // all of them against one optimisation of the whole panorama, which is
    // nine tenths of its time. Points by correlation were checked against
    // their pair's rotation when found; the pairs' check suffices for them
    // (-p), a few hundredths of a degree from what both checks give.
    QStringList arguments;
    if (s.pointsByCorrelation)
        arguments << QStringLiteral("-p");
    Outcome outcome = runOnProject(s, QStringLiteral("cpclean"), arguments, output, &cleaned);
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

/// The project with optimiser variables (v lines) for what a motorised head
/// leaves unknown: the yaw, pitch and roll of every image whose position is
/// its own (not linked to another's), except the first, which holds the
/// panorama in place. The field of view follows from the focal length and
/// the photographs' 35 mm equivalent, so it is left as it is when the
/// description knows the focal length; without one it is optimised too.
/// Lens distortion is not: the overlaps of a head's shoot are narrow, and
/// freeing it there bends the pictures rather than placing them better.
bool withHeadVariables(const Stitch& s, PtoProject* project, QString* error)
{
    static const QRegularExpression ownYaw(QStringLiteral("\\sy-?[0-9.]"));
    const QStringList lines = s.currentProject.text().split(QLatin1Char('\n'));
    QStringList variables;
    if (s.panorama.m_focalLength <= 0)
        variables << QStringLiteral("v v0");
    QStringList kept;
    int image = 0;
    int lastImageLine = -1;
    for (const QString& line : lines) {
        if (line == QLatin1String("v") || line.startsWith(QLatin1String("v ")))
            continue;
        if (line.startsWith(QLatin1String("i "))) {
            if (image > 0 && ownYaw.match(line).hasMatch())
                variables << QStringLiteral("v y%1 p%1 r%1").arg(image);
            ++image;
            lastImageLine = kept.size();
        }
        kept << line;
    }
    variables << QStringLiteral("v");
    for (int i = variables.size() - 1; i >= 0; --i)
        kept.insert(lastImageLine + 1, variables[i]);
    return project->parse(kept.join(QLatin1Char('\n')), error);
}

/// Whether the canvas is the whole sphere in equirectangular projection (as
/// "panohead import" writes it): every picture lies inside it, wherever the
/// optimiser puts it.
bool wholeSphere(const PtoProject& project)
{
    bool ok = false;
    if (project.panoramaNumber(QStringLiteral("f"), &ok) != 2.0 || !ok)
        return false;
    if (project.panoramaNumber(QStringLiteral("v"), &ok) != 360.0 || !ok)
        return false;
    const QSize size = project.panoramaSize();
    return size.isValid() && !size.isEmpty() && 2 * qint64(size.height()) >= size.width();
}

/// Whether the pictures' exposure values (Eev) differ, or one cannot be read.
bool exposuresDiffer(const PtoProject& project)
{
    bool ok = project.imageCount() > 0;
    const double first = ok ? project.number(0, QStringLiteral("Eev"), &ok) : 0.0;
    if (!ok)
        return true;
    for (int i = 1; i < project.imageCount(); ++i) {
        const double value = project.number(i, QStringLiteral("Eev"), &ok);
        if (!ok || value != first)
            return true;
    }
    return false;
}

Outcome optimiseInto(Stitch& s, const QString& output)
{
    const bool points = !s.currentProject.controlPoints().isEmpty();
    QStringList arguments;
    if (points && !s.panorama.m_skipOptimization) {
        if (s.panorama.m_useRecordedLocation) {
            // The recorded positions are close: optimising only what the head
            // leaves unknown finds them in a few iterations, where -a (auto
            // align) first places the pictures pair by pair and then frees
            // the lens.
            PtoProject project;
            QString error;
            const QString variables = s.workFile(
                QFileInfo(output).completeBaseName() + QStringLiteral("-variables.pto"));
            if (!withHeadVariables(s, &project, &error) || !project.write(variables, &error))
                return failure(error);
            s.current = variables;
            s.currentProject = project;
            arguments << QStringLiteral("-n");
        } else {
            arguments << QStringLiteral("-a");
        }
    }
    // Photometric optimisation brings single pictures to one exposure. Fused
    // stacks keep every exposure as shot and HDR takes the recorded exposure
    // values, so for stacks it would cost time (a third of the optimiser's
    // on a shoot of 3 exposures) and change nothing in the panorama. A head
    // shooting single pictures at one exposure value leaves nothing to bring
    // together either: there it tripled the optimiser's time on the sample's
    // ten pictures and moved no picture.
    if (points && !s.stacked && exposuresDiffer(s.currentProject))
        arguments << QStringLiteral("-m");
    if (points)
        arguments << QStringLiteral("-l");
    // Any other canvas may leave pictures outside: autooptimiser then picks
    // projection, field of view and size (-s). On the whole sphere the canvas
    // step crops to the pictures, and the projection stays the project's;
    // -s cost more than the rest of the optimiser's work on the sample.
    if (!wholeSphere(s.currentProject))
        arguments << QStringLiteral("-s");
    PtoProject optimised;
    Outcome outcome
        = runOnProject(s, QStringLiteral("autooptimiser"), arguments, output, &optimised);
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

Outcome optimise(Stitch& s)
{
    return optimiseInto(s, s.workFile(QStringLiteral("04-optimised.pto")));
}

/// "Clean wrong link": a link whose points lie far from where the optimised
/// positions put them joins two stacks that do not really meet; its points
/// are removed and the pictures placed again without them.
Outcome removeWrongLinks(Stitch& s)
{
    const QVector<PtoProject::ControlPoint> points = s.currentProject.controlPoints();
    QMap<QPair<int, int>, QVector<double>> errorsOfLink;
    QVector<double> all;
    for (const PtoProject::ControlPoint& point : points) {
        bool ok = false;
        const double error = s.currentProject.pointError(point, &ok);
        if (!ok)
            continue;
        all << error;
        const int a = s.stackOf.value(point.first), b = s.stackOf.value(point.second);
        if (a != b)
            errorsOfLink[qMakePair(qMin(a, b), qMax(a, b))] << error;
    }
    if (all.isEmpty())
        return done(QStringLiteral("no point to check"));
    const auto median = [](QVector<double> values) {
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    };
    // A link is wrong when its typical point is off by more than 5 pixels
    // and by more than 3 times the typical point of the whole panorama.
    bool ok = false;
    const double width = s.currentProject.number(0, QStringLiteral("w"), &ok);
    const double fov = s.currentProject.number(0, QStringLiteral("v"), &ok);
    const double pixel = width > 0 && fov > 0 ? fov / width : 0.1;
    const double limit = qMax(5.0 * pixel, 3.0 * median(all));
    QSet<QPair<int, int>> wrong;
    QStringList reported;
    for (auto it = errorsOfLink.constBegin(); it != errorsOfLink.constEnd(); ++it) {
        const double typical = median(it.value());
        if (typical > limit) {
            wrong.insert(it.key());
            reported << QStringLiteral("%1-%2 (%3 points, %4°)")
                            .arg(it.key().first)
                            .arg(it.key().second)
                            .arg(it.value().size())
                            .arg(typical, 0, 'f', 2);
        }
    }
    if (wrong.isEmpty())
        return done(QStringLiteral("%1 links agree").arg(errorsOfLink.size()));
    QVector<PtoProject::ControlPoint> kept;
    for (const PtoProject::ControlPoint& point : points) {
        const int a = s.stackOf.value(point.first), b = s.stackOf.value(point.second);
        if (!wrong.contains(qMakePair(qMin(a, b), qMax(a, b))))
            kept << point;
    }
    PtoProject project = s.currentProject;
    project.setControlPoints(kept);
    const QString checked = s.workFile(QStringLiteral("04-links-checked.pto"));
    QString error;
    if (!project.write(checked, &error))
        return failure(error);
    s.current = checked;
    s.currentProject = project;
    const Outcome outcome = optimiseInto(s, s.workFile(QStringLiteral("04-optimised-again.pto")));
    if (!outcome.error.isEmpty())
        return outcome;
    return done(QStringLiteral("links removed: %1").arg(reported.join(QStringLiteral(", "))));
}

/// Whether the pictures lie across the canvas's left and right edges (yaw
/// 180) without going all the way round: the crop would keep one side of
/// them only. Each picture covers its yaw plus or minus half its horizontal
/// field of view, widened for its pitch as at its edge nearest a pole (more
/// than it covers: a gap narrower than the difference is not seen); one
/// that reaches a pole covers every yaw.
bool acrossTheSeam(const PtoProject& project)
{
    const double degree = 3.14159265358979323846 / 180.0;
    QVector<QPair<double, double>> spans;
    for (int i = 0; i < project.imageCount(); ++i) {
        bool ok[6] = {};
        const double yaw = project.number(i, QStringLiteral("y"), &ok[0]);
        const double pitch = project.number(i, QStringLiteral("p"), &ok[1]);
        const double fov = project.number(i, QStringLiteral("v"), &ok[2]);
        const double width = project.number(i, QStringLiteral("w"), &ok[3]);
        const double height = project.number(i, QStringLiteral("h"), &ok[4]);
        const double lens = project.number(i, QStringLiteral("f"), &ok[5]);
        if (std::find(std::begin(ok), std::end(ok), false) != std::end(ok) || width <= 0
            || height <= 0 || fov <= 0)
            return false;
        const double verticalHalf = lens == 0.0
            ? std::atan(std::tan(qMin(fov, 179.0) / 2 * degree) * height / width) / degree
            : fov / 2 * height / width;
        const double top = std::abs(pitch) + verticalHalf;
        if (top >= 89.0)
            return false;
        const double half = fov / 2 / std::cos(top * degree);
        if (half >= 180.0)
            return false;
        const double start = std::remainder(yaw - half, 360.0); // -180 to 180
        spans << qMakePair(start, start + 2 * half);
    }
    // A span across the edge is cut in two: the pictures then cover parts
    // of -180 to 180, and a gap means they do not go all the way round.
    QVector<QPair<double, double>> pieces;
    bool seam = false;
    for (const auto& span : spans) {
        if (span.second > 180.0) {
            seam = true;
            pieces << qMakePair(span.first, 180.0) << qMakePair(-180.0, span.second - 360.0);
        } else {
            pieces << span;
        }
    }
    std::sort(pieces.begin(), pieces.end());
    bool gap = false;
    double reached = -180.0;
    for (const auto& piece : pieces) {
        gap = gap || piece.first > reached;
        reached = qMax(reached, piece.second);
    }
    gap = gap || reached < 180.0;
    return gap && seam;
}

Outcome chooseCanvas(Stitch& s)
{
    const QString output = s.workFile(QStringLiteral("05-final.pto"));
    PtoProject final;
    QStringList arguments;
    // pano_modify centres such a panorama on its pictures (and chooses its
    // field of view, which costs more than the rest of this step).
    if (acrossTheSeam(s.currentProject))
        arguments << QStringLiteral("--center");
    arguments << QStringLiteral("--canvas=AUTO") << QStringLiteral("--crop=AUTO")
              << QStringLiteral("-o") << output << s.current;
    Outcome outcome
        = runProjectTool(s, QStringLiteral("pano_modify"), arguments, output, &final, s.imageCount);
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

/// work/<prefix><image, 4 digits>.<suffix>: how nona names a remapped picture
/// and how the stacks' fused and merged pictures are named after it.
QString numberedFile(const Stitch& s, const QString& prefix, int number, const QString& suffix)
{
    return s.workFile(
        QStringLiteral("%1%2.%3").arg(prefix).arg(number, 4, 10, QLatin1Char('0')).arg(suffix));
}

void removeFiles(const Stitch& s, const QString& pattern)
{
    for (const QFileInfo& old : s.work.entryInfoList({ pattern }))
        QFile::remove(old.absoluteFilePath());
}

bool written(const QString& path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() > 0;
}

/// The images nona remaps: every one when stacks are fused, else the first
/// of every stack.
QVector<int> remappedImages(const Stitch& s)
{
    if (!s.stacked)
        return s.references;
    QVector<int> all;
    for (int i = 0; i < s.imageCount; ++i)
        all << i;
    return all;
}

/// The pictures one nona remaps, in the order it writes them, and how many
/// of them are written whole.
struct NonaShare
{
    QVector<int> images;
    int written = 0;
};

/// Deals images out to count nonas in turn, so that each one's pictures lie
/// all over the panorama and take about as long as the others'.
QVector<NonaShare> shareImages(const QVector<int>& images, int count)
{
    QVector<NonaShare> shares(qBound(1, count, qMax(1, int(images.size()))));
    for (int i = 0; i < images.size(); ++i)
        shares[i % shares.size()].images << images[i];
    return shares;
}

/// "image 3", "images 0, 2, 4".
QString imagesText(const QVector<int>& images)
{
    QStringList numbers;
    for (int image : images)
        numbers << QString::number(image);
    return QStringLiteral("%1 %2").arg(
        images.size() == 1 ? QStringLiteral("image") : QStringLiteral("images"),
        numbers.join(QStringLiteral(", ")));
}

Outcome runNona(Stitch& s, const QString& prefix, const QString& suffix, const QStringList& mode,
    const QVector<int>& images)
{
    removeFiles(s, prefix + QStringLiteral("*"));
    // One nona per core, each remapping its share of the pictures in one go:
    // a nona takes a good part of a picture's remapping time to start.
    // Intermediate pictures are read once: compressing them costs time only.
    QStringList arguments = mode;
    arguments << QStringLiteral("-z") << QStringLiteral("NONE") << QStringLiteral("-o")
              << s.workFile(prefix);
    QVector<NonaShare> shares = shareImages(images, QThread::idealThreadCount());
    QVector<ToolRunner::Job> jobs;
    for (int n = 0; n < shares.size(); ++n) {
        QStringList own = arguments;
        for (int image : qAsConst(shares[n].images))
            own << QStringLiteral("-i") << QString::number(image);
        jobs.append({ own << s.current,
            s.workFile(QStringLiteral("%1-nona%2.log").arg(prefix).arg(n + 1)) });
    }
    // A nona writes its pictures in turn, each whole before it starts the
    // next: a picture counts as remapped once a later one of the same nona
    // appears or that nona has ended. A picture that lies wholly outside the
    // crop is never written, and counts with the next one.
    int reported = 0;
    s.progressed(0, images.size());
    const auto report = [&] {
        int count = 0;
        for (const NonaShare& share : qAsConst(shares))
            count += share.written;
        while (reported < count)
            s.progressed(++reported, images.size());
    };
    const auto look = [&] {
        for (NonaShare& share : shares) {
            for (int i = share.images.size() - 1; i > share.written; --i) {
                if (QFileInfo::exists(numberedFile(s, prefix, share.images[i], suffix))) {
                    share.written = i;
                    break;
                }
            }
        }
        report();
    };
    Outcome outcome;
    const auto ended = [&](int job, const ToolRunner::Result& result) {
        // The log keeps each run's output whole, in the order the runs end.
        QFile part(jobs[job].logPath);
        QFile log(s.log);
        if (part.open(QIODevice::ReadOnly) && log.open(QIODevice::Append))
            log.write(part.readAll());
        part.remove();
        if (!result.succeeded()) {
            if (outcome.error.isEmpty() && !result.stopped) {
                outcome = toolFailure(QStringLiteral("nona"), result);
                outcome.error = QStringLiteral("%1: %2")
                                    .arg(imagesText(shares[job].images), outcome.error);
            }
            return false;
        }
        shares[job].written = shares[job].images.size();
        report();
        return true;
    };
    const QVector<ToolRunner::Result> results = s.tools.runEach(QStringLiteral("nona"), jobs,
        s.work.absolutePath(), shares.size(), s.options.timeoutSeconds, s.stop, ended, look);
    removeFiles(s, prefix + QStringLiteral("*.log"));
    const bool stopped = std::any_of(results.begin(), results.end(),
        [](const ToolRunner::Result& r) { return r.stopped; });
    if (outcome.error.isEmpty() && stopped) {
        outcome.error = QStringLiteral("nona was stopped");
        outcome.stopped = true;
    }
    if (!outcome.error.isEmpty()) {
        if (outcome.stopped || std::any_of(results.begin(), results.end(),
                [](const ToolRunner::Result& r) { return r.timedOut; }))
            removeFiles(s, prefix + QStringLiteral("*"));
        return outcome;
    }
    int count = 0;
    for (int image : images)
        count += written(numberedFile(s, prefix, image, suffix)) ? 1 : 0;
    if (count == 0)
        return failure(QStringLiteral("nona wrote no remapped picture"));
    // A picture that lies wholly outside the crop is not written; that is no error.
    return done(QStringLiteral("%1 of %2 pictures").arg(count).arg(images.size()));
}

Outcome remap(Stitch& s)
{
    // Stacks keep every exposure as it was shot, for enfuse to choose from;
    // single pictures are corrected to the panorama's exposure.
    QStringList mode = { QStringLiteral("-m"), QStringLiteral("TIFF_m") };
    if (s.stacked)
        mode << QStringLiteral("--ignore-exposure");
    return runNona(s, QStringLiteral("remapped"), QStringLiteral("tif"), mode, remappedImages(s));
}

Outcome remapLinear(Stitch& s)
{
    QVector<int> all;
    for (int i = 0; i < s.imageCount; ++i)
        all << i;
    return runNona(s, QStringLiteral("linear"), QStringLiteral("exr"),
        { QStringLiteral("-r"), QStringLiteral("hdr"), QStringLiteral("-m"),
            QStringLiteral("EXR_m") },
        all);
}

/// The written pictures of a stack's images, work/<prefix>NNNN.<suffix>.
QStringList stackFiles(
    const Stitch& s, const QVector<int>& images, const QString& prefix, const QString& suffix)
{
    QStringList files;
    for (int image : images) {
        const QString file = numberedFile(s, prefix, image, suffix);
        if (written(file))
            files << file;
    }
    return files;
}

/// Runs tool once per stack of more than one picture, writing
/// work/<outputPrefix><stack>.<suffix> from the stack's pictures; a stack of
/// one picture is passed on as it is. The pictures for the blender, in the
/// stacks' order, go to *results.
Outcome combineStacks(Stitch& s, const QString& tool, const QStringList& options,
    const QString& inputPrefix, const QString& outputPrefix, const QString& suffix,
    QStringList* results)
{
    removeFiles(s, outputPrefix + QStringLiteral("*"));
    results->clear();
    int combined = 0;
    for (int stack = 0; stack < s.stackImages.size(); ++stack) {
        const QStringList inputs = stackFiles(s, s.stackImages[stack], inputPrefix, suffix);
        if (inputs.isEmpty())
            continue;
        if (inputs.size() == 1) {
            *results << inputs.first();
            continue;
        }
        const QString output = numberedFile(s, outputPrefix, stack, suffix);
        const ToolRunner::Result result
            = s.run(tool, options + QStringList { QStringLiteral("-o"), output } + inputs);
        if (!result.succeeded()) {
            QFile::remove(output);
            Outcome outcome = toolFailure(tool, result);
            outcome.error = QStringLiteral("stack %1: %2").arg(stack).arg(outcome.error);
            return outcome;
        }
        const QSize size = ImageSize::read(output);
        if (!written(output) || (suffix == QLatin1String("tif") && !size.isValid()))
            return failure(QStringLiteral("%1 wrote no picture for stack %2").arg(tool).arg(stack));
        *results << output;
        ++combined;
    }
    if (results->isEmpty())
        return failure(QStringLiteral("no stack has a remapped picture"));
    return done(QStringLiteral("%1 stacks").arg(combined));
}

Outcome fuse(Stitch& s)
{
    QStringList fused;
    return combineStacks(s, QStringLiteral("enfuse"), { QStringLiteral("--compression=NONE") },
        QStringLiteral("remapped"), QStringLiteral("fused"), QStringLiteral("tif"), &fused);
}

Outcome mergeStacks(Stitch& s)
{
    QStringList merged;
    return combineStacks(s, QStringLiteral("hugin_hdrmerge"),
        { QStringLiteral("-m"), QStringLiteral("avg_slow") }, QStringLiteral("linear"),
        QStringLiteral("merged"), QStringLiteral("exr"), &merged);
}

/// Where the blender writes before the panorama is checked: beside it, so that
/// the finished file takes its name by a rename and no half-written panorama
/// ever carries the panorama's name.
QString partialPanorama(const QString& output)
{
    const QFileInfo info(output);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    return info.absoluteDir().filePath(
        info.completeBaseName() + QStringLiteral(".partial") + suffix);
}

/// The pictures to blend: each stack's fused or merged picture where the
/// stack was combined, else its one picture.
QStringList blendInputs(const Stitch& s, const QString& inputPrefix, const QString& combinedPrefix,
    const QString& suffix)
{
    QStringList inputs;
    for (int stack = 0; stack < s.stackImages.size(); ++stack) {
        const QString combined = numberedFile(s, combinedPrefix, stack, suffix);
        if (written(combined)) {
            inputs << combined;
            continue;
        }
        const QStringList files = stackFiles(s, s.stackImages[stack], inputPrefix, suffix);
        if (!files.isEmpty())
            inputs << files.first();
    }
    return inputs;
}

Outcome blendInto(Stitch& s, const QString& tool, const QStringList& inputs,
    const QString& target, const QString& partial, QStringList arguments)
{
    arguments << QStringLiteral("-o") << partial;
    const QString suffix = QFileInfo(target).suffix().toLower();
    if (suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg"))
        arguments << QStringLiteral("--compression=90");
    arguments << inputs;
    const ToolRunner::Result result = s.run(tool, arguments);
    if (!result.succeeded())
        return toolFailure(tool, result);
    const QFileInfo file(partial);
    if (!file.isFile() || file.size() == 0)
        return failure(QStringLiteral("%1 wrote no panorama").arg(tool));
    const QSize size = ImageSize::read(partial);
    const QSize expected = s.currentProject.crop().size();
    if (size != expected)
        return failure(QStringLiteral("%1 wrote a panorama of %2 × %3 instead of %4 × %5")
                           .arg(tool)
                           .arg(size.width())
                           .arg(size.height())
                           .arg(expected.width())
                           .arg(expected.height()));
    // rename(2) replaces an older panorama in one step; QFile::rename would not.
    if (std::rename(QFile::encodeName(partial).constData(), QFile::encodeName(target).constData())
        != 0)
        return failure(QStringLiteral("cannot rename %1 to %2: %3")
                           .arg(partial, target, QString::fromLocal8Bit(std::strerror(errno))));
    return done(QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()));
}

Outcome blendTo(Stitch& s, const QString& tool, const QStringList& inputs, const QString& target,
    const QStringList& arguments)
{
    // An older panorama stays until the new one, complete and checked, takes
    // its name; a failed or stopped blend leaves it as it was.
    const QString partial = partialPanorama(target);
    QFile::remove(partial);
    const Outcome outcome = blendInto(s, tool, inputs, target, partial, arguments);
    if (!outcome.error.isEmpty())
        QFile::remove(partial);
    return outcome;
}

/// The 8-bit panorama is blended by verdandi, which lays a seam between
/// neighbours and blends across it, where enblend blends every overlap at
/// several scales: on the bundled sample's fused stacks verdandi took 0.6 s
/// of CPU against enblend's 2.4 s, and the two panoramas differ by 1.6 of
/// 255 levels on average, by more than 8 levels on 0.6 % of the pixels,
/// along the seams only, with no seam visible in either.
Outcome blend(Stitch& s)
{
    return blendTo(s, QStringLiteral("verdandi"),
        blendInputs(s, QStringLiteral("remapped"), QStringLiteral("fused"), QStringLiteral("tif")),
        s.fusedOutput, {});
}

/// The HDR panorama is blended by enblend, which blends floating-point
/// pictures at several scales.
Outcome blendHdr(Stitch& s)
{
    QStringList arguments;
    const QString suffix = QFileInfo(s.options.output).suffix().toLower();
    if (suffix == QLatin1String("tif") || suffix == QLatin1String("tiff"))
        arguments << QStringLiteral("--compression=DEFLATE");
    return blendTo(s, QStringLiteral("enblend"),
        blendInputs(s, QStringLiteral("linear"), QStringLiteral("merged"), QStringLiteral("exr")),
        s.options.output, arguments);
}

struct StepDefinition
{
    const char* tool;
    const char* name;
    Outcome (*run)(Stitch&);
    /// Whether the stitch runs the step.
    bool (*when)(const Stitch&);
};

bool always(const Stitch&)
{
    return true;
}

bool detecting(const Stitch& s)
{
    return s.panorama.m_autoDetection;
}

bool checkingLinks(const Stitch& s)
{
    return s.panorama.m_autoDetection && s.panorama.m_cleanWrongLinks;
}

bool fusing(const Stitch& s)
{
    return s.stacked;
}

bool merging(const Stitch& s)
{
    return s.hdr;
}

const StepDefinition Steps[] = {
    { "cpfind", QT_TRANSLATE_NOOP("StitchPipeline", "Finding control points"), findControlPoints,
        detecting },
    { "links",
        QT_TRANSLATE_NOOP("StitchPipeline", "Removing points between positions that do not meet"),
        removeUnlinkedPoints, detecting },
    { "cpclean", QT_TRANSLATE_NOOP("StitchPipeline", "Removing wrong points"), cleanPoints,
        detecting },
    { "autooptimiser", QT_TRANSLATE_NOOP("StitchPipeline", "Placing the pictures"), optimise,
        always },
    { "linkcheck", QT_TRANSLATE_NOOP("StitchPipeline", "Removing links that disagree"),
        removeWrongLinks, checkingLinks },
    { "pano_modify", QT_TRANSLATE_NOOP("StitchPipeline", "Choosing canvas and crop"), chooseCanvas,
        always },
    { "nona", QT_TRANSLATE_NOOP("StitchPipeline", "Remapping"), remap, always },
    { "enfuse", QT_TRANSLATE_NOOP("StitchPipeline", "Fusing exposures"), fuse, fusing },
    { "verdandi", QT_TRANSLATE_NOOP("StitchPipeline", "Blending"), blend, always },
    { "nona", QT_TRANSLATE_NOOP("StitchPipeline", "Remapping to linear light"), remapLinear,
        merging },
    { "hugin_hdrmerge", QT_TRANSLATE_NOOP("StitchPipeline", "Merging exposures"), mergeStacks,
        merging },
    { "enblend", QT_TRANSLATE_NOOP("StitchPipeline", "Blending the HDR panorama"), blendHdr,
        merging },
};

QString withSuffix(const QString& project, const QString& suffix)
{
    const QFileInfo info(project);
    return info.absoluteDir().filePath(info.completeBaseName() + suffix);
}

QString absolute(const QString& path, const QString& folder)
{
    return PtoProject::inFolder(folder, path);
}

/// A project that "panohead import" wrote starts with this comment line,
/// followed by its numbers of stacks and images.
const QRegularExpression ProjectSignature(
    QStringLiteral("^# written by ZPanoHead: (\\d+) stacks, (\\d+) images"),
    QRegularExpression::MultilineOption);

/// The description of a project that has none: the stacks the project
/// records (images of one stack number j, its first image the reference;
/// an image without one is a stack of its own), every pair of stacks linked,
/// control points looked for between every pair of pictures whatever their
/// recorded positions.
StructuredPanoramaProperties everyPairLinked(const PtoProject& project, const QString& folder)
{
    StructuredPanoramaProperties panorama;
    QHash<qint64, int> stackOfNumber;
    for (int i = 0; i < project.imageCount(); ++i) {
        bool ok = false;
        const double number = project.number(i, QStringLiteral("j"), &ok);
        const bool numbered = ok && std::fabs(number) < 1e9 && number == std::floor(number);
        const auto found
            = numbered ? stackOfNumber.constFind(qint64(number)) : stackOfNumber.constEnd();
        int stack = found == stackOfNumber.constEnd() ? panorama.m_stacks.size() : found.value();
        if (stack == panorama.m_stacks.size()) {
            panorama.m_stacks << QStringList();
            if (numbered)
                stackOfNumber.insert(qint64(number), stack);
        }
        panorama.m_stacks[stack] << absolute(project.imageName(i), folder);
    }
    for (int a = 0; a < panorama.m_stacks.size(); ++a) {
        for (int b = a + 1; b < panorama.m_stacks.size(); ++b) {
            AuthorizedLink link;
            link.m_stackIndices = { a, b };
            panorama.m_links << link;
        }
    }
    panorama.m_autoDetection = true;
    panorama.m_useRecordedLocation = false;
    panorama.m_stackLinking = 1;
    panorama.m_levelLinking = 1;
    return panorama;
}

} // namespace

/// What check() read, kept for run().
struct StitchPipeline::Checked
{
    Inputs inputs;
    PtoProject project;
    StructuredPanoramaProperties panorama;
};

StitchPipeline::StitchPipeline(const Options& options) : m_options(options) { }

StitchPipeline::~StitchPipeline() = default;

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
        const QString tool = QLatin1String(step.tool);
        if (tool != QLatin1String("links") && tool != QLatin1String("linkcheck")
            && !names.contains(tool))
            names << tool;
    }
    return names;
}

bool StitchPipeline::check(QString* error)
{
    m_checked.reset();
    const auto fail = [error](const QString& message) {
        if (error)
            *error = message;
        return false;
    };
    auto checked = std::make_unique<Checked>();
    Inputs& inputs = checked->inputs;
    const QString& given = m_options.project;
    const QFileInfo projectInfo(given);
    if (!projectInfo.isFile())
        return fail(projectInfo.isDir()
                ? QStringLiteral("the project %1 is a folder, not a file").arg(given)
                : QStringLiteral("cannot read the project %1: no such file").arg(given));
    inputs.project = projectInfo.absoluteFilePath();
    const QString folder = projectInfo.absolutePath();
    QFile file(inputs.project);
    if (!file.open(QIODevice::ReadOnly))
        return fail(
            QStringLiteral("cannot read the project %1: %2").arg(given, file.errorString()));
    const QByteArray head = file.read(4096);
    file.close();
    const QRegularExpressionMatch signature = ProjectSignature.match(QString::fromUtf8(head));
    if (!signature.hasMatch())
        return fail(QStringLiteral("the project %1 was not written by panohead import "
                                   "(no \"# written by ZPanoHead\" line); only its "
                                   "projects can be stitched")
                        .arg(given));
    PtoProject& project = checked->project;
    QString reason;
    if (!project.read(inputs.project, &reason))
        return fail(reason);

    const QString description = m_options.description.isEmpty()
        ? withSuffix(inputs.project, QStringLiteral(".json"))
        : QFileInfo(m_options.description).absoluteFilePath();
    // A description named on purpose must be there; the one beside the
    // project may be missing (a dangling link to one is not missing).
    const QFileInfo descriptionInfo(description);
    if (m_options.description.isEmpty() && !descriptionInfo.exists()
        && !descriptionInfo.isSymLink()) {
        checked->panorama = everyPairLinked(project, folder);
        inputs.note = QStringLiteral("no description beside %1: every pair of pictures is searched")
                          .arg(given);
    } else {
        StructuredPanoramaProperties& panorama = checked->panorama;
        if (!DescriptionJson::read(description, &panorama, &reason))
            return fail(reason);
        int described = 0;
        for (const QStringList& stack : panorama.m_stacks)
            described += stack.size();
        const int stacks = signature.captured(1).toInt();
        if (panorama.m_stacks.size() != stacks || described != project.imageCount())
            return fail(QStringLiteral("the description %1 (%2 stacks, %3 photographs) does not "
                                       "fit the project %4 (%5 stacks, %6 images)")
                            .arg(description)
                            .arg(panorama.m_stacks.size())
                            .arg(described)
                            .arg(given)
                            .arg(stacks)
                            .arg(project.imageCount()));
        inputs.description = description;
    }
    for (int i = 0; i < project.imageCount(); ++i) {
        const QString photo = absolute(project.imageName(i), folder);
        const QString problem = PhotoFiles::problem(photo);
        if (!problem.isEmpty())
            return fail(QStringLiteral("the project's photograph %1 cannot be used: %2")
                            .arg(photo, problem));
        inputs.photographs << photo;
    }
    inputs.hdr = m_options.mode == Output::Hdr
        || (m_options.mode == Output::Automatic && checked->panorama.m_outputMode == 3);
    inputs.panorama = m_options.output.isEmpty()
        ? withSuffix(inputs.project, inputs.hdr ? QStringLiteral(".exr") : QStringLiteral(".tif"))
        : QFileInfo(m_options.output).absoluteFilePath();
    m_checked = std::move(checked);
    return true;
}

const StitchPipeline::Inputs& StitchPipeline::inputs() const
{
    static const Inputs none;
    return m_checked ? m_checked->inputs : none;
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
    QString error;
    if (!m_checked && !check(&error))
        return finish(Result::Failed, error);
    const Checked& checked = *m_checked;
    Stitch s;
    s.options = m_options;
    s.tools = ToolRunner(m_options.tools);
    s.stop = &m_cancelled;
    s.currentProject = checked.project;
    s.panorama = checked.panorama;
    Options& o = s.options;
    o.project = checked.inputs.project;
    o.description = checked.inputs.description;
    o.output = checked.inputs.panorama;
    const QFileInfo projectInfo(o.project);
    result.note = checked.inputs.note;
    s.hdr = checked.inputs.hdr;
    result.hdr = s.hdr;
    s.fusedOutput = o.output;
    const QString suffix = QFileInfo(o.output).suffix().toLower();
    if (s.hdr && suffix != QLatin1String("exr") && suffix != QLatin1String("tif")
        && suffix != QLatin1String("tiff"))
        return finish(Result::Failed,
            QStringLiteral("an HDR panorama is an OpenEXR (.exr) or float TIFF (.tif) file, "
                           "not %1")
                .arg(o.output));
    if (s.hdr) {
        s.fusedOutput = withSuffix(o.output, QStringLiteral(".jpg"));
        result.preview = s.fusedOutput;
    }
    if (o.workFolder.isEmpty())
        o.workFolder = withSuffix(o.project, QStringLiteral(".stitch"));
    o.workFolder = QFileInfo(o.workFolder).absoluteFilePath();
    result.panorama = o.output;
    result.workFolder = o.workFolder;

    if (!ControlPointFilter::matchStacks(s.currentProject, projectInfo.absolutePath(), s.panorama,
            &s.stackOf, &s.isReference, &error))
        return finish(Result::Failed, error);
    s.imageCount = s.currentProject.imageCount();
    for (int i = 0; i < s.imageCount; ++i) {
        if (s.isReference[i])
            s.references << i;
        const int stack = s.stackOf[i];
        if (stack >= s.stackImages.size())
            s.stackImages.resize(stack + 1);
        if (s.isReference[i])
            s.stackImages[stack].prepend(i);
        else
            s.stackImages[stack] << i;
        s.stacked = s.stacked || s.stackImages[stack].size() > 1;
    }
    QVector<const StepDefinition*> steps;
    QStringList needed;
    for (const StepDefinition& step : Steps) {
        if (!step.when(s))
            continue;
        steps << &step;
        const QString tool = QLatin1String(step.tool);
        if (programs().contains(tool) && !needed.contains(tool))
            needed << tool;
    }
    for (const QString& tool : needed) {
        if (s.tools.program(tool).isEmpty())
            return finish(Result::Failed,
                QStringLiteral("Hugin's program %1 is not found in %2")
                    .arg(tool, o.tools.isEmpty() ? QStringLiteral("PATH") : o.tools));
    }
    if (!QDir().mkpath(o.workFolder))
        return finish(
            Result::Failed, QStringLiteral("cannot create the work folder %1").arg(o.workFolder));
    // Two stitches in one work folder would overwrite each other's projects
    // and pictures: the folder is held while the stitch runs. A lock left by
    // a process that has ended is taken over, however old.
    QLockFile workLock(QDir(o.workFolder).filePath(QLatin1String(WorkLockName)));
    workLock.setStaleLockTime(0);
    if (!workLock.tryLock(0)) {
        qint64 pid = 0;
        QString host;
        QString application;
        workLock.getLockInfo(&pid, &host, &application);
        return finish(Result::Failed,
            workLock.error() == QLockFile::LockFailedError
                ? QStringLiteral("another stitch (process %1) is using the work folder %2; "
                                 "wait until it has finished")
                      .arg(pid)
                      .arg(o.workFolder)
                : QStringLiteral("cannot lock the work folder %1").arg(o.workFolder));
    }
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
        s.progressed = [this, &event, &timer](int done, int total) {
            StepEvent progressed = event;
            progressed.phase = StepEvent::Progressed;
            progressed.done = done;
            progressed.total = total;
            progressed.elapsedMilliseconds = timer.elapsed();
            if (m_progress)
                m_progress(progressed);
        };
        const Outcome outcome = step.run(s);
        s.progressed = [](int, int) {};
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
