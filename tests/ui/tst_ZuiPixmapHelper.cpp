// ZuiPixmapHelper at a device pixel ratio of 1: display rectangles, fading
// and the loading of resource pictures.
#include "TestPictures.h"
#include "ZUI.h"
#include "ZuiPixmapHelper.h"

#include <QIcon>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class tst_ZuiPixmapHelper : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void displayRect_data();
    void displayRect();
    void setAlpha_data();
    void setAlpha();
    void setAlphaKeepsRatioAndSize();
    void setAlphaOnNullPixmap();
    void createAtRatioOne();
    void createOpaqueIsIconPixmap();
    void createFaded();
    void createFromResources();
    void createFromMissingFile();

private:
    QTemporaryDir m_dir;
};

void tst_ZuiPixmapHelper::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(TestPictures::WriteAll(m_dir.path()));
    QCOMPARE(qApp->devicePixelRatio(), 1.0);
    ZUI::init(nullptr);
}

void tst_ZuiPixmapHelper::cleanupTestCase()
{
    ZUI::exit();
}

void tst_ZuiPixmapHelper::displayRect_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("expected");

    QTest::newRow("200x100 at 2") << QSize(200, 100) << 2.0 << QSize(100, 50);
    QTest::newRow("101x51 at 2, halves up") << QSize(101, 51) << 2.0 << QSize(51, 26);
    QTest::newRow("1x3 at 2, halves up") << QSize(1, 3) << 2.0 << QSize(1, 2);
    QTest::newRow("10x7 at 1") << QSize(10, 7) << 1.0 << QSize(10, 7);
    QTest::newRow("100x5 at 3, thirds") << QSize(100, 5) << 3.0 << QSize(33, 2);
    QTest::newRow("99x33 at 1.5") << QSize(99, 33) << 1.5 << QSize(66, 22);
    QTest::newRow("7x9 at 1.25") << QSize(7, 9) << 1.25 << QSize(6, 7);
}

void tst_ZuiPixmapHelper::displayRect()
{
    QFETCH(QSize, pixels);
    QFETCH(qreal, ratio);
    QFETCH(QSize, expected);

    QPixmap pixmap(pixels);
    pixmap.setDevicePixelRatio(ratio);
    QCOMPARE(ZuiPixmapHelper::GetDisplayRect(pixmap), QRect(QPoint(0, 0), expected));
    // The pixmap itself is left as it was.
    QCOMPARE(pixmap.size(), pixels);
    QCOMPARE(pixmap.devicePixelRatio(), ratio);
}

void tst_ZuiPixmapHelper::setAlpha_data()
{
    QTest::addColumn<int>("alpha");
    QTest::addColumn<int>("minAlpha");
    QTest::addColumn<int>("maxAlpha");

    QTest::newRow("255 unchanged") << 255 << 255 << 255;
    QTest::newRow("128 about half") << 128 << 127 << 129;
    QTest::newRow("64 about a quarter") << 64 << 63 << 65;
    QTest::newRow("0 invisible") << 0 << 0 << 0;
    // The painter clamps the opacity to 0..1.
    QTest::newRow("300 clamped to opaque") << 300 << 255 << 255;
    QTest::newRow("-20 clamped to invisible") << -20 << 0 << 0;
}

void tst_ZuiPixmapHelper::setAlpha()
{
    QFETCH(int, alpha);
    QFETCH(int, minAlpha);
    QFETCH(int, maxAlpha);

    QPixmap pixmap(8, 6);
    pixmap.fill(QColor(200, 40, 10));
    ZuiPixmapHelper::SetAlpha(pixmap, alpha);

    QCOMPARE(pixmap.size(), QSize(8, 6));
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            QVERIFY2(c.alpha() >= minAlpha && c.alpha() <= maxAlpha,
                qPrintable(QStringLiteral("alpha %1 at %2,%3").arg(c.alpha()).arg(x).arg(y)));
            if (c.alpha() >= 64) {
                // The colour survives the fading (up to premultiplication rounding).
                QVERIFY(qAbs(c.red() - 200) <= 4);
                QVERIFY(qAbs(c.green() - 40) <= 4);
            }
        }
    }
}

void tst_ZuiPixmapHelper::setAlphaKeepsRatioAndSize()
{
    QPixmap pixmap(40, 20);
    pixmap.fill(Qt::black);
    pixmap.setDevicePixelRatio(2.0);
    ZuiPixmapHelper::SetAlpha(pixmap, 128);
    QCOMPARE(pixmap.size(), QSize(40, 20));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    // The whole pixmap was redrawn, not only its logical quarter.
    const QImage image = pixmap.toImage();
    QVERIFY(qAbs(qAlpha(image.pixel(39, 19)) - 128) <= 1);
    QVERIFY(qAbs(qAlpha(image.pixel(0, 0)) - 128) <= 1);
}

void tst_ZuiPixmapHelper::setAlphaOnNullPixmap()
{
    QPixmap pixmap;
    ZuiPixmapHelper::SetAlpha(pixmap, 100);
    QVERIFY(pixmap.isNull());
}

void tst_ZuiPixmapHelper::createAtRatioOne()
{
    // At ratio 1 the base picture is used even though a companion exists.
    const QPixmap pixmap
        = ZuiPixmapHelper::CreateHighDpiPixmap(m_dir.filePath(QStringLiteral("base.png")));
    QCOMPARE(pixmap.size(), QSize(20, 10));
    QCOMPARE(pixmap.devicePixelRatio(), 1.0);
    QCOMPARE(pixmap.toImage().pixelColor(5, 5), TestPictures::kBase);
}

void tst_ZuiPixmapHelper::createOpaqueIsIconPixmap()
{
    const QString path = m_dir.filePath(QStringLiteral("single.png"));
    const QPixmap pixmap = ZuiPixmapHelper::CreateHighDpiPixmap(path, 255);
    const QPixmap expected = QIcon(path).pixmap(QSize(20, 10), QIcon::Normal, QIcon::Off);
    QCOMPARE(pixmap.size(), expected.size());
    QCOMPARE(pixmap.toImage(), expected.toImage());
}

void tst_ZuiPixmapHelper::createFaded()
{
    const QPixmap pixmap
        = ZuiPixmapHelper::CreateHighDpiPixmap(m_dir.filePath(QStringLiteral("single.png")), 128);
    QCOMPARE(pixmap.size(), QSize(20, 10));
    const QColor c = pixmap.toImage().pixelColor(10, 5);
    QVERIFY2(qAbs(c.alpha() - 128) <= 1, qPrintable(QString::number(c.alpha())));
    QVERIFY(qAbs(c.green() - 255) <= 2);
}

void tst_ZuiPixmapHelper::createFromResources()
{
    const QPixmap play
        = ZuiPixmapHelper::CreateHighDpiPixmap(QStringLiteral(":/UI/video_play.png"));
    QCOMPARE(play.size(), QSize(16, 16));
    QCOMPARE(play.devicePixelRatio(), 1.0);
    QRect expected(0, 0, 16, 16);
    QPixmap copy = play;
    QCOMPARE(ZuiPixmapHelper::GetDisplayRect(copy), expected);
}

void tst_ZuiPixmapHelper::createFromMissingFile()
{
    // A missing picture is the caller's error; it yields a null pixmap, not a crash.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Cannot load picture")));
    const QPixmap pixmap
        = ZuiPixmapHelper::CreateHighDpiPixmap(m_dir.filePath(QStringLiteral("missing.png")), 128);
    QVERIFY(pixmap.isNull());
}

QTEST_MAIN(tst_ZuiPixmapHelper)
#include "tst_ZuiPixmapHelper.moc"
