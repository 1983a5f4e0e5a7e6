#include "orvane/app/view/handles/HandleTargets.h"

#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"

#include <algorithm>
#include <unordered_set>

using namespace meridane;

namespace {

bool beginsWith(const std::vector<NxNode*>& path, const HandleTargets::Path& start)
{
    return path.size() >= start.size()
        && std::equal(start.begin(), start.end(), path.begin(),
            [](const NxRef<NxNode>& left, const NxNode* right) { return left.get() == right; });
}

NodePlacement placementOf(const HandleTargets::Path& path)
{
    Matrix4d parentToScene;
    for (std::size_t i = 0; i + 1 < path.size(); ++i)
        parentToScene = multiply(localTransformOf(*path[i]), parentToScene);
    return {*path.back(), parentToScene};
}

} // namespace

void HandleTargets::collect()
{
    m_paths.clear();
    m_last = 0;
    const QModelIndex selected = m_tree->selected();
    const std::vector<NxNode*> lastPath = m_tree->model()->path(selected);
    std::unordered_set<const NxNode*> known;
    for (const QModelIndex& index : m_tree->selection().indexes()) {
        const std::vector<NxNode*> path = m_tree->model()->path(index);
        // In the order of the tree, what is below a node follows it.
        const bool isBelow = !m_paths.empty() && beginsWith(path, m_paths.back());
        if (path.empty() || (!isBelow && !known.insert(path.back()).second))
            continue;
        if (!isBelow)
            m_paths.emplace_back(path.begin(), path.end());
        if (path == lastPath)
            m_last = m_paths.size() - 1;
    }
}

const HandleTargets::Path* HandleTargets::leading(Kind kind) const
{
    if (m_paths.empty())
        return nullptr;
    if (NodePlacement::can(*last().back(), kind))
        return &last();
    const auto found = std::find_if(
        m_paths.begin(), m_paths.end(), [kind](const Path& path) { return NodePlacement::can(*path.back(), kind); });
    return found == m_paths.end() ? nullptr : &*found;
}

std::vector<NodePlacement> HandleTargets::placements(Kind kind) const
{
    std::vector<NodePlacement> placements;
    const Path* const first = leading(kind);
    if (first == nullptr)
        return placements;
    placements.push_back(placementOf(*first));
    for (const Path& path : m_paths) {
        // A lamp that can't be turned itself goes round with the others.
        const bool follows = NodePlacement::can(*path.back(), kind) || NodePlacement::can(*path.back(), Kind::Move);
        if (&path != first && follows)
            placements.push_back(placementOf(path));
    }
    return placements;
}

std::optional<HandleFrame> HandleTargets::frame(Kind kind, HandleAxes axes) const
{
    const Path* const path = leading(kind);
    if (path == nullptr)
        return {};
    const NodePlacement placement = placementOf(*path);
    HandleFrame frame{placement.pivot()};
    // The factors of a transform are along its own axes.
    const bool isFree = kind != Kind::Scale || std::all_of(m_paths.begin(), m_paths.end(), [](const Path& target) {
        return dynamic_cast<const NxMatrixTransform*>(target.back().get()) != nullptr;
    });
    if (axes == HandleAxes::Own || !isFree)
        frame.axes = placement.ownAxes();
    else if (axes == HandleAxes::Parent)
        frame.axes = placement.parentAxes();
    return frame;
}
