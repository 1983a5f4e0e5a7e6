#pragma once

#include "meridane/gl/geometry/Matrix4d.h"
#include "meridane/gl/places/detail/GroupRecord.h"
#include "meridane/gl/places/detail/MeshRecord.h"
#include "meridane/gl/places/detail/SlotTable.h"

namespace meridane {

/// An instance of a group. Places form a tree; a shared group has one place for each path that leads to it.
struct Place {
    GroupRecord* group = nullptr; ///< null for the place above the scene's root
    Id parent = noId;
    Id firstChild = noId;
    Id nextSibling = noId;
    Id firstItem = noId;
    Id previousOfGroup = noId;
    Id nextOfGroup = noId;
    /// The number of the world transform; that of the parent if the group doesn't transform.
    Id worldTransform = noId;
    /// The look at the beginning of the group.
    Id look = noId;
};

/// An instance of a mesh: the unit of drawing and culling.
struct Item {
    MeshRecord* mesh = nullptr;
    Id place = noId;
    Id nextInPlace = noId;
    Id previousOfMesh = noId;
    Id nextOfMesh = noId;
    Id look = noId;
};

/// The instances of groups and meshes, linked to their contents and to the other instances of the same node.
class PlaceTable {
public:
    Id addPlace(const Place& place);
    /// Adds a place or an item to its parent place, from which it was removed before.
    void attachPlace(Id id);
    void attachItem(Id id);
    /// Removes a place from the list of its group. The caller updates the links of its parent and its contents.
    void removePlace(Id id);
    Id addItem(const Item& item);
    void removeItem(Id id);
    void clear() { *this = PlaceTable(); }

    [[nodiscard]] Place& place(Id id) noexcept { return m_places[id]; }
    [[nodiscard]] const Place& place(Id id) const noexcept { return m_places[id]; }
    [[nodiscard]] Item& item(Id id) noexcept { return m_items[id]; }
    [[nodiscard]] const Item& item(Id id) const noexcept { return m_items[id]; }
    [[nodiscard]] const Matrix4d& worldTransformOf(const Item& item) const noexcept
    {
        return worldTransforms[m_places[item.place].worldTransform];
    }

    /// The number of places and items.
    [[nodiscard]] std::size_t count() const noexcept { return m_places.count() + m_items.count(); }
    [[nodiscard]] std::size_t bytes() const noexcept
    {
        return m_places.bytes() + m_items.bytes() + worldTransforms.bytes();
    }

    SlotTable<Matrix4d> worldTransforms;

private:
    SlotTable<Place> m_places;
    SlotTable<Item> m_items;
};

} // namespace meridane
