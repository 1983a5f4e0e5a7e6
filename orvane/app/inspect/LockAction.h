#pragma once

#include <QAction>

#include <functional>
#include <vector>

class NodeLock;
class NxNode;
class QBoxLayout;

/// Turns the lock of an inspector on and off. It is checked while the lock is on, and shows a padlock, open or closed.
class LockAction : public QAction {
    Q_OBJECT

public:
    /// Where the node is that the inspector shows, from a child of the scene down; empty if it shows none.
    using ShownPath = std::function<std::vector<NxNode*>()>;

    /// The lock lives as long as the action.
    LockAction(NodeLock& lock, ShownPath shownPath, QObject* parent);

    /// Is disabled while there is nothing to lock. Call it when the inspector shows something else.
    void update();
    /// Adds a button for it to the heading of the inspector.
    void addButtonTo(QBoxLayout* tools);

    /// What turns the lock of the inspector with the focus on and off.
    [[nodiscard]] static QKeySequence keys() { return {Qt::CTRL | Qt::SHIFT | Qt::Key_L}; }

private:
    void setLocked(bool locked);

    NodeLock& m_lock;
    ShownPath m_shownPath;
};
