#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace meridane {

/// A cursor over a text that holds values, shared by the fields' text form, scene files and paths.
///
/// Every operation that returns false records what was expected and where; the first record is kept. The text isn't
/// copied and must outlive the reader. Numbers are read independent of the locale.
///
/// Blanks, comments and texts may be of any length. A caller that reads in slices calls `startSlice`: an operation that
/// passes more of them than the slice has bytes is interrupted. Then the reader behaves as at the end of the text and
/// records no failure. The caller moves back to a position from which it can read again; in the next slices the reader
/// skips the part that it has passed in one step.
class TextReader {
public:
    /// What counts as blanks.
    enum class Blanks {
        Line, ///< spaces and tabs
        File, ///< line ends as well, and comments from `#` to the end of the line
    };

    /// A reader at the start of the text.
    explicit TextReader(std::string_view text, Blanks blanks = Blanks::Line) noexcept
        : m_begin(text.data())
        , m_at(text.data())
        , m_end(text.data() + text.size())
        , m_blanks(blanks)
    {
    }

    /// The byte offset of the cursor.
    [[nodiscard]] std::size_t position() const noexcept { return static_cast<std::size_t>(m_at - m_begin); }
    /// The text after the cursor, blanks included.
    [[nodiscard]] std::string_view rest() const noexcept { return {m_at, static_cast<std::size_t>(m_end - m_at)}; }
    /// The character at the cursor; NUL at the end of the text.
    [[nodiscard]] char peek() const noexcept { return m_at == m_end ? '\0' : *m_at; }
    /// Whether the cursor is at the end of the text.
    [[nodiscard]] bool atEnd() const noexcept { return m_at == m_end; }
    /// Moves the cursor forward, at most to the end.
    void advance(std::size_t count) noexcept { m_at += count < rest().size() ? count : rest().size(); }

    /// Begins a slice of about that many bytes at the cursor, and continues after an interruption.
    void startSlice(std::size_t bytes);
    /// Whether the slice is over: the cursor has passed its number of bytes, or moved back. Always false without
    /// slices.
    [[nodiscard]] bool isSpent() const noexcept
    {
        return m_goesBack || (m_slice != noSlice && position() - m_sliceStart >= m_slice);
    }
    /// Whether an operation was interrupted.
    [[nodiscard]] bool isInterrupted() const noexcept { return m_interrupted; }
    /// Ends an interruption: moves the cursor back to the start of the next slice.
    void goBack(std::size_t position) noexcept;
    /// Deletes the record of passed blanks and texts; the caller won't move back before the cursor.
    void forget() noexcept
    {
        m_runs.clear();
        m_longText.begin = nullptr;
    }

    /// Moves the cursor behind blanks, of the kind that the reader was made for.
    void skipBlanks();
    /// Skips spaces and tabs only.
    void skipBlanksOfLine();
    /// Whether there is a line end before the cursor and nothing but spaces and tabs between them.
    [[nodiscard]] bool isBehindLineEnd() const noexcept;
    /// Skips blanks, and then `character` if it is next. Returns whether it was; records no failure.
    bool accept(char character);
    /// The same, but records a failure if the character isn't next.
    bool expect(char character);
    /// Skips blanks; then the text must be at its end.
    bool expectEnd();

    /// Reads a number: decimal, with or without a sign, for integers also `0x` and hexadecimal digits, for floating
    /// point also `inf` and `nan`, with the bits of its fraction as `nan(0x1)` if they aren't the usual ones. A
    /// number out of the range of the type is refused, but a fraction that is too small becomes 0. `number` changes
    /// only if this returns true.
    template <typename Number>
    bool readNumber(Number& number);
    /// Reads a comma, at most one blank and a decimal number that ends at a delimiter, which is the form of nearly all
    /// of a long list. For everything else it returns false and doesn't move the cursor; the other operations read it.
    template <typename Number>
    bool readPlainFollower(Number& number) noexcept;
    /// Reads a word: the characters up to a blank, a comma, a semicolon, a bar, a quote, a bracket, a brace or `#`. It
    /// may not be empty: `expected` says what kind of word it is.
    bool readWord(std::string_view& word, std::string_view expected);
    /// Reads a text in double quotes. The view is valid until the next call, and as long as the text.
    bool readQuoted(std::string_view& text);
    /// The last result of `readQuoted`; it isn't copied if the reader owns it.
    [[nodiscard]] std::string takeQuoted(std::string_view text);

