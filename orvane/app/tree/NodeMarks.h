#pragma once

class NxNode;

/// Which nodes of the scene tree a search has found. Rows ask for it whenever they are painted, so the answers must be
/// quick; a panel repaints its rows when the marks are set, also when they are set again.
class NodeMarks {
public:
    NodeMarks() = default;
    NodeMarks(const NodeMarks&) = delete;
    NodeMarks& operator=(const NodeMarks&) = delete;
    virtual ~NodeMarks() = default;

    /// Whether the node is a hit: its name is drawn in bold.
    [[nodiscard]] virtual bool isHit(const NxNode& node) const = 0;
    /// Whether there is a hit below the node: such a node is drawn as usual. All others are greyed.
    [[nodiscard]] virtual bool leadsToHit(const NxNode& node) const = 0;
};
