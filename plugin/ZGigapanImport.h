// ZGigapanImport: the import plug-in for a grid shot with a Gigapan head.
// Its page is UIWPGigapan.
#pragma once

#include "UIWPGigapan.h"
#include "ZImportPlugin.h"

class ZGigapanImport : public ZImportPlugin<UIWPGigapan, kGigapanImportDescriptor>
{
    Q_OBJECT
    Q_INTERFACES(ZIPluginImport ZIAbout)

public:
    explicit ZGigapanImport(QObject* parent = nullptr);
    ~ZGigapanImport() override;
};
