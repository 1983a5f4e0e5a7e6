#pragma once

#include "meridane/scene/compare/NxSceneChanges.h"
#include "meridane/scene/edit/NodeRows.h"

#include <map>
#include <span>
#include <unordered_map>
#include <vector>

namespace meridane {

/// Which children are to leave groups and which are to come into them, so that all of it can be done as one change.
///
/// All indices are those of the groups as they are. The groups must not change as long as the plan is used.
class ChildrenPlan {
public:
    /// Lets children leave their groups. `rows` is rising.
    void remove(NxGroup& group, std::span<const int> rows);
    /// Lets all children of a set leave their groups.
    void remove(const NodeSet& set);
    /// Lets nodes come into a group before the child with that index, 0 to the number of children. Nodes that were
    /// planned for the same place earlier come before these. No node may be or contain the group when all is done.
    void insert(NxGroup& group, int index, std::span<NxNode* const> nodes);

    /// The index that the first node gets that is planned for this place; if there is none, that of the first child
    /// from `index` on that stays.
    [[nodiscard]] int indexAfter(const NxGroup& group, int index) const;
    /// The changes, one for each group, as small as they can be.
    [[nodiscard]] NxSceneChanges changes() const;

private:
    struct GroupPlan {
        NxRef<NxGroup> group;
        std::vector<int> leaving; // rising
        std::map<int, std::vector<NxRef<NxNode>>> coming; // by the index
    };

    GroupPlan& planOf(NxGroup& group);
    [[nodiscard]] static NxSceneChanges::ChildrenChange changeOf(const GroupPlan& plan);

    std::vector<GroupPlan> m_plans;
    std::unordered_map<const NxGroup*, std::size_t> m_numbers; // of the plans
};

} // namespace meridane
