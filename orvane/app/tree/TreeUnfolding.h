#pragma once

#include <QModelIndexList>

class SceneTreePanel;

/// Unfolds many rows of the scene tree at once, level by level, as long as not too many rows come into view.
class TreeUnfolding {
public:
    /// So many rows are unfolded at most: a tree with more takes long to show, and nobody reads it.
    static constexpr std::size_t mostRows = 100'000;

    struct Result {
        int levels = 0; ///< how many levels below the rows are in view now
        bool isCut = false; ///< the next level has too many rows
    };

    explicit TreeUnfolding(SceneTreePanel& tree)
        : m_tree(tree)
    {
    }

    /// Unfolds what is below those rows, at most so many levels.
    Result unfoldBelow(const QModelIndexList& rows, int levels);
    /// Shows the whole tree down to that level, 1 for the top nodes alone, and folds what is below.
    Result unfoldTo(int level);

private:
    SceneTreePanel& m_tree;
};
