#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/compare/detail/DifferenceCollector.h"
#include "meridane/scene/compare/detail/MatchingWork.h"

#include <optional>

namespace meridane {

/// One run of a comparison, of scenes in one state.
class ComparisonWork {
public:
    ComparisonWork(NxGroup& left, NxGroup& right)
        : m_matching(left, right)
    {
    }

    /// Works until the budget is spent. Returns true if there is more to do.
    bool step(const WorkBudget& budget);
    /// Whether the structure of a scene has changed since the beginning, so that the work must not go on.
    [[nodiscard]] bool isOutdated() const { return m_matching.isOutdated(); }
    [[nodiscard]] double progress() const;
    [[nodiscard]] NxSceneDifferences&& take() { return m_collector->take(); }

private:
    MatchingWork m_matching;
    std::optional<DifferenceCollector> m_collector;
};

} // namespace meridane
