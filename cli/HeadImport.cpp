#include "HeadImport.h"

#include "Bracketing.h"
#include "ClaussToSPP.h"
#include "ExportInputBuilder.h"
#include "FormLimits.h"
#include "GigapanGrid.h"
#include "GigapanToSPP.h"
#include "HuginProjectWriter.h"
#include "ImageDefinition.h"
#include "PhotoFiles.h"
#include "PhotoFocal.h"
#include "PhotoReader.h"
#include "RecordShapes.h"
#include "VRDrive2ToSPP.h"

#include <QDir>
#include <QFileInfo>
#include <QSharedPointer>
#include <QTemporaryFile>

#include <algorithm>

const QStringList HeadImport::PhotoSuffixes = { QStringLiteral("jpg"), QStringLiteral("jpeg"),
    QStringLiteral("tif"), QStringLiteral("tiff"), QStringLiteral("png") };

QString HeadImport::CountText(int n, const char* one, const char* many)
{
    return QStringLiteral("%1 %2").arg(n).arg(QLatin1String(n == 1 ? one : many));
}

namespace {

using Definitions = QVector<QSharedPointer<ImageDefinition>>;

/// Why a step failed; empty when it did not.
using Failure = QString;

/// The photographs in an import: their paths and definitions, same order.
struct Photos
{
    QStringList paths;
    Definitions definitions;

    QList<ZIImageDef*> list(int from = 0, int count = -1) const
    {
        QList<ZIImageDef*> defs;
        const int end = count < 0 ? definitions.size() : qMin(definitions.size(), from + count);
        for (int i = from; i < end; ++i)
            defs << definitions[i].data();
        return defs;
    }
};

/// The focal length and lens an import ends with, and where they came from.
struct Lens
{
    double focal = 0.0;
    LensModel lens = LensStandard;
    QString source;
};

QString lensName(LensModel lens)
{
    return lens == LensFisheye ? QStringLiteral("fisheye") : QStringLiteral("standard");
}

/// The photographs named by the arguments: files as given, folders by their
/// pictures in name order; a file that cannot be a photograph is named.
Failure collectPhotos(const ImportRequest& r, QStringList* photos)
{
    return PhotoFiles::collect(
        r.photoArguments, HeadImport::PhotoSuffixes, r.photoOrder == QLatin1String("name"), photos);
}

Failure checkRecordCount(int shots, int photos)
{
    if (shots != photos)
        return QStringLiteral("the record holds %1 but %2 given")
            .arg(HeadImport::CountText(shots, "shot", "shots"))
            .arg(HeadImport::CountText(photos, "photograph was", "photographs were"));
    return {};
}

Failure checkBracketing(int photos, int bracket)
{
    if (!Bracketing::Fits(photos, bracket))
        return QStringLiteral("the number of photographs (%1) is not a multiple of the "
                              "bracketing (%2)")
            .arg(photos)
            .arg(bracket);
    return {};
}

/// Reads the photographs and puts them in the order asked for; a failure
/// naming those that cannot be read.
Failure readPhotos(const ImportRequest& r, Console& console, Photos* photos)
{
    photos->definitions = PhotoReader::read(photos->paths, console);
    QStringList unreadable;
    for (int i = 0; i < photos->paths.size(); ++i) {
        if (photos->definitions.at(i).isNull())
            unreadable << QFileInfo(photos->paths[i]).fileName();
    }
    if (!unreadable.isEmpty())
        return QStringLiteral("cannot read %1: %2")
            .arg(HeadImport::CountText(unreadable.size(), "photograph", "photographs"),
                unreadable.join(QStringLiteral(", ")));
    if (r.photoOrder == QLatin1String("time")) {
        QVector<int> order(photos->paths.size());
        for (int i = 0; i < order.size(); ++i)
            order[i] = i;
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
            return photos->definitions.at(a)->OrderKey() < photos->definitions.at(b)->OrderKey();
        });
        Photos sorted;
        for (int i : order) {
            sorted.paths << photos->paths.at(i);
            sorted.definitions << photos->definitions.at(i);
        }
        *photos = sorted;
    }
    return {};
}

/// "; 2 photographs give no focal length and are left out of its mean: a.jpg, b.jpg"
QString missingFocalNote(const Photos& photos, const QVector<int>& missing, int offset)
{
    if (missing.isEmpty())
        return QString();
    QStringList names;
    for (int i : missing)
        names << QFileInfo(photos.paths.value(offset + i)).fileName();
    return QStringLiteral("\n%1 no focal length and %2 left out of its mean: %3")
        .arg(missing.size() == 1 ? QStringLiteral("1 photograph gives")
                                 : QStringLiteral("%1 photographs give").arg(missing.size()),
            missing.size() == 1 ? QStringLiteral("is") : QStringLiteral("are"),
            names.join(QStringLiteral(", ")));
}

