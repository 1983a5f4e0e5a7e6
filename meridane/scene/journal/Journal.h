#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/ChangeRecorder.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/journal/JournalListener.h"
#include "meridane/scene/journal/JournalStep.h"
#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <unordered_map>
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
    /// Follows the nodes of a tree that is about to be added to the scene, so that adding it takes no time however many
    /// they are. `tree` is a journal of it whose `run` has ended; the tree must not have changed its structure since.
    /// May throw `std::bad_alloc`, then nothing has changed.
    void adopt(const Journal& tree);
    /// Whether this is the journal that records.
    [[nodiscard]] bool isRecording() const noexcept { return attached() == this; }

    /// The group that holds the top nodes.
    [[nodiscard]] NxGroup& scene() const noexcept { return *m_scene; }
    /// How many numbers have been given.
    [[nodiscard]] std::size_t nodeCount() const noexcept { return m_nodes.size(); }
    /// The node with that number; null if it has been destroyed or there is none.
    [[nodiscard]] NxFieldContainer* node(std::size_t number) const noexcept;
    /// The number of a node, or nothing if the journal doesn't follow it.
    [[nodiscard]] std::optional<std::size_t> number(const NxFieldContainer& node) const noexcept;

    /// The listener is informed of changes from now on, until it is removed. It must outlive that.
    void addListener(JournalListener& listener);
    /// Informs the listener no more. Not from within a call of a listener.
    void removeListener(JournalListener& listener) noexcept;
    /// Of further writes to a place within a step, listeners hear only of the first. Call this to be informed of the
    /// next write to the field again, or to the name of the node; the step takes no second record for that. The node
    /// must be followed. May throw `std::bad_alloc`, then nothing has changed.
    void reportAgain(NxField& field);
    /// The same for the name of a node.
    void reportAgain(NxFieldContainer& node);
    /// The same for all places that were written since the last step.
    void reportAllAgain();

    /// Whether anything was written since the last step, even if it was written back.
    [[nodiscard]] bool hasRecords() const noexcept { return !m_records.empty(); }
    /// Whether any bit of the scene differs from its state when the open step began.
    [[nodiscard]] bool hasChanges() const;
    /// The records of the open step, in the order of the writes.
    [[nodiscard]] std::span<const std::unique_ptr<ChangeRecord>> records() const noexcept { return m_records; }
    /// The memory of the open step in bytes, approximately.
    [[nodiscard]] std::size_t bytes() const noexcept { return m_bytes; }
    /// Ends the open step and begins another one. Nothing if the step changed nothing.
    [[nodiscard]] std::optional<JournalStep> finishStep();
    /// Undoes or redoes a step, as `move` says, whatever the open step did before, such as the commands of the step.
    /// Begins another open step. Null for a step without changes.
    void moveOver(JournalStep* step, void (JournalStep::*move)());
    /// If the open step has done all that undoing or redoing that step would do (see `JournalStep::takeMove`): the step
    /// takes it over, and another open step begins. Returns whether it was so.
    [[nodiscard]] bool giveMove(JournalStep& step);
    /// Puts the scene back to its state when the open step began, notifies the observers, and begins another step.
    void revertStep();

    void add(std::unique_ptr<ChangeRecord> record) noexcept override;
    void noteExchange(const ChangeRecord& record) noexcept override;
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
    /// Whether the open step needs no record of that place, since it has an earlier one.
    [[nodiscard]] bool isHeld(const ChangeRecord& record) const noexcept;
    void inform(const PlaceChange& change) noexcept;

    /// The rows with a record of their own since their list last changed its length.
    struct ListRows {
        std::unordered_map<int, unsigned int> rounds; // in which a row was reported last
        unsigned int round = 0; // counts the calls of `reportAgain`
    };

    NxRef<NxGroup> m_scene;
    std::optional<NodeTraversal> m_waiting; // for their numbers
    /// By number; null for a node that was destroyed. A deque, which grows without being moved.
    std::deque<NxFieldContainer*> m_nodes;
    /// For each tree that was adopted, the difference between the numbers here and those that its nodes have.
    std::vector<std::size_t> m_adopted;
    JournalStep::Records m_records; // of the open step
    bool m_hasLatest = false; // the last of them is of the latest write
    PlaceChange m_latest;
    std::vector<JournalListener*> m_listeners;
    std::size_t m_bytes = 0;
    std::unordered_map<const NxField*, ListRows> m_rows;
    bool m_areRowsReopened = false;
    /// What the open step has of fields and nodes whose next write is reported again.
    std::unordered_map<const void*, Marks> m_reopened;
    const NxField* m_latestList = nullptr; // whose row was noted last
    int m_latestRow = 0;
};

} // namespace meridane
