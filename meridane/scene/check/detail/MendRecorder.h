#pragma once

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <memory>
#include <vector>

class NxField;

namespace meridane {

/// Keeps what mends replace, so that it can be exchanged with what they wrote.
class MendRecorder {
public:
    explicit MendRecorder(bool keeps)
        : m_keeps(keeps)
    {
    }

    /// Call before the field is written.
    void keepValue(NxField& field);
    void rename(NxNode& node, const VbString& name);
    /// Removes the children at these indices, which are sorted and unique.
    void removeChildren(NxGroup& group, const std::vector<int>& places);
    /// Exchanges everything, the last write first.
    void undo();
    /// Exchanges everything again, the first write first.
    void redo();

private:
    /// One write; one of the three.
    struct Write {
        NxField* field = nullptr;
        std::unique_ptr<ChangeRecord> record; // keeps the node of the field alive
        NxRef<NxNode> node;
        VbString name;
        NxRef<NxGroup> group;
        std::vector<NxRef<NxNode>> children;
    };

    static void exchange(Write& write);

    bool m_keeps;
    std::vector<Write> m_writes;
};

} // namespace meridane
