#include "ImportCommand.h"

#include "ClaussToSPP.h"
#include "DescriptionJson.h"
#include "ExportInput.h"
#include "FieldOfView.h"
#include "GigapanPositions.h"
#include "GigapanToSPP.h"
#include "HuginProjectWriter.h"
#include "ImageDefinition.h"
#include "LayoutPicture.h"
#include "MerlinToSPP.h"
#include "PhotoReader.h"
#include "StitchCommand.h"
#include "VRDrive2ToSPP.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QSharedPointer>

#include <algorithm>
#include <cmath>

namespace {

enum class Head { Papywizard, VRDrive2, Clauss, Gigapan };

/// A failure of the work (exit code 1) or of the command line (2).
struct Failure
{
    int code = 0;
    QString message;
};

using Definitions = QVector<QSharedPointer<ImageDefinition>>;

const QStringList PhotoSuffixes = { QStringLiteral("jpg"), QStringLiteral("jpeg"),
    QStringLiteral("tif"), QStringLiteral("tiff"), QStringLiteral("png") };

QString headName(Head head)
{
    switch (head) {
    case Head::Papywizard:
        return QStringLiteral("papywizard");
    case Head::VRDrive2:
        return QStringLiteral("vrdrive2");
    case Head::Clauss:
        return QStringLiteral("clauss");
    case Head::Gigapan:
        return QStringLiteral("gigapan");
    }
    return QString();
}

/// Everything the user chose on the command line.
struct Choices
{
    Head head = Head::Papywizard;
    QString record;
    QStringList photoArguments;
    QString outputFolder;
    QString name;
    QString photoOrder = QStringLiteral("name");
    QString focal = QStringLiteral("auto");
    QString lens = QStringLiteral("auto");
    bool invertPitch = false;
    int rotate = 0;
    int outputMode = 2;
    int rows = 0;
    int bracket = 1;
    int skip = 0;
    int order = 0;
    double overlap = 40.0;
    bool force360 = false;
    bool autoDetection = true;
    bool cleanWrongLinks = false;
    bool skipOptimization = false;
    bool useRecordedLocation = true;
    int levelLinking = 0;
    int stackLinking = 0;
    bool stitch = false;
    QString tools;
};

/// The page's option check boxes and radio buttons, as each page writes them
/// into the record after its converter has run.
void writeOptions(const Choices& c, StructuredPanoramaProperties* p)
{
    switch (c.head) {
    case Head::Papywizard:
    case Head::VRDrive2:
        p->m_levelLinking = c.levelLinking;
        p->m_stackLinking = c.stackLinking;
        p->m_skipOptimization = c.skipOptimization;
        p->m_useRecordedLocation = c.useRecordedLocation;
        p->m_autoDetection = c.autoDetection;
        p->m_cleanWrongLinks = c.cleanWrongLinks;
        if (c.head == Head::VRDrive2)
            p->m_outputMode = c.outputMode;
        break;
    case Head::Clauss:
        p->m_autoDetection = c.autoDetection;
        p->m_skipOptimization = c.skipOptimization;
        p->m_useRecordedLocation = c.useRecordedLocation;
        p->m_cleanWrongLinks = c.cleanWrongLinks;
        break;
    case Head::Gigapan:
        p->m_overlap = c.overlap;
        p->m_levelLinking = c.levelLinking;
        p->m_stackLinking = c.stackLinking;
        p->m_autoDetection = c.autoDetection;
        p->m_skipOptimization = c.skipOptimization;
        p->m_cleanWrongLinks = c.cleanWrongLinks;
        break;
    }
}

Failure usage(const QString& message)
{
    return { 2, message };
}

Failure failure(const QString& message)
{
    return { 1, message };
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
    parser.addOptions({ help, output, name, photoOrder, focal, lens, invert, rotate, outputMode,
        rows, bracket, skip, order, overlap, force360, noAuto, clean, skipOptimization, noRecorded,
        level, stack, stitch, tools });
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
    if (head == QLatin1String("papywizard"))
        c->head = Head::Papywizard;
    else if (head == QLatin1String("vrdrive2"))
        c->head = Head::VRDrive2;
    else if (head == QLatin1String("clauss"))
        c->head = Head::Clauss;
    else if (head == QLatin1String("gigapan"))
        c->head = Head::Gigapan;
    else
        return usage(QStringLiteral("unknown head \"%1\": papywizard, vrdrive2, clauss or gigapan")
                         .arg(head));

    // Which options each head's page offers.
    const bool recorded = c->head != Head::Gigapan;
    const bool merlinLike = c->head == Head::Papywizard || c->head == Head::VRDrive2;
    const struct
    {
        const QCommandLineOption* option;
        bool applies;
    } applicability[] = {
        { &invert, recorded },
        { &rotate, merlinLike },
        { &outputMode, c->head == Head::VRDrive2 },
        { &rows, c->head == Head::Gigapan },
        { &bracket, c->head == Head::Gigapan },
        { &skip, c->head == Head::Gigapan },
        { &order, c->head == Head::Gigapan },
        { &overlap, c->head == Head::Gigapan },
        { &force360, c->head == Head::Gigapan },
        { &noRecorded, recorded },
        { &level, c->head != Head::Clauss },
        { &stack, c->head != Head::Clauss },
    };
    for (const auto& a : applicability) {
        if (!a.applies && parser.isSet(*a.option))
            return usage(QStringLiteral("option --%1 does not apply to %2")
                             .arg(a.option->names().last(), headName(c->head)));
    }

    if (recorded) {
        if (positional.isEmpty())
            return usage(QStringLiteral("%1: give the record file, then the photographs")
                             .arg(headName(c->head)));
        c->record = positional.takeFirst();
    }
    if (positional.isEmpty())
        return usage(QStringLiteral("give the photographs (files or folders)"));
    c->photoArguments = positional;

    c->outputFolder = parser.isSet(output) ? parser.value(output) : QDir::currentPath();
    c->name = parser.value(name);
    if (parser.isSet(name)
        && (c->name.isEmpty() || c->name.contains(QLatin1Char('/'))
            || c->name.contains(QLatin1Char('"'))))
        return usage(QStringLiteral("--name needs a plain file name"));
    if (parser.isSet(photoOrder)) {
        c->photoOrder = parser.value(photoOrder);
        if (c->photoOrder != QLatin1String("name") && c->photoOrder != QLatin1String("given")
            && c->photoOrder != QLatin1String("time"))
            return usage(QStringLiteral("--photo-order is name, given or time"));
    }
    if (parser.isSet(focal)) {
        c->focal = parser.value(focal);
        bool number = false;
        const double f = c->focal.toDouble(&number);
        const bool named = c->focal == QLatin1String("images")
            || (merlinLike && c->focal == QLatin1String("record"));
        if (!named && (!number || !(f >= 1.0 && f <= 10000.0)))
            return usage(merlinLike ? QStringLiteral("--focal is a length from 1 to 10000 mm, "
                                                     "\"images\" or \"record\"")
                                    : QStringLiteral("--focal is a length from 1 to 10000 mm or "
                                                     "\"images\""));
    }
    if (parser.isSet(lens)) {
        c->lens = parser.value(lens);
        const bool ok = c->lens == QLatin1String("standard") || c->lens == QLatin1String("fisheye")
            || c->lens == QLatin1String("images")
            || (merlinLike && c->lens == QLatin1String("record"));
        if (!ok)
            return usage(merlinLike ? QStringLiteral("--lens is standard, fisheye, images or "
                                                     "record")
                                    : QStringLiteral("--lens is standard, fisheye or images"));
    }
    c->invertPitch = parser.isSet(invert);
    if (parser.isSet(rotate)
        && (!parseInteger(parser.value(rotate), -36000, 36000, &c->rotate) || c->rotate % 90 != 0))
        return usage(QStringLiteral("--rotate is a multiple of 90 degrees"));
    if (parser.isSet(outputMode)) {
        if (parser.value(outputMode) == QLatin1String("tonemapped"))
            c->outputMode = 2;
        else if (parser.value(outputMode) == QLatin1String("hdr"))
            c->outputMode = 3;
        else
            return usage(QStringLiteral("--output-mode is tonemapped or hdr"));
    }
    if (parser.isSet(rows) && !parseInteger(parser.value(rows), 1, 100000, &c->rows))
        return usage(QStringLiteral("--rows is a number from 1 to 100000"));
    if (parser.isSet(bracket) && !parseInteger(parser.value(bracket), 1, 1000, &c->bracket))
        return usage(QStringLiteral("--bracket is a number from 1 to 1000"));
    if (parser.isSet(skip) && !parseInteger(parser.value(skip), 0, 1000000, &c->skip))
        return usage(QStringLiteral("--skip is a number of photographs, 0 or more"));
    if (parser.isSet(order)) {
        const QStringList names
            = { QStringLiteral("columns"), QStringLiteral("rows-down"), QStringLiteral("rows-up"),
                  QStringLiteral("columns-left"), QStringLiteral("serpentine") };
        const QString v = parser.value(order);
        c->order = names.indexOf(v);
        if (c->order < 0 && !parseInteger(v, 0, 4, &c->order))
            return usage(QStringLiteral("--order is columns, rows-down, rows-up, columns-left, "
                                        "serpentine or 0 to 4"));
    }
    if (parser.isSet(overlap)) {
        bool number = false;
        c->overlap = parser.value(overlap).toDouble(&number);
        if (!number || !(c->overlap >= 5.0 && c->overlap <= 100.0))
            return usage(QStringLiteral("--overlap is a percentage from 5 to 100"));
    }
    c->force360 = parser.isSet(force360);
    c->autoDetection = !parser.isSet(noAuto);
    c->cleanWrongLinks = parser.isSet(clean);
    c->skipOptimization = parser.isSet(skipOptimization);
    c->useRecordedLocation = !parser.isSet(noRecorded);
    if (parser.isSet(level)) {
        const QString v = parser.value(level);
        if (v == QLatin1String("reference"))
            c->levelLinking = 0;
        else if (v == QLatin1String("all"))
            c->levelLinking = 1;
        else
            return usage(QStringLiteral("--level-linking is reference or all"));
    }
    if (parser.isSet(stack)) {
        const QString v = parser.value(stack);
        if (v == QLatin1String("hard"))
            c->stackLinking = 0;
        else if (v == QLatin1String("points"))
            c->stackLinking = 1;
        else
            return usage(QStringLiteral("--stack-linking is hard or points"));
    }
    // Detecting links in all stack levels needs control points inside a
    // stack; hard links inside a stack allow the reference level only.
    if (c->levelLinking == 1) {
        if (parser.isSet(stack) && c->stackLinking == 0)
            return usage(QStringLiteral("--level-linking all needs --stack-linking points"));
        c->stackLinking = 1;
    }
    c->stitch = parser.isSet(stitch);
    c->tools = parser.value(tools);
    if (parser.isSet(tools) && !c->stitch)
        return usage(QStringLiteral("--tools goes with --stitch"));
    return {};
}

/// The photographs named by the arguments: files as given, folders by their
/// pictures in name order.
Failure collectPhotos(const Choices& c, QStringList* photos)
{
    for (const QString& argument : c.photoArguments) {
        const QFileInfo info(argument);
        if (info.isDir()) {
            QStringList inFolder;
            const QDir folder(argument);
            for (const QFileInfo& entry :
                folder.entryInfoList(QDir::Files | QDir::Readable, QDir::Name)) {
                if (PhotoSuffixes.contains(entry.suffix().toLower()))
                    inFolder << entry.absoluteFilePath();
            }
            if (inFolder.isEmpty())
                return failure(QStringLiteral("no photographs in the folder %1").arg(argument));
            inFolder.sort(Qt::CaseSensitive);
            *photos << inFolder;
        } else if (info.exists()) {
            *photos << info.absoluteFilePath();
        } else {
            return failure(QStringLiteral("no such photograph or folder: %1").arg(argument));
        }
    }
    photos->removeDuplicates();
    if (c.photoOrder == QLatin1String("name"))
        photos->sort(Qt::CaseSensitive);
    return {};
}

/// The mean focal length of the photographs, full-frame equivalent where the
/// EXIF data gives one; 0 when none of them has a focal length.
double imageFocal(const Definitions& definitions)
{
    double sum = 0.0;
    int count = 0;
    for (const auto& d : definitions) {
        const double f
            = d->FocalLength35mm() > 0.0f ? double(d->FocalLength35mm()) : double(d->FocalLength());
        sum += f;
        ++count;
    }
    const double mean = count > 0 ? sum / count : 0.0;
    return mean > 0.0 ? mean : 0.0;
}

/// The lens type of the last photograph, as the pages take it.
LensModel imageLens(const Definitions& definitions)
{
    return definitions.isEmpty() || definitions.last()->LensType() != 1 ? LensStandard
                                                                        : LensFisheye;
}

/// Resolves --focal and --lens. recordFocal < 0 and recordLens < 0 when the
/// head has no record values.
Failure chooseLens(const Choices& c, const Definitions& definitions, double recordFocal,
    int recordLens, double* focal, LensModel* lens, QString* source)
{
    const double fromImages = imageFocal(definitions);
    // As the pages preset them: the photographs win when they know their
    // focal length, else the record.
    const bool imagesWin = fromImages > 0.0;
    if (c.focal == QLatin1String("auto")) {
        if (fromImages > 0.0) {
            *focal = fromImages;
            *source = QStringLiteral("from the photographs");
        } else if (recordFocal > 0.0) {
            *focal = recordFocal;
            *source = QStringLiteral("from the record");
        } else {
            return failure(recordLens < 0 ? QStringLiteral("no focal length: the photographs "
                                                           "give none; use --focal")
                                          : QStringLiteral("no focal length: neither the "
                                                           "photographs nor the record give one; "
                                                           "use --focal"));
        }
    } else if (c.focal == QLatin1String("images")) {
        if (!(fromImages > 0.0))
            return failure(QStringLiteral("the photographs give no focal length; use --focal"));
        *focal = fromImages;
        *source = QStringLiteral("from the photographs");
    } else if (c.focal == QLatin1String("record")) {
        if (!(recordFocal > 0.0))
            return failure(QStringLiteral("the record gives no focal length; use --focal"));
        *focal = recordFocal;
        *source = QStringLiteral("from the record");
    } else {
        *focal = c.focal.toDouble();
        *source = QStringLiteral("given");
    }
    if (c.lens == QLatin1String("standard"))
        *lens = LensStandard;
    else if (c.lens == QLatin1String("fisheye"))
        *lens = LensFisheye;
    else if (c.lens == QLatin1String("images"))
        *lens = imageLens(definitions);
    else if (c.lens == QLatin1String("record"))
        *lens = recordLens == 1 ? LensFisheye : LensStandard;
    else if (imagesWin || recordLens < 0)
        *lens = imageLens(definitions);
    else
        *lens = recordLens == 1 ? LensFisheye : LensStandard;
    return {};
}

QString countText(int n, const char* one, const char* many)
{
    return QStringLiteral("%1 %2").arg(n).arg(QLatin1String(n == 1 ? one : many));
}

Failure checkRecordCount(int shots, int photos)
{
    if (shots != photos)
        return failure(QStringLiteral("the record holds %1 but %2 given")
                           .arg(countText(shots, "shot", "shots"))
                           .arg(countText(photos, "photograph was", "photographs were")));
    return {};
}

Failure checkBracketing(int photos, int bracket)
{
    if (bracket > 1 && photos % bracket != 0)
        return failure(QStringLiteral("the number of photographs (%1) is not a multiple of the "
                                      "bracketing (%2)")
                           .arg(photos)
                           .arg(bracket));
    return {};
}

/// Reads the photographs; a failure naming those that cannot be read.
Failure readPhotos(const QStringList& photos, Console& console, Definitions* definitions)
{
    *definitions = PhotoReader::read(photos, console);
    QStringList unreadable;
    for (int i = 0; i < photos.size(); ++i) {
        if (definitions->at(i).isNull())
            unreadable << QFileInfo(photos[i]).fileName();
    }
    if (!unreadable.isEmpty())
        return failure(QStringLiteral("cannot read %1: %2")
                           .arg(countText(unreadable.size(), "photograph", "photographs"),
                               unreadable.join(QStringLiteral(", "))));
    return {};
}

/// Puts photographs and definitions in shooting-time order (stable).
void sortByTime(QStringList* photos, Definitions* definitions)
{
    QVector<int> order(photos->size());
    for (int i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        return definitions->at(a)->OrderKey() < definitions->at(b)->OrderKey();
    });
    QStringList sortedPhotos;
    Definitions sortedDefinitions;
    for (int i : order) {
        sortedPhotos << photos->at(i);
        sortedDefinitions << definitions->at(i);
    }
    *photos = sortedPhotos;
    *definitions = sortedDefinitions;
}

