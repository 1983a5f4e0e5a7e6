#include "meridane/scene/text/detail/RawValue.h"

#include <algorithm>

namespace meridane {

void RawValue::start(const TextReader& reader) noexcept
{
    m_text = reader.rest();
    m_start = reader.position();
    m_length = 0;
    m_depth = 0;
    m_quoted = false;
    m_comment = false;
}

RawValue::Progress RawValue::scan(TextReader& reader, std::size_t budget)
{
    const std::size_t end = reader.position() + budget;
    while (reader.position() < end) {
        const std::size_t left = end - reader.position();
        const Progress progress = m_quoted ? scanQuoted(reader, left) : scanPlain(reader, left);
        if (progress != Progress::More)
            return progress;
    }
    return Progress::More;
}

RawValue::Progress RawValue::scanQuoted(TextReader& reader, std::size_t budget)
{
    const std::string_view slice = reader.rest().substr(0, budget);
    const std::size_t run = slice.find_first_of("\"\\");
    if (reader.atEnd()) {
        reader.fail("a closing quote");
        return Progress::Failed;
    }
    if (run == std::string_view::npos) {
        reader.advance(slice.size());
        return Progress::More;
    }
    m_quoted = slice[run] != '"';
    reader.advance(run + (m_quoted ? 2 : 1)); // an escaped character never ends the text
    m_length = reader.position() - m_start;
    return Progress::More;
}

RawValue::Progress RawValue::scanPlain(TextReader& reader, std::size_t budget)
{
    const std::string_view slice = reader.rest().substr(0, budget);
    const std::size_t run = std::min(slice.find_first_of(m_comment ? "\n" : "\"[]{}#;\n"), slice.size());
    // Blanks at the end don't belong to the value.
    if (const std::size_t last = slice.substr(0, run).find_last_not_of(" \t\r"); last != std::string_view::npos)
        m_length = reader.position() - m_start + last + 1;
    reader.advance(run);
    if (run == slice.size() && !reader.atEnd())
        return Progress::More;
    const char character = reader.peek();
    const bool ends = reader.atEnd() || character == '\n' || character == ';' || character == '}' || character == '#';
    if (m_depth == 0 && ends) {
        m_text = m_text.substr(0, m_length);
        return Progress::Done;
    }
    if (reader.atEnd() || (m_depth == 0 && (character == ']' || character == '{'))) {
        reader.fail(reader.atEnd() ? "\"]\"" : "the end of the value");
        return Progress::Failed;
    }
    m_quoted = character == '"';
    m_comment = character == '#';
    if (character == '[')
        ++m_depth;
    else if (character == ']')
        --m_depth;
    reader.advance(1);
    m_length = reader.position() - m_start;
    return Progress::More;
}

} // namespace meridane
