// Papywizard and VR Drive 2 records as head software writes them, read by the
// command line: without a header (the bracketing from the shots' numbers),
// cut off after a run stopped half-way, with a comment before each shot,
// numbered with `num`, with the same id for every image of a bracket, with
// angles of any precision, in portrait with photographs stored either way;
// yaw written 0...360 or -180...180; and the reader's bounds kept.
//
// The records in data/records are written by recordText() below; run the
// suite with ZPH_WRITE_RECORDS=<folder> to write them again.
#include "CommandLine.h"
#include "HeadImport.h"
#include "HuginProjectWriter.h"
#include "MerlinToSPP.h"
#include "PhotoFixture.h"
#include "RecordShapes.h"

#include <QDir>
#include <QFile>
#include <QPointF>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

/// How a producer writes a record.
struct RecordForm
{
    /// Where the positions point: yaw, pitch in degrees.
    QVector<QPointF> positions;
    /// Exposures at each position; exposuresAt overrides it per position.
    int exposures = 1;
    QVector<int> exposuresAt;
    bool header = true;
    /// A `bracketing` element in the header's camera.
    bool bracketing = true;
    bool portrait = false;
    enum Ids { IdPerShot, IdPerPosition, NoId } ids = IdPerShot;
    /// The attribute holding the exposure index; empty for none.
    QString number = QStringLiteral("bracket");
    /// The number counts the shots instead of the exposures.
    bool numberCountsShots = false;
    /// The position's roll attribute; empty for none.
    QString roll = QStringLiteral("0");
    bool time = true;
    bool comments = false;
    /// Decimals of the angles; -1 as short as the value allows.
    int decimals = -1;
    /// The document ends after this many shots (-1: complete).
    int cutAfter = -1;
    /// ... and in the middle of the next shot.
    bool cutInside = false;
    /// Written before the root element.
    QString doctype;
};

QString angle(double degrees, int decimals)
{
    return decimals < 0 ? QString::number(degrees) : QString::number(degrees, 'f', decimals);
}

/// The record a producer of this shape writes.
QByteArray recordText(const RecordForm& s)
{
    QByteArray xml;
    QTextStream out(&xml);
    out.setCodec("UTF-8");
    out << "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
    if (!s.doctype.isEmpty())
        out << s.doctype << "\n";
    out << "<papywizard version=\"c\">\n";
    if (s.header) {
        out << "  <header>\n    <general>\n      <title>" << QStringLiteral("Prés du lac")
            << "</title>\n    </general>\n    <camera>\n";
        if (s.bracketing)
            out << "      <bracketing nbPicts=\"" << s.exposures << "\"/>\n";
        out << "      <sensor coef=\"1.0\" ratio=\"3:2\"/>\n    </camera>\n"
            << "    <lens type=\"rectilinear\">\n      <focal>24</focal>\n    </lens>\n"
            << "    <shooting mode=\"mosaic\">\n      <cameraOrientation>"
            << (s.portrait ? "portrait" : "landscape") << "</cameraOrientation>\n"
            << "    </shooting>\n  </header>\n";
    }
    out << "  <shoot>\n";
    int shot = 0;
    for (int k = 0; k < s.positions.size(); ++k) {
        const int exposures = s.exposuresAt.value(k, s.exposures);
        for (int e = 1; e <= exposures; ++e, ++shot) {
            if (shot == s.cutAfter) {
                if (s.cutInside)
                    out << "    <pict id=\"" << shot + 1 << "\" bracket=\"" << e
                        << "\">\n      <position yaw=\"1";
                out.flush();
                return xml;
            }
            if (s.comments)
                out << "    <!-- shot " << shot + 1 << " -->\n";
            out << "    <pict";
            if (s.ids == RecordForm::IdPerShot)
                out << " id=\"" << shot + 1 << "\"";
            else if (s.ids == RecordForm::IdPerPosition)
                out << " id=\"" << k + 1 << "\"";
            if (!s.number.isEmpty())
                out << " " << s.number << "=\"" << (s.numberCountsShots ? shot + 1 : e) << "\"";
            out << ">\n";
            if (s.time)
                out << "      <time>2024-06-01T12:" << QString::number(shot / 60).rightJustified(2, '0')
                    << ":" << QString::number(shot % 60).rightJustified(2, '0') << "</time>\n";
            out << "      <position yaw=\"" << angle(s.positions[k].x(), s.decimals)
                << "\" pitch=\"" << angle(s.positions[k].y(), s.decimals) << "\"";
            if (!s.roll.isEmpty())
                out << " roll=\"" << s.roll << "\"";
            out << "/>\n    </pict>\n";
        }
    }
    if (s.cutAfter < 0)
        out << "  </shoot>\n</papywizard>\n";
    out.flush();
    return xml;
}

