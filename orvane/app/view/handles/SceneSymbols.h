#pragma once

#include "meridane/gl/geometry/NodePlacement.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <vector>

class NxGroup;

/// A light or camera in one of its places.
struct SceneSymbol {
    /// The nodes that lead to it from the scene, each a child of the one before.
    std::vector<NxRef<NxNode>> path;

    [[nodiscard]] NxNode& node() const { return *path.back(); }
    /// Where it is now.
    [[nodiscard]] meridane::NodePlacement placement() const;
};

namespace orvane {

/// More lights and cameras than that would hide the scene.
inline constexpr std::size_t mostSymbols = 500;

/// The lights and cameras that a scene shows, in its order, the first ones of a scene that has more. It takes one way
/// through the scene, of at most a million nodes.
[[nodiscard]] std::vector<SceneSymbol> symbolsOf(const NxGroup& scene);

} // namespace orvane
