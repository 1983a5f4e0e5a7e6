#include "orvane/app/lists/rows/RowRuns.h"

#include <algorithm>
#include <numeric>

namespace orvane {

RowRuns rowRuns(std::vector<int> rows)
{
    std::ranges::sort(rows);
    RowRuns runs;
    for (const int row : rows) {
        if (runs.empty() || runs.back().end() <= row)
            appendRun(runs, {row, 1});
    }
    return runs;
}

int rowCount(const RowRuns& runs)
{
    return std::accumulate(runs.begin(), runs.end(), 0, [](int sum, RowRun run) { return sum + run.count; });
}

std::vector<int> rowsOf(const RowRuns& runs)
{
    std::vector<int> rows(static_cast<std::size_t>(rowCount(runs)));
    auto next = rows.begin();
    for (const RowRun run : runs) {
        std::iota(next, next + run.count, run.first);
        next += run.count;
    }
    return rows;
}

void appendRun(RowRuns& runs, RowRun run)
{
    if (run.count <= 0)
        return;
    if (!runs.empty() && runs.back().end() == run.first)
        runs.back().count += run.count;
    else
        runs.push_back(run);
}

RowRuns spliced(const RowRuns& runs, int start, int removed, int inserted)
{
    if (removed == inserted)
        return runs;
    const int end = start + removed;
    RowRuns result;
    for (const RowRun run : runs) {
        appendRun(result, {run.first, std::min(run.end(), start) - run.first});
        const int behind = std::max(run.first, end);
        appendRun(result, {behind + inserted - removed, run.end() - behind});
    }
    return result;
}

} // namespace orvane
