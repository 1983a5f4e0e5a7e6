#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// Writes the bytes to standard output, past the streams of the standard library. False with the reason in `error`.
[[nodiscard]] bool writeAll(std::string_view bytes, std::string& error);
/// Appends everything that comes from standard input. False with the reason in `error`.
[[nodiscard]] bool readAll(std::string& bytes, std::string& error);

} // namespace orvane
