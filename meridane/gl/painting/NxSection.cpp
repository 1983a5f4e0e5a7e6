#include "meridane/gl/painting/NxSection.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <algorithm>
#include <limits>

std::pair<float, float> NxSection::limited(const NxRay& ray, std::pair<float, float> distances) const noexcept
{
    using namespace meridane;
    if (!isOn)
        return distances;
    const VbVec3d ahead = normalized(ray.direction, VbVec3f(0, 0, -1));
    const double slope = dot(ahead, VbVec3d(normal));
    const double left = position - dot(ray.origin, VbVec3d(normal)); // before the plane, at the origin
    if (slope == 0.0)
        return left >= 0 ? distances : std::pair(1.F, 0.F);
    constexpr auto most = static_cast<double>(std::numeric_limits<float>::max());
    const auto end = static_cast<float>(std::clamp(left / slope, -most, most));
    if (slope > 0)
        return {distances.first, std::min(distances.second, end)};
    return {std::max(distances.first, end), distances.second};
}
