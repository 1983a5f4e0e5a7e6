#include "orvane/import/ImageCodec.h"

#include <csetjmp>
#include <cstdio> // ahead of jpeglib.h, which needs FILE

#include <jpeglib.h>
#include <png.h>

namespace orvane {
namespace {

bool isUsableSize(std::size_t width, std::size_t height)
{
    return width > 0 && height > 0 && width <= maxPictureSide && height <= maxPictureSide
        && width * height <= maxPicturePixels;
}

// The simplified interface of the library handles palettes, 16 bits and interlacing by itself.
png_uint_32 pngFormat(int components)
{
    constexpr png_uint_32 formats[] = {PNG_FORMAT_GRAY, PNG_FORMAT_GA, PNG_FORMAT_RGB, PNG_FORMAT_RGBA};
    return formats[components - 1];
}

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
    if (!isUsableSize(image.width, image.height)) {
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

struct JpegErrors {
    jpeg_error_mgr manager; // first, so that the library's pointer to it is one to this
    std::jmp_buf jump;
};

[[noreturn]] void failJpeg(j_common_ptr codec)
{
    std::longjmp(reinterpret_cast<JpegErrors*>(codec->err)->jump, 1);
}

void ignoreJpegMessage(j_common_ptr, int) { }

// Nothing with a destructor may be made between setjmp and longjmp, so the picture comes from outside.
bool decodeJpeg(std::span<const unsigned char> file, jpeg_decompress_struct& codec, Picture& picture)
{
    JpegErrors errors;
    codec.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = &failJpeg;
    errors.manager.emit_message = &ignoreJpegMessage;
    if (setjmp(errors.jump) != 0) // NOLINT(cert-err52-cpp): the way of that library
        return false;
    jpeg_create_decompress(&codec);
    jpeg_mem_src(&codec, file.data(), file.size());
    if (jpeg_read_header(&codec, TRUE) != JPEG_HEADER_OK || !isUsableSize(codec.image_width, codec.image_height))
        return false;
    codec.out_color_space = codec.num_components == 1 ? JCS_GRAYSCALE : JCS_RGB;
    jpeg_start_decompress(&codec);
    picture.width = static_cast<int>(codec.output_width);
    picture.height = static_cast<int>(codec.output_height);
    picture.components = codec.output_components;
    const std::size_t stride = std::size_t{codec.output_width} * static_cast<std::size_t>(codec.output_components);
    picture.bytes.resize(stride * codec.output_height);
    while (codec.output_scanline < codec.output_height) {
        unsigned char* row = picture.bytes.data() + stride * (codec.output_height - 1 - codec.output_scanline);
        jpeg_read_scanlines(&codec, &row, 1);
    }
    return true;
}

std::optional<Picture> decodeJpeg(std::span<const unsigned char> file)
{
    jpeg_decompress_struct codec{};
    Picture picture;
    const bool decoded = decodeJpeg(file, codec, picture);
    jpeg_destroy_decompress(&codec);
    if (!decoded)
        return std::nullopt;
    return picture;
}

} // namespace

std::optional<Picture> decodePicture(std::span<const unsigned char> file)
{
    if (file.size() >= 8 && png_sig_cmp(file.data(), 0, 8) == 0)
        return decodePng(file);
    if (file.size() >= 3 && file[0] == 0xff && file[1] == 0xd8 && file[2] == 0xff)
        return decodeJpeg(file);
    return std::nullopt;
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
