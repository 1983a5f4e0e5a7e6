#pragma once

#include "orvane/app/base/RowFilter.h"
#include "orvane/app/history/PastState.h"
#include "orvane/app/history/StepIndex.h"
#include "orvane/app/history/StepText.h"

#include <QAbstractTableModel>
#include <QBasicTimer>
#include <QCache>

#include <optional>

class OrvServices;

/// The states of the undo history as rows, the oldest first: the state before the first step, then that after each
/// step, with what the step changed.
///
/// A state is known by its position, the number of steps that lead to it. Values are put into words when a row is
/// shown, and rows are filtered in slices, so that there may be many.
class HistoryModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { StateColumn, StepColumn, BeforeColumn, AfterColumn, TimeColumn, ColumnCount };

    /// The services live longer.
    explicit HistoryModel(OrvServices& services, QObject* parent = nullptr);
    ~HistoryModel() override;

    /// Names the state before the first step, such as "Opened robot.mrd".
    void setOrigin(const QString& text);
    /// Shows the rows that match a query for rows. They come in slices; `filtered` follows when all are there.
    void setFilter(const meridane::Query& query);
    [[nodiscard]] bool isFiltered() const noexcept { return m_filter.isOn(); }

    /// The position of a row that exists.
    [[nodiscard]] int positionOf(int row) const;
    /// The row of a position, or -1 if the filter hides it.
    [[nodiscard]] int rowOf(int position) const;
    /// What an older value can be read with; nothing while no scene is open. Reads the steps that haven't been read.
    [[nodiscard]] std::optional<PastState::History> history();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    void filtered();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void follow(int dropped, int first);
    void removeFirst(int states);
    void filterAgainFrom(int position);
    void resizeTo(int states);
    void updateRows();

    [[nodiscard]] QString rowText(int position) const;
    [[nodiscard]] QString text(int position, int column) const;
    [[nodiscard]] QString stateText(int position) const;
    [[nodiscard]] QString stepLabel(int position) const;
    [[nodiscard]] QString timeText(int position) const;
    [[nodiscard]] const StepText& values(int position) const;
    [[nodiscard]] StepText makeValues(int position) const;

    OrvServices& m_services;
    StepIndex m_index;
    RowFilter m_filter;
    QBasicTimer m_work; // reads steps, then filters
    QString m_origin;
    int m_count = 1; // of the states
    int m_gone = 0; // of the first states, while their rows are being removed
    mutable QCache<quint64, StepText> m_texts; // of rows that were shown, by the number of the step
};
