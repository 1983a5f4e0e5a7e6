#pragma once

#include "meridane/scene/fields/NxNodeSensor.h"

#include <cstdint>
#include <limits>

class NxNode;

namespace meridane {

/// Names an entry of one of the drawing's tables.
using Id = std::uint32_t;
inline constexpr Id noId = std::numeric_limits<Id>::max();

/// The nodes that drawing tells apart.
enum class NodeKind : std::uint8_t { Other, Group, Mesh, Material, Texture, Complexity, Light };
[[nodiscard]] NodeKind kindOf(const NxNode& node);

class NodeRecord;

/// Who is told of changes in the scene.
class NodeRecordListener {
public:
    NodeRecordListener() = default;
    NodeRecordListener(const NodeRecordListener&) = delete;
    NodeRecordListener& operator=(const NodeRecordListener&) = delete;

    /// From the call that changes a field, the name or the list of children, unless the record is pending already. It
    /// must only make a note.
    virtual void nodeTouched(NodeRecord& record) = 0;
    /// The same from the delay queue.
    virtual void nodeChanged(NodeRecord& record) = 0;
    /// The node is being destroyed.
    virtual void nodeDied(NodeRecord& record) = 0;

protected:
    ~NodeRecordListener() = default;
};

/// What drawing keeps about a node of the scene, in whatever places it stands; the base of a class for each kind. It is
/// the sensor of the node as well: a scene may have a hundred thousand of them.
class NodeRecord : public NxNodeSensor {
public:
    NodeRecord(NxNode& node, NodeKind kind, NodeRecordListener& listener);

    /// The node, or null once it is dead.
    [[nodiscard]] NxNode* node() const noexcept { return m_node; }
    [[nodiscard]] NodeKind kind() const noexcept { return m_kind; }
    void notify() override;
    void dyingReference() override;

    /// How many places, meshes and lists of lights need the record.
    std::uint32_t uses = 0;
    /// The problems of the node that were reported, one bit each.
    std::uint16_t reportedProblems = 0;
    /// The record waits to be brought in line with its node.
    bool isPending = false;
    /// The record waits for its end, unless somebody uses it again.
    bool isUnused = false;

private:
    static void changed(void* data, NxSensor* sensor);

    NxNode* m_node;
    NodeRecordListener* m_listener;
    NodeKind m_kind;
};

} // namespace meridane
