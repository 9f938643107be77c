// Library: the root object of the plug-in library, which the host obtains
// through the Qt plug-in loader. It is the library's catalogue
// (ZIPluginLibrary) and its own description (ZIAbout). Constructing it hands
// the host the name of the library's translation file and the host's UI
// instances to the UI library.
//
// moc writes the plug-in's entry points from Q_PLUGIN_METADATA: the metadata
// (IID "com.zelmo.panohead", class name, the Qt version and debug flag of the
// build) and qt_plugin_instance(), which keeps the single root object in a
// QPointer and makes it again only after the host has deleted it. The host
// owns the root object.
#pragma once

#include "ZIAbout.h"
#include "ZIPluginLibrary.h"

#include <QList>
#include <QObject>
#include <QPointer>

class Library : public QObject, public ZIPluginLibrary, public ZIAbout
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.zelmo.panohead")
    Q_INTERFACES(ZIPluginLibrary ZIAbout)

public:
    /// With a host: asks it to load "ZPanoHead_<locale name>.qm" and passes its
    /// UI instances to ZUI::init. Without one the library runs untranslated.
    explicit Library(QObject* parent = nullptr);
    /// Deletes, in creation order, every plug-in object that still exists.
    ~Library() override;

    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    /// Creates the import plug-ins that fit `apx`: with the flag 2 all four
    /// (Clauss, Gigapan, Papywizard, VR Drive 2), with any other non-zero
    /// value Gigapan and Papywizard, with 0 none. The new objects are appended
    /// to those of earlier calls and the whole list is returned, so the host
    /// calls this once. The library owns the objects.
    QList<QPointer<QObject>> Plugins(ZIPluginLibrary::APX apx) override;

    QString Name() const override;
    QString Author() const override;
    QString Company() const override;
    /// The translated placeholder word "Comment".
    QString Comment() const override;
    QString Version() const override;
    /// Names a picture that the library's resources do not hold, so the
    /// icon is empty.
    QIcon Icon() const override;
    QString UID() const override;

private:
    QList<QPointer<QObject>> m_plugins;
};
