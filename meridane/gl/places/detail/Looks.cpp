#include "meridane/gl/places/detail/Looks.h"

#include "meridane/gl/places/detail/NodeRecords.h"

namespace meridane {

Id Looks::use(const Look& look)
{
    const auto [place, isNew] = m_ids.try_emplace(look, noId);
    if (isNew) {
        place->second = m_slots.add({look, 0});
        for (NodeRecord* record : look.records()) {
            if (record != nullptr)
                NodeRecords::retain(*record);
        }
    }
    ++m_slots[place->second].uses;
    return place->second;
}

void Looks::release(Id id)
{
    if (--m_slots[id].uses != 0)
        return;
    const Look look = m_slots[id].look;
    for (NodeRecord* record : look.records()) {
        if (record != nullptr)
            m_records.release(*record);
    }
    m_ids.erase(look);
    m_slots.remove(id);
}

std::size_t Looks::bytes() const noexcept
{
    // A node of the map also has three links, a colour and the value.
    return m_slots.bytes() + m_ids.size() * (sizeof(Look) + 5 * sizeof(void*));
}

} // namespace meridane
