#include "orvane/app/tree/TreeUnfolding.h"

#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/tree/SceneTreeView.h"

namespace {

/// The rows with children among those, and how many rows are below them.
std::size_t foldable(const SceneTreeModel& model, const QModelIndexList& rows, QModelIndexList& parents)
{
    std::size_t count = 0;
    for (const QModelIndex& row : rows) {
        if (const std::size_t children = model.node(row)->getChildren().size(); children > 0) {
            parents.append(row);
            count += children;
        }
    }
    return count;
}

} // namespace

TreeUnfolding::Result TreeUnfolding::unfoldBelow(const QModelIndexList& rows, int levels)
{
    SceneTreeModel& model = *m_tree.model();
    m_tree.layoutLater();
    Result result;
    QModelIndexList level = rows;
    for (std::size_t total = 0; result.levels < levels; ++result.levels) {
        QModelIndexList parents;
        const std::size_t below = foldable(model, level, parents);
        if (below == 0)
            break;
        total += below;
        result.isCut = total > mostRows;
        if (result.isCut)
            break;
        level.clear();
        for (const QModelIndex& parent : parents) {
            model.fetchMore(parent);
            m_tree.view()->expand(parent);
            for (int row = 0; row < model.rowCount(parent); ++row)
                level.append(model.index(row, SceneTreeModel::NameColumn, parent));
        }
    }
    return result;
}

TreeUnfolding::Result TreeUnfolding::unfoldTo(int level)
{
    SceneTreeModel& model = *m_tree.model();
    m_tree.restoreFolds(FoldState());
    QModelIndexList top;
    for (int row = 0; row < model.rowCount(); ++row)
        top.append(model.index(row, SceneTreeModel::NameColumn));
    return unfoldBelow(top, level - 1);
}
