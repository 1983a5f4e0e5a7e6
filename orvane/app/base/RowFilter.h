#pragma once

#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

/// The rows of a long list that contain all words of a text, in any case of letters. They are found in slices.
class RowFilter {
public:
    using RowText = std::function<QString(std::size_t row)>;

    /// Forgets what was found. Without words, all rows are shown and none is found.
    void setText(const QString& text);
    [[nodiscard]] bool isOn() const noexcept { return !m_words.isEmpty(); }

    /// The rows found, in their order.
    [[nodiscard]] const std::vector<std::uint32_t>& found() const noexcept { return m_found; }
    /// Looks at further rows of `count`, for a slice. Returns those found, for `append`.
    [[nodiscard]] std::vector<std::uint32_t> find(std::size_t count, const RowText& text);
    void append(const std::vector<std::uint32_t>& rows) { m_found.insert(m_found.end(), rows.begin(), rows.end()); }
    /// Whether all rows of `count` have been looked at.
    [[nodiscard]] bool isDone(std::size_t count) const noexcept { return m_next >= count; }

    // When the list itself changes.

    /// How many of the rows found are before that row.
    [[nodiscard]] std::size_t countBefore(std::size_t row) const;
    /// Forgets the rows found from that one on, and looks at them again.
    void restartFrom(std::size_t row);
    /// The first rows of the list are gone. The one that is the first now has another text, and isn't found any more.
    void removeFirst(std::size_t rows);

private:
    QStringList m_words;
    std::vector<std::uint32_t> m_found;
    std::size_t m_next = 0; // to be looked at
};
