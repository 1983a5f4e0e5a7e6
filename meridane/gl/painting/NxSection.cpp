#include "meridane/gl/painting/NxSection.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <algorithm>

std::pair<float, float> NxSection::limited(const NxRay& ray, std::pair<float, float> distances) const noexcept
{
    using namespace meridane;
    if (!isOn)
        return distances;
    const VbVec3d ahead = normalized(ray.direction, VbVec3f(0, 0, -1));
    const double slope = dot(ahead, VbVec3d(normal));
    const double left = position - dot(ray.origin, VbVec3d(normal)); // before the plane, at the origin
    if (slope > 0)
        return {distances.first, std::min(distances.second, static_cast<float>(left / slope))};
    if (slope < 0)
        return {std::max(distances.first, static_cast<float>(left / slope)), distances.second};
    return left >= 0 ? distances : std::pair(1.F, 0.F);
}
