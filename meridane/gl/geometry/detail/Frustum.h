#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/gl/geometry/NxBounds.h"

#include <array>

namespace meridane {

/// The part of the scene that a picture shows.
class Frustum {
public:
    enum class Overlap { None, Some, All };

    /// `eyeToClip` takes points relative to the eye to the cube that OpenGL clips at.
    explicit Frustum(const VbMatrix& eyeToClip, const VbVec3d& eye = VbVec3d()) noexcept;

    /// Where a box lies; `Some` also for some boxes just outside, as far as floats may have rounded them.
    [[nodiscard]] Overlap overlap(const NxBounds& box) const noexcept;

private:
    using Plane = std::array<double, 4>; // inside are points with a sum of at least 0

    std::array<Plane, 6> m_planes;
};

} // namespace meridane
