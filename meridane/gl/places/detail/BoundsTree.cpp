#include "meridane/gl/places/detail/BoundsTree.h"

#include <algorithm>
#include <bit>

namespace meridane {
namespace {

/// The tree is rebuilt when more than one item in so many has changed.
constexpr std::size_t rebuildShare = 8;
/// The tree is also rebuilt when a leaf is more than so many times as deep as in a balanced tree.
constexpr std::size_t depthShare = 4;

double halfSurface(const NxBounds& box) noexcept
{
    std::array<double, 3> size{};
    for (std::size_t axis = 0; axis < 3; ++axis)
        size[axis] = static_cast<double>(box.max[axis]) - static_cast<double>(box.min[axis]);
    return size[0] * size[1] + size[1] * size[2] + size[2] * size[0];
}

NxBounds joined(NxBounds box, const NxBounds& other) noexcept
{
    box.include(other);
    return box;
}

std::size_t longestAxis(const NxBounds& box) noexcept
{
    const VbVec3f size = box.size();
    return size[0] >= size[1] && size[0] >= size[2] ? 0 : size[1] >= size[2] ? 1 : 2;
}

} // namespace

void BoundsTree::set(Id item, const NxBounds& box)
{
    if (item >= m_items.size()) {
        if (box.isEmpty())
            return;
        m_items.resize(item + 1);
    }
    Item& entry = m_items[item];
    if (entry.box == box)
        return;
    m_count += (entry.box.isEmpty() ? 1U : 0U);
    m_count -= (box.isEmpty() ? 1U : 0U);
    entry.box = box;
    if (!entry.isChanged) {
        entry.isChanged = true;
        m_changed.push_back(item);
    }
}

void BoundsTree::clear()
{
    m_items.clear();
    m_changed.clear();
    m_nodes.clear();
    m_freeNodes.clear();
    m_root = noId;
    m_count = 0;
}

NxBounds BoundsTree::boundsOf(Id item) const
{
    return item < m_items.size() ? m_items[item].box : NxBounds();
}

NxBounds BoundsTree::bounds()
{
    flush();
    return m_root == noId ? NxBounds() : m_nodes[m_root].box;
}

void BoundsTree::find(const Frustum& frustum, std::vector<Id>& items)
{
    flush();
    std::vector<Id> waiting;
    if (m_root != noId)
        waiting.push_back(m_root);
    while (!waiting.empty()) {
        const Id id = waiting.back();
        waiting.pop_back();
        const Node& node = m_nodes[id];
        const Frustum::Overlap overlap = frustum.overlap(node.box);
        if (overlap == Frustum::Overlap::None)
            continue;
        if (overlap == Frustum::Overlap::All || node.isLeaf()) {
            collect(id, items);
            continue;
        }
        waiting.push_back(node.right);
        waiting.push_back(node.left);
    }
}

void BoundsTree::collect(Id top, std::vector<Id>& items) const
{
    std::vector<Id> waiting{top};
    while (!waiting.empty()) {
        const Node& node = m_nodes[waiting.back()];
        waiting.pop_back();
        if (node.isLeaf()) {
            items.push_back(node.right);
        } else {
            waiting.push_back(node.right);
            waiting.push_back(node.left);
        }
    }
}

void BoundsTree::flush()
{
    if (m_changed.empty())
        return;
    if (m_isTooDeep || m_changed.size() > m_count / rebuildShare) {
        rebuild();
    } else {
        for (const Id item : m_changed) {
            takeOut(item);
            if (!m_items[item].box.isEmpty())
                insert(item);
        }
    }
    for (const Id item : m_changed)
        m_items[item].isChanged = false;
    m_changed.clear();
}

void BoundsTree::rebuild()
{
    m_nodes.clear();
    m_freeNodes.clear();
    m_nodes.reserve(2 * m_count);
    m_isTooDeep = false;
    std::vector<Id> items;
    items.reserve(m_count);
    for (Id item = 0; item < m_items.size(); ++item) {
        m_items[item].leaf = noId;
        if (!m_items[item].box.isEmpty())
            items.push_back(item);
    }
    m_root = items.empty() ? noId : build(items.data(), items.data() + items.size(), noId);
}

// Halves the items each time, so that the depth of the recursion is the logarithm of their number.
Id BoundsTree::build(Id* first, Id* last, Id parent)
{
    const Id id = newNode();
    m_nodes[id].parent = parent;
    NxBounds box;
    NxBounds centers;
    for (const Id* item = first; item != last; ++item) {
        box.include(m_items[*item].box);
        centers.include(m_items[*item].box.center());
    }
    m_nodes[id].box = box;
    if (last - first == 1) {
        m_nodes[id].right = *first;
        m_items[*first].leaf = id;
        return id;
    }
    const std::size_t axis = longestAxis(centers);
    Id* const middle = first + (last - first) / 2;
    std::nth_element(first, middle, last,
        [this, axis](Id a, Id b) { return m_items[a].box.center()[axis] < m_items[b].box.center()[axis]; });
    const Id left = build(first, middle, id);
    const Id right = build(middle, last, id);
    m_nodes[id].left = left;
    m_nodes[id].right = right;
    return id;
}

Id BoundsTree::newNode()
{
    if (m_freeNodes.empty()) {
        m_nodes.emplace_back();
        return static_cast<Id>(m_nodes.size() - 1);
    }
    const Id id = m_freeNodes.back();
    m_freeNodes.pop_back();
    m_nodes[id] = Node();
    return id;
}

// Descends to the leaf where the boxes grow the least.
Id BoundsTree::findSibling(const NxBounds& box)
{
    const std::size_t depthOfBalance = std::bit_width(m_count);
    std::size_t depth = 0;
    Id id = m_root;
    while (!m_nodes[id].isLeaf()) {
        m_isTooDeep = m_isTooDeep || ++depth > depthShare * depthOfBalance;
        const auto growth
            = [&](Id child) { return halfSurface(joined(m_nodes[child].box, box)) - halfSurface(m_nodes[child].box); };
        const double left = growth(m_nodes[id].left);
        const double right = growth(m_nodes[id].right);
        m_goesLeft = !m_goesLeft;
        id = left < right || (left == right && m_goesLeft) ? m_nodes[id].left : m_nodes[id].right;
    }
    return id;
}

void BoundsTree::insert(Id item)
{
    const Id leaf = newNode();
    m_nodes[leaf].box = m_items[item].box;
    m_nodes[leaf].right = item;
    m_items[item].leaf = leaf;
    if (m_root == noId) {
        m_root = leaf;
        return;
    }
    const Id sibling = findSibling(m_nodes[leaf].box);
    const Id above = m_nodes[sibling].parent;
    const Id parent = newNode();
    m_nodes[parent].parent = above;
    m_nodes[parent].left = sibling;
    m_nodes[parent].right = leaf;
    m_nodes[sibling].parent = parent;
    m_nodes[leaf].parent = parent;
    if (above == noId)
        m_root = parent;
    else
        (m_nodes[above].left == sibling ? m_nodes[above].left : m_nodes[above].right) = parent;
    refit(parent);
}

void BoundsTree::takeOut(Id item)
{
    const Id leaf = m_items[item].leaf;
    if (leaf == noId)
        return;
    m_items[item].leaf = noId;
    m_freeNodes.push_back(leaf);
    const Id parent = m_nodes[leaf].parent;
    if (parent == noId) {
        m_root = noId;
        return;
    }
    const Id sibling = m_nodes[parent].left == leaf ? m_nodes[parent].right : m_nodes[parent].left;
    const Id above = m_nodes[parent].parent;
    m_freeNodes.push_back(parent);
    m_nodes[sibling].parent = above;
    if (above == noId)
        m_root = sibling;
    else
        (m_nodes[above].left == parent ? m_nodes[above].left : m_nodes[above].right) = sibling;
    refit(above);
}

void BoundsTree::refit(Id id)
{
    for (; id != noId; id = m_nodes[id].parent)
        m_nodes[id].box = joined(m_nodes[m_nodes[id].left].box, m_nodes[m_nodes[id].right].box);
}

std::size_t BoundsTree::bytes() const noexcept
{
    return m_items.capacity() * sizeof(Item) + m_changed.capacity() * sizeof(Id) + m_nodes.capacity() * sizeof(Node)
        + m_freeNodes.capacity() * sizeof(Id);
}

} // namespace meridane
