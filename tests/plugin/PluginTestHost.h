// PluginTestHost: the application object of the plug-in tests, a host as the
// library sees it. A RecordingHost that also stores settings in memory, loads
// the library's translation catalogues from its resources as a host does
// (falling back from language and country to the language), makes image
// definitions from a table the test fills, and keeps the order of settings,
// hand-overs and what the tests add in one list of events.
#pragma once

#include "RecordingHost.h"
#include "TestImageDef.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QLocale>
#include <QMap>
#include <QMutex>
#include <QPair>
#include <QStringList>
#include <QTranslator>
#include <QVariant>

#include <memory>

class PluginTestHost : public RecordingHost
{
    Q_OBJECT

public:
    PluginTestHost(int& argc, char** argv);
    ~PluginTestHost() override;

    /// Recorded; the path's folder becomes the default folder.
    void SetDefaultFolder(const QString& path) override;
    QVariant GetSetting(
        const QString& section, const QString& key, const QVariant& defaultValue) override;
    void SetSetting(const QString& section, const QString& key, const QVariant& value) override;
    QLocale Locale() override;
    /// Installs ":/Translation/<fileName>", or the catalogue of the language
    /// alone when there is none for language and country. The catalogue's
    /// bytes are copied, so it survives the library's unloading.
    void LoadTranslation(const QString& fileName) override;
    /// Any thread. A new definition with the values registered for the path
    /// (SetImage) or zeros; null for a path registered as unreadable.
    ZIImageDef* CreateImageDef(const QString& path) override;
    /// Recorded, and "import" in the events.
    void ImportStructuredPanorama(const StructuredPanoramaProperties& properties) override;

    struct SettingCall
    {
        QString section;
        QString key;
        QVariant value;
    };

    /// Forgets the recorded calls and the stored settings, removes the
    /// translation, goes back to the locale en_US and to Qt's file dialogs.
    void Reset();
    /// Removes the installed catalogue, if any.
    void RemoveTranslation();
    void SetImage(const QString& path, float focalLength, int lensType, qint64 orderKey);
    void SetUnreadable(const QString& path);

    /// The stored settings, by section and key.
    QMap<QPair<QString, QString>, QVariant> m_settings;
    /// Every GetSetting call; `value` is the default that was passed.
    QList<SettingCall> m_gets;
    QList<SettingCall> m_sets;
    /// In order: "get:<key>", "set:<key>", "import", and what the tests add.
    QStringList m_events;
    QLocale m_locale;
    QStringList m_translationRequests;
    /// The resource path of the installed catalogue; empty when none.
    QString m_installedTranslation;

private:
    struct ImageValues
    {
        float focalLength = 0.0f;
        int lensType = 0;
        qint64 orderKey = 0;
        bool readable = true;
    };

    QMutex m_imagesMutex;
    QHash<QString, ImageValues> m_imageValues;
    QList<TestImageDef*> m_imageDefs;
    QByteArray m_translationData;
    std::unique_ptr<QTranslator> m_translator;
};
