#include "ImportCommand.h"

#include "ExitCode.h"
#include "FormLimits.h"
#include "HeadImport.h"
#include "ImportOutputs.h"
#include "PhotoFiles.h"
#include "StitchCommand.h"
#include "StopSignals.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <cmath>

namespace {

/// A failure: its exit code (ExitCode) and one line.
struct Failure
{
    int code = 0;
    QString message;
};

/// Everything the user chose on the command line.
struct Choices
{
    ImportRequest request;
    QString outputFolder;
    QString name;
    bool stitch = false;
    bool force = false;
    QString tools;
};

Failure usage(const QString& message)
{
    return { ExitCode::UsageError, message };
}

bool parseInteger(const QString& text, int minimum, int maximum, int* value)
{
    bool ok = false;
    const int v = text.toInt(&ok);
    if (!ok || v < minimum || v > maximum)
        return false;
    *value = v;
    return true;
}

/// Reads the command line into *c. A usage failure when it does not fit.
Failure parseChoices(const QStringList& arguments, Choices* c, bool* helpOnly)
{
    *helpOnly = false;
    ImportRequest& r = c->request;
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help({ QStringLiteral("h"), QStringLiteral("help") }, QString());
    const QCommandLineOption output(
        { QStringLiteral("o"), QStringLiteral("output") }, QString(), QStringLiteral("folder"));
    const QCommandLineOption name(QStringLiteral("name"), QString(), QStringLiteral("name"));
    const QCommandLineOption photoOrder(
        QStringLiteral("photo-order"), QString(), QStringLiteral("order"));
    const QCommandLineOption focal(QStringLiteral("focal"), QString(), QStringLiteral("focal"));
    const QCommandLineOption lens(QStringLiteral("lens"), QString(), QStringLiteral("lens"));
    const QCommandLineOption invert(QStringLiteral("invert-pitch"), QString());
    const QCommandLineOption rotate(QStringLiteral("rotate"), QString(), QStringLiteral("degrees"));
    const QCommandLineOption outputMode(
        QStringLiteral("output-mode"), QString(), QStringLiteral("mode"));
    const QCommandLineOption rows(QStringLiteral("rows"), QString(), QStringLiteral("rows"));
    const QCommandLineOption bracket(QStringLiteral("bracket"), QString(), QStringLiteral("n"));
    const QCommandLineOption skip(QStringLiteral("skip"), QString(), QStringLiteral("n"));
    const QCommandLineOption order(QStringLiteral("order"), QString(), QStringLiteral("order"));
    const QCommandLineOption overlap(
        QStringLiteral("overlap"), QString(), QStringLiteral("percent"));
    const QCommandLineOption force360(
        { QStringLiteral("force-360"), QStringLiteral("360") }, QString());
    const QCommandLineOption noAuto(QStringLiteral("no-auto-detection"), QString());
    const QCommandLineOption clean(QStringLiteral("clean-wrong-links"), QString());
    const QCommandLineOption skipOptimization(QStringLiteral("skip-optimization"), QString());
    const QCommandLineOption noRecorded(QStringLiteral("no-recorded-location"), QString());
    const QCommandLineOption level(
        QStringLiteral("level-linking"), QString(), QStringLiteral("level"));
    const QCommandLineOption stack(
        QStringLiteral("stack-linking"), QString(), QStringLiteral("kind"));
    const QCommandLineOption stitch(QStringLiteral("stitch"), QString());
    const QCommandLineOption tools(QStringLiteral("tools"), QString(), QStringLiteral("folder"));
    const QCommandLineOption force(QStringLiteral("force"), QString());
    parser.addOptions({ help, output, name, photoOrder, focal, lens, invert, rotate, outputMode,
        rows, bracket, skip, order, overlap, force360, noAuto, clean, skipOptimization, noRecorded,
        level, stack, stitch, tools, force });
    if (!parser.parse(QStringList { QStringLiteral("panohead-import") } + arguments))
        return usage(parser.errorText());
    if (parser.isSet(help)) {
        *helpOnly = true;
        return {};
    }
    QStringList positional = parser.positionalArguments();
    if (positional.isEmpty())
        return usage(QStringLiteral("name the head: papywizard, vrdrive2, clauss or gigapan"));
    const QString head = positional.takeFirst();
    if (!HeadFromName(head, &r.head))
        return usage(QStringLiteral("unknown head \"%1\": papywizard, vrdrive2, clauss or gigapan")
                         .arg(head));
    const QString headName = HeadName(r.head);

    // Which options each head's page offers.
    const bool gigapan = r.head == Head::Gigapan;
    const bool xmlRecord = HasXmlRecord(r.head);
    const struct
    {
        const QCommandLineOption* option;
        bool applies;
    } applicability[] = {
        { &invert, HasRecord(r.head) },
        { &rotate, xmlRecord },
        { &outputMode, ImportOptions::OffersOutputMode(r.head) },
        { &rows, gigapan },
        { &bracket, gigapan || xmlRecord },
        { &skip, gigapan },
        { &order, gigapan },
        { &overlap, ImportOptions::OffersOverlap(r.head) },
        { &force360, gigapan },
        { &noRecorded, ImportOptions::OffersRecordedLocation(r.head) },
        { &level, ImportOptions::OffersLinking(r.head) },
        { &stack, ImportOptions::OffersLinking(r.head) },
    };
    for (const auto& a : applicability) {
        if (!a.applies && parser.isSet(*a.option))
            return usage(QStringLiteral("option --%1 does not apply to %2")
                             .arg(a.option->names().last(), headName));
    }

    if (HasRecord(r.head)) {
        if (positional.isEmpty())
            return usage(
                QStringLiteral("%1: give the record file, then the photographs").arg(headName));
        r.record = positional.takeFirst();
    }
    if (positional.isEmpty())
        return usage(QStringLiteral("give the photographs (files or folders)"));
    r.photoArguments = positional;

    c->outputFolder = parser.isSet(output) ? parser.value(output) : QDir::currentPath();
    c->name = parser.value(name);
    if (parser.isSet(name)
        && (c->name.isEmpty() || c->name.contains(QLatin1Char('/'))
            || c->name.contains(QLatin1Char('"'))))
        return usage(QStringLiteral("--name needs a plain file name"));
    if (parser.isSet(photoOrder)) {
        r.photoOrder = parser.value(photoOrder);
        if (r.photoOrder != QLatin1String("name") && r.photoOrder != QLatin1String("given")
            && r.photoOrder != QLatin1String("time"))
            return usage(QStringLiteral("--photo-order is name, given or time"));
    }
    if (parser.isSet(focal)) {
        r.focal = parser.value(focal);
        bool number = false;
        const double f = r.focal.toDouble(&number);
        const bool named = r.focal == QLatin1String("images")
            || (xmlRecord && r.focal == QLatin1String("record"));
        if (!named && (!number || !(f >= FormLimits::MinFocal && f <= FormLimits::MaxFocal)))
            return usage(xmlRecord ? QStringLiteral("--focal is a length from 1 to 10000 mm, "
                                                    "\"images\" or \"record\"")
                                   : QStringLiteral("--focal is a length from 1 to 10000 mm or "
                                                    "\"images\""));
    }
    if (parser.isSet(lens)) {
        r.lens = parser.value(lens);
        const bool ok = r.lens == QLatin1String("standard") || r.lens == QLatin1String("fisheye")
            || r.lens == QLatin1String("images")
            || (xmlRecord && r.lens == QLatin1String("record"));
        if (!ok)
            return usage(xmlRecord ? QStringLiteral("--lens is standard, fisheye, images or "
                                                    "record")
                                   : QStringLiteral("--lens is standard, fisheye or images"));
    }
    r.invertPitch = parser.isSet(invert);
    if (parser.isSet(rotate)
        && (!parseInteger(parser.value(rotate), -36000, 36000, &r.rotate) || r.rotate % 90 != 0))
        return usage(QStringLiteral("--rotate is a multiple of 90 degrees"));
    if (parser.isSet(outputMode)) {
        if (parser.value(outputMode) == QLatin1String("tonemapped"))
            r.options.outputMode = 2;
        else if (parser.value(outputMode) == QLatin1String("hdr"))
            r.options.outputMode = 3;
        else
            return usage(QStringLiteral("--output-mode is tonemapped or hdr"));
    }
    if (parser.isSet(rows)
        && !parseInteger(parser.value(rows), FormLimits::MinRows, FormLimits::MaxRows, &r.rows))
        return usage(QStringLiteral("--rows is a number from %1 to %2")
                         .arg(FormLimits::MinRows)
                         .arg(FormLimits::MaxRows));
    if (parser.isSet(bracket)
        && !parseInteger(
            parser.value(bracket), FormLimits::MinBracket, FormLimits::MaxBracket, &r.bracket))
        return usage(QStringLiteral("--bracket is a number from %1 to %2")
                         .arg(FormLimits::MinBracket)
                         .arg(FormLimits::MaxBracket));
    r.bracketGiven = parser.isSet(bracket);
    if (parser.isSet(skip)
        && !parseInteger(parser.value(skip), FormLimits::MinSkip, FormLimits::MaxSkip, &r.skip))
        return usage(QStringLiteral("--skip is a number of photographs from %1 to %2")
                         .arg(FormLimits::MinSkip)
                         .arg(FormLimits::MaxSkip));
    if (parser.isSet(order)) {
        const QStringList names
            = { QStringLiteral("columns"), QStringLiteral("rows-down"), QStringLiteral("rows-up"),
                  QStringLiteral("columns-left"), QStringLiteral("serpentine") };
        const QString v = parser.value(order);
        r.order = names.indexOf(v);
        if (r.order < 0 && !parseInteger(v, 0, 4, &r.order))
            return usage(QStringLiteral("--order is columns, rows-down, rows-up, columns-left, "
                                        "serpentine or 0 to 4"));
    }
    if (parser.isSet(overlap)) {
        bool number = false;
        const double percent = parser.value(overlap).toDouble(&number);
        if (!number || !(percent >= FormLimits::MinOverlap && percent <= FormLimits::MaxOverlap))
            return usage(QStringLiteral("--overlap is a percentage from 5 to 100"));
        r.options.overlap = FormLimits::OverlapAsShown(percent);
    } else {
        r.options.overlap = FormLimits::DefaultOverlap;
    }
    r.force360 = parser.isSet(force360);
    r.options.autoDetection = !parser.isSet(noAuto);
    r.options.cleanWrongLinks = parser.isSet(clean);
    r.options.skipOptimization = parser.isSet(skipOptimization);
    r.options.useRecordedLocation = !parser.isSet(noRecorded);
    if (parser.isSet(level)) {
        const QString v = parser.value(level);
        if (v == QLatin1String("reference"))
            r.options.levelLinking = 0;
        else if (v == QLatin1String("all"))
            r.options.levelLinking = 1;
        else
            return usage(QStringLiteral("--level-linking is reference or all"));
    }
    if (parser.isSet(stack)) {
        const QString v = parser.value(stack);
        if (v == QLatin1String("hard"))
            r.options.stackLinking = 0;
        else if (v == QLatin1String("points"))
            r.options.stackLinking = 1;
        else
            return usage(QStringLiteral("--stack-linking is hard or points"));
        if (!r.options.LinkingConsistent())
            return usage(QStringLiteral("--level-linking all needs --stack-linking points"));
    }
    // As on the pages: linking all levels brings control points inside stacks.
    r.options.ChooseLevelLinking(r.options.levelLinking);
    c->stitch = parser.isSet(stitch);
    c->force = parser.isSet(force);
    c->tools = parser.value(tools);
    if (parser.isSet(tools) && !c->stitch)
        return usage(QStringLiteral("--tools goes with --stitch"));
    return {};
}

constexpr qint64 MaxRecordBytes = 16 * 1024 * 1024;

Failure inputError(const QString& message)
{
    return { ExitCode::InputError, message };
}

/// The root element of an XML record; empty when the text is not XML.
QString rootElement(const QByteArray& text)
{
    QXmlStreamReader reader(text);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            return reader.name().toString();
    }
    return QString();
}

