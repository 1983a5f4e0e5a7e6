#pragma once

#include "meridane/gl/places/detail/PlaceTable.h"

#include <functional>
#include <unordered_map>

namespace meridane {

/// What a place holds while it is filled again: the places of groups and the items, found by their node and the look
/// that they have. However often a node is used there, taking one of its places takes the same time.
class KeptPlaces {
public:
    /// Takes all out of a place.
    KeptPlaces(PlaceTable& table, Id place);
    KeptPlaces(const KeptPlaces&) = delete;
    KeptPlaces& operator=(const KeptPlaces&) = delete;
    ~KeptPlaces() = default;

    /// A place of the group with that look, which isn't kept any more; none if there is none.
    [[nodiscard]] Id takePlace(const GroupRecord& group, Id look);
    /// The same for an item of a mesh.
    [[nodiscard]] Id takeItem(const MeshRecord& mesh, Id look);
    /// Any of those that are left, none when there is none.
    [[nodiscard]] Id takeAnyPlace();
    [[nodiscard]] Id takeAnyItem();
    /// How many keys were compared so far.
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
    /// The first of those with the same key, which are linked as siblings.
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
