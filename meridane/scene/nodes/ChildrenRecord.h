#pragma once

#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <span>
#include <vector>

namespace meridane {

/// Some children of a group: those that a change inserted or removed.
class ChildrenRecord final : public ChangeRecord {
public:
    /// The change replaces the children `replaced`, which begin at `start`, by `count` others.
    ChildrenRecord(NxGroup& group, std::size_t start, std::size_t count, std::span<NxNode* const> replaced);

    /// The group whose children changed.
    [[nodiscard]] NxGroup& group() const noexcept { return static_cast<NxGroup&>(node()); }
    /// The children that the group has had in place of those that it has now, and would have again.
    [[nodiscard]] std::span<const NxRef<NxNode>> otherChildren() const noexcept { return m_children; }
    /// The children that the group has now in place of those. Only in the state directly before or after the change.
    [[nodiscard]] std::span<NxNode* const> presentChildren() const
    {
        return group().getChildren().subspan(m_start, m_count);
    }

    void exchange() override;
    [[nodiscard]] bool isSameAsNow() const override;
    [[nodiscard]] Extent extent() const noexcept override { return {m_start, m_count, m_children.size()}; }
    void notify() const override { group().touch(); }
    [[nodiscard]] std::size_t bytes() const override;

private:
    std::size_t m_start;
    std::size_t m_count; // of the children that are in the group
    std::vector<NxRef<NxNode>> m_children;
};

} // namespace meridane
