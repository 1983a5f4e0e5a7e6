#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"

#include <array>

namespace meridane {

/// How something is moved, turned or scaled in a scene. All vectors are in the scene's own units and axes.
struct PlacementChange {
    /// What is changed.
    enum class Kind { Move, Turn, Scale };

    Kind kind = Kind::Move; ///< which of the members below count
    VbVec3d distance; ///< of a move
    VbVec3d pivot; ///< the point that a turn or scale leaves where it is
    VbVec3d axis{0, 0, 1}; ///< of a turn, of length 1
    double angle = 0; ///< of a turn, in radians, counter-clockwise when the axis points at the viewer
    std::array<VbVec3d, 3> axes{VbVec3d(1, 0, 0), VbVec3d(0, 1, 0), VbVec3d(0, 0, 1)}; ///< of a scale, independent
    VbVec3d factors{1, 1, 1}; ///< of a scale, along the three axes

    /// A move by `distance`, in scene units.
    [[nodiscard]] static PlacementChange move(const VbVec3d& distance);
    /// A turn about an axis of length 1 through `pivot`, by an angle in radians.
    [[nodiscard]] static PlacementChange turn(const VbVec3d& pivot, const VbVec3d& axis, double angle);
    /// A scale by a factor along each of three independent axes; `pivot` stays where it is.
    [[nodiscard]] static PlacementChange scale(
        const VbVec3d& pivot, const std::array<VbVec3d, 3>& axes, const VbVec3d& factors);

    /// What the change does to directions and distances; the translation is 0.
    [[nodiscard]] Matrix4d linear() const;
    /// Where the change takes a point. Exact for the pivot.
    [[nodiscard]] VbVec3d applied(const VbVec3d& point) const;
};

/// The matrix of a turn about an axis of length 1 through the origin.
[[nodiscard]] Matrix4d turnMatrix(const VbVec3d& axis, double angle);

} // namespace meridane
