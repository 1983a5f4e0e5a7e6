#include "orvane/app/tree/NodeSelection.h"

#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreeView.h"
#include "orvane/app/tree/WantedRows.h"
#include "orvane/app/tree/selection/RowOrder.h"
#include "orvane/app/tree/selection/RowSelection.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace {

/// Adds rows of one group, from the top down. Rows that follow each other are one range, since each range costs time
/// whenever one is looked for.
void addRanges(QItemSelection& ranges, const QModelIndexList& indexes)
{
    for (qsizetype first = 0; first < indexes.size();) {
        qsizetype last = first;
        while (last + 1 < indexes.size() && indexes[last + 1].row() == indexes[last].row() + 1)
            ++last;
        ranges.select(indexes[first], indexes[last].siblingAtColumn(SceneTreeModel::ColumnCount - 1));
        first = last + 1;
    }
}

} // namespace

NodeSelection::NodeSelection(SceneTreeView* view, SceneTreeModel* model)
    : QObject(view)
    , m_view(view)
    , m_model(model)
{
    connect(view->rowSelection(), &RowSelection::changed, this, &NodeSelection::forget);
    connect(model, &QAbstractItemModel::modelReset, this, [this] {
        if (m_hasAny) // the view's selection is empty now, which it doesn't announce
            forget();
    });
}

void NodeSelection::forget()
{
    m_nodes.reset();
    m_hasAny = m_view->rowSelection()->hasAny();
    Q_EMIT changed();
}

QModelIndex NodeSelection::lastIndex() const
{
    const RowSelection& selection = *m_view->rowSelection();
    if (!selection.hasAny())
        return {};
    const QModelIndex current = selection.currentIndex();
    if (selection.contains(current))
        return current.siblingAtColumn(SceneTreeModel::NameColumn);
    const QItemSelectionRange& range = selection.allRanges().constLast();
    return m_model->index(range.bottom(), SceneTreeModel::NameColumn, range.parent());
}

std::shared_ptr<const NodeSelection::Nodes> NodeSelection::nodes() const
{
    if (m_nodes || !m_view->rowSelection()->hasAny())
        return m_nodes;
    auto nodes = std::make_shared<Nodes>();
    std::unordered_set<const NxNode*> known;
    const auto add = [&](const QModelIndex& index) {
        NxNode* const node = m_model->node(index);
        if (node != nullptr && known.insert(node).second)
            nodes->emplace_back(node);
    };
    add(lastIndex());
    for (const QItemSelectionRange& range : m_view->rowSelection()->allRanges()) {
        const QModelIndex first = range.topLeft();
        for (int row = range.top(); row <= range.bottom(); ++row)
            add(first.siblingAtRow(row));
    }
    if (!nodes->empty())
        m_nodes = std::move(nodes);
    return m_nodes;
}

void NodeSelection::select(std::span<NxNode* const> nodes)
{
    if (m_model->scene() == nullptr)
        return;
    const WantedRows rows(*m_model, nodes);
    setRanges(rows.ranges(), rows.firstNode());
}

qsizetype NodeSelection::rowCount() const
{
    qsizetype count = 0;
    for (const QItemSelectionRange& range : m_view->rowSelection()->allRanges())
        count += range.height();
    return count;
}

QModelIndexList NodeSelection::indexes() const
{
    return orvane::rowsInTreeOrder(m_view->rowSelection()->allRanges());
}

void NodeSelection::selectIndexes(const QModelIndexList& indexes, const QModelIndex& last)
{
    QHash<QModelIndex, std::size_t> groups; // where in `rows`
    std::vector<QModelIndexList> rows; // of each group
    QModelIndex current;
    for (const QModelIndex& index : indexes) {
        if (index.model() != m_model)
            continue;
        const QModelIndex row = index.siblingAtColumn(SceneTreeModel::NameColumn);
        const QModelIndex parent = row.parent();
        const auto known = groups.constFind(parent);
        const std::size_t group = known != groups.constEnd() ? *known : rows.size();
        if (group == rows.size()) {
            groups.insert(parent, group);
            rows.emplace_back();
        }
        rows[group].append(row);
        if (!current.isValid() || row == last)
            current = row;
    }
    QItemSelection ranges;
    for (QModelIndexList& group : rows) {
        std::sort(group.begin(), group.end()); // siblings, so by their rows
        group.erase(std::unique(group.begin(), group.end()), group.end());
        addRanges(ranges, group);
    }
    setRanges(ranges, current);
}

void NodeSelection::setRanges(const QItemSelection& ranges, const QModelIndex& last)
{
    RowSelection& selection = *m_view->rowSelection();
    if (last.isValid()) {
        selection.setCurrentIndex(last, QItemSelectionModel::NoUpdate);
        m_view->scrollTo(last);
    }
    selection.setRanges(ranges);
}

void NodeSelection::toggle(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    RowSelection& selection = *m_view->rowSelection();
    selection.setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_view->scrollTo(index);
    selection.select(index, QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
}
