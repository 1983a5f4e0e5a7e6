#include "meridane/gl/GroupRecord.h"

#include "meridane/gl/FieldValue.h"
#include "meridane/gl/Fingerprint.h"
#include "meridane/scene/NxMatrixTransform.h"
#include "meridane/scene/NxSwitch.h"
#include "meridane/scene/NxTransform.h"

namespace meridane {

GroupRecord::GroupRecord(NxGroup& group, NodeRecordListener& listener)
    : NodeRecord(group, NodeKind::Group, listener)
    , m_isTransform(
          group.isOfType(NxTransform::getClassTypeId()) || group.isOfType(NxMatrixTransform::getClassTypeId()))
    , m_isSwitch(group.isOfType(NxSwitch::getClassTypeId()))
{
}

bool GroupRecord::noteChildren()
{
    const std::uint64_t revision = NxFieldContainer::getStructureRevision();
    if (!m_isSwitch && revision == m_revision)
        return false;
    m_revision = revision;
    const std::span<NxNode* const> children = shownChildren(group());
    const std::uint64_t fingerprint = fingerprintOf(std::as_bytes(children));
    const bool isOther = fingerprint != m_fingerprint;
    m_fingerprint = fingerprint;
    return isOther;
}

std::span<NxNode* const> shownChildren(const NxGroup& group)
{
    const std::span<NxNode* const> children = group.getChildren();
    const auto* const choice
        = group.isOfType(NxSwitch::getClassTypeId()) ? static_cast<const NxSwitch*>(&group) : nullptr;
    if (choice == nullptr)
        return children;
    const int which = counting(choice->whichChild).getValue();
    if (which == NxSwitch::ALL)
        return children;
    if (which < 0 || which >= group.getNumChildren())
        return {};
    return children.subspan(static_cast<std::size_t>(which), 1);
}

} // namespace meridane
