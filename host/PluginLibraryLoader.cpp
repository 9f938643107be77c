#include "PluginLibraryLoader.h"

#include "ZIPluginImport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QLoggingCategory>
#include <QThread>
#include <QWizardPage>

Q_LOGGING_CATEGORY(lcPlugins, "zph.host.plugins", QtInfoMsg)

const char* const PluginLibraryLoader::Iid = "com.zelmo.panohead";
const char* const PluginLibraryLoader::ClassName = "Library";

PluginLibraryLoader::PluginLibraryLoader() = default;

PluginLibraryLoader::~PluginLibraryLoader()
{
    Unload();
}

QStringList PluginLibraryLoader::SearchFolders(const QStringList& extraFolders)
{
    QStringList folders = extraFolders;
    const QString program = QCoreApplication::applicationDirPath();
    if (!program.isEmpty()) {
        folders << program << program + QLatin1String("/plugins");
        // The build tree: the program lives in <build>/app or <build>/tests/...
        folders << program + QLatin1String("/../plugins");
    }
    // The build tree's plug-in folder, then where installing puts it.
    folders << QStringLiteral(ZPH_BUILD_PLUGIN_DIR);
    if (!program.isEmpty())
        folders << program + QLatin1Char('/') + QStringLiteral(ZPH_INSTALL_PLUGIN_DIR_RELATIVE);
    folders << QStringLiteral(ZPH_INSTALL_PLUGIN_DIR);
    QStringList unique;
    for (const QString& folder : folders) {
        const QString clean = QDir::cleanPath(folder);
        if (!clean.isEmpty() && !unique.contains(clean))
            unique << clean;
    }
    return unique;
}

bool PluginLibraryLoader::IsOurs(const QString& file, QString* reason)
{
    QPluginLoader loader(file);
    const QJsonObject meta = loader.metaData();
    QString why;
    if (meta.isEmpty())
        why = QCoreApplication::translate("PluginLibraryLoader", "%1 is not a Qt plug-in: %2")
                  .arg(QDir::toNativeSeparators(file), loader.errorString());
    else if (meta.value(QLatin1String("IID")).toString() != QLatin1String(Iid))
        why = QCoreApplication::translate(
            "PluginLibraryLoader", "%1 is a plug-in for \"%2\", not a ZPanoHead library")
                  .arg(QDir::toNativeSeparators(file), meta.value(QLatin1String("IID")).toString());
    else if (meta.value(QLatin1String("className")).toString() != QLatin1String(ClassName))
        why = QCoreApplication::translate(
            "PluginLibraryLoader", "%1 declares the root class \"%2\" instead of \"%3\"")
                  .arg(QDir::toNativeSeparators(file),
                      meta.value(QLatin1String("className")).toString(), QLatin1String(ClassName));
    if (reason)
        *reason = why;
    return why.isEmpty();
}

bool PluginLibraryLoader::Load(const QStringList& folders)
{
    QStringList rejected;
    for (const QString& folder : folders) {
        const QFileInfo info(folder);
        QStringList files;
        if (info.isFile()) {
            files << info.absoluteFilePath();
        } else if (info.isDir()) {
            QDir dir(folder);
            // Our library first, then any other plug-in in the folder.
            const QFileInfoList entries = dir.entryInfoList(QDir::Files, QDir::Name);
            for (const QFileInfo& entry : entries) {
                if (!QLibrary::isLibrary(entry.fileName()))
                    continue;
                if (entry.fileName().contains(QLatin1String("ZPanoHead")))
                    files.prepend(entry.absoluteFilePath());
                else
                    files << entry.absoluteFilePath();
            }
        }
        for (const QString& file : files) {
            QString reason;
            if (!IsOurs(file, &reason)) {
                qCDebug(lcPlugins) << reason;
                rejected << reason;
                continue;
            }
            if (LoadFile(file))
                return true;
            rejected << m_error;
        }
    }
    QStringList native;
    for (const QString& folder : folders)
        native << QDir::toNativeSeparators(folder);
    m_error = QCoreApplication::translate(
        "PluginLibraryLoader", "No ZPanoHead plug-in library was found in:\n%1")
                  .arg(native.join(QLatin1Char('\n')));
    if (!rejected.isEmpty())
        m_error += QLatin1String("\n\n") + rejected.join(QLatin1Char('\n'));
    m_error += QLatin1String("\n\n")
        + QCoreApplication::translate("PluginLibraryLoader",
            "Build the ZPanoHead target, or name its folder with "
            "--plugin-dir.");
    return false;
}

bool PluginLibraryLoader::LoadFile(const QString& file)
{
    Unload();
    QString reason;
    if (!IsOurs(file, &reason)) {
        m_error = reason;
        return false;
    }
    m_loader.reset(new QPluginLoader(file));
    QObject* root = m_loader->instance();
    if (!root) {
        m_error = QCoreApplication::translate("PluginLibraryLoader", "Cannot load %1: %2")
                      .arg(QDir::toNativeSeparators(file), m_loader->errorString());
        m_loader.reset();
        return false;
    }
    if (!qobject_cast<ZIPluginLibrary*>(root) || !qobject_cast<ZIAbout*>(root)) {
        m_error = QCoreApplication::translate(
            "PluginLibraryLoader", "%1 does not offer the plug-in library interfaces")
                      .arg(QDir::toNativeSeparators(file));
        delete root;
        m_loader.reset();
        return false;
    }
    m_root = root;
    m_error.clear();
    qCInfo(lcPlugins) << "loaded" << file;
    return true;
}

QString PluginLibraryLoader::FileName() const
{
    return m_loader ? m_loader->fileName() : QString();
}

ZIPluginLibrary* PluginLibraryLoader::Library() const
{
    return qobject_cast<ZIPluginLibrary*>(m_root.data());
}

ZIAbout* PluginLibraryLoader::About() const
{
    return qobject_cast<ZIAbout*>(m_root.data());
}

QList<QPointer<QObject>> PluginLibraryLoader::Plugins(ZIPluginLibrary::APX apx)
{
    if (!m_pluginsAsked && Library()) {
        m_plugins = Library()->Plugins(apx);
        m_pluginsAsked = true;
    }
    return m_plugins;
}

QList<QWizardPage*> PluginLibraryLoader::Pages() const
{
    QList<QWizardPage*> pages;
    for (const QPointer<QObject>& plugin : m_plugins) {
        auto* import = qobject_cast<ZIPluginImport*>(plugin.data());
        if (!import)
            continue;
        for (QWizardPage* page : import->WizardPages()) {
            if (page)
                pages << page;
        }
    }
    return pages;
}

void PluginLibraryLoader::Unload()
{
    if (!m_loader)
        return;
    // A page's reading thread is deleted with the page without being stopped
    // first: stop every one of them here.
    for (QWizardPage* page : Pages()) {
        for (QThread* thread : page->findChildren<QThread*>()) {
            if (thread->metaObject()->indexOfSlot("Clear()") >= 0)
                QMetaObject::invokeMethod(thread, "Clear", Qt::DirectConnection);
            thread->wait();
        }
    }
    m_plugins.clear();
    m_pluginsAsked = false;
    delete m_root.data();
    // The module stays mapped until the process ends: the translators the
    // host installed read their catalogues from its resource tree, and Qt may
    // still hold its meta-objects in pending events.
    m_loader.reset();
}
