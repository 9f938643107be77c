// ZuiPixmapHelper on a screen with a device pixel ratio of 2 (a global scale
// factor of 2 on the offscreen platform, high-density pixmaps enabled): the
// "@2x" companion of a picture is picked up.
#include "TestPictures.h"
#include "ZUI.h"
#include "ZuiPixmapHelper.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

class tst_ZuiPixmapHelperHighDpi : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void companionPickedUp();
    void noCompanionStaysAtRatioOne();
    void fadedCompanionKeepsRatio();
    void resourceCompanion();

private:
    QTemporaryDir m_dir;
};

void tst_ZuiPixmapHelperHighDpi::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(TestPictures::WriteAll(m_dir.path()));
    QCOMPARE(qApp->devicePixelRatio(), 2.0);
    ZUI::init(nullptr);
}

void tst_ZuiPixmapHelperHighDpi::cleanupTestCase()
{
    ZUI::exit();
}

void tst_ZuiPixmapHelperHighDpi::companionPickedUp()
{
    QPixmap pixmap
        = ZuiPixmapHelper::CreateHighDpiPixmap(m_dir.filePath(QStringLiteral("base.png")));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QCOMPARE(pixmap.size(), QSize(40, 20));
    QCOMPARE(pixmap.toImage().pixelColor(30, 15), TestPictures::kCompanion);
    QCOMPARE(ZuiPixmapHelper::GetDisplayRect(pixmap), QRect(0, 0, 20, 10));
}

void tst_ZuiPixmapHelperHighDpi::noCompanionStaysAtRatioOne()
{
    QPixmap pixmap
        = ZuiPixmapHelper::CreateHighDpiPixmap(m_dir.filePath(QStringLiteral("single.png")));
    QCOMPARE(pixmap.devicePixelRatio(), 1.0);
    QCOMPARE(pixmap.size(), QSize(20, 10));
    QCOMPARE(pixmap.toImage().pixelColor(5, 5), TestPictures::kSingle);
    QCOMPARE(ZuiPixmapHelper::GetDisplayRect(pixmap), QRect(0, 0, 20, 10));
}

void tst_ZuiPixmapHelperHighDpi::fadedCompanionKeepsRatio()
{
    const QPixmap pixmap
        = ZuiPixmapHelper::CreateHighDpiPixmap(m_dir.filePath(QStringLiteral("base.png")), 128);
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QCOMPARE(pixmap.size(), QSize(40, 20));
    const QColor c = pixmap.toImage().pixelColor(39, 19);
    QVERIFY2(qAbs(c.alpha() - 128) <= 1, qPrintable(QString::number(c.alpha())));
    QVERIFY(qAbs(c.blue() - 255) <= 2);
}

void tst_ZuiPixmapHelperHighDpi::resourceCompanion()
{
    const QPixmap play
        = ZuiPixmapHelper::CreateHighDpiPixmap(QStringLiteral(":/UI/video_play.png"));
    QCOMPARE(play.devicePixelRatio(), 2.0);
    QCOMPARE(play.size(), QSize(32, 32));
    // The compass has no companion.
    const QPixmap compass
        = ZuiPixmapHelper::CreateHighDpiPixmap(QStringLiteral(":/UI/compass.png"));
    QCOMPARE(compass.devicePixelRatio(), 1.0);
    QCOMPARE(compass.size(), QSize(32, 32));
}

int main(int argc, char** argv)
{
    // Both must be in place before the application object exists.
    qputenv("QT_SCALE_FACTOR", "2");
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    tst_ZuiPixmapHelperHighDpi test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ZuiPixmapHelperHighDpi.moc"
