// ZIPluginLibrary: the catalogue of one plug-in library. Implemented by the
// library's root object; slot order is a binary contract with the host.
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QtPlugin>

class ZIPluginLibrary
{
public:
    /// The host's kind of application, passed by value (32 bits). The library
    /// relies only on this: 0 asks for nothing, and 2 is a flag bit that asks
    /// for the plug-ins of the full application.
    enum APX : qint32 {
        ApxNone = 0,
        ApxBasic = 1,
        ApxFull = 2,
    };

    virtual ~ZIPluginLibrary() = default;

    /// The plug-in objects of this library that fit the host's kind. The
    /// library owns them; every call creates a fresh set and returns it after
    /// the ones made by earlier calls.
    virtual QList<QPointer<QObject>> Plugins(ZIPluginLibrary::APX apx) = 0;
};

Q_DECLARE_INTERFACE(ZIPluginLibrary, "ZIPluginLibrary")
