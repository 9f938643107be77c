#include "ImportScenario.h"

#include "ImportWizard.h"
#include "PhotoFixture.h"
#include "PluginChoicePage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <QWizardPage>

#include <cmath>

namespace {

const char* const ClaussUid = "5A656C6D-6F20-2020-2020-D6D081182F97";
const char* const GigapanUid = "5A656C6D-6F20-2020-2020-6028D47773DF";
const char* const PapywizardUid = "5A656C6D-6F20-2020-2020-483181480AB7";
const char* const VRDrive2Uid = "5A656C6D-6F20-2020-2020-B662C695C918";

QString photoName(const QString& plugin, int i)
{
    return QStringLiteral("%1-%2.jpg").arg(plugin.toLower()).arg(i, 2, 10, QLatin1Char('0'));
}

/// A Papywizard record (also the VR Drive 2 preset's shape).
QByteArray papywizardXml(
    const QString& title, int bracketing, double focal, const QVector<QPointF>& positions)
{
    QByteArray xml;
    QTextStream out(&xml);
    out << "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<papywizard version=\"c\">\n"
        << "  <header>\n    <general>\n      <title>" << title << "</title>\n"
        << "      <gps>48.85, 2.35</gps>\n      <comment>made by the host tests</comment>\n"
        << "    </general>\n    <camera>\n      <timeValue>0.5</timeValue>\n"
        << "      <bracketing nbPicts=\"" << bracketing << "\"/>\n"
        << "      <sensor coef=\"1.0\" ratio=\"3:2\"/>\n    </camera>\n"
        << "    <lens type=\"rectilinear\">\n      <focal>" << focal << "</focal>\n"
        << "    </lens>\n    <shooting mode=\"mosaic\">\n"
        << "      <cameraOrientation>landscape</cameraOrientation>\n    </shooting>\n"
        << "  </header>\n  <shoot>\n";
    int id = 1;
    for (const QPointF& p : positions) {
        for (int b = 1; b <= bracketing; ++b, ++id) {
            out << "    <pict id=\"" << id << "\" bracket=\"" << b << "\">\n"
                << "      <time>2024-06-01_12h00m" << id << "s</time>\n"
                << "      <position yaw=\"" << p.x() << "\" pitch=\"" << p.y()
                << "\" roll=\"0\"/>\n"
                << "    </pict>\n";
        }
    }
    out << "  </shoot>\n</papywizard>\n";
    out.flush();
    return xml;
}

bool writeFile(const QString& path, const QByteArray& bytes, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        *error = path + QLatin1String(": ") + file.errorString();
        return false;
    }
    return true;
}

} // namespace

QStringList ImportScenario::PluginNames()
{
    return { QStringLiteral("Clauss"), QStringLiteral("Gigapan"), QStringLiteral("Papywizard"),
        QStringLiteral("VRDrive2") };
}

QString ImportScenario::Uid(const QString& plugin)
{
    if (plugin == QLatin1String("Clauss"))
        return QLatin1String(ClaussUid);
    if (plugin == QLatin1String("Gigapan"))
        return QLatin1String(GigapanUid);
    if (plugin == QLatin1String("Papywizard"))
        return QLatin1String(PapywizardUid);
    if (plugin == QLatin1String("VRDrive2"))
        return QLatin1String(VRDrive2Uid);
    return QString();
}

QString ImportScenario::HeadFile(const QString& plugin) const
{
    if (plugin == QLatin1String("Clauss"))
        return QDir(m_folder).filePath(QStringLiteral("clauss-script.txt"));
    if (plugin == QLatin1String("Papywizard"))
        return QDir(m_folder).filePath(QStringLiteral("papywizard.xml"));
    if (plugin == QLatin1String("VRDrive2"))
        return QDir(m_folder).filePath(QStringLiteral("vrdrive2-preset.xml"));
    return QString();
}

QStringList ImportScenario::Photos(const QString& plugin) const
{
    const int count = plugin == QLatin1String("Clauss") ? 4 : 6;
    QStringList photos;
    for (int i = 0; i < count; ++i)
        photos << QDir(m_folder).filePath(photoName(plugin, i));
    return photos;
}

int ImportScenario::Camera::EquivalentOf(int photo) const
{
    return int(std::lround(FocalOf(photo) * crop));
}

