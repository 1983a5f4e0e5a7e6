#include "meridane/scene/compare/detail/RisingRun.h"

#include <algorithm>

namespace meridane {

void RisingRun::clear()
{
    m_elements.clear();
    m_ends.clear();
}

void RisingRun::add(std::uint32_t number)
{
    const auto isLess = [this](std::uint32_t place, std::uint32_t value) { return m_elements[place].number < value; };
    const bool isGreatest = m_ends.empty() || isLess(m_ends.back(), number);
    const auto end = isGreatest ? m_ends.end() : std::lower_bound(m_ends.begin(), m_ends.end(), number, isLess);
    const auto place = static_cast<std::uint32_t>(m_elements.size());
    m_elements.push_back({number, end == m_ends.begin() ? none : *(end - 1)});
    if (end == m_ends.end())
        m_ends.push_back(place);
    else
        *end = place;
}

std::vector<std::uint32_t> RisingRun::places() const
{
    std::vector<std::uint32_t> places(m_ends.size());
    std::uint32_t place = m_ends.empty() ? none : m_ends.back();
    for (std::size_t i = places.size(); i > 0; --i) {
        places[i - 1] = place;
        place = m_elements[place].before;
    }
    return places;
}

} // namespace meridane
