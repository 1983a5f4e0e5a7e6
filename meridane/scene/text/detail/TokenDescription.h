#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace meridane {

/// Describes what is at a byte offset, for messages: a word, a character or a quoted text, each in quotes, shortened
/// and with control characters escaped; or "the end of the line" or "the end of the file".
[[nodiscard]] std::string describeToken(std::string_view text, std::size_t offset);

} // namespace meridane
