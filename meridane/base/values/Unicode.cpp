#include "meridane/base/values/Unicode.h"

#include <cstdint>
#include <cstring>

namespace meridane {

namespace {

constexpr char32_t replacement = 0xFFFD;

std::uint8_t byteAt(std::string_view text, std::size_t index) noexcept
{
    return index < text.size() ? static_cast<std::uint8_t>(text[index]) : 0;
}

bool isContinuation(std::uint8_t byte, std::uint8_t low = 0x80, std::uint8_t high = 0xBF) noexcept
{
    return byte >= low && byte <= high;
}

// The length of the well-formed sequence that begins at the index, or 0.
std::size_t sequenceLength(std::string_view text, std::size_t index) noexcept
{
    const std::uint8_t first = byteAt(text, index);
    const std::uint8_t second = byteAt(text, index + 1);
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return isContinuation(second) ? 2 : 0;
    if (first >= 0xE0 && first <= 0xEF) {
        const std::uint8_t low = first == 0xE0 ? 0xA0 : 0x80;
        const std::uint8_t high = first == 0xED ? 0x9F : 0xBF;
        return isContinuation(second, low, high) && isContinuation(byteAt(text, index + 2)) ? 3 : 0;
    }
    if (first >= 0xF0 && first <= 0xF4) {
        const std::uint8_t low = first == 0xF0 ? 0x90 : 0x80;
        const std::uint8_t high = first == 0xF4 ? 0x8F : 0xBF;
        const bool whole = isContinuation(second, low, high) && isContinuation(byteAt(text, index + 2))
            && isContinuation(byteAt(text, index + 3));
        return whole ? 4 : 0;
    }
    return 0;
}

// Reads the code point at the index of valid text and moves the index after it.
char32_t nextCodePoint(std::string_view valid, std::size_t& index) noexcept
{
    const std::uint8_t first = byteAt(valid, index);
    if (first < 0x80) {
        ++index;
        return first;
    }
    const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    char32_t codePoint = first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
        codePoint = (codePoint << 6U) | (byteAt(valid, index + i) & 0x3FU);
    index += length;
    return codePoint;
}

// Most text has long parts in ASCII, which are skipped one machine word at a time.
std::size_t skipAscii(std::string_view text, std::size_t index) noexcept
{
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::uint64_t word = 0;
    for (; text.size() - index >= sizeof word; index += sizeof word) {
        std::memcpy(&word, text.data() + index, sizeof word);
        if ((word & highBits) != 0)
            break;
    }
    return index;
}

} // namespace

std::size_t findInvalidUtf8(std::string_view text) noexcept
{
    for (std::size_t index = skipAscii(text, 0); index < text.size(); index = skipAscii(text, index)) {
        const std::size_t length = sequenceLength(text, index);
        if (length == 0)
            return index;
        index += length;
    }
    return std::string_view::npos;
}

std::string replaceInvalidUtf8(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t index = 0; index < text.size();) {
        const std::size_t length = sequenceLength(text, index);
        if (length == 0)
            appendUtf8(result, replacement);
        else
            result.append(text.substr(index, length));
        index += length == 0 ? 1 : length;
    }
    return result;
}

void appendUtf8(std::string& text, char32_t codePoint)
{
    if (codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
        codePoint = replacement;
    const auto append = [&text](char32_t bits) { text.push_back(static_cast<char>(bits)); };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0U | (codePoint >> 6U));
        append(0x80U | (codePoint & 0x3FU));
    } else if (codePoint < 0x10000) {
        append(0xE0U | (codePoint >> 12U));
        append(0x80U | ((codePoint >> 6U) & 0x3FU));
        append(0x80U | (codePoint & 0x3FU));
    } else {
        append(0xF0U | (codePoint >> 18U));
        append(0x80U | ((codePoint >> 12U) & 0x3FU));
        append(0x80U | ((codePoint >> 6U) & 0x3FU));
        append(0x80U | (codePoint & 0x3FU));
    }
}

std::u16string utf8ToUtf16(std::string_view valid)
{
    std::u16string result;
    result.reserve(valid.size());
    for (std::size_t index = 0; index < valid.size();) {
        const char32_t codePoint = nextCodePoint(valid, index);
        if (codePoint < 0x10000) {
            result.push_back(static_cast<char16_t>(codePoint));
        } else {
            result.push_back(static_cast<char16_t>(0xD7C0U + (codePoint >> 10U)));
            result.push_back(static_cast<char16_t>(0xDC00U + (codePoint & 0x3FFU)));
        }
    }
    return result;
}

std::string utf8ToLatin1(std::string_view valid)
{
    std::string result;
    result.reserve(valid.size());
    for (std::size_t index = 0; index < valid.size();) {
        const char32_t codePoint = nextCodePoint(valid, index);
        result.push_back(codePoint < 0x100 ? static_cast<char>(codePoint) : '?');
    }
    return result;
}

std::string latin1ToUtf8(std::string_view latin1)
{
    std::string result;
    result.reserve(latin1.size());
    for (const char character : latin1)
        appendUtf8(result, static_cast<std::uint8_t>(character));
    return result;
}

std::string utf16ToUtf8(std::u16string_view utf16)
{
    std::string result;
    result.reserve(utf16.size());
    for (std::size_t index = 0; index < utf16.size(); ++index) {
        const char16_t unit = utf16[index];
        const bool high = unit >= 0xD800 && unit <= 0xDBFF;
        const char16_t next = index + 1 < utf16.size() ? utf16[index + 1] : u'\0';
        if (high && next >= 0xDC00 && next <= 0xDFFF) {
            appendUtf8(result, 0x10000U + ((unit & 0x3FFU) << 10U) + (next & 0x3FFU));
            ++index;
        } else {
            appendUtf8(result, unit);
        }
    }
    return result;
}

} // namespace meridane
