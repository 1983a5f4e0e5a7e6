#pragma once

#include "meridane/scene/check/NxSceneProblem.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

namespace meridane {

/// The problems that were found, as numbered lists that are replaced as a whole: one for the values of a node, one for
/// the children of a group.
class ProblemLists {
public:
    static constexpr std::uint32_t none = UINT32_MAX;

    /// Replaces the list of that number; for `none` makes one, if there are problems. A list without problems is given
    /// up. Returns its number, or `none`. May throw `std::bad_alloc`.
    std::uint32_t set(std::uint32_t list, std::vector<NxSceneProblem> problems);
    /// The problems of a list; none if there is no such list.
    [[nodiscard]] std::span<const NxSceneProblem> get(std::uint32_t list) const noexcept;
    /// All numbers of lists are less than this.
    [[nodiscard]] std::size_t end() const noexcept { return m_lists.size(); }

    /// The lists that have changed since the last call, each once.
    [[nodiscard]] std::vector<std::uint32_t> takeChanges();
    /// The number of problems of that severity.
    [[nodiscard]] std::size_t count(NxSeverity severity) const noexcept
    {
        return m_counts[static_cast<std::size_t>(severity)];
    }

private:
    struct List {
        std::vector<NxSceneProblem> problems;
        bool isChanged = false;
    };

    void add(std::span<const NxSceneProblem> problems, std::size_t sign) noexcept;

    // A deque, which grows without moving its elements.
    std::deque<List> m_lists;
    std::vector<std::uint32_t> m_free;
    std::vector<std::uint32_t> m_changed;
    std::array<std::size_t, 3> m_counts{}; // by severity
};

} // namespace meridane
