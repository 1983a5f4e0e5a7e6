#pragma once

#include <QObject>

class NodeActions;
class NxNode;
class QAction;
class QMainWindow;
class QMenu;
class SceneTreePanel;
class Session;

/// The Edit menu: undo and redo, and commands for the selected node.
class EditMenu : public QObject {
    Q_OBJECT

public:
    EditMenu(QMainWindow* window, Session& session, SceneTreePanel* tree);
    ~EditMenu() override;

    /// Renames a node as a step of the history.
    void renameNode(NxNode* node, const QString& name);
    [[nodiscard]] QList<QAction*> toolBarActions() const;
    /// What can be done with the selected nodes. The keys work in the tree, and in every other widget that the actions
    /// are added to.
    [[nodiscard]] QList<QAction*> nodeActions() const;
    [[nodiscard]] NodeActions& nodes() const noexcept { return *m_nodes; }

    /// Appends the action of the Settings window.
    void addSettings(QAction* action);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void updateActions();

    Session& m_session;
    QMenu* m_menu;
    SceneTreePanel* m_tree;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_rename;
    NodeActions* m_nodes;
};
