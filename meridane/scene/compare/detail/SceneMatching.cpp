#include "meridane/scene/compare/detail/SceneMatching.h"

#include "meridane/scene/compare/detail/HashMix.h"

#include <algorithm>

namespace meridane {

bool SceneMatching::step(std::size_t budget)
{
    constexpr std::size_t childrenAtOnce = 16;
    for (std::size_t done = 0; done < budget && m_phase != Phase::Done; ++done) {
        if (m_aligning) {
            m_aligning = m_alignment.step(childrenAtOnce);
            done += childrenAtOnce - 1;
        } else if (!m_tables.pending().empty()) {
            m_alignment.start(m_tables.pending().front());
            m_tables.pending().pop_front();
            m_aligning = true;
        } else {
            work();
        }
    }
    return m_phase != Phase::Done;
}

void SceneMatching::work()
{
    switch (m_phase) {
    case Phase::Children:
        m_next = 0;
        m_phase = Phase::CountLeft;
        return;
    case Phase::CountLeft:
        return count(LeftScene);
    case Phase::CountRight:
        return count(RightScene);
    case Phase::AddLeft:
        return add(LeftScene);
    case Phase::AddRight:
        return add(RightScene);
    case Phase::Match:
        return matchNext();
    case Phase::Done:
        return;
    }
}

void SceneMatching::count(SceneSide side)
{
    if (m_next < m_tables.scene(side).nodeCount()) {
        if (isLeft(side, m_next++))
            ++m_leftOver[side];
        return;
    }
    m_next = 0;
    if (side == LeftScene)
        m_phase = Phase::CountRight;
    else
        startCriterion(Criterion::NameAndClass);
}

void SceneMatching::startCriterion(Criterion criterion)
{
    m_criterion = criterion;
    m_next = 0;
    if (criterion == Criterion::End || m_leftOver[LeftScene] == 0 || m_leftOver[RightScene] == 0) {
        m_phase = Phase::Done;
        return;
    }
    for (const SceneSide side : {LeftScene, RightScene})
        m_queues[side].start(m_leftOver[side]);
    m_phase = Phase::AddLeft;
}

void SceneMatching::add(SceneSide side)
{
    if (m_next < m_tables.scene(side).nodeCount()) {
        const std::uint32_t node = m_next++;
        const auto key = isLeft(side, node) ? keyOf(side, node) : std::nullopt;
        if (key)
            m_queues[side].add(*key, node);
        return;
    }
    m_next = 0;
    m_phase = side == LeftScene ? Phase::AddRight : Phase::Match;
}

// In the order of the scene, so that what is below a node that was moved is matched with it.
void SceneMatching::matchNext()
{
    if (m_next == m_tables.scene(LeftScene).nodeCount())
        return startCriterion(static_cast<Criterion>(static_cast<int>(m_criterion) + 1));
    const std::uint32_t left = m_next++;
    if (!isLeft(LeftScene, left))
        return;
    const auto key = keyOf(LeftScene, left);
    if (!key || m_queues[LeftScene].onlyOne(*key) == KeyQueues::none)
        return;
    const std::uint32_t right = m_queues[RightScene].onlyOne(*key);
    if (right == KeyQueues::none || !isLeft(RightScene, right))
        return;
    // Two nodes that came and went with their groups may have the same name by chance.
    const bool isAnyTop = isTop(LeftScene, left) || isTop(RightScene, right);
    const bool isEqual = m_tables.scene(LeftScene).node(left).hash == m_tables.scene(RightScene).node(right).hash;
    if (isAnyTop || isEqual)
        m_tables.match(left, right);
}

bool SceneMatching::isTop(SceneSide side, std::uint32_t node) const
{
    return m_tables.hasPartner(side, m_tables.scene(side).parentOf(node));
}

std::optional<std::uint64_t> SceneMatching::keyOf(SceneSide side, std::uint32_t node) const
{
    const SceneDigest::Node& entry = m_tables.scene(side).node(node);
    const std::string_view name = entry.node->getName().view();
    if (m_criterion == Criterion::NameAndClass)
        return name.empty() ? std::nullopt : std::optional(mixHash(hashOf(name), hashOf(entry.node->getClassName())));
    if (!entry.hasContent)
        return std::nullopt;
    return m_criterion == Criterion::Everything ? entry.hash : entry.contentHash;
}

} // namespace meridane
