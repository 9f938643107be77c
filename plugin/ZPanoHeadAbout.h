// The constants that every object of the plug-in library answers through
// ZIAbout, and the lookup of the host's application object.
#pragma once

#include "ZIApplication.h"

#include <QCoreApplication>

namespace ZPanoHeadAbout {

// Internal linkage on purpose: an inline variable would be a unique symbol,
// which keeps the system from ever unloading the library.
constexpr char kLibraryName[] = "ZPanoHead";
constexpr char kAuthor[] = "ZPanoHead development team";
constexpr char kCompany[] = "Zelmo";
constexpr char kVersion[] = "3.0.0.400";

/// The host's application object, asked for by name; null when there is no
/// application object or it does not implement ZIApplication.
inline ZIApplication* HostApplication()
{
    QCoreApplication* app = QCoreApplication::instance();
    return app ? static_cast<ZIApplication*>(app->qt_metacast("ZIApplication")) : nullptr;
}

} // namespace ZPanoHeadAbout