    /// Records what was expected at the cursor, unless a failure is recorded already. Always returns false.
    bool fail(std::string_view expected) { return failAt(position(), expected); }
    /// The same at another byte offset of the text.
    bool failAt(std::size_t position, std::string_view expected);
    /// What was expected at the first failure, such as "a number"; empty before one.
    [[nodiscard]] const std::string& expected() const noexcept { return m_expected; }
    /// The byte offset of the first failure.
    [[nodiscard]] std::size_t failurePosition() const noexcept { return m_failurePosition; }

    /// The maximum length of a number or a word in bytes.
    static constexpr std::size_t longestWord = 65536;

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

    static constexpr std::size_t noSlice = std::string_view::npos;
    /// This number of blanks is skipped without checking the slice.
    static constexpr std::ptrdiff_t nearBlanks = 64;

    /// Blanks and comments that are skipped in several slices.
    struct Run {
        const char* begin = nullptr;
        const char* at = nullptr;
        Blanks blanks = Blanks::Line;
        bool inComment = false;
        bool hasLineEnd = false;
    };
    /// A quoted text that is read in several slices: first its end is found, then it is unescaped.
    struct LongText {
        const char* begin = nullptr;
        const char* at = nullptr;
        const char* end = nullptr; // the closing quote, once it is known
        std::size_t escapes = 0;
    };

    [[nodiscard]] bool endsHere(const char* place) const noexcept { return place == m_end || isDelimiter(*place); }
    /// The last possible end of a number or a word that begins there.
    [[nodiscard]] const char* endOfWord(const char* start) const noexcept
    {
        return static_cast<std::size_t>(m_end - start) > longestWord ? start + longestWord : m_end;
    }
    [[nodiscard]] const char* endOfSlice(const char* begin, const char* end) const noexcept;
    void skipFarBlanks(Blanks blanks);
    [[nodiscard]] Run& runHere(Blanks blanks);
    bool readLongText(std::string_view& text);
    bool findEndOfLongText();
    bool interrupt() noexcept;
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
    std::string m_unescaped; // holds a quoted text with escapes, or a long one

    std::size_t m_slice = noSlice; // bytes
    std::size_t m_sliceStart = 0;
    bool m_interrupted = false;
    bool m_goesBack = false; // the text behind the cursor will be read again
    std::vector<Run> m_runs;
    LongText m_longText;
};

inline constexpr std::array<bool, 256> TextReader::s_delimiters = makeDelimiters();

inline void TextReader::skipBlanks()
{
    const char* at = m_at;
    const char* const near = m_end - at > nearBlanks ? at + nearBlanks : m_end;
    for (; at != near; ++at) {
        const char character = *at;
        if (character == ' ' || character == '\t')
            continue;
        const bool isLineEnd = character == '\n' || character == '\r';
        if (m_blanks == Blanks::File && isLineEnd)
            continue;
        m_at = at;
        if (m_blanks == Blanks::File && character == '#')
            skipFarBlanks(m_blanks);
        return;
    }
    m_at = at;
    if (near != m_end)
        skipFarBlanks(m_blanks);
}

inline void TextReader::skipBlanksOfLine()
{
    const char* const near = m_end - m_at > nearBlanks ? m_at + nearBlanks : m_end;
    while (m_at != near && (*m_at == ' ' || *m_at == '\t'))
        ++m_at;
    if (m_at == near && near != m_end)
        skipFarBlanks(Blanks::Line);
}

inline bool TextReader::accept(char character)
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
    const auto [end, error] = std::from_chars(m_at, endOfWord(m_at), read);
    bool isUsual = error == std::errc() && endsHere(end);
    if constexpr (std::is_floating_point_v<Number>)
        isUsual = isUsual && !std::isnan(read); // std::from_chars accepts any text in its brackets
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

template <typename Number>
inline bool TextReader::readPlainFollower(Number& number) noexcept
{
    if (m_end - m_at < 3 || *m_at != ',')
        return false;
    const char* const start = m_at + (m_at[1] == ' ' ? 2 : 1);
    Number read{};
    const auto [end, error] = std::from_chars(start, endOfWord(start), read);
    if (error != std::errc() || !endsHere(end))
        return false;
    if constexpr (std::is_floating_point_v<Number>) {
        if (std::isnan(read)) // std::from_chars accepts any text in its brackets
            return false;
    }
    number = read;
    m_at = end;
    return true;
}

} // namespace meridane