/// rows × columns positions, row after row from the top, yaw from yaw0.
QVector<QPointF> grid(int rows, int columns, double yaw0, double yawStep, double pitchStep)
{
    QVector<QPointF> positions;
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < columns; ++c)
            positions << QPointF(yaw0 + c * yawStep, (rows - 1) * pitchStep / 2 - r * pitchStep);
    }
    return positions;
}

/// The full circle of 12 positions every 30°, yaw written from 0 to 330 or
/// from -180 to 150.
QVector<QPointF> circle(bool signedYaw)
{
    QVector<QPointF> positions;
    for (int c = 0; c < 12; ++c) {
        double yaw = c * 30.0 + 5.0;
        if (signedYaw && yaw > 180.0)
            yaw -= 360.0;
        positions << QPointF(yaw, 0.0);
    }
    return positions;
}

/// The fixtures of data/records, by file name.
QVector<QPair<QString, RecordForm>> fixtureForms()
{
    QVector<QPair<QString, RecordForm>> forms;
    const auto add = [&forms](const char* name, const RecordForm& s) {
        forms << qMakePair(QString::fromLatin1(name), s);
    };
    RecordForm headerless;
    headerless.header = false;
    headerless.ids = RecordForm::NoId;
    headerless.roll.clear();
    headerless.time = false;

    RecordForm s = headerless;
    s.positions = grid(5, 10, 0.0, 36.0, 20.0);
    s.exposures = 10;
    add("headerless-50x10.xml", s);

    s = headerless;
    s.positions = grid(2, 4, 0.0, 40.0, 30.0);
    s.exposures = 3;
    add("headerless-8x3.xml", s);
    s.exposuresAt = { 3, 3, 2, 3, 3, 3, 3, 3 };
    add("headerless-short-position.xml", s);
    s.exposuresAt = { 3, 3, 3, 3, 3, 3, 3, 2 };
    s.ids = RecordForm::IdPerShot;
    add("headerless-short-last-position.xml", s);
    s.exposuresAt = { 3, 4, 3, 3, 3, 3, 3, 3 };
    add("headerless-long-position.xml", s);

    RecordForm cut;
    cut.positions = grid(2, 6, 0.0, 40.0, 30.0);
    cut.exposures = 3;
    cut.cutAfter = 21;
    add("cut-after-21-of-36.xml", cut);
    cut.cutAfter = 22;
    cut.cutInside = true;
    add("cut-inside-23rd-of-36.xml", cut);
    s = headerless;
    s.positions = cut.positions;
    s.exposures = 3;
    s.cutAfter = 20;
    add("headerless-cut-after-20-of-36.xml", s);

    RecordForm same;
    same.positions = grid(2, 4, 0.0, 40.0, 30.0);
    same.exposures = 3;
    same.ids = RecordForm::IdPerPosition;
    add("same-id-per-bracket.xml", same);
    same.header = false;
    add("headerless-same-id-per-bracket.xml", same);

    RecordForm num;
    num.positions = grid(2, 4, 0.0, 40.0, 30.0);
    num.header = false;
    num.exposures = 3;
    num.number = QStringLiteral("num");
    num.roll.clear();
    add("num-without-roll.xml", num);
    num.exposures = 1;
    num.numberCountsShots = true;
    add("num-counting-shots.xml", num);

    RecordForm commented;
    commented.positions = grid(2, 4, 0.0, 40.0, 30.0);
    commented.exposures = 2;
    commented.comments = true;
    add("comment-before-each-shot.xml", commented);

    RecordForm precise;
    precise.positions = { QPointF(-12.3456789, 10.987654321), QPointF(17.6543211, 10.987654321),
        QPointF(47.6543211, -19.012345679), QPointF(-12.3456789, -19.012345679) };
    precise.decimals = 9;
    add("angles-9-decimals.xml", precise);
    precise.positions = { QPointF(-12, 11), QPointF(18, 11), QPointF(48, -19), QPointF(-12, -19) };
    precise.decimals = 0;
    add("angles-whole.xml", precise);

    RecordForm portrait;
    portrait.positions = grid(2, 4, 0.0, 30.0, 40.0);
    portrait.portrait = true;
    add("portrait-header.xml", portrait);
    portrait.roll = QStringLiteral("90");
    add("portrait-header-and-roll.xml", portrait);
    portrait.portrait = false;
    add("portrait-roll-only.xml", portrait);

    RecordForm seam;
    seam.positions = circle(false);
    add("circle-yaw-0-360.xml", seam);
    seam.positions = circle(true);
    add("circle-yaw-signed.xml", seam);
    return forms;
}

RecordForm fixtureForm(const QString& name)
{
    for (const auto& form : fixtureForms()) {
        if (form.first == name)
            return form.second;
    }
    return {};
}

/// How the test photographs are stored.
enum class Storage { Landscape, Turned, Tagged6, Tagged8 };

