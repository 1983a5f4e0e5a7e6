#include "meridane/scene/compare/detail/DifferenceCollector.h"

#include "meridane/scene/compare/detail/FieldComparison.h"

#include <string_view>
#include <utility>

namespace meridane {

bool DifferenceCollector::step(const WorkBudget& budget)
{
    constexpr std::size_t unitsPerSlice = 64;
    do {
        for (std::size_t unit = 0; unit < unitsPerSlice && m_phase < Phase::Paths; ++unit)
            work();
        if (m_phase == Phase::Paths && !nameNext(budget))
            return true;
    } while (m_phase != Phase::Done && !budget.isSpent());
    return m_phase != Phase::Done;
}

double DifferenceCollector::progress() const
{
    const auto all = static_cast<double>(m_tables.scene(LeftScene).nodeCount());
    const double shareOfNodes = m_phase == Phase::Nodes ? m_next / all : m_phase < Phase::Nodes ? 0 : 1;
    return m_phase == Phase::Done ? 1 : 0.8 * shareOfNodes;
}

void DifferenceCollector::work()
{
    switch (m_phase) {
    case Phase::CountUses:
        return countUses();
    case Phase::AddUses:
        return addUses();
    case Phase::MoveUses:
        return moveUses();
    case Phase::Nodes:
        return m_group == none ? visitNode() : visitSlots();
    case Phase::Copies:
        return visitCopies();
    case Phase::Paths:
    case Phase::Done:
        return;
    }
}

bool DifferenceCollector::isUnpairedUse(SceneSide side, std::uint32_t slot) const
{
    return m_tables.slotState(side, slot) == SlotState::Unpaired
        && m_tables.hasPartner(side, m_tables.nodeOfSlot(side, slot));
}

bool DifferenceCollector::isHome(SceneSide side, std::uint32_t slot) const
{
    return m_tables.scene(side).node(m_tables.nodeOfSlot(side, slot)).home == slot;
}

bool DifferenceCollector::isInPartner(SceneSide side, std::uint32_t slot) const
{
    return m_tables.hasPartner(side, m_tables.scene(side).slot(slot).group);
}

NxNode* DifferenceCollector::objectAt(SceneSide side, std::uint32_t slot) const
{
    return slot == none ? nullptr : m_tables.scene(side).node(m_tables.nodeOfSlot(side, slot)).node;
}

void DifferenceCollector::countUses()
{
    if (m_next < m_tables.scene(RightScene).slotCount()) {
        if (isUnpairedUse(RightScene, m_next++))
            ++m_useCount;
        return;
    }
    m_uses.start(m_useCount);
    m_next = 0;
    m_phase = m_useCount > 0 ? Phase::AddUses : Phase::Nodes;
}

void DifferenceCollector::addUses()
{
    if (m_next < m_tables.scene(RightScene).slotCount()) {
        const std::uint32_t slot = m_next++;
        if (isUnpairedUse(RightScene, slot))
            m_uses.add(m_tables.nodeOfSlot(RightScene, slot), slot);
        return;
    }
    m_next = 0;
    m_phase = Phase::MoveUses;
}

// A use that is gone and a use of the same node that is new are one that was moved.
void DifferenceCollector::moveUses()
{
    if (m_next == m_tables.scene(LeftScene).slotCount()) {
        m_next = 0;
        m_phase = Phase::Nodes;
        return;
    }
    const std::uint32_t slot = m_next++;
    if (!isUnpairedUse(LeftScene, slot))
        return;
    const std::uint32_t left = m_tables.nodeOfSlot(LeftScene, slot);
    const std::uint32_t right = m_tables.partner(LeftScene, left);
    if (!m_tables.arePartners(left, right))
        return;
    const std::uint32_t other = m_uses.takeFirst(right);
    if (other != none)
        m_tables.moveSlot(slot, other);
}

void DifferenceCollector::visitNode()
{
    if (m_next == m_tables.scene(LeftScene).nodeCount()) {
        m_next = 0;
        m_phase = Phase::Copies;
        return;
    }
    const std::uint32_t left = m_next++;
    const SceneDigest::Node& node = m_tables.scene(LeftScene).node(left);
    const std::uint32_t right = m_tables.partner(LeftScene, left);
    if (left > 0) {
        reportOwnSlot(node.home);
        if (right != none)
            compareNodes(left, right, {{node.home, m_tables.scene(RightScene).node(right).home}});
    }
    startNode(left);
}

// Prepares the visit of the slots of a group and of its partner.
void DifferenceCollector::startNode(std::uint32_t node)
{
    m_group = node;
    m_nextLeftSlot = m_tables.scene(LeftScene).node(node).firstSlot;
    const std::uint32_t right = m_tables.partner(LeftScene, node);
    m_nextRightSlot = right == none ? none : m_tables.scene(RightScene).node(right).firstSlot;
}

void DifferenceCollector::visitSlots()
{
    const SceneDigest::Node& left = m_tables.scene(LeftScene).node(m_group);
    const std::uint32_t partner = m_tables.partner(LeftScene, m_group);
    if (m_nextLeftSlot < left.firstSlot + left.slotCount) {
        const std::uint32_t slot = m_nextLeftSlot++;
        if (!isHome(LeftScene, slot))
            reportLeftSlot(slot);
        return;
    }
    // A group that several nodes correspond to is visited once, with its partner.
    if (partner != none && m_tables.arePartners(m_group, partner)) {
        const SceneDigest::Node& right = m_tables.scene(RightScene).node(partner);
        if (m_nextRightSlot < right.firstSlot + right.slotCount)
            return reportRightSlot(m_nextRightSlot++);
    }
    m_group = none;
}

void DifferenceCollector::reportOwnSlot(std::uint32_t slot)
{
    const std::uint32_t number = m_tables.nodeOfSlot(LeftScene, slot);
    const SceneDigest::Node& node = m_tables.scene(LeftScene).node(number);
    if (m_tables.hasPartner(LeftScene, number))
        return reportLeftSlot(slot);
    // What is in a removed group was removed with it.
    if (isInPartner(LeftScene, slot))
        report(Kind::Removed, {{slot, none}}, node.end - number);
}

void DifferenceCollector::reportLeftSlot(std::uint32_t slot)
{
    const std::uint32_t other = m_tables.slotPartner(LeftScene, slot);
    switch (m_tables.slotState(LeftScene, slot)) {
    case SlotState::Unpaired:
        if (isInPartner(LeftScene, slot))
            report(Kind::UseRemoved, {{slot, none}});
        return;
    case SlotState::Moved:
        // Uses in a group that was removed and in one that was added are part of these.
        if (isHome(LeftScene, slot) || isInPartner(LeftScene, slot) || isInPartner(RightScene, other))
            report(Kind::Moved, {{slot, other}});
        return;
    case SlotState::Reordered:
        report(Kind::Reordered, {{slot, other}}, m_tables.scene(LeftScene).placeOf(slot),
            m_tables.scene(RightScene).placeOf(other));
        break;
    case SlotState::Paired:
        break;
    }
    reportSharing(slot);
}

void DifferenceCollector::reportSharing(std::uint32_t leftSlot)
{
    const std::uint32_t rightSlot = m_tables.slotPartner(LeftScene, leftSlot);
    const std::uint32_t left = m_tables.nodeOfSlot(LeftScene, leftSlot);
    const std::uint32_t right = m_tables.nodeOfSlot(RightScene, rightSlot);
    const std::uint32_t leftGroup = m_tables.scene(LeftScene).slot(leftSlot).group;
    const std::uint32_t rightGroup = m_tables.scene(RightScene).slot(rightSlot).group;
    // What is in a copy is a copy, too.
    if (m_tables.arePartners(left, right) || !m_tables.arePartners(leftGroup, rightGroup))
        return;
    const auto text = static_cast<std::uint32_t>(m_sharedPaths.size());
    for (const auto& [side, slot] : {std::pair(LeftScene, leftSlot), std::pair(RightScene, rightSlot)}) {
        const std::uint32_t home = m_tables.scene(side).node(m_tables.nodeOfSlot(side, slot)).home;
        m_sharedPaths.push_back({side, home == slot ? none : home});
    }
    report(Kind::Sharing, {{leftSlot, rightSlot}}, text, text + 1);
}

void DifferenceCollector::reportRightSlot(std::uint32_t slot)
{
    if (m_tables.slotState(RightScene, slot) != SlotState::Unpaired)
        return;
    const std::uint32_t number = m_tables.nodeOfSlot(RightScene, slot);
    const SceneDigest::Node& node = m_tables.scene(RightScene).node(number);
    if (m_tables.hasPartner(RightScene, number) || !isHome(RightScene, slot))
        report(Kind::UseAdded, {{none, slot}});
    else
        report(Kind::Added, {{none, slot}}, 0, node.end - number);
}

// Nodes that correspond to one that has another partner; those of the left scene were compared in their turn.
void DifferenceCollector::visitCopies()
{
    if (m_next == m_tables.scene(RightScene).nodeCount()) {
        m_next = 0;
        m_phase = Phase::Paths;
        return;
    }
    const std::uint32_t right = m_next++;
    const std::uint32_t left = m_tables.partner(RightScene, right);
    if (left == none || m_tables.arePartners(left, right))
        return;
    const std::uint32_t rightSlot = m_tables.scene(RightScene).node(right).home;
    const std::uint32_t leftSlot = m_tables.slotPartner(RightScene, rightSlot);
    compareNodes(left, right, {{leftSlot == none ? m_tables.scene(LeftScene).node(left).home : leftSlot, rightSlot}});
}

void DifferenceCollector::compareNodes(std::uint32_t left, std::uint32_t right, Place place)
{
    NxNode& leftNode = *m_tables.scene(LeftScene).node(left).node;
    NxNode& rightNode = *m_tables.scene(RightScene).node(right).node;
    if (!(leftNode.getName() == rightNode.getName()))
        report(Kind::Renamed, place);
    if (std::string_view(leftNode.getClassName()) != rightNode.getClassName()
        || leftNode.getTypeId() != rightNode.getTypeId())
        report(Kind::Class, place);
    m_fields.clear();
    compareFields(leftNode, rightNode, m_fields);
    for (const NxSceneDifference& difference : m_fields)
        add(difference, place);
}

void DifferenceCollector::report(Kind kind, Place place, std::uint32_t leftNumber, std::uint32_t rightNumber)
{
    add({kind, 0, {}, {}, leftNumber, rightNumber}, place);
}

void DifferenceCollector::add(NxSceneDifference difference, Place place)
{
    if (m_places.empty() || m_places.back().slots != place.slots) {
        NxComparedNode node;
        node.left = objectAt(LeftScene, place.slots[LeftScene]);
        node.right = objectAt(RightScene, place.slots[RightScene]);
        if (!node.left) {
            const std::uint32_t group = m_tables.scene(RightScene).slot(place.slots[RightScene]).group;
            const std::uint32_t partner = m_tables.partner(RightScene, group);
            if (partner > 0 && partner != none)
                node.group = m_tables.scene(LeftScene).node(partner).node;
        }
        m_result.addNode(std::move(node));
        m_places.push_back(place);
    }
    difference.node = static_cast<std::uint32_t>(m_places.size() - 1);
    m_result.add(difference);
}

// Paths are made last, since the names of many siblings may have to be read first.
bool DifferenceCollector::nameNext(const WorkBudget& budget)
{
    const std::size_t index = m_next;
    if (index < m_places.size()) {
        NxComparedNode& node = m_result.nodeAt(index);
        if (!namePath(LeftScene, m_places[index].slots[LeftScene], node.leftPath, budget)
            || !namePath(RightScene, m_places[index].slots[RightScene], node.rightPath, budget))
            return false;
    } else if (index < m_places.size() + m_sharedPaths.size()) {
        const SharedPath& shared = m_sharedPaths[index - m_places.size()];
        std::string path;
        if (!namePath(shared.side, shared.slot, path, budget))
            return false;
        m_result.addText(shared.slot == none ? "a node of its own" : "same as " + path);
    } else {
        m_phase = Phase::Done;
    }
    ++m_next;
    return true;
}

bool DifferenceCollector::namePath(SceneSide side, std::uint32_t slot, std::string& path, const WorkBudget& budget)
{
    if (slot == none || !path.empty())
        return true;
    const SceneDigest& scene = m_tables.scene(side);
    auto& root = static_cast<NxGroup&>(*scene.node(0).node);
    if (const auto name = m_namers[side].name(root, scene.placesOf(slot), nullptr, budget))
        path = *name;
    return !path.empty();
}

} // namespace meridane
