#include "meridane/scene/compare/detail/MatchTables.h"

#include <string_view>

namespace meridane {

MatchTables::MatchTables(const SceneDigest& left, const SceneDigest& right)
{
    const std::array<const SceneDigest*, 2> scenes{&left, &right};
    for (std::size_t side = 0; side < scenes.size(); ++side) {
        m_sides[side].scene = scenes[side];
        m_sides[side].partners.assign(scenes[side]->nodeCount(), none);
        m_sides[side].slotPartners.assign(scenes[side]->slotCount(), none);
        m_sides[side].slotStates.assign(scenes[side]->slotCount(), SlotState::Unpaired);
    }
    match(0, 0);
}

bool MatchTables::mayMatch(std::uint32_t left, std::uint32_t right) const
{
    const bool isLeftTaken = hasPartner(LeftScene, left);
    const bool isRightTaken = hasPartner(RightScene, right);
    if (!isLeftTaken && !isRightTaken)
        return true;
    if (isLeftTaken && isRightTaken)
        return arePartners(left, right);
    const SceneDigest::Node& leftNode = scene(LeftScene).node(left);
    const SceneDigest::Node& rightNode = scene(RightScene).node(right);
    if (leftNode.hash == rightNode.hash)
        return true;
    return leftNode.slotCount == 0 && rightNode.slotCount == 0
        && std::string_view(leftNode.node->getClassName()) == rightNode.node->getClassName();
}

void MatchTables::match(std::uint32_t left, std::uint32_t right)
{
    std::uint32_t& leftPartner = m_sides[LeftScene].partners[left];
    std::uint32_t& rightPartner = m_sides[RightScene].partners[right];
    if (leftPartner != none && rightPartner != none)
        return;
    const bool isCopy = leftPartner != none || rightPartner != none;
    if (leftPartner == none)
        leftPartner = right;
    if (rightPartner == none)
        rightPartner = left;
    if (scene(LeftScene).node(left).slotCount > 0 || scene(RightScene).node(right).slotCount > 0)
        m_pending.push_back({left, right, isCopy});
}

void MatchTables::pairSlots(std::uint32_t left, std::uint32_t right)
{
    setSlot(LeftScene, left, right, SlotState::Paired);
    setSlot(RightScene, right, left, SlotState::Paired);
    match(nodeOfSlot(LeftScene, left), nodeOfSlot(RightScene, right));
}

void MatchTables::moveSlot(std::uint32_t left, std::uint32_t right)
{
    setSlot(LeftScene, left, right, SlotState::Moved);
    setSlot(RightScene, right, left, SlotState::Moved);
}

void MatchTables::setReordered(std::uint32_t left)
{
    m_sides[LeftScene].slotStates[left] = SlotState::Reordered;
}

// A slot of a group that corresponds to several copies keeps its first partner.
void MatchTables::setSlot(SceneSide side, std::uint32_t slot, std::uint32_t other, SlotState state)
{
    if (m_sides[side].slotPartners[slot] != none)
        return;
    m_sides[side].slotPartners[slot] = other;
    m_sides[side].slotStates[slot] = state;
}

} // namespace meridane
