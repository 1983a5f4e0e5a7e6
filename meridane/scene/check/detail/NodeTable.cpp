#include "meridane/scene/check/detail/NodeTable.h"

namespace meridane {
namespace {

constexpr unsigned int regionBits = 16;

std::uintptr_t keyOf(const NxNode* node) noexcept
{
    return reinterpret_cast<std::uintptr_t>(node) >> regionBits;
}

} // namespace

// In proportion to the place of the node in the region.
std::size_t NodeTable::Region::homeOf(const NxNode* node) const noexcept
{
    constexpr std::uintptr_t mask = (std::uintptr_t{1} << regionBits) - 1;
    return ((reinterpret_cast<std::uintptr_t>(node) & mask) * slots.size()) >> regionBits;
}

// The slot of the node, or the free one where it belongs. The region has a free slot.
std::size_t NodeTable::Region::indexOf(const NxNode* node) const noexcept
{
    const std::size_t mask = slots.size() - 1;
    std::size_t index = homeOf(node);
    while (slots[index].node != nullptr && slots[index].node != node)
        index = (index + 1) & mask;
    return index;
}

void NodeTable::Region::grow()
{
    constexpr std::size_t firstSlots = 8;
    std::vector<Entry> old(slots.empty() ? firstSlots : 2 * slots.size());
    old.swap(slots);
    for (const Entry& entry : old) {
        if (entry.node != nullptr)
            slots[indexOf(entry.node)] = entry;
    }
}

NodeTable::Region* NodeTable::regionOf(const NxNode* node) noexcept
{
    const std::uintptr_t key = keyOf(node);
    if (m_latest != nullptr && key == m_latestKey)
        return m_latest;
    const auto found = m_regions.find(key);
    if (found == m_regions.end())
        return nullptr;
    m_latestKey = key;
    m_latest = &found->second;
    return m_latest;
}

NodeTable::Entry* NodeTable::find(const NxNode* node) noexcept
{
    Region* const region = regionOf(node);
    if (region == nullptr || region->used == 0)
        return nullptr;
    Entry& entry = region->slots[region->indexOf(node)];
    return entry.node == nullptr ? nullptr : &entry;
}

const NodeTable::Entry* NodeTable::find(const NxNode* node) const noexcept
{
    return const_cast<NodeTable*>(this)->find(node); // NOLINT(cppcoreguidelines-pro-type-const-cast): changes nothing
}

NodeTable::Entry& NodeTable::insert(const NxNode* node)
{
    Region* region = regionOf(node);
    if (region == nullptr) // elements of the map stay where they are
        region = &m_regions[keyOf(node)];
    if (2 * (region->used + 1) > region->slots.size())
        region->grow();
    Entry& entry = region->slots[region->indexOf(node)];
    if (entry.node == nullptr) {
        entry.node = node;
        ++region->used;
        ++m_size;
    }
    return entry;
}

void NodeTable::remove(const NxNode* node) noexcept
{
    Region* const region = regionOf(node);
    if (region == nullptr || region->used == 0)
        return;
    std::vector<Entry>& slots = region->slots;
    std::size_t hole = region->indexOf(node);
    if (slots[hole].node == nullptr)
        return;
    // Moves the entries behind it forward that would otherwise not be found.
    const std::size_t mask = slots.size() - 1;
    for (std::size_t next = (hole + 1) & mask; slots[next].node != nullptr; next = (next + 1) & mask) {
        const std::size_t wanted = region->homeOf(slots[next].node);
        if (((next - wanted) & mask) >= ((next - hole) & mask)) {
            slots[hole] = slots[next];
            hole = next;
        }
    }
    slots[hole] = {};
    --region->used;
    --m_size;
}

} // namespace meridane
