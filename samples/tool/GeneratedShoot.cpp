#include "GeneratedShoot.h"

#include "ExifTagger.h"
#include "FullFrame.h"
#include "SceneTexture.h"
#include "ViewRenderer.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTextStream>
#include <QTransform>

#include <cmath>

namespace {

constexpr double kDegrees = 180.0 / M_PI;

/// Horizontal field of view of a full-frame-equivalent focal length on a
/// width × height picture: the picture's diagonal stands for the 36 × 24 mm
/// frame's diagonal.
double horizontalFov(double focal, int width, int height)
{
    const double diagonal = std::hypot(double(width), double(height));
    return 2.0 * std::atan(FullFrame::Diagonal * width / diagonal / (2.0 * focal)) * kDegrees;
}

/// Scales the linear light of an sRGB-like picture (gamma 2.2) by 2^ev.
QImage exposed(const QImage& image, double ev)
{
    if (ev == 0.0)
        return image;
    const double factor = std::pow(2.0, ev);
    int table[256];
    for (int v = 0; v < 256; ++v) {
        const double linear = std::pow(v / 255.0, 2.2) * factor;
        table[v] = qBound(0, int(std::pow(qMin(linear, 1.0), 1.0 / 2.2) * 255.0 + 0.5), 255);
    }
    QImage out = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < out.height(); ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(out.scanLine(y));
        for (int x = 0; x < out.width(); ++x)
            row[x] = qRgb(table[qRed(row[x])], table[qGreen(row[x])], table[qBlue(row[x])]);
    }
    return out;
}

/// Exposure offset of the k-th picture of a bracket: 0, -step, +step, ...
double bracketEv(int k, double step)
{
    const int level = (k + 1) / 2;
    return (k % 2 == 1 ? -level : level) * step;
}

/// The shot's place in the shooting order, as Gigapan numbers a grid.
qint64 cellIndex(int order, int rows, int columns, int row, int column)
{
    switch (order) {
    case 0:
        return row + qint64(rows) * column;
    case 1:
        return qint64(columns) * row + column;
    case 2:
        return qint64(columns) * (rows - 1 - row) + column;
    case 3:
        return row + qint64(rows) * (columns - 1 - column);
    default: {
        const int fromBottom = rows - 1 - row;
        return fromBottom % 2 == 0 ? qint64(columns) * fromBottom + column
                                   : qint64(columns) * fromBottom + (columns - 1 - column);
    }
    }
}

const char* const kOrderNames[]
    = { "columns", "rows-down", "rows-up", "columns-left", "serpentine" };

QString number(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.startsWith(QLatin1Char('-')) && text.toDouble() == 0.0)
        text.remove(0, 1);
    return text;
}

bool writeText(const QString& path, const QString& text, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text.toUtf8()) < 0
        || !file.flush()) {
        *error = QStringLiteral("cannot write %1").arg(path);
        return false;
    }
    return true;
}

/// The time the k-th photograph is taken: 3 s per position, 0.4 s between
/// the exposures of a bracket.
QDateTime shotTime(int position, int exposure)
{
    const QDateTime start(QDate(2024, 6, 1), QTime(10, 0, 0), Qt::LocalTime);
    return start.addMSecs(qint64(position) * 3000 + qint64(exposure) * 400);
}

} // namespace

