#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <cstddef>
#include <unordered_map>

class NxGroup;

namespace meridane {

/// Copies nodes with all that is in them: fields, ignored flags, what their classes don't know, and the nodes below
/// them. A node that is in several places of what one copier copies is copied once, so that the copies share it as
/// well. Thread of the user interface only.
class NodeCopier {
public:
    NodeCopier() = default;
    /// Reserves memory for that many nodes, which saves time where they are many.
    explicit NodeCopier(std::size_t nodes) { m_copies.reserve(nodes); }

    /// The copy of a node, the same one for each call. Null if a node in it is of a class that makes no nodes, or if
    /// there isn't enough memory.
    [[nodiscard]] NxRef<NxNode> copy(NxNode& node);
    /// The copy of the node alone, without those below it and another one for each call. Null as above.
    [[nodiscard]] static NxRef<NxNode> copyAlone(NxNode& node);

private:
    std::unordered_map<const NxNode*, NxRef<NxNode>> m_copies; // of the nodes that may be in several places
};

} // namespace meridane
