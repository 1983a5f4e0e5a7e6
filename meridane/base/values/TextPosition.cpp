#include "meridane/base/values/TextPosition.h"

#include <algorithm>
#include <limits>

namespace meridane {
namespace {

bool beginsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

} // namespace

TextPosition positionOf(std::string_view text, std::size_t offset) noexcept
{
    text = withoutByteOrderMark(text.substr(0, offset));
    const std::size_t lineEnd = text.rfind('\n');
    const std::string_view line = lineEnd == std::string_view::npos ? text : text.substr(lineEnd + 1);
    const auto lines = std::count(text.begin(), text.end(), '\n');
    const auto characters = std::count_if(line.begin(), line.end(), beginsCharacter);
    constexpr auto max = static_cast<std::ptrdiff_t>(std::numeric_limits<int>::max() - 1);
    return {static_cast<int>(std::min(lines, max) + 1), static_cast<int>(std::min(characters, max) + 1)};
}

} // namespace meridane
