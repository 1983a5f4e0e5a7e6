#pragma once

#include "orvane/transfer/Picture.h"

#include <span>

/// The orientation of a camera.
namespace orvane {

/// The orientation in the Exif data of an image file, numbered as in the standard: 1 for an upright picture, up to 8.
[[nodiscard]] int orientationOf(std::span<const unsigned char> file);
/// Rotates a picture of that orientation upright.
[[nodiscard]] Picture upright(Picture picture, int orientation);

} // namespace orvane
