#include "StitchCommand.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <atomic>

#include <signal.h>

namespace {

/// The command line's words for a step, after the program's name: the step's
/// name in lower case, except where the command line speaks of stacks and
/// links as its --help does.
QString stepText(const StitchPipeline::StepEvent& event)
{
    if (event.tool == QLatin1String("links"))
        return QStringLiteral("removing points between stacks without a link");
    if (event.name.isEmpty())
        return event.name;
    return event.name.at(0).toLower() + event.name.mid(1);
}

void print(Console& console, const StitchPipeline::StepEvent& event)
{
    switch (event.phase) {
    case StitchPipeline::StepEvent::Started:
        console.out << QStringLiteral("[%1/%2] %3: %4 ... ")
                           .arg(event.step)
                           .arg(event.count)
                           .arg(event.tool, stepText(event));
        break;
    case StitchPipeline::StepEvent::Done:
        console.out
            << QStringLiteral("done in %1 s").arg(event.elapsedMilliseconds / 1000.0, 0, 'f', 1)
            << (event.note.isEmpty() ? QString() : QStringLiteral(": ") + event.note) << '\n';
        break;
    case StitchPipeline::StepEvent::Failed:
        console.out << "failed\n";
        break;
    case StitchPipeline::StepEvent::Stopped:
        console.out << "stopped\n";
        break;
    }
    console.out.flush();
}

/// The pipeline that Ctrl-C and SIGTERM stop while it runs.
std::atomic<StitchPipeline*> s_running { nullptr };

extern "C" void stopRunningStitch(int)
{
    if (StitchPipeline* pipeline = s_running.load())
        pipeline->cancel();
}

/// While it lives, SIGINT and SIGTERM cancel pipeline instead of ending the
/// program: the programs it runs sit in process groups of their own, out of
/// the terminal's reach, and are ended by the pipeline.
class StopOnSignals
{
public:
    explicit StopOnSignals(StitchPipeline* pipeline)
    {
        s_running.store(pipeline);
        struct sigaction action = {};
        action.sa_handler = stopRunningStitch;
        sigemptyset(&action.sa_mask);
        action.sa_flags = SA_RESTART;
        sigaction(SIGINT, &action, &m_int);
        sigaction(SIGTERM, &action, &m_term);
    }
    ~StopOnSignals()
    {
        sigaction(SIGINT, &m_int, nullptr);
        sigaction(SIGTERM, &m_term, nullptr);
        s_running.store(nullptr);
    }
    StopOnSignals(const StopOnSignals&) = delete;
    StopOnSignals& operator=(const StopOnSignals&) = delete;

private:
    struct sigaction m_int = {};
    struct sigaction m_term = {};
};

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
        "crop, nona remaps the pictures, enfuse fuses the exposures of every stack and\n"
        "enblend blends the stacks. With --hdr (the default when the description's\n"
        "output mode is 32-bit HDR) each stack is merged to linear floating point\n"
        "(hugin_hdrmerge) and blended into an OpenEXR or 32-bit float TIFF panorama,\n"
        "with the fused panorama beside it as a JPEG preview.\n"
        "The description's options are honoured: without \"Auto detection\" no points\n"
        "are looked for and the recorded positions are used as they are; \"Skip\n"
        "optimization\" keeps the positions; without \"Use recorded location\" cpfind\n"
        "tries every pair (--multirow); linking all stack levels, or control points\n"
        "inside stacks, looks for points in every picture and lets the optimiser place\n"
        "each picture of a stack; \"Clean wrong link\" removes the points of a link\n"
        "that disagree with the optimised positions and places the pictures again.\n"
        "\n"
        "Options:\n"
        "  --description <file.json> the panorama description (default: beside the\n"
        "                            project, same name)\n"
        "  -o, --output <file>       the panorama, .tif or .jpg; with --hdr .exr or .tif\n"
        "                            (default: <name>.tif, with --hdr <name>.exr,\n"
        "                            beside the project)\n"
        "  --hdr                     an HDR panorama and a fused JPEG preview\n"
        "  --work-folder <folder>    intermediate projects, pictures and the log\n"
        "                            (default: <name>.stitch beside the project)\n"
        "  --tools <folder>          where Hugin's programs are (default: PATH)\n"
        "  --timeout <seconds>       longest run of any one program (default 900)\n"
        "  -h, --help                this text\n"
        "\n"
        "Ctrl-C stops the running program; no partial panorama is left.\n"
        "\n"
        "Exit code: 0 done, 1 a step failed or the stitch was stopped, 2 the command\n"
        "line is wrong.\n");
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
    const QCommandLineOption hdr(QStringLiteral("hdr"), QString());
    parser.addOptions({ help, description, output, work, tools, timeout, hdr });
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
    if (parser.isSet(hdr))
        options.mode = StitchPipeline::Output::Hdr;
    if (!options.output.isEmpty()) {
        const QString suffix = QFileInfo(options.output).suffix().toLower();
        const bool tiff = suffix == QLatin1String("tif") || suffix == QLatin1String("tiff");
        if (parser.isSet(hdr) && !tiff && suffix != QLatin1String("exr"))
            return usage(QStringLiteral("the HDR panorama is a .exr or .tif file"));
        if (!parser.isSet(hdr) && !tiff && suffix != QLatin1String("jpg")
            && suffix != QLatin1String("jpeg"))
            return usage(QStringLiteral("the panorama is a .tif or .jpg file"));
    }
    return stitch(options, console);
}

int StitchCommand::stitch(const Options& options, Console& console)
{
    StitchPipeline pipeline(options);
    pipeline.setProgress(
        [&console](const StitchPipeline::StepEvent& event) { print(console, event); });
    StitchPipeline::Result result;
    {
        const StopOnSignals stopOnSignals(&pipeline);
        result = pipeline.run();
    }
    const QString log = QDir::toNativeSeparators(result.log);
    switch (result.outcome) {
    case StitchPipeline::Result::Failed:
        if (result.step == 0)
            console.err << "panohead stitch: " << result.error << '\n';
        else
            console.err << QStringLiteral("panohead stitch: step %1/%2 (%3) failed: %4; log: %5\n")
                               .arg(result.step)
                               .arg(result.stepCount)
                               .arg(result.tool, result.error, log);
        console.err.flush();
        return 1;
    case StitchPipeline::Result::Stopped:
        console.err << QStringLiteral("panohead stitch: stopped at step %1/%2 (%3); log: %4\n")
                           .arg(result.step)
                           .arg(result.stepCount)
                           .arg(result.tool, log);
        console.err.flush();
        return 1;
    case StitchPipeline::Result::Succeeded:
        break;
    }
    console.out
        << QStringLiteral("Stitched in %1 s\n").arg(result.elapsedMilliseconds / 1000.0, 0, 'f', 1)
        << "Panorama:         " << QDir::toNativeSeparators(result.panorama)
        << QStringLiteral(" (%1 × %2)")
               .arg(result.panoramaSize.width())
               .arg(result.panoramaSize.height())
        << '\n'
        << (result.preview.isEmpty() ? QString()
                                     : QStringLiteral("Preview:          %1\n")
                                           .arg(QDir::toNativeSeparators(result.preview)))
        << "Stitched project: " << QDir::toNativeSeparators(result.stitchedProject) << '\n'
        << "Work folder:      " << QDir::toNativeSeparators(result.workFolder) << '\n';
    console.out.flush();
    return 0;
}
