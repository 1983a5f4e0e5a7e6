#include "meridane/scene/check/detail/ProblemLists.h"

#include <utility>

namespace meridane {

std::uint32_t ProblemLists::set(std::uint32_t list, std::vector<NxSceneProblem> problems)
{
    if (list == none && problems.empty())
        return none;
    if (list == none && !m_free.empty()) {
        list = m_free.back();
        m_free.pop_back();
    } else if (list == none) {
        list = static_cast<std::uint32_t>(m_lists.size());
        m_lists.emplace_back();
    }
    List& place = m_lists[list];
    if (!std::exchange(place.isChanged, true))
        m_changed.push_back(list);
    add(place.problems, static_cast<std::size_t>(-1));
    add(problems, 1);
    place.problems = std::move(problems);
    if (!place.problems.empty())
        return list;
    m_free.push_back(list);
    return none;
}

std::span<const NxSceneProblem> ProblemLists::get(std::uint32_t list) const noexcept
{
    return list < m_lists.size() ? std::span<const NxSceneProblem>(m_lists[list].problems)
                                 : std::span<const NxSceneProblem>();
}

std::vector<std::uint32_t> ProblemLists::takeChanges()
{
    for (const std::uint32_t list : m_changed)
        m_lists[list].isChanged = false;
    return std::exchange(m_changed, {});
}

// Counts wrap around, so adding the greatest number subtracts one.
void ProblemLists::add(std::span<const NxSceneProblem> problems, std::size_t sign) noexcept
{
    for (const NxSceneProblem& problem : problems)
        m_counts[static_cast<std::size_t>(problem.about().severity)] += sign;
}

} // namespace meridane
