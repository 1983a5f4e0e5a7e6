#include "meridane/scene/compare/detail/ShortestEdit.h"

#include <algorithm>

namespace meridane {

// The diagonals of a number of edits are -edits, -edits + 2, ..., edits: places on the left minus places on the right.

void ShortestEdit::start(Place left, Place right, Same same)
{
    m_leftCount = left;
    m_rightCount = right;
    m_same = std::move(same);
    m_reaches.assign(1, {});
    m_diagonal = 0;
    m_left = 0;
    m_found = false;
    m_done = false;
}

bool ShortestEdit::step(std::size_t budget)
{
    for (; budget > 0 && !m_done; --budget)
        advance();
    return !m_done;
}

void ShortestEdit::advance()
{
    const std::int64_t right = m_left - m_diagonal;
    if (m_left < m_leftCount && right >= 0 && right < m_rightCount
        && m_same(static_cast<Place>(m_left), static_cast<Place>(right))) {
        ++m_left;
        return;
    }
    m_reaches.back().push_back(m_left);
    m_found = m_left >= m_leftCount && right >= m_rightCount;
    m_done = m_found;
    if (!m_found)
        nextDiagonal();
}

void ShortestEdit::nextDiagonal()
{
    const auto edits = static_cast<int>(m_reaches.size()) - 1;
    m_diagonal += 2;
    if (m_diagonal <= edits) {
        m_left = startOf(m_reaches[m_reaches.size() - 2], edits, m_diagonal);
        return;
    }
    m_done = edits == mostEdits;
    if (m_done)
        return;
    m_diagonal = -(edits + 1);
    m_left = startOf(m_reaches.back(), edits + 1, m_diagonal);
    m_reaches.emplace_back();
}

std::int64_t ShortestEdit::startOf(const Reach& before, int edits, int diagonal)
{
    const auto reach = [&before, edits](int near) { return before[static_cast<std::size_t>((near + edits - 1) / 2)]; };
    if (diagonal == -edits)
        return reach(diagonal + 1);
    if (diagonal == edits)
        return reach(diagonal - 1) + 1;
    return std::max(reach(diagonal + 1), reach(diagonal - 1) + 1);
}

std::vector<std::pair<ShortestEdit::Place, ShortestEdit::Place>> ShortestEdit::pairs() const
{
    std::vector<std::pair<Place, Place>> pairs;
    if (!m_found)
        return pairs;
    std::int64_t left = m_leftCount;
    auto diagonal = static_cast<int>(m_leftCount - m_rightCount);
    for (auto edits = static_cast<int>(m_reaches.size()) - 1; edits >= 0; --edits) {
        const std::int64_t begin
            = edits == 0 ? 0 : startOf(m_reaches[static_cast<std::size_t>(edits) - 1], edits, diagonal);
        for (; left > begin; --left)
            pairs.emplace_back(static_cast<Place>(left - 1), static_cast<Place>(left - 1 - diagonal));
        if (edits == 0)
            break;
        // The step before was down, an insertion, or to the right, a deletion.
        const Reach& before = m_reaches[static_cast<std::size_t>(edits) - 1];
        const bool isInsertion = diagonal == -edits
            || (diagonal != edits
                && startOf(before, edits, diagonal) == before[static_cast<std::size_t>((diagonal + edits) / 2)]);
        diagonal += isInsertion ? 1 : -1;
        left = isInsertion ? begin : begin - 1;
    }
    std::reverse(pairs.begin(), pairs.end());
    return pairs;
}

} // namespace meridane
