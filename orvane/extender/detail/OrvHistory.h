#pragma once

#include <QUndoStack>

#include <cstddef>
#include <memory>

class NxField;
class NxFieldContainer;
class OrvCommand;

/// The undo history: an undo stack of steps, each of which holds the commands of one action of the user, the nodes that
/// they may refer to, and an estimate of its memory.
///
/// The stack can't drop its oldest steps by memory, so the steps beyond the limit stay at its bottom without commands
/// and aren't counted. A command that another one pushes while it is executed belongs to the same step. One that it
/// pushes while it is undone or redone is executed and not kept, since keeping it would drop the steps that can be
/// redone.
class OrvHistory {
public:
    static constexpr std::size_t defaultLimit = std::size_t{256} << 20;

    /// Limits the memory of the stack itself, including the steps without commands.
    static constexpr int maximumSteps = 100'000;

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
    };

    /// Executes the command at once and keeps it.
    void push(std::unique_ptr<OrvCommand> command, const Context& context);
    void undo();
    void redo();
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    [[nodiscard]] int undoDepth() const;
    void setClean();
    [[nodiscard]] bool isClean() const;
    /// Drops everything. If a command calls it, it takes effect when that command returns.
    void clear();

    void setLimit(std::size_t bytes);
    /// The estimate for all steps kept.
    [[nodiscard]] std::size_t bytes() const noexcept { return m_bytes; }

private:
    class CommandBytes;
    class Step;
    enum class Work { None, Executing, Moving };
    class Working;

    void executeInside(std::unique_ptr<OrvCommand> command, const Context& context);
    void trim();
    [[nodiscard]] Step* stepAt(int index) const;

    QUndoStack m_stack;
    std::size_t m_limit = defaultLimit;
    std::size_t m_bytes = 0;
    /// The steps without commands at the bottom of the stack.
    int m_emptySteps = 0;
    Work m_work = Work::None;
    /// The step whose command is being executed.
    Step* m_executing = nullptr;
    bool m_clearLater = false;
};
