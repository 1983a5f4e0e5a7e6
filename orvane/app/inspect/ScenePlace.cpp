#include "orvane/app/inspect/ScenePlace.h"

#include "orvane/app/scene/NodeSearch.h"

#include <algorithm>

ScenePlace::ScenePlace(std::span<NxNode* const> path, std::span<const int> rows)
    : m_node(std::make_unique<NxNodeSensor>([](void*, NxSensor*) {}, nullptr))
{
    for (std::size_t i = 0; i < path.size(); ++i)
        m_path.push_back({path[i], i < rows.size() ? static_cast<std::size_t>(rows[i]) : 0});
    m_node->attach(path.back());
}

NxNode* ScenePlace::node() const noexcept
{
    return static_cast<NxNode*>(m_node->getAttachedNode());
}

std::vector<NxNode*> ScenePlace::path(const NxNode& scene) const
{
    std::vector<NxNode*> result;
    if (node() == nullptr)
        return result;
    const NxNode* group = &scene;
    for (Step& step : m_path) {
        const auto children = group->getChildren();
        if (step.row >= children.size() || children[step.row] != step.node) {
            const auto place = std::find(children.begin(), children.end(), step.node);
            if (place == children.end())
                return {};
            step.row = static_cast<std::size_t>(place - children.begin());
        }
        group = children[step.row];
        result.push_back(children[step.row]);
    }
    return result;
}

std::vector<int> ScenePlace::rows(const NxNode& scene) const
{
    std::vector<int> result;
    if (path(scene).empty())
        return result;
    for (const Step& step : m_path)
        result.push_back(static_cast<int>(step.row));
    return result;
}

std::vector<NxNode*> ScenePlace::find(const NxNode& scene) const
{
    std::vector<NxNode*> result = path(scene);
    return result.empty() && node() != nullptr ? orvane::findPath(&scene, node()) : result;
}