/// What can be told of the record before its head's reader reads it: that
/// it is a file that can be read, of a sane size, text, and for this head.
Failure checkRecord(Head head, const QString& path)
{
    const QFileInfo info(path);
    const QString name = QDir::toNativeSeparators(path);
    if (!info.exists() && !info.isSymLink())
        return inputError(QStringLiteral("cannot read the record %1: no such file").arg(path));
    const QString problem = PhotoFiles::problem(path);
    if (problem == QLatin1String("a folder"))
        return inputError(QStringLiteral("the record %1 is a folder, not a file").arg(name));
    if (problem == QLatin1String("empty (0 bytes)"))
        return inputError(QStringLiteral("the record %1 is empty").arg(name));
    if (!problem.isEmpty())
        return inputError(QStringLiteral("cannot read the record %1: %2").arg(name, problem));
    if (info.size() > MaxRecordBytes)
        return inputError(
            QStringLiteral("the record %1 is larger than 16 MiB: not a head's record").arg(name));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return inputError(
            QStringLiteral("cannot read the record %1: %2").arg(name, file.errorString()));
    const QByteArray text = file.readAll();
    if (text.contains('\0'))
        return inputError(
            QStringLiteral("the record %1 holds binary data: not a head's record").arg(name));
    const QString root = rootElement(text);
    const bool claussScript = text.contains("op_shoot");
    // The XML heads read each other's records; a shooting script and an XML
    // record are told apart.
    if (HasXmlRecord(head) && root.isEmpty() && claussScript)
        return inputError(QStringLiteral("the record %1 is a Clauss shooting script, not an XML "
                                         "record (use the head clauss)")
                              .arg(name));
    if (head == Head::Clauss && !root.isEmpty() && !claussScript)
        return inputError(QStringLiteral("the record %1 is an XML record, not a Clauss shooting "
                                         "script (use the head papywizard or vrdrive2)")
                              .arg(name));
    return {};
}

