#pragma once

#include "meridane/scene/nodes/NxNode.h"

#include <QItemSelection>
#include <QModelIndex>

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

class SceneTreeModel;

/// The rows of some nodes of a scene, each in its first place. They are looked for in one way through the scene, which
/// ends when all are found; the groups in which there are any are fetched and brought up to date.
class WantedRows {
public:
    /// The model has a scene; nodes that aren't in it are left out.
    WantedRows(SceneTreeModel& model, std::span<NxNode* const> nodes);

    /// Those that follow each other in a group are one range. The groups are in the order in which they were found.
    [[nodiscard]] QItemSelection ranges() const;
    /// The row of the first node; invalid if it isn't in the scene.
    [[nodiscard]] const QModelIndex& firstNode() const noexcept { return m_firstNode; }

private:
    struct Group {
        QModelIndex parent;
        std::vector<std::pair<int, int>> rows; // first and last of each range
    };
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
        std::size_t group = none; // that the children are in; `none` before one of them is found
        QModelIndex parent = {}; // of the rows of the children
        bool isUpdated = false; // the rows are those of the children
    };
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    void add(const NxNode& node);
    [[nodiscard]] QModelIndex latestParent();

    SceneTreeModel& m_model;
    const NxNode* m_first = nullptr;
    std::vector<Level> m_levels;
    std::vector<Group> m_groups;
    QModelIndex m_firstNode;
};
