#include "meridane/scene/fields/NxFieldData.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldContainer.h"

#include <utility>

namespace {

// The description that is being collected on this thread; collections may be nested. The library is loaded when the
// program starts, so its thread-local variables are accessed without a call. Every constructor of a field reads this
// one.
[[gnu::tls_model("initial-exec")]] constinit thread_local NxFieldData* collector = nullptr;

// Makes a description the collecting one until the end of the scope, even if making the instance fails.
class Collecting {
public:
    explicit Collecting(NxFieldData* data)
        : m_outer(std::exchange(collector, data))
    {
    }
    ~Collecting() { collector = m_outer; }
    Collecting(const Collecting&) = delete;
    Collecting& operator=(const Collecting&) = delete;

private:
    NxFieldData* m_outer;
};

// The offset of a field in its container. Both are parts of one object, but not of one array.
std::ptrdiff_t offsetOf(const NxFieldContainer* container, const NxField* field)
{
    return reinterpret_cast<const char*>(field) - reinterpret_cast<const char*>(container);
}

} // namespace

NxFieldData::NxFieldData(NxFieldContainer* (*create)())
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
    if (collector != nullptr)
        std::erase_if(collector->m_fields, [&](const Entry& entry) { return entry.container == container; });
}

void NxFieldData::collectField(const NxFieldContainer* container, const NxField* field, const char* name)
{
    if (collector != nullptr && container != nullptr)
        collector->m_fields.push_back({VbName(name), offsetOf(container, field), container});
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
