#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/compare/NxSceneChanges.h"
#include "meridane/scene/compare/detail/MatchingWork.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace meridane {

/// One run of an update, for scenes in one state.
///
/// The result doesn't depend on how good the matching is. Each node of the other scene becomes one node of the updated
/// scene: its partner if that can take over its values, otherwise the node itself. No partner is shared, so the updated
/// scene has the structure of the other one whichever nodes are partners.
class UpdateWork {
public:
    UpdateWork(NxGroup& scene, NxGroup& other)
        : m_matching(scene, other)
    {
    }

    /// Works until the budget is spent. Returns true if there is more to do.
    bool step(const WorkBudget& budget);
    [[nodiscard]] bool isDone() const noexcept { return m_isDone; }
    [[nodiscard]] bool isOutdated() const { return m_matching.isOutdated(); }
    [[nodiscard]] double progress() const;
    [[nodiscard]] NxSceneChanges take() { return std::exchange(m_changes, NxSceneChanges()); }

private:
    [[nodiscard]] NxNode* result(std::uint32_t other);
    void visit(std::uint32_t other);
    void visitNode(NxNode& node, NxNode& other);
    void visitChildren(NxGroup& group, std::uint32_t other);

    MatchingWork m_matching;
    bool m_isMatched = false;
    bool m_isDone = false;
    std::uint32_t m_next = 0; // of the other scene
    std::vector<NxNode*> m_children; // of the group that is visited
    NxSceneChanges m_changes;
};

} // namespace meridane
