#pragma once

#include "orvane/app/base/Result.h"

#include "meridane/scene/compare/NxSceneChanges.h"
#include "meridane/scene/edit/NodeRows.h"

#include <QString>

#include <vector>

/// Where nodes are to come: before the child with that index of the last group of the path.
struct NodeSpot {
    std::vector<NxGroup*> path; ///< from the group that holds the top nodes down
    std::vector<int> places; ///< as in `NodeRows`
    int index = 0;

    [[nodiscard]] NxGroup& group() const { return *path.back(); }
};

/// A change of the structure of a scene that can be made.
struct NodeEdit {
    QString label; ///< of the step in the history, such as "Group 3 nodes"
    NxSceneChanges changes;
    meridane::NodeSet selection; ///< what is to be selected afterwards
    QString note; ///< something that the user should know; may be empty
};

/// What becomes of the places of nodes that come into another group.
enum class NodePlaces {
    Keep, ///< they stay where they are in the world: see `PlaceKeeping`
    Change, ///< they keep their values, so that they are placed by the group that they come into
};

/// An edit, or the message that says why nothing can be done.
using MadeEdit = orvane::Result<NodeEdit>;
