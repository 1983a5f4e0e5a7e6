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
/// The stack cannot give up its oldest steps by memory, so the steps beyond the bound stay in it without commands, at
/// the bottom, and count as gone. What a command pushes while it is executed belongs to its step; what it pushes while
/// it is undone or redone is executed and not kept, for keeping it would cut off the steps that can still be redone.
class OrvHistory {
public:
    static constexpr std::size_t defaultLimit = std::size_t{256} << 20;

    /// Bounds what the stack itself takes, the steps without commands included.
    static constexpr int maximumSteps = 100'000;

    OrvHistory();
    OrvHistory(const OrvHistory&) = delete;
    OrvHistory& operator=(const OrvHistory&) = delete;
    ~OrvHistory();

    /// What stands in for the command's own knowledge of what it deals with.
    struct Context {
        /// The action of the user, or -1 for a command that stands alone.
        int action;
        /// The field that the command is about as far as one can tell, or null. Its size gives the command's. The
        /// command may destroy it.
        NxField* field;
        /// Held alive together with the command; either may be null.
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
    /// Drops everything. From within a command it takes effect when that one returns.
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