/// What the converter made, checked before anything is written: finite
/// angles and photographs of one size.
Failure checkImported(const Choices& c, const ImportOutcome& imported)
{
    const ExportInput& input = imported.input;
    for (int k = 0; k < input.positions.size(); ++k) {
        const StackPosition& p = input.positions[k];
        if (!std::isfinite(p.yaw) || !std::isfinite(p.pitch) || !std::isfinite(p.roll))
            return inputError(
                QStringLiteral("%1 gives stack %2 an angle that is not a finite number")
                    .arg(HasRecord(c.request.head)
                            ? QStringLiteral("the record %1").arg(c.request.record)
                            : QStringLiteral("the grid"))
                    .arg(k));
    }
    QString first;
    QSize size;
    for (const QStringList& stack : input.panorama.m_stacks) {
        for (const QString& photo : stack) {
            const QSize s = input.images.value(photo).pixelSize;
            if (first.isEmpty()) {
                first = photo;
                size = s;
            } else if (s != size) {
                return inputError(
                    QStringLiteral("the photographs are not all of one size: %1 is %2 × %3 "
                                   "pixels, %4 is %5 × %6")
                        .arg(QFileInfo(first).fileName())
                        .arg(size.width())
                        .arg(size.height())
                        .arg(QFileInfo(photo).fileName())
                        .arg(s.width())
                        .arg(s.height()));
            }
        }
    }
    if (!(input.focalLength >= FormLimits::MinFocal && input.focalLength <= FormLimits::MaxFocal))
        return inputError(QStringLiteral("the focal length %1 mm is outside 1 to 10000 mm; use "
                                         "--focal")
                              .arg(input.focalLength));
    return {};
}

