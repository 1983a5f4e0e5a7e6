#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/NxViewpoint.h"

#include <optional>
#include <vector>

class NxNode;

/// What a line of sight meets first.
struct NxRayHit {
    /// The nodes from a child of the searched node down to the mesh.
    std::vector<NxNode*> path;
    VbVec3d point; ///< in scene units
    float distance = 0; ///< from the origin of the ray, in scene units
    int primitive = 0; ///< the triangle, line or point of the mesh, counted from 0
};

/// Finds what stands under a line of sight.
///
/// Surfaces are met exactly, from either side; lines and points when the ray passes close by. Switches, transforms and
/// ignored fields count as they do for drawing; primitives with positions that aren't there or aren't finite are passed
/// over, as are the children of a transform that isn't finite. The search takes time in proportion to the corners of
/// the meshes and keeps nothing.
class NxRayPick {
public:
    explicit NxRayPick(const NxRay& ray);

    /// How close counts as met, for lines and points: `radius` at the origin, and `slope` more for each unit of
    /// distance. 0 and 0 at first, with which no line or point is met.
    void setTolerance(float radius, float slope) noexcept;
    /// Only what is at these distances from the origin counts. From 0 without an end at first.
    void setDistances(float nearest, float farthest) noexcept;

    /// What stands below `root` and is met first, or nothing.
    [[nodiscard]] std::optional<NxRayHit> pick(const NxNode& root) const;

private:
    NxRay m_ray;
    float m_radius = 0;
    float m_slope = 0;
    float m_nearest = 0;
    float m_farthest;
};
