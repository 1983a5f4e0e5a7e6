#include "meridane/scene/text/detail/ValueWrapper.h"

#include <algorithm>

namespace meridane {

namespace {

constexpr std::size_t fullLine = 96; // bytes; a line ends after the first value that exceeds this

} // namespace

void ValueWrapper::start(std::size_t column, std::size_t indentation) noexcept
{
    *this = {};
    m_column = column;
    m_indentation = indentation;
}

void ValueWrapper::append(std::string& text, std::string_view part)
{
    while (!part.empty()) {
        if (m_afterComma && part.front() == ' ' && m_column > fullLine) {
            text += '\n';
            text.append(m_indentation, ' ');
            m_column = m_indentation;
            m_afterComma = false;
            part.remove_prefix(1);
            continue;
        }
        const std::size_t length = m_quoted ? passQuoted(part) : passPlain(part);
        text += part.substr(0, length);
        m_column += length;
        part.remove_prefix(length);
    }
}

// Up to the end of the quoted text.
std::size_t ValueWrapper::passQuoted(std::string_view part) noexcept
{
    std::size_t length = 0;
    while (m_quoted && length < part.size()) {
        const char character = part[length++];
        m_quoted = m_escaped || character != '"';
        m_escaped = !m_escaped && character == '\\';
    }
    return length;
}

// Up to the next character that changes the state.
std::size_t ValueWrapper::passPlain(std::string_view part) noexcept
{
    const auto* const end
        = std::find_if(part.begin(), part.end(), [](char c) { return c == ',' || c == '"' || c == '['; });
    m_afterComma = false;
    if (end == part.end())
        return part.size();
    m_quoted = *end == '"';
    m_inBrackets = m_inBrackets || *end == '[';
    m_afterComma = m_inBrackets && *end == ',';
    return static_cast<std::size_t>(end - part.begin()) + 1;
}

} // namespace meridane