Failure runImport(const Choices& c, Console& console)
{
    QString name = c.name;
    if (name.isEmpty())
        name = HasRecord(c.request.head) ? QFileInfo(c.request.record).completeBaseName()
                                         : QStringLiteral("panorama");
    const ImportOutputs outputs(c.outputFolder, name);

    // Nothing is read or written before the command line is known to be sound.
    QStringList inputs = c.request.photoArguments;
    if (HasRecord(c.request.head))
        inputs.prepend(c.request.record);
    QString error;
    const int checked = outputs.check(inputs, c.force, &error);
    if (checked != ExitCode::Done)
        return { checked, error };
    if (HasRecord(c.request.head)) {
        const Failure f = checkRecord(c.request.head, c.request.record);
        if (f.code)
            return f;
    }

    // Reading leaves nothing on disk: a signal may end the program at once.
    ImportOutcome imported;
    StopSignals::setExitAtOnce("panohead import: stopped\n");
    const bool read = HeadImport::Run(c.request, console, &imported, &error);
    StopSignals::clearExitAtOnce();
    if (!read)
        return inputError(error);
    Failure f = checkImported(c, imported);
    if (f.code)
        return f;

    const int written = outputs.write(imported.input, c.force, &error);
    if (written != ExitCode::Done)
        return { written, error };

    const StructuredPanoramaProperties& p = imported.input.panorama;
    console.out
        << imported.summary << '\n'
        << QStringLiteral("%1, %2, %3")
               .arg(HeadImport::CountText(p.m_stacks.size(), "stack", "stacks"),
                   HeadImport::CountText(imported.input.images.size(), "photograph", "photographs"),
                   HeadImport::CountText(p.m_links.size(), "authorised link", "authorised links"))
        << '\n'
        << "Hugin project:    " << QDir::toNativeSeparators(outputs.project()) << '\n'
        << "Description:      " << QDir::toNativeSeparators(outputs.description()) << '\n'
        << "Layout picture:   " << QDir::toNativeSeparators(outputs.layout()) << '\n';
    console.out.flush();

    if (c.stitch) {
        StitchCommand::Options options;
        options.project = outputs.project();
        options.description = outputs.description();
        options.tools = c.tools;
        const int code = StitchCommand::stitch(options, c.force, console);
        if (code != ExitCode::Done)
            return { code, QString() };
    }
    return {};
}

} // namespace

