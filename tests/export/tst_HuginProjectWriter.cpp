// Hugin project export: for each head a small record goes through its
// converter and the writer; the project is compared with a reviewed expected
// file, read by Hugin's own tools (checkpto, pto_var) and rendered by nona.
#include "ClaussToSPP.h"
#include "FieldOfView.h"
#include "GigapanPositions.h"
#include "GigapanToSPP.h"
#include "HuginProjectWriter.h"
#include "MerlinToSPP.h"
#include "TestImageDef.h"
#include "VRDrive2ToSPP.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <memory>
#include <vector>

namespace {

const double FrameDiagonal = 43.266615305567875;
const double Pi = 3.141592653589793;

QString photoPath(const QDir& folder, int n)
{
    return folder.filePath(QStringLiteral("IMG_%1.jpg").arg(n, 4, 10, QLatin1Char('0')));
}

QStringList photoPaths(const QDir& folder, int count)
{
    QStringList paths;
    for (int i = 1; i <= count; ++i)
        paths << photoPath(folder, i);
    return paths;
}

ImageInfo info(const QString& path, int w, int h, double ev, int orientation = 1)
{
    ImageInfo i;
    i.path = path;
    i.pixelSize = QSize(w, h);
    i.orientation = orientation;
    i.hasExposure = true;
    i.exposureValue = ev;
    return i;
}

/// The test's own reading of the project's i lines: variable -> text.
QVector<QMap<QString, QString>> imageLines(const QString& project)
{
    QVector<QMap<QString, QString>> images;
    const QRegularExpression token(QStringLiteral("n\"[^\"]*\"|\\S+"));
    for (const QString& line : project.split(QLatin1Char('\n'))) {
        if (!line.startsWith(QLatin1String("i ")))
            continue;
        QMap<QString, QString> vars;
        auto it = token.globalMatch(line.mid(2));
        while (it.hasNext()) {
            const QString t = it.next().captured(0);
            int k = 0;
            while (k < t.size() && t[k].isLetter())
                ++k;
            vars.insert(t.left(k), t.mid(k));
        }
        images.append(vars);
    }
    return images;
}

QString run(const QString& program, const QStringList& arguments, int* exitCode)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForStarted(30000) || !process.waitForFinished(120000)) {
        *exitCode = -1;
        return QString();
    }
    *exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return QString::fromLocal8Bit(process.readAll());
}

} // namespace

class tst_HuginProjectWriter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void golden_data();
    void golden();
    void huginToolsRead_data();
    void huginToolsRead();
    void papywizardValues();
    void vrDriveReferenceIsMediumExposure();
    void fisheyeIsFullFrameFisheye();
    void orientationTurnsRoll();
    void pointsInsideStacksLeavePositionsFree();
    void onePixelSizeOneLens();
    void recordedPositions();
    void errors_data();
    void errors();
    void number_data();
    void number();

private:
    ExportInput input(const QString& head);

    QTemporaryDir m_dir;
    QDir m_folder;
    std::vector<std::unique_ptr<TestImageDef>> m_defs;
};

void tst_HuginProjectWriter::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_folder = QDir(m_dir.path());
    // Real pictures, so that Hugin's tools can open them.
    QImage picture(400, 300, QImage::Format_RGB32);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x)
            picture.setPixel(x, y, qRgb(x % 256, y % 256, (x * y) % 256));
    for (const QString& path : photoPaths(m_folder, 8))
        QVERIFY(picture.save(path, "JPEG"));
}

