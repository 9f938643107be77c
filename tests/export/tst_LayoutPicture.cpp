// The layout picture: photographs where their stacks point, links as lines.
#include "FieldOfView.h"
#include "LayoutPicture.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

namespace {

ExportInput twoStacks()
{
    ExportInput in;
    in.panorama.m_stacks = { { QStringLiteral("/p/a.jpg") }, { QStringLiteral("/p/b.jpg") } };
    AuthorizedLink link;
    link.m_direction = 2;
    link.m_stackIndices = { 0, 1 };
    in.panorama.m_links = { link };
    in.positions = { StackPosition { -30.0, 0.0, 0.0 }, StackPosition { 30.0, 0.0, 0.0 } };
    in.focalLength = 35.0;
    in.lens = LensStandard;
    const QColor colours[2] = { Qt::red, Qt::blue };
    for (int k = 0; k < 2; ++k) {
        ImageInfo info;
        info.path = in.panorama.m_stacks[k].first();
        info.pixelSize = QSize(400, 300);
        info.thumbnail = QImage(40, 30, QImage::Format_RGB32);
        info.thumbnail.fill(colours[k]);
        in.images.insert(info.path, info);
    }
    return in;
}

} // namespace

class tst_LayoutPicture : public QObject
{
    Q_OBJECT

private slots:
    void placesPhotographsAndLinks();
    void linkAcrossTheSeam();
    void nothingToDraw();
    void oddInputs();
};

void tst_LayoutPicture::placesPhotographsAndLinks()
{
    const QImage picture = LayoutPicture::render(twoStacks());
    QVERIFY(!picture.isNull());
    // The test's own geometry: 8 pixels per degree, a 40-pixel margin, the
    // view spanning the pictures' half diagonals around the two centres.
    const double d = 43.266615305567875;
    const double h = 2.0 * std::atan(d * 0.8 / 70.0) * 180.0 / M_PI;
    const double v = 2.0 * std::atan(d * 0.6 / 70.0) * 180.0 / M_PI;
    const double half = std::hypot(h, v) / 2.0;
    QCOMPARE(picture.width(), int(std::ceil((60.0 + 2.0 * half) * 8.0)) + 80);
    QCOMPARE(picture.height(), int(std::ceil(2.0 * half * 8.0)) + 80);
    const int centreY = int(40 + half * 8.0);
    const int first = int(40 + half * 8.0);
    const int second = int(40 + (60.0 + half) * 8.0);
    const int middle = int(40 + (30.0 + half) * 8.0);

    const QRgb red = picture.pixel(first, centreY + 20);
    QVERIFY2(qRed(red) > 200 && qGreen(red) < 40 && qBlue(red) < 40,
        qPrintable(QString::number(red, 16)));
    const QRgb blue = picture.pixel(second, centreY - 20);
    QVERIFY2(qBlue(blue) > 200 && qRed(blue) < 40, qPrintable(QString::number(blue, 16)));
    // Between the two pictures only the green line of the link.
    const QRgb line = picture.pixel(middle, centreY);
    QVERIFY2(qGreen(line) > 180 && qRed(line) < 150, qPrintable(QString::number(line, 16)));
    const QRgb background = picture.pixel(middle + 12, centreY + 30);
    QCOMPARE(QColor(background), QColor(38, 42, 48));

    QTemporaryDir dir;
    QString error;
    const QString path = dir.filePath(QStringLiteral("layout.png"));
    QVERIFY2(LayoutPicture::write(twoStacks(), path, &error), qPrintable(error));
    QCOMPARE(QImage(path).size(), picture.size());
}

void tst_LayoutPicture::linkAcrossTheSeam()
{
    ExportInput in = twoStacks();
    in.positions = { StackPosition { 170.0, 0.0, 0.0 }, StackPosition { -170.0, 0.0, 0.0 } };
    const QImage picture = LayoutPicture::render(in);
    QVERIFY(!picture.isNull());
    // The view is clipped to ±200 degrees, so the line leaves through the right
    // edge from 170 and never crosses the middle (yaw 0).
    const double yawMin = -200.0;
    const double half = std::hypot(2.0 * std::atan(43.266615305567875 * 0.8 / 70.0),
                            2.0 * std::atan(43.266615305567875 * 0.6 / 70.0))
        * 180.0 / M_PI / 2.0;
    const double scale = std::min(8.0, 1320.0 / 400.0);
    const int y = int(40 + half * scale);
    const QRgb atZero = picture.pixel(int(40 + (0.0 - yawMin) * scale), y);
    QVERIFY2(
        !(qGreen(atZero) > 180 && qRed(atZero) < 150), qPrintable(QString::number(atZero, 16)));
    const QRgb atEdge = picture.pixel(int(40 + (190.0 - yawMin) * scale), y);
    QVERIFY2(qGreen(atEdge) > 180 && qRed(atEdge) < 150, qPrintable(QString::number(atEdge, 16)));
}

void tst_LayoutPicture::nothingToDraw()
{
    QVERIFY(LayoutPicture::render(ExportInput()).isNull());
    QString error;
    QTemporaryDir dir;
    QVERIFY(!LayoutPicture::write(ExportInput(), dir.filePath(QStringLiteral("x.png")), &error));
    QCOMPARE(error, QStringLiteral("the panorama has no stack to draw"));
    QVERIFY(!LayoutPicture::write(
        twoStacks(), dir.filePath(QStringLiteral("no/folder/x.png")), &error));
}

void tst_LayoutPicture::oddInputs()
{
    // No focal length, a position that is not a number, a photograph nothing
    // is known of, a link to a stack that does not exist: still a picture of
    // nominal 40-degree cells, at most MaximumSide wide.
    ExportInput in = twoStacks();
    in.focalLength = 0.0;
    in.positions[0].yaw = std::nan("");
    in.images.clear();
    AuthorizedLink broken;
    broken.m_direction = 1;
    broken.m_stackIndices = { 0, 7 };
    in.panorama.m_links.append(broken);
    in.panorama.m_stacks.append(QStringList());
    const QImage picture = LayoutPicture::render(in);
    QVERIFY(!picture.isNull());
    QVERIFY(picture.width() <= LayoutPicture::MaximumSide);
    QVERIFY(picture.height() <= LayoutPicture::MaximumSide);
}

QTEST_MAIN(tst_LayoutPicture)
#include "tst_LayoutPicture.moc"
