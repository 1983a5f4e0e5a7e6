#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/NxViewpoint.h"

#include <utility>

/// A plane that cuts away a part of the picture.
struct NxSection {
    bool isOn = false; ///< false: nothing is cut away
    /// Points that are farther than `position` along this direction, which has the length 1, aren't shown.
    VbVec3f normal{1, 0, 0};
    double position = 0; ///< in scene units, from the origin of the scene

    /// Limits a range of distances along a ray, from its origin, to what is shown. It has no distance if nothing is:
    /// then the first is greater than the second.
    [[nodiscard]] std::pair<float, float> limited(const NxRay& ray, std::pair<float, float> distances) const noexcept;

    /// Whether all members are equal.
    friend bool operator==(const NxSection&, const NxSection&) noexcept = default;
};
