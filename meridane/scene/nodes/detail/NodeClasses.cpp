#include "meridane/scene/nodes/detail/NodeClasses.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

namespace meridane {

NodeClass::NodeClass(std::string_view name)
    : m_name(name)
    , m_type(NxType::fromName(VbName(m_name.c_str())))
{
    if (!m_type.isDerivedFrom(NxNode::getClassTypeId()) || !m_type.canCreateInstance())
        m_type = NxUnknownNode::getClassTypeId();
    m_standIn = m_type.isDerivedFrom(NxUnknownNode::getClassTypeId());
    m_group = m_type.isDerivedFrom(NxGroup::getClassTypeId());
    m_data = create()->getFieldData();
    for (int i = 0; i < m_data->getNumFields(); ++i)
        m_fieldNames.emplace_back(m_data->getFieldName(i).getString());
}

NxRef<NxNode> NodeClass::create() const
{
    auto* const node = static_cast<NxNode*>(static_cast<NxTypedObject*>(m_type.createInstance(nullptr)));
    NxRef<NxNode> result(node);
    if (m_standIn)
        static_cast<NxUnknownNode*>(node)->setClassName(m_name);
    return result;
}

int NodeClass::findField(std::string_view name, std::size_t hint) const noexcept
{
    const std::size_t count = m_fieldNames.size();
    for (std::size_t step = 0; step < count; ++step) {
        const std::size_t index = hint + step < count ? hint + step : hint + step - count;
        if (m_fieldNames[index] == name)
            return static_cast<int>(index);
    }
    return -1;
}

NxField* NodeClass::field(const NxNode& node, std::size_t index) const
{
    return m_data->getField(&node, static_cast<int>(index));
}

const NodeClass& NodeClasses::find(std::string_view name)
{
    // Consecutive nodes often have the same class.
    if (m_latest != nullptr && m_latest->name() == name)
        return *m_latest;
    const auto place = m_classes.find(name);
    m_latest
        = &(place != m_classes.end() ? place->second : m_classes.try_emplace(std::string(name), name).first->second);
    return *m_latest;
}

} // namespace meridane
