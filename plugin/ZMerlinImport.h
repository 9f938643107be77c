// ZMerlinImport: the import plug-in for the Papywizard XML record of Merlin and Orion heads.
// Its page is UIWPMerlin.
#pragma once

#include "UIWPMerlin.h"
#include "ZImportPlugin.h"

class ZMerlinImport : public ZImportPlugin<UIWPMerlin, kMerlinImportDescriptor>
{
    Q_OBJECT
    Q_INTERFACES(ZIPluginImport ZIAbout)

public:
    explicit ZMerlinImport(QObject* parent = nullptr);
    ~ZMerlinImport() override;
};
