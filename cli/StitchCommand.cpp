#include "StitchCommand.h"

#include "ControlPointFilter.h"
#include "DescriptionJson.h"
#include "ImageSize.h"
#include "PtoProject.h"
#include "ToolRunner.h"

#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <functional>

namespace {

/// What one step reports: empty error on success, else why it failed.
struct Outcome
{
    QString error;
    QString note;
};

struct Step
{
    QString tool;
    QString what;
    std::function<Outcome()> run;
};

/// The state the steps pass on.
struct Stitch
{
    StitchCommand::Options options;
    Console* console = nullptr;
    ToolRunner tools;
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
};

QString pairText(const QMap<QPair<int, int>, int>& removed)
{
    QStringList pairs;
    for (auto it = removed.constBegin(); it != removed.constEnd(); ++it)
        pairs << QStringLiteral("%1-%2").arg(it.key().first).arg(it.key().second);
    return pairs.join(QStringLiteral(", "));
}

/// Runs a tool that writes a project, and checks that it wrote a project of
/// all the images (Hugin's tools may end with exit code 0 having written
/// nothing useful).
Outcome runProjectTool(Stitch& s, const QString& tool, const QStringList& arguments,
    const QString& output, PtoProject* written, int expectedImages)
{
    QFile::remove(output);
    const ToolRunner::Result result
        = s.tools.run(tool, arguments, s.work.absolutePath(), s.log, s.options.timeoutSeconds);
    if (!result.succeeded())
        return { QStringLiteral("%1 %2%3").arg(tool, result.failure(),
                     result.tail.isEmpty() ? QString() : QStringLiteral(": ") + result.tail),
            QString() };
    if (!QFileInfo(output).isFile() || QFileInfo(output).size() == 0)
        return { QStringLiteral("%1 wrote no project (%2)").arg(tool, output), QString() };
    QString error;
    if (!written->read(output, &error))
        return { QStringLiteral("%1 wrote a project that cannot be read: %2").arg(tool, error),
            QString() };
    if (written->imageCount() != expectedImages)
        return { QStringLiteral("%1 wrote a project of %2 images instead of %3")
                     .arg(tool)
                     .arg(written->imageCount())
                     .arg(expectedImages),
            QString() };
    return {};
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
            return { error, QString() };
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
        return { QStringLiteral("cpfind found no control points"), QString() };
    if (referencesOnly) {
        for (PtoProject::ControlPoint& point : points)
            point = PtoProject::renumbered(point, s.references);
        PtoProject full = s.currentProject;
        full.setControlPoints(points);
        const QString merged = s.workFile(QStringLiteral("01-cpfind.pto"));
        QString error;
        if (!full.write(merged, &error))
            return { error, QString() };
        s.current = merged;
        s.currentProject = full;
    } else {
        s.current = output;
        s.currentProject = found;
    }
    return { QString(), QStringLiteral("%1 points").arg(points.size()) };
}

Outcome removeUnlinkedPoints(Stitch& s)
{
    const ControlPointFilter filter(
        s.panorama, s.stackOf, s.isReference, s.panorama.m_levelLinking == 0);
    QMap<QPair<int, int>, int> removed;
    const QVector<PtoProject::ControlPoint> before = s.currentProject.controlPoints();
    const QVector<PtoProject::ControlPoint> kept = filter.filter(before, &removed);
    if (kept.isEmpty())
        return { QStringLiteral("no control point joins two linked stacks (%1 removed)")
                     .arg(before.size()),
            QString() };
    PtoProject project = s.currentProject;
    project.setControlPoints(kept);
    const QString output = s.workFile(QStringLiteral("02-links.pto"));
    QString error;
    if (!project.write(output, &error))
        return { error, QString() };
    s.current = output;
    s.currentProject = project;
    QString note = QStringLiteral("%1 points kept, %2 removed")
                       .arg(kept.size())
                       .arg(before.size() - kept.size());
    if (!removed.isEmpty())
        note += QStringLiteral(" (stacks %1)").arg(pairText(removed));
    return { QString(), note };
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
        return { QStringLiteral("cpclean removed every control point"), QString() };
    s.current = output;
    s.currentProject = cleaned;
    return { QString(),
        QStringLiteral("%1 points kept, %2 removed").arg(after).arg(before - after) };
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
                return { QStringLiteral("autooptimiser left image %1 without a valid %2 (%3)")
                             .arg(i)
                             .arg(QLatin1String(v), optimised.value(i, QLatin1String(v))),
                    QString() };
        }
    }
    if (!optimised.panoramaSize().isValid() || optimised.panoramaSize().isEmpty())
        return { QStringLiteral("autooptimiser chose no panorama size"), QString() };
    s.current = output;
    s.currentProject = optimised;
    return { QString(),
        points ? QString() : QStringLiteral("no control points: recorded positions") };
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
        return { QStringLiteral("pano_modify chose no canvas"), QString() };
    if (final.crop().isNull())
        return { QStringLiteral("pano_modify found no crop inside the canvas"), QString() };
    s.current = output;
    s.currentProject = final;
    return { QString(),
        QStringLiteral("canvas %1 × %2, crop %3 × %4")
            .arg(size.width())
            .arg(size.height())
            .arg(final.crop().width())
            .arg(final.crop().height()) };
}

