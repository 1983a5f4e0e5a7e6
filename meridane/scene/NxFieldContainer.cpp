#include "meridane/scene/NxFieldContainer.h"

#include "meridane/base/VbName.h"
#include "meridane/scene/NxField.h"
#include "meridane/scene/NxFieldData.h"
#include "meridane/scene/NxNodeSensor.h"

#include <utility>

NxType NxFieldContainer::getClassTypeId()
{
    static const NxType type = NxType::registerClass("FieldContainer", NxTypedObject::getClassTypeId(), nullptr);
    return type;
}

NxFieldContainer::NxFieldContainer()
{
    NxFieldData::collectContainer(this);
}

NxFieldContainer::~NxFieldContainer()
{
    m_sensors.dyingReference();
}

void NxFieldContainer::unref() const
{
    if (--m_references <= 0)
        delete this;
}

void NxFieldContainer::setName(const VbString& name)
{
    m_name = name;
    touch();
}

NxField* NxFieldContainer::getField(const VbName& name)
{
    const NxFieldData* const data = getFieldData();
    return data->getField(this, data->getIndex(name));
}

VbName NxFieldContainer::getFieldName(const NxField* field) const
{
    if (field == nullptr || field->getContainer() != this)
        return {};
    const NxFieldData* const data = field->getContainer()->getFieldData();
    return data->getFieldName(data->getIndex(this, field));
}

std::vector<NxField*> NxFieldContainer::getFields()
{
    const NxFieldData* const data = getFieldData();
    std::vector<NxField*> fields;
    fields.reserve(static_cast<std::size_t>(data->getNumFields()));
    for (int i = 0; i < data->getNumFields(); ++i)
        fields.push_back(data->getField(this, i));
    return fields;
}

void NxFieldContainer::addUnknownField(UnknownField field)
{
    if (!m_unknownFields)
        m_unknownFields = std::make_unique<std::vector<UnknownField>>();
    m_unknownFields->push_back(std::move(field));
}

const std::vector<NxFieldContainer::UnknownField>& NxFieldContainer::getUnknownFields() const noexcept
{
    static const std::vector<UnknownField> none;
    return m_unknownFields ? *m_unknownFields : none;
}

void NxFieldContainer::touch()
{
    m_sensors.notify();
}
