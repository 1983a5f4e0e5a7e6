#pragma once

#include "meridane/query/detail/Spelling.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace meridane {

/// The text of a formula while it is read from its beginning to its end.
class ExpressionSource {
public:
    explicit ExpressionSource(std::string_view original);

    [[nodiscard]] static bool isLetter(char character) noexcept;
    /// The beginning of a text in quotes, for messages.
    [[nodiscard]] static std::string quote(std::string_view text);

    /// All characters, as they are to be read.
    [[nodiscard]] std::string_view text() const noexcept { return m_spelling.text; }
    /// The offset in `text` up to which it has been read.
    [[nodiscard]] std::size_t position() const noexcept { return m_position; }
    void moveTo(std::size_t position) noexcept { m_position = position; }
    void skip(std::size_t length) noexcept { m_position += length; }
    void skipBlanks() noexcept;
    [[nodiscard]] bool isAtEnd() const noexcept { return m_position >= m_spelling.text.size(); }

    /// The next character, or one of those that follow it; 0 at the end.
    [[nodiscard]] char next(std::size_t distance = 0) const noexcept;
    [[nodiscard]] bool startsWith(std::string_view text) const;
    /// The letters, digits and underscores that follow.
    [[nodiscard]] std::string_view word() const;
    /// The original text of the characters that follow, in quotes.
    [[nodiscard]] std::string quoted(std::size_t length = 1) const;
    /// The offset in the original text of one in `text`.
    [[nodiscard]] std::size_t originalPosition(std::size_t position) const;

private:
    std::string_view m_original;
    Spelling m_spelling;
    std::size_t m_position = 0;
};

} // namespace meridane
