#include "meridane/scene/text/TextReader.h"

#include "meridane/scene/text/detail/NanBits.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <type_traits>
#include <utility>

namespace meridane {

namespace {

template <typename Number>
std::string rangeText()
{
    return "a whole number from " + std::to_string(std::numeric_limits<Number>::min()) + " to "
        + std::to_string(std::numeric_limits<Number>::max());
}

constexpr std::string_view knownEscapes = "one of the escapes \\\", \\\\, \\n and \\t";

// The character of an escape, NUL for an unknown escape.
char unescape(char character)
{
    switch (character) {
    case '"':
    case '\\':
        return character;
    case 'n':
        return '\n';
    case 't':
        return '\t';
    default:
        return '\0';
    }
}

// Distinguishes numbers that are too small for the type from those that are too large, by the distance of the first
// digit from the decimal point.
bool isSmallFraction(std::string_view number)
{
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mark);
    const auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<long long>(std::min(mantissa.find_first_of("123456789"), mantissa.size()));
    std::string_view digits = number.substr(std::min(mark + 1, number.size()));
    if (digits.starts_with('+'))
        digits.remove_prefix(1);
    long long exponent = 0;
    const auto error = std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec;
    if (error == std::errc::result_out_of_range)
        return digits.starts_with('-');
    return exponent < first - point;
}

bool isNan(std::string_view text)
{
    const auto lower = [](char character) { return static_cast<char>(character | 0x20); };
    return text.size() >= 3 && lower(text[0]) == 'n' && lower(text[1]) == 'a' && lower(text[2]) == 'n';
}

// Reads the text after `nan`: nothing, or the fraction in brackets. Returns null for anything else.
template <typename Bits>
const char* readNanFraction(const char* place, const char* end, Bits& fraction)
{
    if (place == end || *place != '(')
        return place;
    const bool hexadecimal = end - place > 3 && place[1] == '0' && (place[2] == 'x' || place[2] == 'X');
    if (!hexadecimal)
        return nullptr;
    const auto [behind, error] = std::from_chars(place + 3, end, fraction, 16);
    return error == std::errc() && behind != end && *behind == ')' ? behind + 1 : nullptr;
}

} // namespace

void TextReader::startSlice(std::size_t bytes)
{
    if (!m_goesBack)
        forget();
    m_goesBack = false;
    m_interrupted = false;
    m_slice = bytes;
    m_sliceStart = position();
}

void TextReader::goBack(std::size_t position) noexcept
{
    m_at = m_begin + position;
    m_interrupted = false;
    m_goesBack = true;
}

bool TextReader::interrupt() noexcept
{
    m_interrupted = true;
    m_at = m_end;
    return false;
}

const char* TextReader::endOfSlice(const char* begin, const char* end) const noexcept
{
    return static_cast<std::size_t>(end - begin) > m_slice ? begin + m_slice : end;
}

TextReader::Run& TextReader::runHere(Blanks blanks)
{
    const auto isThis = [&](const Run& run) { return run.begin == m_at && run.blanks == blanks; };
    const auto known = std::find_if(m_runs.begin(), m_runs.end(), isThis);
    if (known != m_runs.end())
        return *known;
    const bool hasLineEnd = isBehindLineEnd();
    if (m_slice == noSlice)
        m_runs.clear(); // the caller doesn't move back
    return m_runs.emplace_back(Run{m_at, m_at, blanks, false, hasLineEnd});
}

void TextReader::skipFarBlanks(Blanks blanks)
{
    Run& run = runHere(blanks);
    const char* const end = endOfSlice(run.at, m_end);
    for (; run.at != end; ++run.at) {
        if (run.inComment)
            run.at = std::find(run.at, end, '\n');
        if (run.at == end)
            break;
        run.inComment = false;
        const char character = *run.at;
        if (character == ' ' || character == '\t')
            continue;
        if (blanks == Blanks::Line || (character != '\n' && character != '\r' && character != '#'))
            break;
        run.inComment = character == '#';
        run.hasLineEnd = run.hasLineEnd || character == '\n';
    }
    m_at = run.at;
    if (run.at == end && end != m_end)
        interrupt();
}

