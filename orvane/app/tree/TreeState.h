#pragma once

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QPersistentModelIndex>

#include <string>
#include <vector>

class OrvServices;
class SceneTreePanel;

/// Which rows of the scene tree are unfolded, and which nodes and field are selected, by their paths. So a node that
/// takes the place of another one is shown as that was.
class TreeState {
public:
    /// Of more selected rows than this, only the last one is found again.
    static constexpr qsizetype mostSelected = 1000;

    /// Both live longer.
    TreeState(SceneTreePanel& tree, OrvServices& services);

    /// Unfolds what was unfolded and selects what was selected, as far as it's still in the scene or something else has
    /// its path. Rows that are still there stay as they are. The tree must show the present scene.
    void restore();

private:
    struct Row {
        QPersistentModelIndex index;
        std::string path;
    };

    [[nodiscard]] std::string pathOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex find(const std::string& path) const;

    SceneTreePanel* m_tree;
    OrvServices* m_services;
    [[nodiscard]] QModelIndex findLast() const;

    std::vector<Row> m_unfolded; // groups before what is in them
    std::vector<Row> m_selected; // in the order of the tree
    NxRef<NxFieldContainer> m_node; // that was selected
    std::string m_path; // of its row
    VbName m_field;
};