LensModel lensOf(int type)
{
    return type == LensFisheye ? LensFisheye : LensStandard;
}

/// --focal and --lens for a head with a record of its own focal and lens
/// (Papywizard, VR Drive 2). The result is held as the page's focal box holds it.
Failure chooseRecordedLens(const ImportRequest& r, const Photos& photos, double recordFocal,
    int recordLens, Lens* chosen, QString* note)
{
    QVector<int> missing;
    const QList<ZIImageDef*> defs = photos.list();
    const double fromImages = PhotoFocal::MeanOverKnown(defs, &missing);
    const int imageLens = PhotoFocal::LastLens(defs, LensStandard);
    const PhotoFocal::Choice preset
        = PhotoFocal::Preset(fromImages, imageLens, recordFocal, recordLens);
    double focal = 0.0;
    if (r.focal == QLatin1String("auto")) {
        if (!(preset.focal > 0.0))
            return QStringLiteral("no focal length: neither the photographs nor the record give "
                                  "one; use --focal");
        if (!preset.fromPhotos
            && !(preset.focal >= FormLimits::MinFocal && preset.focal <= FormLimits::MaxFocal))
            return QStringLiteral("the record's focal length %1 mm is outside 1 to 10000 mm; use "
                                  "--focal")
                .arg(preset.focal);
        focal = preset.focal;
        chosen->source = preset.fromPhotos ? QStringLiteral("from the photographs")
                                           : QStringLiteral("from the record");
    } else if (r.focal == QLatin1String("images")) {
        if (!(fromImages > 0.0))
            return QStringLiteral("the photographs give no focal length; use --focal");
        focal = fromImages;
        chosen->source = QStringLiteral("from the photographs");
    } else if (r.focal == QLatin1String("record")) {
        if (!(recordFocal > 0.0))
            return QStringLiteral("the record gives no focal length; use --focal");
        if (!(recordFocal >= FormLimits::MinFocal && recordFocal <= FormLimits::MaxFocal))
            return QStringLiteral("the record's focal length %1 mm is outside 1 to 10000 mm; use "
                                  "--focal")
                .arg(recordFocal);
        focal = recordFocal;
        chosen->source = QStringLiteral("from the record");
    } else {
        focal = r.focal.toDouble();
        chosen->source = QStringLiteral("given");
    }
    chosen->focal = FormLimits::FocalAsShown(focal);
    if (r.lens == QLatin1String("standard"))
        chosen->lens = LensStandard;
    else if (r.lens == QLatin1String("fisheye"))
        chosen->lens = LensFisheye;
    else if (r.lens == QLatin1String("images"))
        chosen->lens = lensOf(imageLens);
    else if (r.lens == QLatin1String("record"))
        chosen->lens = lensOf(recordLens);
    else
        chosen->lens = lensOf(preset.lens);
    if (chosen->source == QLatin1String("from the photographs"))
        *note = missingFocalNote(photos, missing, 0);
    return {};
}

/// --focal and --lens for a head without a record focal (Clauss, Gigapan),
/// once the description is made: as the host exports a handed-over
/// description, from the photographs of its stacks.
Failure chooseGridLens(const ImportRequest& r, const StructuredPanoramaProperties& record,
    const Photos& photos, int offset, int count, Lens* chosen, QString* note)
{
    QVector<int> missing;
    const QList<ZIImageDef*> defs = photos.list(offset, count);
    const int imageLens = PhotoFocal::LastLens(defs, LensStandard);
    const PhotoFocal::Choice described
        = PhotoFocal::ForDescription(record, PhotoFocal::MeanOverKnown(defs, &missing), imageLens);
    if (r.focal == QLatin1String("auto") || r.focal == QLatin1String("images")) {
        // The description's focal, else the photographs' mean.
        if (!(described.focal > 0.0))
            return QStringLiteral("no focal length: the photographs give none; use --focal");
        chosen->focal = described.focal;
        chosen->source = described.fromPhotos ? QStringLiteral("from the photographs")
                                              : QStringLiteral("from the description");
        *note = missingFocalNote(photos, missing, offset);
    } else {
        chosen->focal = r.focal.toDouble();
        chosen->source = QStringLiteral("given");
    }
    if (r.lens == QLatin1String("standard"))
        chosen->lens = LensStandard;
    else if (r.lens == QLatin1String("fisheye"))
        chosen->lens = LensFisheye;
    else if (r.lens == QLatin1String("images"))
        chosen->lens = lensOf(imageLens);
    else
        chosen->lens = lensOf(described.lens);
    return {};
}

