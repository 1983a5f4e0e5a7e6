#include "meridane/scene/fields/NxFieldData.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldContainer.h"

#include <utility>

namespace {

// The offset of a field in its container. Both are parts of one object, but not of one array.
std::ptrdiff_t offsetOf(const NxFieldContainer* container, const NxField* field)
{
    return reinterpret_cast<const char*>(field) - reinterpret_cast<const char*>(container);
}

} // namespace

constinit thread_local NxFieldData* NxFieldData::s_collector = nullptr;

/// Makes a description the collecting one until the end of the scope, even if making the instance fails.
class NxFieldData::Collecting {
public:
    explicit Collecting(NxFieldData* data)
        : m_outer(std::exchange(s_collector, data))
    {
    }
    ~Collecting() { s_collector = m_outer; }
    Collecting(const Collecting&) = delete;
    Collecting& operator=(const Collecting&) = delete;

private:
    NxFieldData* m_outer;
};

NxFieldData::NxFieldData(NxFieldContainer* (*create)(), std::string_view description)
    : m_description(description)
{
    const Collecting collecting(this);
    m_prototype = create();
    // Making the instance may make other containers, before it and inside it; their fields aren't collected.
    std::erase_if(m_fields, [this](const Entry& entry) { return entry.container != m_prototype; });
    m_prototype->ref();
}

NxFieldData::~NxFieldData()
{
    m_prototype->unref();
}

void NxFieldData::collectContainer(const NxFieldContainer* container)
{
    // The object that was here before is destroyed.
    if (s_collector != nullptr)
        std::erase_if(s_collector->m_fields, [&](const Entry& entry) { return entry.container == container; });
}

void NxFieldData::collectField(
    const NxFieldContainer* container, const NxField* field, meridane::FieldDeclaration declaration)
{
    if (container == nullptr)
        return;
    // Members are made while the container is an instance of the class that declares them.
    s_collector->m_fields.push_back({VbName(declaration.name()), offsetOf(container, field), container,
        container->getTypeId(), declaration.facts()});
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
    // The container is const here, but its field isn't: the caller edits it.
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

const NxFieldFacts& NxFieldData::getFacts(int index) const
{
    static constexpr NxFieldFacts none;
    return index < 0 || index >= getNumFields() ? none : m_fields[static_cast<std::size_t>(index)].facts;
}

NxType NxFieldData::getDeclaringType(int index) const
{
    return index < 0 || index >= getNumFields() ? NxType() : m_fields[static_cast<std::size_t>(index)].declaringType;
}

namespace meridane {

const NxFieldFacts& factsOf(const NxField& field)
{
    static constexpr NxFieldFacts none;
    NxFieldContainer* const container = field.getContainer();
    if (container == nullptr)
        return none;
    const NxFieldData* const data = container->getFieldData();
    return data->getFacts(data->getIndex(container, &field));
}

} // namespace meridane
