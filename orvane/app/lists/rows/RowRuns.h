#pragma once

#include <vector>

/// `count` rows of a list from `first` on.
struct RowRun {
    int first = 0;
    int count = 0;

    [[nodiscard]] int end() const noexcept { return first + count; }
    bool operator==(const RowRun&) const = default;
};

/// A set of rows of a list: runs in ascending order that neither touch nor overlap.
using RowRuns = std::vector<RowRun>;

namespace orvane {

/// The set of these rows, in any order and any number of times.
[[nodiscard]] RowRuns rowRuns(std::vector<int> rows);
/// How many rows there are.
[[nodiscard]] int rowCount(const RowRuns& runs);
/// All rows in ascending order.
[[nodiscard]] std::vector<int> rowsOf(const RowRuns& runs);
/// Adds a run whose rows are all behind the others.
void appendRun(RowRuns& runs, RowRun run);
/// The rows after `removed` rows from `start` on were replaced by `inserted` others: those are none of the set, unless
/// as many are inserted as removed, and the rows behind them have moved.
[[nodiscard]] RowRuns spliced(const RowRuns& runs, int start, int removed, int inserted);

} // namespace orvane