ExportInput tst_HuginProjectWriter::input(const QString& head)
{
    ExportInput in;
    if (head == QLatin1String("papywizard")) {
        MerlinToSPP record;
        if (!record.parse(QFINDTESTDATA("data/papywizard.xml")))
            return in;
        const QStringList photos = photoPaths(m_folder, 8);
        record.generateSPP(photos, -1.0, LensUnknown);
        in.panorama = record;
        in.positions = HuginProjectWriter::recordedPositions(record, record.m_nbPicts);
        in.focalLength = record.m_focalLength;
        in.lens = record.m_lensModel;
        for (int i = 0; i < photos.size(); ++i)
            in.images.insert(photos[i], info(photos[i], 400, 300, i % 2 ? 13.0 : 12.0));
    } else if (head == QLatin1String("vrdrive2")) {
        VRDrive2ToSPP record;
        if (!record.parse(QFINDTESTDATA("data/vrdrive2.xml")))
            return in;
        QStringList photos = photoPaths(m_folder, 6);
        // Exposure values in shooting order 12, 13, 14: the medium one is second.
        const double evs[3] = { 12.0, 13.0, 14.0 };
        QList<ZIImageDef*> defs;
        for (int i = 0; i < photos.size(); ++i) {
            m_defs.push_back(std::make_unique<TestImageDef>(24.0f, 0, i, float(evs[i % 3])));
            defs << m_defs.back().get();
            in.images.insert(photos[i], info(photos[i], 400, 300, evs[i % 3]));
        }
        record.generateSPP(photos, defs, -1.0, LensUnknown);
        record.m_outputMode = 2;
        in.panorama = record;
        in.positions = HuginProjectWriter::recordedPositions(record, record.m_nbPicts);
        in.focalLength = record.m_focalLength;
        in.lens = record.m_lensModel;
    } else if (head == QLatin1String("clauss")) {
        ClaussToSPP record;
        if (!record.parse(QFINDTESTDATA("data/clauss.txt")))
            return in;
        QStringList photos = photoPaths(m_folder, 4);
        QList<ZIImageDef*> defs;
        for (int i = 0; i < photos.size(); ++i) {
            m_defs.push_back(std::make_unique<TestImageDef>(24.0f));
            defs << m_defs.back().get();
            // The camera stood upright on the head: EXIF orientation 6.
            in.images.insert(photos[i], info(photos[i], 400, 300, 11.5, 6));
        }
        record.generateSPP(photos, defs);
        in.panorama = record;
        in.positions = HuginProjectWriter::recordedPositions(record, 1);
        in.focalLength = 24.0;
        in.lens = LensStandard;
    } else if (head == QLatin1String("gigapan")) {
        GigapanToSPP record(0, 0, 0, 1, 0);
        record.m_rows = 2;
        record.m_columns = 3;
        record.m_order = 1;
        const QStringList photos = photoPaths(m_folder, 6);
        record.generateSPP(photos, false);
        record.m_overlap = 30.0;
        in.panorama = record;
        in.focalLength = 50.0;
        in.lens = LensStandard;
        in.positions = GigapanPositions::compute(2, 3, 1, 30.0,
            FieldOfView::horizontal(50.0, LensStandard, 400, 300),
            FieldOfView::vertical(50.0, LensStandard, 400, 300), false);
        for (const QString& p : photos)
            in.images.insert(p, info(p, 400, 300, 12.5));
    }
    return in;
}

void tst_HuginProjectWriter::golden_data()
{
    QTest::addColumn<QString>("head");
    QTest::newRow("papywizard") << QStringLiteral("papywizard");
    QTest::newRow("vrdrive2") << QStringLiteral("vrdrive2");
    QTest::newRow("clauss") << QStringLiteral("clauss");
    QTest::newRow("gigapan") << QStringLiteral("gigapan");
}

void tst_HuginProjectWriter::golden()
{
    QFETCH(QString, head);
    const ExportInput in = input(head);
    QVERIFY(!in.panorama.m_stacks.isEmpty());
    QString project, error;
    QVERIFY2(HuginProjectWriter(in).text(m_folder.path(), &project, &error), qPrintable(error));
    const QString expectedPath = QFINDTESTDATA(QStringLiteral("data/%1.pto").arg(head));
    if (qEnvironmentVariableIsSet("ZPH_UPDATE_GOLDEN")) {
        QFile out(QStringLiteral(ZPH_EXPORT_TEST_DATA "/%1.pto").arg(head));
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(project.toUtf8());
        QSKIP("expected file rewritten; review it");
    }
    QFile expected(expectedPath);
    QVERIFY2(expected.open(QIODevice::ReadOnly), qPrintable(expectedPath));
    QCOMPARE(project, QString::fromUtf8(expected.readAll()));
}

void tst_HuginProjectWriter::huginToolsRead_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<int>("images");
    QTest::addColumn<int>("stacks");
    QTest::newRow("papywizard") << QStringLiteral("papywizard") << 8 << 4;
    QTest::newRow("vrdrive2") << QStringLiteral("vrdrive2") << 6 << 2;
    QTest::newRow("clauss") << QStringLiteral("clauss") << 4 << 4;
    QTest::newRow("gigapan") << QStringLiteral("gigapan") << 6 << 6;
}

