#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/ChangeRecorder.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/journal/JournalStep.h"
#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace meridane {

/// Records every write to the nodes of a scene: values, ignored flags, names and children, whoever writes them. The
/// records collect in the open step until `finishStep`.
///
/// Nodes have numbers from 0: the group that holds the top nodes, the others in the order of a scene file, then those
/// that were added later. A node that has been removed keeps its number and is still followed, since an undo may bring
/// it back. One journal records at a time. Thread of the user interface only.
class Journal final : public ChangeRecorder {
public:
    /// `scene` is the group that holds the top nodes. Call `run` until it returns false, then `record`. The structure
    /// of the scene must not change before that.
    explicit Journal(NxGroup& scene);
    /// Stops recording.
    ~Journal() override;

    /// Gives numbers to nodes for about as long as `budget`. Returns true if there are more.
    bool run(const WorkBudget& budget);
    /// Begins to record, after `run` and while no other journal records.
    void record() noexcept;
    [[nodiscard]] bool isRecording() const noexcept { return attached() == this; }

    [[nodiscard]] NxGroup& scene() const noexcept { return *m_scene; }
    /// How many numbers have been given.
    [[nodiscard]] std::size_t nodeCount() const noexcept { return m_nodes.size(); }
    /// The node with that number; null if it has been destroyed or there is none.
    [[nodiscard]] NxFieldContainer* node(std::size_t number) const noexcept;
    /// The number of a node, or nothing if the journal doesn't follow it.
    [[nodiscard]] std::optional<std::size_t> number(const NxFieldContainer& node) const noexcept;

    /// Calls `hook` with `data` whenever a record is made, directly before the write. It must not write to the scene.
    /// Null for none.
    void setHook(void (*hook)(void*), void* data) noexcept;

    /// Whether anything was written since the last step, even if it was written back.
    [[nodiscard]] bool hasRecords() const noexcept { return !m_records.empty(); }
    /// Whether any bit of the scene differs from its state when the open step began.
    [[nodiscard]] bool hasChanges() const;
    /// The memory of the open step in bytes, approximately.
    [[nodiscard]] std::size_t bytes() const noexcept { return m_bytes; }
    /// Ends the open step and begins another one. Null if the step changed nothing.
    [[nodiscard]] std::unique_ptr<JournalStep> finishStep();
    /// Puts the scene back to its state when the open step began, notifies the observers, and begins another step.
    void revertStep();

    void add(std::unique_ptr<ChangeRecord> record) noexcept override;
    void withdraw() noexcept override;
    [[nodiscard]] bool hasRow(const NxField& list, int row) const noexcept override;
    void noteRow(const NxField& list, int row) override;
    void follow(std::span<NxNode* const> nodes) override;
    void forget(const NxFieldContainer& node) noexcept override;

private:
    [[nodiscard]] bool follows(const NxFieldContainer& node) const noexcept override;
    void makeRoom() override;
    void giveNumber(NxFieldContainer& node);
    void closeRecords() noexcept;

    NxRef<NxGroup> m_scene;
    std::optional<NodeTraversal> m_waiting; // for their numbers
    std::vector<NxFieldContainer*> m_nodes; // by number; null for a node that was destroyed
    JournalStep::Records m_records; // of the open step
    void (*m_hook)(void*) = nullptr;
    void* m_hookData = nullptr;
    std::size_t m_bytes = 0;
    /// The rows with a record of their own since their list last changed its length.
    std::unordered_map<const NxField*, std::unordered_set<int>> m_rows;
    const NxField* m_latestList = nullptr; // whose row was noted last
    int m_latestRow = 0;
};

} // namespace meridane
