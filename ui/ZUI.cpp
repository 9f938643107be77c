// The UI library's process-wide state and services.
#include "ZUI.h"

#include "ZUIInstances.h"
#include "ZuiFileBrowser.h"
#include "ZuiLogging.h"

#include <QCoreApplication>
#include <QDir>
#include <QResource>

Q_LOGGING_CATEGORY(lcZui, "zph.ui")

ZUISettings* ZUI::ms_instances = nullptr;
bool ZUI::s_bInit = false;
bool ZUI::s_rccLoaded = false;

namespace {
/// The external resource file with the JavaScript library: the application
/// bundle's Resources folder, one level above the executable's folder.
QString JsLibraryPath()
{
    return QCoreApplication::applicationDirPath()
        + QStringLiteral("/../Resources/closure-library.rcc");
}
} // namespace

// Outside any namespace or class: the resource tree of a static library is
// registered by hand, under the name of its .qrc file.
static void RegisterZuiResources()
{
    Q_INIT_RESOURCE(ZUI);
}

void ZUI::init(ZUIInstances* instances)
{
    if (s_bInit)
        return;
    if (instances) {
        // The host owns the state of the UI library, resources included.
        ms_instances = instances->settings;
        return;
    }
    RegisterZuiResources();
    ms_instances = new ZUISettings();
    ms_instances->useSystemFileDialog = true;
    QDir::setSearchPaths(QStringLiteral("UI"), { QStringLiteral(":/UI") });
    s_bInit = true;
}

void ZUI::exit()
{
    // An adopted host record is the host's to free.
    if (!s_bInit)
        return;
    delete ms_instances;
    ms_instances = nullptr;
    s_bInit = false;
    if (s_rccLoaded)
        QResource::unregisterResource(JsLibraryPath());
}

QFileDialog::Options ZUI::UseSystemFileDialog()
{
    if (!ms_instances) {
        qCWarning(lcZui) << "UseSystemFileDialog called before ZUI::init";
        return QFileDialog::Options();
    }
    return ms_instances->useSystemFileDialog
        ? QFileDialog::Options()
        : QFileDialog::Options(QFileDialog::DontUseNativeDialog);
}

void ZUI::SetUseSystemFileDialog(bool use)
{
    if (!ms_instances) {
        qCWarning(lcZui) << "SetUseSystemFileDialog called before ZUI::init";
        return;
    }
    ms_instances->useSystemFileDialog = use;
}

void ZUI::loadJSLibraries()
{
    if (s_rccLoaded)
        return;
    if (!QResource::registerResource(JsLibraryPath()))
        qCCritical(lcZui, "Cannot load closure-library.rcc file needed by ZUI");
    // One attempt per process, successful or not.
    s_rccLoaded = true;
}

void ZUI::SelectInFileBrowser(QObject* parent, const QList<QUrl>& urls)
{
    Q_UNUSED(parent);
    ZuiFileBrowser::Reveal(ZuiFileBrowser::DefaultRunner(), urls);
}
