#pragma once

#include "meridane/scene/text/TextReader.h"

#include <cstddef>
#include <string_view>

namespace meridane {

/// Finds the end of a value whose type isn't known: the end of the line, a `;`, a `}` or a comment, none of them inside
/// quotes or brackets. Works in slices, and without recursion on brackets.
class RawValue {
public:
    enum class Progress { Done, More, Failed };

    /// Begins at the reader's cursor.
    void start(const TextReader& reader) noexcept;
    /// Moves the cursor on by about `budget` bytes. A failure leaves its note in the reader.
    Progress scan(TextReader& reader, std::size_t budget);
    /// The value, without the blanks that follow it.
    [[nodiscard]] std::string_view text() const noexcept { return m_text; }

private:
    Progress scanQuoted(TextReader& reader, std::size_t budget);
    Progress scanPlain(TextReader& reader, std::size_t budget);

    std::string_view m_text; // all that follows until the end is found
    std::size_t m_start = 0;
    std::size_t m_length = 0; // without the blanks at the end
    std::size_t m_depth = 0;
    bool m_quoted = false;
    bool m_comment = false;
};

} // namespace meridane
