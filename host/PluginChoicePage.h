// PluginChoicePage: the import wizard's first page. Lists the import plug-ins
// of the loaded library (icon, name, version, comment); choosing one makes
// the wizard insert that plug-in's pages after this one.
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWizardPage>

class QLabel;
class QTreeWidget;

class PluginChoicePage : public QWizardPage
{
    Q_OBJECT

public:
    /// `plugins`: the library's import plug-in objects, in its order.
    /// `libraryText`: a line that names the loaded library.
    PluginChoicePage(const QList<QPointer<QObject>>& plugins, const QString& libraryText,
        QWidget* parent = nullptr);

    /// Complete when a plug-in is chosen.
    bool isComplete() const override;

    /// The chosen plug-in object, or null.
    QObject* ChosenPlugin() const;
    /// Chooses the plug-in whose ZIAbout::UID() is `uid`; false when none has it.
    bool ChoosePlugin(const QString& uid);
    /// The list, for tests and the screenshot script.
    QTreeWidget* PluginList() const { return m_twPlugins; }

signals:
    /// The user chose another plug-in (null when the choice was cleared).
    void PluginChosen(QObject* plugin);

private:
    void OnSelectionChanged();

    QList<QPointer<QObject>> m_plugins;
    QTreeWidget* m_twPlugins = nullptr;
    QLabel* m_lbLibrary = nullptr;
};
