// A process whose application object is not a host (no ZIApplication): loads
// the plug-in library given as its argument, makes every plug-in, prints
// what they say and unloads. Used by tst_Library.

#include "ZIAbout.h"
#include "ZIPluginImport.h"
#include "ZIPluginLibrary.h"

#include <QApplication>
#include <QPluginLoader>
#include <QPointer>
#include <QTextStream>
#include <QWizardPage>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    if (argc != 2) {
        err << "usage: zph_plugin_bare_host <plug-in library>\n";
        return 2;
    }
    QPluginLoader loader(QString::fromLocal8Bit(argv[1]));
    QObject* root = loader.instance();
    auto* catalogue = qobject_cast<ZIPluginLibrary*>(root);
    if (!catalogue) {
        err << "cannot load: " << loader.errorString() << '\n';
        return 1;
    }
    out << root->metaObject()->className() << ' ' << qobject_cast<ZIAbout*>(root)->Comment()
        << '\n';
    const QList<QPointer<QObject>> plugins = catalogue->Plugins(ZIPluginLibrary::ApxFull);
    for (const QPointer<QObject>& plugin : plugins) {
        const QList<QWizardPage*> pages = qobject_cast<ZIPluginImport*>(plugin)->WizardPages();
        int live = 0;
        for (QWizardPage* page : pages)
            live += page ? 1 : 0;
        out << plugin->metaObject()->className() << " pages=" << live << ' '
            << qobject_cast<ZIAbout*>(plugin)->Comment() << '\n';
    }
    if (!loader.unload()) {
        err << "cannot unload: " << loader.errorString() << '\n';
        return 1;
    }
    out << "unloaded\n";
    return 0;
}
