#include "meridane/scene/compare/detail/ComparisonWork.h"

namespace meridane {

ComparisonWork::ComparisonWork(NxGroup& left, NxGroup& right)
    : m_revision(NxFieldContainer::getStructureRevision())
    , m_left(left)
    , m_right(right)
{
}

bool ComparisonWork::step(const WorkBudget& budget)
{
    while (work(budget)) {
        if (budget.isSpent())
            return true;
    }
    return false;
}

bool ComparisonWork::work(const WorkBudget& budget)
{
    constexpr std::size_t nodesPerSlice = 64;
    if (m_collector)
        return m_collector->step(budget);
    if (m_matching) {
        if (!m_matching->step(nodesPerSlice))
            m_collector.emplace(*m_tables);
    } else if (m_digested == 2) {
        m_tables.emplace(m_left, m_right);
        m_matching.emplace(*m_tables);
    } else if (!(m_digested == 0 ? m_left : m_right).step(nodesPerSlice)) {
        ++m_digested;
    }
    return true;
}

double ComparisonWork::progress() const
{
    constexpr double digestShare = 0.25; // of one scene
    constexpr double collectorStart = 0.75;
    if (m_collector)
        return collectorStart + (1 - collectorStart) * m_collector->progress();
    return digestShare * m_digested;
}

} // namespace meridane
