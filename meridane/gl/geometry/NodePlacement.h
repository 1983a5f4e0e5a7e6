#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/gl/geometry/PlacementChange.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <array>
#include <vector>

class NxField;
class NxSFMatrix;
class NxSFRotation;
class NxSFVec3f;

namespace meridane {

/// Moves, turns and scales a node in the scene by writing the fields that place it: those of a transform, the place and
/// direction of a light, the place and orientation of a camera.
///
/// Every change is applied to the values that the fields had when the object was made, so that the steps of a drag
/// don't add up rounding errors. What a change can't express in the fields is done as nearly as they can: a turn of a
/// transform below one that shears, or that scales differently along its axes, is a turn in the units of the parent
/// about the axis that was asked for; a scale of a transform is one along its own axes.
class NodePlacement {
public:
    /// Whether the fields of the node can express that kind of change.
    [[nodiscard]] static bool can(const NxNode& node, PlacementChange::Kind kind);
    /// The fields that such a change writes, none if it can't be.
    [[nodiscard]] static std::vector<NxField*> fields(NxNode& node, PlacementChange::Kind kind);

    /// `parentToScene` is the transform of the node's parent. Keeps the node alive.
    NodePlacement(NxNode& node, const Matrix4d& parentToScene);

    /// The node that is placed.
    [[nodiscard]] NxNode& node() const noexcept { return *m_node; }
    /// The transform of the node's parent, as it was passed.
    [[nodiscard]] const Matrix4d& parentToScene() const noexcept { return m_parentToScene; }
    /// The point about which the fields turn and scale the node, in scene units: for a transform its center, for others
    /// where they are.
    [[nodiscard]] VbVec3d pivot() const;
    /// The axes of the node and of its parent, in the scene, each of length 1. They needn't be at right angles.
    [[nodiscard]] std::array<VbVec3d, 3> ownAxes() const;
    /// See `ownAxes`.
    [[nodiscard]] std::array<VbVec3d, 3> parentAxes() const;

    /// Writes the fields, those that change. Returns false and writes nothing if the result isn't finite, or if the
    /// node's parent makes everything flat, so that no change can be computed.
    bool apply(const PlacementChange& change);
    /// Writes the values back that the fields had when the object was made.
    void restore();

private:
    /// The fields that place a node; null for those that it doesn't have.
    struct Fields {
        explicit Fields(NxNode& node);

        NxSFVec3f* place = nullptr;
        NxSFRotation* rotation = nullptr;
        NxSFVec3f* scale = nullptr;
        NxSFVec3f* direction = nullptr;
        NxSFMatrix* matrix = nullptr;
        VbVec3d center; // of a transform
    };
    /// The values of these fields.
    struct Values {
        VbVec3f place;
        VbRotation rotation;
        VbVec3f scale;
        VbVec3f direction;
        VbMatrix matrix;
    };

    [[nodiscard]] Values changed(const PlacementChange& change, const Matrix4d& sceneToParent) const;
    void write(const Values& values);

    NxRef<NxNode> m_node;
    Fields m_fields;
    Values m_start;
    Matrix4d m_parentToScene;
};

} // namespace meridane
