#pragma once

#include <QString>

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// The text of a cell as spreadsheets exchange it: in quotes if it has a tab, a line end or begins with a quote.
[[nodiscard]] QString quotedCell(const QString& text);

} // namespace orvane

/// Reads the rows of a table from a text as spreadsheets and other programs copy it.
///
/// Cells are separated by tabs, or by semicolons if there are no tabs. In a table of numbers without either, they are
/// separated by commas if the first line has several, or one that is followed by a blank or accompanied by a point, or
/// else by blanks; any other comma is a decimal sign. Cells may be in quotes.
class TableReader {
public:
    /// Texts are separated by tabs only.
    enum class Content { Numbers, Texts };

    TableReader(std::string text, Content content);

    /// Reads the cells of the next row, which are valid until the next call. Returns false behind the last row.
    bool readRow(std::vector<std::string_view>& cells);
    /// The share of the text that has been read, 0 to 1.
    [[nodiscard]] double share() const;

private:
    [[nodiscard]] char findSeparator(Content content) const;
    std::string_view readCell();
    [[nodiscard]] bool readQuoted(std::string_view& cell);
    [[nodiscard]] bool isCellEnd(std::size_t position) const;
    void skipBlanks();

    std::string m_text;
    std::deque<std::string> m_unquoted; // cells of the present row
    std::size_t m_position = 0;
    char m_separator; // a blank for any number of them; 0 for none
    bool m_trims;
};
