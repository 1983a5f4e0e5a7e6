#include "orvane/app/view/CameraFollower.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/nodes/NxCamera.h"

CameraFollower::CameraFollower(Look look)
    : m_look(std::move(look))
{
}

void CameraFollower::follow(const std::vector<NxNode*>& nodes)
{
    stop();
    if (nodes.empty() || dynamic_cast<NxCamera*>(nodes.back()) == nullptr)
        return;
    for (NxNode* node : nodes) {
        m_nodes.emplace_back(node);
        m_sensors.push_back(std::make_unique<NxNodeSensor>(&CameraFollower::changed, this));
        m_sensors.back()->attach(node);
    }
    look();
}

void CameraFollower::stop()
{
    m_sensors.clear();
    m_nodes.clear();
}

NxCamera* CameraFollower::camera() const noexcept
{
    return m_nodes.empty() ? nullptr : dynamic_cast<NxCamera*>(m_nodes.back().get());
}

void CameraFollower::changed(void* follower, NxSensor* /*sensor*/)
{
    static_cast<const CameraFollower*>(follower)->look();
}

NxViewpoint CameraFollower::viewpointOf(const std::vector<NxNode*>& nodes)
{
    meridane::Matrix4d cameraToScene;
    for (const NxNode* const node : nodes)
        cameraToScene = meridane::multiply(meridane::localTransformOf(*node), cameraToScene);
    return NxViewpoint::ofCamera(dynamic_cast<const NxCamera&>(*nodes.back()), cameraToScene);
}

void CameraFollower::look() const
{
    std::vector<NxNode*> nodes;
    for (const NxRef<NxNode>& node : m_nodes)
        nodes.push_back(node.get());
    m_look(viewpointOf(nodes));
}
