#include "orvane/import/pictures/PictureService.h"

#include "orvane/import/pictures/ImageCodec.h"
#include "orvane/import/pictures/Orientation.h"
#include "orvane/import/sandbox/StandardStreams.h"
#include "orvane/transfer/PictureFrames.h"

#include <span>

namespace orvane {
namespace {

bool reply(const std::string& file, std::string& error)
{
    const std::span<const unsigned char> bytes(reinterpret_cast<const unsigned char*>(file.data()), file.size());
    std::string problem;
    std::optional<Picture> decoded = decodePicture(bytes, &problem);
    if (!decoded)
        return writeAll(pictureRefusal(problem), error);
    const Picture picture = upright(std::move(*decoded), orientationOf(bytes));
    return writeAll(pictureReply(picture.width, picture.height, picture.components), error)
        && writeAll({reinterpret_cast<const char*>(picture.bytes.data()), picture.bytes.size()}, error);
}

} // namespace

bool servePictures(std::string& error)
{
    constexpr std::size_t longestLine = 64;
    std::string line;
    while (readLine(line, longestLine, error)) {
        const std::size_t size = pictureRequestSize(line);
        std::string file;
        if (size == 0) {
            error = "standard input: expected \"picture SIZE\", found \"" + line + "\"";
            return false;
        }
        if (!readCount(file, size, error) || !reply(file, error))
            return false;
    }
    return error.empty();
}

} // namespace orvane
