#pragma once

#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/gl/geometry/detail/Frustum.h"
#include "meridane/gl/places/detail/NodeRecord.h"

#include <vector>

namespace meridane {

/// Finds the items whose boxes are in view, in a time that grows with their number and the logarithm of the number of
/// all items. Changes are collected until the next query. Then a few are applied one by one, and many by rebuilding the
/// tree.
class BoundsTree {
public:
    /// Sets the box of an item; an empty box removes the item.
    void set(Id item, const NxBounds& box);
    void remove(Id item) { set(item, NxBounds()); }
    void clear();

    /// The item's box; empty for an item that isn't in the tree.
    [[nodiscard]] NxBounds boundsOf(Id item) const;
    /// The box around all items.
    [[nodiscard]] NxBounds bounds();
    [[nodiscard]] std::size_t count() const noexcept { return m_count; }
    /// Appends the items that may be in view.
    void find(const Frustum& frustum, std::vector<Id>& items);

    [[nodiscard]] std::size_t bytes() const noexcept;

private:
    struct Node {
        NxBounds box;
        Id parent = noId;
        Id left = noId; // noId for a leaf
        Id right = noId; // for a leaf, the item

        [[nodiscard]] bool isLeaf() const noexcept { return left == noId; }
    };
    struct Item {
        NxBounds box;
        Id leaf = noId;
        bool isChanged = false;
    };

    void flush();
    void rebuild();
    Id build(Id* first, Id* last, Id parent);
    void insert(Id item);
    void takeOut(Id item);
    void refit(Id node);
    [[nodiscard]] Id findSibling(const NxBounds& box);
    Id newNode();
    void collect(Id node, std::vector<Id>& items) const;

    std::vector<Item> m_items;
    std::vector<Id> m_changed;
    std::vector<Node> m_nodes;
    std::vector<Id> m_freeNodes;
    Id m_root = noId;
    std::size_t m_count = 0; // of items with a box
    bool m_goesLeft = false; // alternates where both children are equally good
    bool m_isTooDeep = false;
};

} // namespace meridane
