#include "meridane/query/detail/ExpressionSource.h"

#include "meridane/base/values/MessageText.h"

#include <algorithm>

namespace meridane {

ExpressionSource::ExpressionSource(std::string_view original)
    : m_original(original)
    , m_spelling(spell(original))
{
}

bool ExpressionSource::isLetter(char character) noexcept
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') || character == '_';
}

std::string ExpressionSource::quote(std::string_view text)
{
    constexpr std::size_t mostQuoted = 40;
    return std::string("\"").append(excerpt(text, mostQuoted)).append("\"");
}

void ExpressionSource::skipBlanks() noexcept
{
    while (next() == ' ')
        ++m_position;
}

char ExpressionSource::next(std::size_t distance) const noexcept
{
    return m_position + distance < m_spelling.text.size() ? m_spelling.text[m_position + distance] : '\0';
}

bool ExpressionSource::startsWith(std::string_view text) const
{
    return this->text().substr(m_position).starts_with(text);
}

std::string_view ExpressionSource::word() const
{
    const std::string_view rest = text().substr(m_position);
    const auto* const end = std::ranges::find_if_not(
        rest, [](char character) { return isLetter(character) || (character >= '0' && character <= '9'); });
    return rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
}

std::string ExpressionSource::quoted(std::size_t length) const
{
    const std::size_t start = originalPosition(m_position);
    const std::size_t end = originalPosition(m_position + length);
    return quote(end > start ? m_original.substr(start, end - start) : characterAt(m_original, start));
}

std::size_t ExpressionSource::originalPosition(std::size_t position) const
{
    return m_spelling.positions[std::min(position, m_spelling.text.size())];
}

} // namespace meridane
