#include "orvane/app/view/ViewSelection.h"

#include "orvane/app/tree/HiddenNodes.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/RowLookup.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"

#include <QSet>

ViewSelection::ViewSelection(SceneView* view, SceneTreePanel* tree)
    : QObject(view)
    , m_view(view)
    , m_tree(tree)
{
    auto* const rectangle = new ViewRectangle(view);
    connect(rectangle, &ViewRectangle::drawn, this, &ViewSelection::change);
    connect(rectangle, &ViewRectangle::clicked, this,
        [this](const std::vector<NxNode*>& node) { m_tree->selection().toggle(m_tree->model()->indexOfPath(node)); });
    connect(tree, &SceneTreePanel::selectionChanged, this, &ViewSelection::outline);
    connect(&tree->hidden(), &HiddenNodes::changed, this,
        [this] { m_view->drawing().setVisibility(m_tree->hidden().visibility()); });
}

void ViewSelection::outline()
{
    std::vector<NxNode*> others;
    // The first node is the one selected last, which the view outlines by its path.
    if (const auto nodes = m_tree->selection().nodes(); nodes != nullptr && nodes->size() > 1) {
        for (std::size_t i = 1; i < nodes->size(); ++i)
            others.push_back(static_cast<NxNode*>((*nodes)[i].get()));
    }
    m_view->drawing().setOtherSelectedNodes(others);
}

void ViewSelection::change(const std::vector<std::vector<NxNode*>>& nodes, ViewRectangle::Change change)
{
    RowLookup lookup(*m_tree->model());
    QSet<QModelIndex> rows;
    for (const std::vector<NxNode*>& node : nodes) {
        if (const QModelIndex index = lookup.find(node); index.isValid())
            rows.insert(index);
    }
    if (rows.isEmpty())
        return;
    const QModelIndexList before = m_tree->selection().indexes();
    QModelIndexList after;
    for (const QModelIndex& index : before) {
        if (!rows.contains(index))
            after.append(index);
    }
    if (change == ViewRectangle::Change::TakeAway) {
        m_tree->selection().selectIndexes(after, m_tree->selected());
        return;
    }
    const QModelIndex last = before.contains(m_tree->selected()) ? m_tree->selected() : QModelIndex();
    after.append(QModelIndexList(rows.begin(), rows.end()));
    m_tree->selection().selectIndexes(after, last);
}