GeneratedShoot::GeneratedShoot(const Plan& plan) : m_plan(plan)
{
    const double sensorH = horizontalFov(plan.focal35, plan.width, plan.height);
    const double focalPixels = plan.width / 2.0 / std::tan(sensorH / 2.0 / kDegrees);
    const double sensorV = 2.0 * std::atan(plan.height / 2.0 / focalPixels) * kDegrees;
    const bool standing = plan.portrait != Portrait::No;
    m_hfov = standing ? sensorV : sensorH;
    m_vfov = standing ? sensorH : sensorV;

    QVector<QPointF> planned = plan.positions;
    if (planned.isEmpty()) {
        // Where Gigapan's grid puts them: centred on yaw 0 and pitch 0, row 0
        // at the top.
        const int rows = plan.rows;
        const int columns = plan.columns;
        const double yawStep
            = plan.fullCircle ? 360.0 / columns : m_hfov * (1.0 - plan.overlap / 100.0);
        const double pitchStep = m_vfov * (1.0 - plan.overlap / 100.0);
        planned.resize(rows * columns);
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < columns; ++column)
                planned[int(cellIndex(plan.order, rows, columns, row, column))] = QPointF(
                    (column - (columns - 1) / 2.0) * yawStep, ((rows - 1) / 2.0 - row) * pitchStep);
    }
    QRandomGenerator random(plan.seed);
    for (const QPointF& p : planned) {
        Position position;
        position.plannedYaw = p.x();
        position.plannedPitch = p.y();
        // The first position is where the head was set up: exact.
        const bool first = m_positions.isEmpty();
        const double yawError = first ? 0.0 : (random.generateDouble() * 2.0 - 1.0) * plan.error;
        const double pitchError = first ? 0.0 : (random.generateDouble() * 2.0 - 1.0) * plan.error;
        position.trueYaw = p.x() + yawError;
        position.truePitch = p.y() + pitchError;
        m_positions.append(position);
    }
}

QString GeneratedShoot::usage()
{
    return QStringLiteral(
        "usage: zph_make_sample --generate <output folder> [options]\n"
        "  --rows <n> --columns <n>   the grid (default 2 × 4)\n"
        "  --positions <y:p,y:p,...>  the positions instead of a grid, degrees\n"
        "  --full-circle              the columns close 360 degrees\n"
        "  --overlap <percent>        between neighbours (default 30)\n"
        "  --order <order>            columns, rows-down, rows-up, columns-left or\n"
        "                             serpentine (default columns)\n"
        "  --bracket <n>              exposures per position (default 1)\n"
        "  --ev-step <ev>             between exposures (default 1)\n"
        "  --size <w>x<h>             the sensor's picture, landscape (default 200x150)\n"
        "  --focal <mm>               full-frame equivalent (default 35)\n"
        "  --crop-factor <f>          sensor crop factor (default 1)\n"
        "  --portrait <form>          turned (pixels standing) or tagged (EXIF\n"
        "                             orientation 6)\n"
        "  --error <degrees>          largest positioning error (default 1)\n"
        "  --seed <n>                 positioning errors (default 1)\n"
        "  --scene-seed <n>           the scene (default 20240601)\n"
        "  --scene-width <pixels>     the scene's resolution for 360 degrees\n"
        "  --samples <n>              render samples per pixel side (default 3)\n"
        "  --quality <q>              JPEG quality (default 90)\n");
}