bool TextReader::isBehindLineEnd() const noexcept
{
    const char* place = m_at;
    for (std::ptrdiff_t count = 0; count <= 2 * nearBlanks && place != m_begin; ++count) {
        --place;
        if (*place != ' ' && *place != '\t' && *place != '\r')
            return *place == '\n';
    }
    // If there were other characters before them, this number of blanks was skipped as a run.
    return std::any_of(
        m_runs.begin(), m_runs.end(), [this](const Run& run) { return run.at == m_at && run.hasLineEnd; });
}

bool TextReader::expect(char character)
{
    return accept(character) || fail(std::string{'"', character, '"'});
}

bool TextReader::expectEnd()
{
    skipBlanks();
    return atEnd() || fail("the end of the text");
}

// The cases that the fast path doesn't read: a leading plus, hexadecimal integers, fractions too small for the type,
// NaN, and anything that is no number.
template <typename Number>
bool TextReader::readUnusualNumber(Number& number)
{
    const char* const last = endOfWord(m_at);
    const char* place = m_at;
    const bool negative = place != m_end && *place == '-';
    if (place != m_end && (*place == '+' || *place == '-'))
        ++place;
    const bool digitFollows = place != m_end && *place != '+' && *place != '-';

    if constexpr (std::is_integral_v<Number>) {
        const bool hexadecimal = m_end - place > 2 && place[0] == '0' && (place[1] == 'x' || place[1] == 'X');
        unsigned long long magnitude = 0;
        const auto [end, error]
            = std::from_chars(hexadecimal ? place + 2 : place, last, magnitude, hexadecimal ? 16 : 10);
        if (!digitFollows || error == std::errc::invalid_argument || !endsHere(end))
            return fail("a whole number");
        const unsigned long long limit = negative
            ? 0ULL - static_cast<unsigned long long>(std::numeric_limits<Number>::min())
            : static_cast<unsigned long long>(std::numeric_limits<Number>::max());
        if (error != std::errc() || magnitude > limit)
            return fail(rangeText<Number>());
        number = static_cast<Number>(negative ? 0ULL - magnitude : magnitude);
        m_at = end;
    } else {
        if (isNan({place, static_cast<std::size_t>(m_end - place)}))
            return readNan(place, negative, number);
        Number magnitude = 0;
        auto [end, error] = std::from_chars(place, last, magnitude);
        if (!digitFollows || error == std::errc::invalid_argument || !endsHere(end))
            return fail("a number");
        if (error == std::errc::result_out_of_range) {
            if (!isSmallFraction({place, static_cast<std::size_t>(end - place)})) {
                return fail(
                    std::is_same_v<Number, float> ? "a number that fits in 32 bits" : "a number that fits in 64 bits");
            }
            magnitude = 0;
        }
        number = negative ? -magnitude : magnitude;
        m_at = end;
    }
    return true;
}

template <typename Number>
bool TextReader::readNan(const char* place, bool negative, Number& number)
{
    using Nan = NanBits<Number>;
    typename Nan::Bits fraction = Nan::plainFraction;
    const char* const end = readNanFraction(place + 3, endOfWord(m_at), fraction);
    if (end == nullptr || !endsHere(end) || fraction == 0 || fraction > Nan::greatestFraction) {
        return fail(std::is_same_v<Number, float> ? "nan, or nan(0x1) to nan(0x7fffff)"
                                                  : "nan, or nan(0x1) to nan(0xfffffffffffff)");
    }
    number = std::bit_cast<Number>((negative ? Nan::sign : 0) | Nan::exponent | fraction);
    m_at = end;
    return true;
}

template bool TextReader::readUnusualNumber(float&);
template bool TextReader::readUnusualNumber(double&);
template bool TextReader::readUnusualNumber(short&);
template bool TextReader::readUnusualNumber(unsigned short&);
template bool TextReader::readUnusualNumber(int&);
template bool TextReader::readUnusualNumber(unsigned int&);

