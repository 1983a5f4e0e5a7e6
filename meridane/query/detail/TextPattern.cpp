#include "meridane/query/detail/TextPattern.h"

#include "meridane/base/values/MessageText.h"
#include "meridane/query/detail/TextFolding.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#include <re2/re2.h>

namespace meridane {
namespace {

std::string refusalOf(const re2::RE2& expression)
{
    constexpr std::size_t mostPartShown = 40;
    std::string part = "\"";
    part += excerpt(expression.error_arg(), mostPartShown);
    part += '"';
    switch (expression.error_code()) {
    case re2::RE2::ErrorBadEscape:
        return "The regular expression has " + part + ", which has no meaning.";
    case re2::RE2::ErrorBadCharClass:
    case re2::RE2::ErrorBadCharRange:
        return "The regular expression has " + part + ", which is no range or class of characters.";
    case re2::RE2::ErrorMissingBracket:
        return "The regular expression has a [ without ].";
    case re2::RE2::ErrorMissingParen:
        return "The regular expression has a ( without ).";
    case re2::RE2::ErrorUnexpectedParen:
        return "The regular expression has a ) without (.";
    case re2::RE2::ErrorTrailingBackslash:
        return "The regular expression ends in a backslash. Write \\\\ to find one.";
    case re2::RE2::ErrorRepeatArgument:
        return "The regular expression has " + part + ", but nothing before it to repeat.";
    case re2::RE2::ErrorRepeatSize:
        return "The regular expression repeats too often or the wrong way round: " + part + ".";
    case re2::RE2::ErrorRepeatOp:
        return "The regular expression has two repetitions in a row: " + part + ".";
    case re2::RE2::ErrorBadPerlOp:
        return "The regular expression has " + part + ", which isn't supported.";
    case re2::RE2::ErrorBadUTF8:
        return "The regular expression has bytes that are no text.";
    case re2::RE2::ErrorBadNamedCapture:
        return "The regular expression has a wrong name in " + part + ".";
    case re2::RE2::ErrorPatternTooLarge:
        return "The regular expression is too large.";
    default:
        return "The regular expression is wrong: " + expression.error() + ".";
    }
}

/// Looks for letters of one byte, which are no part of any other, in the order that they have.
class ByteSequence {
public:
    explicit ByteSequence(std::string_view letters)
        : m_letters(letters)
    {
    }

    bool isIn(std::string_view text)
    {
        constexpr std::size_t size = sizeof(std::uint64_t);
        std::size_t at = 0;
        if constexpr (std::endian::native == std::endian::little) {
            for (; at + size <= text.size(); at += size) {
                if (takeEight(text.data() + at, 0))
                    return true;
            }
            // The last eight bytes again, but for those that were looked at.
            if (at < text.size() && text.size() >= size)
                return takeEight(text.data() + text.size() - size, at + size - text.size());
        }
        for (; at < text.size(); ++at) {
            if (text[at] == m_letters[m_next] && ++m_next == m_letters.size())
                return true;
        }
        return false;
    }

private:
    /// Looks for letters in eight bytes at once, without the first `passed` ones. Returns whether all are found now.
    bool takeEight(const char* data, std::size_t passed)
    {
        constexpr std::uint64_t ones = 0x0101010101010101;
        constexpr std::uint64_t lowBits = 0x7F7F7F7F7F7F7F7F;
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, data, sizeof bytes);
        std::uint64_t left = ~std::uint64_t{0} << (8 * passed);
        for (;;) {
            const std::uint64_t difference = bytes ^ (ones * static_cast<unsigned char>(m_letters[m_next]));
            // The highest bit of each byte that is the letter.
            const std::uint64_t same = ~(((difference & lowBits) + lowBits) | difference | lowBits) & left;
            if (same == 0)
                return false;
            if (++m_next == m_letters.size())
                return true;
            const std::uint64_t first = same & (~same + 1);
            left = ~((first << 1U) - 1);
        }
    }

    std::string_view m_letters;
    std::size_t m_next = 0;
};

std::size_t characterSize(std::string_view text, std::size_t start)
{
    std::size_t end = start + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80)
        ++end;
    return end - start;
}

