#include "meridane/scene/compare/detail/ComparisonWork.h"

namespace meridane {

bool ComparisonWork::step(const WorkBudget& budget)
{
    if (!m_collector) {
        if (m_matching.step(budget))
            return true;
        m_collector.emplace(m_matching.tables());
    }
    return m_collector->step(budget);
}

double ComparisonWork::progress() const
{
    constexpr double matchingShare = 0.75;
    if (m_collector)
        return matchingShare + (1 - matchingShare) * m_collector->progress();
    return matchingShare * m_matching.progress();
}

} // namespace meridane
