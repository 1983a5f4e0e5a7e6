#pragma once

#include <cstddef>
#include <vector>

namespace orvane {

/// A picture as in a scene: rows from bottom to top, 1 to 4 components of one byte for each pixel.
struct Picture {
    int width = 0;
    int height = 0;
    int components = 0;
    std::vector<unsigned char> bytes;
};

/// The greatest width and height of a picture, and the greatest number of pixels.
inline constexpr std::size_t maxPictureSide = 32767;
inline constexpr std::size_t maxPicturePixels = std::size_t{1} << 26;
/// The greatest size of an image file, in bytes.
inline constexpr std::size_t maxPictureFileSize = std::size_t{256} << 20;

[[nodiscard]] constexpr bool isUsablePictureSize(std::size_t width, std::size_t height)
{
    return width > 0 && height > 0 && width <= maxPictureSide && height <= maxPictureSide
        && width * height <= maxPicturePixels;
}

} // namespace orvane
