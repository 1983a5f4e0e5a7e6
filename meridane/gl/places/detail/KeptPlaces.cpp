#include "meridane/gl/places/detail/KeptPlaces.h"

#include <utility>

namespace meridane {
namespace {

auto siblingsIn(PlaceTable& table)
{
    return [&table](Id id) -> Id& { return table.place(id).nextSibling; };
}

auto itemsIn(PlaceTable& table)
{
    return [&table](Id id) -> Id& { return table.item(id).nextInPlace; };
}

} // namespace

KeptPlaces::KeptPlaces(PlaceTable& table, Id place)
    : m_table(table)
    , m_places(0, Hash(), Equal{&m_comparisons})
    , m_items(0, Hash(), Equal{&m_comparisons})
{
    for (Id id = std::exchange(table.place(place).firstChild, noId); id != noId;) {
        const Place& child = table.place(id);
        const Id next = child.nextSibling;
        put(m_places, {child.group, child.look}, id, siblingsIn(table));
        id = next;
    }
    for (Id id = std::exchange(table.place(place).firstItem, noId); id != noId;) {
        const Item& item = table.item(id);
        const Id next = item.nextInPlace;
        put(m_items, {item.mesh, item.look}, id, itemsIn(table));
        id = next;
    }
}

std::size_t KeptPlaces::Hash::operator()(const Key& key) const noexcept
{
    // Keeps the order of addresses: records made together are near each other, and are looked up in that order.
    return std::hash<const NodeRecord*>()(key.node) + key.look;
}

template <typename NextOf>
void KeptPlaces::put(Firsts& firsts, const Key& key, Id id, NextOf nextOf)
{
    Id& first = firsts.try_emplace(key, noId).first->second;
    nextOf(id) = first;
    first = id;
}

template <typename NextOf>
Id KeptPlaces::take(Firsts& firsts, Firsts::iterator first, NextOf nextOf)
{
    if (first == firsts.end())
        return noId;
    const Id id = first->second;
    first->second = nextOf(id);
    if (first->second == noId)
        firsts.erase(first);
    return id;
}

Id KeptPlaces::takePlace(const GroupRecord& group, Id look)
{
    return take(m_places, m_places.find({&group, look}), siblingsIn(m_table));
}

Id KeptPlaces::takeItem(const MeshRecord& mesh, Id look)
{
    return take(m_items, m_items.find({&mesh, look}), itemsIn(m_table));
}

Id KeptPlaces::takeAnyPlace()
{
    return take(m_places, m_places.begin(), siblingsIn(m_table));
}

Id KeptPlaces::takeAnyItem()
{
    return take(m_items, m_items.begin(), itemsIn(m_table));
}

} // namespace meridane
