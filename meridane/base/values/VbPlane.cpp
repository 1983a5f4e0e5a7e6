#include "meridane/base/values/VbPlane.h"

#include <cmath>

VbPlane::VbPlane(const VbVec3f& normal, float distance) noexcept
    : m_normal(normal)
    , m_distance(distance)
{
    constexpr double rounding = 1e-6;
    const double length
        = std::hypot(static_cast<double>(normal[0]), static_cast<double>(normal[1]), static_cast<double>(normal[2]));
    if (length == 0.0 || !std::isfinite(length) || std::abs(length - 1.0) < rounding)
        return;
    for (std::size_t i = 0; i < 3; ++i)
        m_normal[i] = static_cast<float>(static_cast<double>(normal[i]) / length);
}
