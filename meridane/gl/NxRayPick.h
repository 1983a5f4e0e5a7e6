#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/places/NxNodeVisibility.h"

#include <cstddef>
#include <optional>
#include <vector>

class NxNode;

/// The first hit of a ray.
struct NxRayHit {
    /// The nodes from a child of the searched node to the mesh.
    std::vector<NxNode*> path;
    VbVec3d point; ///< in scene units
    float distance = 0; ///< from the origin of the ray, in scene units
    int primitive = 0; ///< the triangle, line or point of the mesh, counted from 0
    int vertex = 0; ///< the nearest position of the primitive: its row in the positions of the mesh
    int corner = 0; ///< the row of that vertex in the indices of the mesh; `vertex` for a mesh without indices
};

/// Finds the first mesh that a ray hits.
///
/// Surfaces are hit exactly, from either side unless their material isn't `doubleSided`; lines and points if the ray
/// passes close to them. Switches, transforms and ignored fields have the same effect as in drawing. Primitives whose
/// positions are missing or aren't finite are skipped, as are the children of a transform that isn't finite. The search
/// takes time in proportion to the vertices of the meshes and stores nothing.
class NxRayPick {
public:
    /// The direction of the ray must have the length 1.
    explicit NxRayPick(const NxRay& ray);

    /// Sets how close the ray must pass to hit a line or point: `radius` at the origin, and `slope` more for each unit
    /// of distance. Both are 0 at first, so that no line or point is hit.
    void setTolerance(float radius, float slope) noexcept;
    /// Limits hits to a range of distances from the origin. At first from 0 to infinity.
    void setDistances(float nearest, float farthest) noexcept;

    /// Skips nodes that aren't shown. At first all are.
    void setVisibility(const NxNodeVisibility& visibility) { m_visibility = visibility; }

    /// The first hit below `root`, or nothing.
    [[nodiscard]] std::optional<NxRayHit> pick(const NxNode& root) const;
    /// The first hits of the meshes below `root`, one for each instance, from the nearest on; at most `most` of them.
    [[nodiscard]] std::vector<NxRayHit> pickAll(const NxNode& root, std::size_t most) const;

private:
    template <typename Visit>
    void visitMeshes(const NxNode& root, Visit visit) const;
    [[nodiscard]] VbVec3d pointAt(double distance) const;

    NxRay m_ray;
    float m_radius = 0;
    float m_slope = 0;
    float m_nearest = 0;
    float m_farthest;
    NxNodeVisibility m_visibility;
};
