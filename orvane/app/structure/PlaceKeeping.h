#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/structure/NodeUses.h"

#include "meridane/gl/geometry/Matrix4d.h"
#include "meridane/scene/compare/NxSceneChanges.h"

#include <vector>

class NxTransform;

/// Keeps nodes where they are in the world while they move to other groups.
///
/// A transform, camera or light gets other values. A node without a place of its own gets a transform above it, and so
/// does one that is in other places as well, where it must stay as it is. Materials, textures and complexities have no
/// place. `NxTransform` has no shear; where it would need one, an `NxMatrixTransform` is used.
class PlaceKeeping {
public:
    using Path = std::vector<NxGroup*>;

    /// The structure of the scene must not change as long as the object is used.
    explicit PlaceKeeping(NxGroup& scene)
        : m_uses(scene)
    {
    }

    /// Whether both groups, the last ones of their paths, are in the same place of the world, so that nodes keep theirs
    /// without any change.
    [[nodiscard]] bool isSamePlace(const Path& from, const Path& to);
    /// What is to come into the last group of `to` in place of a node that leaves the last group of `from`: the node
    /// itself, or a new transform that holds it. `staysElsewhere` says whether the node will still be in other places.
    /// Fails if no transform can keep the place.
    [[nodiscard]] orvane::Result<NxRef<NxNode>> keep(
        NxNode& node, const Path& from, const Path& to, bool staysElsewhere = false);
    /// Adds what changes in nodes. To be called once, after the last `keep`.
    void addTo(NxSceneChanges& changes);
    /// How many nodes have got a transform above them.
    [[nodiscard]] int addedTransforms() const noexcept { return m_added; }

private:
    void compare(const Path& from, const Path& to);
    [[nodiscard]] bool change(NxNode& node);
    [[nodiscard]] NxRef<NxNode> wrapped(NxNode& node);

    NodeUses m_uses;
    Path m_from;
    Path m_to;
    /// From the former group to the new one.
    meridane::Matrix4d m_difference;
    bool m_isSame = true;
    bool m_isPossible = true;
    std::vector<NxSceneChanges::NodeChange> m_changes;
    int m_added = 0;
};
