#include "StitchCommand.h"

#include "ExitCode.h"
#include "OutputFiles.h"
#include "StopSignals.h"
#include "ToolRunner.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

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

/// "[6/7] nona: remapping" and, while pictures are counted, " 12 of 30".
QString stepLine(const StitchPipeline::StepEvent& event)
{
    QString line = QStringLiteral("[%1/%2] %3: %4")
                       .arg(event.step)
                       .arg(event.count)
                       .arg(event.tool, stepText(event));
    if (event.phase == StitchPipeline::StepEvent::Progressed)
        line += QStringLiteral(" %1 of %2").arg(event.done).arg(event.total);
    return line + QStringLiteral(" ... ");
}

void print(Console& console, const StitchPipeline::StepEvent& event)
{
    switch (event.phase) {
    case StitchPipeline::StepEvent::Started:
        console.out << stepLine(event);
        break;
    case StitchPipeline::StepEvent::Progressed:
        // On a terminal the step's line counts the pictures in place; a log
        // gets the step's line once, its end saying how many were written.
        if (console.interactive)
            console.out << '\r' << stepLine(event);
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

struct Failure
{
    int code = ExitCode::Done;
    QString message;
};

Failure inputError(const QString& message)
{
    return { ExitCode::InputError, message };
}

/// Everything the stitch can check before a tool runs: the pipeline's checks
/// of the project, its description and its photographs, then those of the
/// command line: the panorama can be written and is none of the inputs,
/// Hugin's programs are found.
Failure check(
    StitchPipeline& pipeline, const StitchCommand::Options& o, bool force, QString* panorama)
{
    QString error;
    if (!pipeline.check(&error))
        return inputError(error);
    const StitchPipeline::Inputs& checked = pipeline.inputs();
    *panorama = checked.panorama;
    QStringList inputs = { checked.project };
    if (!checked.description.isEmpty())
        inputs << checked.description;
    inputs << checked.photographs;
    for (const QString& input : inputs) {
        if (OutputFiles::sameFile(*panorama, input))
            return { ExitCode::UsageError,
                QStringLiteral("the panorama %1 would replace the input %2; choose another -o")
                    .arg(QDir::toNativeSeparators(*panorama), input) };
    }
    const QString panoramaFolder = QFileInfo(*panorama).absolutePath();
    if (!QFileInfo(panoramaFolder).isDir())
        return inputError(QFileInfo::exists(panoramaFolder)
                ? QStringLiteral("the panorama's folder %1 is a file").arg(panoramaFolder)
                : QStringLiteral("the panorama's folder %1 does not exist").arg(panoramaFolder));
    if (!OutputFiles::checkFolder(panoramaFolder, QStringLiteral("panorama's folder"), &error))
        return inputError(error);
    if (QFileInfo(*panorama).isDir())
        return inputError(QStringLiteral("the panorama %1 is a folder").arg(*panorama));
    const QString present = OutputFiles::existing({ *panorama }, force);
    if (!present.isEmpty())
        return inputError(OutputFiles::existsMessage(present));

    const ToolRunner tools(o.tools);
    for (const QString& tool : StitchPipeline::programs()) {
        if (tools.program(tool).isEmpty())
            return { ExitCode::ToolFailure,
                QStringLiteral("Hugin's program %1 is not found in %2 (Debian package %3)")
                    .arg(tool, o.tools.isEmpty() ? QStringLiteral("PATH") : o.tools,
                        StitchCommand::package(tool)) };
    }
    return {};
}

} // namespace

QString StitchCommand::package(const QString& tool)
{
    if (tool == QLatin1String("enblend") || tool == QLatin1String("enfuse"))
        return tool;
    return QStringLiteral("hugin-tools");
}

QString StitchCommand::help()
{
    return QString::fromUtf8(
               "Usage: panohead stitch [options] <project.pto>\n"
               "\n"
               "Stitches a project written by \"panohead import\" with Hugin's tools: control\n"
               "points are found (with \"Use recorded location\" by correlating the linked\n"
               "pictures at their recorded positions; else, or where correlation leaves a\n"
               "linked pair without points, by cpfind), the points between stacks that no\n"
               "authorised link joins are removed, cpclean removes wrong points (points by\n"
               "correlation are checked pair by pair only), autooptimiser places the\n"
               "pictures, pano_modify chooses the canvas and crop (a project on the whole\n"
               "sphere keeps its projection), nona remaps the pictures, enfuse fuses the\n"
               "exposures of every stack and\n"
               "verdandi blends the stacks into the 8-bit panorama. With --hdr (the default\n"
               "when the description's output mode is 32-bit HDR) each stack is merged to\n"
               "linear floating point (hugin_hdrmerge) and enblend blends the stacks into an\n"
               "OpenEXR or 32-bit float TIFF panorama, with the fused 8-bit panorama beside it\n"
               "as a JPEG preview.\n"
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
               "                            project, same name; when there is none, the\n"
               "                            project's stacks are kept and every pair of\n"
               "                            pictures is searched for control points)\n"
               "  -o, --output <file>       the panorama, .tif or .jpg; with --hdr .exr or .tif\n"
               "                            (default: <name>.tif, with --hdr <name>.exr,\n"
               "                            beside the project)\n"
               "  --hdr                     an HDR panorama and a fused JPEG preview\n"
               "  --work-folder <folder>    intermediate projects, pictures and the log\n"
               "                            (default: <name>.stitch beside the project)\n"
               "  --tools <folder>          where Hugin's programs are (default: PATH)\n"
               "  --timeout <seconds>       longest run of any one program, 1 to 86400\n"
               "                            (default 900)\n"
               "  --cpfind                  find control points with cpfind even where the\n"
               "                            recorded positions allow correlation\n"
               "  --force                   replace the panorama when it exists; without it\n"
               "                            the stitch refuses to replace it\n"
               "  -h, --help                this text\n"
               "\n"
               "The panorama is written under a temporary name beside it and takes its name\n"
               "only when complete: a failed or stopped stitch leaves an older panorama as\n"
               "it was. While it runs, the stitch holds the lock file .panohead.lock in the\n"
               "panorama's folder and stitch.lock in its work folder. Ctrl-C or SIGTERM\n"
               "end the running program within a second and remove its partial output.\n"
               "\n")
        + QLatin1String(ExitCode::Table());
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
    const QCommandLineOption force(QStringLiteral("force"), QString());
    const QCommandLineOption cpfind(QStringLiteral("cpfind"), QString());
    parser.addOptions({ help, description, output, work, tools, timeout, hdr, force, cpfind });
    const auto usage = [&console](const QString& message) {
        console.err << "panohead stitch: " << message << " (see panohead stitch --help)\n";
        console.err.flush();
        return ExitCode::UsageError;
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
        if (!ok || options.timeoutSeconds < 1 || options.timeoutSeconds > MaxTimeoutSeconds)
            return usage(QStringLiteral("--timeout is a number of seconds from 1 to %1")
                             .arg(MaxTimeoutSeconds));
    }
    options.cpfind = parser.isSet(cpfind);
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
    return stitch(options, parser.isSet(force), console);
}

int StitchCommand::stitch(const Options& options, bool force, Console& console)
{
    const auto fail = [&console](const Failure& f) {
        console.err << "panohead stitch: " << f.message << '\n';
        console.err.flush();
        return f.code;
    };
    StitchPipeline pipeline(options);
    QString panorama;
    const Failure checked = check(pipeline, options, force, &panorama);
    if (checked.code != ExitCode::Done)
        return fail(checked);
    if (!pipeline.inputs().note.isEmpty()) {
        console.err << "panohead stitch: " << pipeline.inputs().note << '\n';
        console.err.flush();
    }
    OutputFiles::FolderLock lock;
    QString error;
    if (!lock.lock(QFileInfo(panorama).absolutePath(), &error))
        return fail(inputError(error));
    // Another run may have finished its panorama while this one checked.
    const QString present = OutputFiles::existing({ panorama }, force);
    if (!present.isEmpty())
        return fail(inputError(OutputFiles::existsMessage(present)));

    pipeline.setProgress(
        [&console](const StitchPipeline::StepEvent& event) { print(console, event); });
    StopSignals::setPipeline(&pipeline);
    const StitchPipeline::Result result = pipeline.run();
    StopSignals::setPipeline(nullptr);
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
        return result.step == 0 ? ExitCode::InputError : ExitCode::ToolFailure;
    case StitchPipeline::Result::Stopped:
        console.err << QStringLiteral("panohead stitch: stopped at step %1/%2 (%3); log: %4\n")
                           .arg(result.step)
                           .arg(result.stepCount)
                           .arg(result.tool, log);
        console.err.flush();
        return StopSignals::received() ? StopSignals::exitCode() : ExitCode::Interrupted + SIGINT;
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
    return ExitCode::Done;
}