struct Imported
{
    ExportInput input;
    QString summary;
};

Failure importMerlinLike(const Choices& c, Console& console, Imported* result)
{
    const bool vrDrive = c.head == Head::VRDrive2;
    VRDrive2ToSPP converter;
    const QFileInfo recordInfo(c.record);
    if (!recordInfo.exists())
        return failure(QStringLiteral("cannot read the record %1: no such file").arg(c.record));
    if (!converter.parse(c.record))
        return failure(
            QStringLiteral("cannot read the record %1: not a readable XML record").arg(c.record));
    QStringList photos;
    Failure f = collectPhotos(c, &photos);
    if (f.code)
        return f;
    f = checkRecordCount(converter.m_shoots.size(), photos.size());
    if (f.code)
        return f;
    // The pages go on with a bracketing of 1 when the record gives none.
    const int bracket = converter.m_nbPicts > 1 ? converter.m_nbPicts : 1;
    f = checkBracketing(photos.size(), bracket);
    if (f.code)
        return f;
    Definitions definitions;
    f = readPhotos(photos, console, &definitions);
    if (f.code)
        return f;
    if (c.photoOrder == QLatin1String("time"))
        sortByTime(&photos, &definitions);
    double focal = 0.0;
    LensModel lens = LensStandard;
    QString focalSource;
    f = chooseLens(
        c, definitions, converter.m_xmlFocal, converter.m_xmlLensType, &focal, &lens, &focalSource);
    if (f.code)
        return f;

    // The page's "Inverse Y coordinates" and rotation buttons change the shots.
    for (ShootData& shot : converter.m_shoots) {
        if (c.invertPitch)
            shot.m_pitch = -shot.m_pitch;
        shot.m_roll += float(c.rotate);
    }
    converter.m_nbPicts = bracket;
    if (vrDrive) {
        QList<ZIImageDef*> defs;
        for (const auto& d : definitions)
            defs << d.data();
        converter.VRDrive2ToSPP::generateSPP(photos, defs, focal, lens);
    } else {
        converter.MerlinToSPP::generateSPP(photos, focal, lens);
    }
    writeOptions(c, &converter);

    result->input.panorama = converter;
    result->input.positions = HuginProjectWriter::recordedPositions(converter, bracket);
    result->input.focalLength = focal;
    result->input.lens = lens;
    result->summary
        = QStringLiteral("%1 record %2: %3, bracketing %4; focal length %5 mm (%6), "
                         "%7 lens")
              .arg(vrDrive ? QStringLiteral("VR Drive 2") : QStringLiteral("Papywizard"),
                  QDir::toNativeSeparators(recordInfo.absoluteFilePath()),
                  countText(converter.m_shoots.size(), "shot", "shots"))
              .arg(bracket)
              .arg(HuginProjectWriter::number(focal), focalSource,
                  lens == LensFisheye ? QStringLiteral("fisheye") : QStringLiteral("standard"));
    for (int i = 0; i < photos.size(); ++i) {
        const auto& d = definitions[i];
        ImageInfo info;
        info.path = photos[i];
        info.pixelSize = d->PixelSize();
        info.orientation = d->Orientation();
        info.hasExposure = d->HasExposure();
        info.exposureValue = d->Exposure();
        info.thumbnail = d->ThumbnailImage();
        result->input.images.insert(info.path, info);
    }
    return {};
}

