#pragma once

#include "meridane/scene/nodes/NxGroup.h"

#include <QModelIndex>
#include <QWidget>

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

    /// The first cell of the row that is selected, or an invalid index.
    [[nodiscard]] QModelIndex selected() const;
    [[nodiscard]] NxNode* selectedNode() const;
    /// Selects the row of a node and scrolls to it; an invalid index selects nothing.
    void select(const QModelIndex& index);

    /// Shows a scene with its first nodes unfolded; null for none.
    void setScene(NxGroup* scene);
    /// Lets the user edit the name in the selected row.
    void renameSelected();
    /// Adds an action for the selected node to the tree's keys and context menu.
    void addNodeAction(QAction* action);

Q_SIGNALS:
    /// Another node is selected now, or none.
    void selectionChanged(NxNode* node);

private:
    SceneTreeModel* m_model;
    QTreeView* m_view;
};
