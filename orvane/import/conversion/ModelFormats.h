#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The foreign formats, each named by the extension of its files: lower case, without the dot.
namespace orvane {

/// The text with its ASCII letters in lower case.
[[nodiscard]] std::string lowerCase(std::string_view text);
/// All extensions that can be read, sorted.
[[nodiscard]] std::vector<std::string> readableExtensions();
/// All extensions that can be written, sorted.
[[nodiscard]] std::vector<std::string> writableExtensions();
/// The export library's name of the format with that extension, upper or lower case; empty if it can't be written.
[[nodiscard]] std::string exportFormat(std::string_view extension);

} // namespace orvane
