#include "orvane/app/tree/NodeSelection.h"

#include "orvane/app/tree/RowGroups.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreeView.h"
#include "orvane/app/tree/WantedRows.h"
#include "orvane/app/tree/selection/RowOrder.h"
#include "orvane/app/tree/selection/RowSelection.h"

#include <unordered_set>
#include <utility>

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
    selectRanges(rows.ranges(), rows.firstNode());
}

qsizetype NodeSelection::rowCount() const
{
    qsizetype count = 0;
    for (const QItemSelectionRange& range : m_view->rowSelection()->allRanges())
        count += range.height();
    return count;
}

const QItemSelection& NodeSelection::ranges() const
{
    return m_view->rowSelection()->allRanges();
}

QModelIndexList NodeSelection::indexes() const
{
    return orvane::rowsInTreeOrder(m_view->rowSelection()->allRanges());
}

void NodeSelection::selectIndexes(const QModelIndexList& indexes, const QModelIndex& last)
{
    RowGroups rows;
    QModelIndex current;
    for (const QModelIndex& index : indexes) {
        if (index.model() != m_model)
            continue;
        const QModelIndex row = index.siblingAtColumn(SceneTreeModel::NameColumn);
        rows.add(row.parent(), row.row());
        if (!current.isValid() || row == last)
            current = row;
    }
    selectRanges(orvane::rangesOf(*m_model, rows.take()), current);
}

void NodeSelection::selectRanges(const QItemSelection& ranges, const QModelIndex& last)
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
