#pragma once

#include "meridane/gl/places/detail/NodeRecord.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <span>

namespace meridane {

/// What drawing keeps about a group.
class GroupRecord : public NodeRecord {
public:
    GroupRecord(NxGroup& group, NodeRecordListener& listener);

    [[nodiscard]] NxGroup& group() const noexcept { return static_cast<NxGroup&>(*node()); }
    /// Whether the group may place its children.
    [[nodiscard]] bool isTransform() const noexcept { return m_isTransform; }
    /// Notes which children count by now; true if they may be others than at the latest call.
    bool noteChildren();

    /// The first of the places of the group, which are linked among each other.
    Id firstPlace = noId;

private:
    std::uint64_t m_revision = 0; // of the children at that time
    int m_choice = 0; // of a switch
    bool m_isTransform;
    bool m_isSwitch;
};

/// The children that count: of a switch those that it shows.
[[nodiscard]] std::span<NxNode* const> shownChildren(const NxGroup& group);

} // namespace meridane