/// One Hugin project image line's angles; NaN where it links to another image.
struct ProjectImage
{
    double roll = std::numeric_limits<double>::quiet_NaN();
    double pitch = std::numeric_limits<double>::quiet_NaN();
    double yaw = std::numeric_limits<double>::quiet_NaN();
    /// The image whose position this one shares; -1 when it has its own.
    int linkedTo = -1;
};

QVector<ProjectImage> projectImages(const QString& project)
{
    QVector<ProjectImage> images;
    for (const QString& line : project.split(QLatin1Char('\n'))) {
        if (!line.startsWith(QLatin1String("i ")))
            continue;
        ProjectImage image;
        for (const QString& token : line.split(QLatin1Char(' '))) {
            if (token.startsWith(QLatin1String("y=")))
                image.linkedTo = token.mid(2).toInt();
            else if (token.startsWith(QLatin1Char('r')) && !token.startsWith(QLatin1String("r=")))
                image.roll = token.mid(1).toDouble();
            else if (token.startsWith(QLatin1Char('p')) && !token.startsWith(QLatin1String("p=")))
                image.pitch = token.mid(1).toDouble();
            else if (token.startsWith(QLatin1Char('y')))
                image.yaw = token.mid(1).toDouble();
        }
        images << image;
    }
    return images;
}

/// Degrees in (-180, 180].
double normalised(double degrees)
{
    double d = std::fmod(degrees, 360.0);
    if (d > 180.0)
        d -= 360.0;
    else if (d <= -180.0)
        d += 360.0;
    return d;
}

} // namespace

Q_DECLARE_METATYPE(Storage)

class tst_RecordShapes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fixturesAreTheGeneratorsRecords();
    void bracketingFromNumbers_data();
    void bracketingFromNumbers();
    void rollLeft_data();
    void rollLeft();
    void closesCutOffDocuments_data();
    void closesCutOffDocuments();
    void imports_data();
    void imports();
    void bracketOption();
    void yawAcrossTheSeam();
    void boundsKept_data();
    void boundsKept();

private:
    QString fixture(const QString& name) const
    {
        return QFINDTESTDATA(QStringLiteral("data/records/") + name);
    }
    /// A folder of count photographs stored so, made once.
    QString photos(int count, Storage storage);
    bool import(const ImportRequest& request, ImportOutcome* outcome, QString* project,
        QString* error);

    QTemporaryDir m_dir;
};

void tst_RecordShapes::initTestCase()
{
    QVERIFY(m_dir.isValid());
    const QString folder = qEnvironmentVariable("ZPH_WRITE_RECORDS");
    if (folder.isEmpty())
        return;
    QVERIFY(QDir().mkpath(folder));
    for (const auto& form : fixtureForms()) {
        QFile file(QDir(folder).filePath(form.first));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(recordText(form.second)) >= 0);
    }
}

QString tst_RecordShapes::photos(int count, Storage storage)
{
    const QString folder
        = m_dir.filePath(QStringLiteral("photos-%1-%2").arg(count).arg(int(storage)));
    if (QDir(folder).exists())
        return folder;
    if (!QDir().mkpath(folder))
        return QString();
    for (int i = 0; i < count; ++i) {
        PhotoFixture photo;
        photo.size = storage == Storage::Turned ? QSize(48, 64) : QSize(64, 48);
        photo.quality = 60;
        photo.seed = i;
        photo.focalNum = 24;
        photo.focalDen = 1;
        photo.focal35mm = 24;
        // -1, 0, +1 EV in turn.
        photo.exposureNum = 1;
        photo.exposureDen = 50 << (i % 3);
        photo.fNumberNum = 8;
        photo.fNumberDen = 1;
        photo.iso = 100;
        photo.orientation
            = storage == Storage::Tagged6 ? 6 : storage == Storage::Tagged8 ? 8 : 0;
        const QString path
            = QDir(folder).filePath(QStringLiteral("IMG_%1.jpg").arg(i + 1, 4, 10, QLatin1Char('0')));
        if (!photo.write(path)) {
            qWarning() << photo.errorString();
            return QString();
        }
    }
    return folder;
}

bool tst_RecordShapes::import(
    const ImportRequest& request, ImportOutcome* outcome, QString* project, QString* error)
{
    QString out;
    QString err;
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    Console console { outStream, errStream, false };
    if (!HeadImport::Run(request, console, outcome, error))
        return false;
    return HuginProjectWriter(outcome->input).text(m_dir.path(), project, error);
}

void tst_RecordShapes::fixturesAreTheGeneratorsRecords()
{
    for (const auto& form : fixtureForms()) {
        QFile file(fixture(form.first));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(form.first));
        QVERIFY2(file.readAll() == recordText(form.second), qPrintable(form.first));
    }
}

