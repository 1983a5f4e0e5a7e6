#include "meridane/gl/places/detail/PlaceTable.h"

namespace meridane {

Id PlaceTable::addPlace(const Place& place)
{
    const Id id = m_places.add(place);
    if (place.parent != noId)
        attachPlace(id);
    Place& entry = m_places[id];
    if (entry.group == nullptr)
        return id;
    entry.nextOfGroup = entry.group->firstPlace;
    if (entry.nextOfGroup != noId)
        m_places[entry.nextOfGroup].previousOfGroup = id;
    entry.group->firstPlace = id;
    return id;
}

void PlaceTable::attachPlace(Id id)
{
    Place& parent = m_places[m_places[id].parent];
    m_places[id].nextSibling = parent.firstChild;
    parent.firstChild = id;
}

void PlaceTable::attachItem(Id id)
{
    Place& place = m_places[m_items[id].place];
    m_items[id].nextInPlace = place.firstItem;
    place.firstItem = id;
}

void PlaceTable::removePlace(Id id)
{
    const Place entry = m_places[id];
    if (entry.nextOfGroup != noId)
        m_places[entry.nextOfGroup].previousOfGroup = entry.previousOfGroup;
    if (entry.previousOfGroup != noId)
        m_places[entry.previousOfGroup].nextOfGroup = entry.nextOfGroup;
    else if (entry.group != nullptr)
        entry.group->firstPlace = entry.nextOfGroup;
    m_places.remove(id);
}

Id PlaceTable::addItem(const Item& item)
{
    const Id id = m_items.add(item);
    attachItem(id);
    Item& entry = m_items[id];
    entry.nextOfMesh = entry.mesh->firstItem;
    if (entry.nextOfMesh != noId)
        m_items[entry.nextOfMesh].previousOfMesh = id;
    entry.mesh->firstItem = id;
    return id;
}

void PlaceTable::removeItem(Id id)
{
    const Item entry = m_items[id];
    if (entry.nextOfMesh != noId)
        m_items[entry.nextOfMesh].previousOfMesh = entry.previousOfMesh;
    if (entry.previousOfMesh != noId)
        m_items[entry.previousOfMesh].nextOfMesh = entry.nextOfMesh;
    else
        entry.mesh->firstItem = entry.nextOfMesh;
    m_items.remove(id);
}

} // namespace meridane