Failure importClauss(const Choices& c, Console& console, Imported* result)
{
    ClaussToSPP converter;
    const QFileInfo recordInfo(c.record);
    if (!recordInfo.exists())
        return failure(QStringLiteral("cannot read the record %1: no such file").arg(c.record));
    if (!converter.parse(c.record))
        return failure(QStringLiteral("cannot read the record %1: not a readable shooting script "
                                      "(an angle that is not a number?)")
                           .arg(c.record));
    QStringList photos;
    Failure f = collectPhotos(c, &photos);
    if (f.code)
        return f;
    f = checkRecordCount(converter.m_shots.size(), photos.size());
    if (f.code)
        return f;
    Definitions definitions;
    f = readPhotos(photos, console, &definitions);
    if (f.code)
        return f;
    if (c.photoOrder == QLatin1String("time"))
        sortByTime(&photos, &definitions);
    double focal = 0.0;
    LensModel lens = LensStandard;
    QString focalSource;
    f = chooseLens(c, definitions, -1.0, -1, &focal, &lens, &focalSource);
    if (f.code)
        return f;
    if (c.invertPitch) {
        for (ShootData& shot : converter.m_shots)
            shot.m_pitch = -shot.m_pitch;
    }
    QList<ZIImageDef*> defs;
    for (const auto& d : definitions)
        defs << d.data();
    converter.generateSPP(photos, defs);
    writeOptions(c, &converter);

    result->input.panorama = converter;
    result->input.positions = HuginProjectWriter::recordedPositions(converter, 1);
    result->input.focalLength = focal;
    result->input.lens = lens;
    result->summary
        = QStringLiteral("Clauss script %1: %2; focal length %3 mm (%4), %5 lens")
              .arg(QDir::toNativeSeparators(recordInfo.absoluteFilePath()),
                  countText(converter.m_shots.size(), "shot", "shots"),
                  HuginProjectWriter::number(focal), focalSource,
                  lens == LensFisheye ? QStringLiteral("fisheye") : QStringLiteral("standard"));
    for (int i = 0; i < photos.size(); ++i) {
        ImageInfo info;
        info.path = photos[i];
        info.pixelSize = definitions[i]->PixelSize();
        info.orientation = definitions[i]->Orientation();
        info.hasExposure = definitions[i]->HasExposure();
        info.exposureValue = definitions[i]->Exposure();
        info.thumbnail = definitions[i]->ThumbnailImage();
        result->input.images.insert(info.path, info);
    }
    return {};
}

