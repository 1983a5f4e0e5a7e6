#include "orvane/app/inspect/ScenePlace.h"

#include "orvane/app/scene/NodeSearch.h"

#include <algorithm>

ScenePlace::ScenePlace(std::span<NxNode* const> path)
    : m_node(std::make_unique<NxNodeSensor>([](void*, NxSensor*) {}, nullptr))
    , m_path(path.begin(), path.end())
{
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
    for (const NxNode* const step : m_path) {
        const auto children = group->getChildren();
        const auto place = std::find(children.begin(), children.end(), step);
        if (place == children.end())
            return {};
        result.push_back(*place);
        group = *place;
    }
    return result;
}

std::vector<NxNode*> ScenePlace::find(const NxNode& scene) const
{
    std::vector<NxNode*> result = path(scene);
    return result.empty() && node() != nullptr ? orvane::findPath(&scene, node()) : result;
}
