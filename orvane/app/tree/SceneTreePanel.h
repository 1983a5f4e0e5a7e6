#pragma once

#include "orvane/app/tree/FoldState.h"

#include "meridane/scene/nodes/NxGroup.h"

#include <QModelIndex>
#include <QWidget>

#include <memory>
#include <span>
#include <vector>

class HiddenNodes;
class NodeMarks;
class NodeSelection;
class QAction;
class QTreeView;
class QVBoxLayout;
class SceneTreeModel;
class SceneTreeView;

/// The scene tree with its rows.
class SceneTreePanel : public QWidget {
    Q_OBJECT

public:
    explicit SceneTreePanel(QWidget* parent = nullptr);

    [[nodiscard]] SceneTreeModel* model() const noexcept { return m_model; }
    [[nodiscard]] QTreeView* view() const noexcept;

    /// All nodes that are selected.
    [[nodiscard]] NodeSelection& selection() const noexcept { return *m_selection; }
    /// The nodes that are hidden in the view.
    [[nodiscard]] HiddenNodes& hidden() const noexcept { return *m_hidden; }
    /// The first cell of the row that was selected last, or an invalid index.
    [[nodiscard]] QModelIndex selected() const;
    [[nodiscard]] NxNode* selectedNode() const;
    /// The rows that lead to it, from the top one down; empty if none is selected. They are also the indices of nodes
    /// in their groups, but follow these a moment later.
    [[nodiscard]] std::vector<int> selectedRows() const;
    /// Selects the row of a node alone and scrolls to it, unless it already is; an invalid index selects nothing.
    void select(const QModelIndex& index);

    /// Draws the names of hits in bold and greys what neither is one nor leads to one; null ends it. To be called again
    /// whenever the answers of the marks have changed.
    void setMarks(const std::shared_ptr<const NodeMarks>& marks);
    /// Which rows are unfolded now.
    [[nodiscard]] FoldState foldState() const;
    /// Folds and unfolds rows so that those are unfolded that were then, as far as they are still there.
    void restoreFolds(const FoldState& state);
    /// Unfolds all that is above the last of these nodes, each a child of the one before. To show many nodes of one
    /// group, call it for one of them: each call looks for the nodes among all their siblings.
    void unfoldTo(std::span<NxNode* const> path);
    /// Lays the rows out again before they are used next, so that folding any number of them until then takes hardly
    /// any time.
    void layoutLater();
    /// Shows a widget above the tree, which the panel owns from now on. Deletes the one before.
    void setHeaderWidget(QWidget* widget);
    /// Shows a widget directly above the tree, below those that were added before.
    void addTopWidget(QWidget* widget);

    /// Shows a scene with its first nodes unfolded; null for none.
    void setScene(NxGroup* scene);
    /// Lets the user edit the name in the selected row.
    void renameSelected();
    /// Adds an action for the selected node to the tree's keys and context menu.
    void addNodeAction(QAction* action);

Q_SIGNALS:
    /// A scene is shown now, or none.
    void sceneShown();
    /// Other nodes are selected now, or none. The node is the one selected last, which may be the same as before.
    void selectionChanged(NxNode* node);

private:
    void clickEye(const QModelIndex& index);
    void setUpColumns();
    void unfoldFirst();
    void unfold(const QModelIndex& index);

    SceneTreeModel* m_model;
    HiddenNodes* m_hidden;
    SceneTreeView* m_view;
    NodeSelection* m_selection;
    QVBoxLayout* m_layout;
    QWidget* m_header = nullptr;
};
