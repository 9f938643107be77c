// ZUI: process-wide services of the UI support library: initialisation
// (sharing the host's settings record when it has one), the file-dialog
// choice, the external JavaScript resource file and revealing files in the
// desktop's file browser. GUI thread only; the static state is not locked.
#pragma once

#include <QFileDialog>
#include <QList>
#include <QUrl>

class QObject;
struct ZUIInstances;
struct ZUISettings;

class ZUI
{
public:
    /// With the host's record: adopts its settings and leaves everything else
    /// to the host. With null: registers the UI resources, makes a settings
    /// record (native dialogs on) and the "UI:" search path. Runs once.
    static void init(ZUIInstances* instances);
    /// Undoes what init(nullptr) did; an adopted host record is left alone.
    static void exit();

    /// No options when native dialogs are chosen, DontUseNativeDialog
    /// otherwise. Requires init.
    static QFileDialog::Options UseSystemFileDialog();
    /// Requires init.
    static void SetUseSystemFileDialog(bool use);

    /// Registers "closure-library.rcc" from the application's Resources folder;
    /// tried once, a failure is logged.
    static void loadJSLibraries();

    /// Reveals each existing local file among `urls` in the Finder through
    /// "/usr/bin/osascript"; does nothing where that runner is missing.
    /// `parent` is not used.
    static void SelectInFileBrowser(QObject* parent, const QList<QUrl>& urls);

private:
    static ZUISettings* ms_instances;
    static bool s_bInit;
    static bool s_rccLoaded;
};