void tst_RecordShapes::bracketingFromNumbers_data()
{
    QTest::addColumn<QVector<int>>("numbers");
    QTest::addColumn<bool>("cutOff");
    QTest::addColumn<bool>("samePosition");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("usedShots");
    QTest::addColumn<QString>("error");

    const QString rule = QStringLiteral(
        "the shots' bracket numbers do not repeat 1…n: %1 (--bracket sets the bracketing)");
    QTest::newRow("no numbers") << QVector<int>() << false << false << 1 << 0 << QString();
    QTest::newRow("all 1") << QVector<int> { 1, 1, 1, 1 } << false << false << 1 << 4 << QString();
    QTest::newRow("1 to 3 twice")
        << QVector<int> { 1, 2, 3, 1, 2, 3 } << false << false << 3 << 6 << QString();
    QTest::newRow("one position of 3")
        << QVector<int> { 1, 2, 3 } << false << true << 3 << 3 << QString();
    QTest::newRow("a count of the shots")
        << QVector<int> { 1, 2, 3, 4 } << false << false << 1 << 4 << QString();
    QTest::newRow("short position")
        << QVector<int> { 1, 2, 3, 1, 2, 1, 2, 3 } << false << false << 0 << 0
        << rule.arg(QStringLiteral("shot 6 (id 6) has 1 where 3 is expected"));
    QTest::newRow("long position")
        << QVector<int> { 1, 2, 1, 2, 3, 1, 2 } << false << false << 0 << 0
        << rule.arg(QStringLiteral("shot 5 (id 5) has 3 where 1 is expected"));
    QTest::newRow("short first position")
        << QVector<int> { 1, 2, 1, 2, 3 } << false << false << 0 << 0
        << rule.arg(QStringLiteral("shot 5 (id 5) has 3 where 1 is expected"));
    QTest::newRow("a missing number")
        << QVector<int> { 1, 2, -1, 1, 2, 3 } << false << false << 0 << 0
        << rule.arg(QStringLiteral("shot 3 (id 3) has none"));
    QTest::newRow("zero")
        << QVector<int> { 0, 1, 2 } << false << false << 0 << 0
        << rule.arg(QStringLiteral("shot 1 (id 1) has 0 where 1 is expected"));
    QTest::newRow("short last position")
        << QVector<int> { 1, 2, 3, 1, 2 } << false << false << 0 << 0
        << rule.arg(QStringLiteral("the last position, from shot 4 (id 4), holds 2 instead of 3"));
    QTest::newRow("short last position, record cut off")
        << QVector<int> { 1, 2, 3, 1, 2 } << true << false << 3 << 3 << QString();
}

void tst_RecordShapes::bracketingFromNumbers()
{
    QFETCH(QVector<int>, numbers);
    QFETCH(bool, cutOff);
    QFETCH(bool, samePosition);
    QFETCH(int, count);
    QFETCH(int, usedShots);
    QFETCH(QString, error);

    QVector<RecordShapes::Shot> shots;
    for (int i = 0; i < numbers.size(); ++i) {
        RecordShapes::Shot shot;
        shot.id = QString::number(i + 1);
        shot.hasNumber = numbers[i] >= 0;
        shot.number = qMax(0, numbers[i]);
        shot.yaw = samePosition ? 10.0f : float(10 * i);
        shots << shot;
    }
    const RecordShapes::Bracketing b = RecordShapes::BracketingFromNumbers(shots, cutOff);
    QCOMPARE(b.error, error);
    if (error.isEmpty()) {
        QCOMPARE(b.count, count);
        QCOMPARE(b.usedShots, usedShots);
        QCOMPARE(b.fromNumbers && b.count > 1, count > 1);
    }
}

void tst_RecordShapes::rollLeft_data()
{
    QTest::addColumn<double>("recorded");
    QTest::addColumn<bool>("standsPortrait");
    QTest::addColumn<double>("left");
    QTest::newRow("landscape record") << 0.0 << false << 0.0;
    QTest::newRow("portrait, photograph lying") << 90.0 << false << 90.0;
    QTest::newRow("portrait, photograph standing") << 90.0 << true << 0.0;
    QTest::newRow("portrait the other way, standing") << -90.0 << true << 0.0;
    QTest::newRow("270, standing") << 270.0 << true << 0.0;
    QTest::newRow("portrait with a slight tilt, standing") << 91.5 << true << 1.5;
    QTest::newRow("upside down") << 180.0 << true << 180.0;
}

void tst_RecordShapes::rollLeft()
{
    QFETCH(double, recorded);
    QFETCH(bool, standsPortrait);
    QFETCH(double, left);
    QCOMPARE(RecordShapes::RollLeft(recorded, standsPortrait), left);
}

