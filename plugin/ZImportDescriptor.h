// ZImportDescriptor: the constants that tell the four import plug-ins apart.
// The import plug-in classes are one pattern (ZImportPlugin) instantiated with
// one of the descriptors below and the class of the page they own.
#pragma once

#include <QtGlobal>

struct ZImportDescriptor
{
    /// The plug-in's object name, which is also its key in the host's settings.
    const char* objectName;
    /// ZIAbout::Name().
    const char* name;
    /// ZIAbout::Comment() before translation; translated in the context of
    /// the plug-in's class.
    const char* comment;
    /// ZIAbout::UID(), and the plug-in's section in the host's settings.
    const char* uid;
    /// The resource path of the plug-in's icon; when iconHasUidArg is set,
    /// "%1" in it stands for the UID.
    const char* icon;
    bool iconHasUidArg;
};

inline constexpr ZImportDescriptor kClaussImportDescriptor = {
    "ZClaussImport",
    "Clauss",
    QT_TRANSLATE_NOOP("ZClaussImport", "Clauss Rodeon import plugin"),
    "5A656C6D-6F20-2020-2020-D6D081182F97",
    ":/5A656C6D-6F20-2020-2020-D6D081182F97/Resources/ZClauss.png",
    false,
};

inline constexpr ZImportDescriptor kGigapanImportDescriptor = {
    "ZGigapanImport",
    "Gigapan",
    QT_TRANSLATE_NOOP("ZGigapanImport", "Gigapan import plugin"),
    "5A656C6D-6F20-2020-2020-6028D47773DF",
    ":/5A656C6D-6F20-2020-2020-6028D47773DF/Resources/ZGigapan.png",
    false,
};

inline constexpr ZImportDescriptor kMerlinImportDescriptor = {
    "ZMerlinImport",
    "Papywizard",
    QT_TRANSLATE_NOOP("ZMerlinImport", "Papywizard XML import plugin"),
    "5A656C6D-6F20-2020-2020-483181480AB7",
    ":/%1/Resources/Papywizard.png",
    true,
};

inline constexpr ZImportDescriptor kVRDrive2ImportDescriptor = {
    "ZVRDrive2Import",
    "VRDrive2",
    QT_TRANSLATE_NOOP("ZVRDrive2Import", "VRDrive2 XML import plugin"),
    "5A656C6D-6F20-2020-2020-B662C695C918",
    ":/%1/Resources/VRDrive2.png",
    true,
};