/// The rows the Gigapan page proposes for n photographs: the largest divisor
/// of n not above its square root.
int proposedRows(int n)
{
    int rows = int(std::sqrt(double(float(n)))) + 1;
    int columns = 0;
    do {
        --rows;
        if (rows <= 0)
            return 1;
        columns = n / rows + (n % rows ? 1 : 0);
    } while (rows * columns != n);
    return rows;
}

Failure importGigapan(const Choices& c, Console& console, Imported* result)
{
    QStringList photos;
    Failure f = collectPhotos(c, &photos);
    if (f.code)
        return f;
    const int n = photos.size();
    if (c.skip >= n)
        return failure(QStringLiteral("all %1 are skipped (--skip %2)")
                           .arg(countText(n, "photograph", "photographs"))
                           .arg(c.skip));
    f = checkBracketing(n - c.skip, c.bracket);
    if (f.code)
        return f;
    const int rows = c.rows > 0 ? c.rows : proposedRows(n);
    const int columns = (n - c.skip) / c.bracket / rows;
    if (columns < 1)
        return failure(QStringLiteral("%1 of %2 need at least %3 after the %4 skipped; %5 given")
                           .arg(countText(rows, "row", "rows"),
                               countText(c.bracket, "photograph", "photographs"))
                           .arg(rows * c.bracket)
                           .arg(c.skip)
                           .arg(n - c.skip));
    Definitions definitions;
    f = readPhotos(photos, console, &definitions);
    if (f.code)
        return f;
    if (c.photoOrder == QLatin1String("time"))
        sortByTime(&photos, &definitions);
    // The focal length only sizes the pictures in the project; the grid's
    // own photographs decide it.
    const Definitions used = definitions.mid(c.skip, rows * columns * c.bracket);
    double focal = 0.0;
    LensModel lens = LensStandard;
    QString focalSource;
    f = chooseLens(c, used, -1.0, -1, &focal, &lens, &focalSource);
    if (f.code)
        return f;

    GigapanToSPP converter(0, 0, 0, 1, 0);
    converter.m_rows = rows;
    converter.m_columns = columns;
    converter.m_order = c.order;
    converter.m_stackSize = c.bracket;
    converter.m_skipCount = c.skip;
    converter.generateSPP(photos, c.force360);
    writeOptions(c, &converter);

    // The pictures as they stand on the head: turned by their orientation.
    const auto& first = used.first();
    const QSize stored = first->PixelSize();
    const bool turned = first->Orientation() >= 5;
    const int w = stored.width();
    const int h = stored.height();
    const double across = FieldOfView::degrees(focal, lens, w, h, turned ? h : w);
    const double up = FieldOfView::degrees(focal, lens, w, h, turned ? w : h);
    result->input.panorama = converter;
    result->input.positions
        = GigapanPositions::compute(rows, columns, c.order, c.overlap, across, up, c.force360);
    result->input.focalLength = focal;
    result->input.lens = lens;
    const int unused = n - c.skip - rows * columns * c.bracket;
    result->summary
        = QStringLiteral("Gigapan grid: %1 × %2, %3 per position, order %4, overlap "
                         "%5%6; focal length %7 mm (%8), %9 lens")
              .arg(countText(rows, "row", "rows"), countText(columns, "column", "columns"),
                  countText(c.bracket, "photograph", "photographs"))
              .arg(c.order)
              .arg(HuginProjectWriter::number(c.overlap) + QStringLiteral(" %"),
                  c.force360 ? QStringLiteral(", 360°") : QString(),
                  HuginProjectWriter::number(focal), focalSource,
                  lens == LensFisheye ? QStringLiteral("fisheye") : QStringLiteral("standard"));
    if (c.skip > 0 || unused > 0)
        result->summary += QStringLiteral("\n%1 skipped, %2 after the grid not used")
                               .arg(countText(c.skip, "photograph", "photographs"))
                               .arg(unused);
    for (int i = 0; i < photos.size(); ++i) {
        ImageInfo info;
        info.path = photos[i];
        info.pixelSize = definitions[i]->PixelSize();
        info.orientation = definitions[i]->Orientation();
        info.hasExposure = definitions[i]->HasExposure();
        info.exposureValue = definitions[i]->Exposure();
        info.thumbnail = definitions[i]->ThumbnailImage();
        result->input.images.insert(info.path, info);
    }
    return {};
}

