#include "orvane/app/tree/TreeState.h"

#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"

#include <QTreeView>

TreeState::TreeState(SceneTreePanel& tree, OrvServices& services)
    : m_tree(&tree)
    , m_services(&services)
    , m_node(tree.selectedNode())
{
    for (const QModelIndex& index : tree.model()->fetchedIndexes()) {
        if (tree.view()->isExpanded(index))
            m_unfolded.push_back({index, pathOf(index)});
    }
    if (!m_node)
        return;
    if (const QModelIndexList rows = tree.selection().indexes(); rows.size() > 1 && rows.size() <= mostSelected) {
        for (const QModelIndex& index : rows)
            m_selected.push_back({index, pathOf(index)});
    }
    m_path = pathOf(tree.selected());
    const NxField* const field = services.getSelectedField();
    if (field != nullptr && field->getContainer() == m_node.get())
        m_field = m_node->getFieldName(field);
}

void TreeState::restore()
{
    for (const Row& row : m_unfolded) {
        if (!row.index.isValid())
            m_tree->view()->expand(find(row.path));
    }
    if (m_path.empty())
        return;
    const bool isLastThere = m_tree->selectedNode() == m_node.get();
    const QModelIndex index = isLastThere ? m_tree->selected() : findLast();
    QModelIndexList rows;
    for (const Row& row : m_selected) {
        if (const QModelIndex again = row.index.isValid() ? QModelIndex(row.index) : find(row.path); again.isValid())
            rows.append(again);
    }
    if (rows.size() > 1 && rows != m_tree->selection().indexes())
        m_tree->selection().selectIndexes(rows, index);
    else if (!isLastThere && index.isValid())
        m_tree->select(index);
    if (isLastThere || !index.isValid())
        return;
    NxNode* const node = m_tree->model()->node(index);
    NxField* const field = m_field.isEmpty() ? nullptr : node->getField(m_field);
    // The selection may be locked on another node.
    if (field != nullptr && m_services->getSelectedNode() == node)
        m_services->selectField(field);
}

QModelIndex TreeState::findLast() const
{
    const QModelIndex index = m_tree->model()->findNode(m_node.get());
    return index.isValid() ? index : find(m_path);
}

std::string TreeState::pathOf(const QModelIndex& index) const
{
    const SceneTreeModel* const model = m_tree->model();
    const std::vector<NxNode*> nodes = model->path(index);
    return nodes.empty() ? std::string() : NxScenePath::toText(model->scene(), nodes);
}

QModelIndex TreeState::find(const std::string& path) const
{
    SceneTreeModel* const model = m_tree->model();
    if (model->scene() == nullptr)
        return {};
    const NxScenePath::Target target = NxScenePath::find(model->scene(), path);
    return target.nodes.empty() ? QModelIndex() : model->indexOfPath(target.nodes);
}
