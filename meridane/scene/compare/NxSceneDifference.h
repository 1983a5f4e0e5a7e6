#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <cstddef>
#include <cstdint>
#include <string>

/// A node of one or both of two scenes, in which they differ.
struct NxComparedNode {
    NxRef<NxNode> left; ///< null for a node that only the right scene has
    NxRef<NxNode> right; ///< null for a node that only the left scene has
    std::string leftPath; ///< as `NxScenePath` makes it; empty where there is no node
    std::string rightPath; ///< the path in the right scene; empty where there is no node
    /// The group of the left scene that corresponds to the one to which a node was added; null for the scene itself and
    /// for other differences.
    NxRef<NxNode> group;
};

/// One difference between two scenes.
struct NxSceneDifference {
    /// What differs.
    enum class Kind : std::uint8_t {
        Added, ///< a node that only the right scene has, with all that is in it
        Removed, ///< a node that only the left scene has, with all that is in it
        UseAdded, ///< a node of both scenes is used in one more place in the right one
        UseRemoved, ///< the reverse
        Moved, ///< a node is in another group
        Reordered, ///< a node is at another place among its siblings
        Sharing, ///< one scene uses a node a second time where the other has a copy
        Renamed, ///< a node has another name
        Class, ///< a node has another class
        Value, ///< a field has another value, or only one of the nodes has the field
        Ignored, ///< the ignored flag of a field differs
    };

    /// A field of a node.
    struct Field {
        static constexpr std::int32_t none = -1; ///< the index where there is no field

        std::int32_t index = none; ///< in the class, or among the unknown fields
        bool isUnknown = false; ///< whether `index` counts the unknown fields
    };

    Kind kind; ///< what differs
    std::uint32_t node; ///< an index into `NxSceneDifferences::nodes`
    /// The field in each scene, for `Value` and `Ignored`.
    Field left{};
    Field right{}; ///< see `left`
    /// For `Added` and `Removed`, the number of nodes; for `Reordered`, the places among the siblings, from 0; for
    /// `Sharing`, indices of texts.
    std::uint32_t leftNumber = 0;
    std::uint32_t rightNumber = 0; ///< see `leftNumber`
};
