#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/journal/JournalListener.h"
#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/recovery/RecoveryDescription.h"
#include "meridane/scene/recovery/detail/DirtyNode.h"
#include "meridane/scene/recovery/detail/LogNumbers.h"
#include "meridane/scene/recovery/detail/OperationWriter.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

class NxNode;

namespace meridane {

class Journal;
class NodeCapture;

/// Keeps the set of places that differ between the scene and the operations so far, and captures them node by node.
///
/// Children that are removed are logged at once, all others later. So the file never has a child that the group doesn't
/// have, and no group ever contains itself while the operations are replayed.
class ChangeCapture final : public JournalListener {
public:
    ChangeCapture(Journal& journal, RecoveryDescription::Base base);
    ~ChangeCapture();

    /// Appends operations. Returns true if there is more to capture; after false they give the scene as it is.
    bool run(std::string& operations, const WorkBudget& budget);
    [[nodiscard]] bool hasWork() const noexcept;
    [[nodiscard]] bool hasFailed() const noexcept { return m_hasFailed; }
    void setFailed() noexcept { m_hasFailed = true; }
    /// Whether the base is final, since its nodes have their numbers.
    [[nodiscard]] bool hasBase() const noexcept { return !m_traversal; }
    [[nodiscard]] RecoveryDescription::Base base() const noexcept { return m_base; }
    /// How many nodes it has.
    [[nodiscard]] std::uint64_t baseNodeCount() const noexcept { return m_baseNodeCount; }

    void aboutToChange(const PlaceChange& change) noexcept override;
    void aboutToDestroy(std::size_t number) noexcept override;

private:
    bool numberNodes(const WorkBudget& budget);
    void beginFromNothing();
    void note(const PlaceChange& change, std::size_t number);
    void noteField(const PlaceChange& change, DirtyNode& dirty);
    void noteChildren(const PlaceChange& change, DirtyNode& dirty, std::size_t number);
    [[nodiscard]] DirtyNode& dirtyNode(std::size_t number);
    bool captureSome();
    bool takeNext();
    void takeWaitingNode(std::size_t number);
    [[nodiscard]] NxNode* nodeOf(std::size_t number) const noexcept;

    Journal& m_journal;
    RecoveryDescription::Base m_base;
    std::optional<NodeTraversal> m_traversal; // of the base that gets its numbers
    std::uint64_t m_baseNodeCount = 1;
    LogNumbers m_numbers;
    OperationWriter m_operations;
    std::unique_ptr<NodeCapture> m_nodeCapture;
    std::unordered_map<std::size_t, DirtyNode> m_dirty; // by number in the journal
    std::deque<std::size_t> m_queue; // of those, the node that changed first is first; may contain destroyed nodes
    std::deque<std::size_t> m_waiting; // nodes whose contents are still to be captured
    std::optional<std::size_t> m_present; // the node that is being captured; dirty until its end
    bool m_isAgain = false; // that node was captured since the latest commit
    bool m_hadNews = false; // something was captured for the first time in this slice
    int m_slicesWithoutNews = 0;
    bool m_hasFailed = false;
};

} // namespace meridane
