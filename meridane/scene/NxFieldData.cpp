#include "meridane/scene/NxFieldData.h"

#include "meridane/scene/NxField.h"
#include "meridane/scene/NxFieldContainer.h"

#include <utility>

namespace {

// The class that is being described on this thread, and the instance that its fields belong to. The instance may make
// other containers, whose fields don't count; describing their classes nests.
struct Collector {
    NxFieldData* data = nullptr;
    const NxFieldContainer* container = nullptr;
};

constinit thread_local Collector collector;

// Where a field stands relative to its container. Both are parts of one object, but not as the language's arrays are.
std::ptrdiff_t offsetOf(const NxFieldContainer* container, const NxField* field)
{
    return reinterpret_cast<const char*>(field) - reinterpret_cast<const char*>(container);
}

} // namespace

NxFieldData::NxFieldData(NxFieldContainer* (*create)())
{
    const Collector outer = std::exchange(collector, Collector{this, nullptr});
    m_prototype = create();
    m_prototype->ref();
    collector = outer;
}

NxFieldData::~NxFieldData()
{
    m_prototype->unref();
}

void NxFieldData::collectContainer(NxFieldContainer* container)
{
    if (collector.data != nullptr && collector.container == nullptr)
        collector.container = container;
}

void NxFieldData::collectField(const NxFieldContainer* container, const NxField* field, const char* name)
{
    if (collector.data == nullptr || container == nullptr || container != collector.container)
        return;
    collector.data->m_fields.push_back({VbName(name), offsetOf(container, field)});
}

int NxFieldData::getIndex(const NxFieldContainer* container, const NxField* field) const
{
    if (container == nullptr || field == nullptr)
        return -1;
    const std::ptrdiff_t offset = offsetOf(container, field);
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (m_fields[i].offset == offset)
            return static_cast<int>(i);
    }
    return -1;
}

int NxFieldData::getIndex(const VbName& name) const
{
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (m_fields[i].name == name)
            return static_cast<int>(i);
    }
    return -1;
}

NxField* NxFieldData::getField(const NxFieldContainer* container, int index) const
{
    if (container == nullptr || index < 0 || index >= getNumFields())
        return nullptr;
    // The constness is the container's handle's, not the field's: whoever asks edits the field.
    auto* const start = reinterpret_cast<char*>(const_cast<NxFieldContainer*>(container));
    return reinterpret_cast<NxField*>(start + m_fields[static_cast<std::size_t>(index)].offset);
}

VbName NxFieldData::getFieldName(int index) const
{
    if (index < 0 || index >= getNumFields())
        return {};
    return m_fields[static_cast<std::size_t>(index)].name;
}

const NxField* NxFieldData::getDefault(int index) const
{
    return getField(m_prototype, index);
}
