// ZIAbout: how a plug-in, or the plug-in library itself, describes itself to
// the host. Implemented by the library. The order of the virtual operations is
// a binary contract with hosts compiled separately: never reorder them.
#pragma once

#include <QtPlugin>

class QIcon;
class QString;

class ZIAbout
{
public:
    virtual ~ZIAbout() = default;

    virtual QString Name() const = 0;
    virtual QString Author() const = 0;
    virtual QString Company() const = 0;
    /// Already translated.
    virtual QString Comment() const = 0;
    virtual QString Version() const = 0;
    virtual QIcon Icon() const = 0;
    /// The plug-in's identity: a 36-character upper-case GUID with hyphens, no braces.
    virtual QString UID() const = 0;
};

Q_DECLARE_INTERFACE(ZIAbout, "ZIAbout")
