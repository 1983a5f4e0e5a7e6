#include "orvane/app/view/navigation/ViewpointPath.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

using namespace meridane;

namespace {

float blended(float from, float to, double part)
{
    return static_cast<float>(std::lerp(static_cast<double>(from), static_cast<double>(to), part));
}

/// By equal factors, as zooming does.
float blendedLengths(float from, float to, double part)
{
    return static_cast<float>(
        static_cast<double>(from) * std::pow(static_cast<double>(to) / static_cast<double>(from), part));
}

/// The shorter way round.
VbRotation blended(const VbRotation& from, const VbRotation& to, double part)
{
    const std::array<float, 4> first = from.getQuaternion();
    std::array<float, 4> second = to.getQuaternion();
    double cosine = 0;
    for (std::size_t i = 0; i < 4; ++i)
        cosine += static_cast<double>(first[i]) * static_cast<double>(second[i]);
    if (cosine < 0)
        std::transform(second.begin(), second.end(), second.begin(), std::negate());
    const double angle = std::acos(std::min(std::abs(cosine), 1.0));
    constexpr double smallest = 1e-4;
    const bool isSmall = angle < smallest; // whose sine is no divisor
    const double firstShare = isSmall ? 1 - part : std::sin((1 - part) * angle) / std::sin(angle);
    const double secondShare = isSmall ? part : std::sin(part * angle) / std::sin(angle);
    std::array<float, 4> quaternion{};
    for (std::size_t i = 0; i < 4; ++i)
        quaternion[i] = static_cast<float>(
            firstShare * static_cast<double>(first[i]) + secondShare * static_cast<double>(second[i]));
    return VbRotation().setValue(quaternion.data());
}

} // namespace

ViewpointPath::ViewpointPath(const NxViewpoint& from, const NxViewpoint& to)
    : m_from(from)
    , m_to(to)
{
    m_from.setProjection(to.projection);
}

NxViewpoint ViewpointPath::at(double part) const
{
    if (part >= 1)
        return m_to;
    NxViewpoint viewpoint = m_from;
    viewpoint.orientation = blended(m_from.orientation, m_to.orientation, part);
    viewpoint.heightAngle = blended(m_from.heightAngle, m_to.heightAngle, part);
    viewpoint.height = blendedLengths(m_from.height, m_to.height, part);
    viewpoint.focalDistance = blendedLengths(m_from.focalDistance, m_to.focalDistance, part);
    const VbVec3d focalPoint = add(scaled(m_from.focalPoint(), 1 - part), scaled(m_to.focalPoint(), part));
    viewpoint.position = subtract(
        focalPoint, scaled(VbVec3d(viewpoint.viewDirection()), static_cast<double>(viewpoint.focalDistance)));
    return viewpoint;
}
