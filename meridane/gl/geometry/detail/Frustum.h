#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/gl/geometry/NxBounds.h"

#include <array>
#include <cstddef>

namespace meridane {

/// The part of the scene that is visible in a picture.
class Frustum {
public:
    enum class Overlap { None, Some, All };

    /// `eyeToClip` takes points relative to the eye to OpenGL's clip space.
    explicit Frustum(const VbMatrix& eyeToClip, const VbVec3d& eye = VbVec3d()) noexcept;

    /// How much of a box is visible. `Some` is also returned for boxes just outside, within the rounding of floats.
    [[nodiscard]] Overlap overlap(const NxBounds& box) const noexcept;
    /// Whether nothing of a box is too near to the eye to be visible, or behind it.
    [[nodiscard]] bool isAllInFront(const NxBounds& box) const noexcept;

private:
    using Plane = std::array<double, 4>; // a point is inside if its weighted sum is at least 0
    /// The weighted sums of the points of a box.
    struct Range {
        double least;
        double greatest;
    };

    [[nodiscard]] static Range rangeOf(const NxBounds& box, const Plane& plane) noexcept;

    static constexpr std::size_t nearest = 4; // of the planes

    std::array<Plane, 6> m_planes;
};

} // namespace meridane