QString remappedFile(const Stitch& s, int image)
{
    return s.workFile(QStringLiteral("remapped%1.tif").arg(image, 4, 10, QLatin1Char('0')));
}

Outcome remap(Stitch& s)
{
    for (const QFileInfo& old : s.work.entryInfoList({ QStringLiteral("remapped*.tif") }))
        QFile::remove(old.absoluteFilePath());
    // The first image of every stack, corrected to the panorama's exposure.
    QStringList arguments = { QStringLiteral("-m"), QStringLiteral("TIFF_m"), QStringLiteral("-o"),
        s.workFile(QStringLiteral("remapped")) };
    for (int image : s.references)
        arguments << QStringLiteral("-i") << QString::number(image);
    arguments << s.current;
    const ToolRunner::Result result = s.tools.run(
        QStringLiteral("nona"), arguments, s.work.absolutePath(), s.log, s.options.timeoutSeconds);
    if (!result.succeeded())
        return { QStringLiteral("nona %1%2")
                     .arg(result.failure(),
                         result.tail.isEmpty() ? QString() : QStringLiteral(": ") + result.tail),
            QString() };
    int written = 0;
    for (int image : s.references) {
        const QFileInfo file(remappedFile(s, image));
        if (file.isFile() && file.size() > 0)
            ++written;
    }
    if (written == 0)
        return { QStringLiteral("nona wrote no remapped picture"), QString() };
    // A picture that lies wholly outside the crop is not written; that is no error.
    return { QString(), QStringLiteral("%1 of %2 pictures").arg(written).arg(s.references.size()) };
}

Outcome blend(Stitch& s)
{
    QStringList arguments = { QStringLiteral("-o"), s.options.output };
    const QString suffix = QFileInfo(s.options.output).suffix().toLower();
    if (suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg"))
        arguments << QStringLiteral("--compression=90");
    for (int image : s.references) {
        if (QFileInfo(remappedFile(s, image)).isFile())
            arguments << remappedFile(s, image);
    }
    QFile::remove(s.options.output);
    const ToolRunner::Result result = s.tools.run(QStringLiteral("enblend"), arguments,
        s.work.absolutePath(), s.log, s.options.timeoutSeconds);
    if (!result.succeeded())
        return { QStringLiteral("enblend %1%2")
                     .arg(result.failure(),
                         result.tail.isEmpty() ? QString() : QStringLiteral(": ") + result.tail),
            QString() };
    const QFileInfo file(s.options.output);
    if (!file.isFile() || file.size() == 0)
        return { QStringLiteral("enblend wrote no panorama"), QString() };
    const QSize size = ImageSize::read(s.options.output);
    const QSize expected = s.currentProject.crop().size();
    if (size != expected)
        return { QStringLiteral("enblend wrote a panorama of %1 × %2 instead of %3 × %4")
                     .arg(size.width())
                     .arg(size.height())
                     .arg(expected.width())
                     .arg(expected.height()),
            QString() };
    return { QString(), QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()) };
}

QString withSuffix(const QString& project, const QString& suffix)
{
    const QFileInfo info(project);
    return info.absoluteDir().filePath(info.completeBaseName() + suffix);
}

} // namespace

