#pragma once

#include <QImage>
#include <QSize>
#include <QString>

class NxSFImage;

namespace orvane {

/// The image of a field at most as large as `room`, upright. The time it takes depends on `room`, not on the size of
/// the image. Null for an empty image.
[[nodiscard]] QImage sampledImage(const NxSFImage& field, const QSize& room);
/// Such as "640 × 480, RGB"; "no image" for an empty one.
[[nodiscard]] QString imageDescription(const NxSFImage& field);

/// An image as the toolkit has them: pixel by pixel and row by row, the bottom row first.
struct ImageBytes {
    const unsigned char* bytes = nullptr; ///< null for an empty image
    int width = 0; ///< in pixels
    int height = 0; ///< in pixels
    int components = 0; ///< 1 grey, 2 grey and opacity, 3 red, green and blue, 4 those and opacity
};

/// The same two for an image that isn't in a field.
[[nodiscard]] QImage sampledImage(const ImageBytes& image, const QSize& room);
[[nodiscard]] QString imageDescription(const ImageBytes& image);

} // namespace orvane