void tst_RecordShapes::closesCutOffDocuments_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<int>("shots");

    RecordForm cut = fixtureForm(QStringLiteral("cut-after-21-of-36.xml"));
    const QByteArray utf8 = recordText(cut);
    QTest::newRow("UTF-8") << utf8 << 21;
    QTest::newRow("UTF-8 with a byte order mark") << QByteArray("\xEF\xBB\xBF") + utf8 << 21;
    QByteArray latin1 = QTextCodec::codecForName("ISO-8859-1")->fromUnicode(
        QString::fromUtf8(utf8).replace(QLatin1String("utf-8"), QLatin1String("ISO-8859-1")));
    QTest::newRow("ISO-8859-1") << latin1 << 21;
    cut.cutInside = true;
    QTest::newRow("cut inside a shot") << recordText(cut) << 21;
    cut.cutInside = false;
    cut.comments = true;
    QTest::newRow("cut after a comment") << recordText(cut) + "    <!-- shot 22 -->\n" << 21;
    cut.header = false;
    QTest::newRow("without header, cut in a comment") << recordText(cut) + "    <!-- sh" << 21;
}

void tst_RecordShapes::closesCutOffDocuments()
{
    QFETCH(QByteArray, document);
    QFETCH(int, shots);
    const QString record = m_dir.filePath(QStringLiteral("cut.xml"));
    QFile file(record);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(document), qint64(document.size()));
    file.close();

    RecordShapes shapes;
    QVERIFY(shapes.read(record));
    QVERIFY(shapes.cutOff());
    QCOMPARE(shapes.shots().size(), shots);
    const QString closed = m_dir.filePath(QStringLiteral("closed.xml"));
    QFile closedFile(closed);
    QVERIFY(closedFile.open(QIODevice::WriteOnly));
    QVERIFY(closedFile.write(shapes.closedDocument()) > 0);
    closedFile.close();
    MerlinToSPP reader;
    QVERIFY(reader.parse(closed));
    QCOMPARE(reader.m_shoots.size(), shots);
    QCOMPARE(reader.m_shoots.last().m_yaw, 0.0f);
    QCOMPARE(reader.m_shoots.last().m_pitch, -15.0f);
    if (document.contains("<header>")) {
        QCOMPARE(reader.m_title, QStringLiteral("Prés du lac"));
        QCOMPARE(reader.m_nbPicts, 3);
    }
}

