#pragma once

#include "orvane/extender/detail/StepLabel.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/journal/JournalStep.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class NxFieldContainer;
class NxGroup;
class OrvCommand;

/// What a step of the history belongs to.
struct HistoryOrigin {
    static constexpr int none = -1;

    /// The action of the user.
    int action = none;
    /// The text that the user types, the same number for all keys that belong together.
    int typing = none;
    /// The edit between `OrvServices::beginEdit` and `endEdit`.
    int edit = none;

    [[nodiscard]] bool isSameAction(const HistoryOrigin& next) const noexcept
    {
        return action != none && action == next.action;
    }
    /// Whether changes of that origin, which follow directly, belong to the same step: those of one action, the keys
    /// that are typed into one line, and all of one edit.
    [[nodiscard]] bool isContinuedBy(const HistoryOrigin& next) const noexcept
    {
        if (next.edit != none)
            return edit == next.edit;
        return isSameAction(next) || (typing != none && typing == next.typing);
    }
};

/// One step of the undo history: the commands of one action of the user, the nodes that they may refer to, and what the
/// action changed in the scene.
class HistoryStep {
public:
    explicit HistoryStep(const HistoryOrigin& origin);
    HistoryStep(const HistoryStep&) = delete;
    HistoryStep& operator=(const HistoryStep&) = delete;
    ~HistoryStep();

    [[nodiscard]] const HistoryOrigin& origin() const noexcept { return m_origin; }
    /// When the step began.
    [[nodiscard]] std::chrono::system_clock::time_point time() const noexcept { return m_time; }

    /// Takes a command, and keeps the nodes alive as long; either may be null.
    void add(std::unique_ptr<OrvCommand> command, NxFieldContainer* node, NxFieldContainer* fieldOwner);
    [[nodiscard]] bool hasCommands() const noexcept { return !m_commands.empty(); }
    /// Adds to the estimate of the memory of the commands.
    void addCommandBytes(std::size_t bytes) noexcept { m_commandBytes += bytes; }
    /// Calls `undo` of the commands, the last one first.
    void undoCommands();
    /// Calls `redo` of the commands, the first one first.
    void redoCommands();

    /// What the step changed; null for a step that changed nothing, and without a journal.
    [[nodiscard]] meridane::JournalStep* changes() noexcept { return m_changes ? &*m_changes : nullptr; }
    [[nodiscard]] const meridane::JournalStep* changes() const noexcept { return m_changes ? &*m_changes : nullptr; }
    /// Says in some words what the step changed; empty without changes.
    [[nodiscard]] const QString& label() const noexcept { return m_label.text; }
    /// The class of the node that the step changed; the bad type if it is about none or several.
    [[nodiscard]] NxType nodeType() const noexcept { return m_label.nodeType; }
    void setChanges(std::optional<meridane::JournalStep> changes) { m_changes = std::move(changes); }
    /// Makes the label. `scene` holds the top nodes. The scene is in the state directly after the step.
    void updateLabel(const NxGroup& scene);
    /// Sets what `updateLabel` uses in place of words of its own; empty for nothing.
    void setGivenLabel(const QString& text) { m_givenLabel = text; }
    /// Makes it a part of an edit, whose label may be empty.
    void setEdit(int number, const QString& label);

    /// Appends the commands of a step that changed nothing.
    void appendCommands(HistoryStep&& step);
    /// Appends a step that directly followed this one. The scene is in the state after that step. If the two together
    /// change nothing, there are no changes left.
    void append(HistoryStep&& step);

    /// The memory in bytes, estimated.
    [[nodiscard]] std::size_t bytes() const;

    /// A number of the scene's state after the step. Equal states have equal numbers.
    [[nodiscard]] std::uint64_t state() const noexcept { return m_state; }
    void setState(std::uint64_t state) noexcept { m_state = state; }

private:
    void hold(NxFieldContainer* node);

    HistoryOrigin m_origin;
    orvane::StepLabel m_label;
    QString m_givenLabel;
    std::chrono::system_clock::time_point m_time = std::chrono::system_clock::now();
    std::size_t m_commandBytes = 0;
    std::uint64_t m_state = 0;
    std::optional<meridane::JournalStep> m_changes;
    // Declared after the nodes, so that the commands are destroyed first.
    std::vector<NxRef<NxFieldContainer>> m_nodes;
    std::vector<std::unique_ptr<OrvCommand>> m_commands;
};
