#include "ImportWizard.h"

#include "HostApplication.h"
#include "ImportResultPage.h"
#include "PluginChoicePage.h"
#include "PluginLibraryLoader.h"
#include "ZIAbout.h"
#include "ZIPluginImport.h"

#include <QDir>

const char* const ImportWizard::LastPluginKey = "LastPlugin";

ImportWizard::ImportWizard(HostApplication* host, PluginLibraryLoader* loader, QWidget* parent)
    : QWizard(parent), m_host(host)
{
    setObjectName(QStringLiteral("ImportWizard"));
    setWindowTitle(tr("panohead: import a panorama"));
    setWizardStyle(QWizard::ModernStyle);
    setOption(QWizard::NoBackButtonOnStartPage);

    QString libraryText;
    if (ZIAbout* about = loader->About())
        libraryText = tr("%1 %2 by %3, loaded from %4")
                          .arg(about->Name(), about->Version(), about->Company(),
                              QDir::toNativeSeparators(loader->FileName()));
    m_choicePage = new PluginChoicePage(loader->Plugins(host->ApplicationKind()), libraryText);
    m_resultPage = new ImportResultPage(host);
    setPage(ChoicePageId, m_choicePage);
    setPage(ResultPageId, m_resultPage);
    setStartId(ChoicePageId);

    connect(m_choicePage, &PluginChoicePage::PluginChosen, this, &ImportWizard::SetPlugin);
    const QString last = host->GetSetting(QLatin1String(HostApplication::SettingsSection),
                                 QLatin1String(LastPluginKey), QVariant())
                             .toString();
    if (!last.isEmpty())
        m_choicePage->ChoosePlugin(last);
}

ImportWizard::~ImportWizard()
{
    DetachPluginPages();
}

void ImportWizard::SetPlugin(QObject* plugin)
{
    if (plugin == m_plugin && plugin)
        return;
    DetachPluginPages();
    m_host->ClearImportedPanorama();
    m_plugin = plugin;
    auto* import = qobject_cast<ZIPluginImport*>(plugin);
    auto* about = qobject_cast<ZIAbout*>(plugin);
    if (!import)
        return;
    int id = FirstPluginPageId;
    for (QWizardPage* page : import->WizardPages()) {
        if (!page)
            continue;
        setPage(id++, page);
        m_pluginPages << page;
    }
    if (about) {
        m_resultPage->SetPluginName(about->Name());
        m_host->SetSetting(QLatin1String(HostApplication::SettingsSection),
            QLatin1String(LastPluginKey), about->UID());
    }
}

void ImportWizard::DetachPluginPages()
{
    for (int id : pageIds()) {
        QWizardPage* p = page(id);
        if (!m_pluginPages.contains(p))
            continue;
        removePage(id);
        // Out of the wizard's widget tree, so the wizard never deletes it.
        p->hide();
        p->setParent(nullptr);
    }
    m_pluginPages.clear();
}
