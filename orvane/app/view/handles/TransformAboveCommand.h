#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxTransform.h"

/// Puts a new transform in the place of a child of a group, with the child below it.
class TransformAboveCommand final : public OrvCommand {
public:
    /// `index` is the child's place in the group.
    TransformAboveCommand(NxGroup* group, int index);

    [[nodiscard]] NxTransform* transform() const noexcept { return m_transform.get(); }

    void execute() override;
    void undo() override;
    void redo() override;

private:
    void replace(NxNode* node);

    NxRef<NxGroup> m_group;
    NxRef<NxNode> m_child;
    NxRef<NxTransform> m_transform;
    int m_index;
};