bool ImportScenario::Prepare(const QString& folder)
{
    // The records hold the full-frame equivalent of the first photograph's focal.
    const double recordFocal = camera.EquivalentOf(0) > 0 ? camera.EquivalentOf(0) : 24.0;
    m_folder = folder;
    if (!QDir().mkpath(folder)) {
        m_error = QStringLiteral("cannot create ") + folder;
        return false;
    }
    // Papywizard: two rows (pitch 0 and -30) of three positions 40 degrees apart.
    const QVector<QPointF> grid
        = { { 0, 0 }, { 40, 0 }, { 80, 0 }, { 0, -30 }, { 40, -30 }, { 80, -30 } };
    if (!writeFile(HeadFile(QStringLiteral("Papywizard")),
            papywizardXml(QStringLiteral("Six positions"), 1, recordFocal, grid), &m_error))
        return false;
    // VR Drive 2: two positions, three exposures each.
    if (!writeFile(HeadFile(QStringLiteral("VRDrive2")),
            papywizardXml(
                QStringLiteral("Bracketed"), 3, recordFocal, { { 0, 0 }, { 40, 0 } }), &m_error))
        return false;
    // Clauss: four shots 35 degrees apart on the horizon.
    if (!writeFile(HeadFile(QStringLiteral("Clauss")),
            "op_v-angle=0\nop_h-angle=0\nop_shoot\nop_h-angle=35\nop_shoot\n"
            "op_h-angle=70\nop_shoot\nop_h-angle=105\nop_shoot\n",
            &m_error))
        return false;

    int seed = 0;
    for (const QString& plugin : PluginNames()) {
        const QStringList photos = Photos(plugin);
        for (int i = 0; i < photos.size(); ++i) {
            PhotoFixture f;
            f.size = QSize(480, 320);
            f.seed = ++seed;
            f.focalNum = camera.FocalOf(i);
            f.focalDen = f.focalNum > 0 ? 1 : 0;
            if (camera.crop != 1.0 && f.focalNum > 0)
                f.focal35mm = camera.EquivalentOf(i);
            f.fNumberNum = 8;
            f.fNumberDen = 1;
            f.iso = 100;
            // Brackets of three: 1/500 s, then 1/125 s, then 1/30 s.
            static const int bracketTimes[] = { 500, 125, 30 };
            f.exposureNum = 1;
            f.exposureDen = plugin == QLatin1String("VRDrive2") ? bracketTimes[i % 3] : 250;
            f.dateTimeOriginal = "2024:06:01 12:00:00";
            f.subSecTimeOriginal = QByteArray::number(10 + i);
            f.make = "Zcam";
            f.model = "Z1";
            f.lensModel = "24mm F1.4";
            f.thumbnail = QSize(160, 107);
            if (!f.write(photos.at(i))) {
                m_error = photos.at(i) + QLatin1String(": ") + f.errorString();
                return false;
            }
        }
    }
    return true;
}

void ImportScenario::AnswerNextFileDialog(const QString& folder, const QStringList& names)
{
    auto* timer = new QTimer(qApp);
    timer->setInterval(20);
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer, folder, names] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        timer->stop();
        timer->deleteLater();
        dialog->setDirectory(folder);
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QStringList quoted;
        for (const QString& name : names)
            quoted << QLatin1Char('"') + name + QLatin1Char('"');
        if (edit)
            edit->setText(quoted.join(QLatin1Char(' ')));
        if (onDialog)
            onDialog(dialog);
        // Through QDialog: QFileDialog::accept() is protected, but virtual.
        static_cast<QDialog*>(dialog)->accept();
    });
    timer->start();
}

bool ImportScenario::WaitFor(const std::function<bool()>& condition, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > timeoutMs)
            return false;
        QApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(5);
    }
    return true;
}

bool ImportScenario::Run(ImportWizard* wizard, const QString& plugin, int timeoutMs)
{
    m_error.clear();
    wizard->restart();
    if (!wizard->ChoicePage()->ChoosePlugin(Uid(plugin))) {
        m_error = plugin + QLatin1String(" is not offered on the first page");
        return false;
    }
    wizard->next();
    const QList<QWizardPage*> pages = wizard->PluginPages();
    if (pages.isEmpty() || wizard->currentPage() != pages.first()) {
        m_error = plugin + QLatin1String(": its page did not come next");
        return false;
    }
    QPointer<QWizardPage> page = pages.first();

    // The head's file and the photographs, chosen together where the page
    // offers it (its "..." beside the head's file), else the photographs alone.
    QStringList names;
    const QString head = HeadFile(plugin);
    if (!head.isEmpty())
        names << QFileInfo(head).fileName();
    for (const QString& photo : Photos(plugin))
        names << QFileInfo(photo).fileName();
    const char* buttonName = head.isEmpty() ? "m_pbSelectImages" : "m_pbSelectConfigFile";
    auto* button = page->findChild<QAbstractButton*>(QLatin1String(buttonName));
    if (!button) {
        m_error = plugin + QLatin1String(": no button ") + QLatin1String(buttonName);
        return false;
    }
    AnswerNextFileDialog(m_folder, names);
    button->click();

    if (!WaitFor([&] { return page && page->isComplete(); }, timeoutMs)) {
        m_error = plugin + QLatin1String(": the page did not become complete");
        return false;
    }
    // Let the last progress signals reach the page and its preview.
    QApplication::processEvents();
    if (onPageReady)
        onPageReady(page);
    wizard->next();
    if (wizard->currentId() != ImportWizard::ResultPageId) {
        m_error = plugin + QLatin1String(": Next did not reach the last page");
        return false;
    }
    return true;
}
