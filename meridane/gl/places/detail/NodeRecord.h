#pragma once

#include "meridane/scene/fields/NxNodeSensor.h"

#include <cstdint>
#include <limits>

class NxNode;

namespace meridane {

/// The number of an entry in one of the drawing's tables.
using Id = std::uint32_t;
inline constexpr Id noId = std::numeric_limits<Id>::max();

/// The kinds of nodes that matter for drawing.
enum class NodeKind : std::uint8_t { Other, Group, Mesh, Material, Texture, Complexity, Light };
[[nodiscard]] NodeKind kindOf(const NxNode& node);

class NodeRecord;

/// Receives the changes of nodes.
class NodeRecordListener {
public:
    NodeRecordListener() = default;
    NodeRecordListener(const NodeRecordListener&) = delete;
    NodeRecordListener& operator=(const NodeRecordListener&) = delete;

    /// Called from inside the call that changes a field, the name or the list of children, unless the record is pending
    /// already. It must only make a note.
    virtual void nodeTouched(NodeRecord& record) = 0;
    /// Called from the delay queue after changes.
    virtual void nodeChanged(NodeRecord& record) = 0;
    /// The node is being destroyed.
    virtual void nodeDied(NodeRecord& record) = 0;

protected:
    ~NodeRecordListener() = default;
};

/// What the drawing knows about a node of the scene, whatever the number of its instances; the base of a class for each
/// kind. It is also the sensor of the node, to save memory: a scene may have a hundred thousand nodes.
class NodeRecord : public NxNodeSensor {
public:
    NodeRecord(NxNode& node, NodeKind kind, NodeRecordListener& listener);

    /// The node, or null after its destruction.
    [[nodiscard]] NxNode* node() const noexcept { return m_node; }
    [[nodiscard]] NodeKind kind() const noexcept { return m_kind; }
    void notify() override;
    void dyingReference() override;

    /// The number of places, looks and lists of lights that use the record.
    std::uint32_t uses = 0;
    /// The problems of the node that were reported, one bit each.
    std::uint16_t reportedProblems = 0;
    /// The node has changed since the last update.
    bool isPending = false;
    /// The record will be destroyed unless it is used again.
    bool isUnused = false;

private:
    static void changed(void* data, NxSensor* sensor);

    NxNode* m_node;
    NodeRecordListener* m_listener;
    NodeKind m_kind;
};

} // namespace meridane
