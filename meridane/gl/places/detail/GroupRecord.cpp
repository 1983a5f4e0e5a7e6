#include "meridane/gl/places/detail/GroupRecord.h"

#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTransform.h"

namespace meridane {
namespace {

int choiceOf(const NxSwitch& group)
{
    return effectiveField(group.whichChild).getValue();
}

} // namespace

GroupRecord::GroupRecord(NxGroup& group, NodeRecordListener& listener)
    : NodeRecord(group, NodeKind::Group, listener)
    , m_isTransform(
          group.isOfType(NxTransform::getClassTypeId()) || group.isOfType(NxMatrixTransform::getClassTypeId()))
    , m_isSwitch(group.isOfType(NxSwitch::getClassTypeId()))
{
}

bool GroupRecord::noteChildren()
{
    const std::uint64_t revision = group().getChildrenRevision();
    const int choice = m_isSwitch ? choiceOf(static_cast<const NxSwitch&>(group())) : 0;
    const bool isOther = revision != m_revision || choice != m_choice;
    m_revision = revision;
    m_choice = choice;
    return isOther;
}

std::span<NxNode* const> shownChildren(const NxGroup& group)
{
    const std::span<NxNode* const> children = group.getChildren();
    const auto* const choice
        = group.isOfType(NxSwitch::getClassTypeId()) ? static_cast<const NxSwitch*>(&group) : nullptr;
    if (choice == nullptr)
        return children;
    const int which = choiceOf(*choice);
    if (which == NxSwitch::ALL)
        return children;
    if (which < 0 || which >= group.getNumChildren())
        return {};
    return children.subspan(static_cast<std::size_t>(which), 1);
}

} // namespace meridane
