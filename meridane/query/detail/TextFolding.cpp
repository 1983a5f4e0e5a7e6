#include "meridane/query/detail/TextFolding.h"

#include "meridane/base/values/Unicode.h"
#include "meridane/query/detail/Spelling.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/stringpiece.h>
#include <unicode/uchar.h>

namespace meridane {
namespace {

char foldAscii(char character) noexcept
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// Eight bytes of ASCII at once: the highest bit of a sum says whether a byte is a capital letter.
std::uint64_t foldAscii(std::uint64_t bytes) noexcept
{
    constexpr std::uint64_t ones = 0x0101010101010101;
    const std::uint64_t fromA = bytes + ones * (0x80 - 'A');
    const std::uint64_t afterZ = bytes + ones * (0x7F - 'Z');
    return bytes | (((fromA & ~afterZ) & (ones * 0x80)) >> 2U);
}

std::string normalized(const icu::Normalizer2& form, std::string_view text, UErrorCode& error)
{
    std::string result;
    icu::StringByteSink<std::string> sink(&result, static_cast<std::int32_t>(text.size()));
    form.normalizeUTF8(0, icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())), sink, nullptr, error);
    return result;
}

/// Whether a character of that many bytes is in one of the blocks of combining diacritical marks.
bool isAccent(std::string_view text, std::size_t offset, std::size_t& length) noexcept
{
    const auto byte
        = [&](std::size_t i) { return offset + i < text.size() ? static_cast<unsigned char>(text[offset + i]) : 0U; };
    const unsigned int first = byte(0);
    if (first < 0x80) {
        length = 1;
        return false;
    }
    if (first < 0xE0) {
        length = 2;
        const unsigned int point = ((first & 0x1FU) << 6U) | (byte(1) & 0x3FU);
        return (point >= 0x300 && point <= 0x36F) || (point >= 0x483 && point <= 0x487);
    }
    if (first >= 0xF0) {
        length = 4;
        return false;
    }
    length = 3;
    const unsigned int point = ((first & 0xFU) << 12U) | ((byte(1) & 0x3FU) << 6U) | (byte(2) & 0x3FU);
    return (point >= 0x1AB0 && point <= 0x1AFF) || (point >= 0x1DC0 && point <= 0x1DFF)
        || (point >= 0x20D0 && point <= 0x20FF) || (point >= 0xFE20 && point <= 0xFE2F);
}

/// Whether a character belongs to the letter before it.
bool isCombining(std::string_view character)
{
    if (static_cast<unsigned char>(character[0]) < 0x80)
        return false;
    const std::u16string units = utf8ToUtf16(replaceInvalidUtf8(character));
    return units.size() == 1 && u_getCombiningClass(units[0]) != 0;
}

void removeAccents(std::string& text)
{
    std::size_t end = 0;
    std::size_t length = 0;
    for (std::size_t offset = 0; offset < text.size(); offset += length) {
        const bool isLeftOut = isAccent(text, offset, length);
        for (std::size_t i = offset; !isLeftOut && i < std::min(offset + length, text.size()); ++i)
            text[end++] = text[i];
    }
    text.resize(end);
}

void foldUnicode(std::string_view text, std::string& folded)
{
    UErrorCode error = U_ZERO_ERROR;
    const icu::Normalizer2* const caseless = icu::Normalizer2::getNFKCCasefoldInstance(error);
    const icu::Normalizer2* const decomposed = icu::Normalizer2::getNFDInstance(error);
    const icu::Normalizer2* const composed = icu::Normalizer2::getNFCInstance(error);
    const std::string valid = replaceInvalidUtf8(text);
    if (U_SUCCESS(error) != 0) {
        folded = normalized(*decomposed, normalized(*caseless, valid, error), error);
        removeAccents(folded);
        folded = normalized(*composed, folded, error); // marks that are no accents are parts of letters
    }
    // Without memory or the library's data, letters of other scripts are compared as they are.
    if (U_FAILURE(error) != 0)
        folded = valid;
}

} // namespace

void foldText(std::string_view text, std::string& folded)
{
    folded.clear();
    appendFolded(text, folded);
}

void appendFolded(std::string_view text, std::string& to)
{
    constexpr std::uint64_t highBits = 0x8080808080808080;
    const std::size_t start = to.size();
    to.resize(start + text.size());
    char* const folded = to.data() + start;
    std::uint64_t all = 0;
    std::size_t i = 0;
    for (std::uint64_t bytes = 0; i + sizeof bytes <= text.size(); i += sizeof bytes) {
        std::memcpy(&bytes, text.data() + i, sizeof bytes);
        all |= bytes;
        bytes = foldAscii(bytes & ~highBits);
        std::memcpy(folded + i, &bytes, sizeof bytes);
    }
    for (; i < text.size(); ++i) {
        all |= static_cast<unsigned char>(text[i]);
        folded[i] = foldAscii(text[i]);
    }
    if ((all & highBits) == 0)
        return;
    std::string unicode;
    foldUnicode(text, unicode);
    to.replace(start, text.size(), unicode);
}

std::string foldText(std::string_view text)
{
    std::string folded;
    foldText(text, folded);
    return folded;
}

FoldedText foldWithSources(std::string_view text)
{
    FoldedText result;
    std::string letter;
    std::size_t length = 0;
    for (std::size_t start = 0; start < text.size(); start += length) {
        length = characterAt(text, start).size();
        while (start + length < text.size() && isCombining(characterAt(text, start + length)))
            length += characterAt(text, start + length).size();
        foldText(text.substr(start, length), letter);
        result.text += letter;
        result.sources.insert(result.sources.end(), letter.size(), {start, length});
    }
    return result;
}

bool isKeyword(std::string_view word, std::string_view keyword) noexcept
{
    return std::ranges::equal(word, keyword, {}, [](char letter) { return foldAscii(letter); });
}

} // namespace meridane
