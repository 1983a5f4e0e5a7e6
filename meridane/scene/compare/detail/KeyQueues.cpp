#include "meridane/scene/compare/detail/KeyQueues.h"

#include <bit>

namespace meridane {

void KeyQueues::start(std::size_t count)
{
    m_queues.clear();
    m_queues.resize(std::bit_ceil(2 * count + 1));
    m_entries.clear();
    m_entries.reserve(count);
}

void KeyQueues::add(std::uint64_t key, std::uint32_t number)
{
    const auto entry = static_cast<std::uint32_t>(m_entries.size());
    m_entries.push_back({number, none});
    Queue& queue = m_queues[slotOf(key)];
    if (queue.first == none)
        queue = {key, entry, entry};
    else
        m_entries[queue.last].next = entry;
    queue.last = entry;
}

std::uint32_t KeyQueues::takeFirst(std::uint64_t key)
{
    if (m_queues.empty())
        return none;
    Queue& queue = m_queues[slotOf(key)];
    if (queue.last == none)
        return none;
    const Entry entry = m_entries[queue.first];
    if (entry.next == none)
        queue.last = none; // the slot stays taken, so that the keys behind it are still found
    else
        queue.first = entry.next;
    return entry.number;
}

std::uint32_t KeyQueues::onlyOne(std::uint64_t key) const
{
    if (m_queues.empty())
        return none;
    const Queue& queue = m_queues[slotOf(key)];
    return queue.last != none && queue.first == queue.last ? m_entries[queue.first].number : none;
}

// The slot of that key, or the free slot for it.
std::size_t KeyQueues::slotOf(std::uint64_t key) const
{
    constexpr std::uint64_t spread = 0x9E3779B97F4A7C15U;
    constexpr unsigned int upperHalf = 32;
    const std::size_t mask = m_queues.size() - 1;
    std::size_t slot = ((key * spread) >> upperHalf) & mask;
    while (m_queues[slot].first != none && m_queues[slot].key != key)
        slot = (slot + 1) & mask;
    return slot;
}

} // namespace meridane
