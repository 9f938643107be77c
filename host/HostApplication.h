// HostApplication: the application object of the panohead host. The plug-in
// library finds it with qApp->qt_metacast("ZIApplication") and asks it for
// settings, the locale, translations, image definitions and the UI library's
// shared record; the pages hand it the finished panorama description.
#pragma once

#include "StructuredPanoramaProperties.h"
#include "ZIApplication.h"
#include "ZIPluginLibrary.h"
#include "ZUIInstances.h"

#include <QApplication>
#include <QHash>
#include <QLocale>
#include <QMutex>
#include <QScopedPointer>
#include <QSettings>
#include <QStringList>

#include <memory>
#include <mutex>
#include <vector>

class ImageDefinition;
class QTranslator;

class HostApplication : public QApplication, public ZIApplication
{
    Q_OBJECT
    Q_INTERFACES(ZIApplication)

public:
    /// Settings keys of the host itself, in the section "Host".
    static const char* const SettingsSection;
    static const char* const DefaultFolderKey;
    static const char* const NativeFileDialogKey;
    static const char* const ApplicationKindKey;
    static const char* const ToolsFolderKey;
    static const char* const OutputFolderKey;
    static const char* const LanguageKey;
    static const char* const WindowSizeKey;

    /// `settingsFile` empty: the user's settings (organisation "Zelmo",
    /// application "panohead"); otherwise an INI file at that path, which
    /// the tests and the screenshot script use to start from a clean state.
    HostApplication(int& argc, char** argv, const QString& settingsFile = QString());
    ~HostApplication() override;

    // ZIApplication
    /// The folder of the last file the user chose, or the pictures folder.
    QString DefaultFolder() override;
    /// Remembers the folder of `path` (the path itself when it is a folder).
    void SetDefaultFolder(const QString& path) override;
    /// The value stored under `section` (a settings group) and `key`.
    QVariant GetSetting(
        const QString& section, const QString& key, const QVariant& defaultValue) override;
    void SetSetting(const QString& section, const QString& key, const QVariant& value) override;
    /// The system's locale unless SetLocale chose another.
    QLocale Locale() override;
    /// Installs the catalogue `fileName` from the resource folder ":/Translation/",
    /// falling back from language and country to the language alone
    /// ("ZPanoHead_fr_FR.qm" → "ZPanoHead_fr.qm"), together with Qt's own
    /// translations for the same locale. A catalogue that is not found is
    /// logged and changes nothing.
    void LoadTranslation(const QString& fileName) override;
    /// Thread-safe: ImageDefinition::Read with a thumbnail. The host owns the
    /// definition (the library never deletes one): it lives until
    /// ReleaseImageDefinitions() or the end of the application object.
    ZIImageDef* CreateImageDef(const QString& path) override;
    /// Keeps a copy and emits PanoramaImported().
    void ImportStructuredPanorama(const StructuredPanoramaProperties& properties) override;
    /// The UI library's shared record; its native-dialog flag is the setting
    /// NativeFileDialogKey.
    ZUIInstances* UIInstances() override;

    /// Keeps the settings in the INI file `path` from now on (the --settings
    /// option); empty: the user's settings.
    void SetSettingsFile(const QString& path);
    QString SettingsFile() const { return m_settings->fileName(); }

    /// Overrides the locale (the --locale option). Call before loading plug-ins.
    void SetLocale(const QLocale& locale);
    /// Whether file dialogs are the system's; stored in the settings.
    bool UseNativeFileDialogs() const;
    void SetUseNativeFileDialogs(bool use);
    /// The kind of application handed to the plug-in libraries; a setting,
    /// by default the full application (all four import plug-ins).
    ZIPluginLibrary::APX ApplicationKind() const;
    void SetApplicationKind(ZIPluginLibrary::APX apx);

    /// The folder of Hugin's programs; empty: they are looked up in PATH.
    QString ToolsFolder() const;
    void SetToolsFolder(const QString& folder);
    /// The folder the last panorama or project was written to; the default
    /// folder until one was.
    QString OutputFolder();
    void SetOutputFolder(const QString& folder);
    /// The language chosen in the window ("fr_FR"); empty: the system's.
    /// Read once, when the application object starts (the plug-in library
    /// asks for its language when it is loaded): a change applies from the
    /// next start. The --locale option overrides it.
    QString Language() const;
    void SetLanguage(const QString& name);
    /// The last file a page handed to SetDefaultFolder (the head's record
    /// or a photograph); empty before.
    QString LastChosenFile() const { return m_lastChosenFile; }
    /// Installs the host's own catalogue ("panohead_fr.qm" under
    /// ":/HostTranslation/") for Locale(); false when there is none.
    bool LoadHostTranslation();

    /// Removes and deletes every translator LoadTranslation installed.
    void RemoveTranslations();
    /// The resource paths of the catalogues installed so far, in order.
    QStringList LoadedTranslations() const { return m_loadedTranslations; }
    /// The last description received, and whether one was received.
    const StructuredPanoramaProperties& ImportedPanorama() const { return m_imported; }
    bool HasImportedPanorama() const { return m_hasImported; }
    void ClearImportedPanorama();

    /// Deletes every image definition made so far. Call only when no page
    /// can use them any more (after the plug-in library is released).
    void ReleaseImageDefinitions();
    /// The number of image definitions alive.
    int ImageDefinitionCount() const;
    /// The definitions made so far, oldest first (still owned by the host).
    QList<const ImageDefinition*> ImageDefinitions() const;

    /// The settings store, for the host's own widgets.
    QSettings& Settings() { return *m_settings; }

    /// The running host, or null.
    static HostApplication* instance();

signals:
    /// A page has handed over a panorama description (ImportedPanorama()).
    void PanoramaImported();

private:
    QScopedPointer<QSettings> m_settings;
    QLocale m_locale;
    ZUISettings m_uiSettings;
    ZUIInstances m_uiInstances;
    QHash<QString, QTranslator*> m_translators;
    QStringList m_loadedTranslations;
    QString m_qtTranslationsLocale;
    QString m_lastChosenFile;
    QTranslator* m_hostTranslator = nullptr;
    /// A std::mutex: ThreadSanitizer sees its locking, while QMutex's contended
    /// path runs inside Qt, which is not built for the sanitizer.
    mutable std::mutex m_imageDefsMutex;
    std::vector<std::unique_ptr<ImageDefinition>> m_imageDefs;
    StructuredPanoramaProperties m_imported;
    bool m_hasImported = false;
};
