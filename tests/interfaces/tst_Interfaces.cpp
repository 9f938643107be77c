// The host contract seen from outside. The hosts of this suite are compiled on
// their own against their copies of the declarations (ForeignHost*.cpp); this
// file is the library's side, compiled against interfaces/. Calls that cross
// between them land in the operation of the same slot, as they do between a
// host and a library built apart: so they prove the operation order.
#include "ForeignHost.h"

#include "StructuredPanoramaProperties.h"
#include "ZIAbout.h"
#include "ZIApplication.h"
#include "ZIImageDef.h"
#include "ZIPluginImport.h"
#include "ZIPluginLibrary.h"
#include "ZUIInstances.h"

#include <QIcon>
#include <QPixmap>
#include <QtTest>

#include <cstring>
#include <memory>
#include <type_traits>

// Pure interfaces: a table pointer and nothing else; ZIApplication without a
// virtual destructor, and not deletable through its pointer.
static_assert(std::is_abstract_v<ZIApplication> && sizeof(ZIApplication) == sizeof(void*));
static_assert(!std::has_virtual_destructor_v<ZIApplication>);
static_assert(!std::is_destructible_v<ZIApplication>);
static_assert(std::is_abstract_v<ZIImageDef> && sizeof(ZIImageDef) == sizeof(void*));
static_assert(std::has_virtual_destructor_v<ZIImageDef>);
static_assert(std::is_abstract_v<ZIAbout> && sizeof(ZIAbout) == sizeof(void*));
static_assert(std::has_virtual_destructor_v<ZIAbout>);
static_assert(std::is_abstract_v<ZIPluginImport> && sizeof(ZIPluginImport) == sizeof(void*));
static_assert(std::has_virtual_destructor_v<ZIPluginImport>);
static_assert(std::is_abstract_v<ZIPluginLibrary> && sizeof(ZIPluginLibrary) == sizeof(void*));
static_assert(std::has_virtual_destructor_v<ZIPluginLibrary>);
static_assert(sizeof(ZIPluginLibrary::APX) == 4);

namespace {

/// The library's side: an import plug-in, its operations logged in calls.
class LoggingPlugin : public QObject, public ZIPluginImport, public ZIAbout
{
    Q_OBJECT
    Q_INTERFACES(ZIPluginImport ZIAbout)

public:
    LoggingPlugin(QStringList* calls, const QString& prefix) : m_calls(calls), m_prefix(prefix) { }
    ~LoggingPlugin() override { *m_calls << m_prefix + QStringLiteral("~"); }

    QList<QWizardPage*> WizardPages() override
    {
        log("WizardPages");
        return { nullptr, nullptr, nullptr };
    }
    QString Name() const override { return log("Name"); }
    QString Author() const override { return log("Author"); }
    QString Company() const override { return log("Company"); }
    QString Comment() const override { return log("Comment"); }
    QString Version() const override { return log("Version"); }
    QIcon Icon() const override
    {
        log("Icon");
        return QIcon();
    }
    QString UID() const override { return log("UID"); }

protected:
    QString log(const char* operation) const
    {
        const QString text = m_prefix + QLatin1String(operation);
        *m_calls << text;
        return text;
    }

    QStringList* m_calls;
    QString m_prefix;
};

/// The library's root object: a catalogue handing out one plug-in per call.
class LoggingLibrary : public QObject, public ZIPluginLibrary, public ZIAbout
{
    Q_OBJECT
    Q_INTERFACES(ZIPluginLibrary ZIAbout)

public:
    explicit LoggingLibrary(QStringList* calls) : m_calls(calls) { }
    ~LoggingLibrary() override { *m_calls << QStringLiteral("library ~"); }

