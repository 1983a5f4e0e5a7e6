#include "meridane/query/detail/QueryCursor.h"

#include "meridane/query/detail/TextFolding.h"

#include <algorithm>
#include <array>

namespace meridane {
namespace {

using Comparison = ValueTest::Comparison;

constexpr std::string_view noBreakSpace = "\u00A0";

constexpr std::array<QueryCursor::Sign, 6> signs{{
    {"!=", Comparison::NotEqual},
    {"<=", Comparison::LessOrEqual},
    {">=", Comparison::GreaterOrEqual},
    {"=", Comparison::Equal},
    {"<", Comparison::Less},
    {">", Comparison::Greater},
}};

bool isBlank(char character) noexcept
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

const QueryCursor::Sign* signAt(std::string_view text)
{
    const auto found = std::ranges::find_if(signs, [text](const auto& sign) { return text.starts_with(sign.first); });
    return found != signs.end() ? &*found : nullptr;
}

} // namespace

const QueryCursor::Sign* QueryCursor::signHere() const
{
    return signAt(rest());
}

std::string_view QueryCursor::valueHere() const
{
    std::size_t open = 0;
    std::size_t length = 0;
    for (const std::string_view text = rest(); length < text.size(); ++length) {
        const char character = text[length];
        if (open == 0
            && (isBlank(character) || character == ')' || character == '~' || signAt(text.substr(length)) != nullptr))
            break;
        open += character == '(' ? 1 : 0;
        open -= character == ')' ? 1 : 0;
    }
    return rest().substr(0, length);
}

void QueryCursor::skipBlanks()
{
    while (true) {
        if (isBlank(next()))
            ++m_position;
        else if (rest().starts_with(noBreakSpace))
            m_position += noBreakSpace.size();
        else
            break;
    }
}

std::string_view QueryCursor::wordHere() const
{
    const std::string_view text = rest();
    std::size_t length = 0;
    for (; length < text.size(); ++length) {
        const char character = text[length];
        if (isBlank(character) || character == '(' || character == ')' || character == '"'
            || text.substr(length).starts_with(noBreakSpace))
            break;
        if (m_isScene && (character == '~' || signAt(text.substr(length)) != nullptr))
            break;
    }
    return text.substr(0, length);
}

bool QueryCursor::isWordHere(std::string_view word) const
{
    return isKeyword(wordHere(), word);
}

std::size_t QueryCursor::regularExpressionHere() const
{
    const std::string_view text = rest();
    if (!text.starts_with('/'))
        return 0;
    std::size_t end = 1;
    while (end < text.size() && text[end] != '/')
        end += text[end] == '\\' ? 2U : 1U;
    if (end >= text.size() || end == 1)
        return 0;
    // Otherwise it is a path.
    const bool isComplete = end + 1 == text.size() || isBlank(text[end + 1]) || text[end + 1] == ')';
    return isComplete ? end + 1 : 0;
}

bool QueryCursor::isOpenExpressionHere() const
{
    if (!m_isDraft || !m_isScene || next() != '/')
        return false;
    const std::string_view text = rest();
    std::size_t end = 1;
    while (end < text.size() && text[end] != '/')
        end += text[end] == '\\' ? 2U : 1U;
    return end >= text.size();
}

} // namespace meridane
