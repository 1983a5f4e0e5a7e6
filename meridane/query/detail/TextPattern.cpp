#include "meridane/query/detail/TextPattern.h"

#include "meridane/base/values/MessageText.h"
#include "meridane/query/detail/TextFolding.h"

#include <algorithm>

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

/// For letters of one byte, which are no part of any other.
bool hasBytesInOrder(std::string_view text, std::string_view letters)
{
    std::size_t next = 0;
    for (const char byte : text) {
        if (byte == letters[next] && ++next == letters.size())
            return true;
    }
    return false;
}

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
    return m_isAscii ? hasBytesInOrder(name, m_text) : hasInOrder(name, m_text);
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
