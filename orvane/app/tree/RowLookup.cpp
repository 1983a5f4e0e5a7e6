#include "orvane/app/tree/RowLookup.h"

#include "orvane/app/tree/SceneTreeModel.h"

#include <utility>

QModelIndex RowLookup::find(std::span<NxNode* const> path)
{
    QModelIndex index;
    for (const NxNode* const step : path) {
        index = childOf(index, step);
        if (!index.isValid())
            break;
    }
    return index;
}

QModelIndex RowLookup::childOf(const QModelIndex& parent, const NxNode* node)
{
    Group& group = m_groups[parent];
    if (!std::exchange(group.wasUsed, true))
        return m_model.childIndex(parent, node);
    if (group.rows.empty()) {
        const int count = m_model.rowCount(parent);
        for (int row = 0; row < count; ++row)
            group.rows.try_emplace(m_model.node(m_model.index(row, SceneTreeModel::NameColumn, parent)), row);
    }
    const auto found = group.rows.find(node);
    return found != group.rows.end() ? m_model.index(found->second, SceneTreeModel::NameColumn, parent) : QModelIndex();
}
