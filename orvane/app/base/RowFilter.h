#pragma once

#include "meridane/query/Query.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

/// The rows of a long list that match a query for rows. They are found in slices.
class RowFilter {
public:
    using RowText = std::function<QString(std::size_t row)>;

    /// Forgets what was found. With the empty query, all rows are shown and none is found.
    void setQuery(const meridane::Query& query);
    [[nodiscard]] bool isOn() const noexcept { return !m_query.isEmpty(); }

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
    meridane::Query m_query;
    std::vector<std::uint32_t> m_found;
    std::size_t m_next = 0; // to be looked at
};
