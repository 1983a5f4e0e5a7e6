#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

class NxNode;

namespace meridane {

/// Entries for the nodes of a scene by their addresses. It is divided by regions of the memory, so that no insertion
/// has to move more than a few thousand entries. Within a region the entries are in the order of the addresses as far
/// as they have no holes, since nodes that were made one after the other are mostly looked for one after the other.
class NodeTable {
public:
    static constexpr std::uint32_t none = UINT32_MAX;

    struct Entry {
        const NxNode* node = nullptr;
        std::uint32_t parent = none; ///< the record of a group that holds the node
        std::uint32_t place = 0; ///< its index in that group when it was last seen there
        std::uint32_t group = none; ///< its own record, if it is a group
        std::uint32_t problems = none; ///< the list of problems of its values
    };

    /// The entry of a node, or null. Valid until the next insertion or removal.
    [[nodiscard]] Entry* find(const NxNode* node) noexcept;
    [[nodiscard]] const Entry* find(const NxNode* node) const noexcept;
    /// The entry of a node, which is added if there is none. May throw `std::bad_alloc`.
    Entry& insert(const NxNode* node);
    void remove(const NxNode* node) noexcept;
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }

private:
    /// Linear probing; at most half of the slots are used.
    struct Region {
        std::vector<Entry> slots;
        std::size_t used = 0;

        [[nodiscard]] std::size_t homeOf(const NxNode* node) const noexcept;
        [[nodiscard]] std::size_t indexOf(const NxNode* node) const noexcept;
        void grow();
    };

    [[nodiscard]] Region* regionOf(const NxNode* node) noexcept;

    std::unordered_map<std::uintptr_t, Region> m_regions; // by the upper bits of the addresses
    std::uintptr_t m_latestKey = 0;
    Region* m_latest = nullptr;
    std::size_t m_size = 0;
};

} // namespace meridane
