#include "meridane/base/values/VbRotation.h"

#include <cmath>

void VbRotation::getValue(VbVec3f& axis, float& radians) const noexcept
{
    axis = m_axis;
    radians = m_radians;
}

VbRotation& VbRotation::setValue(const VbVec3f& axis, float radians) noexcept
{
    m_axis = axis;
    m_radians = radians;
    return *this;
}

VbRotation& VbRotation::setValue(const float quaternion[4]) noexcept
{
    const auto x = static_cast<double>(quaternion[0]);
    const auto y = static_cast<double>(quaternion[1]);
    const auto z = static_cast<double>(quaternion[2]);
    const auto w = static_cast<double>(quaternion[3]);
    const double sine = std::sqrt(x * x + y * y + z * z);
    if (sine == 0.0)
        return *this = VbRotation();
    // atan2 needs no unit quaternion and is exact near 0 and pi, where acos(w) is not.
    return setValue(VbVec3f(static_cast<float>(x / sine), static_cast<float>(y / sine), static_cast<float>(z / sine)),
        static_cast<float>(2.0 * std::atan2(sine, w)));
}

std::array<float, 4> VbRotation::getQuaternion() const noexcept
{
    const auto x = static_cast<double>(m_axis[0]);
    const auto y = static_cast<double>(m_axis[1]);
    const auto z = static_cast<double>(m_axis[2]);
    const double length = std::sqrt(x * x + y * y + z * z);
    if (length == 0.0)
        return {0, 0, 0, 1};
    const double half = static_cast<double>(m_radians) / 2.0;
    const double scale = std::sin(half) / length;
    return {static_cast<float>(x * scale), static_cast<float>(y * scale), static_cast<float>(z * scale),
        static_cast<float>(std::cos(half))};
}
