#pragma once

#include <algorithm>
#include <string_view>

namespace meridane {

/// Whether the character may begin the name of a node class or a field.
constexpr bool isIdentifierStart(char character) noexcept
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') || character == '_';
}

/// Whether the character may be in such a name.
constexpr bool isIdentifierCharacter(char character) noexcept
{
    return isIdentifierStart(character) || (character >= '0' && character <= '9');
}

/// Whether the text is such a name.
constexpr bool isIdentifier(std::string_view text) noexcept
{
    return !text.empty() && isIdentifierStart(text.front()) && std::ranges::all_of(text, isIdentifierCharacter);
}

/// Whether the text can be the name of a node class in a scene file.
constexpr bool isClassName(std::string_view text) noexcept
{
    return isIdentifier(text) && text != "use" && text != "ignored";
}

} // namespace meridane
