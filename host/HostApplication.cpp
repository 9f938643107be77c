#include "HostApplication.h"

#include "ImageDefinition.h"

#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QTranslator>

Q_LOGGING_CATEGORY(lcHost, "zph.host", QtInfoMsg)

const char* const HostApplication::SettingsSection = "Host";
const char* const HostApplication::DefaultFolderKey = "DefaultFolder";
const char* const HostApplication::NativeFileDialogKey = "NativeFileDialogs";
const char* const HostApplication::ApplicationKindKey = "ApplicationKind";
const char* const HostApplication::ToolsFolderKey = "ToolsFolder";
const char* const HostApplication::OutputFolderKey = "OutputFolder";
const char* const HostApplication::LanguageKey = "Language";
const char* const HostApplication::WindowSizeKey = "WindowSize";

namespace {

QString hostKey(const char* key)
{
    return QLatin1String(HostApplication::SettingsSection) + QLatin1Char('/') + QLatin1String(key);
}

/// "ZPanoHead_fr_FR.qm", then "ZPanoHead_fr.qm": the name itself, then the
/// name with its last "_part" cut off as long as a language part remains.
QStringList catalogueCandidates(const QString& fileName)
{
    QStringList names;
    if (fileName.isEmpty() || fileName.contains(QLatin1Char('/')))
        return names;
    names << fileName;
    QString stem = fileName;
    if (!stem.endsWith(QLatin1String(".qm")))
        return names;
    stem.chop(3);
    const int languageStart = stem.indexOf(QLatin1Char('_'));
    while (languageStart >= 0) {
        const int last = stem.lastIndexOf(QLatin1Char('_'));
        if (last <= languageStart)
            break;
        stem.truncate(last);
        names << stem + QLatin1String(".qm");
    }
    return names;
}

} // namespace

HostApplication::HostApplication(int& argc, char** argv, const QString& settingsFile)
    : QApplication(argc, argv)
{
    setOrganizationName(QStringLiteral("Zelmo"));
    setApplicationName(QStringLiteral("panohead"));
    setApplicationVersion(QStringLiteral(PROJECT_VERSION_TEXT));
    m_uiInstances.settings = &m_uiSettings;
    SetSettingsFile(settingsFile);
}

void HostApplication::SetSettingsFile(const QString& path)
{
    if (m_settings)
        m_settings->sync();
    if (path.isEmpty())
        m_settings.reset(new QSettings);
    else
        m_settings.reset(new QSettings(path, QSettings::IniFormat));
    m_uiSettings.useSystemFileDialog
        = m_settings->value(hostKey(NativeFileDialogKey), true).toBool();
    const QString language = Language();
    m_locale = language.isEmpty() ? QLocale() : QLocale(language);
}

HostApplication::~HostApplication()
{
    m_settings->sync();
    ReleaseImageDefinitions();
}

HostApplication* HostApplication::instance()
{
    return qobject_cast<HostApplication*>(QCoreApplication::instance());
}

QString HostApplication::DefaultFolder()
{
    const QString stored = m_settings->value(hostKey(DefaultFolderKey)).toString();
    if (!stored.isEmpty() && QFileInfo(stored).isDir())
        return stored;
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    if (!pictures.isEmpty() && QFileInfo(pictures).isDir())
        return pictures;
    return QDir::homePath();
}

void HostApplication::SetDefaultFolder(const QString& path)
{
    if (path.isEmpty())
        return;
    const QFileInfo info(path);
    const QString folder = info.isDir() ? info.absoluteFilePath() : info.absolutePath();
    m_settings->setValue(hostKey(DefaultFolderKey), folder);
    if (!info.isDir())
        m_lastChosenFile = info.absoluteFilePath();
}

QString HostApplication::ToolsFolder() const
{
    return m_settings->value(hostKey(ToolsFolderKey)).toString();
}

void HostApplication::SetToolsFolder(const QString& folder)
{
    m_settings->setValue(hostKey(ToolsFolderKey), folder);
}

QString HostApplication::OutputFolder()
{
    const QString stored = m_settings->value(hostKey(OutputFolderKey)).toString();
    if (!stored.isEmpty() && QFileInfo(stored).isDir())
        return stored;
    return DefaultFolder();
}

void HostApplication::SetOutputFolder(const QString& folder)
{
    if (!folder.isEmpty())
        m_settings->setValue(hostKey(OutputFolderKey), QFileInfo(folder).absoluteFilePath());
}

QString HostApplication::Language() const
{
    return m_settings->value(hostKey(LanguageKey)).toString();
}

void HostApplication::SetLanguage(const QString& name)
{
    m_settings->setValue(hostKey(LanguageKey), name);
}

bool HostApplication::LoadHostTranslation()
{
    // The catalogues are resources of a static library: registered by hand.
    Q_INIT_RESOURCE(panohead_translations);
    if (m_hostTranslator) {
        removeTranslator(m_hostTranslator);
        delete m_hostTranslator;
        m_hostTranslator = nullptr;
    }
    auto* translator = new QTranslator(this);
    if (!translator->load(m_locale, QStringLiteral("panohead"), QStringLiteral("_"),
            QStringLiteral(":/HostTranslation"))) {
        qCDebug(lcHost) << "no host catalogue for" << m_locale.name();
        delete translator;
        return false;
    }
    installTranslator(translator);
    m_hostTranslator = translator;
    return true;
}

