#pragma once

#include "meridane/gl/places/detail/NodeRecord.h"

#include <utility>
#include <vector>

namespace meridane {

/// Entries with small numbers, which are reused after an entry is removed.
template <typename Entry>
class SlotTable {
public:
    Id add(Entry entry)
    {
        if (m_free.empty()) {
            m_entries.push_back(std::move(entry));
            return static_cast<Id>(m_entries.size() - 1);
        }
        const Id id = m_free.back();
        m_free.pop_back();
        m_entries[id] = std::move(entry);
        return id;
    }
    void remove(Id id)
    {
        m_entries[id] = Entry();
        m_free.push_back(id);
    }

    [[nodiscard]] Entry& operator[](Id id) noexcept { return m_entries[id]; }
    [[nodiscard]] const Entry& operator[](Id id) const noexcept { return m_entries[id]; }
    /// The number of entries in use.
    [[nodiscard]] std::size_t count() const noexcept { return m_entries.size() - m_free.size(); }
    [[nodiscard]] std::size_t bytes() const noexcept
    {
        return m_entries.capacity() * sizeof(Entry) + m_free.capacity() * sizeof(Id);
    }

private:
    std::vector<Entry> m_entries;
    std::vector<Id> m_free;
};

} // namespace meridane
