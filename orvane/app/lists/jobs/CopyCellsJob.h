#pragma once

#include "orvane/app/lists/jobs/ListJob.h"
#include "orvane/app/lists/rows/ListColumns.h"
#include "orvane/app/lists/rows/RowMap.h"
#include "orvane/app/lists/rows/RowRuns.h"

#include <string>

class NxMField;

/// Makes the text of cells as spreadsheets take it: tabs between columns, a line a row, numbers with a point. Texts
/// with tabs, quotes or line ends are put in quotes.
class CopyCellsJob : public ListJob {
    Q_OBJECT

public:
    /// The cells of the columns from `firstColumn` to `lastColumn` in the rows that a map shows at these places. The
    /// list must live longer than the work. If it changes, the result is of no use.
    CopyCellsJob(NxMField& list, RowMap map, RowRuns places, int firstColumn, int lastColumn,
        SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~CopyCellsJob() override;

    /// The text, once the job has finished.
    [[nodiscard]] QString text() const;

private:
    bool runPart() override;
    [[nodiscard]] double share() const override;
    void appendRow(int row);

    ListColumns m_columns;
    RowMap m_map;
    RowRuns m_places;
    int m_firstColumn;
    int m_lastColumn;
    std::size_t m_run = 0;
    int m_next = 0; // in the run
    std::string m_text;
};
