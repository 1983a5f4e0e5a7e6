#include "orvane/app/tree/facts/PlaceCount.h"

namespace {

/// Between two looks at the clock.
constexpr std::size_t placesAtOnce = 128;

} // namespace

PlaceCount::PlaceCount(NxGroup& scene, std::span<NxNode* const> nodes)
    : m_scene(&scene)
    , m_wanted(nodes.begin(), nodes.end())
{
    restart();
}

void PlaceCount::restart()
{
    m_revision = NxFieldContainer::getStructureRevision();
    m_levels.assign(1, {m_scene->getChildren()});
    m_found.clear();
    m_visited = 0;
    m_count = 0;
}

bool PlaceCount::advance(const meridane::WorkBudget& budget)
{
    if (m_revision != NxFieldContainer::getStructureRevision())
        restart();
    while (!m_levels.empty()) {
        Level& level = m_levels.back();
        if (level.next == level.children.size() || m_visited == mostPlaces) {
            m_levels.pop_back();
            continue;
        }
        const NxNode& node = *level.children[level.next++];
        if (m_wanted.contains(&node)) {
            m_found.insert(&node);
            ++m_count;
        }
        if (const auto children = node.getChildren(); !children.empty())
            m_levels.push_back({children});
        if (++m_visited % placesAtOnce == 0 && budget.isSpent())
            return m_levels.empty();
    }
    return true;
}
