#pragma once

#include "orvane/app/view/handles/HandleShape.h"

#include "meridane/gl/geometry/NodePlacement.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <optional>
#include <vector>

class SceneTreePanel;

/// The axes of handles.
enum class HandleAxes {
    World,
    Parent, ///< of the group above the node that was selected last
    Own, ///< of that node
};

/// The nodes that handles change: those selected in the tree, each once, and none below another one.
class HandleTargets {
public:
    using Kind = meridane::PlacementChange::Kind;
    /// The nodes that lead to one, each a child of the one before.
    using Path = std::vector<NxRef<NxNode>>;

    /// The tree lives longer.
    explicit HandleTargets(SceneTreePanel* tree)
        : m_tree(tree)
    {
    }

    /// Takes what is selected now.
    void collect();
    void clear() { m_paths.clear(); }
    [[nodiscard]] bool isEmpty() const noexcept { return m_paths.empty(); }
    [[nodiscard]] const std::vector<Path>& paths() const noexcept { return m_paths; }
    /// The node that was selected last, or the one above it that is changed with it. There must be one.
    [[nodiscard]] const Path& last() const { return m_paths[m_last]; }

    /// Those that can be changed like that; the one that was selected last is the first of them if it can.
    [[nodiscard]] std::vector<meridane::NodePlacement> placements(Kind kind) const;
    /// Where the handles are; nothing if no node can be changed like that.
    [[nodiscard]] std::optional<HandleFrame> frame(Kind kind, HandleAxes axes) const;

private:
    [[nodiscard]] const Path* leading(Kind kind) const;

    SceneTreePanel* m_tree;
    std::vector<Path> m_paths;
    std::size_t m_last = 0;
};
