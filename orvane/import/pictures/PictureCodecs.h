#pragma once

#include "orvane/transfer/Picture.h"

#include <cstring>
#include <optional>
#include <span>
#include <vector>

/// The decoders of the single formats. Each takes a whole file that begins like one of its format. Nothing, if the file
/// is broken, or the picture too large.
namespace orvane {

[[nodiscard]] std::optional<Picture> decodePng(std::span<const unsigned char> file);
[[nodiscard]] std::optional<Picture> decodeJpeg(std::span<const unsigned char> file);
[[nodiscard]] std::optional<Picture> decodeWebp(std::span<const unsigned char> file);
[[nodiscard]] std::optional<Picture> decodeTiff(std::span<const unsigned char> file);
/// BMP, TGA, GIF (its first picture), PSD (all layers together), PGM and PPM.
[[nodiscard]] std::optional<Picture> decodePlain(std::span<const unsigned char> file);

/// Turns a picture, which isn't empty, upside down.
inline void flipRows(Picture& picture)
{
    const std::size_t line = static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.components);
    std::vector<unsigned char> row(line);
    for (std::size_t low = 0, high = picture.bytes.size() - line; low < high; low += line, high -= line) {
        std::memcpy(row.data(), picture.bytes.data() + low, line);
        std::memcpy(picture.bytes.data() + low, picture.bytes.data() + high, line);
        std::memcpy(picture.bytes.data() + high, row.data(), line);
    }
}

} // namespace orvane
