#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace meridane {

/// Finds the longest common subsequence of two sequences that differ in few elements, in slices.
///
/// It is the greedy algorithm of Myers: it tries 0, 1, 2 and more insertions and deletions, and for each number notes
/// how far that leads on each diagonal.
class ShortestEdit {
public:
    /// Beyond this number of insertions and deletions it gives up.
    static constexpr int mostEdits = 64;

    using Place = std::uint32_t;
    /// Whether an element of the left sequence equals one of the right.
    using Same = std::function<bool(Place left, Place right)>;

    /// For sequences of those lengths.
    void start(Place left, Place right, Same same);
    /// Does about `budget` comparisons. Returns true if there is more to do.
    bool step(std::size_t budget);
    /// The places of the common elements; empty if it gave up.
    [[nodiscard]] std::vector<std::pair<Place, Place>> pairs() const;

private:
    using Reach = std::vector<std::int64_t>; // for each diagonal, from the lowest, the place on the left

    void advance();
    void nextDiagonal();
    /// The place on the left from which a diagonal goes on, after one more edit than in `before`.
    [[nodiscard]] static std::int64_t startOf(const Reach& before, int edits, int diagonal);

    std::int64_t m_leftCount = 0;
    std::int64_t m_rightCount = 0;
    Same m_same;
    std::vector<Reach> m_reaches; // for each number of edits
    int m_diagonal = 0;
    std::int64_t m_left = 0;
    bool m_found = false;
    bool m_done = true;
};

} // namespace meridane