QVariant HostApplication::GetSetting(
    const QString& section, const QString& key, const QVariant& defaultValue)
{
    m_settings->beginGroup(section);
    const QVariant value = m_settings->value(key, defaultValue);
    m_settings->endGroup();
    return value;
}

void HostApplication::SetSetting(const QString& section, const QString& key, const QVariant& value)
{
    m_settings->beginGroup(section);
    m_settings->setValue(key, value);
    m_settings->endGroup();
}

QLocale HostApplication::Locale()
{
    return m_locale;
}

void HostApplication::SetLocale(const QLocale& locale)
{
    m_locale = locale;
}

void HostApplication::LoadTranslation(const QString& fileName)
{
    QString found;
    for (const QString& candidate : catalogueCandidates(fileName)) {
        const QString path = QStringLiteral(":/Translation/") + candidate;
        if (QFileInfo::exists(path)) {
            found = path;
            break;
        }
    }
    if (found.isEmpty()) {
        qCInfo(lcHost) << "no translation catalogue for" << fileName;
        return;
    }
    if (!m_translators.contains(found)) {
        auto* translator = new QTranslator(this);
        if (!translator->load(found)) {
            qCWarning(lcHost) << "cannot load the translation catalogue" << found;
            delete translator;
            return;
        }
        installTranslator(translator);
        m_translators.insert(found, translator);
        m_loadedTranslations << found;
        qCDebug(lcHost) << "installed" << found << "for" << fileName;
    }

    // Qt's own texts (dialog buttons, the file dialog) in the same language.
    const QString localeName = m_locale.name();
    if (m_qtTranslationsLocale != localeName) {
        m_qtTranslationsLocale = localeName;
        auto* qt = new QTranslator(this);
        if (qt->load(m_locale, QStringLiteral("qt"), QStringLiteral("_"),
                QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
            installTranslator(qt);
            m_loadedTranslations << qt->filePath();
        } else {
            qCDebug(lcHost) << "no Qt translations for" << localeName;
            delete qt;
        }
    }
}

void HostApplication::RemoveTranslations()
{
    for (QTranslator* translator :
        findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly)) {
        removeTranslator(translator);
        delete translator;
    }
    m_hostTranslator = nullptr;
    m_translators.clear();
    m_loadedTranslations.clear();
    m_qtTranslationsLocale.clear();
}

ZIImageDef* HostApplication::CreateImageDef(const QString& path)
{
    // Read outside the lock: several pages' threads may read at once.
    std::unique_ptr<ImageDefinition> def(
        ImageDefinition::Read(path, ImageDefinition::WithThumbnail));
    if (!def)
        return nullptr;
    ImageDefinition* result = def.get();
    const std::lock_guard<std::mutex> lock(m_imageDefsMutex);
    m_imageDefs.push_back(std::move(def));
    return result;
}

void HostApplication::ReleaseImageDefinitions()
{
    std::vector<std::unique_ptr<ImageDefinition>> doomed;
    {
        const std::lock_guard<std::mutex> lock(m_imageDefsMutex);
        doomed.swap(m_imageDefs);
    }
}

QList<const ImageDefinition*> HostApplication::ImageDefinitions() const
{
    const std::lock_guard<std::mutex> lock(m_imageDefsMutex);
    QList<const ImageDefinition*> list;
    list.reserve(int(m_imageDefs.size()));
    for (const auto& def : m_imageDefs)
        list << def.get();
    return list;
}

int HostApplication::ImageDefinitionCount() const
{
    const std::lock_guard<std::mutex> lock(m_imageDefsMutex);
    return int(m_imageDefs.size());
}

void HostApplication::ImportStructuredPanorama(const StructuredPanoramaProperties& properties)
{
    m_imported = properties;
    m_hasImported = true;
    emit PanoramaImported();
}

void HostApplication::ClearImportedPanorama()
{
    m_imported = StructuredPanoramaProperties();
    m_hasImported = false;
}

ZUIInstances* HostApplication::UIInstances()
{
    return &m_uiInstances;
}

bool HostApplication::UseNativeFileDialogs() const
{
    return m_uiSettings.useSystemFileDialog;
}

void HostApplication::SetUseNativeFileDialogs(bool use)
{
    m_uiSettings.useSystemFileDialog = use;
    m_settings->setValue(hostKey(NativeFileDialogKey), use);
}

ZIPluginLibrary::APX HostApplication::ApplicationKind() const
{
    bool ok = false;
    const int value
        = m_settings->value(hostKey(ApplicationKindKey), int(ZIPluginLibrary::ApxFull)).toInt(&ok);
    return ok ? ZIPluginLibrary::APX(value) : ZIPluginLibrary::ApxFull;
}

void HostApplication::SetApplicationKind(ZIPluginLibrary::APX apx)
{
    m_settings->setValue(hostKey(ApplicationKindKey), int(apx));
}
