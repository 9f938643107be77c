// BlockSignal: silences a widget and all its descendant widgets for the
// lifetime of the object, and restores each one's earlier state afterwards.
#pragma once

#include <QMap>

class QWidget;

class BlockSignal
{
public:
    /// Blocks the signals of every descendant widget of `widget` and of `widget`
    /// itself, remembering whether each was blocked already. Null: no-op. The
    /// blocker must be destroyed before `widget`.
    explicit BlockSignal(QWidget* widget);
    /// Restores the remembered states of the tree as it is now; a widget added
    /// in the meantime ends with its signals enabled.
    ~BlockSignal();

    BlockSignal(const BlockSignal&) = delete;
    BlockSignal& operator=(const BlockSignal&) = delete;

private:
    QWidget* m_widget;
    QMap<QWidget*, bool> m_states;
};
