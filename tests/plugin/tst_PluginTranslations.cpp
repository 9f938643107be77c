// The library's translation catalogues: each compiled catalogue in the
// resource tree of the loaded library holds exactly what its .ts source says,
// every message of every language but English is translated (placeholders,
// links and the link colour kept), and the pages built under a host's
// translation show no untranslated text.

#include "PluginTestSupport.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPluginLoader>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTranslator>
#include <QWizardPage>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    bool unfinished = false;
};

/// The messages of a .ts source; an empty list when it cannot be read.
QList<Message> ReadTs(const QString& path, QString* language)
{
    QList<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QString context;
    Message message;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const QStringRef name = xml.name();
        if (name == QLatin1String("TS")) {
            *language = xml.attributes().value(QLatin1String("language")).toString();
        } else if (name == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (name == QLatin1String("message")) {
            message = Message();
            message.context = context;
        } else if (name == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (name == QLatin1String("translation")) {
            message.unfinished
                = xml.attributes().value(QLatin1String("type")) == QLatin1String("unfinished");
            message.translation = xml.readElementText();
            messages.append(message);
        }
    }
    if (xml.hasError())
        messages.clear();
    return messages;
}

QString TsPath(const QString& language)
{
    return QStringLiteral(ZPH_PLUGIN_TS_DIR "/ZPanoHead_%1.ts").arg(language);
}

QStringList Placeholders(const QString& text)
{
    QStringList found;
    QRegularExpressionMatchIterator it
        = QRegularExpression(QStringLiteral("%[1-9]")).globalMatch(text);
    while (it.hasNext())
        found.append(it.next().captured());
    found.sort();
    return found;
}

QStringList Links(const QString& text)
{
    QStringList found;
    QRegularExpressionMatchIterator it
        = QRegularExpression(QStringLiteral("href=\"([^\"]*)\"")).globalMatch(text);
    while (it.hasNext())
        found.append(it.next().captured(1));
    return found;
}

/// Every text a user sees on `page`: titles, labels, buttons, group boxes,
/// tabs and combo box items.
QStringList VisibleTexts(QWizardPage* page)
{
    QStringList texts { page->title(), page->subTitle(), page->windowTitle() };
    for (QLabel* label : page->findChildren<QLabel*>())
        texts.append(label->text());
    for (QAbstractButton* button : page->findChildren<QAbstractButton*>())
        texts.append(button->text());
    for (QGroupBox* box : page->findChildren<QGroupBox*>())
        texts.append(box->title());
    for (QTabWidget* tabs : page->findChildren<QTabWidget*>()) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(tabs->tabText(i));
    }
    for (QComboBox* combo : page->findChildren<QComboBox*>()) {
        for (int i = 0; i < combo->count(); ++i)
            texts.append(combo->itemText(i));
    }
    texts.removeAll(QString());
    return texts;
}

const QStringList kLanguages { QStringLiteral("zh_TW"), QStringLiteral("zh_CN"),
    QStringLiteral("pl"), QStringLiteral("ru"), QStringLiteral("es"), QStringLiteral("fr"),
    QStringLiteral("de"), QStringLiteral("en"), QStringLiteral("ja"), QStringLiteral("it") };

} // namespace

class tst_PluginTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void cataloguesCoverTheSources();
    void catalogueMatchesItsSource_data();
    void catalogueMatchesItsSource();
    void englishIsEmpty();
    void sampleOfTexts_data();
    void sampleOfTexts();
    void knownTranslations_data();
    void knownTranslations();
    void pagesShowNoUntranslatedText_data();
    void pagesShowNoUntranslatedText();

private:
    QPluginLoader m_loader;
};

void tst_PluginTranslations::initTestCase()
{
    m_loader.setFileName(PluginFile());
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
}

void tst_PluginTranslations::cleanupTestCase()
{
    Host()->RemoveTranslation();
    QVERIFY(m_loader.unload());
}

void tst_PluginTranslations::cataloguesCoverTheSources()
{
    // Every text that the library's and the pages' sources and forms give to
    // translation, as lupdate finds it in them, stands in every catalogue.
    QTemporaryDir scratch;
    QVERIFY(scratch.isValid());
    const QString probe = scratch.filePath(QStringLiteral("probe.ts"));
    QProcess lupdate;
    lupdate.setProcessChannelMode(QProcess::MergedChannels);
    lupdate.start(QStringLiteral(ZPH_LUPDATE),
        { QStringLiteral("-locations"), QStringLiteral("none"),
            QStringLiteral(ZPH_SOURCE_DIR "/plugin"), QStringLiteral(ZPH_SOURCE_DIR "/pages"),
            QStringLiteral("-ts"), probe });
    QVERIFY2(lupdate.waitForFinished(60000), qPrintable(lupdate.errorString()));
    QVERIFY2(lupdate.exitCode() == 0, lupdate.readAll().constData());
    QString probeLanguage;
    const QList<Message> found = ReadTs(probe, &probeLanguage);
    QVERIFY(found.size() > 100);

    for (const QString& language : kLanguages) {
        QString tsLanguage;
        QSet<QString> present;
        for (const Message& m : ReadTs(TsPath(language), &tsLanguage))
            present.insert(m.context + QLatin1Char('\x1f') + m.source);
        for (const Message& m : found) {
            QVERIFY2(present.contains(m.context + QLatin1Char('\x1f') + m.source),
                qPrintable(QStringLiteral("%1 lacks %2: %3").arg(language, m.context, m.source)));
        }
    }
}

