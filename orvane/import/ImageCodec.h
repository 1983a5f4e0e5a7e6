#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace orvane {

/// A picture as a scene holds it: rows from bottom to top, 1 to 4 components of one byte a pixel.
struct Picture {
    int width = 0;
    int height = 0;
    int components = 0;
    std::vector<unsigned char> bytes;
};

/// The greatest width and height of a picture, and the greatest number of pixels.
inline constexpr std::size_t maxPictureSide = 32767;
inline constexpr std::size_t maxPicturePixels = std::size_t{1} << 26;

/// Decodes a PNG or JPEG file. Nothing, if it is neither, is broken or too large.
[[nodiscard]] std::optional<Picture> decodePicture(std::span<const unsigned char> file);
/// Encodes a PNG file; empty when the picture is empty.
[[nodiscard]] std::string encodePng(const Picture& picture);

} // namespace orvane
