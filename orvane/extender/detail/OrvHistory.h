#pragma once

#include "orvane/extender/detail/HistoryStep.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <utility>

namespace meridane {
class Journal;
}

class NxField;
class NxFieldContainer;
class OrvCommand;

/// The undo history: steps, each of which holds the commands of one action of the user and, with a journal, what the
/// action changed.
///
/// Without a journal, undoing a step only calls the commands' `undo`. With one, it also puts every place of the scene
/// back to its state before the step, bit for bit, whatever the commands did, and whether there were any. A step then
/// ends with `finishStep`, where it is judged: commands that changed nothing join the step before them.
///
/// A command that another one pushes while it is executed belongs to the same step. One that it pushes while it is
/// undone or redone is executed and not kept, since keeping it would drop the steps that can be redone.
class OrvHistory {
public:
    static constexpr std::size_t defaultLimit = std::size_t{256} << 20;

    /// Limits the number of steps.
    static constexpr std::size_t maximumSteps = 100'000;

    OrvHistory();
    OrvHistory(const OrvHistory&) = delete;
    OrvHistory& operator=(const OrvHistory&) = delete;
    ~OrvHistory();

    /// The selection when the command was pushed. A command doesn't expose what it edits, so its size is estimated from
    /// this.
    struct Context {
        /// The action of the user, or -1 for a command outside of any action.
        int action;
        /// The field that the command probably edits, or null; the size of the command is estimated from it. The
        /// command may destroy it.
        NxField* field;
        /// Kept alive as long as the command; either may be null.
        NxFieldContainer* node;
        NxFieldContainer* fieldOwner;
        /// The label of the step; empty for one that is made of what the step changes.
        QString label = {};
    };

    /// How a step is undone and redone with a journal.
    enum class Moves : std::uint8_t {
        Exact, ///< to the bit
        Commands, ///< only as the commands do it
    };

    /// Uses the journal of the scene, or none if null. Drops everything first. The journal must outlive its use here.
    void setJournal(meridane::Journal* journal, Moves moves = Moves::Exact);
    /// Whether a step is undone to the bit, whatever its commands do.
    [[nodiscard]] bool isExact() const noexcept { return m_journal != nullptr && m_moves == Moves::Exact; }

    /// Executes the command at once and keeps it.
    void push(std::unique_ptr<OrvCommand> command, const Context& context);
    /// `finishStep`; what follows has that origin.
    bool beginStep(const HistoryOrigin& origin);
    /// Ends the open step: it is judged and kept. Returns whether there was one that changed something. Does nothing
    /// while a command runs.
    bool finishStep();
    /// Between the calls, all steps join: see `OrvServices::beginEdit`.
    void beginEdit(const QString& label)
    {
        finishStep();
        m_edit = {++m_lastEdit, label};
    }
    void endEdit()
    {
        finishStep();
        m_edit = {};
    }
    /// Between the calls, commands outside of any action form one step: editors push several as they show a field,
    /// which change nothing together.
    void beginGroup();
    void endGroup();
    /// Call them before and after the observers of the scene are called, who form a group. What they write after an
    /// undo or redo is taken back, since an undone step leaves the scene as it was before. `isLast` says whether no
    /// observer waits any more.
    void beginPass();
    void endPass(bool isLast);
    /// Whether commands or changes wait for the end of their step.
    [[nodiscard]] bool isStepOpen() const;

    /// Both return whether there was a step to move over.
    bool undo();
    bool redo();
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    [[nodiscard]] int undoDepth() const;
    /// The labels of the steps that would be undone and redone; empty for the open step.
    [[nodiscard]] QString undoText() const;
    [[nodiscard]] QString redoText() const;
    void setClean();
    /// No state is the saved one until `setClean` is called.
    void forgetClean();
    [[nodiscard]] bool isClean() const;
    /// Drops everything. If a command calls it, it takes effect when that command returns.
    void clear();

    void setLimit(std::size_t bytes);
    [[nodiscard]] std::size_t limit() const noexcept { return m_limit; }
    /// The estimate for all steps kept.
    [[nodiscard]] std::size_t bytes() const noexcept { return m_bytes; }

    /// The finished steps, the oldest first.
    [[nodiscard]] const std::deque<std::unique_ptr<HistoryStep>>& steps() const noexcept { return m_steps; }
    /// How many of the steps are done; the others can be redone.
    [[nodiscard]] std::size_t position() const noexcept { return m_position; }
    /// Whether the state after that many steps is the saved one.
    [[nodiscard]] bool isCleanAt(std::size_t position) const;
    /// The number of the saved state.
    [[nodiscard]] std::uint64_t cleanState() const noexcept { return m_cleanState; }
    /// Whether steps before the oldest one were dropped.
    [[nodiscard]] bool hasDropped() const noexcept { return m_hasDropped; }

    /// How the list of steps has changed.
    struct Changes {
        static constexpr std::size_t none = static_cast<std::size_t>(-1);

        std::size_t dropped = 0; ///< of the oldest steps
        std::size_t first = none; ///< of the steps that are there now, from which on others may be there
        bool hasFinished = false; ///< a step that changed something

        [[nodiscard]] bool areThere() const noexcept { return dropped > 0 || first != none; }
    };
    /// The changes since the last call.
    [[nodiscard]] Changes takeChanges() noexcept { return std::exchange(m_changes, {}); }

private:
    enum class Work { None, Executing, Moving };
    /// What goes on between `beginEdit` and `endEdit`.
    struct Edit {
        int number = HistoryOrigin::none;
        QString label = {};

        [[nodiscard]] bool isOpen() const noexcept { return number != HistoryOrigin::none; }
    };
    class Working;

    void execute(std::unique_ptr<OrvCommand> command, const Context& context);
    bool closeStep();
    void keep(std::unique_ptr<HistoryStep> step);
    void keepWithoutChange(std::unique_ptr<HistoryStep> step);
    [[nodiscard]] bool joins(const HistoryStep& step) const;
    void join(HistoryStep& last, std::unique_ptr<HistoryStep> step);
    /// Returns false while a command runs, which can't move.
    bool endStepToMove();
    /// Puts every place of the step to its state after the move.
    void finishMove(HistoryStep& step, void (meridane::JournalStep::*move)());
    void enterState(std::uint64_t state, HistoryStep& step);
    void dropRedo();
    void trim();
    [[nodiscard]] std::uint64_t stateAt(std::size_t position) const;
    [[nodiscard]] bool hasOpenChanges() const;
    void noteChange(std::size_t first) noexcept { m_changes.first = std::min(m_changes.first, first); }

    meridane::Journal* m_journal = nullptr;
    Moves m_moves = Moves::Exact;
    std::deque<std::unique_ptr<HistoryStep>> m_steps;
    std::size_t m_position = 0;
    /// The commands of the step that is open; null if there are none.
    std::unique_ptr<HistoryStep> m_open;
    HistoryOrigin m_origin;
    Edit m_edit;
    int m_lastEdit = 0;
    std::size_t m_limit = defaultLimit;
    std::size_t m_bytes = 0;
    // Numbers of states of the scene: before the oldest step, now, and when it was saved; and the number given last.
    std::uint64_t m_oldestState = 0;
    std::uint64_t m_state = 0;
    std::uint64_t m_cleanState = 0;
    std::uint64_t m_latestState = 0;
    /// How often writes that answer an undo or redo are still taken back.
    int m_takeBacks = 0;
    int m_groups = 0;
    Work m_work = Work::None;
    Changes m_changes;
    bool m_clearLater = false;
    bool m_hasDropped = false;
    mutable bool m_hasOpenChanges = false; // found already
};
