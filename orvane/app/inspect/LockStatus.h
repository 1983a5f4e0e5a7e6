#pragma once

#include <QToolButton>

class NodeLock;

/// Says in the status bar that fields and editors stay on a node, and which. A click turns the lock off. It is hidden
/// while the lock is off.
class LockStatus : public QToolButton {
    Q_OBJECT

public:
    /// The lock lives as long as the button. `keys` turn the lock off as well.
    LockStatus(NodeLock& lock, const QKeySequence& keys, QWidget* parent);

private:
    void update();

    NodeLock& m_lock;
    QString m_keys;
};
