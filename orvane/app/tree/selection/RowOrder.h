#pragma once

#include <QItemSelection>
#include <QModelIndexList>

namespace orvane {

/// The first cells of the rows in some ranges, each row once, in the order of the tree: a row comes before those under
/// it and those below it. Takes time in proportion to the rows.
[[nodiscard]] QModelIndexList rowsInTreeOrder(const QItemSelection& ranges);

} // namespace orvane
