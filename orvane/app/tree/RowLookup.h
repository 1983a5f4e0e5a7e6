#pragma once

#include <QHash>
#include <QModelIndex>

#include <span>
#include <unordered_map>

class NxNode;
class SceneTreeModel;

/// Finds the rows of many paths of nodes. A group that is looked into more than once gets a table of its rows, which
/// holds until the scene changes.
class RowLookup {
public:
    explicit RowLookup(SceneTreeModel& model)
        : m_model(model)
    {
    }

    /// As `SceneTreeModel::indexOfPath`.
    [[nodiscard]] QModelIndex find(std::span<NxNode* const> path);

private:
    struct Group {
        bool wasUsed = false;
        std::unordered_map<const NxNode*, int> rows;
    };

    [[nodiscard]] QModelIndex childOf(const QModelIndex& parent, const NxNode* node);

    SceneTreeModel& m_model;
    QHash<QModelIndex, Group> m_groups;
};
