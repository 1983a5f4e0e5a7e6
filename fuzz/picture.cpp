// Image files, as the helper gets them, and replies, as the tool gets them from the helper.

#include "Fuzz.h"

#include "orvane/import/pictures/ImageCodec.h"
#include "orvane/import/pictures/Orientation.h"
#include "orvane/transfer/PictureFrames.h"

#include <string>
#include <utility>

namespace {

void checkPicture(const orvane::Picture& picture)
{
    fuzz::check(picture.width > 0 && picture.height > 0 && picture.components >= 1 && picture.components <= 4,
        "a picture has pixels");
    fuzz::check(picture.bytes.size()
            == static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height)
                * static_cast<std::size_t>(picture.components),
        "a picture has the bytes of its pixels");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    std::string problem;
    std::optional<orvane::Picture> decoded = orvane::decodePicture({bytes, count}, &problem);
    fuzz::check(decoded || !problem.empty(), "a refusal has a reason");
    if (decoded) {
        checkPicture(*decoded);
        const std::size_t size = decoded->bytes.size();
        const orvane::Picture turned = orvane::upright(std::move(*decoded), orvane::orientationOf({bytes, count}));
        checkPicture(turned);
        fuzz::check(turned.bytes.size() == size, "a turned picture keeps its pixels");
    }
    orvane::PictureReply reply;
    if (reply.take(fuzz::toText(bytes, count)) == orvane::PictureReply::State::Complete)
        checkPicture(reply.takePicture());
    return 0;
}
