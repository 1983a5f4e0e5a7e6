#include "meridane/gl/places/detail/OutlinedItems.h"

#include <algorithm>

namespace meridane {
namespace {

void append(std::vector<Id>& items, const std::vector<Id>& more)
{
    items.insert(items.end(), more.begin(), more.end());
}

} // namespace

void OutlinedItems::setPath(std::span<NxNode* const> nodes)
{
    m_nodes.assign(nodes.begin(), nodes.end());
    m_isPath = true;
    m_isStale = true;
}

void OutlinedItems::setNodes(std::span<NxNode* const> nodes)
{
    m_nodes.assign(nodes.begin(), nodes.end());
    m_isPath = false;
    m_isStale = true;
}

std::span<const Id> OutlinedItems::update(const PlacedScene& scene)
{
    if (!m_isStale && m_structure == scene.structure())
        return m_items;
    m_isStale = false;
    m_structure = scene.structure();
    m_items.clear();
    std::vector<const NxNode*> nodes;
    for (const NxRef<NxNode>& node : m_nodes)
        nodes.push_back(node.get());
    if (m_isPath && !nodes.empty()) {
        m_items = scene.itemsBelow(nodes);
        append(m_items, scene.itemsUsing(nodes));
    } else {
        for (const NxNode* node : nodes) {
            append(m_items, scene.itemsBelow(node));
            append(m_items, scene.itemsUsing(node));
        }
    }
    // A node may be given together with what is above it.
    std::sort(m_items.begin(), m_items.end());
    m_items.erase(std::unique(m_items.begin(), m_items.end()), m_items.end());
    std::erase_if(m_items, [&scene](Id item) { return !scene.isShown(item); });
    return m_items;
}

} // namespace meridane
