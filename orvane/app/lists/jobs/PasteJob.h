#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/lists/jobs/ListJob.h"
#include "orvane/app/lists/rows/ListColumns.h"
#include "orvane/app/lists/rows/PastedRows.h"
#include "orvane/app/lists/rows/TableText.h"

#include <QHash>

class NxMField;

/// Reads a table that is to be pasted into a list, and checks each cell. A message names the line and the cell that
/// can't be taken.
class PasteJob : public ListJob {
    Q_OBJECT

public:
    /// The cells of the table go to the columns from `firstColumn` on. The list must live longer than the work.
    PasteJob(NxMField& list, const QString& text, int firstColumn,
        SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~PasteJob() override;

    /// The cells, once the job has finished.
    [[nodiscard]] PastedRows takeRows() { return std::move(m_rows); }

private:
    bool runPart() override;
    [[nodiscard]] double share() const override { return m_reader.share(); }
    [[nodiscard]] orvane::Result<> addRow();
    [[nodiscard]] orvane::Result<> beginTable();
    [[nodiscard]] orvane::Result<> addNumber(std::size_t cell);
    [[nodiscard]] orvane::Result<double> numberOf(std::string_view text, int column) const;
    [[nodiscard]] bool isTitleRow() const;

    ListColumns m_columns;
    int m_firstColumn;
    TableReader m_reader;
    std::vector<std::string_view> m_cells; // of the present row
    QHash<QByteArray, int> m_choices;
    PastedRows m_rows;
    int m_line = 0; // from 1, for messages
};
