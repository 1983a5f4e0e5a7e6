#pragma once

#include "meridane/gl/geometry/Matrix4d.h"
#include "meridane/gl/places/detail/GroupRecord.h"
#include "meridane/gl/places/detail/MeshRecord.h"
#include "meridane/gl/places/detail/SlotTable.h"

namespace meridane {

/// A group in one of its places. Places form a tree, in which a shared group stands as often as it is reached.
struct Place {
    GroupRecord* group = nullptr; ///< null for the place above the scene's own node
    Id parent = noId;
    Id firstChild = noId;
    Id nextSibling = noId;
    Id firstItem = noId;
    Id previousOfGroup = noId;
    Id nextOfGroup = noId;
    /// The matrix that takes what stands in the place to the scene; that of the parent if the group has none.
    Id worldTransform = noId;
    /// The look of what stands at the beginning of the group.
    Id look = noId;
};

/// A mesh in one of its places: what is drawn, and in or out of view.
struct Item {
    MeshRecord* mesh = nullptr;
    Id place = noId;
    Id nextInPlace = noId;
    Id previousOfMesh = noId;
    Id nextOfMesh = noId;
    Id look = noId;
};

/// The places of groups and meshes, and how they are linked: to what stands in them, and to the other places of the
/// same node.
class PlaceTable {
public:
    Id addPlace(const Place& place);
    /// Links a place or an item to the place that it stands in, whose links were taken away.
    void attachPlace(Id id);
    void attachItem(Id id);
    /// Unlinks a place from its group; its parent and its contents are the caller's to mend.
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

    /// Places of groups and of meshes.
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
