#pragma once

#include "meridane/scene/fields/ChangeRecord.h"

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace meridane {

/// The changes of one step, with which it can be undone and redone exactly. It keeps the nodes alive that it changed.
/// Thread of the user interface only.
class JournalStep {
public:
    /// Records in the order of the writes.
    using Records = std::vector<std::unique_ptr<ChangeRecord>>;

    /// The records in the order of the writes, at least one.
    explicit JournalStep(Records records);
    /// Takes over the records; the other step may only be destroyed or assigned to.
    JournalStep(JournalStep&&) noexcept = default;
    /// Takes over the records and destroys the present ones; the other step may only be destroyed or assigned to.
    JournalStep& operator=(JournalStep&&) noexcept = default;
    ~JournalStep();

    /// The changes in the order in which they happened. Records of places that the step changed and changed back aren't
    /// among them.
    [[nodiscard]] std::span<const std::unique_ptr<ChangeRecord>> records() const noexcept
    {
        return m_only != nullptr ? std::span(&m_only, 1) : std::span(m_several);
    }
    /// The approximate memory in bytes.
    [[nodiscard]] std::size_t bytes() const noexcept { return m_bytes; }

    /// Puts every changed place back to its state before the step, then notifies the observers of each place once. The
    /// scene must be in the state directly after the step.
    void undo();
    /// The opposite: the scene must be in the state directly before the step.
    void redo();

    /// Whether a write has done all that `undo`, or `redo`, would do: `record` is of that write, directly after the
    /// step or directly before it. Then the record is taken over in place of the step's own, and the observers are
    /// notified. Only recognizes steps that changed one value, flag or name as a whole.
    [[nodiscard]] bool takeMove(std::unique_ptr<ChangeRecord>& record);

    /// Appends a step that directly followed this one. Returns false if the two together changed nothing; then the step
    /// is of no further use. The scene must be in the state directly after the other step.
    bool append(JournalStep&& next);

    /// Whether a step that directly followed this one has put everything back. The scene must be in the state directly
    /// after that step.
    [[nodiscard]] bool isReversedBy(const JournalStep& next) const;

private:
    void set(Records records);
    [[nodiscard]] Records take();

    // Most steps have one record, and going back through many steps is as slow as the memory that it visits.
    std::unique_ptr<ChangeRecord> m_only;
    Records m_several; // empty if there is only one
    std::size_t m_bytes = 0;
};

} // namespace meridane
