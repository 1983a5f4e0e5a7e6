#pragma once

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxRef.h"

#include <QModelIndex>
#include <QObject>

#include <memory>
#include <span>
#include <vector>

class NxNode;
class QItemSelection;
class SceneTreeModel;
class SceneTreeView;

/// The nodes that are selected in the scene tree, each once, however many places it has.
///
/// One of them is the last one: the one that editors and docks show. Nodes that are deleted leave the selection.
class NodeSelection : public QObject {
    Q_OBJECT

public:
    using Nodes = std::vector<NxRef<NxFieldContainer>>;

    /// The view shows the model; both live longer.
    NodeSelection(SceneTreeView* view, SceneTreeModel* model);

    /// The nodes; the one selected last is the first of them, and the others are in the order in which they were
    /// selected. Null if none is. The object stays the same until the selection changes.
    [[nodiscard]] std::shared_ptr<const Nodes> nodes() const;
    /// The number of rows that are selected.
    [[nodiscard]] qsizetype rowCount() const;
    /// The ranges of all selected rows. Valid until others are selected, or rows come or go.
    [[nodiscard]] const QItemSelection& ranges() const;
    /// The first cells of all selected rows, in the order of the tree. A node may be in several of them.
    [[nodiscard]] QModelIndexList indexes() const;
    /// The row of the node selected last, its first cell; invalid if none is selected.
    [[nodiscard]] QModelIndex lastIndex() const;

    /// Selects these nodes and no others; the first one is the one selected last. Nodes that aren't in the scene are
    /// left out. It takes one way through the scene.
    void select(std::span<NxNode* const> nodes);
    /// Selects these rows and no others. `last` becomes the one selected last if it is one of them, else the first is.
    /// Takes time in proportion to them.
    void selectIndexes(const QModelIndexList& indexes, const QModelIndex& last = {});
    /// The same for ranges of whole rows: takes time in proportion to the ranges, however many rows they have. The view
    /// scrolls to `last` unless it is invalid.
    void selectRanges(const QItemSelection& ranges, const QModelIndex& last);
    /// Adds the node of a row, or takes it away if it is selected.
    void toggle(const QModelIndex& index);

Q_SIGNALS:
    /// Other nodes are selected than before.
    void changed();

private:
    void forget();

    SceneTreeView* m_view;
    SceneTreeModel* m_model;
    bool m_hasAny = false;
    mutable std::shared_ptr<const Nodes> m_nodes; // null if they have to be collected, and if there are none
};
