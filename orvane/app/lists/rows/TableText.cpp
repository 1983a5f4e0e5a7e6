#include "orvane/app/lists/rows/TableText.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char noSeparator = 0;

bool isRowEnd(char sign)
{
    return sign == '\n' || sign == '\r';
}

bool isCellBlank(char sign)
{
    return sign == ' ' || sign == '\t';
}

std::string_view trimmedCell(std::string_view text)
{
    while (!text.empty() && isCellBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isCellBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// The first line with more than blanks.
std::string_view firstTableLine(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(" \r\n");
    if (begin == std::string_view::npos)
        return {};
    text.remove_prefix(begin);
    return trimmedCell(text.substr(0, text.find_first_of("\r\n")));
}

bool separatesWithCommas(std::string_view line)
{
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos)
        return false;
    return line.find(',', comma + 1) != std::string_view::npos || line.find('.') != std::string_view::npos
        || (comma + 1 < line.size() && isCellBlank(line[comma + 1]));
}

} // namespace

QString orvane::quotedCell(const QString& text)
{
    const bool isSpecial = text.startsWith(u'"')
        || std::ranges::any_of(text, [](QChar sign) { return sign == u'\t' || sign == u'\n' || sign == u'\r'; });
    if (!isSpecial)
        return text;
    QString quoted = text;
    quoted.replace(u'"', QLatin1String("\"\""));
    return u'"' + quoted + u'"';
}

TableReader::TableReader(std::string text, Content content)
    : m_text(std::move(text))
    , m_separator(findSeparator(content))
    , m_trims(content == Content::Numbers)
{
}

char TableReader::findSeparator(Content content) const
{
    if (m_text.find('\t') != std::string::npos)
        return '\t';
    if (content == Content::Texts)
        return noSeparator;
    if (m_text.find(';') != std::string::npos)
        return ';';
    const std::string_view line = firstTableLine(m_text);
    if (separatesWithCommas(line))
        return ',';
    return line.find(' ') != std::string_view::npos ? ' ' : noSeparator;
}

double TableReader::share() const
{
    return m_text.empty() ? 1 : static_cast<double>(m_position) / static_cast<double>(m_text.size());
}

bool TableReader::readRow(std::vector<std::string_view>& cells)
{
    cells.clear();
    m_unquoted.clear();
    if (m_position >= m_text.size())
        return false;
    if (m_separator == ' ')
        skipBlanks();
    while (true) {
        cells.push_back(readCell());
        if (m_separator == ' ')
            skipBlanks();
        const bool atEnd = m_position >= m_text.size() || isRowEnd(m_text[m_position]);
        if (atEnd)
            break;
        if (m_separator != ' ')
            ++m_position;
    }
    // The end of the last line begins no row.
    if (m_position < m_text.size() && m_text[m_position] == '\r')
        ++m_position;
    if (m_position < m_text.size() && m_text[m_position] == '\n')
        ++m_position;
    return true;
}

void TableReader::skipBlanks()
{
    while (m_position < m_text.size() && isCellBlank(m_text[m_position]))
        ++m_position;
}

bool TableReader::isCellEnd(std::size_t position) const
{
    return position >= m_text.size() || isRowEnd(m_text[position])
        || (m_separator != noSeparator && m_text[position] == m_separator);
}

std::string_view TableReader::readCell()
{
    std::string_view cell;
    if (m_position < m_text.size() && m_text[m_position] == '"' && readQuoted(cell))
        return m_trims ? trimmedCell(cell) : cell;
    const std::size_t begin = m_position;
    while (!isCellEnd(m_position))
        ++m_position;
    cell = std::string_view(m_text).substr(begin, m_position - begin);
    return m_trims ? trimmedCell(cell) : cell;
}

// A quote whose other half isn't at the end of a cell is an ordinary character.
bool TableReader::readQuoted(std::string_view& cell)
{
    std::string unquoted;
    std::size_t position = m_position + 1;
    while (true) {
        const std::size_t quote = m_text.find('"', position);
        if (quote == std::string::npos)
            return false;
        unquoted.append(m_text, position, quote - position);
        position = quote + 1;
        if (position >= m_text.size() || m_text[position] != '"')
            break;
        unquoted += '"';
        ++position;
    }
    if (!isCellEnd(position))
        return false;
    m_position = position;
    cell = m_unquoted.emplace_back(std::move(unquoted));
    return true;
}
