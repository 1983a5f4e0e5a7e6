#pragma once

#include "meridane/gl/places/NxNodeVisibility.h"

#include <QModelIndex>
#include <QObject>

#include <span>
#include <vector>

/// The nodes of the open scene that the user has hidden in the view, and those that are isolated.
///
/// It is for looking: never part of the scene, its file or the history of edits, and gone with the scene. Hidden nodes
/// that are deleted stay known, so that they are hidden again when the deletion is undone.
class HiddenNodes : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Hides nodes in addition to those that are hidden, in all their places.
    void hide(std::span<NxNode* const> nodes);
    /// Takes back that these nodes are hidden. Those below a hidden node, or outside isolated ones, stay unseen.
    void show(std::span<NxNode* const> nodes);
    /// Shows the last node of each path, which leads to it from the scene: takes back that it or one above it is
    /// hidden, and isolates it too where others are.
    void reveal(std::span<const std::vector<NxNode*>> paths);
    /// Shows these nodes, with what is below them, and nothing else, instead of those isolated before.
    void isolate(std::span<NxNode* const> nodes);
    /// Shows everything.
    void showAll();

    /// Whether nothing is hidden nor isolated.
    [[nodiscard]] bool isEmpty() const noexcept { return m_hidden.empty() && m_isolated.empty(); }
    [[nodiscard]] const std::vector<NxNode*>& hidden() const noexcept { return m_hidden; }
    [[nodiscard]] const std::vector<NxNode*>& isolated() const noexcept { return m_isolated; }
    /// Both as the drawing and picking take them.
    [[nodiscard]] const NxNodeVisibility& visibility() const noexcept { return m_visibility; }
    /// Whether the last of these nodes is shown, each a child of the one before.
    [[nodiscard]] bool isShown(std::span<NxNode* const> path) const;

Q_SIGNALS:
    /// Other nodes are hidden or isolated than before.
    void changed();

private:
    void update();

    std::vector<NxNode*> m_hidden; // alive: `m_visibility` holds them
    std::vector<NxNode*> m_isolated;
    NxNodeVisibility m_visibility;
};
