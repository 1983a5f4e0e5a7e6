#include "meridane/gl/places/ShownChildren.h"

#include "meridane/scene/nodes/NxSwitch.h"

#include <cstddef>

namespace meridane {

std::span<NxNode* const> shownChildrenOf(const NxNode& node)
{
    const std::span<NxNode* const> children = node.getChildren();
    const auto* group = dynamic_cast<const NxSwitch*>(&node);
    if (group == nullptr)
        return children;
    const int which = group->whichChild.isIgnored() ? int{NxSwitch::NONE} : group->whichChild.getValue();
    if (which == NxSwitch::ALL)
        return children;
    const bool exists = which >= 0 && static_cast<std::size_t>(which) < children.size();
    return exists ? children.subspan(static_cast<std::size_t>(which), 1) : std::span<NxNode* const>();
}

} // namespace meridane
