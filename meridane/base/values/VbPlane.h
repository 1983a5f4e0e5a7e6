#pragma once

#include "meridane/base/values/VbVec.h"

/// A plane: the points whose product with the unit normal is the distance from the origin.
class VbPlane {
public:
    /// The plane through the origin that faces along z.
    constexpr VbPlane() noexcept = default;
    /// Normalises the normal and keeps the distance. A normal isn't changed if its length is 1 within rounding, 0 or
    /// not finite, so that a written plane reads back unchanged.
    VbPlane(const VbVec3f& normal, float distance) noexcept;

    /// The normal, of length 1 unless it was given with length 0 or with components that aren't finite.
    [[nodiscard]] const VbVec3f& getNormal() const noexcept { return m_normal; }
    /// The distance along the normal; negative if the normal points from the plane to the origin.
    [[nodiscard]] float getDistanceFromOrigin() const noexcept { return m_distance; }

    /// Whether normal and distance are equal; a NaN equals nothing.
    friend bool operator==(const VbPlane&, const VbPlane&) noexcept = default;

private:
    VbVec3f m_normal{0, 0, 1};
    float m_distance = 0;
};
