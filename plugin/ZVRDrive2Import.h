// ZVRDrive2Import: the import plug-in for the VR Drive 2 head's XML preset.
// Its page is UIWPVRDrive2.
#pragma once

#include "UIWPVRDrive2.h"
#include "ZImportPlugin.h"

class ZVRDrive2Import : public ZImportPlugin<UIWPVRDrive2, kVRDrive2ImportDescriptor>
{
    Q_OBJECT
    Q_INTERFACES(ZIPluginImport ZIAbout)

public:
    explicit ZVRDrive2Import(QObject* parent = nullptr);
    ~ZVRDrive2Import() override;
};
