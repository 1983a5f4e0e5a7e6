#include "orvane/app/tree/NodeSelection.h"

#include "orvane/app/tree/RowLookup.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/selection/RowOrder.h"

#include "meridane/scene/nodes/NodeTraversal.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <QSignalBlocker>

#include <algorithm>
#include <unordered_map>
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

NodeSelection::NodeSelection(QAbstractItemView* view, SceneTreeModel* model)
    : QObject(view)
    , m_view(view)
    , m_model(model)
{
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &NodeSelection::forget);
    connect(model, &QAbstractItemModel::modelReset, this, [this] {
        if (m_hasAny) // the view's selection is empty now, which it doesn't announce
            forget();
    });
}

void NodeSelection::forget()
{
    m_nodes.reset();
    m_hasAny = m_view->selectionModel()->hasSelection();
    Q_EMIT changed();
}

QModelIndex NodeSelection::lastIndex() const
{
    const QItemSelectionModel& selection = *m_view->selectionModel();
    if (!selection.hasSelection())
        return {};
    const QModelIndex current = selection.currentIndex();
    if (current.isValid() && selection.isSelected(current))
        return current.siblingAtColumn(SceneTreeModel::NameColumn);
    const QItemSelectionRange range = selection.selection().constLast();
    return m_model->index(range.bottom(), SceneTreeModel::NameColumn, range.parent());
}

std::shared_ptr<const NodeSelection::Nodes> NodeSelection::nodes() const
{
    if (m_nodes || !m_view->selectionModel()->hasSelection())
        return m_nodes;
    auto nodes = std::make_shared<Nodes>();
    std::unordered_set<const NxNode*> known;
    const auto add = [&](const QModelIndex& index) {
        NxNode* const node = m_model->node(index);
        if (node != nullptr && known.insert(node).second)
            nodes->emplace_back(node);
    };
    add(lastIndex());
    const QItemSelection selection = m_view->selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            add(m_model->index(row, SceneTreeModel::NameColumn, range.parent()));
    }
    if (!nodes->empty())
        m_nodes = std::move(nodes);
    return m_nodes;
}

void NodeSelection::select(std::span<NxNode* const> nodes)
{
    if (m_model->scene() == nullptr)
        return;
    std::unordered_set<const NxNode*> wanted(nodes.begin(), nodes.end());
    std::vector<QModelIndexList> indexes; // of each group in which there are any
    std::unordered_map<const NxNode*, std::size_t> groups; // where in `indexes`
    QModelIndex last;
    RowLookup lookup(*m_model);
    meridane::NodeTraversal traversal(*m_model->scene());
    while (!wanted.empty()) {
        const NxNode* const node = traversal.next();
        if (node == nullptr)
            break;
        if (wanted.erase(node) == 0)
            continue;
        const std::vector<NxNode*> path = traversal.path();
        const auto [group, isNew]
            = groups.try_emplace(path.size() > 1 ? path[path.size() - 2] : nullptr, indexes.size());
        // Each search for a path goes through all siblings, so there is one for each group.
        if (isNew)
            indexes.push_back({lookup.find(path)});
        else
            indexes[group->second] += indexes[group->second].front().siblingAtRow(traversal.indices().back());
        if (node == nodes.front())
            last = indexes[group->second].back();
    }
    QItemSelection ranges;
    for (const QModelIndexList& group : indexes)
        addRanges(ranges, group);
    setRanges(ranges, last);
}

qsizetype NodeSelection::rowCount() const
{
    qsizetype count = 0;
    const QItemSelection selection = m_view->selectionModel()->selection();
    for (const QItemSelectionRange& range : selection)
        count += range.height();
    return count;
}

QModelIndexList NodeSelection::indexes() const
{
    return orvane::rowsInTreeOrder(m_view->selectionModel()->selection());
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
    QItemSelectionModel& selection = *m_view->selectionModel();
    if (last.isValid()) {
        selection.setCurrentIndex(last, QItemSelectionModel::NoUpdate);
        m_view->scrollTo(last);
    }
    {
        // The view looks for the place of each range, which takes time in proportion to all rows.
        const QSignalBlocker blocker(&selection);
        selection.clearSelection(); // a change of many ranges to many others takes long
        selection.select(ranges, QItemSelectionModel::Select);
    }
    m_view->viewport()->update();
    forget();
}

void NodeSelection::toggle(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    QItemSelectionModel& selection = *m_view->selectionModel();
    selection.setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_view->scrollTo(index);
    selection.select(index, QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
}