QString ImportCommand::help()
{
    return QString::fromUtf8(
               "Usage: panohead import <head> [options] [<record>] <photographs or folders>...\n"
               "\n"
               "Turns a motorised head's record and its photographs into a Hugin project\n"
               "(<name>.pto), the panorama description (<name>.json) and a layout picture\n"
               "(<name>-layout.png).\n"
               "\n"
               "Heads and what they need:\n"
               "  papywizard <record.xml> <photos>   Merlin/Orion heads (Papywizard XML record)\n"
               "  vrdrive2 <preset.xml> <photos>     VR Drive 2 head (its XML preset)\n"
               "  clauss <script.txt> <photos>       Clauss Rodeon head (its shooting script)\n"
               "  gigapan <photos>                   Gigapan head (no record: give the grid)\n"
               "\n"
               "Photographs are files or folders (their .jpg, .jpeg, .tif, .tiff and .png\n"
               "files), taken in shooting order.\n"
               "\n"
               "Options:\n"
               "  -o, --output <folder>     where to write (default: the current folder)\n"
               "  --name <name>             base name of the files (default: the record's name,\n"
               "                            \"panorama\" for gigapan)\n"
               "  --photo-order <order>     name (default), given, or time (EXIF shooting time)\n"
               "  --focal <focal>           millimetres (full-frame equivalent), \"images\" (the\n"
               "                            photographs' EXIF data) or \"record\" (papywizard,\n"
               "                            vrdrive2); default: the photographs', else the "
               "record's.\n"
               "                            The photographs' focal length is the mean of those\n"
               "                            that give one (their 35 mm equivalent where known);\n"
               "                            the others are named. (The import pages count a\n"
               "                            photograph without one as 0.)\n"
               "  --lens <lens>             standard, fisheye, images or record (default: the\n"
               "                            photographs' when they give a focal length, else\n"
               "                            the record's)\n"
               "  --invert-pitch            \"Inverse Y coordinates\" (papywizard, vrdrive2, "
               "clauss)\n"
               "  --rotate <degrees>        turn every shot by a multiple of 90 degrees\n"
               "                            (papywizard, vrdrive2)\n"
               "  --output-mode <mode>      tonemapped (default) or hdr (vrdrive2)\n"
               "  --rows <n>                grid rows (gigapan; default: as the page proposes)\n"
               "  --bracket <n>             photographs per position (gigapan: default 1;\n"
               "                            papywizard, vrdrive2: replaces the record's)\n"
               "  --skip <n>                photographs to ignore at the start (gigapan)\n"
               "  --order <order>           columns (default), rows-down, rows-up, columns-left,\n"
               "                            serpentine, or 0 to 4 (gigapan)\n"
               "  --overlap <percent>       overlap between neighbours, 5 to 100 (gigapan; 40)\n"
               "  --force-360               the grid closes a full circle (gigapan)\n"
               "  --no-auto-detection       clear \"Auto detection\"\n"
               "  --clean-wrong-links       set \"Clean wrong link\"\n"
               "  --skip-optimization       set \"Skip optimization\"\n"
               "  --no-recorded-location    clear \"Use recorded location\" (\"Guided\n"
               "                            optimization\" for clauss)\n"
               "  --level-linking <level>   detect links in the reference level (default) or all\n"
               "                            stack levels (not clauss)\n"
               "  --stack-linking <kind>    hard links (default) or points inside a stack (not\n"
               "                            clauss)\n"
               "  --stitch                  stitch the panorama right away (see panohead stitch)\n"
               "  --tools <folder>          with --stitch: where Hugin's programs are\n"
               "  --force                   replace the project, description, layout picture\n"
               "                            (and with --stitch the panorama) when they exist;\n"
               "                            without it an import refuses to replace them\n"
               "  -h, --help                this text\n"
               "\n"
               "The three files are written as a set: each to a temporary file beside it,\n"
               "then all renamed into place, so a failed or stopped import leaves the\n"
               "previous set as it was. While it writes, an import holds the lock file\n"
               ".panohead.lock in the output folder; a second run into the same folder is\n"
               "refused. Ctrl-C or SIGTERM stop it; nothing is left half-written.\n"
               "In a folder of photographs, files named <name>-layout.png are layout\n"
               "pictures, never photographs; a dangling link, a link loop, a FIFO, an empty\n"
               "or unreadable file among the photographs is named and refused.\n"
               "\n"
               "Papywizard and VR Drive 2 records as head software writes them:\n"
               "  - without a bracketing element, the shots' bracket (or num) numbers,\n"
               "    1...n at every position, give the bracketing; numbers that do not repeat\n"
               "    so are an error naming the first shot out of step (--bracket decides).\n"
               "  - a record that ends early (a run cut short) is read up to its last\n"
               "    complete shot, less an incomplete last position; the photographs after\n"
               "    those shots are named and not used.\n"
               "  - a portrait record (cameraOrientation portrait, or a roll on each\n"
               "    position) turns the photographs that do not already stand in portrait,\n"
               "    as stored or by their orientation tag.\n"
               "  (The import pages read these records as the complete shape only.)\n"
               "\n")
        + QLatin1String(ExitCode::Table());
}

int ImportCommand::run(const QStringList& arguments, Console& console)
{
    Choices choices;
    bool helpOnly = false;
    Failure f = parseChoices(arguments, &choices, &helpOnly);
    if (helpOnly) {
        console.out << help();
        console.out.flush();
        return 0;
    }
    if (!f.code)
        f = runImport(choices, console);
    if (f.code && !f.message.isEmpty()) {
        console.err << "panohead import: " << f.message
                    << (f.code == ExitCode::UsageError ? " (see panohead import --help)" : "")
                    << '\n';
        console.err.flush();
    }
    return f.code;
}
