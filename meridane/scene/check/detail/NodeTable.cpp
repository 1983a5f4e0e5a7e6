#include "meridane/scene/check/detail/NodeTable.h"

#include <bit>
#include <utility>

namespace meridane {

std::uint64_t NodeTable::hashOf(const NxNode* node) noexcept
{
    // Fibonacci hashing: the upper bits depend on all bits of the address.
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;
    return std::bit_cast<std::uintptr_t>(node) * factor;
}

// The slot of the node, or the free one where it belongs. The shard has a free slot.
std::size_t NodeTable::Shard::indexOf(const NxNode* node, std::uint64_t hash) const noexcept
{
    const std::size_t mask = slots.size() - 1;
    std::size_t index = (hash >> 32U) & mask;
    while (slots[index].node != nullptr && slots[index].node != node)
        index = (index + 1) & mask;
    return index;
}

void NodeTable::Shard::grow()
{
    constexpr std::size_t firstSlots = 16;
    std::vector<Entry> old(slots.empty() ? firstSlots : 2 * slots.size());
    old.swap(slots);
    for (const Entry& entry : old) {
        if (entry.node != nullptr)
            slots[indexOf(entry.node, hashOf(entry.node))] = entry;
    }
}

NodeTable::Entry* NodeTable::find(const NxNode* node) noexcept
{
    const std::uint64_t hash = hashOf(node);
    Shard& shard = shardOf(hash);
    if (shard.used == 0)
        return nullptr;
    Entry& entry = shard.slots[shard.indexOf(node, hash)];
    return entry.node == nullptr ? nullptr : &entry;
}

const NodeTable::Entry* NodeTable::find(const NxNode* node) const noexcept
{
    return const_cast<NodeTable*>(this)->find(node); // NOLINT(cppcoreguidelines-pro-type-const-cast): changes nothing
}

NodeTable::Entry& NodeTable::insert(const NxNode* node)
{
    const std::uint64_t hash = hashOf(node);
    Shard& shard = shardOf(hash);
    if (4 * (shard.used + 1) > 3 * shard.slots.size())
        shard.grow();
    Entry& entry = shard.slots[shard.indexOf(node, hash)];
    if (entry.node == nullptr) {
        entry.node = node;
        ++shard.used;
        ++m_size;
    }
    return entry;
}

void NodeTable::remove(const NxNode* node) noexcept
{
    const std::uint64_t hash = hashOf(node);
    Shard& shard = shardOf(hash);
    if (shard.used == 0)
        return;
    std::size_t hole = shard.indexOf(node, hash);
    if (shard.slots[hole].node == nullptr)
        return;
    // Moves the entries behind it forward that would otherwise not be found.
    const std::size_t mask = shard.slots.size() - 1;
    for (std::size_t next = (hole + 1) & mask; shard.slots[next].node != nullptr; next = (next + 1) & mask) {
        const std::size_t wanted = (hashOf(shard.slots[next].node) >> 32U) & mask;
        if (((next - wanted) & mask) >= ((next - hole) & mask)) {
            shard.slots[hole] = shard.slots[next];
            hole = next;
        }
    }
    shard.slots[hole] = {};
    --shard.used;
    --m_size;
}

} // namespace meridane
