#pragma once

#include "meridane/base/values/VbVec.h"

#include <limits>

/// A box along the axes of the world, in scene units. The default is empty: it holds no point.
struct NxBounds {
    /// The relative rounding error of the numbers, since they are floats.
    static constexpr double rounding = 1.0 / (1U << 23U);

    /// The lower corner; above `max` in an empty box.
    VbVec3f min{
        std::numeric_limits<float>::max(), std::numeric_limits<float>::max(), std::numeric_limits<float>::max()};
    /// The upper corner.
    VbVec3f max{std::numeric_limits<float>::lowest(), std::numeric_limits<float>::lowest(),
        std::numeric_limits<float>::lowest()};

    /// Whether the box holds no point. A box of size 0 isn't empty.
    [[nodiscard]] bool isEmpty() const noexcept { return !(min[0] <= max[0]); }
    /// The middle of the box; without a meaning for an empty one.
    [[nodiscard]] VbVec3f center() const noexcept
    {
        return {min[0] / 2 + max[0] / 2, min[1] / 2 + max[1] / 2, min[2] / 2 + max[2] / 2};
    }
    /// The lengths along the axes, in scene units; without a meaning for an empty box.
    [[nodiscard]] VbVec3f size() const noexcept { return {max[0] - min[0], max[1] - min[1], max[2] - min[2]}; }

    /// Makes the box just as large that it holds a point. Components that are NaN are left out.
    void include(const VbVec3f& point) noexcept
    {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            min[axis] = point[axis] < min[axis] ? point[axis] : min[axis];
            max[axis] = point[axis] > max[axis] ? point[axis] : max[axis];
        }
    }
    /// Makes the box just as large that it holds another one; an empty one changes nothing.
    void include(const NxBounds& other) noexcept
    {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            min[axis] = other.min[axis] < min[axis] ? other.min[axis] : min[axis];
            max[axis] = other.max[axis] > max[axis] ? other.max[axis] : max[axis];
        }
    }

    /// Whether both corners are equal.
    friend bool operator==(const NxBounds&, const NxBounds&) noexcept = default;
};
