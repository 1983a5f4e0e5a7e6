#pragma once

#include "meridane/base/values/VbVec.h"

#include <array>

/// A rotation about an axis.
///
/// Axis and angle are kept exactly as they were given, so that a text or an editor shows what was typed; only
/// `getQuaternion` normalises. The default is a rotation by 0 about the z axis.
class VbRotation {
public:
    constexpr VbRotation() noexcept = default;
    /// A rotation about an axis of any length, counter-clockwise when the axis points at the viewer.
    constexpr VbRotation(const VbVec3f& axis, float radians) noexcept
        : m_axis(axis)
        , m_radians(radians)
    {
    }

    /// Hands out the axis and the angle as they were given.
    void getValue(VbVec3f& axis, float& radians) const noexcept;
    /// Sets the axis, of any length, and the angle. Returns the rotation itself.
    VbRotation& setValue(const VbVec3f& axis, float radians) noexcept;
    /// Takes the quaternion x, y, z, w of any length but 0; a zero quaternion gives the default rotation. The angle
    /// is then between 0 and 2 pi.
    VbRotation& setValue(const float quaternion[4]) noexcept;

    /// The axis as it was given, of any length.
    [[nodiscard]] const VbVec3f& getAxis() const noexcept { return m_axis; }
    /// The angle in radians.
    [[nodiscard]] float getAngle() const noexcept { return m_radians; }
    /// The unit quaternion x, y, z, w; the identity for an axis of no length.
    [[nodiscard]] std::array<float, 4> getQuaternion() const noexcept;

    /// Whether axis and angle are equal as given: different numbers may mean the same rotation.
    friend bool operator==(const VbRotation&, const VbRotation&) noexcept = default;

private:
    VbVec3f m_axis{0, 0, 1};
    float m_radians = 0;
};
