// panohead: the reference host of the ZPanoHead plug-in library.
//
//   panohead [--locale NAME] [--plugin-dir FOLDER]... [--settings FILE]
//       the import wizard: choose a head, import, look at the result, save it;
//   panohead import ... / panohead stitch ... / panohead --help / --version
//       the command line, which needs no display (see "panohead --help").
#include "HostApplication.h"
#include "HostWindow.h"
#include "ImportWizard.h"
#include "PluginLibraryLoader.h"

#include "CommandLine.h"
#include "StopSignals.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdio>
#include <cstring>
#include <memory>

namespace {

/// The wizard's options, for the wizard and for telling a mistyped command
/// from them before any application object exists.
struct WizardOptions
{
    QCommandLineOption help { { QStringLiteral("h"), QStringLiteral("help") } };
    QCommandLineOption version { { QStringLiteral("v"), QStringLiteral("version") } };
    QCommandLineOption locale { QStringLiteral("locale"),
        HostApplication::tr("User-interface language and country, such as fr_FR "
                            "(default: the system's)."),
        HostApplication::tr("name") };
    QCommandLineOption pluginDir { QStringLiteral("plugin-dir"),
        HostApplication::tr("Also look for the plug-in library in <folder> (first)."),
        HostApplication::tr("folder") };
    QCommandLineOption settings { QStringLiteral("settings"),
        HostApplication::tr("Keep the settings in the INI file <file> instead of the user's."),
        HostApplication::tr("file") };

    void addTo(QCommandLineParser& parser) const
    {
        parser.addOptions({ help, version, locale, pluginDir, settings });
    }
};

QStringList argumentList(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

/// Why the wizard cannot be shown on this machine; empty when it can. The
/// platform Qt would choose decides: X11 needs DISPLAY, Wayland
/// WAYLAND_DISPLAY; other platforms (offscreen, eglfs, vnc ...) need neither.
QString missingDisplay()
{
    const QString platform
        = qEnvironmentVariable("QT_QPA_PLATFORM").section(QLatin1Char(';'), 0, 0);
    const bool x11 = !qEnvironmentVariableIsEmpty("DISPLAY");
    const bool wayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (platform.isEmpty()) {
        if (!x11 && !wayland)
            return QStringLiteral("no display (neither DISPLAY nor WAYLAND_DISPLAY is set)");
    } else if (platform.startsWith(QLatin1String("xcb"))) {
        if (!x11)
            return QStringLiteral("no display (QT_QPA_PLATFORM is %1 but DISPLAY is not set)")
                .arg(platform);
    } else if (platform.startsWith(QLatin1String("wayland"))) {
        if (!wayland)
            return QStringLiteral("no display (QT_QPA_PLATFORM is %1 but WAYLAND_DISPLAY is not "
                                  "set)")
                .arg(platform);
    }
    return QString();
}

/// Runs a command or the program's --help and --version. Nothing is shown:
/// a QCoreApplication, or for the commands that draw pictures a
/// QGuiApplication on the offscreen platform, whatever QT_QPA_PLATFORM says.
int runCommand(int argc, char** argv, const QStringList& arguments)
{
    // Qt falls back to a shared /tmp/runtime-<user> folder, with a warning,
    // when the session gives no runtime folder (a service, cron, ssh without
    // a login session). A private folder, removed when the command ends,
    // keeps the output clean and leaves nothing behind.
    // A signal while Qt starts ends the program with the same code and line
    // as one during the command.
    const StopSignals stopSignals;
    StopSignals::setExitAtOnce("panohead: stopped\n");
    std::unique_ptr<QTemporaryDir> runtimeFolder;
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        runtimeFolder = std::make_unique<QTemporaryDir>();
        if (runtimeFolder->isValid())
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder->path()));
    }
    const QString command = arguments.value(0);
    std::unique_ptr<QCoreApplication> app;
    if (CommandLine::drawsPictures(command)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("panohead"));
    // Every failure reaches the user as one line naming the file and the
    // reason; the libraries' own warnings would only repeat it. QT_LOGGING_RULES
    // still turns them on.
    QLoggingCategory::setFilterRules(QStringLiteral("zph.*.warning=false\nzph.*.debug=false"));
    return runCommandLine(arguments);
}

int runWizard(int argc, char** argv)
{
    HostApplication app(argc, argv);
    QCommandLineParser parser;
    const WizardOptions options;
    options.addTo(parser);
    parser.process(app);

    if (parser.isSet(options.settings))
        app.SetSettingsFile(parser.value(options.settings));
    if (parser.isSet(options.locale))
        app.SetLocale(QLocale(parser.value(options.locale)));

    PluginLibraryLoader loader;
    if (!loader.Load(PluginLibraryLoader::SearchFolders(parser.values(options.pluginDir)))) {
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
    const QStringList arguments = argumentList(argc, argv).mid(1);
    const QString first = arguments.value(0);
    if (CommandLine::isCommand(first))
        return runCommand(argc, argv, arguments);
    // The wizard's command line is read before any application object
    // exists: help, version and mistakes need no display.
    QCommandLineParser parser;
    const WizardOptions options;
    options.addTo(parser);
    QTextStream err(stderr);
    if (!parser.parse(QStringList { QStringLiteral("panohead") } + arguments)) {
        err << "panohead: " << parser.errorText() << " (see panohead --help)\n";
        return 2;
    }
    if (parser.isSet(options.help))
        return runCommand(argc, argv, { QStringLiteral("--help") });
    if (parser.isSet(options.version))
        return runCommand(argc, argv, { QStringLiteral("--version") });
    if (!parser.positionalArguments().isEmpty())
        return runCommand(argc, argv, parser.positionalArguments());
    const QString display = missingDisplay();
    if (!display.isEmpty()) {
        err << "panohead: the import wizard needs a display: " << display
            << "; the commands need none (see panohead --help)\n";
        return 1;
    }
    return runWizard(argc, argv);
}
