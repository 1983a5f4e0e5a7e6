#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

/// What an image file states about itself before its pixels. Nothing is decoded, and every number is checked, since
/// files may be hostile.
namespace orvane {

/// Returns bytes of a file: `count` of them from `offset` on, fewer at its end.
using ByteSource = std::function<std::string(std::uint64_t offset, std::size_t count)>;

/// In pixels.
struct StatedImageSize {
    std::uint64_t width = 0;
    std::uint64_t height = 0;
};

/// The size that an image states; 0 by 0 if it begins like an image but states none. Nothing if it is in none of the
/// formats of `orvane/import/pictures/ImageCodec.h`.
[[nodiscard]] std::optional<StatedImageSize> statedImageSize(const ByteSource& file);

} // namespace orvane
