#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>

namespace meridane {

/// The numbers that the nodes of a journal have in a recovery file, given from 0 in the order in which the file gets to
/// know the nodes. Nodes are named by their numbers in the journal.
class LogNumbers {
public:
    /// How much of a node the file has.
    enum class State : std::uint8_t {
        Unknown, ///< nothing
        Waiting, ///< its number and class; the contents are still to be captured
        Followed, ///< what it was when its capture began; all changes since then are noted
    };

    [[nodiscard]] State state(std::size_t node) const noexcept
    {
        return node < m_nodes.size() ? m_nodes[node].state : State::Unknown;
    }
    /// Only for a node that isn't unknown.
    [[nodiscard]] std::uint64_t number(std::size_t node) const noexcept { return m_nodes[node].number; }
    [[nodiscard]] std::uint64_t count() const noexcept { return m_count; }

    /// Gives the next number to an unknown node.
    void add(std::size_t node, State state);
    void setFollowed(std::size_t node) noexcept { m_nodes[node].state = State::Followed; }
    /// The node has been destroyed. Its number isn't used again.
    void remove(std::size_t node) noexcept;
    void clear() noexcept;

    /// Whether the node's contents have been captured since the latest commit; notes that they are.
    bool isCapturedAgain(std::size_t node) noexcept;
    void noteCommit() noexcept { ++m_commit; }

private:
    struct Node {
        std::uint32_t number = 0;
        std::uint32_t commit = 0; // in which it was captured last
        State state = State::Unknown;
    };

    std::deque<Node> m_nodes; // which grows without moving all
    std::uint32_t m_count = 0;
    std::uint32_t m_commit = 1;
};

} // namespace meridane