void tst_PluginTranslations::catalogueMatchesItsSource_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : kLanguages) {
        if (language != QLatin1String("en"))
            QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_PluginTranslations::catalogueMatchesItsSource()
{
    QFETCH(QString, language);

    QString tsLanguage;
    const QList<Message> messages = ReadTs(TsPath(language), &tsLanguage);
    QVERIFY2(!messages.isEmpty(), qPrintable(TsPath(language)));
    QVERIFY2(tsLanguage.startsWith(language.left(2)), qPrintable(tsLanguage));

    QTranslator translator;
    const QString qm = QStringLiteral(":/Translation/ZPanoHead_%1.qm").arg(language);
    QVERIFY2(translator.load(qm), qPrintable(qm));
    QVERIFY(!translator.isEmpty());

    for (const Message& m : messages) {
        const QString where = m.context + QLatin1String(": ") + m.source;
        QVERIFY2(!m.unfinished, qPrintable(QLatin1String("unfinished: ") + where));
        QVERIFY2(!m.translation.isEmpty(), qPrintable(QLatin1String("empty: ") + where));
        QCOMPARE(
            translator.translate(m.context.toUtf8().constData(), m.source.toUtf8().constData()),
            m.translation);
        QCOMPARE(Placeholders(m.translation), Placeholders(m.source));
        QCOMPARE(Links(m.translation), Links(m.source));
        QCOMPARE(m.translation.contains(QLatin1String("#DCDCDC")),
            m.source.contains(QLatin1String("#DCDCDC")));
        // Texts that end in a blank are followed by a number or a widget.
        QCOMPARE(m.translation.endsWith(QLatin1Char(' ')), m.source.endsWith(QLatin1Char(' ')));
    }
}

void tst_PluginTranslations::englishIsEmpty()
{
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/Translation/ZPanoHead_en.qm")));
    QVERIFY(translator.isEmpty());
    QString tsLanguage;
    const QList<Message> messages = ReadTs(TsPath(QStringLiteral("en")), &tsLanguage);
    QVERIFY(!messages.isEmpty());
    for (const Message& m : messages)
        QVERIFY(m.translation.isEmpty());
}

void tst_PluginTranslations::sampleOfTexts_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("contextPrefix");
    QTest::addColumn<QString>("source");

    // Texts of the library and of every page: form texts, the pages' own
    // messages (under whichever page class says them), placeholders and
    // texts that are followed by a widget.
    const QList<QPair<const char*, const char*>> sample {
        { "Library", "Comment" },
        { "ZClaussImport", "Clauss Rodeon import plugin" },
        { "ZGigapanImport", "Gigapan import plugin" },
        { "ZMerlinImport", "Papywizard XML import plugin" },
        { "ZVRDrive2Import", "VRDrive2 XML import plugin" },
        { "UIWPMerlinClass", "Papywizard import" },
        { "UIWPMerlinClass", "Use hard links" },
        { "UIWPMerlinClass", "Inverse Y coordinates" },
        { "UIWPVRDrive2Class", "32-bits HDR radiance" },
        { "UIWPClaussClass", "Guided optimization" },
        { "UIWPGigapanClass", "Force 360° panorama" },
        { "UIWPGigapanClass", "Nb image per location ( bracketing )" },
        { "UIWP", "Select images" },
        { "UIWP", "Not the same as in XML fil" },
        { "UIWP", "Fisheye" },
        { "UIWP", "Focal length difference between EXIF and XML" },
        { "UIWP",
            "Papywizard XML has bracketing and the number of images isn't a multiple of "
            "this number of brackets." },
        { "UIWP", "Error parse file:%1" },
        { "UIWP", "images in " },
    };
    for (const QString& language : kLanguages) {
        if (language == QLatin1String("en"))
            continue;
        for (const auto& text : sample) {
            QTest::addRow("%s %s %s", qPrintable(language), text.first, text.second)
                << language << QString::fromLatin1(text.first) << QString::fromUtf8(text.second);
        }
    }
}

