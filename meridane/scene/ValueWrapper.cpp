#include "meridane/scene/ValueWrapper.h"

namespace meridane {

namespace {

constexpr std::size_t fullLine = 96; // bytes; a line ends with the first value that reaches beyond

} // namespace

void ValueWrapper::start(std::size_t column, std::size_t indentation) noexcept
{
    *this = {};
    m_column = column;
    m_indentation = indentation;
}

void ValueWrapper::append(std::string& text, std::string_view part)
{
    for (const char character : part) {
        if (m_afterComma && character == ' ' && m_column > fullLine) {
            text += '\n';
            text.append(m_indentation, ' ');
            m_column = m_indentation;
            m_afterComma = false;
            continue;
        }
        text += character;
        ++m_column;
        if (m_quoted) {
            m_quoted = m_escaped || character != '"';
            m_escaped = !m_escaped && character == '\\';
            continue;
        }
        m_quoted = character == '"';
        m_inBrackets = m_inBrackets || character == '[';
        m_afterComma = m_inBrackets && character == ',';
    }
}

} // namespace meridane
