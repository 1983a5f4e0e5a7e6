#include "meridane/gl/gpu/detail/RangeList.h"

#include <algorithm>
#include <iterator>

namespace meridane {

std::optional<std::uint32_t> RangeList::take(std::uint32_t size)
{
    if (size == 0)
        return 0;
    const auto fits = [size](const auto& range) { return range.second >= size; };
    const auto place = std::find_if(m_free.begin(), m_free.end(), fits);
    if (place == m_free.end())
        return std::nullopt;
    const auto [start, available] = *place;
    m_free.erase(place);
    if (available > size)
        m_free.emplace(start + size, available - size);
    return start;
}

void RangeList::release(std::uint32_t start, std::uint32_t size)
{
    if (size == 0)
        return;
    auto place = m_free.emplace(start, size).first;
    if (const auto next = std::next(place); next != m_free.end() && start + size == next->first) {
        place->second += next->second;
        m_free.erase(next);
    }
    if (place == m_free.begin())
        return;
    if (const auto before = std::prev(place); before->first + before->second == start) {
        before->second += place->second;
        m_free.erase(place);
    }
}

bool RangeList::canTake(std::uint32_t size) const
{
    return size == 0
        || std::any_of(m_free.begin(), m_free.end(), [size](const auto& range) { return range.second >= size; });
}

} // namespace meridane
