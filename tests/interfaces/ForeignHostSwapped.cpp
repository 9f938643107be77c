// A host compiled against a wrong copy of the contract: SetDefaultFolder and
// LoadTranslation, FocalLength and Exposure, Name and Author stand in each
// other's slot. Each swapped pair has one signature, so a call through the
// right declarations is still a well-formed call, only into the wrong
// operation: what the suite must be able to see. Never includes interfaces/.
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

class ZIImageDef
{
public:
    virtual ~ZIImageDef() = default;
    virtual const QPixmap& Thumbnail() const = 0;
    virtual float Exposure() const = 0; // swapped
    virtual int LensType() const = 0;
    virtual qint64 OrderKey() const = 0;
    virtual float FocalLength() const = 0; // swapped
};
Q_DECLARE_INTERFACE(ZIImageDef, "ZIImageDef")

class ZIApplication
{
public:
    virtual QString DefaultFolder() = 0;
    virtual void LoadTranslation(const QString& fileName) = 0; // swapped
    virtual QVariant GetSetting(
        const QString& section, const QString& key, const QVariant& defaultValue)
        = 0;
    virtual void SetSetting(const QString& section, const QString& key, const QVariant& value) = 0;
    virtual QLocale Locale() = 0;
    virtual void SetDefaultFolder(const QString& path) = 0; // swapped
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
    virtual QString Author() const = 0; // swapped
    virtual QString Name() const = 0; // swapped
    virtual QString Company() const = 0;
    virtual QString Comment() const = 0;
    virtual QString Version() const = 0;
    virtual QIcon Icon() const = 0;
    virtual QString UID() const = 0;
};
Q_DECLARE_INTERFACE(ZIAbout, "ZIAbout")

namespace {

class SwappedImageDef : public ZIImageDef
{
public:
    explicit SwappedImageDef(QStringList* calls) : m_calls(calls) { }
    ~SwappedImageDef() override { *m_calls << QStringLiteral("~ImageDef"); }
    const QPixmap& Thumbnail() const override
    {
        *m_calls << QStringLiteral("Thumbnail");
        return m_thumbnail;
    }
    float Exposure() const override
    {
        *m_calls << QStringLiteral("Exposure");
        return -1.5f;
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
    float FocalLength() const override
    {
        *m_calls << QStringLiteral("FocalLength");
        return 24.5f;
    }

private:
    QStringList* m_calls;
    QPixmap m_thumbnail;
};

class SwappedApplication : public QObject, public ZIApplication
{
    Q_OBJECT
    Q_INTERFACES(ZIApplication)

public:
    explicit SwappedApplication(QStringList* calls) : m_calls(calls) { }
    QString DefaultFolder() override
    {
        *m_calls << QStringLiteral("DefaultFolder()");
        return QStringLiteral("/host/default");
    }
    void LoadTranslation(const QString& fileName) override
    {
        *m_calls << QStringLiteral("LoadTranslation(%1)").arg(fileName);
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
    void SetDefaultFolder(const QString& path) override
    {
        *m_calls << QStringLiteral("SetDefaultFolder(%1)").arg(path);
    }
    ZIImageDef* CreateImageDef(const QString& path) override
    {
        *m_calls << QStringLiteral("CreateImageDef(%1)").arg(path);
        return new SwappedImageDef(m_calls);
    }
    void ImportStructuredPanorama(const StructuredPanoramaProperties& properties) override
    {
        *m_calls
            << QStringLiteral("ImportStructuredPanorama(%1)").arg(quintptr(&properties), 0, 16);
    }
    ZUIInstances* UIInstances() override
    {
        *m_calls << QStringLiteral("UIInstances()");
        return nullptr;
    }

private:
    QStringList* m_calls;
};

} // namespace

namespace ForeignHost {

QObject* createSwappedApplication(QStringList* calls)
{
    return new SwappedApplication(calls);
}

QStringList readLibrarySwapped(QObject* library)
{
    const ZIAbout* about = qobject_cast<ZIAbout*>(library);
    if (!about)
        return { QStringLiteral("not a plug-in library") };
    return { about->Name(), about->Author(), about->Company() };
}

} // namespace ForeignHost

#include "ForeignHostSwapped.moc"
