#include "meridane/gl/geometry/detail/PictureFrame.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/gl/geometry/NxViewpoint.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace meridane {
namespace {

/// The greatest rounding error of the corners of a box in any direction.
float roundingOf(const NxBounds& box)
{
    double sum = 0;
    for (std::size_t axis = 0; axis < 3; ++axis)
        sum += std::max(std::abs(static_cast<double>(box.min[axis])), std::abs(static_cast<double>(box.max[axis])));
    return static_cast<float>(sum * NxBounds::rounding);
}

/// The nearest and farthest distance along the line of sight. The range is as small as possible, for the best
/// resolution of the depth buffer; in perspective the nearest distance decides on that.
std::pair<float, float> depthRange(const NxViewpoint& viewpoint, const NxBounds& shown)
{
    constexpr float farShare = 1.0F / 2000;
    constexpr float leastShare = 1e-6F;
    constexpr float margin = 0.01F;
    float nearest = std::numeric_limits<float>::max();
    float farthest = std::numeric_limits<float>::lowest();
    for (unsigned int corner = 0; corner < 8; ++corner) {
        const float distance = viewpoint.distanceTo(VbVec3f((corner & 1U) != 0 ? shown.max[0] : shown.min[0],
            (corner & 2U) != 0 ? shown.max[1] : shown.min[1], (corner & 4U) != 0 ? shown.max[2] : shown.min[2]));
        nearest = std::min(nearest, distance);
        farthest = std::max(farthest, distance);
    }
    const float focal = viewpoint.focalDistance > 0 ? viewpoint.focalDistance : 1;
    if (shown.isEmpty() || !(farthest > nearest - 1)) { // nothing to show, or farther away than the largest float
        nearest = focal / 2;
        farthest = focal * 2;
    }
    const float gap = std::max({(farthest - nearest) * margin, focal * leastShare, roundingOf(shown)});
    if (viewpoint.projection == NxViewpoint::ORTHOGRAPHIC)
        return {nearest - gap, farthest + gap};
    if (!(farthest > focal * leastShare)) // everything is behind the eye
        farthest = focal * 2;
    farthest += gap;
    const float wanted = std::min(farthest * farShare, focal / 10);
    return {std::max(nearest - gap, wanted), farthest};
}

} // namespace

PictureFrame::PictureFrame(
    const NxViewpoint& viewpoint, const NxBounds& shown, int pictureWidth, int pictureHeight, float pixelsPerPoint)
    : position(viewpoint.usablePosition())
    , direction(viewpoint.viewDirection())
    , width(pictureWidth)
    , height(pictureHeight)
    , scale(pixelsPerPoint)
{
    const auto [nearest, farthest] = depthRange(viewpoint, shown);
    const float aspect = static_cast<float>(width) / static_cast<float>(height);
    eyeToClip = multiply(viewpoint.viewRotation(), viewpoint.projectionMatrix(aspect, nearest, farthest));
    const bool isFlat = viewpoint.projection == NxViewpoint::ORTHOGRAPHIC;
    if (isFlat)
        eye = {-direction[0], -direction[1], -direction[2], 0};
    else
        eye = {0, 0, 0, 1};
    pixelsPerUnit = static_cast<float>(height) / (viewpoint.heightAt(1) * viewpoint.partSize()[1]);
}

std::array<float, 4> PictureFrame::sectionFor(const VbVec3f& normal, double place) const noexcept
{
    const auto left = static_cast<float>(place - dot(position, VbVec3d(normal)));
    return {-normal[0], -normal[1], -normal[2], left};
}

double PictureFrame::depthOf(const VbVec3d& point) const noexcept
{
    return dot(subtract(point, position), VbVec3d(direction));
}

} // namespace meridane
