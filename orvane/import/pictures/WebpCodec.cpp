#include "orvane/import/pictures/PictureCodecs.h"

#include <webp/decode.h>

namespace orvane {

std::optional<Picture> decodeWebp(std::span<const unsigned char> file)
{
    WebPBitstreamFeatures features;
    if (WebPGetFeatures(file.data(), file.size(), &features) != VP8_STATUS_OK || features.has_animation != 0
        || !isUsablePictureSize(static_cast<std::size_t>(features.width), static_cast<std::size_t>(features.height)))
        return std::nullopt;
    Picture picture{features.width, features.height, features.has_alpha != 0 ? 4 : 3, {}};
    const int line = picture.width * picture.components;
    picture.bytes.resize(static_cast<std::size_t>(line) * static_cast<std::size_t>(picture.height));
    auto* const decode = picture.components == 4 ? &WebPDecodeRGBAInto : &WebPDecodeRGBInto;
    if (decode(file.data(), file.size(), picture.bytes.data(), picture.bytes.size(), line) == nullptr)
        return std::nullopt;
    flipRows(picture);
    return picture;
}

} // namespace orvane