/// Everything the exports need, from the description and the photographs.
Failure finish(const StructuredPanoramaProperties& record, const Photos& photos,
    const Lens& lens, ImportOutcome* outcome)
{
    QHash<QString, ImageInfo> images;
    for (int i = 0; i < photos.paths.size(); ++i)
        images.insert(photos.paths[i], ImageInfo::From(photos.paths[i], *photos.definitions[i]));
    QString error;
    if (!ExportInputBuilder::Build(record, images, lens.focal, lens.lens, &outcome->input, &error))
        return error;
    return {};
}

QString focalText(const Lens& lens)
{
    return QStringLiteral("focal length %1 mm (%2), %3 lens")
        .arg(HuginProjectWriter::number(lens.focal), lens.source, lensName(lens.lens));
}

/// The bracketing of a Papywizard or VR Drive 2 record, and how many of its
/// shots make whole positions. --bracket decides when given; else the
/// record's `bracketing` element (1 when it states none, as on the pages);
/// without that element the shots' own numbers. A record that ends early
/// leaves out an incomplete last position.
Failure chooseRecordBracketing(const ImportRequest& r, const VRDrive2ToSPP& converter,
    const RecordShapes& shapes, int* bracket, int* used, QStringList* notes)
{
    const QVector<RecordShapes::Shot>& shots = shapes.shots();
    *used = shots.size();
    if (!r.bracketGiven && converter.m_nbPicts == -1) {
        const RecordShapes::Bracketing b
            = RecordShapes::BracketingFromNumbers(shots, shapes.cutOff());
        if (!b.error.isEmpty())
            return QStringLiteral("the record %1: %2").arg(r.record, b.error);
        *bracket = b.count;
        *used = b.usedShots;
        if (b.fromNumbers && b.count > 1)
            *notes << QStringLiteral("bracketing %1, from the shots' bracket numbers").arg(b.count);
        return {};
    }
    *bracket = r.bracketGiven ? r.bracket : Bracketing::Normalised(converter.m_nbPicts);
    if (shapes.cutOff())
        *used -= *used % *bracket;
    return {};
}

/// True when the photograph stands in portrait once its orientation tag is applied.
bool standsPortrait(const ImageDefinition& photo)
{
    const QSize size = photo.OrientedSize();
    return size.height() > size.width();
}

