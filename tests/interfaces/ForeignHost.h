// Entry points into the two "hosts" of the interface suite. Each host is its
// own translation unit, compiled against its own copy of the contract's
// declarations and never against interfaces/, as a host application built
// separately from the library is. Only neutral types cross this header.
#pragma once

#include <QObject>
#include <QStringList>

namespace ForeignHost {

/// A host application object whose every ZIApplication and ZIImageDef
/// operation appends a line to calls ("Name(arguments)"). Its table is in
/// the contract's order. Owned by the caller.
QObject* createApplication(QStringList* calls);
/// The same, compiled against a copy in which SetDefaultFolder and
/// LoadTranslation, and FocalLength and Exposure, stand in each other's slot.
QObject* createSwappedApplication(QStringList* calls);
/// The address the application objects return from UIInstances().
const void* uiInstances();

/// Reads a plug-in library object as a host does: ZIAbout operations in
/// order, Plugins(2), then each plug-in's ZIAbout operations and WizardPages().
/// Returns what each call returned, as text.
QStringList readLibrary(QObject* library);
/// The same through a copy of ZIAbout in which Name and Author are swapped.
QStringList readLibrarySwapped(QObject* library);
/// Deletes the object through the host's ZIAbout, ZIPluginImport or
/// ZIPluginLibrary pointer (named by iid). False when the cast fails.
bool deleteThrough(QObject* object, const char* iid);

} // namespace ForeignHost