bool GeneratedShoot::parse(const QStringList& arguments, Plan* plan, QString* error)
{
    for (int i = 0; i < arguments.size(); ++i) {
        const QString option = arguments[i];
        if (option == QLatin1String("--full-circle")) {
            plan->fullCircle = true;
            continue;
        }
        if (i + 1 >= arguments.size()) {
            *error = QStringLiteral("%1 needs a value").arg(option);
            return false;
        }
        const QString value = arguments[++i];
        bool ok = true;
        const auto integer = [&](int low, int high) {
            const int v = value.toInt(&ok);
            ok = ok && v >= low && v <= high;
            return v;
        };
        const auto real = [&](double low, double high) {
            const double v = value.toDouble(&ok);
            ok = ok && v >= low && v <= high;
            return v;
        };
        if (option == QLatin1String("--rows")) {
            plan->rows = integer(1, 100);
        } else if (option == QLatin1String("--columns")) {
            plan->columns = integer(1, 1000);
        } else if (option == QLatin1String("--positions")) {
            plan->positions.clear();
            for (const QString& pair : value.split(QLatin1Char(','))) {
                const QStringList parts = pair.split(QLatin1Char(':'));
                bool yawOk = false, pitchOk = false;
                const double yaw = parts.value(0).toDouble(&yawOk);
                const double pitch = parts.value(1).toDouble(&pitchOk);
                ok = ok && parts.size() == 2 && yawOk && pitchOk && std::fabs(pitch) <= 90.0;
                plan->positions.append(QPointF(yaw, pitch));
            }
        } else if (option == QLatin1String("--overlap")) {
            plan->overlap = real(5.0, 95.0);
        } else if (option == QLatin1String("--order")) {
            plan->order = -1;
            for (int k = 0; k < 5; ++k)
                if (value == QLatin1String(kOrderNames[k]))
                    plan->order = k;
            ok = plan->order >= 0;
        } else if (option == QLatin1String("--bracket")) {
            plan->bracket = integer(1, 15);
        } else if (option == QLatin1String("--ev-step")) {
            plan->evStep = real(0.1, 4.0);
        } else if (option == QLatin1String("--size")) {
            const QStringList parts = value.split(QLatin1Char('x'));
            bool wOk = false, hOk = false;
            plan->width = parts.value(0).toInt(&wOk);
            plan->height = parts.value(1).toInt(&hOk);
            ok = parts.size() == 2 && wOk && hOk && plan->height >= 16
                && plan->width >= plan->height && plan->width <= 20000;
        } else if (option == QLatin1String("--focal")) {
            plan->focal35 = real(4.0, 2000.0);
        } else if (option == QLatin1String("--crop-factor")) {
            plan->cropFactor = real(0.5, 10.0);
        } else if (option == QLatin1String("--portrait")) {
            ok = value == QLatin1String("turned") || value == QLatin1String("tagged");
            plan->portrait = value == QLatin1String("turned") ? Portrait::Turned : Portrait::Tagged;
        } else if (option == QLatin1String("--error")) {
            plan->error = real(0.0, 20.0);
        } else if (option == QLatin1String("--seed")) {
            plan->seed = value.toUInt(&ok);
        } else if (option == QLatin1String("--scene-seed")) {
            plan->sceneSeed = value.toUInt(&ok);
        } else if (option == QLatin1String("--scene-width")) {
            plan->sceneWidth = integer(360, 30000);
        } else if (option == QLatin1String("--samples")) {
            plan->samples = integer(1, 8);
        } else if (option == QLatin1String("--quality")) {
            plan->jpegQuality = integer(1, 100);
        } else {
            *error = QStringLiteral("unknown option %1").arg(option);
            return false;
        }
        if (!ok) {
            *error = QStringLiteral("%1 %2: not a valid value").arg(option, value);
            return false;
        }
    }
    return true;
}