Failure runImport(const Choices& c, Console& console)
{
    Imported imported;
    Failure f;
    switch (c.head) {
    case Head::Papywizard:
    case Head::VRDrive2:
        f = importMerlinLike(c, console, &imported);
        break;
    case Head::Clauss:
        f = importClauss(c, console, &imported);
        break;
    case Head::Gigapan:
        f = importGigapan(c, console, &imported);
        break;
    }
    if (f.code)
        return f;
    if (imported.input.panorama.m_stacks.isEmpty())
        return failure(QStringLiteral("the converter made no stack of these photographs"));

    if (!QDir().mkpath(c.outputFolder))
        return failure(QStringLiteral("cannot create the output folder %1").arg(c.outputFolder));
    const QDir folder(QFileInfo(c.outputFolder).absoluteFilePath());
    QString name = c.name;
    if (name.isEmpty())
        name = c.head == Head::Gigapan ? QStringLiteral("panorama")
                                       : QFileInfo(c.record).completeBaseName();
    const QString project = folder.filePath(name + QStringLiteral(".pto"));
    const QString description = folder.filePath(name + QStringLiteral(".json"));
    const QString layout = folder.filePath(name + QStringLiteral("-layout.png"));
    QString error;
    if (!HuginProjectWriter(imported.input).write(project, &error))
        return failure(error);
    if (!DescriptionJson::write(imported.input.panorama, description, &error))
        return failure(error);
    if (!LayoutPicture::write(imported.input, layout, &error))
        return failure(error);

    console.out << imported.summary << '\n'
                << QStringLiteral("%1, %2, %3")
                       .arg(countText(imported.input.panorama.m_stacks.size(), "stack", "stacks"),
                           countText(imported.input.images.size(), "photograph", "photographs"),
                           countText(imported.input.panorama.m_links.size(), "authorised link",
                               "authorised links"))
                << '\n'
                << "Hugin project:    " << QDir::toNativeSeparators(project) << '\n'
                << "Description:      " << QDir::toNativeSeparators(description) << '\n'
                << "Layout picture:   " << QDir::toNativeSeparators(layout) << '\n';
    console.out.flush();

    if (c.stitch) {
        StitchCommand::Options options;
        options.project = project;
        options.description = description;
        options.tools = c.tools;
        if (StitchCommand::stitch(options, console) != 0)
            return { 1, QString() };
    }
    return {};
}

} // namespace

QString ImportCommand::help()
{
    return QStringLiteral(
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
        "                            vrdrive2); default: the photographs', else the record's\n"
        "  --lens <lens>             standard, fisheye, images or record (default: the\n"
        "                            photographs' when they give a focal length, else\n"
        "                            the record's)\n"
        "  --invert-pitch            \"Inverse Y coordinates\" (papywizard, vrdrive2, clauss)\n"
        "  --rotate <degrees>        turn every shot by a multiple of 90 degrees\n"
        "                            (papywizard, vrdrive2)\n"
        "  --output-mode <mode>      tonemapped (default) or hdr (vrdrive2)\n"
        "  --rows <n>                grid rows (gigapan; default: as the page proposes)\n"
        "  --bracket <n>             photographs per position (gigapan; default 1)\n"
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
        "  -h, --help                this text\n"
        "\n"
        "Exit code: 0 done, 1 the import failed, 2 the command line is wrong.\n");
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
                    << (f.code == 2 ? " (see panohead import --help)" : "") << '\n';
        console.err.flush();
    }
    return f.code;
}
