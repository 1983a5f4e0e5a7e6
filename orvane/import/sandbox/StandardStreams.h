#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

/// Writes the bytes to standard output, not through the streams of the standard library. Returns false on failure, with
/// the reason in `error`.
[[nodiscard]] bool writeAll(std::string_view bytes, std::string& error);
/// Appends all of standard input. Returns false on failure, with the reason in `error`.
[[nodiscard]] bool readAll(std::string& bytes, std::string& error);
/// Reads that many bytes from standard input. False with the reason in `error` if there are fewer.
[[nodiscard]] bool readCount(std::string& bytes, std::size_t count, std::string& error);
/// Reads a line from standard input, without its end. False at the end of the input, and with the reason in `error` for
/// a line that breaks off or is longer than `longest`.
[[nodiscard]] bool readLine(std::string& line, std::size_t longest, std::string& error);

} // namespace orvane
