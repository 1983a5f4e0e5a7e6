#pragma once

#include "orvane/transfer/Picture.h"

#include <optional>
#include <span>
#include <string>

namespace orvane {

/// Decodes an image file. Its first bytes decide the format: PNG, JPEG, WebP, TIFF, BMP, TGA, GIF, PSD, PGM or PPM.
/// Nothing, with the reason in `problem` where one is given, if it is none of these, is broken or too large.
[[nodiscard]] std::optional<Picture> decodePicture(std::span<const unsigned char> file, std::string* problem = nullptr);
/// Encodes a PNG file; empty when the picture is empty.
[[nodiscard]] std::string encodePng(const Picture& picture);

} // namespace orvane
