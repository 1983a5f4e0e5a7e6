#pragma once

#include "orvane/transfer/Picture.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

/// The format in which image files are sent to the import helper and returned as pictures, one after the other.
///
/// A request is a line "picture SIZE" and the SIZE bytes of the file. The reply is a line "picture WIDTH HEIGHT
/// COMPONENTS" and WIDTH * HEIGHT * COMPONENTS bytes, the bottom row first, or a line "refused REASON". The next
/// request follows the reply.
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

/// Assembles a reply while its bytes arrive. They aren't trusted: a picture beyond the limits of `Picture.h`, or bytes
/// after the end of the reply, make it invalid.
class PictureReply {
public:
    enum class State {
        Incomplete, ///< more bytes must follow
        Complete, ///< there is a picture
        Refused, ///< there is no picture, for a `reason`
        Broken, ///< the bytes aren't a reply
    };

    /// Adds the next bytes. Throws `std::bad_alloc` when the picture doesn't fit in memory.
    State take(std::string_view bytes);
    [[nodiscard]] State state() const noexcept { return m_state; }
    /// The picture of a reply that is complete.
    [[nodiscard]] Picture takePicture() { return std::move(m_picture); }
    /// Why the file can't be decoded.
    [[nodiscard]] const std::string& reason() const noexcept { return m_reason; }

private:
    State takeHead(std::string_view& bytes);
    State takeLine(std::string_view line);

    State m_state = State::Incomplete;
    std::string m_line; // the first one, while it isn't complete
    std::string m_reason;
    Picture m_picture;
    std::size_t m_size = 0; // of the picture in bytes; 0 before its line is complete
};

} // namespace orvane
