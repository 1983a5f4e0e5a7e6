#include "orvane/import/pictures/PictureCodecs.h"

#include <algorithm>
#include <memory>

#include <stb_image.h>

namespace orvane {
namespace {

bool isUsable(const Picture& picture)
{
    return picture.width > 0 && picture.height > 0 && picture.components >= 1 && picture.components <= 4
        && isUsablePictureSize(static_cast<std::size_t>(picture.width), static_cast<std::size_t>(picture.height));
}

std::size_t byteCount(const Picture& picture)
{
    return static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height)
        * static_cast<std::size_t>(picture.components);
}

// The library invents missing pixels, so that a few bytes could request the largest picture.
bool isCutOff(std::span<const unsigned char> file, const Picture& picture)
{
    constexpr std::size_t maxPixelsPerByte = 4096; // of GIF, which compresses more
    constexpr std::size_t maxPixelsPerRun = 128;
    const std::size_t pixels = static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
    if (file[0] == 'P')
        return file.size() < byteCount(picture);
    return file.size() < pixels / (file[0] == 'G' ? maxPixelsPerByte : maxPixelsPerRun);
}

} // namespace

std::optional<Picture> decodePlain(std::span<const unsigned char> file)
{
    const auto size = static_cast<int>(std::min(file.size(), maxPictureFileSize));
    Picture picture;
    // The size is checked before memory is allocated.
    if (stbi_info_from_memory(file.data(), size, &picture.width, &picture.height, &picture.components) == 0
        || !isUsable(picture) || isCutOff(file, picture))
        return std::nullopt;
    constexpr int asInFile = 0;
    const std::unique_ptr<stbi_uc, void (*)(void*)> bytes(
        stbi_load_from_memory(file.data(), size, &picture.width, &picture.height, &picture.components, asInFile),
        &stbi_image_free);
    if (bytes == nullptr || !isUsable(picture))
        return std::nullopt;
    picture.bytes.assign(bytes.get(), bytes.get() + byteCount(picture));
    flipRows(picture);
    return picture;
}

} // namespace orvane
