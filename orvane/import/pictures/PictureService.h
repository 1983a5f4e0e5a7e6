#pragma once

#include <string>

namespace orvane {

/// Decodes the image files that come from standard input until it ends, and writes the pictures to standard output, as
/// `PictureFrames.h` describes it. False, with the reason in `error`, for an input or output that breaks off.
[[nodiscard]] bool servePictures(std::string& error);

} // namespace orvane
