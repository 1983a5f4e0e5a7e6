#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts from files in messages to the user.
namespace meridane {

/// The beginning of a text: at most `maxBytes` bytes, with an ellipsis if it was shortened. Invalid bytes become
/// U+FFFD, control characters an escape such as `\x1b`.
[[nodiscard]] std::string excerpt(std::string_view text, std::size_t maxBytes);

/// The same text, changed so that it isn't interpreted as HTML or XML: an invisible word joiner (U+2060) follows each
/// character that begins a tag or an entity.
[[nodiscard]] std::string withoutMarkup(std::string_view text);

} // namespace meridane
