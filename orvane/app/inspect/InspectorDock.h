#pragma once

#include <QDockWidget>

class FieldPanel;
class LockAction;
class NodeLock;
class NxField;
class NxNode;
class SceneTreePanel;
class Session;

/// A further inspector: a field table in a dock of its own. It shows the node that is selected in the tree, or stays on
/// the one that it is locked on. Closing it deletes it.
class InspectorDock : public QDockWidget {
    Q_OBJECT

public:
    /// All live longer than the dock. The number is part of its title and of its object name.
    InspectorDock(int number, Session& session, SceneTreePanel* tree, QWidget* parent);
    ~InspectorDock() override;

    [[nodiscard]] int number() const noexcept { return m_number; }
    [[nodiscard]] FieldPanel& panel() const noexcept { return *m_panel; }
    [[nodiscard]] NodeLock& lock() const noexcept { return *m_lock; }
    [[nodiscard]] LockAction& lockAction() const noexcept { return *m_lockAction; }

protected:
    bool event(QEvent* event) override;

private:
    void follow();
    void choose(NxField* field);
    void showField(const NxField* field);

    int m_number;
    Session& m_session;
    SceneTreePanel* m_tree;
    FieldPanel* m_panel;
    NodeLock* m_lock;
    LockAction* m_lockAction;
};
