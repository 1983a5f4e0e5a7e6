#include "orvane/import/pictures/PictureCodecs.h"

#include <csetjmp>
#include <cstdio> // before jpeglib.h, which needs FILE

#include <jpeglib.h>

namespace orvane {
namespace {

struct JpegErrors {
    jpeg_error_mgr manager; // first, so that the library's pointer to it is one to this
    std::jmp_buf jump;
};

[[noreturn]] void failJpeg(j_common_ptr codec)
{
    std::longjmp(reinterpret_cast<JpegErrors*>(codec->err)->jump, 1);
}

void ignoreJpegMessage(j_common_ptr, int) { }

// The library doesn't convert CMYK to RGB.
J_COLOR_SPACE colorsOf(const jpeg_decompress_struct& codec)
{
    if (codec.jpeg_color_space == JCS_CMYK || codec.jpeg_color_space == JCS_YCCK)
        return JCS_CMYK;
    return codec.num_components == 1 ? JCS_GRAYSCALE : JCS_RGB;
}

// Nothing with a destructor may be made between setjmp and longjmp, so the picture comes from outside.
bool decode(std::span<const unsigned char> file, jpeg_decompress_struct& codec, Picture& picture)
{
    JpegErrors errors;
    codec.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = &failJpeg;
    errors.manager.emit_message = &ignoreJpegMessage;
    if (setjmp(errors.jump) != 0) // NOLINT(cert-err52-cpp): the way of that library
        return false;
    jpeg_create_decompress(&codec);
    jpeg_mem_src(&codec, file.data(), file.size());
    if (jpeg_read_header(&codec, TRUE) != JPEG_HEADER_OK || !isUsablePictureSize(codec.image_width, codec.image_height))
        return false;
    codec.out_color_space = colorsOf(codec);
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

void toScreenColors(Picture& picture, bool isInverted)
{
    constexpr std::size_t inks = 4;
    const std::size_t pixels = picture.bytes.size() / inks;
    for (std::size_t pixel = 0; pixel < pixels; ++pixel) {
        const unsigned char* const ink = picture.bytes.data() + pixel * inks;
        const auto light = [&](std::size_t index) { return isInverted ? ink[index] : 255 - ink[index]; };
        const int black = light(3);
        const int red = light(0) * black / 255;
        const int green = light(1) * black / 255;
        const int blue = light(2) * black / 255;
        unsigned char* const color = picture.bytes.data() + pixel * 3; // never beyond the inks that it comes from
        color[0] = static_cast<unsigned char>(red);
        color[1] = static_cast<unsigned char>(green);
        color[2] = static_cast<unsigned char>(blue);
    }
    picture.components = 3;
    picture.bytes.resize(pixels * 3);
}

} // namespace

std::optional<Picture> decodeJpeg(std::span<const unsigned char> file)
{
    jpeg_decompress_struct codec{};
    Picture picture;
    const bool decoded = decode(file, codec, picture);
    const bool isInverted = codec.saw_Adobe_marker == TRUE;
    jpeg_destroy_decompress(&codec);
    if (!decoded)
        return std::nullopt;
    if (picture.components == 4)
        toScreenColors(picture, isInverted);
    return picture;
}

} // namespace orvane
