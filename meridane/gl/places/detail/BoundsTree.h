#pragma once

#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/gl/geometry/detail/Frustum.h"
#include "meridane/gl/places/detail/NodeRecord.h"

#include <vector>

namespace meridane {

/// Finds the items whose boxes are in view, in a time that grows with their number and the logarithm of all. Changes
/// are collected until the next question: a few of them are made one by one, many by building the tree anew.
class BoundsTree {
public:
    /// Gives the item that box from now on; an empty box takes it out.
    void set(Id item, const NxBounds& box);
    void remove(Id item) { set(item, NxBounds()); }
    void clear();

    /// The item's box; empty for an item that isn't in the tree.
    [[nodiscard]] NxBounds boundsOf(Id item) const;
    /// Around all items.
    [[nodiscard]] NxBounds bounds();
    [[nodiscard]] std::size_t count() const noexcept { return m_count; }
    /// Appends the items that may be in view.
    void find(const Frustum& frustum, std::vector<Id>& items);

    [[nodiscard]] std::size_t bytes() const noexcept;

private:
    struct Node {
        NxBounds box;
        Id parent = noId;
        Id left = noId; // none for a leaf
        Id right = noId; // the item of a leaf

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
    bool m_goesLeft = false; // where both ways are as good
    bool m_isTooDeep = false;
};

} // namespace meridane