void tst_RecordShapes::imports_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<QString>("head");
    QTest::addColumn<int>("photoCount");
    QTest::addColumn<Storage>("storage");
    /// --bracket, 0 when not given.
    QTest::addColumn<int>("bracket");
    /// Stacks and images per stack; ignored when an error is expected.
    QTest::addColumn<int>("stacks");
    QTest::addColumn<int>("stackSize");
    /// The roll every image gets in the Hugin project.
    QTest::addColumn<double>("roll");
    /// Lines the summary must hold, or the error's text.
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("error");

    const auto row = [](const char* name, const char* record, int photoCount, int stacks,
                         int stackSize, const QStringList& lines = {}) -> QTestData& {
        return QTest::newRow(name) << QString::fromLatin1(record) << QStringLiteral("papywizard")
                                   << photoCount << Storage::Landscape << 0 << stacks << stackSize
                                   << 0.0 << lines;
    };

    row("header-less, 50 positions of 10 exposures", "headerless-50x10.xml", 500, 50, 10,
        { QStringLiteral("bracketing 10, from the shots' bracket numbers") })
        << QString();
    QTest::newRow("header-less, 50 positions of 10, --bracket 5")
        << QStringLiteral("headerless-50x10.xml") << QStringLiteral("papywizard") << 500
        << Storage::Landscape << 5 << 100 << 5 << 0.0 << QStringList() << QString();
    QTest::newRow("header-less, VR Drive 2 preset")
        << QStringLiteral("headerless-8x3.xml") << QStringLiteral("vrdrive2") << 24
        << Storage::Landscape << 0 << 8 << 3 << 0.0
        << QStringList { QStringLiteral("bracketing 3, from the shots' bracket numbers") }
        << QString();
    row("header-less, a position of 2 among positions of 3", "headerless-short-position.xml",
        23, 0, 0)
        << QStringLiteral("shot 9 has 1 where 3 is expected");
    row("header-less, a position of 2 last", "headerless-short-last-position.xml", 23, 0, 0)
        << QStringLiteral("the last position, from shot 22 (id 22), holds 2 instead of 3");
    row("header-less, a position of 4 among positions of 3", "headerless-long-position.xml", 25,
        0, 0)
        << QStringLiteral("shot 7 (id 7) has 4 where 1 is expected");
    row("cut off after the 21st shot of 3 exposures", "cut-after-21-of-36.xml", 21, 7, 3,
        { QStringLiteral("the record ends early: it holds 21 complete shots") })
        << QString();
    row("cut off after the 21st shot, all 36 photographs given", "cut-after-21-of-36.xml", 36, 7,
        3,
        { QStringLiteral("the record ends early: it holds 21 complete shots"),
            QStringLiteral("15 photographs after the record's shots not used: IMG_0022.jpg, "
                           "IMG_0023.jpg, IMG_0024.jpg, IMG_0025.jpg, IMG_0026.jpg, "
                           "IMG_0027.jpg, IMG_0028.jpg, IMG_0029.jpg, IMG_0030.jpg, "
                           "IMG_0031.jpg, IMG_0032.jpg, IMG_0033.jpg, IMG_0034.jpg, "
                           "IMG_0035.jpg, IMG_0036.jpg") })
        << QString();
    row("cut off after the 21st shot, 20 photographs given", "cut-after-21-of-36.xml", 20, 0, 0)
        << QStringLiteral("the record holds 21 shots but 20 photographs were given");
    row("cut inside the 23rd shot", "cut-inside-23rd-of-36.xml", 23, 7, 3,
        { QStringLiteral("the record ends early: it holds 22 complete shots; the 1 shot of "
                         "its incomplete last position is left out"),
            QStringLiteral("2 photographs after the record's shots not used: IMG_0022.jpg, "
                           "IMG_0023.jpg") })
        << QString();
    row("header-less, cut off after the 20th shot", "headerless-cut-after-20-of-36.xml", 20, 6, 3,
        { QStringLiteral("bracketing 3, from the shots' bracket numbers"),
            QStringLiteral("the record ends early: it holds 20 complete shots; the 2 shots of "
                           "its incomplete last position are left out") })
        << QString();
    row("every image of a bracket with the same id", "same-id-per-bracket.xml", 24, 8, 3)
        << QString();
    row("header-less, every image of a bracket with the same id",
        "headerless-same-id-per-bracket.xml", 24, 8, 3,
        { QStringLiteral("bracketing 3, from the shots' bracket numbers") })
        << QString();
    row("numbered with num, no roll", "num-without-roll.xml", 24, 8, 3,
        { QStringLiteral("bracketing 3, from the shots' bracket numbers") })
        << QString();
    row("num counting the shots", "num-counting-shots.xml", 8, 8, 1) << QString();
    row("a comment before each shot", "comment-before-each-shot.xml", 16, 8, 2) << QString();
    row("angles with 9 decimals", "angles-9-decimals.xml", 4, 4, 1) << QString();
    row("whole angles", "angles-whole.xml", 4, 4, 1) << QString();

    const auto portrait = [](const char* name, const char* record, Storage storage, double roll,
                              const QString& line) {
        QTest::newRow(name) << QString::fromLatin1(record) << QStringLiteral("papywizard") << 8
                            << storage << 0 << 8 << 1 << roll << QStringList { line } << QString();
    };
    const QString turnedByRoll = QStringLiteral(
        "camera roll 90° from the record (portrait): 8 photographs turned by it, 0 upright as "
        "stored or by their orientation tag");
    const QString uprightAlready = QStringLiteral(
        "camera roll 90° from the record (portrait): 0 photographs turned by it, 8 upright as "
        "stored or by their orientation tag");
    portrait("portrait header, photographs lying as stored", "portrait-header.xml",
        Storage::Landscape, 90.0, turnedByRoll);
    portrait("portrait header, photographs stored turned", "portrait-header.xml", Storage::Turned,
        0.0, uprightAlready);
    portrait("portrait header, orientation 6", "portrait-header.xml", Storage::Tagged6, 90.0,
        uprightAlready);
    portrait("portrait header, orientation 8", "portrait-header.xml", Storage::Tagged8, -90.0,
        uprightAlready);
    portrait("portrait header and roll 90, photographs stored turned",
        "portrait-header-and-roll.xml", Storage::Turned, 0.0, uprightAlready);
    portrait("portrait header and roll 90, orientation 6", "portrait-header-and-roll.xml",
        Storage::Tagged6, 90.0, uprightAlready);
    portrait("roll 90 only, photographs lying as stored", "portrait-roll-only.xml",
        Storage::Landscape, 90.0,
        QStringLiteral("camera roll 90° from the record: 8 photographs turned by it, 0 upright "
                       "as stored or by their orientation tag"));
    portrait("roll 90 only, orientation 6", "portrait-roll-only.xml", Storage::Tagged6, 90.0,
        QStringLiteral("camera roll 90° from the record: 0 photographs turned by it, 8 upright "
                       "as stored or by their orientation tag"));
}