Failure importXmlRecord(const ImportRequest& r, Console& console, ImportOutcome* outcome)
{
    const bool vrDrive = r.head == Head::VRDrive2;
    VRDrive2ToSPP converter;
    const QFileInfo recordInfo(r.record);
    if (!recordInfo.exists())
        return QStringLiteral("cannot read the record %1: no such file").arg(r.record);
    const QString unreadable
        = QStringLiteral("cannot read the record %1: not a readable XML record").arg(r.record);
    // A record that ends early is read from a copy closed after its last
    // complete shot; the shared reader's bounds apply to that copy too.
    RecordShapes shapes;
    if (!shapes.read(r.record))
        return unreadable;
    QTemporaryFile closed(QDir(QDir::tempPath()).filePath(QStringLiteral("panohead-XXXXXX.xml")));
    QString readable = r.record;
    if (shapes.cutOff()) {
        const QByteArray document = shapes.closedDocument();
        if (!closed.open() || closed.write(document) != document.size() || !closed.flush())
            return QStringLiteral("cannot read the record %1: cannot keep a closed copy (%2)")
                .arg(r.record, closed.errorString());
        readable = closed.fileName();
    }
    if (!converter.parse(readable))
        return unreadable;
    QVector<RecordShapes::Shot>& shots = shapes.shots();
    if (shots.size() != converter.m_shoots.size())
        shots = QVector<RecordShapes::Shot>(converter.m_shoots.size());
    for (int i = 0; i < shots.size(); ++i) {
        shots[i].yaw = converter.m_shoots[i].m_yaw;
        shots[i].pitch = converter.m_shoots[i].m_pitch;
    }

    QStringList notes;
    int bracket = 1;
    int used = 0;
    Failure f = chooseRecordBracketing(r, converter, shapes, &bracket, &used, &notes);
    if (!f.isEmpty())
        return f;
    if (shapes.cutOff()) {
        const int left = shots.size() - used;
        QString line = QStringLiteral("the record ends early: it holds %1")
                           .arg(HeadImport::CountText(shots.size(), "complete shot",
                               "complete shots"));
        if (left > 0)
            line += QStringLiteral("; the %1 of its incomplete last position %2 left out")
                        .arg(HeadImport::CountText(left, "shot", "shots"),
                            left == 1 ? QStringLiteral("is") : QStringLiteral("are"));
        notes << line;
        if (used == 0)
            return QStringLiteral("the record %1 ends early, before its first complete position")
                .arg(r.record);
    }

    Photos photos;
    f = collectPhotos(r, &photos.paths);
    if (!f.isEmpty())
        return f;
    // A record that ends early holds the first shots of the photographs.
    f = checkRecordCount(used, shapes.cutOff() ? qMin(used, int(photos.paths.size()))
                                               : int(photos.paths.size()));
    if (!f.isEmpty())
        return f;
    f = checkBracketing(used, bracket);
    if (!f.isEmpty())
        return f;
    f = readPhotos(r, console, &photos);
    if (!f.isEmpty())
        return f;
    if (photos.paths.size() > used) {
        QStringList names;
        for (int i = used; i < photos.paths.size(); ++i)
            names << QFileInfo(photos.paths[i]).fileName();
        notes << QStringLiteral("%1 after the record's shots not used: %2")
                     .arg(HeadImport::CountText(names.size(), "photograph", "photographs"),
                         names.join(QStringLiteral(", ")));
        photos.paths = photos.paths.mid(0, used);
        photos.definitions.resize(used);
    }
    converter.m_shoots.resize(used);
    shots.resize(used);

    Lens lens;
    QString note;
    f = chooseRecordedLens(
        r, photos, converter.m_xmlFocal, converter.m_xmlLensType, &lens, &note);
    if (!f.isEmpty())
        return f;

    // The camera's roll as the record gives it (portrait: 90), less the
    // quarter turn a photograph standing in portrait already has; then the
    // page's "Inverse Y coordinates" and rotation buttons.
    int turned = 0;
    int upright = 0;
    double portraitRoll = 0.0;
    for (int i = 0; i < used; ++i) {
        ShootData& shot = converter.m_shoots[i];
        const double recorded = RecordShapes::RecordedRoll(shots[i], converter.m_portrait);
        const double left = RecordShapes::RollLeft(recorded, standsPortrait(*photos.definitions[i]));
        if (recorded != left) {
            ++upright;
            portraitRoll = recorded;
        } else if (recorded != 0.0) {
            ++turned;
            portraitRoll = recorded;
        }
        shot.m_roll = float(left);
        if (r.invertPitch)
            shot.m_pitch = -shot.m_pitch;
        shot.m_roll += float(r.rotate);
    }
    if (turned + upright > 0)
        notes << QStringLiteral("camera roll %1° from the record%2: %3 turned by it, %4 upright as "
                                "stored or by %5 orientation tag")
                     .arg(HuginProjectWriter::number(portraitRoll),
                         converter.m_portrait ? QStringLiteral(" (portrait)") : QString(),
                         HeadImport::CountText(turned, "photograph", "photographs"))
                     .arg(upright)
                     .arg(upright == 1 ? QStringLiteral("its") : QStringLiteral("their"));
    converter.m_nbPicts = bracket;
    if (vrDrive)
        converter.VRDrive2ToSPP::generateSPP(photos.paths, photos.list(), lens.focal, lens.lens);
    else
        converter.MerlinToSPP::generateSPP(photos.paths, lens.focal, lens.lens);
    r.options.WriteTo(r.head, converter);
    // Exported as the host exports what a page hands over: at the
    // description's own (single-precision) focal length.
    lens.focal = double(converter.m_focalLength);

    outcome->summary = QStringLiteral("%1 record %2: %3, bracketing %4; %5%6")
                           .arg(vrDrive ? QStringLiteral("VR Drive 2") : QStringLiteral("Papywizard"),
                               QDir::toNativeSeparators(recordInfo.absoluteFilePath()),
                               HeadImport::CountText(converter.m_shoots.size(), "shot", "shots"))
                           .arg(bracket)
                           .arg(focalText(lens), note);
    for (const QString& line : qAsConst(notes))
        outcome->summary += QLatin1Char('\n') + line;
    return finish(converter, photos, lens, outcome);
}

