#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

namespace meridane {

/// A cursor over a text that holds values, shared by the fields' text form, scene files and paths.
///
/// Every operation that gives false leaves a note of what was expected and where; the first note stays. The text isn't
/// copied and must outlive the reader. Numbers are read without a locale.
class TextReader {
public:
    enum class Blanks {
        Line, ///< spaces and tabs
        File, ///< line ends as well, and comments from `#` to the end of the line
    };

    explicit TextReader(std::string_view text, Blanks blanks = Blanks::Line) noexcept
        : m_begin(text.data())
        , m_at(text.data())
        , m_end(text.data() + text.size())
        , m_blanks(blanks)
    {
    }

    /// The byte offset of the cursor.
    [[nodiscard]] std::size_t position() const noexcept { return static_cast<std::size_t>(m_at - m_begin); }
    /// What is behind the cursor, blanks included.
    [[nodiscard]] std::string_view rest() const noexcept { return {m_at, static_cast<std::size_t>(m_end - m_at)}; }
    /// The character at the cursor; NUL at the end of the text.
    [[nodiscard]] char peek() const noexcept { return m_at == m_end ? '\0' : *m_at; }
    [[nodiscard]] bool atEnd() const noexcept { return m_at == m_end; }
    /// Moves the cursor on; not beyond the end.
    void advance(std::size_t count) noexcept { m_at += count < rest().size() ? count : rest().size(); }

    void skipBlanks() noexcept;
    /// Skips spaces and tabs only.
    void skipBlanksOfLine() noexcept;
    /// Skips blanks, and then `character` if it stands there; true if it does. Leaves no note.
    bool accept(char character) noexcept;
    /// The same, but it must stand there.
    bool expect(char character);
    /// Skips blanks; then the text must be at its end.
    bool expectEnd();

    /// Reads a number: decimal, with or without a sign, for integers also `0x` and hexadecimal digits, for floating
    /// point also `inf` and `nan`, with the bits of its fraction as `nan(0x1)` where they aren't the usual ones. A
    /// number that the type can't hold is refused, but a fraction too small for it becomes 0. `number` changes only if
    /// this gives true.
    template <typename Number>
    bool readNumber(Number& number);
    /// Reads a word: the characters up to a blank, a comma, a semicolon, a bar, a quote, a bracket, a brace or `#`. It
    /// may not be empty: `expected` says what it stands for.
    bool readWord(std::string_view& word, std::string_view expected);
    /// Reads a text in double quotes. The view is valid until the next call, or until the text goes.
    bool readQuoted(std::string_view& text);

    /// Notes what was expected at the cursor, unless there is a note already. Always false.
    bool fail(std::string_view expected) { return failAt(position(), expected); }
    bool failAt(std::size_t position, std::string_view expected);
    /// What was expected at the first failure, such as "a number"; empty before one.
    [[nodiscard]] const std::string& expected() const noexcept { return m_expected; }
    /// The byte offset of the first failure.
    [[nodiscard]] std::size_t failurePosition() const noexcept { return m_failurePosition; }

    /// True for the characters that end a number or a word.
    [[nodiscard]] static bool isDelimiter(char character) noexcept
    {
        return s_delimiters[static_cast<unsigned char>(character)];
    }

private:
    static constexpr std::array<bool, 256> makeDelimiters()
    {
        std::array<bool, 256> result{};
        for (const char character : std::string_view(" \t\r\n,;|\"[]{}#"))
            result[static_cast<unsigned char>(character)] = true;
        return result;
    }
    static const std::array<bool, 256> s_delimiters;

    [[nodiscard]] bool endsHere(const char* place) const noexcept { return place == m_end || isDelimiter(*place); }
    // Moves to the last character of a comment.
    void skipComment() noexcept;
    template <typename Number>
    bool readUnusualNumber(Number& number);
    template <typename Number>
    bool readNan(const char* place, bool negative, Number& number);

    const char* m_begin;
    const char* m_at;
    const char* m_end;
    Blanks m_blanks;
    std::size_t m_failurePosition = 0;
    std::string m_expected;
    std::string m_unescaped; // holds a quoted text with escapes
};

inline constexpr std::array<bool, 256> TextReader::s_delimiters = makeDelimiters();

inline void TextReader::skipBlanks() noexcept
{
    for (; m_at != m_end; ++m_at) {
        const char character = *m_at;
        if (character == ' ' || character == '\t')
            continue;
        if (character > '#' || m_blanks == Blanks::Line)
            return;
        if (character == '#')
            skipComment();
        else if (character != '\n' && character != '\r')
            return;
    }
}

inline void TextReader::skipBlanksOfLine() noexcept
{
    while (m_at != m_end && (*m_at == ' ' || *m_at == '\t'))
        ++m_at;
}

inline bool TextReader::accept(char character) noexcept
{
    skipBlanks();
    if (m_at == m_end || *m_at != character)
        return false;
    ++m_at;
    return true;
}

template <typename Number>
inline bool TextReader::readNumber(Number& number)
{
    skipBlanks();
    Number read{};
    const auto [end, error] = std::from_chars(m_at, m_end, read);
    bool isUsual = error == std::errc() && endsHere(end);
    if constexpr (std::is_floating_point_v<Number>)
        isUsual = isUsual && !std::isnan(read); // whose brackets may hold anything here
    if (!isUsual) [[unlikely]]
        return readUnusualNumber(number);
    number = read;
    m_at = end;
    return true;
}

extern template bool TextReader::readUnusualNumber(float&);
extern template bool TextReader::readUnusualNumber(double&);
extern template bool TextReader::readUnusualNumber(short&);
extern template bool TextReader::readUnusualNumber(unsigned short&);
extern template bool TextReader::readUnusualNumber(int&);
extern template bool TextReader::readUnusualNumber(unsigned int&);

} // namespace meridane