void tst_RecordShapes::imports()
{
    QFETCH(QString, record);
    QFETCH(QString, head);
    QFETCH(int, photoCount);
    QFETCH(Storage, storage);
    QFETCH(int, bracket);
    QFETCH(int, stacks);
    QFETCH(int, stackSize);
    QFETCH(double, roll);
    QFETCH(QStringList, lines);
    QFETCH(QString, error);

    const QString folder = photos(photoCount, storage);
    QVERIFY(!folder.isEmpty());
    ImportRequest request;
    QVERIFY(HeadFromName(head, &request.head));
    request.record = fixture(record);
    QVERIFY(!request.record.isEmpty());
    request.photoArguments = QStringList { folder };
    request.bracket = qMax(1, bracket);
    request.bracketGiven = bracket > 0;
    ImportOutcome outcome;
    QString project;
    QString reason;
    const bool done = import(request, &outcome, &project, &reason);
    if (!error.isEmpty()) {
        QVERIFY2(!done, "the import was expected to fail");
        QVERIFY2(reason.contains(error), qPrintable(reason));
        QVERIFY2(!reason.contains(QLatin1Char('\n')), qPrintable(reason));
        return;
    }
    QVERIFY2(done, qPrintable(reason));
    const QStringList summary = outcome.summary.split(QLatin1Char('\n'));
    for (const QString& line : lines)
        QVERIFY2(summary.contains(line), qPrintable(outcome.summary));

    const StructuredPanoramaProperties& p = outcome.input.panorama;
    QCOMPARE(p.m_stacks.size(), stacks);
    for (const QStringList& stack : p.m_stacks)
        QCOMPARE(stack.size(), stackSize);
    QCOMPARE(outcome.input.images.size(), stacks * stackSize);
    // Stacks follow the photographs' order: stack k holds photographs k·n ... k·n + n - 1.
    QStringList used;
    for (const QStringList& stack : p.m_stacks) {
        QStringList names;
        for (const QString& path : stack)
            names << QFileInfo(path).fileName();
        names.sort();
        used << names;
    }
    for (int i = 0; i < used.size(); ++i)
        QCOMPARE(used[i], QStringLiteral("IMG_%1.jpg").arg(i + 1, 4, 10, QLatin1Char('0')));

    // Every stack stands where its position's first shot points, and its
    // other images share that position.
    const RecordForm form = fixtureForm(record);
    const QVector<ProjectImage> images = projectImages(project);
    QCOMPARE(images.size(), stacks * stackSize);
    for (int k = 0; k < stacks; ++k) {
        const ProjectImage& reference = images[k * stackSize];
        QCOMPARE(reference.linkedTo, -1);
        const QPointF position = form.positions.value(k * stackSize / qMax(1, form.exposures));
        // Yaw 180 may come out as -180: the same direction.
        QVERIFY2(std::abs(normalised(reference.yaw - position.x())) < 1e-4,
            qPrintable(QStringLiteral("stack %1: yaw %2 instead of %3")
                           .arg(k)
                           .arg(reference.yaw)
                           .arg(position.x())));
        QVERIFY(std::abs(reference.pitch - position.y()) < 1e-4);
        QCOMPARE(reference.roll, roll);
        for (int s = 1; s < stackSize; ++s)
            QCOMPARE(images[k * stackSize + s].linkedTo, k * stackSize);
    }
}

void tst_RecordShapes::bracketOption()
{
    const QString folder = photos(500, Storage::Landscape);
    QVERIFY(!folder.isEmpty());
    const QString output = m_dir.filePath(QStringLiteral("out"));
    const auto run = [&](const QStringList& arguments, QString* out, QString* err) {
        QTextStream outStream(out);
        QTextStream errStream(err);
        Console console { outStream, errStream, false };
        const int code = CommandLine::run(arguments, console);
        outStream.flush();
        errStream.flush();
        return code;
    };
    const QString record = fixture(QStringLiteral("headerless-50x10.xml"));
    QString out;
    QString err;
    QCOMPARE(run({ QStringLiteral("import"), QStringLiteral("papywizard"), QStringLiteral("-o"),
                     output, record, folder },
                 &out, &err),
        0);
    QVERIFY2(out.contains(QLatin1String("\nbracketing 10, from the shots' bracket numbers\n")),
        qPrintable(out));
    QVERIFY2(out.contains(QLatin1String("\n50 stacks, 500 photographs, ")), qPrintable(out));

    // Once the first set exists, a second import into the folder replaces it
    // only when told to.
    out.clear();
    QCOMPARE(run({ QStringLiteral("import"), QStringLiteral("papywizard"), QStringLiteral("--bracket"),
                     QStringLiteral("2"), QStringLiteral("--force"), QStringLiteral("-o"), output,
                     record, folder },
                 &out, &err),
        0);
    QVERIFY2(out.contains(QLatin1String("\n250 stacks, 500 photographs, ")), qPrintable(out));
    QVERIFY(!out.contains(QLatin1String("from the shots' bracket numbers")));

    // A bracketing the photographs do not bear out.
    out.clear();
    err.clear();
    QCOMPARE(run({ QStringLiteral("import"), QStringLiteral("papywizard"), QStringLiteral("--bracket"),
                     QStringLiteral("3"), QStringLiteral("--force"), QStringLiteral("-o"), output,
                     record, folder },
                 &out, &err),
        1);
    QCOMPARE(err,
        QStringLiteral("panohead import: the number of photographs (500) is not a multiple of "
                       "the bracketing (3)\n"));

    // Clauss scripts have no brackets.
    err.clear();
    QCOMPARE(run({ QStringLiteral("import"), QStringLiteral("clauss"), QStringLiteral("--bracket"),
                     QStringLiteral("2"), record, folder },
                 &out, &err),
        2);
    QVERIFY2(err.contains(QLatin1String("option --bracket does not apply to clauss")),
        qPrintable(err));

    out.clear();
    QCOMPARE(run({ QStringLiteral("import"), QStringLiteral("--help") }, &out, &err), 0);
    QVERIFY(out.contains(QLatin1String("papywizard, vrdrive2: replaces the record's")));
    QVERIFY(out.contains(QLatin1String("a record that ends early")));
}

