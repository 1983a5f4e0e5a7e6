#pragma once

#include <string>
#include <string_view>

namespace meridane {

/// The text with small letters only, so that texts can be compared in any case of letters: ASCII, Latin, Greek and
/// Cyrillic letters. Invalid bytes stay as they are.
[[nodiscard]] std::string foldText(std::string_view text);
/// The same into a text whose memory is used again.
void foldText(std::string_view text, std::string& folded);

} // namespace meridane