void tst_HuginProjectWriter::huginToolsRead()
{
    QFETCH(QString, head);
    QFETCH(int, images);
    QFETCH(int, stacks);
    const QString path = m_folder.filePath(head + QStringLiteral(".pto"));
    QString error;
    QVERIFY2(HuginProjectWriter(input(head)).write(path, &error), qPrintable(error));

    // checkpto answers with a non-zero code for a project without control
    // points (its images are not connected yet); what it read is what counts.
    int code = 0;
    const QString check = run(QStringLiteral("checkpto"), { path }, &code);
    QVERIFY2(code >= 0, qPrintable(check));
    QVERIFY2(check.contains(QStringLiteral("Opened project")), qPrintable(check));
    QVERIFY2(check.contains(
                 QStringLiteral("\n%1 images\n1 lenses\n%2 stacks\n").arg(images).arg(stacks)),
        qPrintable(check));

    const QString changed = m_folder.filePath(head + QStringLiteral("-var.pto"));
    const QString var = run(QStringLiteral("pto_var"),
        { QStringLiteral("--set"), QStringLiteral("y0=12.5"), QStringLiteral("-o"), changed, path },
        &code);
    QCOMPARE(code, 0);
    QFile varFile(changed);
    QVERIFY2(varFile.open(QIODevice::ReadOnly), qPrintable(var));
    const auto varImages = imageLines(QString::fromUtf8(varFile.readAll()));
    QCOMPARE(varImages.size(), images);
    QCOMPARE(varImages[0].value(QStringLiteral("y")), QStringLiteral("12.5"));

    const QString prefix = m_folder.filePath(head + QStringLiteral("-nona"));
    const QString nona = run(QStringLiteral("nona"),
        { QStringLiteral("-m"), QStringLiteral("TIFF_m"), QStringLiteral("-i"), QStringLiteral("0"),
            QStringLiteral("-o"), prefix, path },
        &code);
    QVERIFY2(code == 0, qPrintable(nona));
    const QFileInfo rendered(prefix + QStringLiteral("0000.tif"));
    QVERIFY2(rendered.isFile() && rendered.size() > 0, qPrintable(nona));
}

void tst_HuginProjectWriter::papywizardValues()
{
    QString project, error;
    QVERIFY(HuginProjectWriter(input(QStringLiteral("papywizard")))
                .text(m_folder.path(), &project, &error));
    const auto images = imageLines(project);
    QCOMPARE(images.size(), 8);
    // The record's focal length 20 mm × 1.5 is 30 mm full-frame equivalent:
    // a 400-pixel width is 4/5 of the 500-pixel diagonal.
    const double hfov = 2.0 * std::atan(FrameDiagonal * 0.8 / 60.0) * 180.0 / Pi;
    QVERIFY(std::fabs(images[0].value(QStringLiteral("v")).toDouble() - hfov) < 1e-6);
    QCOMPARE(images[0].value(QStringLiteral("f")), QStringLiteral("0"));
    const double yaws[4] = { 0, 40, 40, 0 };
    const double pitches[4] = { 20, 20, -20, -20 };
    for (int k = 0; k < 4; ++k) {
        const auto& ref = images[2 * k];
        const auto& second = images[2 * k + 1];
        QVERIFY(std::fabs(ref.value(QStringLiteral("y")).toDouble() - yaws[k]) < 1e-4);
        QVERIFY(std::fabs(ref.value(QStringLiteral("p")).toDouble() - pitches[k]) < 1e-4);
        QCOMPARE(ref.value(QStringLiteral("j")), QString::number(k));
        for (const char* v : { "y", "p", "r", "j" })
            QCOMPARE(second.value(QLatin1String(v)), QStringLiteral("=%1").arg(2 * k));
        QCOMPARE(second.value(QStringLiteral("v")), QStringLiteral("=0"));
        QCOMPARE(ref.value(QStringLiteral("Eev")), QStringLiteral("12"));
        QCOMPARE(second.value(QStringLiteral("Eev")), QStringLiteral("13"));
    }
}

