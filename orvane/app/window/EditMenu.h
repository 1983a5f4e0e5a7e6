#pragma once

#include <QObject>

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
    void deleteNode();
    [[nodiscard]] QList<QAction*> toolBarActions() const;
    /// Deletes the selected node. Its key works in the tree, and in every other widget that the action is added to.
    [[nodiscard]] QAction* deleteAction() const noexcept { return m_delete; }
    /// What can be done with the node that is selected in the tree.
    [[nodiscard]] QList<QAction*> nodeActions() const { return {m_rename, m_delete}; }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void updateActions();

    Session& m_session;
    SceneTreePanel* m_tree;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_rename;
    QAction* m_delete;
};
