#include "orvane/app/inspect/PlaceHistory.h"

#include <cstddef>

void PlaceHistory::visit(std::span<NxNode* const> path, std::span<const int> rows)
{
    if (!m_visits.empty() && node(m_present) == path.back()) {
        m_isAway = false;
        return;
    }
    if (!m_visits.empty())
        m_visits.erase(m_visits.begin() + static_cast<std::ptrdiff_t>(m_present) + 1, m_visits.end());
    std::erase_if(m_visits, [](const Visit& visit) { return visit.place.node() == nullptr; });
    if (m_visits.size() == mostPlaces)
        m_visits.erase(m_visits.begin());
    m_visits.push_back({ScenePlace(path, rows), VbName()});
    m_present = m_visits.size() - 1;
    m_isAway = false;
}

void PlaceHistory::noteField(const NxFieldContainer& node, const VbName& field)
{
    if (!m_isAway && this->node(m_present) == &node)
        m_visits[m_present].field = field;
}

void PlaceHistory::clear()
{
    m_visits.clear();
    m_present = 0;
    m_isAway = true;
}

std::vector<std::size_t> PlaceHistory::places(Direction direction, const NxNode& scene, std::size_t most) const
{
    std::vector<std::size_t> result;
    const NxNode* before = m_isAway || m_visits.empty() ? nullptr : node(m_present);
    const auto consider = [&](std::size_t place) {
        // Two visits of one node follow each other if a node between them is gone.
        if (result.size() == most || node(place) == before || m_visits[place].place.path(scene).empty())
            return;
        before = node(place);
        result.push_back(place);
    };
    if (m_visits.empty())
        return result;
    if (direction == Direction::Forward) {
        for (std::size_t place = m_present + 1; place < m_visits.size(); ++place)
            consider(place);
    } else {
        for (std::size_t place = m_isAway ? m_present + 1 : m_present; place > 0; --place)
            consider(place - 1);
    }
    return result;
}

bool PlaceHistory::isPlaceOf(std::size_t place, const NxNode* node, const NxNode& scene) const
{
    return place < m_visits.size() && this->node(place) == node && !m_visits[place].place.path(scene).empty();
}

PlaceHistory::Stop PlaceHistory::goTo(std::size_t place, const NxNode& scene)
{
    m_present = place;
    m_isAway = false;
    return {m_visits[place].place.path(scene), m_visits[place].field};
}