void tst_HuginProjectWriter::vrDriveReferenceIsMediumExposure()
{
    QString project, error;
    QVERIFY(HuginProjectWriter(input(QStringLiteral("vrdrive2")))
                .text(m_folder.path(), &project, &error));
    const auto images = imageLines(project);
    QCOMPARE(images.size(), 6);
    // Every stack starts with its medium exposure, the second picture shot.
    QCOMPARE(images[0].value(QStringLiteral("n")), QStringLiteral("\"IMG_0002.jpg\""));
    QCOMPARE(images[1].value(QStringLiteral("n")), QStringLiteral("\"IMG_0001.jpg\""));
    QCOMPARE(images[3].value(QStringLiteral("n")), QStringLiteral("\"IMG_0005.jpg\""));
    QCOMPARE(images[0].value(QStringLiteral("Eev")), QStringLiteral("13"));
    QCOMPARE(images[3].value(QStringLiteral("y")), QStringLiteral("30"));
}

void tst_HuginProjectWriter::fisheyeIsFullFrameFisheye()
{
    ExportInput in = input(QStringLiteral("gigapan"));
    in.lens = LensFisheye;
    in.focalLength = 10.0;
    QString project, error;
    QVERIFY(HuginProjectWriter(in).text(m_folder.path(), &project, &error));
    const auto images = imageLines(project);
    QCOMPARE(images[0].value(QStringLiteral("f")), QStringLiteral("3"));
    // Equidistant: 34.6 mm of the frame's width over 10 mm, in radians.
    const double hfov = FrameDiagonal * 0.8 / 10.0 * 180.0 / Pi;
    QVERIFY(std::fabs(images[0].value(QStringLiteral("v")).toDouble() - hfov) < 1e-6);
}

void tst_HuginProjectWriter::orientationTurnsRoll()
{
    QString project, error;
    QVERIFY(HuginProjectWriter(input(QStringLiteral("clauss")))
                .text(m_folder.path(), &project, &error));
    const auto images = imageLines(project);
    QCOMPARE(images.size(), 4);
    for (const auto& image : images)
        QCOMPARE(image.value(QStringLiteral("r")), QStringLiteral("90"));
    QCOMPARE(images[3].value(QStringLiteral("y")), QStringLiteral("45"));
    QCOMPARE(images[3].value(QStringLiteral("p")), QStringLiteral("-30"));
}

void tst_HuginProjectWriter::pointsInsideStacksLeavePositionsFree()
{
    ExportInput in = input(QStringLiteral("papywizard"));
    in.panorama.m_stackLinking = 1;
    QString project, error;
    QVERIFY(HuginProjectWriter(in).text(m_folder.path(), &project, &error));
    const auto images = imageLines(project);
    QCOMPARE(images[1].value(QStringLiteral("y")), QStringLiteral("0"));
    QCOMPARE(images[3].value(QStringLiteral("y")), QStringLiteral("40"));
    QCOMPARE(images[3].value(QStringLiteral("j")), QStringLiteral("=2"));
}

void tst_HuginProjectWriter::onePixelSizeOneLens()
{
    ExportInput in = input(QStringLiteral("gigapan"));
    const QString odd = in.panorama.m_stacks[2].first();
    in.images[odd].pixelSize = QSize(600, 400);
    QString project, error;
    QVERIFY(HuginProjectWriter(in).text(m_folder.path(), &project, &error));
    const auto images = imageLines(project);
    QCOMPARE(images[1].value(QStringLiteral("v")), QStringLiteral("=0"));
    const double hfov
        = 2.0 * std::atan(FrameDiagonal * 600.0 / std::hypot(600.0, 400.0) / 100.0) * 180.0 / Pi;
    QVERIFY(std::fabs(images[2].value(QStringLiteral("v")).toDouble() - hfov) < 1e-6);
    QCOMPARE(images[3].value(QStringLiteral("v")), QStringLiteral("=0"));
}

