#include "meridane/base/values/MessageText.h"

#include "meridane/base/values/Unicode.h"

namespace meridane {

namespace {

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

} // namespace

std::string excerpt(std::string_view text, std::size_t maxBytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::size_t shown = text.size();
    if (shown > maxBytes) {
        shown = maxBytes;
        // The text ends before a character, not within it.
        while (shown > 1 && isContinuation(text[shown]))
            --shown;
    }
    std::string result;
    for (const char character : replaceInvalidUtf8(text.substr(0, shown))) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= 0x20 && byte != 0x7F)
            result += character;
        else
            ((result += "\\x") += digits[byte >> 4U]) += digits[byte & 15U];
    }
    return shown < text.size() ? result + "…" : result;
}

std::string withoutMarkup(std::string_view text)
{
    constexpr std::string_view joiner = "\xE2\x81\xA0";
    std::string result;
    result.reserve(text.size());
    for (const char character : text) {
        result += character;
        if (character == '<' || character == '&')
            result += joiner;
    }
    return result;
}

} // namespace meridane
