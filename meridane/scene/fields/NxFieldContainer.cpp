#include "meridane/scene/fields/NxFieldContainer.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/ChangeRecorder.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/fields/detail/NameRecord.h"

#include <utility>

std::uint64_t NxFieldContainer::s_structureRevision = 0;

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
    if (m_recorderNumber != 0 && meridane::ChangeRecorder::attached() != nullptr)
        meridane::ChangeRecorder::attached()->forget(*this);
    if (m_rare)
        m_rare->sensors.dyingReference();
}

void NxFieldContainer::unref() const
{
    if (--m_references <= 0)
        delete this;
}

void NxFieldContainer::setName(const VbString& name)
{
    if (m_isNameRecorded == 0) {
        if (meridane::ChangeRecorder* const recorder = meridane::ChangeRecorder::of(this)) {
            recorder->add(std::make_unique<meridane::NameRecord>(*this));
            m_isNameRecorded = 1;
        }
    }
    m_name = name;
    noteStructureChange();
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
    rare().unknownFields.push_back(std::move(field));
}

const std::vector<NxFieldContainer::UnknownField>& NxFieldContainer::getUnknownFields() const noexcept
{
    static const std::vector<UnknownField> none;
    return m_rare ? m_rare->unknownFields : none;
}

void NxFieldContainer::touch()
{
    if (m_rare)
        m_rare->sensors.notify();
}

NxFieldContainer::Rare& NxFieldContainer::rare()
{
    if (!m_rare)
        m_rare = std::make_unique<Rare>();
    return *m_rare;
}
