#pragma once

#include "meridane/scene/nodes/NxGroup.h"

#include <QModelIndex>
#include <QWidget>

#include <vector>

class NodeSelection;
class QAction;
class QTreeView;
class SceneTreeModel;

/// The scene tree with its rows.
class SceneTreePanel : public QWidget {
    Q_OBJECT

public:
    explicit SceneTreePanel(QWidget* parent = nullptr);

    [[nodiscard]] SceneTreeModel* model() const noexcept { return m_model; }
    [[nodiscard]] QTreeView* view() const noexcept { return m_view; }

    /// All nodes that are selected.
    [[nodiscard]] NodeSelection& selection() const noexcept { return *m_selection; }
    /// The first cell of the row that was selected last, or an invalid index.
    [[nodiscard]] QModelIndex selected() const;
    [[nodiscard]] NxNode* selectedNode() const;
    /// The rows that lead to it, from the top one down; empty if none is selected. They are also the indices of nodes
    /// in their groups, but follow these a moment later.
    [[nodiscard]] std::vector<int> selectedRows() const;
    /// Selects the row of a node alone and scrolls to it, unless it is the one selected last; an invalid index selects
    /// nothing.
    void select(const QModelIndex& index);

    /// Shows a scene with its first nodes unfolded; null for none.
    void setScene(NxGroup* scene);
    /// Lets the user edit the name in the selected row.
    void renameSelected();
    /// Adds an action for the selected node to the tree's keys and context menu.
    void addNodeAction(QAction* action);

Q_SIGNALS:
    /// Other nodes are selected now, or none. The node is the one selected last, which may be the same as before.
    void selectionChanged(NxNode* node);

private:
    SceneTreeModel* m_model;
    QTreeView* m_view;
    NodeSelection* m_selection;
};
