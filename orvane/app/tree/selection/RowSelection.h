#pragma once

#include <QItemSelectionModel>
#include <QTreeView>

#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

/// The rows that are selected in a tree, of which there may be hundreds of thousands.
///
/// A view asks its selection model about each cell that it paints, and each answer takes time in proportion to the
/// ranges in the model. So all selected rows are in a model of their own, and where they have many ranges the view's
/// model has those of them that are in sight. Whatever changes the view's model changes all rows.
///
/// All rows under one index must have the same internal pointer, and no others that.
class RowSelection : public QItemSelectionModel {
    Q_OBJECT

public:
    /// Of at most so many ranges, the view's model has all.
    static constexpr qsizetype mostRanges = 500;

    /// Becomes the selection model of the view, which shows the model, selects rows and owns this.
    RowSelection(QAbstractItemModel* model, QTreeView* view);

    /// The ranges of all selected rows.
    [[nodiscard]] const QItemSelection& allRanges() const;
    [[nodiscard]] bool hasAny() const { return !allRanges().isEmpty(); }
    /// Whether a row is selected, in sight or not.
    [[nodiscard]] bool contains(const QModelIndex& index) const;

    /// Selects these ranges of whole rows and no others.
    void setRanges(const QItemSelection& ranges);
    /// Gives the view's model the rows that are in sight now. To be called before the view uses it.
    void update();

    void select(const QItemSelection& selection, SelectionFlags command) override;
    using QItemSelectionModel::select;
    void clear() override;
    void reset() override;

Q_SIGNALS:
    /// Other rows are selected than before.
    void changed();

private:
    using Rows = std::vector<std::pair<int, int>>; // first and last of ranges, rising
    using RowsOfGroups = std::unordered_map<const void*, Rows>; // by the internal pointer of the rows

    void forgetRanges();
    [[nodiscard]] QItemSelection rangesInSight() const;
    [[nodiscard]] const RowsOfGroups& rows() const;

    QTreeView* m_view;
    QItemSelectionModel m_all;
    // Known until rows come or go, or others are selected:
    mutable std::optional<QItemSelection> m_ranges;
    mutable std::optional<RowsOfGroups> m_rows;
};