QString StitchCommand::help()
{
    return QStringLiteral(
        "Usage: panohead stitch [options] <project.pto>\n"
        "\n"
        "Stitches a project written by \"panohead import\" with Hugin's tools: cpfind\n"
        "finds control points (guided by the recorded positions), the points between\n"
        "stacks that no authorised link joins are removed, cpclean removes wrong\n"
        "points, autooptimiser places the pictures, pano_modify chooses the canvas and\n"
        "crop, nona remaps the first picture of every stack and enblend blends them.\n"
        "The description's options are honoured: without \"Auto detection\" no points\n"
        "are looked for and the recorded positions are used as they are; \"Skip\n"
        "optimization\" keeps the positions; without \"Use recorded location\" cpfind\n"
        "tries every pair (--multirow); linking all stack levels, or control points\n"
        "inside stacks, looks for points in every picture.\n"
        "\n"
        "Options:\n"
        "  --description <file.json> the panorama description (default: beside the\n"
        "                            project, same name)\n"
        "  -o, --output <file>       the panorama, .tif or .jpg (default: <name>.tif\n"
        "                            beside the project)\n"
        "  --work-folder <folder>    intermediate projects, pictures and the log\n"
        "                            (default: <name>.stitch beside the project)\n"
        "  --tools <folder>          where Hugin's programs are (default: PATH)\n"
        "  --timeout <seconds>       longest run of any one program (default 900)\n"
        "  -h, --help                this text\n"
        "\n"
        "Exit code: 0 done, 1 a step failed, 2 the command line is wrong.\n");
}

int StitchCommand::run(const QStringList& arguments, Console& console)
{
    QCommandLineParser parser;
    const QCommandLineOption help({ QStringLiteral("h"), QStringLiteral("help") }, QString());
    const QCommandLineOption description(
        QStringLiteral("description"), QString(), QStringLiteral("file"));
    const QCommandLineOption output(
        { QStringLiteral("o"), QStringLiteral("output") }, QString(), QStringLiteral("file"));
    const QCommandLineOption work(
        QStringLiteral("work-folder"), QString(), QStringLiteral("folder"));
    const QCommandLineOption tools(QStringLiteral("tools"), QString(), QStringLiteral("folder"));
    const QCommandLineOption timeout(
        QStringLiteral("timeout"), QString(), QStringLiteral("seconds"));
    parser.addOptions({ help, description, output, work, tools, timeout });
    const auto usage = [&console](const QString& message) {
        console.err << "panohead stitch: " << message << " (see panohead stitch --help)\n";
        console.err.flush();
        return 2;
    };
    if (!parser.parse(QStringList { QStringLiteral("panohead-stitch") } + arguments))
        return usage(parser.errorText());
    if (parser.isSet(help)) {
        console.out << StitchCommand::help();
        console.out.flush();
        return 0;
    }
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1)
        return usage(positional.isEmpty() ? QStringLiteral("give the project (.pto)")
                                          : QStringLiteral("give one project only"));
    Options options;
    options.project = positional.first();
    options.description = parser.value(description);
    options.output = parser.value(output);
    options.workFolder = parser.value(work);
    options.tools = parser.value(tools);
    if (parser.isSet(timeout)) {
        bool ok = false;
        options.timeoutSeconds = parser.value(timeout).toInt(&ok);
        if (!ok || options.timeoutSeconds < 1)
            return usage(QStringLiteral("--timeout is a number of seconds"));
    }
    if (!options.output.isEmpty()) {
        const QString suffix = QFileInfo(options.output).suffix().toLower();
        if (suffix != QLatin1String("tif") && suffix != QLatin1String("tiff")
            && suffix != QLatin1String("jpg") && suffix != QLatin1String("jpeg"))
            return usage(QStringLiteral("the panorama is a .tif or .jpg file"));
    }
    return stitch(options, console);
}

