#include "Library.h"

#include "ZClaussImport.h"
#include "ZGigapanImport.h"
#include "ZMerlinImport.h"
#include "ZPanoHeadAbout.h"
#include "ZPluginLog.h"
#include "ZUI.h"
#include "ZVRDrive2Import.h"

#include <QIcon>
#include <QLocale>

Q_LOGGING_CATEGORY(lcZPanoHeadPlugin, "zph.plugin", QtInfoMsg)

namespace {

constexpr char kLibraryUid[] = "5A656C6D-6F20-2020-2020-2D91D0DDB961";
// The Gigapan icon lies only under the Gigapan plug-in's folder: this path
// finds nothing and the library's icon stays empty.
constexpr char kLibraryIcon[] = ":/5A656C6D-6F20-2020-2020-2D91D0DDB961/Resources/ZGigapan.png";
constexpr ZIPluginLibrary::APX kFullApplicationFlag = ZIPluginLibrary::ApxFull;

} // namespace

Library::Library(QObject* parent) : QObject(parent)
{
    setObjectName(QLatin1String(ZPanoHeadAbout::kLibraryName));

    ZIApplication* app = ZPanoHeadAbout::HostApplication();
    if (!app) {
        qCDebug(lcZPanoHeadPlugin) << "no host application: no translation, no UI library";
        return;
    }
    // Finding the file among the resources, and falling back from language
    // and country to the language alone, is the host's work.
    const QString fileName
        = QStringLiteral("%1_%2.qm")
              .arg(QLatin1String(ZPanoHeadAbout::kLibraryName), app->Locale().name());
    app->LoadTranslation(fileName);
    ZUI::init(app->UIInstances());
}

Library::~Library()
{
    for (const QPointer<QObject>& plugin : qAsConst(m_plugins))
        delete plugin.data();
    m_plugins.clear();
}

QList<QPointer<QObject>> Library::Plugins(ZIPluginLibrary::APX apx)
{
    const bool full = (apx & kFullApplicationFlag) != 0;
    if (full)
        m_plugins.append(new ZClaussImport);
    if (apx != 0) {
        m_plugins.append(new ZGigapanImport);
        m_plugins.append(new ZMerlinImport);
    }
    if (full)
        m_plugins.append(new ZVRDrive2Import);
    return m_plugins;
}

QString Library::Name() const
{
    return QString::fromLatin1(ZPanoHeadAbout::kLibraryName);
}

QString Library::Author() const
{
    return QString::fromLatin1(ZPanoHeadAbout::kAuthor);
}

QString Library::Company() const
{
    return QString::fromLatin1(ZPanoHeadAbout::kCompany);
}

QString Library::Comment() const
{
    return tr("Comment");
}

QString Library::Version() const
{
    return QString::fromLatin1(ZPanoHeadAbout::kVersion);
}

QIcon Library::Icon() const
{
    return QIcon(QString::fromLatin1(kLibraryIcon));
}

QString Library::UID() const
{
    return QString::fromLatin1(kLibraryUid);
}
