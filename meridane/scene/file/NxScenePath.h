#pragma once

#include "meridane/scene/nodes/NxGroup.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Names a node of a scene, or one of its fields, by a text such as `/robot/arm.rotation`.
///
/// Each step is the name of a child, if it is unique among its siblings, else `Class[index]`, where the index counts
/// the siblings of that class from 0. A name with other characters than letters, digits, `_`, `-`, `+`, `:` and blanks,
/// or one that would read as an index, is in double quotes with the escapes of texts. `/` alone is the scene.
class NxScenePath {
public:
    /// The target of a path.
    struct Target {
        /// The nodes from the top node to the target; empty for the scene itself.
        std::vector<NxNode*> nodes;
        /// The field, or null for a path that names a node.
        NxField* field = nullptr;
        /// What is wrong with the path and where it stopped; empty if it has a target.
        std::string error;

        /// The last node of the path; null for the scene itself and for a path without a target.
        [[nodiscard]] NxNode* node() const noexcept { return nodes.empty() ? nullptr : nodes.back(); }
    };

    /// Follows a path. Nothing is posted.
    [[nodiscard]] static Target find(NxGroup* scene, std::string_view path);
    /// The path of the last of these nodes, each a child of the one before, the first a child of the scene.
    [[nodiscard]] static std::string toText(const NxGroup* scene, std::span<NxNode* const> nodes);
    /// The path of a field of the last node.
    [[nodiscard]] static std::string toText(const NxGroup* scene, std::span<NxNode* const> nodes, const NxField* field);
};
