// A host compiled on its own: its copy of the contract's declarations, in the
// contract's order, and a host application object and image definition that
// record each operation called on them. Never includes interfaces/.
#include "ForeignHost.h"

#include <QIcon>
#include <QList>
#include <QLocale>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QtPlugin>

class QWizardPage;
class StructuredPanoramaProperties;
struct ZUIInstances;

// ---- the host's copy of the contract ----------------------------------------

class ZIImageDef
{
public:
    virtual ~ZIImageDef() = default;
    virtual const QPixmap& Thumbnail() const = 0;
    virtual float FocalLength() const = 0;
    virtual int LensType() const = 0;
    virtual qint64 OrderKey() const = 0;
    virtual float Exposure() const = 0;
};
Q_DECLARE_INTERFACE(ZIImageDef, "ZIImageDef")

class ZIApplication
{
public:
    virtual QString DefaultFolder() = 0;
    virtual void SetDefaultFolder(const QString& path) = 0;
    virtual QVariant GetSetting(
        const QString& section, const QString& key, const QVariant& defaultValue)
        = 0;
    virtual void SetSetting(const QString& section, const QString& key, const QVariant& value) = 0;
    virtual QLocale Locale() = 0;
    virtual void LoadTranslation(const QString& fileName) = 0;
    virtual ZIImageDef* CreateImageDef(const QString& path) = 0;
    virtual void ImportStructuredPanorama(const StructuredPanoramaProperties& properties) = 0;
    virtual ZUIInstances* UIInstances() = 0;

protected:
    ~ZIApplication() = default;
};
Q_DECLARE_INTERFACE(ZIApplication, "ZIApplication")

class ZIAbout
{
public:
    virtual ~ZIAbout() = default;
    virtual QString Name() const = 0;
    virtual QString Author() const = 0;
    virtual QString Company() const = 0;
    virtual QString Comment() const = 0;
    virtual QString Version() const = 0;
    virtual QIcon Icon() const = 0;
    virtual QString UID() const = 0;
};
Q_DECLARE_INTERFACE(ZIAbout, "ZIAbout")

class ZIPluginImport
{
public:
    virtual ~ZIPluginImport() = default;
    virtual QList<QWizardPage*> WizardPages() = 0;
};
Q_DECLARE_INTERFACE(ZIPluginImport, "ZIPluginImport")

class ZIPluginLibrary
{
public:
    enum APX : qint32 {
        ApxNothing = 0,
        ApxFlag = 2,
    };
    virtual ~ZIPluginLibrary() = default;
    virtual QList<QPointer<QObject>> Plugins(ZIPluginLibrary::APX apx) = 0;
};
Q_DECLARE_INTERFACE(ZIPluginLibrary, "ZIPluginLibrary")

// ---- the host's objects ----------------------------------------------------

