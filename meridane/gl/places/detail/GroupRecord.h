#pragma once

#include "meridane/gl/places/detail/NodeRecord.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <span>

namespace meridane {

/// The record of a group.
class GroupRecord : public NodeRecord {
public:
    GroupRecord(NxGroup& group, NodeRecordListener& listener);

    [[nodiscard]] NxGroup& group() const noexcept { return static_cast<NxGroup&>(*node()); }
    /// Whether the group is of a class that transforms its children.
    [[nodiscard]] bool isTransform() const noexcept { return m_isTransform; }
    /// Stores which children are shown now. Returns true if they may differ from those of the previous call.
    bool noteChildren();

    /// The first of the group's places, which form a linked list.
    Id firstPlace = noId;

private:
    std::uint64_t m_revision = 0; // of the list of children
    int m_choice = 0; // of a switch
    bool m_isTransform;
    bool m_isSwitch;
};

/// The children that are drawn: all, but for a switch only those that it shows.
[[nodiscard]] std::span<NxNode* const> shownChildren(const NxGroup& group);

} // namespace meridane
