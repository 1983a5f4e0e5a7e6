#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

class NxNode;

namespace meridane {

/// Entries for the nodes of a scene by their addresses. It is divided into many small tables, so that no insertion has
/// to move more than a few thousand entries, however many there are.
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
    /// Linear probing; the number of slots is a power of two, of which at most three quarters are used.
    struct Shard {
        std::vector<Entry> slots;
        std::size_t used = 0;

        [[nodiscard]] std::size_t indexOf(const NxNode* node, std::uint64_t hash) const noexcept;
        void grow();
    };

    static constexpr std::size_t shardCount = 1024;

    [[nodiscard]] static std::uint64_t hashOf(const NxNode* node) noexcept;
    [[nodiscard]] Shard& shardOf(std::uint64_t hash) noexcept { return m_shards[hash >> 54U]; }

    std::array<Shard, shardCount> m_shards;
    std::size_t m_size = 0;
};

} // namespace meridane