void tst_PluginTranslations::sampleOfTexts()
{
    QFETCH(QString, language);
    QFETCH(QString, contextPrefix);
    QFETCH(QString, source);

    // Where the sources stand: the English catalogue lists every message.
    QString tsLanguage;
    QStringList contexts;
    for (const Message& m : ReadTs(TsPath(QStringLiteral("en")), &tsLanguage)) {
        if (m.source == source && m.context.startsWith(contextPrefix))
            contexts.append(m.context);
    }
    QVERIFY2(!contexts.isEmpty(), "not in the catalogue");

    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/Translation/ZPanoHead_%1.qm").arg(language)));
    for (const QString& context : qAsConst(contexts)) {
        const QString translated
            = translator.translate(context.toLatin1().constData(), source.toUtf8().constData());
        QVERIFY2(!translated.isEmpty(), qPrintable(context));
        QVERIFY(translated != source);
        QCOMPARE(Placeholders(translated), Placeholders(source));
    }
}

void tst_PluginTranslations::knownTranslations_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("expected");

    QTest::newRow("de Comment") << "de"
                                << "Library"
                                << "Comment"
                                << "Kommentar";
    QTest::newRow("fr Comment") << "fr"
                                << "Library"
                                << "Comment"
                                << "Commentaire";
    QTest::newRow("es Reset") << "es"
                              << "UIWPMerlinClass"
                              << "Reset"
                              << "Restablecer";
    QTest::newRow("it Preview") << "it"
                                << "UIWPClaussClass"
                                << "Preview"
                                << "Anteprima";
    QTest::newRow("pl Zoom") << "pl"
                             << "UIWPGigapanClass"
                             << "Zoom"
                             << "Powiększenie";
    QTest::newRow("ru Error") << "ru"
                              << "UIWPClauss"
                              << "Error"
                              << "Ошибка";
    QTest::newRow("ja Preview") << "ja"
                                << "UIWPMerlinClass"
                                << "Preview"
                                << "プレビュー";
    QTest::newRow("zh_CN Preview") << "zh_CN"
                                   << "UIWPMerlinClass"
                                   << "Preview"
                                   << "预览";
    QTest::newRow("zh_TW Preview") << "zh_TW"
                                   << "UIWPMerlinClass"
                                   << "Preview"
                                   << "預覽";
}

void tst_PluginTranslations::knownTranslations()
{
    QFETCH(QString, language);
    QFETCH(QString, context);
    QFETCH(QString, source);
    QFETCH(QString, expected);

    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/Translation/ZPanoHead_%1.qm").arg(language)));
    QCOMPARE(translator.translate(context.toLatin1().constData(), source.toUtf8().constData()),
        expected);
}

void tst_PluginTranslations::pagesShowNoUntranslatedText_data()
{
    catalogueMatchesItsSource_data();
}

void tst_PluginTranslations::pagesShowNoUntranslatedText()
{
    QFETCH(QString, language);

    QString tsLanguage;
    const QList<Message> messages = ReadTs(TsPath(language), &tsLanguage);
    QVERIFY(!messages.isEmpty());

    // The host's locale selects the catalogue before the pages are made.
    Host()->Reset();
    Host()->m_locale = QLocale(tsLanguage);
    delete m_loader.instance();
    auto* catalogue = qobject_cast<ZIPluginLibrary*>(m_loader.instance());
    QVERIFY(catalogue);
    QCOMPARE(Host()->m_installedTranslation,
        QStringLiteral(":/Translation/ZPanoHead_%1.qm").arg(language));

    const QList<QPointer<QObject>> plugins = catalogue->Plugins(Apx(2));
    QCOMPARE(plugins.size(), 4);
    for (const QPointer<QObject>& plugin : plugins) {
        QWizardPage* page = qobject_cast<ZIPluginImport*>(plugin)->WizardPages().at(0);
        const QString pageClass = QString::fromLatin1(page->metaObject()->className());
        // Sources whose translation differs, in the page's form and in the
        // page classes (a page also shows what its base classes say).
        QSet<QString> untranslated;
        QSet<QString> translated;
        for (const Message& m : messages) {
            const bool formOfThisPage = m.context == pageClass + QLatin1String("Class");
            const bool pageClassContext = m.context.startsWith(QLatin1String("UIWP"))
                && !m.context.endsWith(QLatin1String("Class"));
            if ((formOfThisPage || pageClassContext) && m.translation != m.source) {
                untranslated.insert(m.source);
                translated.insert(m.translation);
            }
        }
        // The yaw (theta) range labels show "N/A" untranslated on purpose.
        untranslated.remove(QStringLiteral("N/A"));
        int shownTranslated = 0;
        for (const QString& text : VisibleTexts(page)) {
            QVERIFY2(!untranslated.contains(text),
                qPrintable(pageClass + QLatin1String(" shows untranslated: ") + text));
            if (translated.contains(text))
                ++shownTranslated;
        }
        // Most of what the page shows comes from the catalogue.
        QVERIFY2(shownTranslated >= 10,
            qPrintable(pageClass + QLatin1String(": ") + QString::number(shownTranslated)));
    }
    delete m_loader.instance();
    Host()->RemoveTranslation();
}

ZPH_PLUGIN_TEST_MAIN(tst_PluginTranslations)
#include "tst_PluginTranslations.moc"
