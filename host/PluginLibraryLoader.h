// PluginLibraryLoader: finds a ZPanoHead plug-in library, checks its metadata
// before loading it, loads it, obtains its root object and its import
// plug-ins, and unloads it in the order the library needs.
#pragma once

#include "ZIAbout.h"
#include "ZIPluginLibrary.h"

#include <QList>
#include <QObject>
#include <QPluginLoader>
#include <QPointer>
#include <QScopedPointer>
#include <QStringList>

class QWizardPage;

class PluginLibraryLoader
{
public:
    /// The interface identifier and root class name a library of ours declares.
    static const char* const Iid;
    static const char* const ClassName;

    PluginLibraryLoader();
    /// Unload().
    ~PluginLibraryLoader();

    /// The folders searched, in order: `extraFolders` (the --plugin-dir
    /// option), the program's folder and its "plugins" sub-folder, the build
    /// tree's plug-in folder, and where the installation puts the plug-in
    /// (relative to the program, then the configured prefix).
    static QStringList SearchFolders(const QStringList& extraFolders = QStringList());

    /// True when `file` is a Qt plug-in that declares our interface identifier
    /// and root class. Reads only the metadata; loads nothing. Otherwise false
    /// and `reason` says why.
    static bool IsOurs(const QString& file, QString* reason = nullptr);

    /// Loads the first library of ours found in `folders` (a folder may also
    /// name the plug-in file itself). False with ErrorString() when none is
    /// found, none is ours, or loading fails.
    bool Load(const QStringList& folders);
    /// Loads exactly this file.
    bool LoadFile(const QString& file);

    QString ErrorString() const { return m_error; }
    /// The loaded file, empty when none.
    QString FileName() const;
    QObject* Root() const { return m_root; }
    ZIPluginLibrary* Library() const;
    ZIAbout* About() const;

    /// The import plug-ins for `apx`. Asks the library once (every call of
    /// ZIPluginLibrary::Plugins makes new objects); later calls return the
    /// same list.
    QList<QPointer<QObject>> Plugins(ZIPluginLibrary::APX apx);

    /// The wizard pages of all plug-ins handed out so far.
    QList<QWizardPage*> Pages() const;

    /// Stops the pages' background reading (each page's reading threads are
    /// asked to Clear() and waited for), deletes the root object (which saves
    /// the pages' state and deletes the plug-ins and their pages). The module
    /// itself stays mapped until the process ends (the translators installed
    /// from its resources keep reading them). The pages must be out of every
    /// wizard.
    void Unload();

private:
    QScopedPointer<QPluginLoader> m_loader;
    QPointer<QObject> m_root;
    QList<QPointer<QObject>> m_plugins;
    bool m_pluginsAsked = false;
    QString m_error;
};
