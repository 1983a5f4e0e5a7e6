#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace meridane {

/// Breaks the lines of a long list behind a comma. Only inside brackets, where a value may go on in the next line
/// whatever its type, and never within a value.
class ValueWrapper {
public:
    /// Begins a value in a line that is filled up to `column` bytes; its further lines are indented by `indentation`.
    void start(std::size_t column, std::size_t indentation) noexcept;
    /// Appends the next part of the value to the text.
    void append(std::string& text, std::string_view part);

private:
    std::size_t passQuoted(std::string_view part) noexcept;
    std::size_t passPlain(std::string_view part) noexcept;

    std::size_t m_column = 0;
    std::size_t m_indentation = 0;
    bool m_inBrackets = false;
    bool m_quoted = false;
    bool m_escaped = false;
    bool m_afterComma = false;
};

} // namespace meridane
