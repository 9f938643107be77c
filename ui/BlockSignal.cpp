// Blocks and restores the signals of a widget tree.
#include "BlockSignal.h"

#include <QWidget>

namespace {
/// Every descendant widget at any depth, then the root itself.
QList<QWidget*> WidgetTree(QWidget* root)
{
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.append(root);
    return widgets;
}
} // namespace

BlockSignal::BlockSignal(QWidget* widget) : m_widget(widget)
{
    if (!m_widget)
        return;
    for (QWidget* w : WidgetTree(m_widget)) {
        m_states[w] = w->signalsBlocked();
        w->blockSignals(true);
    }
}

BlockSignal::~BlockSignal()
{
    if (!m_widget)
        return;
    // A widget created meanwhile is not in the map: the inserting lookup gives
    // false, so it ends unblocked whatever it was created with.
    for (QWidget* w : WidgetTree(m_widget))
        w->blockSignals(m_states[w]);
}
