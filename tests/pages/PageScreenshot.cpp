// Shows one import page inside a wizard in a real window, loaded with a sample
// record and sample photos the way a user would load them (the page's own
// dialogs, answered), and saves a picture of the window.
//   zph_page_screenshot merlin|vrdrive2|clauss|gigapan <output.png>
// scripts/screenshots.sh runs it under Xvfb for every page.
#include "PageTestHost.h"
#include "PageTestSupport.h"
#include "UIWPClauss.h"
#include "UIWPGigapan.h"
#include "UIWPMerlin.h"
#include "UIWPVRDrive2.h"
#include "ZUI.h"

#include <QDir>
#include <QLinearGradient>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <QTextStream>
#include <QWizard>

#include <cstdio>

namespace {

/// A small landscape: sky, hills and the photo's number.
QPixmap SamplePhoto(int index, int exposure = 0)
{
    QPixmap pixmap(96, 64);
    QPainter painter(&pixmap);
    const int light = 20 * exposure;
    QLinearGradient sky(0, 0, 0, 40);
    sky.setColorAt(0, QColor(60 + light, 110 + light, 190).lighter(100 + 4 * (index % 6)));
    sky.setColorAt(1, QColor(190 + light / 2, 215, 240));
    painter.fillRect(0, 0, 96, 64, sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(70 + light, 120 + (index * 13) % 60, 60));
    painter.drawEllipse(QPoint(20 + (index * 17) % 60, 70), 60, 34);
    painter.setBrush(QColor(40 + light, 90, 50));
    painter.drawEllipse(QPoint(80 - (index * 11) % 50, 74), 50, 28);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(
        QRect(0, 0, 92, 20), Qt::AlignRight | Qt::AlignVCenter, QString::number(index + 1));
    return pixmap;
}

QStringList AddSamplePhotos(
    PageTestHost& host, FixtureFolder& folder, int count, float focal, int bracket = 1)
{
    const QStringList paths = folder.AddPhotos(count, QStringLiteral("IMG"));
    for (int i = 0; i < paths.size(); ++i) {
        const int exposure = bracket > 1 ? i % bracket - bracket / 2 : 0;
        TestImageDef* def = host.AddImage(paths[i], focal, 0, i + 1, float(exposure));
        def->m_thumbnail = SamplePhoto(i / bracket, exposure);
    }
    return paths;
}

/// A Papywizard record of `rows` rows of `columns` positions, each shot
/// `bracket` times, with a header.
QByteArray SampleRecord(int rows, int columns, int bracket, double focal)
{
    QByteArray xml;
    QTextStream out(&xml);
    out << "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<papywizard version=\"c\">\n"
        << "  <header>\n    <general>\n      <title>Old harbour, evening</title>\n"
        << "      <gps>47.2184 N, 1.5536 W</gps>\n      <comment>Three rows from the pier"
        << "</comment>\n    </general>\n    <camera>\n      <sensor coef=\"1.0\"/>\n"
        << "      <bracketing nbPicts=\"" << bracket << "\"/>\n    </camera>\n"
        << "    <lens type=\"rectilinear\">\n      <focal>" << focal << "</focal>\n"
        << "    </lens>\n  </header>\n  <shoot>\n";
    int id = 1;
    for (int r = 0; r < rows; ++r) {
        const int pitch = 30 - 30 * r;
        for (int c = 0; c < columns; ++c) {
            for (int b = 1; b <= bracket; ++b) {
                out << "    <pict id=\"" << id++ << "\" bracket=\"" << b << "\">\n"
                    << "      <position yaw=\"" << c * 360 / columns << "\" pitch=\"" << pitch
                    << "\"/>\n    </pict>\n";
            }
        }
    }
    out << "  </shoot>\n</papywizard>\n";
    out.flush();
    return xml;
}

} // namespace

int main(int argc, char** argv)
{
    PageTestHost host(argc, argv);
    ZUI::init(host.UIInstances());
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 3) {
        std::fprintf(stderr, "usage: zph_page_screenshot merlin|vrdrive2|clauss|gigapan out.png\n");
        return 2;
    }
    const QString which = args[1];
    FixtureFolder folder;
    host.SetFolder(folder.path());

    QWizard wizard;
    wizard.setWizardStyle(QWizard::ModernStyle);
    wizard.setWindowTitle(QStringLiteral("Import"));
    QWizardPage* page = nullptr;
    if (which == QLatin1String("merlin"))
        page = new UIWPMerlin();
    else if (which == QLatin1String("vrdrive2"))
        page = new UIWPVRDrive2();
    else if (which == QLatin1String("clauss"))
        page = new UIWPClauss();
    else if (which == QLatin1String("gigapan"))
        page = new UIWPGigapan();
    if (!page) {
        std::fprintf(stderr, "unknown page\n");
        return 2;
    }
    wizard.addPage(page);
    wizard.resize(820, 960);
    wizard.show();
    if (!QTest::qWaitForWindowExposed(&wizard))
        return 1;

    auto* recordButton = page->findChild<QPushButton*>(QStringLiteral("m_pbSelectConfigFile"));
    auto* photoButton = page->findChild<QPushButton*>(QStringLiteral("m_pbSelectImages"));
    int photoCount = 0;
    if (which == QLatin1String("merlin")) {
        const QString record
            = folder.AddText(QStringLiteral("harbour.xml"), SampleRecord(3, 8, 1, 17.0));
        const QStringList photos = AddSamplePhotos(host, folder, 24, 17.0f);
        ClickAndChooseFiles(recordButton, QStringList { record } + photos);
        photoCount = photos.size();
    } else if (which == QLatin1String("vrdrive2")) {
        const QString record
            = folder.AddText(QStringLiteral("preset.xml"), SampleRecord(2, 6, 3, 12.0));
        const QStringList photos = AddSamplePhotos(host, folder, 36, 12.0f, 3);
        ClickAndChooseFiles(recordButton, QStringList { record } + photos);
        photoCount = photos.size();
    } else if (which == QLatin1String("clauss")) {
        QByteArray script;
        for (int row = 0; row < 3; ++row) {
            script += "op_v-angle=" + QByteArray::number(30 - 30 * row) + "\n";
            for (int column = 0; column < 6; ++column) {
                script += "op_h-angle=" + QByteArray::number(column * 60) + "\nop_shoot\n";
            }
        }
        const QString path = folder.AddText(QStringLiteral("rodeon.txt"), script);
        const QStringList photos = AddSamplePhotos(host, folder, 18, 24.0f);
        ClickAndChooseFiles(recordButton, QStringList { path } + photos);
        photoCount = photos.size();
    } else {
        const QStringList photos = AddSamplePhotos(host, folder, 24, 24.0f);
        ClickAndChooseFiles(photoButton, photos);
        photoCount = photos.size();
    }
    if (!WaitForReading(page, photoCount))
        return 1;
    QTest::qWait(200);
    if (!wizard.grab().save(args[2])) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(args[2]));
        return 1;
    }
    return 0;
}