void tst_RecordShapes::yawAcrossTheSeam()
{
    // The same full circle written with yaw from 0 to 360 and from -180 to
    // 180: the same project images and the same authorised links, and the
    // last position (yaw 335 or -25) joins the first (yaw 5) across the seam.
    const QString folder = photos(12, Storage::Landscape);
    QVERIFY(!folder.isEmpty());
    QVector<QVector<ProjectImage>> images;
    QVector<QVector<AuthorizedLink>> links;
    QStringList projects;
    for (const char* name : { "circle-yaw-0-360.xml", "circle-yaw-signed.xml" }) {
        ImportRequest request;
        request.record = fixture(QString::fromLatin1(name));
        request.photoArguments = QStringList { folder };
        ImportOutcome outcome;
        QString project;
        QString error;
        QVERIFY2(import(request, &outcome, &project, &error), qPrintable(error));
        images << projectImages(project);
        links << outcome.input.panorama.m_links;
        projects << project;
    }
    // The stitch reads the project: both are the same text.
    QCOMPARE(projects[1], projects[0]);
    QCOMPARE(images[0].size(), 12);
    QCOMPARE(images[1].size(), 12);
    for (int i = 0; i < 12; ++i) {
        const double a = images[0][i].yaw;
        const double b = images[1][i].yaw;
        QVERIFY2(std::abs(normalised(a - b)) < 1e-4,
            qPrintable(QStringLiteral("image %1: yaw %2 and %3").arg(i).arg(a).arg(b)));
        QVERIFY(std::abs(normalised(a - (i * 30.0 + 5.0))) < 1e-4);
        QCOMPARE(images[0][i].pitch, images[1][i].pitch);
    }
    QVERIFY(!links[0].isEmpty());
    QCOMPARE(links[1].size(), links[0].size());
    for (int i = 0; i < links[0].size(); ++i) {
        QCOMPARE(links[1][i].m_direction, links[0][i].m_direction);
        QCOMPARE(links[1][i].m_stackIndices, links[0][i].m_stackIndices);
    }
    bool seam = false;
    for (const AuthorizedLink& link : links[0]) {
        if (link.m_stackIndices == QVector<int> { 11, 0 }) {
            seam = true;
            QCOMPARE(link.m_direction, 2);
        }
    }
    QVERIFY2(seam, "the last position is not linked to the first across the seam");
}

void tst_RecordShapes::boundsKept_data()
{
    QTest::addColumn<QByteArray>("document");

    RecordForm cut;
    cut.positions = grid(1, 4, 0.0, 30.0, 0.0);
    cut.cutAfter = 3;
    RecordForm entities = cut;
    entities.doctype = QStringLiteral("<!DOCTYPE papywizard [ <!ENTITY a \"aaaaaaaaaa\"> ]>");
    QTest::newRow("entity declaration, cut off") << recordText(entities);

    QByteArray deep = recordText(cut);
    for (int i = 0; i < 300; ++i)
        deep += "<e>";
    QTest::newRow("deep nesting, cut off") << deep;

    // A record cut off in a comment that makes it larger than any record.
    QByteArray large = recordText(cut) + "<!-- ";
    large += QByteArray(16 * 1024 * 1024, 'x');
    QTest::newRow("over 16 MiB, cut off") << large;

    QTest::newRow("no root element") << QByteArray("<?xml version=\"1.0\"?>\n<!-- nothing");
    cut.cutAfter = 0;
    cut.cutInside = true;
    QTest::newRow("cut inside its first shot") << recordText(cut);
}

void tst_RecordShapes::boundsKept()
{
    QFETCH(QByteArray, document);
    const QString record = m_dir.filePath(QStringLiteral("hostile.xml"));
    QFile file(record);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(document), qint64(document.size()));
    file.close();

    RecordShapes shapes;
    QVERIFY(shapes.read(record));
    QVERIFY(!shapes.cutOff());

    ImportRequest request;
    request.record = record;
    request.photoArguments = QStringList { photos(4, Storage::Landscape) };
    ImportOutcome outcome;
    QString project;
    QString error;
    QVERIFY(!import(request, &outcome, &project, &error));
    QCOMPARE(error,
        QStringLiteral("cannot read the record %1: not a readable XML record").arg(record));
}

QTEST_MAIN(tst_RecordShapes)

#include "tst_RecordShapes.moc"