bool hasInOrder(std::string_view text, std::string_view letters)
{
    std::size_t found = 0;
    for (std::size_t letter = 0; letter < letters.size();) {
        const std::string_view character = letters.substr(letter, characterSize(letters, letter));
        found = text.find(character, found);
        if (found == std::string_view::npos)
            return false;
        found += character.size();
        letter += character.size();
    }
    return true;
}

void addFoundByExpression(const re2::RE2& expression, std::string_view text, FoundParts& parts)
{
    const re2::StringPiece searched(text.data(), text.size());
    re2::StringPiece found;
    for (std::size_t start = 0; start < text.size();) {
        if (!expression.Match(searched, start, text.size(), re2::RE2::UNANCHORED, &found, 1))
            return;
        const auto at = static_cast<std::size_t>(found.data() - text.data());
        if (!found.empty())
            parts.push_back({at, found.size()});
        start = at + (found.empty() ? characterSize(text, at) : found.size());
    }
}

bool isAscii(std::string_view text)
{
    return std::ranges::all_of(text, [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

} // namespace

TextPattern TextPattern::word(std::string_view word)
{
    TextPattern pattern = phrase(word);
    pattern.m_isWord = true;
    return pattern;
}

TextPattern TextPattern::phrase(std::string_view text)
{
    TextPattern pattern;
    pattern.m_text = foldText(text);
    pattern.m_isAscii = isAscii(pattern.m_text);
    return pattern;
}

TextPattern TextPattern::regularExpression(std::string_view expression)
{
    constexpr std::int64_t mostMemory = 1 << 20;
    re2::RE2::Options options;
    options.set_case_sensitive(false);
    options.set_log_errors(false);
    options.set_dot_nl(true); // the cells of a row are lines of one text
    options.set_max_mem(mostMemory);
    TextPattern pattern;
    auto compiled = std::make_shared<const re2::RE2>(re2::StringPiece(expression.data(), expression.size()), options);
    if (compiled->ok())
        pattern.m_expression = std::move(compiled);
    else
        pattern.m_refusal = refusalOf(*compiled);
    return pattern;
}

std::string_view TextPattern::folded(std::string_view text) const
{
    foldText(text, m_folded);
    return m_folded;
}

bool TextPattern::matchesName(std::string_view name) const
{
    return m_expression != nullptr ? matchesText(name) : matchesFolded(folded(name));
}

bool TextPattern::matchesFolded(std::string_view name) const
{
    if (!m_isWord || m_text.empty())
        return name.find(m_text) != std::string_view::npos;
    return m_isAscii ? ByteSequence(m_text).isIn(name) : hasInOrder(name, m_text);
}

bool TextPattern::matchesText(std::string_view text) const
{
    if (m_expression != nullptr)
        return re2::RE2::PartialMatch(re2::StringPiece(text.data(), text.size()), *m_expression);
    return folded(text).find(m_text) != std::string_view::npos;
}

void TextPattern::addFoundInName(std::string_view name, FoundParts& parts) const
{
    const std::size_t before = parts.size();
    addFoundInText(name, parts);
    if (!m_isWord || parts.size() > before || !matchesName(name))
        return;
    const FoldedText text = foldWithSources(name);
    std::size_t found = 0;
    for (std::size_t i = 0; i < m_text.size(); i += characterSize(m_text, i)) {
        const std::string_view letter = std::string_view(m_text).substr(i, characterSize(m_text, i));
        found = text.text.find(letter, found);
        if (found == std::string::npos)
            return;
        parts.push_back(text.source(found, letter.size()));
        found += letter.size();
    }
}

void TextPattern::addFoundInText(std::string_view text, FoundParts& parts) const
{
    if (m_expression != nullptr) {
        addFoundByExpression(*m_expression, text, parts);
        return;
    }
    if (m_text.empty())
        return;
    const FoldedText searched = foldWithSources(text);
    for (std::size_t at = searched.text.find(m_text); at != std::string::npos;
         at = searched.text.find(m_text, at + m_text.size()))
        parts.push_back(searched.source(at, m_text.size()));
}

bool TextPattern::isEqualTo(std::string_view text) const
{
    return m_expression == nullptr && folded(text) == m_text;
}

} // namespace meridane
