// The UI library's resource tree after ZUI::init(nullptr): every file is there,
// pictures decode with their "@2x" companions at twice the size, and every
// catalogue loads and translates.
#include "ZUI.h"

#include <QFile>
#include <QImage>
#include <QTest>
#include <QTranslator>

namespace {

const QStringList kFiles {
    QStringLiteral("UI/iconwait_01.png"),
    QStringLiteral("UI/iconwait_02.png"),
    QStringLiteral("UI/iconwait_03.png"),
    QStringLiteral("UI/iconwait_04.png"),
    QStringLiteral("UI/iconwait_05.png"),
    QStringLiteral("UI/iconwait_06.png"),
    QStringLiteral("UI/iconwait_07.png"),
    QStringLiteral("UI/iconwait_08.png"),
    QStringLiteral("UI/iconwait_09.png"),
    QStringLiteral("UI/iconwait_10.png"),
    QStringLiteral("UI/iconwait_11.png"),
    QStringLiteral("UI/iconwait_12.png"),
    QStringLiteral("UI/video_play.png"),
    QStringLiteral("UI/video_play@2x.png"),
    QStringLiteral("UI/video_pause.png"),
    QStringLiteral("UI/video_pause@2x.png"),
    QStringLiteral("UI/video_stop.png"),
    QStringLiteral("UI/video_stop@2x.png"),
    QStringLiteral("UI/video_previous.png"),
    QStringLiteral("UI/video_previous@2x.png"),
    QStringLiteral("UI/video_next.png"),
    QStringLiteral("UI/video_next@2x.png"),
    QStringLiteral("UI/compass.png"),
    QStringLiteral("UI/compass_needle.png"),
    QStringLiteral("UI/help.png"),
    QStringLiteral("UI/social_mail.png"),
    QStringLiteral("UI/social_link.png"),
    QStringLiteral("UI/social_share.png"),
    QStringLiteral("UI/sizegrip.png"),
    QStringLiteral("UI/settings.png"),
    QStringLiteral("UI/settings_hover.png"),
    QStringLiteral("UI/arrow_collapsed.png"),
    QStringLiteral("UI/arrow_expanded.png"),
    QStringLiteral("QML/CubeFacePreview.qml"),
    QStringLiteral("html/map.html"),
    QStringLiteral("html/editor.html"),
    QStringLiteral("licenses/closure-library.txt"),
    QStringLiteral("licenses/qt.txt"),
    QStringLiteral("Resources/settings_small.png"),
};

} // namespace

class tst_ZuiResources : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void fileResolves_data();
    void fileResolves();
    void companionsAreTwiceTheSize_data();
    void companionsAreTwiceTheSize();
    void waitFramesDiffer();
    void searchPath();
    void catalogue_data();
    void catalogue();
};

void tst_ZuiResources::initTestCase()
{
    ZUI::init(nullptr);
}

void tst_ZuiResources::cleanupTestCase()
{
    ZUI::exit();
}

void tst_ZuiResources::fileResolves_data()
{
    QTest::addColumn<QString>("path");
    for (const QString& file : kFiles)
        QTest::newRow(qPrintable(file)) << QStringLiteral(":/") + file;
}

void tst_ZuiResources::fileResolves()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
    const QByteArray data = file.readAll();
    QVERIFY(!data.isEmpty());
    if (path.endsWith(QLatin1String(".png"))) {
        const QImage image = QImage::fromData(data, "PNG");
        QVERIFY(!image.isNull());
        QVERIFY(image.width() >= 8 && image.width() <= 64);
        // A drawing, not an empty canvas.
        bool drawn = false;
        for (int y = 0; y < image.height() && !drawn; ++y)
            for (int x = 0; x < image.width() && !drawn; ++x)
                drawn = qAlpha(image.pixel(x, y)) > 0;
        QVERIFY(drawn);
    }
}

void tst_ZuiResources::companionsAreTwiceTheSize_data()
{
    QTest::addColumn<QString>("base");
    for (const QString& file : kFiles) {
        if (file.endsWith(QLatin1String("@2x.png")))
            QTest::newRow(qPrintable(file))
                << QStringLiteral(":/") + QString(file).remove(QStringLiteral("@2x"));
    }
}

void tst_ZuiResources::companionsAreTwiceTheSize()
{
    QFETCH(QString, base);
    const QImage one(base);
    const QImage two(QString(base).replace(QStringLiteral(".png"), QStringLiteral("@2x.png")));
    QVERIFY(!one.isNull());
    QCOMPARE(two.size(), one.size() * 2);
}

void tst_ZuiResources::waitFramesDiffer()
{
    // Twelve distinct frames make an animation.
    QList<QImage> frames;
    for (int i = 1; i <= 12; ++i) {
        const QImage frame(QStringLiteral(":/UI/iconwait_%1.png").arg(i, 2, 10, QLatin1Char('0')));
        QCOMPARE(frame.size(), QSize(16, 16));
        for (const QImage& earlier : frames)
            QVERIFY(frame != earlier);
        frames << frame;
    }
}

void tst_ZuiResources::searchPath()
{
    QVERIFY(QFile::exists(QStringLiteral("UI:compass.png")));
    QVERIFY(!QFile::exists(QStringLiteral("UI:no-such-picture.png")));
}

void tst_ZuiResources::catalogue_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("front");
    QTest::addColumn<QString>("rotateLeft");

    QTest::newRow("zh_CN") << "zh_CN" << QString::fromUtf8("前") << QString::fromUtf8("向左旋转");
    QTest::newRow("zh_TW") << "zh_TW" << QString::fromUtf8("前") << QString::fromUtf8("向左旋轉");
    QTest::newRow("de") << "de"
                        << "Vorne"
                        << "Nach links drehen";
    QTest::newRow("cs") << "cs" << QString::fromUtf8("Přední") << "Otočit doleva";
    QTest::newRow("fi") << "fi"
                        << "Etu" << QString::fromUtf8("Kierrä vasemmalle");
    QTest::newRow("en") << "en"
                        << "Front"
                        << "Rotate left";
    QTest::newRow("es") << "es"
                        << "Frente"
                        << "Girar a la izquierda";
    QTest::newRow("fr") << "fr"
                        << "Avant" << QString::fromUtf8("Tourner à gauche");
    QTest::newRow("ja") << "ja" << QString::fromUtf8("前") << QString::fromUtf8("左に回転");
    QTest::newRow("it") << "it"
                        << "Fronte"
                        << "Ruota a sinistra";
    QTest::newRow("nl") << "nl"
                        << "Voor"
                        << "Linksom draaien";
    QTest::newRow("nb") << "nb"
                        << "Foran"
                        << "Roter mot venstre";
    QTest::newRow("pl") << "pl" << QString::fromUtf8("Przód") << QString::fromUtf8("Obróć w lewo");
    QTest::newRow("ru") << "ru" << QString::fromUtf8("Спереди")
                        << QString::fromUtf8("Повернуть влево");
}

void tst_ZuiResources::catalogue()
{
    QFETCH(QString, language);
    QFETCH(QString, front);
    QFETCH(QString, rotateLeft);

    const QString path = QStringLiteral(":/Translation/ZUI_%1.qm").arg(language);
    QVERIFY(QFile::exists(path));
    QTranslator translator;
    QVERIFY2(translator.load(path), qPrintable(path));
    QVERIFY(!translator.isEmpty());
    QCOMPARE(translator.translate("CubeFacePreview", "Front"), front);
    QCOMPARE(translator.translate("CubeFacePreview", "Rotate left"), rotateLeft);
}

QTEST_MAIN(tst_ZuiResources)
#include "tst_ZuiResources.moc"
