// ZIPluginImport: an import plug-in, which hands the host the wizard pages
// that do the import. Implemented by the library; slot order is a binary
// contract with the host.
#pragma once

#include <QList>
#include <QtPlugin>

class QWizardPage;

class ZIPluginImport
{
public:
    virtual ~ZIPluginImport() = default;

    /// The pages the host inserts into its import wizard. The plug-in keeps
    /// ownership; the host must not delete them.
    virtual QList<QWizardPage*> WizardPages() = 0;
};

Q_DECLARE_INTERFACE(ZIPluginImport, "ZIPluginImport")
