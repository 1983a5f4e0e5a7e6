#pragma once

#include "meridane/gl/places/detail/PlaceTable.h"

#include <functional>
#include <unordered_map>

namespace meridane {

/// The contents of a place while it is filled again: places of groups and items that can be reused, found by node and
/// look. Taking one takes constant time, however often a node is used there.
class KeptPlaces {
public:
    /// Removes the contents from a place.
    KeptPlaces(PlaceTable& table, Id place);
    KeptPlaces(const KeptPlaces&) = delete;
    KeptPlaces& operator=(const KeptPlaces&) = delete;
    ~KeptPlaces() = default;

    /// Removes and returns a place of the group with that look; `noId` if there is none.
    [[nodiscard]] Id takePlace(const GroupRecord& group, Id look);
    /// The same for an item of a mesh.
    [[nodiscard]] Id takeItem(const MeshRecord& mesh, Id look);
    /// Removes and returns any of the remaining ones; `noId` if there is none.
    [[nodiscard]] Id takeAnyPlace();
    [[nodiscard]] Id takeAnyItem();
    /// The number of keys compared so far.
    [[nodiscard]] std::uint64_t comparisons() const noexcept { return m_comparisons; }

private:
    struct Key {
        const NodeRecord* node;
        Id look;
    };
    struct Hash {
        std::size_t operator()(const Key& key) const noexcept;
    };
    struct Equal {
        std::uint64_t* comparisons;
        bool operator()(const Key& a, const Key& b) const noexcept
        {
            ++*comparisons;
            return a.node == b.node && a.look == b.look;
        }
    };
    /// The first entry of each key; entries of the same key are linked as siblings.
    using Firsts = std::unordered_map<Key, Id, Hash, Equal>;

    template <typename NextOf>
    static void put(Firsts& firsts, const Key& key, Id id, NextOf nextOf);
    template <typename NextOf>
    static Id take(Firsts& firsts, Firsts::iterator first, NextOf nextOf);

    PlaceTable& m_table;
    std::uint64_t m_comparisons = 0;
    Firsts m_places;
    Firsts m_items;
};

} // namespace meridane
