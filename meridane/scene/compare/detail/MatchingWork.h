#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/compare/detail/MatchTables.h"
#include "meridane/scene/compare/detail/SceneDigest.h"
#include "meridane/scene/compare/detail/SceneMatching.h"

#include <cstdint>
#include <optional>

namespace meridane {

/// Finds out which nodes of two scenes correspond to each other, in slices, for scenes in one state.
class MatchingWork {
public:
    MatchingWork(NxGroup& left, NxGroup& right);

    /// Works until the budget is spent. Returns true if there is more to do.
    bool step(const WorkBudget& budget);
    /// Whether the structure of a scene has changed since the beginning, so that the work must not go on and the result
    /// isn't valid any more.
    [[nodiscard]] bool isOutdated() const { return m_revision != NxFieldContainer::getStructureRevision(); }
    /// The fraction of the work that is done, 0 to 1.
    [[nodiscard]] double progress() const;
    /// The result, once `step` has returned false.
    [[nodiscard]] MatchTables& tables() { return *m_tables; }
    [[nodiscard]] const MatchTables& tables() const { return *m_tables; }

private:
    /// Returns true if there is more to do.
    bool work();

    std::uint64_t m_revision;
    SceneDigest m_left;
    SceneDigest m_right;
    int m_digested = 0; // scenes
    std::optional<MatchTables> m_tables;
    std::optional<SceneMatching> m_matching;
};

} // namespace meridane
