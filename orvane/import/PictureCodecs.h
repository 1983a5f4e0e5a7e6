#pragma once

#include "orvane/import/Picture.h"

#include <algorithm>
#include <optional>
#include <span>

/// The decoders of the single formats. Each takes a whole file that begins like one of its format. Nothing, if the file
/// is broken, or the picture too large.
namespace orvane {

[[nodiscard]] std::optional<Picture> decodePng(std::span<const unsigned char> file);
[[nodiscard]] std::optional<Picture> decodeJpeg(std::span<const unsigned char> file);
[[nodiscard]] std::optional<Picture> decodeWebp(std::span<const unsigned char> file);
[[nodiscard]] std::optional<Picture> decodeTiff(std::span<const unsigned char> file);
/// BMP, TGA, GIF (its first picture), PSD (all layers together), PGM and PPM.
[[nodiscard]] std::optional<Picture> decodePlain(std::span<const unsigned char> file);

/// Turns a picture upside down.
inline void flipRows(Picture& picture)
{
    const auto line = static_cast<std::ptrdiff_t>(picture.width) * picture.components;
    for (std::ptrdiff_t low = 0, high = picture.height - 1; low < high; ++low, --high)
        std::swap_ranges(picture.bytes.begin() + low * line, picture.bytes.begin() + (low + 1) * line,
            picture.bytes.begin() + high * line);
}

} // namespace orvane
