// ZClaussImport: the import plug-in for the Clauss Rodeon head's shooting script.
// Its page is UIWPClauss.
#pragma once

#include "UIWPClauss.h"
#include "ZImportPlugin.h"

class ZClaussImport : public ZImportPlugin<UIWPClauss, kClaussImportDescriptor>
{
    Q_OBJECT
    Q_INTERFACES(ZIPluginImport ZIAbout)

public:
    explicit ZClaussImport(QObject* parent = nullptr);
    ~ZClaussImport() override;
};
