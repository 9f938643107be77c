// ZIApplication: the host's application object, as the library sees it.
// Implemented by the host; the library finds it with
// qApp->qt_metacast("ZIApplication") at the point of use and skips its host
// work when the answer is null.
//
// The nine operations stand in this order in the table of virtual operations,
// and nothing else does: the order is a binary contract with hosts compiled
// separately. There is deliberately no virtual destructor; the protected
// non-virtual one keeps the library from deleting the host through it.
#pragma once

#include <QLocale>
#include <QString>
#include <QVariant>
#include <QtPlugin>

class ZIImageDef;
class StructuredPanoramaProperties;
struct ZUIInstances;

class ZIApplication
{
public:
    /// The folder in which a file dialog opens when a page has none of its own.
    virtual QString DefaultFolder() = 0;
    /// Told the first path of the files the user has just chosen.
    virtual void SetDefaultFolder(const QString& path) = 0;
    virtual QVariant GetSetting(const QString& section, const QString& key,
                                const QVariant& defaultValue) = 0;
    virtual void SetSetting(const QString& section, const QString& key,
                            const QVariant& value) = 0;
    /// The host's user-interface locale.
    virtual QLocale Locale() = 0;
    /// Asks the host to install the catalogue with this bare file name,
    /// such as "ZPanoHead_fr_FR.qm".
    virtual void LoadTranslation(const QString& fileName) = 0;
    /// Called on the reading thread, never on the GUI thread: must be
    /// thread-safe. Returns a new definition owned by the host, or null when
    /// the file cannot be read. May throw; the caller catches.
    virtual ZIImageDef* CreateImageDef(const QString& path) = 0;
    /// Receives the finished panorama description; the host copies what it keeps.
    virtual void ImportStructuredPanorama(const StructuredPanoramaProperties& properties) = 0;
    virtual ZUIInstances* UIInstances() = 0;

protected:
    ~ZIApplication() = default;
};

Q_DECLARE_INTERFACE(ZIApplication, "ZIApplication")