namespace {

char s_uiInstances;

class RecordingImageDef : public ZIImageDef
{
public:
    explicit RecordingImageDef(QStringList* calls) : m_calls(calls) { }
    ~RecordingImageDef() override { *m_calls << QStringLiteral("~ImageDef"); }
    const QPixmap& Thumbnail() const override
    {
        *m_calls << QStringLiteral("Thumbnail");
        return m_thumbnail;
    }
    float FocalLength() const override
    {
        *m_calls << QStringLiteral("FocalLength");
        return 24.5f;
    }
    int LensType() const override
    {
        *m_calls << QStringLiteral("LensType");
        return 1;
    }
    qint64 OrderKey() const override
    {
        *m_calls << QStringLiteral("OrderKey");
        return (qint64(1) << 40) + 7;
    }
    float Exposure() const override
    {
        *m_calls << QStringLiteral("Exposure");
        return -1.5f;
    }

private:
    QStringList* m_calls;
    QPixmap m_thumbnail;
};

class RecordingApplication : public QObject, public ZIApplication
{
    Q_OBJECT
    Q_INTERFACES(ZIApplication)

public:
    explicit RecordingApplication(QStringList* calls) : m_calls(calls) { }
    QString DefaultFolder() override
    {
        *m_calls << QStringLiteral("DefaultFolder()");
        return QStringLiteral("/host/default");
    }
    void SetDefaultFolder(const QString& path) override
    {
        *m_calls << QStringLiteral("SetDefaultFolder(%1)").arg(path);
    }
    QVariant GetSetting(
        const QString& section, const QString& key, const QVariant& defaultValue) override
    {
        *m_calls
            << QStringLiteral("GetSetting(%1,%2,%3)").arg(section, key, defaultValue.toString());
        return QVariant(QByteArray("stored state"));
    }
    void SetSetting(const QString& section, const QString& key, const QVariant& value) override
    {
        *m_calls << QStringLiteral("SetSetting(%1,%2,%3)").arg(section, key, value.toString());
    }
    QLocale Locale() override
    {
        *m_calls << QStringLiteral("Locale()");
        return QLocale(QLocale::French, QLocale::Canada);
    }
    void LoadTranslation(const QString& fileName) override
    {
        *m_calls << QStringLiteral("LoadTranslation(%1)").arg(fileName);
    }
    ZIImageDef* CreateImageDef(const QString& path) override
    {
        *m_calls << QStringLiteral("CreateImageDef(%1)").arg(path);
        return path.isEmpty() ? nullptr : new RecordingImageDef(m_calls);
    }
    void ImportStructuredPanorama(const StructuredPanoramaProperties& properties) override
    {
        *m_calls
            << QStringLiteral("ImportStructuredPanorama(%1)").arg(quintptr(&properties), 0, 16);
    }
    ZUIInstances* UIInstances() override
    {
        *m_calls << QStringLiteral("UIInstances()");
        return reinterpret_cast<ZUIInstances*>(&s_uiInstances);
    }

private:
    QStringList* m_calls;
};

QStringList readAbout(const ZIAbout* about)
{
    return { about->Name(), about->Author(), about->Company(), about->Comment(), about->Version(),
        about->Icon().isNull() ? QStringLiteral("null icon") : QStringLiteral("icon"),
        about->UID() };
}

} // namespace

namespace ForeignHost {

QObject* createApplication(QStringList* calls)
{
    return new RecordingApplication(calls);
}

const void* uiInstances()
{
    return &s_uiInstances;
}

QStringList readLibrary(QObject* library)
{
    ZIPluginLibrary* catalogue = qobject_cast<ZIPluginLibrary*>(library);
    const ZIAbout* about = qobject_cast<ZIAbout*>(library);
    if (!catalogue || !about)
        return { QStringLiteral("not a plug-in library") };
    QStringList seen = readAbout(about);
    const QList<QPointer<QObject>> plugins = catalogue->Plugins(ZIPluginLibrary::ApxFlag);
    seen << QStringLiteral("%1 plug-ins").arg(plugins.size());
    for (const QPointer<QObject>& plugin : plugins) {
        ZIPluginImport* import = qobject_cast<ZIPluginImport*>(plugin.data());
        const ZIAbout* pluginAbout = qobject_cast<ZIAbout*>(plugin.data());
        if (!import || !pluginAbout)
            return seen << QStringLiteral("not an import plug-in");
        seen << readAbout(pluginAbout);
        seen << QStringLiteral("%1 pages").arg(import->WizardPages().size());
    }
    return seen;
}

bool deleteThrough(QObject* object, const char* iid)
{
    if (qstrcmp(iid, "ZIAbout") == 0) {
        ZIAbout* about = qobject_cast<ZIAbout*>(object);
        delete about;
        return about != nullptr;
    }
    if (qstrcmp(iid, "ZIPluginImport") == 0) {
        ZIPluginImport* import = qobject_cast<ZIPluginImport*>(object);
        delete import;
        return import != nullptr;
    }
    if (qstrcmp(iid, "ZIPluginLibrary") == 0) {
        ZIPluginLibrary* catalogue = qobject_cast<ZIPluginLibrary*>(object);
        delete catalogue;
        return catalogue != nullptr;
    }
    return false;
}

} // namespace ForeignHost

#include "ForeignHost.moc"
