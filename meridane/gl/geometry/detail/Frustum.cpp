#include "meridane/gl/geometry/detail/Frustum.h"

#include <cmath>

namespace meridane {

Frustum::Frustum(const VbMatrix& eyeToClip, const VbVec3d& eye) noexcept
    : m_planes()
{
    for (std::size_t side = 0; side < 6; ++side) {
        const double sign = side % 2 == 0 ? 1 : -1;
        for (std::size_t row = 0; row < 4; ++row) {
            m_planes[side][row]
                = static_cast<double>(eyeToClip[row][3]) + sign * static_cast<double>(eyeToClip[row][side / 2]);
        }
        for (std::size_t axis = 0; axis < 3; ++axis)
            m_planes[side][3] -= m_planes[side][axis] * eye[axis];
    }
}

Frustum::Range Frustum::rangeOf(const NxBounds& box, const Plane& plane) noexcept
{
    Range range{plane[3], plane[3]};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double a = plane[axis] * static_cast<double>(box.min[axis]);
        const double b = plane[axis] * static_cast<double>(box.max[axis]);
        const double rounding = NxBounds::rounding * (std::abs(a) + std::abs(b));
        range.least += (a < b ? a : b) - rounding;
        range.greatest += (a < b ? b : a) + rounding;
    }
    return range;
}

bool Frustum::isAllInFront(const NxBounds& box) const noexcept
{
    return rangeOf(box, m_planes[nearest]).least >= 0;
}

Frustum::Overlap Frustum::overlap(const NxBounds& box) const noexcept
{
    Overlap result = Overlap::All;
    for (const Plane& plane : m_planes) {
        const auto [least, greatest] = rangeOf(box, plane);
        if (greatest < 0)
            return Overlap::None;
        if (!(least >= 0))
            result = Overlap::Some;
    }
    return result;
}

} // namespace meridane
