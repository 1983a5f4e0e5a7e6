#include "meridane/scene/recovery/detail/DirtyRows.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <utility>

namespace meridane {

namespace {

// With more parts, the ones that are close together are joined.
constexpr std::size_t mostParts = 4096;

std::ptrdiff_t signedDifference(std::size_t left, std::size_t right)
{
    return static_cast<std::ptrdiff_t>(left) - static_cast<std::ptrdiff_t>(right);
}

} // namespace

void DirtyRows::replace(std::size_t start, std::size_t removed, std::size_t inserted)
{
    if (m_isWhole)
        return;
    // The parts that overlap the removed rows or touch them are joined.
    const auto first = std::partition_point(
        m_parts.begin(), m_parts.end(), [start](const Range& part) { return part.start + part.count < start; });
    const auto end = std::partition_point(
        first, m_parts.end(), [start, removed](const Range& part) { return part.start <= start + removed; });
    Range joined{start, 0, 0};
    std::size_t behind = start + removed;
    std::size_t dirty = 0;
    if (first != end) {
        joined.start = std::min(start, first->start);
        behind = std::max(behind, std::prev(end)->start + std::prev(end)->count);
    }
    for (auto part = first; part != end; ++part) {
        dirty += part->count;
        joined.stale += part->stale;
    }
    joined.stale += behind - joined.start - dirty;
    joined.count = behind - joined.start - removed + inserted;
    m_growth += signedDifference(inserted, removed);
    m_latest = static_cast<std::size_t>(first - m_parts.begin());
    if (first == end) {
        m_parts.insert(first, joined);
    } else {
        *first = joined;
        m_parts.erase(std::next(first), end);
    }
    for (std::size_t i = m_latest + 1; inserted != removed && i < m_parts.size(); ++i)
        m_parts[i].start = m_parts[i].start + inserted - removed;
    if (joined.count == 0 && joined.stale == 0)
        m_parts.erase(m_parts.begin() + static_cast<std::ptrdiff_t>(m_latest));
    else if (m_joining == Joining::Allowed && m_parts.size() > mostParts)
        limitParts();
}

// Halves the number of parts, so that a change never takes long. It adds as few rows as possible.
void DirtyRows::limitParts()
{
    const auto gapBefore
        = [this](std::size_t i) { return m_parts[i].start - m_parts[i - 1].start - m_parts[i - 1].count; };
    std::vector<std::size_t> gaps;
    for (std::size_t i = 1; i < m_parts.size(); ++i)
        gaps.push_back(gapBefore(i));
    const auto middle = gaps.begin() + static_cast<std::ptrdiff_t>(gaps.size() / 2);
    std::nth_element(gaps.begin(), middle, gaps.end());
    const std::size_t widest = *middle;
    std::vector<Range> parts{m_parts.front()};
    for (std::size_t i = 1; i < m_parts.size(); ++i) {
        const std::size_t gap = gapBefore(i);
        if (gap > widest) {
            parts.push_back(m_parts[i]);
            continue;
        }
        parts.back().count += gap + m_parts[i].count;
        parts.back().stale += gap + m_parts[i].stale;
    }
    m_parts = std::move(parts);
}

void DirtyRows::replaceAll(std::size_t count)
{
    if (m_isWhole)
        return;
    m_loggedRows = static_cast<std::size_t>(signedDifference(count, 0) - m_growth);
    m_parts.clear();
    m_isWhole = true;
}

void DirtyRows::setCount(std::size_t count)
{
    assert(m_isWhole && "the number is unknown");
    m_isWhole = false;
    m_growth = signedDifference(count, m_loggedRows);
    if (count > 0 || m_loggedRows > 0)
        m_parts.push_back({0, count, m_loggedRows});
}

// The last part, since the rows before it all have their final place in the list, and in that of the file.
DirtyRows::Part DirtyRows::next() const noexcept
{
    const Range& part = m_parts.back();
    const std::ptrdiff_t growthBefore = m_growth - signedDifference(part.count, part.stale);
    return {
        part.start, part.count, static_cast<std::size_t>(signedDifference(part.start, 0) - growthBefore), part.stale};
}

DirtyRows::Part DirtyRows::take(std::size_t count)
{
    Part taken = next();
    taken.count = std::min(count, taken.count);
    Range& part = m_parts.back();
    taken.stale = taken.count == part.count ? part.stale : std::min(taken.count, part.stale);
    m_growth -= signedDifference(taken.count, taken.stale);
    part.start += taken.count;
    part.count -= taken.count;
    part.stale -= taken.stale;
    if (part.count == 0)
        m_parts.pop_back();
    return taken;
}

std::optional<DirtyRows::Part> DirtyRows::takeStale()
{
    if (m_isWhole || m_latest >= m_parts.size() || m_parts[m_latest].stale == 0)
        return std::nullopt;
    Range& part = m_parts[m_latest];
    std::size_t inserted = 0;
    for (std::size_t i = 0; i < m_latest; ++i)
        inserted += m_parts[i].count;
    const Part taken{part.start, 0, part.start - inserted, part.stale};
    m_growth += signedDifference(part.stale, 0);
    part.stale = 0;
    if (part.count == 0)
        m_parts.erase(m_parts.begin() + static_cast<std::ptrdiff_t>(m_latest));
    return taken;
}

} // namespace meridane
