#include "orvane/import/pictures/ImageCodec.h"

#include "orvane/import/pictures/PictureCodecs.h"

#include <algorithm>
#include <string_view>

namespace orvane {
namespace {

using Decoder = std::optional<Picture> (*)(std::span<const unsigned char>);
using namespace std::string_view_literals;

struct Start {
    std::string_view bytes;
    Decoder decoder;
};

constexpr Start starts[] = {
    {"\x89PNG\r\n\x1a\n"sv, &decodePng},
    {"\xff\xd8\xff"sv, &decodeJpeg},
    {"II*\0"sv, &decodeTiff},
    {"MM\0*"sv, &decodeTiff},
    {"GIF87a"sv, &decodePlain},
    {"GIF89a"sv, &decodePlain},
    {"BM"sv, &decodePlain},
    {"8BPS\0\1"sv, &decodePlain},
    {"P5"sv, &decodePlain},
    {"P6"sv, &decodePlain},
};

bool isWebp(std::string_view file)
{
    return file.starts_with("RIFF"sv) && file.substr(std::min<std::size_t>(8, file.size())).starts_with("WEBP"sv);
}

// That format has no signature, only a plausible header.
bool isTga(std::string_view file)
{
    constexpr std::size_t headSize = 18;
    if (file.size() < headSize)
        return false;
    const char palettes = file[1];
    constexpr std::string_view kinds = "\1\2\3\11\12\13"sv;
    constexpr std::string_view depths = "\10\17\20\30\40"sv;
    return (palettes == 0 || palettes == 1) && kinds.find(file[2]) != std::string_view::npos
        && depths.find(file[16]) != std::string_view::npos;
}

Decoder decoderOf(std::string_view file)
{
    for (const Start& start : starts) {
        if (file.starts_with(start.bytes))
            return start.decoder;
    }
    if (isWebp(file))
        return &decodeWebp;
    return isTga(file) ? &decodePlain : nullptr;
}

} // namespace

std::optional<Picture> decodePicture(std::span<const unsigned char> file, std::string* problem)
{
    const Decoder decoder = decoderOf({reinterpret_cast<const char*>(file.data()), file.size()});
    std::optional<Picture> picture = decoder == nullptr ? std::nullopt : decoder(file);
    if (!picture && problem != nullptr)
        *problem = decoder == nullptr ? "it isn't a PNG, JPEG, WebP, TIFF, BMP, TGA, GIF, PSD, PGM or PPM image"
                                      : "the image is broken, or larger than 32767 pixels a side or 64 million in all";
    return picture;
}

} // namespace orvane
