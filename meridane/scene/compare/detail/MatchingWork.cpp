#include "meridane/scene/compare/detail/MatchingWork.h"

namespace meridane {

MatchingWork::MatchingWork(NxGroup& left, NxGroup& right)
    : m_revision(NxFieldContainer::getStructureRevision())
    , m_left(left)
    , m_right(right)
{
}

bool MatchingWork::step(const WorkBudget& budget)
{
    while (work()) {
        if (budget.isSpent())
            return true;
    }
    return false;
}

bool MatchingWork::work()
{
    constexpr std::size_t nodesPerSlice = 64;
    if (m_matching)
        return m_matching->step(nodesPerSlice);
    if (m_digested == 2) {
        m_tables.emplace(m_left, m_right);
        m_matching.emplace(*m_tables);
    } else if (!(m_digested == 0 ? m_left : m_right).step(nodesPerSlice)) {
        ++m_digested;
    }
    return true;
}

double MatchingWork::progress() const
{
    constexpr double digestShare = 1.0 / 3; // of one scene
    return digestShare * m_digested;
}

} // namespace meridane