bool TextReader::readWord(std::string_view& word, std::string_view expected)
{
    skipBlanks();
    const char* const last = endOfWord(m_at);
    const char* end = m_at;
    while (end != last && !isDelimiter(*end))
        ++end;
    if (end == m_at)
        return fail(expected);
    if (!endsHere(end))
        return fail("a word of at most " + std::to_string(longestWord) + " bytes");
    word = {m_at, static_cast<std::size_t>(end - m_at)};
    m_at = end;
    return true;
}

bool TextReader::readQuoted(std::string_view& text)
{
    // Longer than two names, so that a statement with two names never has two long texts.
    constexpr std::size_t nearText = 2 * longestWord;
    if (!accept('"'))
        return fail("a text in double quotes");
    if (m_longText.begin == m_at)
        return readLongText(text);
    const char* const start = m_at;
    const char* const near = m_slice == noSlice || rest().size() <= nearText ? m_end : m_at + nearText;
    bool escaped = false;
    while (true) {
        const std::string_view left(m_at, static_cast<std::size_t>(near - m_at));
        const std::size_t run = left.find_first_of("\"\\");
        const bool isCut = run == std::string_view::npos || (left[run] == '\\' && run + 1 == left.size());
        if (isCut && near != m_end) {
            m_longText = {start, start, nullptr, 0};
            return readLongText(text);
        }
        if (run == std::string_view::npos) {
            m_at = start - 1;
            return fail("a text with a closing quote");
        }
        const std::string_view plain(m_at, run);
        m_at += run;
        if (*m_at == '"') {
            if (escaped)
                m_unescaped += plain;
            text = escaped ? std::string_view(m_unescaped) : plain;
            ++m_at;
            return true;
        }
        if (!escaped)
            m_unescaped.clear();
        escaped = true;
        m_unescaped += plain;
        const char character = m_end - m_at > 1 ? unescape(m_at[1]) : '\0';
        if (character == '\0')
            return fail(knownEscapes);
        m_unescaped += character;
        m_at += 2;
    }
}

bool TextReader::readLongText(std::string_view& text)
{
    if (m_longText.end == nullptr && !findEndOfLongText())
        return false;
    LongText& part = m_longText;
    const char* const end = endOfSlice(part.at, part.end);
    while (part.at < end) {
        const std::string_view left(part.at, static_cast<std::size_t>(end - part.at));
        const std::size_t run = std::min(left.find('\\'), left.size());
        m_unescaped += left.substr(0, run);
        part.at += run;
        if (run == left.size())
            break;
        const char character = unescape(part.at[1]);
        if (character == '\0') {
            m_at = part.at;
            return fail(knownEscapes);
        }
        m_unescaped += character;
        part.at += 2;
    }
    if (part.at < part.end)
        return interrupt();
    text = m_unescaped;
    m_at = part.end + 1;
    m_longText = {};
    return true;
}

bool TextReader::findEndOfLongText()
{
    LongText& part = m_longText;
    const char* const end = endOfSlice(part.at, m_end);
    while (part.at < end) {
        const std::string_view left(part.at, static_cast<std::size_t>(end - part.at));
        const std::size_t run = std::min(left.find_first_of("\"\\"), left.size());
        part.at += run;
        if (run == left.size())
            break;
        if (*part.at == '"') {
            m_unescaped.clear();
            m_unescaped.reserve(static_cast<std::size_t>(part.at - part.begin) - part.escapes);
            part.end = std::exchange(part.at, part.begin);
            return true;
        }
        ++part.escapes;
        part.at += std::min<std::ptrdiff_t>(2, m_end - part.at);
    }
    if (part.at != m_end)
        return interrupt();
    m_at = part.begin - 1;
    return fail("a text with a closing quote");
}

std::string TextReader::takeQuoted(std::string_view text)
{
    return text.data() == m_unescaped.data() ? std::exchange(m_unescaped, {}) : std::string(text);
}

bool TextReader::failAt(std::size_t position, std::string_view expected)
{
    if (m_expected.empty() && !m_interrupted) {
        m_expected = expected;
        m_failurePosition = position;
    }
    return false;
}

} // namespace meridane
