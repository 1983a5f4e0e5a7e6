#pragma once

#include "meridane/scene/nodes/NxNode.h"

#include <string>
#include <string_view>

namespace meridane {

/// One step of a scene path: the name of a child, or its class and its index among the siblings of that class.
struct ScenePathStep {
    std::string name; // of the child, or of its class when there is an index
    int index = -1;

    /// The step from a node to one of its children.
    [[nodiscard]] static ScenePathStep of(const NxNode& parent, const NxNode& child);
    /// Reads the step that begins at `at` and moves `at` after it. Returns what is wrong, or the empty text.
    std::string parse(std::string_view path, std::size_t& at);
    void appendTo(std::string& text) const;
};

} // namespace meridane
