#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/lists/jobs/ListJob.h"
#include "orvane/app/lists/jobs/detail/SliceSort.h"
#include "orvane/app/lists/rows/ListColumns.h"
#include "orvane/app/lists/rows/RowMap.h"
#include "orvane/app/lists/rows/RowRange.h"

#include <QCollator>

#include <functional>
#include <span>
#include <vector>

class NxMField;

/// Finds out which rows of a list a view shows: those of a range that pass a filter, in the order of a column.
class RowsJob : public ListJob {
    Q_OBJECT

public:
    /// Sets, for the rows from `first` on, whether they pass. Fails with a message.
    using Filter = std::function<orvane::Result<>(int first, std::span<bool> passes)>;

    struct Order {
        int column = -1; ///< -1 for the order of the range
        bool isDescending = false;

        bool operator==(const Order&) const = default;
    };

    /// Without a filter all rows pass. The list must live longer than the work. If it changes, the result is of no use.
    RowsJob(NxMField& list, RowRange range, Filter filter, Order order,
        SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~RowsJob() override;

    /// The rows, once the job has finished.
    [[nodiscard]] RowMap takeMap();

private:
    enum class Phase { Filter, List, Keys, Sort, Gather, Done };
    struct NumberKey {
        double key;
        int row;
    };

    bool runPart() override;
    [[nodiscard]] double share() const override;
    bool filterPart();
    bool listPart();
    bool keysPart();
    bool sortPart();
    bool gatherPart();
    void beginSort();

    NxMField& m_list;
    ListColumns m_columns;
    RowRange::Rows m_range;
    Filter m_filter;
    Order m_order;
    int m_count;
    Phase m_phase = Phase::Filter;
    int m_next; // row of the list to be filtered, or place in `m_rows` whose key is read
    int m_end;
    std::vector<int> m_rows; // that pass; at the end sorted
    bool m_isListed = false; // `m_rows` are the result, not the range
    std::vector<int> m_last; // rows with NaN
    std::vector<NumberKey> m_keys;
    SliceSort<NumberKey> m_numberSort;
    std::vector<QCollatorSortKey> m_textKeys; // by place in `m_rows`
    std::vector<int> m_places; // of all text keys
    SliceSort<int> m_textSort; // of places
    std::vector<int> m_sorted; // rows, while they are gathered
    QCollator m_collator;
};
