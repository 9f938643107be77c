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
#include <QtPlugin>

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

// Qt plug-in entry points, written out rather than generated so that the
// metadata can declare the Qt version the library's contract was fixed with
// (5.4.0) and the release build.
//
// The block is Qt's binary JSON form, which the loader finds in the
// ".qtmetadata" section before loading the library and through
// qt_plugin_query_metadata() after. It encodes:
//   { "IID": "com.zelmo.panohead", "MetaData": {}, "className": "Library",
//     "debug": false, "version": 328704 }
// The loader accepts any version with the same major and a minor not above
// its own. Layout: a "qbjs" header, then one object whose entries are sorted
// by key; each entry is a 32-bit value header (type in bits 0-2, inline or
// Latin-1 value in bit 3, Latin-1 key in bit 4, value or data offset from bit
// 5), a key as 16-bit length plus characters padded to 4 bytes, then the
// value's data; the object ends with a table of the entries' offsets.
// clang-format off
QT_PLUGIN_METADATA_SECTION
static const unsigned char qt_pluginMetaData[] = {
    'Q', 'T', 'M', 'E', 'T', 'A', 'D', 'A', 'T', 'A', ' ', ' ',
    'q', 'b', 'j', 's', 0x01, 0x00, 0x00, 0x00,
    // object: 148 bytes, 5 entries, offset table at 128
    0x94, 0x00, 0x00, 0x00, 0x0b, 0x00, 0x00, 0x00,
    0x80, 0x00, 0x00, 0x00,
    // 12: "IID": Latin-1 string at 24
    0x1b, 0x03, 0x00, 0x00,
    0x03, 0x00, 'I', 'I', 'D', 0x00, 0x00, 0x00,
    0x12, 0x00, 'c', 'o', 'm', '.', 'z', 'e',
    'l', 'm', 'o', '.', 'p', 'a', 'n', 'o',
    'h', 'e', 'a', 'd',
    // 44: "MetaData": object at 60
    0x95, 0x07, 0x00, 0x00,
    0x08, 0x00, 'M', 'e', 't', 'a', 'D', 'a',
    't', 'a', 0x00, 0x00,
    // 60: the empty object
    0x0c, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00,
    // 72: "className": Latin-1 string at 88
    0x1b, 0x0b, 0x00, 0x00,
    0x09, 0x00, 'c', 'l', 'a', 's', 's', 'N',
    'a', 'm', 'e', 0x00,
    0x07, 0x00, 'L', 'i', 'b', 'r', 'a', 'r',
    'y', 0x00, 0x00, 0x00,
    // 100: "debug": false, inline
    0x11, 0x00, 0x00, 0x00,
    0x05, 0x00, 'd', 'e', 'b', 'u', 'g', 0x00,
    // 112: "version": 328704 (5.4.0), inline integer
    0x1a, 0x80, 0xa0, 0x00,
    0x07, 0x00, 'v', 'e', 'r', 's', 'i', 'o',
    'n', 0x00, 0x00, 0x00,
    // 128: offsets of the five entries
    0x0c, 0x00, 0x00, 0x00, 0x2c, 0x00, 0x00, 0x00,
    0x48, 0x00, 0x00, 0x00, 0x64, 0x00, 0x00, 0x00,
    0x70, 0x00, 0x00, 0x00,
};
// clang-format on

extern "C" Q_DECL_EXPORT const char* qt_plugin_query_metadata()
{
    return reinterpret_cast<const char*>(qt_pluginMetaData);
}

/// The single root object: made again only after the host has deleted the
/// previous one. The host owns it.
extern "C" Q_DECL_EXPORT QObject* qt_plugin_instance()
{
    static QPointer<QObject> instance;
    if (!instance)
        instance = new Library;
    return instance;
}
