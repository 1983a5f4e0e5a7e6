#include "meridane/scene/compare/detail/ChildAlignment.h"

#include "meridane/scene/compare/detail/HashMix.h"
#include "meridane/scene/compare/detail/NodeLikeness.h"

#include <algorithm>

namespace meridane {

void ChildAlignment::start(const MatchTables::Pair& groups)
{
    m_groups = groups;
    const std::array<std::uint32_t, 2> numbers{groups.left, groups.right};
    for (const SceneSide side : {LeftScene, RightScene}) {
        const SceneDigest::Node& group = m_tables.scene(side).node(numbers[side]);
        m_sides[side].begin = group.firstSlot;
        m_sides[side].end = group.firstSlot + group.slotCount;
        m_sides[side].rest.clear();
    }
    m_phase = Phase::Beginning;
}

bool ChildAlignment::step(std::size_t budget)
{
    for (; budget > 0 && m_phase != Phase::Done; --budget)
        work();
    return m_phase != Phase::Done;
}

void ChildAlignment::work()
{
    switch (m_phase) {
    case Phase::Beginning:
        return skipBeginning();
    case Phase::End:
        return skipEnd();
    case Phase::Edits:
        return findEdits();
    case Phase::Rest:
        return gatherRest();
    case Phase::AddLeft:
        return add(LeftScene);
    case Phase::AddRight:
        return add(RightScene);
    case Phase::Match:
        return matchNext();
    case Phase::Gaps:
    case Phase::Order:
        return visitOrder();
    case Phase::Done:
        return;
    }
}

bool ChildAlignment::isSame(std::uint32_t leftSlot, std::uint32_t rightSlot) const
{
    const std::uint32_t left = m_tables.nodeOfSlot(LeftScene, leftSlot);
    const std::uint32_t right = m_tables.nodeOfSlot(RightScene, rightSlot);
    if (!m_groups.isCopy && (m_tables.hasPartner(LeftScene, left) || m_tables.hasPartner(RightScene, right)))
        return m_tables.arePartners(left, right);
    return m_tables.scene(LeftScene).node(left).hash == m_tables.scene(RightScene).node(right).hash;
}

void ChildAlignment::skipBeginning()
{
    Side& left = m_sides[LeftScene];
    Side& right = m_sides[RightScene];
    if (left.begin < left.end && right.begin < right.end && isSame(left.begin, right.begin))
        m_tables.pairSlots(left.begin++, right.begin++);
    else
        m_phase = Phase::End;
}

void ChildAlignment::skipEnd()
{
    Side& left = m_sides[LeftScene];
    Side& right = m_sides[RightScene];
    if (left.begin < left.end && right.begin < right.end && isSame(left.end - 1, right.end - 1)) {
        m_tables.pairSlots(--left.end, --right.end);
        return;
    }
    // What is left of a copy are children that correspond to nothing: its content is the same.
    const bool isDone = left.begin == left.end || right.begin == right.end || m_groups.isCopy;
    m_phase = isDone ? Phase::Done : Phase::Edits;
    m_nextSlot = 0;
    if (!isDone)
        m_edits.start(left.end - left.begin, right.end - right.begin,
            [this](ShortestEdit::Place leftPlace, ShortestEdit::Place rightPlace) {
                return isSame(m_sides[LeftScene].begin + leftPlace, m_sides[RightScene].begin + rightPlace);
            });
}

void ChildAlignment::findEdits()
{
    if (m_edits.step(1))
        return;
    for (const auto& [left, right] : m_edits.pairs()) {
        const std::uint32_t leftSlot = m_sides[LeftScene].begin + left;
        const std::uint32_t rightSlot = m_sides[RightScene].begin + right;
        // The pairs before this one may have given the nodes other partners.
        if (m_tables.mayMatch(m_tables.nodeOfSlot(LeftScene, leftSlot), m_tables.nodeOfSlot(RightScene, rightSlot)))
            m_tables.pairSlots(leftSlot, rightSlot);
    }
    m_phase = Phase::Rest;
}

void ChildAlignment::gatherRest()
{
    const std::uint32_t offset = m_nextSlot++;
    bool isDone = true;
    for (const SceneSide number : {LeftScene, RightScene}) {
        Side& side = m_sides[number];
        if (offset >= side.end - side.begin)
            continue;
        isDone = false;
        if (m_tables.slotPartner(number, side.begin + offset) == MatchTables::none)
            side.rest.push_back(side.begin + offset);
    }
    if (isDone)
        startPass(Pass::UniqueName);
}

void ChildAlignment::startPass(Pass pass)
{
    m_pass = pass;
    m_next = 0;
    m_sides[LeftScene].queues.start(m_sides[LeftScene].rest.size());
    if (isUniquePass())
        m_sides[RightScene].queues.start(m_sides[RightScene].rest.size());
    m_phase = Phase::AddLeft;
}

void ChildAlignment::nextPass()
{
    const auto pass = static_cast<Pass>(static_cast<int>(m_pass) + 1);
    const bool isDone = pass == Pass::End || m_sides[LeftScene].rest.empty() || m_sides[RightScene].rest.empty();
    m_nextSlot = m_sides[LeftScene].begin;
    m_run.clear();
    m_runSlots.clear();
    if (isDone)
        m_phase = Phase::Order;
    else if (pass == Pass::PlaceAndEqual || pass == Pass::PlaceNameAndClass)
        m_phase = Phase::Gaps;
    else
        startPass(pass);
    if (m_phase == Phase::Gaps)
        m_pass = pass;
}

void ChildAlignment::add(SceneSide side)
{
    Side& added = m_sides[side];
    if (m_next < added.rest.size()) {
        const std::size_t place = m_next++;
        if (const auto key = keyOf(side, added.rest[place]))
            added.queues.add(*key, static_cast<std::uint32_t>(place));
        return;
    }
    m_next = 0;
    m_phase = side == LeftScene && isUniquePass() ? Phase::AddRight : Phase::Match;
}

// Paired slots are marked in the lists of the rest, and removed from them at the end of the pass.
void ChildAlignment::matchNext()
{
    Side& left = m_sides[LeftScene];
    Side& right = m_sides[RightScene];
    if (m_next == right.rest.size()) {
        for (Side& side : m_sides)
            std::erase(side.rest, MatchTables::none);
        return nextPass();
    }
    const std::size_t place = m_next++;
    const auto key = keyOf(RightScene, right.rest[place]);
    if (!key || (isUniquePass() && right.queues.onlyOne(*key) == KeyQueues::none))
        return;
    const std::uint32_t found = isUniquePass() ? left.queues.onlyOne(*key) : left.queues.takeFirst(*key);
    if (found != KeyQueues::none)
        pairRest(found, place);
}

void ChildAlignment::pairRest(std::size_t left, std::size_t right)
{
    std::uint32_t& leftSlot = m_sides[LeftScene].rest[left];
    std::uint32_t& rightSlot = m_sides[RightScene].rest[right];
    const std::uint32_t leftNode = m_tables.nodeOfSlot(LeftScene, leftSlot);
    const std::uint32_t rightNode = m_tables.nodeOfSlot(RightScene, rightSlot);
    if (!m_tables.mayMatch(leftNode, rightNode))
        return;
    const bool isCertain = m_pass != Pass::PlaceAndClass || m_tables.arePartners(leftNode, rightNode);
    if (!isCertain
        && !areHalfAlike(
            *m_tables.scene(LeftScene).node(leftNode).node, *m_tables.scene(RightScene).node(rightNode).node))
        return;
    m_tables.pairSlots(leftSlot, rightSlot);
    leftSlot = MatchTables::none;
    rightSlot = MatchTables::none;
}

std::optional<std::uint64_t> ChildAlignment::keyOf(SceneSide side, std::uint32_t slot) const
{
    const std::uint32_t number = m_tables.nodeOfSlot(side, slot);
    const SceneDigest::Node& node = m_tables.scene(side).node(number);
    const std::string_view name = node.node->getName().view();
    switch (m_pass) {
    case Pass::UniqueName:
        return name.empty() ? std::nullopt : std::optional(hashOf(name));
    case Pass::UniqueEqual:
    case Pass::Equal:
        return equalKey(side, number);
    case Pass::PlaceAndEqual:
        return mixHash(gapOf(side, slot), equalKey(side, number));
    case Pass::PlaceNameAndClass:
        return mixHash(gapOf(side, slot), mixHash(hashOf(name), hashOf(node.node->getClassName())));
    case Pass::NameAndClass:
        return name.empty() ? std::nullopt : std::optional(mixHash(hashOf(name), hashOf(node.node->getClassName())));
    case Pass::UniqueContent:
        return node.contentHash;
    case Pass::PlaceAndClass:
        return mixHash(gapOf(side, slot), hashOf(node.node->getClassName()));
    case Pass::End:
        break;
    }
    return std::nullopt;
}

bool ChildAlignment::isUniquePass() const
{
    return m_pass == Pass::UniqueName || m_pass == Pass::UniqueEqual || m_pass == Pass::UniqueContent;
}

std::uint64_t ChildAlignment::equalKey(SceneSide side, std::uint32_t number) const
{
    const std::uint32_t partner = m_tables.partner(side, number);
    if (partner == MatchTables::none)
        return m_tables.scene(side).node(number).hash;
    return side == LeftScene ? number : partner; // both partners get the number of the left one
}

std::uint64_t ChildAlignment::gapOf(SceneSide side, std::uint32_t slot) const
{
    return m_sides[side].gaps[slot - m_sides[side].begin];
}

void ChildAlignment::visitOrder()
{
    if (m_nextSlot < m_sides[LeftScene].end) {
        const std::uint32_t slot = m_nextSlot++;
        if (const std::uint32_t other = m_tables.slotPartner(LeftScene, slot); other != MatchTables::none) {
            m_run.add(other);
            m_runSlots.push_back(slot);
        }
        return;
    }
    if (m_phase == Phase::Gaps) {
        numberGaps();
        startPass(m_pass);
    } else {
        finishOrder();
        m_phase = Phase::Done;
    }
}

// The anchors are children that are paired and keep their order.
void ChildAlignment::numberGaps()
{
    for (Side& side : m_sides)
        side.gaps.assign(side.end - side.begin, 0);
    Side& left = m_sides[LeftScene];
    Side& right = m_sides[RightScene];
    for (const std::uint32_t place : m_run.places()) {
        const std::uint32_t slot = m_runSlots[place];
        left.gaps[slot - left.begin] = 1;
        right.gaps[m_tables.slotPartner(LeftScene, slot) - right.begin] = 1;
    }
    for (Side& side : m_sides) {
        std::uint32_t anchors = 0;
        for (std::uint32_t& gap : side.gaps) {
            anchors += gap;
            gap = anchors;
        }
    }
}

void ChildAlignment::finishOrder()
{
    const std::vector<std::uint32_t> places = m_run.places();
    if (places.size() == m_runSlots.size())
        return;
    auto inOrder = places.begin();
    for (std::uint32_t place = 0; place < m_runSlots.size(); ++place) {
        if (inOrder != places.end() && *inOrder == place)
            ++inOrder;
        else
            m_tables.setReordered(m_runSlots[place]);
    }
}

} // namespace meridane