void tst_HuginProjectWriter::recordedPositions()
{
    StructuredPanoramaProperties p;
    p.m_stacks = { { QStringLiteral("a"), QStringLiteral("b") },
        { QStringLiteral("c"), QStringLiteral("d") },
        { QStringLiteral("e"), QStringLiteral("f") } };
    const float radians[5] = { 0.1f, 0.2f, 0.3f, 0.4f, 0.5f };
    for (float r : radians) {
        p.m_yaw << r;
        p.m_pitch << -r;
    }
    p.m_roll << 0.25f << 0.0f << 0.75f;
    const QVector<StackPosition> positions = HuginProjectWriter::recordedPositions(p, 2);
    QCOMPARE(positions.size(), 3);
    QCOMPARE(positions[1].yaw, double(0.3f) * 180.0 / Pi);
    QCOMPARE(positions[1].pitch, double(-0.3f) * 180.0 / Pi);
    QCOMPARE(positions[1].roll, double(0.75f) * 180.0 / Pi);
    QCOMPARE(positions[0].roll, double(0.25f) * 180.0 / Pi);
    // Shot 4 has no roll recorded.
    QCOMPARE(positions[2].roll, 0.0);
    QCOMPARE(positions[2].yaw, double(0.5f) * 180.0 / Pi);
    // Stack 2 would take shot 4 with 3 shots per stack: there is none.
    const QVector<StackPosition> short3 = HuginProjectWriter::recordedPositions(p, 3);
    QCOMPARE(short3[1].yaw, double(0.4f) * 180.0 / Pi);
    QCOMPARE(short3[2].yaw, 0.0);
}

void tst_HuginProjectWriter::errors_data()
{
    QTest::addColumn<int>("breakage");
    QTest::addColumn<QString>("message");
    QTest::newRow("no stack") << 0 << QStringLiteral("the panorama has no stack");
    QTest::newRow("positions missing") << 1 << QStringLiteral("6 stacks but 5 positions");
    QTest::newRow("no focal length") << 2 << QStringLiteral("the focal length 0 is not positive");
    QTest::newRow("photograph unknown")
        << 3 << QStringLiteral("nothing is known of the photograph");
    QTest::newRow("size unknown") << 4 << QStringLiteral("the size of the photograph");
    QTest::newRow("quote in path") << 5 << QStringLiteral("holds a double quote");
    QTest::newRow("empty stack") << 6 << QStringLiteral("stack 1 is empty");
    QTest::newRow("position not a number") << 7 << QStringLiteral("stack 0 has no valid position");
}

void tst_HuginProjectWriter::errors()
{
    QFETCH(int, breakage);
    QFETCH(QString, message);
    ExportInput in = input(QStringLiteral("gigapan"));
    switch (breakage) {
    case 0:
        in.panorama.m_stacks.clear();
        break;
    case 1:
        in.positions.removeLast();
        break;
    case 2:
        in.focalLength = 0.0;
        break;
    case 3:
        in.images.remove(in.panorama.m_stacks[4].first());
        break;
    case 4:
        in.images[in.panorama.m_stacks[1].first()].pixelSize = QSize();
        break;
    case 5: {
        const QString quoted = m_folder.filePath(QStringLiteral("a\"b.jpg"));
        in.panorama.m_stacks[5] = QStringList { quoted };
        in.images.insert(quoted, info(quoted, 400, 300, 12.0));
        break;
    }
    case 6:
        in.panorama.m_stacks[1].clear();
        break;
    case 7:
        in.positions[0].yaw = std::nan("");
        break;
    }
    QString project, error;
    QVERIFY(!HuginProjectWriter(in).text(m_folder.path(), &project, &error));
    QVERIFY2(error.contains(message), qPrintable(error));
    QVERIFY(!HuginProjectWriter(in).write(m_folder.filePath(QStringLiteral("broken.pto")), &error));
    QVERIFY(!QFile::exists(m_folder.filePath(QStringLiteral("broken.pto"))));
}

void tst_HuginProjectWriter::number_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 40.0 << 6 << QStringLiteral("40");
    QTest::newRow("decimals") << 52.62254471936 << 6 << QStringLiteral("52.622545");
    QTest::newRow("float angle") << double(-1.3962634f) * 180.0 / Pi << 4 << QStringLiteral("-80");
    QTest::newRow("negative zero") << -0.0000001 << 4 << QStringLiteral("0");
    QTest::newRow("half") << -12.5 << 4 << QStringLiteral("-12.5");
}

void tst_HuginProjectWriter::number()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, text);
    QCOMPARE(HuginProjectWriter::number(value, decimals), text);
}

QTEST_MAIN(tst_HuginProjectWriter)
#include "tst_HuginProjectWriter.moc"
