#include "PluginChoicePage.h"

#include "ZIAbout.h"
#include "ZIPluginImport.h"

#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

PluginChoicePage::PluginChoicePage(
    const QList<QPointer<QObject>>& plugins, const QString& libraryText, QWidget* parent)
    : QWizardPage(parent), m_plugins(plugins)
{
    setObjectName(QStringLiteral("PluginChoicePage"));
    setTitle(tr("Choose the panoramic head"));
    setSubTitle(tr("Choose the import plug-in for the head, or the program, that recorded "
                   "your panorama. Its page comes next."));

    m_twPlugins = new QTreeWidget(this);
    m_twPlugins->setObjectName(QStringLiteral("m_twPlugins"));
    m_twPlugins->setColumnCount(3);
    m_twPlugins->setHeaderLabels({ tr("Plug-in"), tr("Version"), tr("Description") });
    m_twPlugins->setRootIsDecorated(false);
    m_twPlugins->setAllColumnsShowFocus(true);
    m_twPlugins->setSelectionMode(QAbstractItemView::SingleSelection);
    m_twPlugins->setIconSize(QSize(32, 32));
    m_twPlugins->header()->setStretchLastSection(true);

    for (int i = 0; i < m_plugins.size(); ++i) {
        QObject* plugin = m_plugins.at(i);
        auto* about = qobject_cast<ZIAbout*>(plugin);
        if (!about || !qobject_cast<ZIPluginImport*>(plugin))
            continue;
        auto* item = new QTreeWidgetItem(m_twPlugins);
        item->setIcon(0, about->Icon());
        item->setText(0, about->Name());
        item->setText(1, about->Version());
        item->setText(2, about->Comment());
        item->setToolTip(2, tr("%1, %2").arg(about->Company(), about->UID()));
        item->setData(0, Qt::UserRole, i);
    }
    for (int column = 0; column < 2; ++column)
        m_twPlugins->resizeColumnToContents(column);

    m_lbLibrary = new QLabel(libraryText, this);
    m_lbLibrary->setObjectName(QStringLiteral("m_lbLibrary"));
    m_lbLibrary->setWordWrap(true);
    m_lbLibrary->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_twPlugins, 1);
    layout->addWidget(m_lbLibrary);

    connect(m_twPlugins, &QTreeWidget::itemSelectionChanged, this,
        &PluginChoicePage::OnSelectionChanged);
    connect(m_twPlugins, &QTreeWidget::itemDoubleClicked, this, [this] {
        if (wizard() && isComplete())
            wizard()->next();
    });
}

bool PluginChoicePage::isComplete() const
{
    return ChosenPlugin() != nullptr;
}

QObject* PluginChoicePage::ChosenPlugin() const
{
    const QList<QTreeWidgetItem*> selected = m_twPlugins->selectedItems();
    if (selected.isEmpty())
        return nullptr;
    const int index = selected.first()->data(0, Qt::UserRole).toInt();
    return index >= 0 && index < m_plugins.size() ? m_plugins.at(index).data() : nullptr;
}

bool PluginChoicePage::ChoosePlugin(const QString& uid)
{
    for (int row = 0; row < m_twPlugins->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = m_twPlugins->topLevelItem(row);
        const int index = item->data(0, Qt::UserRole).toInt();
        auto* about = qobject_cast<ZIAbout*>(m_plugins.value(index).data());
        if (about && about->UID() == uid) {
            m_twPlugins->setCurrentItem(item);
            item->setSelected(true);
            return true;
        }
    }
    return false;
}

void PluginChoicePage::OnSelectionChanged()
{
    emit PluginChosen(ChosenPlugin());
    emit completeChanged();
}
