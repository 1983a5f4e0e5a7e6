#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace meridane {

/// How a list differs from the same list in the recovery file: which of its rows the file doesn't have, and which rows
/// the file has in their place.
///
/// The rows are those of a list of values, or the children of a group.
class DirtyRows {
public:
    /// Rows to be replaced in the list of the file.
    struct Part {
        std::size_t start = 0; ///< the first row in the list
        std::size_t count = 0; ///< rows of the list that the file doesn't have
        std::size_t logged = 0; ///< where the replaced rows are in the list of the file
        std::size_t stale = 0; ///< how many these are
    };

    enum class Joining : bool {
        Allowed, ///< rows between parts may become dirty, so that there are never many parts
        Never,
    };

    explicit DirtyRows(Joining joining) noexcept
        : m_joining(joining)
    {
    }

    [[nodiscard]] bool isEmpty() const noexcept { return !m_isWhole && m_parts.empty(); }
    /// Whether all rows are dirty and their number is still to be set.
    [[nodiscard]] bool isWhole() const noexcept { return m_isWhole; }

    /// `removed` rows of the list from `start` on are replaced by `inserted` others.
    void replace(std::size_t start, std::size_t removed, std::size_t inserted);
    /// All rows of the list, which has `count` of them, are replaced by an unknown number of others.
    void replaceAll(std::size_t count);
    /// Sets the number of rows after `replaceAll`.
    void setCount(std::size_t count);

    /// The part that is next to be logged. Not to be called if empty or whole.
    [[nodiscard]] Part next() const noexcept;
    /// Removes the first `count` rows of that part, with as many stale ones; with the last row, all its stale ones.
    /// Returns what is to be replaced.
    Part take(std::size_t count);
    /// Removes the stale rows of the part that the latest `replace` made; nothing if it has none. For a list whose
    /// removed rows are logged at once, so that no other part has any, and without joining.
    std::optional<Part> takeStale();

private:
    struct Range {
        std::size_t start;
        std::size_t count;
        std::size_t stale;
    };

    void limitParts();

    Joining m_joining;
    std::vector<Range> m_parts; // in the order of the list, with rows that the file has between them
    std::size_t m_latest = 0; // the part that the latest `replace` made
    std::ptrdiff_t m_growth = 0; // the number of rows of the list minus that in the file
    std::size_t m_loggedRows = 0; // in the file, while whole
    bool m_isWhole = false;
};

} // namespace meridane
