#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/compare/detail/DifferenceCollector.h"
#include "meridane/scene/compare/detail/MatchTables.h"
#include "meridane/scene/compare/detail/SceneDigest.h"
#include "meridane/scene/compare/detail/SceneMatching.h"

#include <cstdint>
#include <optional>

namespace meridane {

/// One run of a comparison, of scenes in one state.
class ComparisonWork {
public:
    ComparisonWork(NxGroup& left, NxGroup& right);

    /// Works until the budget is spent. Returns true if there is more to do.
    bool step(const WorkBudget& budget);
    /// Whether the structure of a scene has changed since the beginning, so that the work must not go on.
    [[nodiscard]] bool isOutdated() const { return m_revision != NxFieldContainer::getStructureRevision(); }
    [[nodiscard]] double progress() const;
    [[nodiscard]] NxSceneDifferences&& take() { return m_collector->take(); }

private:
    /// Returns true if there is more to do.
    bool work(const WorkBudget& budget);

    std::uint64_t m_revision;
    SceneDigest m_left;
    SceneDigest m_right;
    int m_digested = 0; // scenes
    std::optional<MatchTables> m_tables;
    std::optional<SceneMatching> m_matching;
    std::optional<DifferenceCollector> m_collector;
};

} // namespace meridane
