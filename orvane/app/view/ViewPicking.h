#pragma once

#include "meridane/gl/NxRayPick.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/painting/NxSection.h"
#include "meridane/gl/places/NxNodeVisibility.h"

#include <QSize>

#include <optional>

namespace orvane {

/// The ray through a place of a view of that size, in points of the screen, which meets what is seen there: neither
/// what the section cuts away nor what is hidden. Lines and points are met within four points of the screen. Nothing
/// where the section leaves nothing.
[[nodiscard]] std::optional<NxRayPick> pickAt(const NxViewpoint& viewpoint, const VbVec2f& place, const QSize& size,
    const NxSection& section, const NxNodeVisibility& visibility);

} // namespace orvane
