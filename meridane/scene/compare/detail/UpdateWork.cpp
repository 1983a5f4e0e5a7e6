#include "meridane/scene/compare/detail/UpdateWork.h"

#include "meridane/scene/fields/NxField.h"

#include <algorithm>
#include <string_view>

namespace meridane {

namespace {

bool isSameField(const NxFieldContainer::UnknownField& left, const NxFieldContainer::UnknownField& right)
{
    return left.name == right.name && left.text == right.text && left.ignored == right.ignored;
}

/// Whether a node can be made equal to another one: its class and unknown fields can't be changed.
bool canBecome(NxNode& node, NxNode& other)
{
    return node.getTypeId() == other.getTypeId() && node.getFieldData() == other.getFieldData()
        && std::string_view(node.getClassName()) == other.getClassName()
        && std::ranges::equal(node.getUnknownFields(), other.getUnknownFields(), isSameField);
}

NxGroup* asGroup(NxNode* node)
{
    return node->isOfType(NxGroup::getClassTypeId()) ? static_cast<NxGroup*>(node) : nullptr;
}

} // namespace

bool UpdateWork::step(const WorkBudget& budget)
{
    if (!m_isMatched) {
        if (m_matching.step(budget))
            return true;
        m_isMatched = true;
    }
    const std::uint32_t count = m_matching.tables().scene(RightScene).nodeCount();
    while (m_next < count) {
        visit(m_next++);
        if (budget.isSpent())
            return true;
    }
    m_isDone = true;
    return false;
}

double UpdateWork::progress() const
{
    constexpr double matchingShare = 0.75;
    if (!m_isMatched)
        return matchingShare * m_matching.progress();
    const double count = m_matching.tables().scene(RightScene).nodeCount();
    return matchingShare + (1 - matchingShare) * m_next / count;
}

NxNode* UpdateWork::result(std::uint32_t other)
{
    const MatchTables& tables = m_matching.tables();
    NxNode* const node = tables.scene(RightScene).node(other).node;
    const std::uint32_t partner = tables.partner(RightScene, other);
    if (partner == MatchTables::none || !tables.arePartners(partner, other))
        return node;
    NxNode* const partnerNode = tables.scene(LeftScene).node(partner).node;
    return other == 0 || canBecome(*partnerNode, *node) ? partnerNode : node;
}

void UpdateWork::visit(std::uint32_t other)
{
    const MatchTables& tables = m_matching.tables();
    NxNode& otherNode = *tables.scene(RightScene).node(other).node;
    NxNode& node = *result(other);
    if (&node != &otherNode && other != 0)
        visitNode(node, otherNode);
    const std::uint32_t partner = tables.partner(RightScene, other);
    if (&node == &otherNode && partner != MatchTables::none && tables.arePartners(partner, other))
        m_changes.add(NxSceneChanges::Replacement{tables.scene(LeftScene).node(partner).node, &node});
    if (NxGroup* const group = asGroup(&node))
        visitChildren(*group, other);
}

void UpdateWork::visitNode(NxNode& node, NxNode& other)
{
    NxSceneChanges::NodeChange change{&node, {}, node.getName() != other.getName(), {}};
    const NxFieldData& data = *node.getFieldData();
    for (int index = 0; index < data.getNumFields(); ++index) {
        const NxField& field = *data.getField(&node, index);
        const NxField& otherField = *data.getField(&other, index);
        if (!field.isSame(otherField) || field.isIgnored() != otherField.isIgnored())
            change.fields.push_back(index);
    }
    if (!change.isRenamed && change.fields.empty())
        return;
    change.other = &other;
    m_changes.add(std::move(change));
}

void UpdateWork::visitChildren(NxGroup& group, std::uint32_t other)
{
    const SceneDigest& scene = m_matching.tables().scene(RightScene);
    const SceneDigest::Node& otherGroup = scene.node(other);
    m_children.clear();
    for (std::uint32_t slot = otherGroup.firstSlot; slot < otherGroup.firstSlot + otherGroup.slotCount; ++slot)
        m_children.push_back(result(scene.slot(slot).node));
    const auto present = group.getChildren();
    const auto [presentEnd, end] = std::ranges::mismatch(present, m_children);
    if (presentEnd == present.end() && end == m_children.end())
        return;
    const auto before = end - m_children.begin();
    const auto most = std::min(std::ssize(present), std::ssize(m_children)) - before;
    const auto after
        = std::mismatch(present.rbegin(), present.rbegin() + most, m_children.rbegin()).first - present.rbegin();
    NxSceneChanges::ChildrenChange change{&group, static_cast<int>(before), static_cast<int>(after), {}};
    change.children.assign(end, m_children.end() - after);
    m_changes.add(std::move(change));
}

} // namespace meridane
