#include "orvane/app/tree/selection/RowOrder.h"

#include <map>

namespace orvane {
namespace {

/// The rows under one index that are in the ranges, or that have such rows below them.
struct Level {
    std::map<int, bool> rows; // true if the row itself is in a range
};
using Levels = QHash<QModelIndex, Level>;

void addParents(Levels& levels, const QModelIndex& index)
{
    for (QModelIndex step = index; step.isValid(); step = step.parent()) {
        if (!levels[step.parent()].rows.try_emplace(step.row(), false).second)
            return; // and those above it are known as well
    }
}

} // namespace

QModelIndexList rowsInTreeOrder(const QItemSelection& ranges)
{
    Levels levels;
    for (const QItemSelectionRange& range : ranges) {
        const bool isNew = !levels.contains(range.parent());
        Level& level = levels[range.parent()];
        for (int row = range.top(); row <= range.bottom(); ++row)
            level.rows[row] = true;
        if (isNew)
            addParents(levels, range.parent());
    }

    struct Step {
        QModelIndex parent;
        const Level* level;
        std::map<int, bool>::const_iterator next;
    };
    QModelIndexList result;
    std::vector<Step> steps;
    const auto enter = [&](const QModelIndex& parent) {
        if (const auto level = levels.constFind(parent); level != levels.constEnd())
            steps.push_back({parent, &*level, level->rows.begin()});
    };
    enter(QModelIndex());
    const QAbstractItemModel* const model = ranges.isEmpty() ? nullptr : ranges.constFirst().model();
    while (model != nullptr && !steps.empty()) {
        Step& step = steps.back();
        if (step.next == step.level->rows.end()) {
            steps.pop_back();
            continue;
        }
        const QModelIndex index = model->index(step.next->first, 0, step.parent);
        if (step.next->second)
            result.append(index);
        ++step.next;
        enter(index);
    }
    return result;
}

} // namespace orvane