bool GeneratedShoot::write(const QString& folder, QString* error) const
{
    if (!QDir().mkpath(folder)) {
        *error = QStringLiteral("cannot create %1").arg(folder);
        return false;
    }
    const QDir dir(folder);
    const Plan& s = m_plan;
    const bool standing = s.portrait != Portrait::No;
    const int across = standing ? s.height : s.width;
    const int up = standing ? s.width : s.height;

    // The scene carries as many pixels per degree as the pictures, within
    // what a picture in memory allows.
    int sceneWidth = s.sceneWidth;
    if (sceneWidth <= 0)
        sceneWidth = qBound(3600, int(std::ceil(across / m_hfov * 360.0 / 4.0)) * 4, 10800);
    const QImage scene = SceneTexture::render(sceneWidth, s.sceneSeed);
    const ViewRenderer renderer(scene);

    QString truth;
    QTextStream csv(&truth);
    csv << "# True camera angles of the photographs, degrees; yaw grows to the right,\n"
           "# pitch is positive upward, roll is that of the picture as stored (90: it\n"
           "# lies a quarter turn anticlockwise and its orientation tag stands it up).\n"
           "# Field of view "
        << number(m_hfov, 6) << " degrees across " << across << " pixels.\n"
        << "image,stack,yaw,pitch,roll\n";

    const double storedRoll = s.portrait == Portrait::Tagged ? 90.0 : 0.0;
    const int focalMm = qMax(1, qRound(s.focal35 / s.cropFactor));
    int count = 0;
    for (int stack = 0; stack < m_positions.size(); ++stack) {
        const Position& p = m_positions[stack];
        QImage view = renderer.render(p.trueYaw, p.truePitch, m_hfov, across, up, s.samples);
        if (s.portrait == Portrait::Tagged)
            view = view.transformed(QTransform().rotate(-90));
        for (int b = 0; b < s.bracket; ++b) {
            ++count;
            const QString name = QStringLiteral("IMG_%1.jpg").arg(count, 4, 10, QLatin1Char('0'));
            const QString path = dir.filePath(name);
            const double ev = bracketEv(b, s.evStep);
            if (!exposed(view, ev).save(path, "JPEG", s.jpegQuality)) {
                *error = QStringLiteral("cannot write %1").arg(path);
                return false;
            }
            ExifTagger::Fields exif;
            exif.focalLength = focalMm;
            exif.focalLength35 = qRound(s.focal35);
            // 1/125 s at 0 EV.
            const double evRounded = std::round(ev);
            if (std::fabs(ev - evRounded) < 1e-9) {
                const int stops = int(evRounded);
                exif.exposureNumerator = stops > 0 ? 1 << stops : 1;
                exif.exposureDenominator = stops < 0 ? 125 << -stops : 125;
            } else {
                exif.exposureNumerator = qRound(std::pow(2.0, ev) / 125.0 * 1e6);
                exif.exposureDenominator = 1000000;
            }
            const QDateTime time = shotTime(stack, b);
            exif.shot = time;
            exif.subSecond = time.time().msec() / 10;
            exif.orientation = s.portrait == Portrait::Tagged ? 6 : 1;
            exif.width = view.width();
            exif.height = view.height();
            if (!ExifTagger::write(path, exif, error))
                return false;
            csv << name << ',' << stack << ',' << number(p.trueYaw, 4) << ','
                << number(p.truePitch, 4) << ',' << number(storedRoll, 1) << '\n';
        }
    }
    csv.flush();
    return writeText(dir.filePath(QStringLiteral("ground-truth.csv")), truth, error)
        && writeText(dir.filePath(QStringLiteral("papywizard.xml")),
            papywizard(true, QStringLiteral("Generated shoot")), error)
        && writeText(dir.filePath(QStringLiteral("papywizard-headerless.xml")),
            papywizard(false, QString()), error)
        && writeText(dir.filePath(QStringLiteral("vrdrive2.xml")),
            papywizard(true, QStringLiteral("VR Drive 2 preset")), error)
        && writeText(dir.filePath(QStringLiteral("clauss.txt")), clauss(), error)
        && writeText(dir.filePath(QStringLiteral("gigapan-args.txt")), gigapanArguments(), error)
        && writeText(dir.filePath(QStringLiteral("shoot.txt")), options(), error);
}

QString GeneratedShoot::papywizard(bool complete, const QString& title) const
{
    const Plan& s = m_plan;
    QString text;
    QTextStream xml(&text);
    xml << "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<papywizard version=\"c\">\n";
    if (complete) {
        xml << "  <header>\n"
               "    <general>\n"
               "      <title>"
            << title
            << "</title>\n"
               "      <comment>Rendered from a procedural scene; see ground-truth.csv</comment>\n"
               "    </general>\n"
               "    <camera>\n"
               "      <timeValue>0.5</timeValue>\n"
               "      <bracketing nbPicts=\""
            << s.bracket
            << "\"/>\n"
               "      <sensor coef=\""
            << number(s.cropFactor, 2) << "\" ratio=\""
            << (s.width * 2 == s.height * 3 ? "3:2" : "4:3")
            << "\"/>\n"
               "    </camera>\n"
               "    <lens type=\"rectilinear\">\n"
               "      <focal>"
            << number(s.focal35 / s.cropFactor, 1)
            << "</focal>\n"
               "    </lens>\n"
               "    <shooting mode=\"mosaic\">\n"
               "      <headOrientation>up</headOrientation>\n"
               "      <cameraOrientation>"
            << (s.portrait == Portrait::No ? "landscape" : "portrait")
            << "</cameraOrientation>\n"
               "      <stabilizationDelay>0.5</stabilizationDelay>\n"
               "    </shooting>\n"
               "  </header>\n";
    }
    xml << "  <shoot>\n";
    const QString roll
        = s.portrait == Portrait::No ? QStringLiteral("0.0") : QStringLiteral("90.0");
    int id = 0;
    for (int stack = 0; stack < m_positions.size(); ++stack) {
        const Position& p = m_positions[stack];
        const QString yaw = number(p.plannedYaw, 1);
        const QString pitch = number(p.plannedPitch, 1);
        for (int b = 0; b < s.bracket; ++b) {
            ++id;
            if (complete) {
                xml << "    <pict id=\"" << id << "\" bracket=\"" << (b + 1) << "\">\n"
                    << "      <time>" << shotTime(stack, b).toString(Qt::TextDate) << "</time>\n"
                    << "      <position yaw=\"" << yaw << "\" pitch=\"" << pitch << "\" roll=\""
                    << roll << "\"/>\n"
                    << "    </pict>\n";
            } else {
                xml << "    <pict bracket=\"" << (b + 1) << "\">\n"
                    << "      <position yaw=\"" << yaw << "\" pitch=\"" << pitch << "\"/>\n"
                    << "    </pict>\n";
            }
        }
    }
    xml << "  </shoot>\n</papywizard>\n";
    xml.flush();
    return text;
}