Failure importClauss(const ImportRequest& r, Console& console, ImportOutcome* outcome)
{
    ClaussToSPP converter;
    const QFileInfo recordInfo(r.record);
    if (!recordInfo.exists())
        return QStringLiteral("cannot read the record %1: no such file").arg(r.record);
    if (!converter.parse(r.record))
        return QStringLiteral("cannot read the record %1: not a readable shooting script "
                              "(an angle that is not a number?)")
            .arg(r.record);
    Photos photos;
    Failure f = collectPhotos(r, &photos.paths);
    if (!f.isEmpty())
        return f;
    f = checkRecordCount(converter.m_shots.size(), photos.paths.size());
    if (!f.isEmpty())
        return f;
    f = readPhotos(r, console, &photos);
    if (!f.isEmpty())
        return f;
    if (r.invertPitch) {
        for (ShootData& shot : converter.m_shots)
            shot.m_pitch = -shot.m_pitch;
    }
    converter.generateSPP(photos.paths, photos.list());
    r.options.WriteTo(r.head, converter);
    Lens lens;
    QString note;
    f = chooseGridLens(r, converter, photos, 0, photos.paths.size(), &lens, &note);
    if (!f.isEmpty())
        return f;

    outcome->summary = QStringLiteral("Clauss script %1: %2; %3%4")
                           .arg(QDir::toNativeSeparators(recordInfo.absoluteFilePath()),
                               HeadImport::CountText(converter.m_shots.size(), "shot", "shots"),
                               focalText(lens), note);
    return finish(converter, photos, lens, outcome);
}

Failure importGigapan(const ImportRequest& r, Console& console, ImportOutcome* outcome)
{
    Photos photos;
    Failure f = collectPhotos(r, &photos.paths);
    if (!f.isEmpty())
        return f;
    const int n = photos.paths.size();
    if (r.skip >= n)
        return QStringLiteral("all %1 are skipped (--skip %2)")
            .arg(HeadImport::CountText(n, "photograph", "photographs"))
            .arg(r.skip);
    f = checkBracketing(n - r.skip, r.bracket);
    if (!f.isEmpty())
        return f;
    const int rows = r.rows > 0 ? r.rows : GigapanGrid::Proposed(n).rows;
    const int columns = GigapanGrid::Columns(n, r.skip, r.bracket, rows);
    if (columns < 1)
        return QStringLiteral("%1 of %2 need at least %3 after the %4 skipped; %5 given")
            .arg(HeadImport::CountText(rows, "row", "rows"),
                HeadImport::CountText(r.bracket, "photograph", "photographs"))
            .arg(rows * r.bracket)
            .arg(r.skip)
            .arg(n - r.skip);
    f = readPhotos(r, console, &photos);
    if (!f.isEmpty())
        return f;

    GigapanToSPP converter(0, 0, 0, 1, 0);
    converter.m_rows = rows;
    converter.m_columns = columns;
    converter.m_order = r.order;
    converter.m_stackSize = r.bracket;
    converter.m_skipCount = r.skip;
    converter.generateSPP(photos.paths, r.force360);
    r.options.WriteTo(r.head, converter);
    // The focal length only sizes the pictures in the project; the grid's
    // own photographs decide it.
    Lens lens;
    QString note;
    const int used = rows * columns * r.bracket;
    f = chooseGridLens(r, converter, photos, r.skip, used, &lens, &note);
    if (!f.isEmpty())
        return f;

    const int unused = n - r.skip - used;
    outcome->summary
        = QStringLiteral("Gigapan grid: %1 × %2, %3 per position, order %4, overlap %5%6; %7%8")
              .arg(HeadImport::CountText(rows, "row", "rows"),
                  HeadImport::CountText(columns, "column", "columns"),
                  HeadImport::CountText(r.bracket, "photograph", "photographs"))
              .arg(r.order)
              .arg(HuginProjectWriter::number(converter.m_overlap) + QStringLiteral(" %"),
                  r.force360 ? QStringLiteral(", 360°") : QString(), focalText(lens), note);
    if (r.skip > 0 || unused > 0)
        outcome->summary += QStringLiteral("\n%1 skipped, %2 after the grid not used")
                                .arg(HeadImport::CountText(r.skip, "photograph", "photographs"))
                                .arg(unused);
    return finish(converter, photos, lens, outcome);
}

} // namespace

bool HeadImport::Run(
    const ImportRequest& request, Console& console, ImportOutcome* outcome, QString* error)
{
    Failure f;
    switch (request.head) {
    case Head::Papywizard:
    case Head::VRDrive2:
        f = importXmlRecord(request, console, outcome);
        break;
    case Head::Clauss:
        f = importClauss(request, console, outcome);
        break;
    case Head::Gigapan:
        f = importGigapan(request, console, outcome);
        break;
    }
    if (f.isEmpty() && outcome->input.panorama.m_stacks.isEmpty())
        f = QStringLiteral("the converter made no stack of these photographs");
    if (!f.isEmpty()) {
        if (error)
            *error = f;
        return false;
    }
    return true;
}