int StitchCommand::stitch(const Options& given, Console& console)
{
    const auto fail = [&console](const QString& message) {
        console.err << "panohead stitch: " << message << '\n';
        console.err.flush();
        return 1;
    };
    Stitch s;
    s.options = given;
    s.console = &console;
    s.tools = ToolRunner(given.tools);
    Options& o = s.options;
    const QFileInfo projectInfo(o.project);
    if (!projectInfo.isFile())
        return fail(QStringLiteral("cannot read the project %1: no such file").arg(o.project));
    o.project = projectInfo.absoluteFilePath();
    if (o.description.isEmpty())
        o.description = withSuffix(o.project, QStringLiteral(".json"));
    if (o.output.isEmpty())
        o.output = withSuffix(o.project, QStringLiteral(".tif"));
    o.output = QFileInfo(o.output).absoluteFilePath();
    if (o.workFolder.isEmpty())
        o.workFolder = withSuffix(o.project, QStringLiteral(".stitch"));

    QString error;
    if (!s.currentProject.read(o.project, &error))
        return fail(error);
    if (!DescriptionJson::read(o.description, &s.panorama, &error))
        return fail(error);
    if (!ControlPointFilter::matchStacks(s.currentProject, projectInfo.absolutePath(), s.panorama,
            &s.stackOf, &s.isReference, &error))
        return fail(error);
    s.imageCount = s.currentProject.imageCount();
    for (int i = 0; i < s.imageCount; ++i) {
        if (s.isReference[i])
            s.references << i;
    }
    for (const char* tool :
        { "cpfind", "cpclean", "autooptimiser", "pano_modify", "nona", "enblend" }) {
        if (s.tools.program(QLatin1String(tool)).isEmpty())
            return fail(QStringLiteral("Hugin's program %1 is not found in %2")
                            .arg(QLatin1String(tool),
                                o.tools.isEmpty() ? QStringLiteral("PATH") : o.tools));
    }
    if (!QDir().mkpath(o.workFolder))
        return fail(QStringLiteral("cannot create the work folder %1").arg(o.workFolder));
    s.work = QDir(QFileInfo(o.workFolder).absoluteFilePath());
    s.log = s.work.filePath(QStringLiteral("stitch.log"));
    QFile::remove(s.log);
    // The work folder's projects name their images by absolute paths.
    s.currentProject.makeImageNamesAbsolute(projectInfo.absolutePath());
    s.current = s.work.filePath(QStringLiteral("00-project.pto"));
    if (!s.currentProject.write(s.current, &error))
        return fail(error);

    QVector<Step> steps;
    if (s.panorama.m_autoDetection) {
        steps << Step { QStringLiteral("cpfind"), QStringLiteral("finding control points"),
            [&s] { return findControlPoints(s); } }
              << Step { QStringLiteral("links"),
                     QStringLiteral("removing points between stacks without a link"),
                     [&s] { return removeUnlinkedPoints(s); } }
              << Step { QStringLiteral("cpclean"), QStringLiteral("removing wrong points"),
                     [&s] { return cleanPoints(s); } };
    }
    steps << Step { QStringLiteral("autooptimiser"), QStringLiteral("placing the pictures"),
        [&s] { return optimise(s); } }
          << Step { QStringLiteral("pano_modify"), QStringLiteral("choosing canvas and crop"),
                 [&s] { return chooseCanvas(s); } }
          << Step { QStringLiteral("nona"), QStringLiteral("remapping"), [&s] { return remap(s); } }
          << Step { QStringLiteral("enblend"), QStringLiteral("blending"),
                 [&s] { return blend(s); } };

    QElapsedTimer total;
    total.start();
    for (int i = 0; i < steps.size(); ++i) {
        const Step& step = steps[i];
        console.out << QStringLiteral("[%1/%2] %3: %4 ... ")
                           .arg(i + 1)
                           .arg(steps.size())
                           .arg(step.tool, step.what);
        console.out.flush();
        QElapsedTimer timer;
        timer.start();
        const Outcome outcome = step.run();
        if (!outcome.error.isEmpty()) {
            console.out << "failed\n";
            console.out.flush();
            return fail(QStringLiteral("step %1/%2 (%3) failed: %4; log: %5")
                            .arg(i + 1)
                            .arg(steps.size())
                            .arg(step.tool, outcome.error, QDir::toNativeSeparators(s.log)));
        }
        console.out << QStringLiteral("done in %1 s").arg(timer.elapsed() / 1000.0, 0, 'f', 1)
                    << (outcome.note.isEmpty() ? QString() : QStringLiteral(": ") + outcome.note)
                    << '\n';
        console.out.flush();
    }
    const QSize size = ImageSize::read(o.output);
    console.out << QStringLiteral("Stitched in %1 s\n").arg(total.elapsed() / 1000.0, 0, 'f', 1)
                << "Panorama:         " << QDir::toNativeSeparators(o.output)
                << QStringLiteral(" (%1 × %2)").arg(size.width()).arg(size.height()) << '\n'
                << "Stitched project: " << QDir::toNativeSeparators(s.current) << '\n'
                << "Work folder:      " << QDir::toNativeSeparators(s.work.absolutePath()) << '\n';
    console.out.flush();
    return 0;
}
