#pragma once

#include "orvane/app/log/LogRecord.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <limits>
#include <optional>
#include <set>
#include <utility>

class LogBook;

/// The lines of the log as rows: those of the severities that are shown and that contain all words of the filter.
///
/// Equal lines that follow each other are one row with their number, unless they are unfolded or nothing is folded.
class LogModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { TimeColumn, SourceColumn, TextColumn, CountColumn, ColumnCount };
    /// The most characters of a line that are shown in its row.
    static constexpr qsizetype longestShown = 1000;

    /// The book lives longer.
    explicit LogModel(const LogBook& book, QObject* parent = nullptr);

    void setShown(NxSeverity severity, bool isShown);
    [[nodiscard]] bool isShown(NxSeverity severity) const { return m_isShown[static_cast<std::size_t>(severity)]; }
    void setFilter(const QString& words);
    /// Whether equal lines are one row.
    void setFolding(bool isOn);
    [[nodiscard]] bool hasFolding() const noexcept { return m_hasFolding; }

    /// The record of a row, or null.
    [[nodiscard]] const LogRecord* record(int row) const;
    /// What the text column shows: one line.
    [[nodiscard]] QString shownText(int row) const;
    /// Time, severity, source, text and, if there are several, the number of equal lines, separated by tabs.
    [[nodiscard]] QString lineText(int row) const;
    /// Whether the row is one of several equal lines that can be folded or unfolded, and which of both.
    [[nodiscard]] bool canUnfold(int row) const;
    [[nodiscard]] bool canFold(int row) const;
    void unfold(int row);
    /// Returns the row that is left of its lines.
    int fold(int row);

    /// Identifies a line whatever rows are shown.
    struct Line {
        std::uint64_t record = 0;
        std::size_t number = 0;

        bool operator==(const Line&) const = default;
    };
    [[nodiscard]] std::optional<Line> lineAt(int row) const;
    /// The row of a line, or the next one below it that is shown, or the last one; -1 if there are no rows.
    [[nodiscard]] int rowNear(const Line& line) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static constexpr std::size_t allLines = std::numeric_limits<std::size_t>::max();
    struct Row {
        std::uint64_t record = 0;
        std::size_t line = 0; ///< counts those that were dropped; `allLines` for a row of equal lines
    };

    [[nodiscard]] bool shows(const LogRecord& record) const;
    [[nodiscard]] bool isFolded(std::uint64_t number) const;
    void refill();
    void follow();
    void removeDropped();
    void growLast();
    void appendNew();
    void addRows(std::deque<Row>& rows, std::uint64_t number, std::size_t from) const;
    [[nodiscard]] std::pair<int, int> rowsOf(std::uint64_t number) const;
    [[nodiscard]] QVariant display(const Row& row, const LogRecord& record, int column) const;
    [[nodiscard]] qint64 timeOf(const Row& row, const LogRecord& record) const;
    [[nodiscard]] QString toolTip(const Row& row, const LogRecord& record) const;

    const LogBook& m_book;
    std::deque<Row> m_rows;
    std::uint64_t m_end = 0; // the number behind the last record that is known
    std::size_t m_lastLines = 0; // of that record, those that were dropped included
    std::set<std::uint64_t> m_unfolded;
    QStringList m_words;
    std::array<bool, 3> m_isShown{true, true, true};
    bool m_hasFolding = true;
};
