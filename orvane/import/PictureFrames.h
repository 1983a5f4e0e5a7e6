#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// How image files travel to the import helper and come back as pictures, one after the other.
///
/// A request is a line "picture SIZE" and the SIZE bytes of the file. The reply is a line "picture WIDTH HEIGHT
/// COMPONENTS" and WIDTH * HEIGHT * COMPONENTS bytes, the bottom row first, or a line "refused REASON". The next
/// request follows after the reply.
namespace orvane {

/// The line before the bytes of a file.
[[nodiscard]] std::string pictureRequest(std::size_t fileSize);
/// The size of the file, from the line of a request without its end; 0 for a line that is no request, and for a file
/// that is empty or larger than `maxPictureFileSize`.
[[nodiscard]] std::size_t pictureRequestSize(std::string_view line);

/// The line before the bytes of a picture.
[[nodiscard]] std::string pictureReply(int width, int height, int components);
/// The reply for a file that can't be decoded.
[[nodiscard]] std::string pictureRefusal(std::string_view reason);

/// What the bytes of a reply say.
struct PictureReply {
    enum class State {
        Incomplete, ///< more bytes must follow
        Complete, ///< the bytes of the picture begin at `start`
        Refused, ///< there is no picture, for that `reason`
        Broken, ///< this is no reply
    };
    State state = State::Incomplete;
    int width = 0;
    int height = 0;
    int components = 0;
    /// Where the bytes of the picture begin; 0 while the first line isn't complete.
    std::size_t start = 0;
    /// The number of bytes of the picture.
    std::size_t size = 0;
    std::string reason;
};

/// Looks at the bytes that came so far. They aren't trusted: a picture beyond the limits of `Picture.h` and bytes after
/// the end of the reply are no reply.
[[nodiscard]] PictureReply parsePictureReply(std::string_view bytes);

} // namespace orvane
