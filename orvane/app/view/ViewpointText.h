#pragma once

#include "meridane/gl/geometry/NxViewpoint.h"

#include <QString>

#include <optional>

/// A viewpoint as a text for the settings.
namespace orvane {

/// Position, axis and angle of the orientation, projection, angle, height, focal distance.
inline constexpr int viewpointNumbers = 11;

/// The numbers, exactly, each with a blank behind it. What the text belongs to can follow.
[[nodiscard]] QString textOf(const NxViewpoint& viewpoint);
/// The viewpoint of a text that begins with these numbers, or nothing.
[[nodiscard]] std::optional<NxViewpoint> viewpointOf(const QString& text);

} // namespace orvane
