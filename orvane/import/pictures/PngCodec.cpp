#include "orvane/import/pictures/ImageCodec.h"
#include "orvane/import/pictures/PictureCodecs.h"

#include <png.h>

namespace orvane {
namespace {

// The simplified interface of the library handles palettes, 16 bits and interlacing by itself.
png_uint_32 pngFormat(int components)
{
    constexpr png_uint_32 formats[] = {PNG_FORMAT_GRAY, PNG_FORMAT_GA, PNG_FORMAT_RGB, PNG_FORMAT_RGBA};
    return formats[components - 1];
}

} // namespace

std::optional<Picture> decodePng(std::span<const unsigned char> file)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, file.data(), file.size()) == 0)
        return std::nullopt;
    Picture picture;
    picture.components
        = ((image.format & PNG_FORMAT_FLAG_COLOR) != 0 ? 3 : 1) + ((image.format & PNG_FORMAT_FLAG_ALPHA) != 0 ? 1 : 0);
    image.format = pngFormat(picture.components);
    if (!isUsablePictureSize(image.width, image.height)) {
        png_image_free(&image);
        return std::nullopt;
    }
    picture.width = static_cast<int>(image.width);
    picture.height = static_cast<int>(image.height);
    picture.bytes.resize(PNG_IMAGE_SIZE(image));
    // A negative stride means rows from bottom to top.
    const auto stride = static_cast<png_int_32>(PNG_IMAGE_ROW_STRIDE(image));
    if (png_image_finish_read(&image, nullptr, picture.bytes.data(), -stride, nullptr) == 0)
        return std::nullopt;
    return picture;
}

std::string encodePng(const Picture& picture)
{
    if (picture.bytes.empty())
        return {};
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = pngFormat(picture.components);
    const auto stride = static_cast<png_int_32>(PNG_IMAGE_ROW_STRIDE(image));
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    std::string file(size, '\0');
    if (png_image_write_to_memory(&image, file.data(), &size, 0, picture.bytes.data(), -stride, nullptr) == 0)
        return {};
    file.resize(size);
    return file;
}

} // namespace orvane
