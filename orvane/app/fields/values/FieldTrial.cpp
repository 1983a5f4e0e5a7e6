#include "orvane/app/fields/values/FieldTrial.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"

FieldTrial::FieldTrial(const NxField& original)
{
    NxFieldContainer* const node = original.getContainer();
    auto* const object = static_cast<NxTypedObject*>(node->getTypeId().createInstance(nullptr));
    m_node = NxRef<NxFieldContainer>(dynamic_cast<NxFieldContainer*>(object));
    if (!m_node)
        return;
    const NxFieldData* const data = node->getFieldData();
    m_field = data->getField(m_node.get(), data->getIndex(node, &original));
}
