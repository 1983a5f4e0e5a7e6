#pragma once

#include "meridane/scene/compare/NxSceneDifference.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

class NxField;

/// All differences of two scenes, in the order of the left scene. What was added to a group comes directly after the
/// group itself, what was added to the scene comes first.
///
/// It holds references to the nodes, so it may outlive the scenes. Values are read from the nodes when they are asked
/// for: after a change of a scene they are the new ones. Thread of the user interface only.
class NxSceneDifferences {
public:
    /// What differs.
    using Kind = NxSceneDifference::Kind;
    /// One of the two scenes.
    enum class Side { Left, Right };
    /// For texts that aren't shortened.
    static constexpr std::size_t whole = std::string::npos;

    /// The differences in their order; valid as long as this object.
    [[nodiscard]] const std::deque<NxSceneDifference>& list() const noexcept { return m_list; }
    /// The node or pair of nodes that a difference is about, one of `nodes`.
    [[nodiscard]] const NxComparedNode& node(const NxSceneDifference& difference) const
    {
        return m_nodes[difference.node];
    }
    /// All nodes in which the scenes differ. `NxSceneDifference::node` is an index into it.
    [[nodiscard]] const std::deque<NxComparedNode>& nodes() const noexcept { return m_nodes; }

    /// One word for the kind of a difference, such as "added" or "value".
    [[nodiscard]] static const char* kindName(Kind kind);
    /// The path in the left scene, or in the right one if the node was added, without the field.
    [[nodiscard]] const std::string& path(const NxSceneDifference& difference) const;
    /// The name of the field; empty for a difference of nodes.
    [[nodiscard]] std::string fieldName(const NxSceneDifference& difference) const;
    /// The field of one side; null for a difference of nodes, and for a field that the node doesn't have or know.
    [[nodiscard]] NxField* field(const NxSceneDifference& difference, Side side) const;
    /// What one of the scenes has: a value, a name or a file's text in its text form, a path, a class. Empty where the
    /// scene has nothing.
    ///
    /// A value of more than about `length` bytes is shortened to a part that differs: a list to its number of values
    /// and the first rows from the first that differs, such as `1000 values, from 17: 0 0 1, 0 0 2, …`; any other
    /// text to the part from the first difference.
    [[nodiscard]] std::string text(const NxSceneDifference& difference, Side side, std::size_t length = whole) const;

    // For the comparison.
    /// Adds a node and returns its index.
    std::uint32_t addNode(NxComparedNode node);
    /// Appends a difference of a node that was added before.
    void add(const NxSceneDifference& difference) { m_list.push_back(difference); }
    /// Adds a text, such as a path, and returns its index, for `leftNumber` and `rightNumber` of a difference.
    std::uint32_t addText(std::string text);
    /// A node that was added before, to complete it. The index isn't checked.
    [[nodiscard]] NxComparedNode& nodeAt(std::size_t index) { return m_nodes[index]; }

private:
    [[nodiscard]] std::string valueText(const NxSceneDifference& difference, Side side, std::size_t length) const;

    // Not vectors, which would move a million elements at once as they grow.
    std::deque<NxComparedNode> m_nodes;
    std::deque<NxSceneDifference> m_list;
    std::vector<std::string> m_texts;
};
