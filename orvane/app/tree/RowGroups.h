#pragma once

#include <QHash>
#include <QItemSelection>
#include <QModelIndex>

#include <cstddef>
#include <span>
#include <vector>

class QAbstractItemModel;

/// Rows of a tree, collected by the row that they are under, so that work on many rows is work on few groups.
class RowGroups {
public:
    /// The rows under one index.
    struct Group {
        QModelIndex parent;
        std::vector<int> rows;
    };

    RowGroups() = default;
    explicit RowGroups(const QItemSelection& ranges);

    void add(const QModelIndex& parent, int row);
    void add(const QModelIndex& parent, std::span<const int> rows);

    /// The groups in the order in which they were added first. In each the rows are rising, each once.
    [[nodiscard]] std::vector<Group> take();

private:
    std::vector<int>& rowsBelow(const QModelIndex& parent);

    std::vector<Group> m_groups;
    QHash<QModelIndex, std::size_t> m_places; // of the groups
};

namespace orvane {

/// All cells of these rows of a model. Rows that follow each other are one range, since each range costs time whenever
/// one is looked for. Rows that the model doesn't have are left out.
[[nodiscard]] QItemSelection rangesOf(const QAbstractItemModel& model, std::span<const RowGroups::Group> groups);

} // namespace orvane