QString GeneratedShoot::clauss() const
{
    // Absolute angles in whole degrees, then one op_shoot per photograph.
    QString text;
    QTextStream out(&text);
    out << "; generated shoot: " << m_positions.size() << " positions, " << m_plan.bracket
        << " per position\n";
    for (const Position& p : m_positions) {
        out << "op_h-angle=" << qRound(p.plannedYaw) << '\n'
            << "op_v-angle=" << qRound(p.plannedPitch) << '\n';
        for (int b = 0; b < m_plan.bracket; ++b)
            out << "op_shoot\n";
    }
    out.flush();
    return text;
}

QString GeneratedShoot::gigapanArguments() const
{
    const Plan& s = m_plan;
    QStringList args;
    args << QStringLiteral("--rows") << QString::number(s.positions.isEmpty() ? s.rows : 1)
         << QStringLiteral("--bracket") << QString::number(s.bracket) << QStringLiteral("--order")
         << QLatin1String(kOrderNames[s.order]) << QStringLiteral("--overlap")
         << QString::number(s.overlap);
    if (s.fullCircle)
        args << QStringLiteral("--force-360");
    return args.join(QLatin1Char(' ')) + QLatin1Char('\n');
}

QString GeneratedShoot::options() const
{
    const Plan& s = m_plan;
    QStringList args;
    if (s.positions.isEmpty()) {
        args << QStringLiteral("--rows %1 --columns %2").arg(s.rows).arg(s.columns);
    } else {
        QStringList pairs;
        for (const QPointF& p : s.positions)
            pairs << QStringLiteral("%1:%2").arg(p.x()).arg(p.y());
        args << QStringLiteral("--positions ") + pairs.join(QLatin1Char(','));
    }
    if (s.fullCircle)
        args << QStringLiteral("--full-circle");
    args << QStringLiteral("--overlap %1 --order %2 --bracket %3 --ev-step %4")
                .arg(s.overlap)
                .arg(QLatin1String(kOrderNames[s.order]))
                .arg(s.bracket)
                .arg(s.evStep);
    args << QStringLiteral("--size %1x%2 --focal %3 --crop-factor %4")
                .arg(s.width)
                .arg(s.height)
                .arg(s.focal35)
                .arg(s.cropFactor);
    if (s.portrait != Portrait::No)
        args << QStringLiteral("--portrait ")
                + (s.portrait == Portrait::Turned ? QStringLiteral("turned")
                                                  : QStringLiteral("tagged"));
    args << QStringLiteral("--error %1 --seed %2 --scene-seed %3 --samples %4 --quality %5")
                .arg(s.error)
                .arg(s.seed)
                .arg(s.sceneSeed)
                .arg(s.samples)
                .arg(s.jpegQuality);
    if (s.sceneWidth > 0)
        args << QStringLiteral("--scene-width %1").arg(s.sceneWidth);
    return QStringLiteral("zph_make_sample --generate <folder> ") + args.join(QLatin1Char(' '))
        + QLatin1Char('\n');
}
