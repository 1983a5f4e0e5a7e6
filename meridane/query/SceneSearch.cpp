#include "meridane/query/SceneSearch.h"

#include "meridane/scene/nodes/NxNode.h"

#include <algorithm>
#include <utility>

namespace meridane {
namespace {

/// Between two looks at the clock.
constexpr std::size_t nodesAtOnce = 16;
constexpr std::size_t marksAtOnce = 64;

} // namespace

SceneSearch::SceneSearch(const Journal& journal)
    : m_index(journal)
{
}

void SceneSearch::restart()
{
    m_index.restart();
    begin({});
}

void SceneSearch::begin(Query query, std::shared_ptr<const QueryFacts> facts)
{
    m_query = std::move(query);
    m_facts = std::move(facts);
    m_next = 0;
    m_hits.clear();
    for (Flags* const flags : {&m_isHit, &m_leads}) {
        flags->reserve(m_index.mostEntries()); // so that they aren't moved while names are read
        flags->assign(m_index.size(), 0);
    }
    m_coming.reset();
    m_nextUse = 0;
}

bool SceneSearch::isComplete() const noexcept
{
    return m_next == m_index.size() && m_index.isComplete();
}

bool SceneSearch::step(const WorkBudget& budget)
{
    do {
        if (!isComplete())
            searchOn();
        else if (!markOn())
            return false;
    } while (!budget.isSpent());
    return true;
}

void SceneSearch::searchOn()
{
    if (m_next == m_index.size()) {
        m_index.extend(nodesAtOnce);
        m_isHit.resize(m_index.size());
        m_leads.resize(m_index.size());
    }
    const std::size_t end = std::min(m_next + nodesAtOnce, m_index.size());
    for (; m_next < end; ++m_next) {
        const auto entry = static_cast<Entry>(m_next);
        if (!matches(entry))
            continue;
        m_hits.push_back(entry);
        m_isHit[entry] = 1;
        markGroups(m_leads, entry);
    }
}

/// Marks the groups that lead to hits through further uses, which follow the first ones in the order of the scene.
bool SceneSearch::markOn()
{
    if (m_coming)
        m_coming->resize(m_index.size()); // which may have grown
    Flags& flags = m_coming ? *m_coming : m_leads;
    const std::size_t hits = m_coming ? m_hits.size() : 0;
    for (std::size_t i = 0; i < marksAtOnce; ++i) {
        if (m_coming && m_nextHit < hits) {
            markGroups(flags, m_hits[m_nextHit++]);
        } else if (m_nextUse < m_index.uses().size()) {
            const NodeIndex::Use& use = m_index.uses()[m_nextUse++];
            if (use.parent != NodeIndex::none && flags[use.parent] == 0
                && (m_isHit[use.node] != 0 || flags[use.node] != 0)) {
                flags[use.parent] = 1;
                markGroups(flags, use.parent);
            }
        } else {
            if (m_coming)
                m_leads = *std::exchange(m_coming, std::nullopt);
            return false;
        }
    }
    return true;
}

void SceneSearch::markGroups(Flags& flags, Entry entry) const
{
    for (Entry group = m_index.parent(entry); group != NodeIndex::none && flags[group] == 0;
         group = m_index.parent(group))
        flags[group] = 1;
}

bool SceneSearch::matches(Entry entry) const
{
    return !m_query.isEmpty() && m_query.matches(m_index, entry, m_facts.get());
}

std::size_t SceneSearch::hitsBefore(Entry entry) const
{
    return static_cast<std::size_t>(std::ranges::lower_bound(m_hits, entry) - m_hits.begin());
}

bool SceneSearch::isHit(const NxNode& node) const
{
    const std::optional<Entry> entry = m_index.find(node);
    return entry && m_isHit[*entry] != 0;
}

bool SceneSearch::leadsToHit(const NxNode& node) const
{
    const std::optional<Entry> entry = m_index.find(node);
    return entry && m_leads[*entry] != 0;
}

bool SceneSearch::update(const NxNode& node)
{
    const std::optional<Entry> entry = m_index.find(node);
    if (!entry)
        return false;
    m_index.updateName(*entry);
    if (*entry >= m_next)
        return false;
    const bool isHit = matches(*entry);
    if (isHit == (m_isHit[*entry] != 0))
        return false;
    const auto place = std::ranges::lower_bound(m_hits, *entry);
    if (isHit) {
        m_hits.insert(place, *entry);
        markGroups(m_leads, *entry);
    } else {
        m_hits.erase(place);
        m_coming.emplace(m_index.size(), std::uint8_t{0});
        m_nextHit = 0;
    }
    m_isHit[*entry] = isHit ? 1 : 0;
    if (m_coming) { // it may have passed the place
        std::ranges::fill(*m_coming, std::uint8_t{0});
        m_nextHit = 0;
    }
    m_nextUse = 0;
    return true;
}

} // namespace meridane
