#include "ImportWizard.h"

#include "HostApplication.h"
#include "HostSettingsDialog.h"
#include "ImportResultPage.h"
#include "PluginChoicePage.h"
#include "PluginLibraryLoader.h"
#include "ZIAbout.h"
#include "ZIPluginImport.h"

#include <QAbstractButton>
#include <QDir>
#include <QMessageBox>

const char* const ImportWizard::LastPluginKey = "LastPlugin";

ImportWizard::ImportWizard(HostApplication* host, PluginLibraryLoader* loader, QWidget* parent)
    : QWizard(parent), m_host(host)
{
    // The host's own texts in the host's language, before any is made.
    host->LoadHostTranslation();
    setObjectName(QStringLiteral("ImportWizard"));
    setWindowTitle(tr("panohead: import a panorama"));
    setWizardStyle(QWizard::ModernStyle);
    setOption(QWizard::NoBackButtonOnStartPage);
    setOption(QWizard::HaveCustomButton1);
    setButtonText(QWizard::CustomButton1, tr("Settings..."));
    button(QWizard::CustomButton1)->setObjectName(QStringLiteral("m_pbSettings"));
    setButtonLayout({ QWizard::CustomButton1, QWizard::Stretch, QWizard::BackButton,
        QWizard::NextButton, QWizard::FinishButton, QWizard::CancelButton });
    connect(this, &QWizard::customButtonClicked, this, [this](int which) {
        if (which == QWizard::CustomButton1)
            ShowSettings();
    });

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
    connect(m_resultPage, &ImportResultPage::StitchingChanged, this, &ImportWizard::OnStitching);
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

void ImportWizard::done(int result)
{
    if (m_resultPage->IsStitching() || m_unsavedQuestion)
        return;
    if (m_resultPage->HasUnsavedImport()) {
        QMessageBox box(QMessageBox::Question, tr("Unsaved import"),
            tr("The imported panorama was neither saved nor stitched. Save its project first?"),
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
        box.setObjectName(QStringLiteral("m_mbUnsaved"));
        box.setDefaultButton(QMessageBox::Save);
        m_unsavedQuestion = &box;
        const int answer = box.exec();
        m_unsavedQuestion = nullptr;
        if (answer == QMessageBox::Cancel)
            return;
        if (answer == QMessageBox::Save && !m_resultPage->SaveProjectWithDialog())
            return;
    }
    QWizard::done(result);
}

void ImportWizard::ShowSettings()
{
    HostSettingsDialog dialog(m_host, this);
    dialog.exec();
}

void ImportWizard::OnStitching(bool running)
{
    // The page's completeChanged() has let the wizard set its buttons; Back
    // and Cancel follow the stitch here.
    if (QAbstractButton* back = button(QWizard::BackButton))
        back->setEnabled(!running);
    if (QAbstractButton* cancel = button(QWizard::CancelButton))
        cancel->setEnabled(!running);
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
