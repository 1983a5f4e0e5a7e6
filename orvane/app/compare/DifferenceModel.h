#pragma once

#include "orvane/app/base/RowFilter.h"

#include "meridane/scene/compare/NxSceneDifferences.h"
#include "meridane/scene/fields/NxFieldSensor.h"

#include <QAbstractTableModel>
#include <QBasicTimer>
#include <QCache>

#include <cstddef>

/// The differences of two scenes as rows, side by side: the node, what differs, and what each scene has.
///
/// Texts are made when they are shown, and rows are filtered in slices, so that there may be millions.
class DifferenceModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { NodeColumn, SubjectColumn, LeftColumn, RightColumn, ColumnCount };

    explicit DifferenceModel(QObject* parent = nullptr);
    ~DifferenceModel() override;

    /// Shows these differences, without a filter.
    void setDifferences(NxSceneDifferences differences);
    [[nodiscard]] const NxSceneDifferences& differences() const noexcept { return m_differences; }
    /// The difference of a row that exists.
    [[nodiscard]] const NxSceneDifference& difference(int row) const;

    /// Shows the rows that match a query for rows. They come in slices; `filtered` follows when all are there.
    void setFilter(const meridane::Query& query);
    /// To be called when the language has changed.
    void forgetTexts();
    /// Updates the row when the field of this scene changes; an invalid row ends that. One row at a time.
    void watchRow(int row);

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
    [[nodiscard]] std::size_t placeOf(int row) const;
    [[nodiscard]] QString text(std::size_t place, int column) const;
    [[nodiscard]] QString makeText(std::size_t place, int column) const;
    [[nodiscard]] QString rowText(std::size_t place) const;
    void updateWatchedRow();

    NxSceneDifferences m_differences;
    RowFilter m_filter;
    QBasicTimer m_filtering;
    mutable QCache<std::size_t, QString> m_texts; // of cells that were shown
    NxFieldSensor m_sensor;
    int m_watchedRow = -1;
};
