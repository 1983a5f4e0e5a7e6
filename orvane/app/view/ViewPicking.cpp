#include "orvane/app/view/ViewPicking.h"

#include <algorithm>
#include <limits>

std::optional<NxRayPick> orvane::pickAt(const NxViewpoint& viewpoint, const VbVec2f& place, const QSize& size,
    const NxSection& section, const NxNodeVisibility& visibility)
{
    /// How close to a line or point a click must be, in points of the screen.
    constexpr float radius = 4;
    const float height = static_cast<float>(std::max(size.height(), 1));
    const NxRay ray = viewpoint.rayAt(place, static_cast<float>(std::max(size.width(), 1)) / height);
    constexpr float most = std::numeric_limits<float>::max();
    const bool isOrthographic = viewpoint.projection == NxViewpoint::ORTHOGRAPHIC;
    const auto [nearest, farthest] = section.limited(ray, {isOrthographic ? -most : 0, most});
    if (nearest > farthest)
        return {};
    NxRayPick pick(ray);
    pick.setDistances(nearest, farthest);
    pick.setVisibility(visibility);
    if (isOrthographic)
        pick.setTolerance(radius / height * viewpoint.heightAt(0), 0);
    else
        pick.setTolerance(0, radius / height * viewpoint.heightAt(1));
    return pick;
}
