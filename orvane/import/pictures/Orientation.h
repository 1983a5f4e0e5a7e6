#pragma once

#include "orvane/transfer/Picture.h"

#include <span>

/// How a camera was held.
namespace orvane {

/// What the Exif data of an image file say, as the standard numbers it: 1 for an upright picture, up to 8.
[[nodiscard]] int orientationOf(std::span<const unsigned char> file);
/// The picture as it was seen, from one that was taken at that orientation.
[[nodiscard]] Picture upright(Picture picture, int orientation);

} // namespace orvane
