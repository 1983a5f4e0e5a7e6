#include "meridane/gl/places/detail/NodeRecord.h"

#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxLight.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

namespace meridane {

NodeKind kindOf(const NxNode& node)
{
    const NxType type = node.getTypeId();
    if (type.isDerivedFrom(NxGroup::getClassTypeId()))
        return NodeKind::Group;
    if (type.isDerivedFrom(NxMesh::getClassTypeId()))
        return NodeKind::Mesh;
    if (type.isDerivedFrom(NxMaterial::getClassTypeId()))
        return NodeKind::Material;
    if (type.isDerivedFrom(NxTexture::getClassTypeId()))
        return NodeKind::Texture;
    if (type.isDerivedFrom(NxComplexity::getClassTypeId()))
        return NodeKind::Complexity;
    return type.isDerivedFrom(NxLight::getClassTypeId()) ? NodeKind::Light : NodeKind::Other;
}

NodeRecord::NodeRecord(NxNode& node, NodeKind kind, NodeRecordListener& listener)
    : NxNodeSensor(&changed, nullptr)
    , m_node(&node)
    , m_listener(&listener)
    , m_kind(kind)
{
    attach(&node);
}

void NodeRecord::notify()
{
    if (!isPending)
        m_listener->nodeTouched(*this);
    NxNodeSensor::notify();
}

void NodeRecord::dyingReference()
{
    detach();
    m_listener->nodeDied(*this);
    m_node = nullptr;
}

void NodeRecord::changed(void* /*data*/, NxSensor* sensor)
{
    auto& record = *static_cast<NodeRecord*>(sensor);
    record.m_listener->nodeChanged(record);
}

} // namespace meridane
