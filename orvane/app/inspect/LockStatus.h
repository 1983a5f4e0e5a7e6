#pragma once

#include <QToolButton>

class NodeLock;
class QAction;

/// Says in the status bar that fields and editors stay on a node, and which. A click turns the lock off. It is hidden
/// while the lock is off.
class LockStatus : public QToolButton {
    Q_OBJECT

public:
    /// Both live as long as the button. The keys of the action turn the lock off as well.
    LockStatus(NodeLock& lock, const QAction* action, QWidget* parent);

private:
    void update();

    NodeLock& m_lock;
    const QAction* m_action;
};
