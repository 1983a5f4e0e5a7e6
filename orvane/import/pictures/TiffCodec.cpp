#include "orvane/import/pictures/PictureCodecs.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include <tiffio.h>

namespace orvane {
namespace {

/// A file in memory, as the library reads it.
struct MemoryFile {
    std::span<const unsigned char> bytes;
    toff_t position = 0;
};

MemoryFile& fileOf(thandle_t handle)
{
    return *static_cast<MemoryFile*>(handle);
}

tmsize_t readBytes(thandle_t handle, void* target, tmsize_t size)
{
    MemoryFile& file = fileOf(handle);
    if (file.position >= file.bytes.size() || size <= 0)
        return 0;
    const std::size_t count = std::min<std::size_t>(static_cast<std::size_t>(size), file.bytes.size() - file.position);
    std::memcpy(target, file.bytes.data() + file.position, count);
    file.position += count;
    return static_cast<tmsize_t>(count);
}

tmsize_t writeNothing(thandle_t, void*, tmsize_t)
{
    return 0;
}

toff_t seekFile(thandle_t handle, toff_t offset, int origin)
{
    MemoryFile& file = fileOf(handle);
    // A negative offset comes as a large number, and the sum is the right one again.
    file.position = offset + (origin == SEEK_CUR ? file.position : origin == SEEK_END ? file.bytes.size() : 0);
    return file.position;
}

toff_t sizeOfFile(thandle_t handle)
{
    return fileOf(handle).bytes.size();
}

int closeNothing(thandle_t)
{
    return 0;
}

bool hasOpacity(TIFF* file)
{
    std::uint16_t count = 0;
    const std::uint16_t* kinds = nullptr;
    return TIFFGetField(file, TIFFTAG_EXTRASAMPLES, &count, &kinds) == 1 && count > 0
        && kinds[0] != EXTRASAMPLE_UNSPECIFIED;
}

// The library multiplies colours by the opacity, which a texture's colours aren't.
unsigned char divided(std::uint32_t color, std::uint32_t opacity)
{
    constexpr std::uint32_t full = 255;
    if (opacity == 0)
        return 0;
    return static_cast<unsigned char>(std::min((color * full + opacity / 2) / opacity, full));
}

Picture toPicture(const std::vector<std::uint32_t>& pixels, int width, int height, int components)
{
    Picture picture{width, height, components, {}};
    picture.bytes.reserve(pixels.size() * static_cast<std::size_t>(components));
    for (const std::uint32_t pixel : pixels) {
        const std::uint32_t opacity = components == 4 ? TIFFGetA(pixel) : 255;
        for (const std::uint32_t color : {TIFFGetR(pixel), TIFFGetG(pixel), TIFFGetB(pixel)})
            picture.bytes.push_back(divided(color, opacity));
        if (components == 4)
            picture.bytes.push_back(static_cast<unsigned char>(opacity));
    }
    return picture;
}

} // namespace

std::optional<Picture> decodeTiff(std::span<const unsigned char> file)
{
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
    MemoryFile memory{file};
    const std::unique_ptr<TIFF, void (*)(TIFF*)> tiff(
        TIFFClientOpen("picture", "rm", &memory, &readBytes, &writeNothing, &seekFile, &closeNothing, &sizeOfFile,
            nullptr, nullptr),
        &TIFFClose);
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    if (tiff == nullptr || TIFFGetField(tiff.get(), TIFFTAG_IMAGEWIDTH, &width) != 1
        || TIFFGetField(tiff.get(), TIFFTAG_IMAGELENGTH, &height) != 1 || !isUsablePictureSize(width, height))
        return std::nullopt;
    std::vector<std::uint32_t> pixels(std::size_t{width} * height);
    constexpr int stopAtErrors = 1;
    if (TIFFReadRGBAImageOriented(tiff.get(), width, height, pixels.data(), ORIENTATION_BOTLEFT, stopAtErrors) == 0)
        return std::nullopt;
    return toPicture(pixels, static_cast<int>(width), static_cast<int>(height), hasOpacity(tiff.get()) ? 4 : 3);
}

} // namespace orvane
