// panohead: the reference host of the ZPanoHead plug-in library.
//
//   panohead [--locale NAME] [--plugin-dir FOLDER]... [--settings FILE]
//       the import wizard: choose a head, import, look at the result, save it;
//   panohead import ... / panohead stitch ...
//       the command line (see "panohead import --help").
#include "CommandLine.h"
#include "HostApplication.h"
#include "HostWindow.h"
#include "ImportWizard.h"
#include "PluginLibraryLoader.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QMessageBox>
#include <QTextStream>

#include <cstring>

namespace {

bool isCommand(const char* argument)
{
    return std::strcmp(argument, "import") == 0 || std::strcmp(argument, "stitch") == 0;
}

int runCommand(int argc, char** argv)
{
    // The commands draw pictures but show nothing: no display is needed.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("panohead"));
    return runCommandLine(QGuiApplication::arguments().mid(1));
}

int runWizard(int argc, char** argv)
{
    HostApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        HostApplication::tr("Imports a panorama shot with a motorised panoramic head.\n"
                            "Commands: panohead import --help, panohead stitch --help."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption localeOption(QStringLiteral("locale"),
        HostApplication::tr("User-interface language and country, such as fr_FR "
                            "(default: the system's)."),
        HostApplication::tr("name"));
    const QCommandLineOption pluginDirOption(QStringLiteral("plugin-dir"),
        HostApplication::tr("Also look for the plug-in library in <folder> (first)."),
        HostApplication::tr("folder"));
    const QCommandLineOption settingsOption(QStringLiteral("settings"),
        HostApplication::tr("Keep the settings in the INI file <file> instead of the user's."),
        HostApplication::tr("file"));
    parser.addOption(localeOption);
    parser.addOption(pluginDirOption);
    parser.addOption(settingsOption);
    parser.process(app);

    if (parser.isSet(settingsOption))
        app.SetSettingsFile(parser.value(settingsOption));
    if (parser.isSet(localeOption))
        app.SetLocale(QLocale(parser.value(localeOption)));

    PluginLibraryLoader loader;
    if (!loader.Load(PluginLibraryLoader::SearchFolders(parser.values(pluginDirOption)))) {
        QTextStream(stderr) << "panohead: " << loader.ErrorString() << "\n";
        QMessageBox::critical(nullptr, QStringLiteral("panohead"), loader.ErrorString());
        return 1;
    }
    int result = 0;
    {
        ImportWizard wizard(&app, &loader);
        HostWindow window(&app, &wizard);
        window.show();
        result = app.exec();
    }
    // The wizard has handed the pages back; the library saves and deletes them.
    loader.Unload();
    app.ReleaseImageDefinitions();
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && isCommand(argv[1]))
        return runCommand(argc, argv);
    return runWizard(argc, argv);
}