    QList<QPointer<QObject>> Plugins(ZIPluginLibrary::APX apx) override
    {
        *m_calls << QStringLiteral("Plugins(%1)").arg(int(apx));
        m_plugins.emplace_back(new LoggingPlugin(m_calls, QStringLiteral("plug-in ")));
        return { QPointer<QObject>(m_plugins.back().get()) };
    }
    QString Name() const override { return log("Name"); }
    QString Author() const override { return log("Author"); }
    QString Company() const override { return log("Company"); }
    QString Comment() const override { return log("Comment"); }
    QString Version() const override { return log("Version"); }
    QIcon Icon() const override
    {
        log("Icon");
        return QIcon();
    }
    QString UID() const override { return log("UID"); }

private:
    QString log(const char* operation) const
    {
        const QString text = QLatin1String(operation);
        *m_calls << text;
        return text;
    }

    QStringList* m_calls;
    std::vector<std::unique_ptr<LoggingPlugin>> m_plugins;
};

/// What the library does to reach the host: the object's answer by bare name.
ZIApplication* applicationOf(QObject* host)
{
    return static_cast<ZIApplication*>(host->qt_metacast("ZIApplication"));
}

quint32 bitsOf(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

} // namespace

class tst_Interfaces : public QObject
{
    Q_OBJECT

private slots:
    void interfaceIdsAreTheBareNames_data();
    void interfaceIdsAreTheBareNames();
    void applicationOperationsLandInOrder();
    void imageDefOperationsLandInOrder();
    void hostReadsTheLibraryInOrder();
    void hostDeletesThroughEachInterface_data();
    void hostDeletesThroughEachInterface();
    void castsAnswerOnlyTheirNames();
    void swappedApplicationIsDetected();
    void swappedImageDefIsDetected();
    void swappedAboutIsDetected();
};

void tst_Interfaces::interfaceIdsAreTheBareNames_data()
{
    QTest::addColumn<QByteArray>("iid");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("ZIApplication")
        << QByteArray(qobject_interface_iid<ZIApplication*>()) << QByteArray("ZIApplication");
    QTest::newRow("ZIImageDef") << QByteArray(qobject_interface_iid<ZIImageDef*>())
                                << QByteArray("ZIImageDef");
    QTest::newRow("ZIAbout") << QByteArray(qobject_interface_iid<ZIAbout*>())
                             << QByteArray("ZIAbout");
    QTest::newRow("ZIPluginImport")
        << QByteArray(qobject_interface_iid<ZIPluginImport*>()) << QByteArray("ZIPluginImport");
    QTest::newRow("ZIPluginLibrary")
        << QByteArray(qobject_interface_iid<ZIPluginLibrary*>()) << QByteArray("ZIPluginLibrary");
}

void tst_Interfaces::interfaceIdsAreTheBareNames()
{
    QFETCH(QByteArray, iid);
    QFETCH(QByteArray, expected);
    QCOMPARE(iid, expected);
}

void tst_Interfaces::applicationOperationsLandInOrder()
{
    QStringList calls;
    const std::unique_ptr<QObject> host(ForeignHost::createApplication(&calls));
    ZIApplication* application = applicationOf(host.get());
    QVERIFY(application);

    QCOMPARE(application->DefaultFolder(), QStringLiteral("/host/default"));
    application->SetDefaultFolder(QStringLiteral("/photos/a.jpg"));
    QCOMPARE(application->GetSetting(QStringLiteral("UID"), QStringLiteral("Class"), QVariant(3)),
        QVariant(QByteArray("stored state")));
    application->SetSetting(QStringLiteral("UID"), QStringLiteral("Class"), QVariant(4));
    QCOMPARE(application->Locale(), QLocale(QLocale::French, QLocale::Canada));
    application->LoadTranslation(QStringLiteral("ZPanoHead_fr_CA.qm"));
    std::unique_ptr<ZIImageDef> image(application->CreateImageDef(QStringLiteral("/photos/a.jpg")));
    QVERIFY(image);
    QVERIFY(!application->CreateImageDef(QString()));
    const StructuredPanoramaProperties properties;
    application->ImportStructuredPanorama(properties);
    QCOMPARE(static_cast<const void*>(application->UIInstances()), ForeignHost::uiInstances());

    const QString address = QString::number(quintptr(&properties), 16);
    QCOMPARE(calls,
        (QStringList { QStringLiteral("DefaultFolder()"),
            QStringLiteral("SetDefaultFolder(/photos/a.jpg)"),
            QStringLiteral("GetSetting(UID,Class,3)"), QStringLiteral("SetSetting(UID,Class,4)"),
            QStringLiteral("Locale()"), QStringLiteral("LoadTranslation(ZPanoHead_fr_CA.qm)"),
            QStringLiteral("CreateImageDef(/photos/a.jpg)"), QStringLiteral("CreateImageDef()"),
            QStringLiteral("ImportStructuredPanorama(%1)").arg(address),
            QStringLiteral("UIInstances()") }));
}

void tst_Interfaces::imageDefOperationsLandInOrder()
{
    QStringList calls;
    const std::unique_ptr<QObject> host(ForeignHost::createApplication(&calls));
    ZIImageDef* image = applicationOf(host.get())->CreateImageDef(QStringLiteral("/p/b.jpg"));
    QVERIFY(image);
    calls.clear();

    QVERIFY(image->Thumbnail().isNull());
    QCOMPARE(bitsOf(image->FocalLength()), bitsOf(24.5f));
    QCOMPARE(image->LensType(), 1);
    QCOMPARE(image->OrderKey(), (qint64(1) << 40) + 7);
    QCOMPARE(bitsOf(image->Exposure()), bitsOf(-1.5f));
    delete image; // the first slot: the host's own destructor runs
    QCOMPARE(calls,
        (QStringList { QStringLiteral("Thumbnail"), QStringLiteral("FocalLength"),
            QStringLiteral("LensType"), QStringLiteral("OrderKey"), QStringLiteral("Exposure"),
            QStringLiteral("~ImageDef") }));
}

void tst_Interfaces::hostReadsTheLibraryInOrder()
{
    QStringList calls;
    LoggingLibrary library(&calls);
    const QStringList seen = ForeignHost::readLibrary(&library);
    const QStringList about = { QStringLiteral("Name"), QStringLiteral("Author"),
        QStringLiteral("Company"), QStringLiteral("Comment"), QStringLiteral("Version"),
        QStringLiteral("Icon"), QStringLiteral("UID") };
    QStringList pluginAbout;
    for (const QString& operation : about)
        pluginAbout << QStringLiteral("plug-in ") + operation;

    QStringList expectedSeen = about;
    expectedSeen[5] = QStringLiteral("null icon");
    expectedSeen << QStringLiteral("1 plug-ins") << pluginAbout;
    expectedSeen[13] = QStringLiteral("null icon");
    expectedSeen << QStringLiteral("3 pages");
    QCOMPARE(seen, expectedSeen);

    QStringList expectedCalls = about;
    expectedCalls << QStringLiteral("Plugins(2)") << pluginAbout
                  << QStringLiteral("plug-in WizardPages");
    QCOMPARE(calls, expectedCalls);
}

void tst_Interfaces::hostDeletesThroughEachInterface_data()
{
    QTest::addColumn<QByteArray>("iid");
    QTest::addColumn<bool>("library");
    QTest::newRow("plug-in through ZIAbout") << QByteArray("ZIAbout") << false;
    QTest::newRow("plug-in through ZIPluginImport") << QByteArray("ZIPluginImport") << false;
    QTest::newRow("library through ZIAbout") << QByteArray("ZIAbout") << true;
    QTest::newRow("library through ZIPluginLibrary") << QByteArray("ZIPluginLibrary") << true;
}

void tst_Interfaces::hostDeletesThroughEachInterface()
{
    QFETCH(QByteArray, iid);
    QFETCH(bool, library);

    QStringList calls;
    QObject* object = library ? static_cast<QObject*>(new LoggingLibrary(&calls))
                              : new LoggingPlugin(&calls, QStringLiteral("plug-in "));
    QPointer<QObject> guard(object);
    QVERIFY(ForeignHost::deleteThrough(object, iid.constData()));
    QVERIFY(guard.isNull());
    QCOMPARE(
        calls, QStringList { library ? QStringLiteral("library ~") : QStringLiteral("plug-in ~") });
}

void tst_Interfaces::castsAnswerOnlyTheirNames()
{
    QStringList calls;
    LoggingLibrary library(&calls);
    LoggingPlugin plugin(&calls, QString());
    QCOMPARE(library.qt_metacast("ZIPluginLibrary"),
        static_cast<void*>(static_cast<ZIPluginLibrary*>(&library)));
    QCOMPARE(library.qt_metacast("ZIAbout"), static_cast<void*>(static_cast<ZIAbout*>(&library)));
    QVERIFY(!library.qt_metacast("ZIPluginImport"));
    QCOMPARE(qobject_cast<ZIPluginLibrary*>(&library), static_cast<ZIPluginLibrary*>(&library));
    QCOMPARE(plugin.qt_metacast("ZIPluginImport"),
        static_cast<void*>(static_cast<ZIPluginImport*>(&plugin)));
    QCOMPARE(plugin.qt_metacast("ZIAbout"), static_cast<void*>(static_cast<ZIAbout*>(&plugin)));
    QVERIFY(!plugin.qt_metacast("ZIPluginLibrary"));
    QCOMPARE(qobject_cast<ZIAbout*>(&plugin), static_cast<ZIAbout*>(&plugin));

    const std::unique_ptr<QObject> host(ForeignHost::createApplication(&calls));
    QVERIFY(host->qt_metacast("ZIApplication"));
    QVERIFY(!host->qt_metacast("ZIAbout"));
    QVERIFY(!host->qt_metacast("ZIApplication "));
    QVERIFY(!host->qt_metacast("com.zelmo.ZIApplication"));
    // The test's own application object is no host.
    QVERIFY(!qApp->qt_metacast("ZIApplication"));
    QVERIFY(calls.isEmpty());
}

void tst_Interfaces::swappedApplicationIsDetected()
{
    // A host whose table has two operations of one signature swapped: calls
    // through our declarations land in the other operation, and show it.
    QStringList calls;
    const std::unique_ptr<QObject> host(ForeignHost::createSwappedApplication(&calls));
    ZIApplication* application = applicationOf(host.get());
    QVERIFY(application);
    application->SetDefaultFolder(QStringLiteral("/photos"));
    application->LoadTranslation(QStringLiteral("ZPanoHead_de.qm"));
    application->DefaultFolder();
    QCOMPARE(calls,
        (QStringList { QStringLiteral("LoadTranslation(/photos)"),
            QStringLiteral("SetDefaultFolder(ZPanoHead_de.qm)"),
            QStringLiteral("DefaultFolder()") }));
}

void tst_Interfaces::swappedImageDefIsDetected()
{
    QStringList calls;
    const std::unique_ptr<QObject> host(ForeignHost::createSwappedApplication(&calls));
    std::unique_ptr<ZIImageDef> image(
        applicationOf(host.get())->CreateImageDef(QStringLiteral("/p/c.jpg")));
    calls.clear();
    QCOMPARE(bitsOf(image->FocalLength()), bitsOf(-1.5f));
    QCOMPARE(bitsOf(image->Exposure()), bitsOf(24.5f));
    QCOMPARE(image->LensType(), 1);
    image.reset();
    QCOMPARE(calls,
        (QStringList { QStringLiteral("Exposure"), QStringLiteral("FocalLength"),
            QStringLiteral("LensType"), QStringLiteral("~ImageDef") }));
}

void tst_Interfaces::swappedAboutIsDetected()
{
    QStringList calls;
    LoggingLibrary library(&calls);
    QCOMPARE(ForeignHost::readLibrarySwapped(&library),
        (QStringList {
            QStringLiteral("Author"), QStringLiteral("Name"), QStringLiteral("Company") }));
    QCOMPARE(calls,
        (QStringList {
            QStringLiteral("Author"), QStringLiteral("Name"), QStringLiteral("Company") }));
}

QTEST_MAIN(tst_Interfaces)
#include "tst_Interfaces.moc"
