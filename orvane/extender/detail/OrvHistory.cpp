#include "orvane/extender/detail/OrvHistory.h"

#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/detail/CommandBytes.h"
#include "orvane/extender/detail/ExecuteCommand.h"

#include "meridane/scene/journal/Journal.h"

#include <utility>

namespace {

// An editor that shows a value may write it back in its own precision, once. Observers that answer without end keep
// what they write.
constexpr int mostTakeBacks = 8;

} // namespace

// Records what the history is doing, so that a call by a command is recognised.
class OrvHistory::Working {
public:
    Working(OrvHistory& history, Work work)
        : m_history(history)
    {
        m_history.m_work = work;
    }
    Working(const Working&) = delete;
    Working& operator=(const Working&) = delete;

    ~Working()
    {
        m_history.m_work = Work::None;
        if (std::exchange(m_history.m_clearLater, false))
            m_history.clear();
    }

private:
    OrvHistory& m_history;
};

OrvHistory::OrvHistory() = default;
OrvHistory::~OrvHistory() = default;

void OrvHistory::setJournal(meridane::Journal* journal, Moves moves)
{
    clear();
    m_journal = journal;
    m_moves = moves;
}

void OrvHistory::push(std::unique_ptr<OrvCommand> command, const Context& context)
{
    if (m_work == Work::Executing) {
        execute(std::move(command), context);
        return;
    }
    if (m_work == Work::Moving) {
        orvane::executeCommand(*command);
        return;
    }
    const Working working(*this, Work::Executing);
    const bool isAlone = context.action == HistoryOrigin::none && (m_groups == 0 || m_journal == nullptr);
    if (isAlone || (m_open && m_open->origin().action != context.action))
        closeStep();
    if (!m_open) {
        const bool isOrigin = context.action == m_origin.action;
        m_open = std::make_unique<HistoryStep>(isOrigin ? m_origin : HistoryOrigin{context.action});
        m_open->setGivenLabel(context.label);
    }
    execute(std::move(command), context);
    if (m_journal == nullptr)
        closeStep();
}

void OrvHistory::execute(std::unique_ptr<OrvCommand> command, const Context& context)
{
    const CommandBytes estimate(context.field);
    OrvCommand& executed = *command;
    m_open->add(std::move(command), context.node, context.fieldOwner);
    orvane::executeCommand(executed);
    m_open->addCommandBytes(estimate.afterExecution());
}

bool OrvHistory::beginStep(const HistoryOrigin& origin)
{
    const bool changed = finishStep();
    if (origin.action != HistoryOrigin::none)
        m_takeBacks = 0;
    m_origin = origin;
    return changed;
}

bool OrvHistory::finishStep()
{
    return m_work == Work::None && closeStep();
}

bool OrvHistory::isStepOpen() const
{
    return m_open != nullptr || (m_journal != nullptr && m_journal->hasRecords());
}

bool OrvHistory::closeStep()
{
    m_hasOpenChanges = false;
    if (!isStepOpen())
        return false;
    auto changes = m_journal != nullptr ? m_journal->finishStep() : std::nullopt;
    auto step = std::move(m_open);
    if (!step && !changes)
        return false; // what was written has been written back
    if (!step)
        step = std::make_unique<HistoryStep>(m_origin);
    if (m_edit.isOpen())
        step->setEdit(m_edit.number, m_edit.label);
    const bool changed = m_journal == nullptr || changes.has_value();
    step->setChanges(std::move(changes));
    if (changed)
        keep(std::move(step));
    else
        keepWithoutChange(std::move(step));
    trim();
    m_changes.hasFinished = m_changes.hasFinished || changed;
    return changed;
}

void OrvHistory::beginGroup()
{
    if (m_groups == 0 && m_origin.action == HistoryOrigin::none)
        finishStep();
    ++m_groups;
}

void OrvHistory::endGroup()
{
    --m_groups;
}

void OrvHistory::beginPass()
{
    ++m_groups;
    // What was written before the observers are called is no answer to the undo.
    if (m_takeBacks > 0)
        finishStep();
}

void OrvHistory::endPass(bool isLast)
{
    --m_groups;
    if (m_takeBacks == 0 || m_work != Work::None)
        return;
    if (!isStepOpen()) {
        m_takeBacks = isLast ? 0 : m_takeBacks;
        return;
    }
    --m_takeBacks;
    m_hasOpenChanges = false;
    m_journal->revertStep(); // which may notify them again
    if (auto step = std::move(m_open))
        keepWithoutChange(std::move(step));
}

void OrvHistory::keep(std::unique_ptr<HistoryStep> step)
{
    dropRedo();
    m_state = ++m_latestState;
    if (joins(*step)) {
        join(*m_steps.back(), std::move(step));
        return;
    }
    noteChange(m_position);
    if (m_journal != nullptr)
        step->updateLabel(m_journal->scene());
    step->setState(m_state);
    m_bytes += step->bytes();
    m_steps.push_back(std::move(step));
    ++m_position;
}

// A saved state stays reachable.
bool OrvHistory::joins(const HistoryStep& step) const
{
    if (m_position == 0 || m_cleanState == stateAt(m_position))
        return false;
    return m_journal != nullptr ? m_steps.back()->origin().isContinuedBy(step.origin())
                                : m_steps.back()->origin().isSameAction(step.origin());
}

void OrvHistory::join(HistoryStep& last, std::unique_ptr<HistoryStep> step)
{
    noteChange(m_position - 1);
    m_bytes -= last.bytes();
    last.append(std::move(*step));
    if (m_journal != nullptr)
        last.updateLabel(m_journal->scene());
    m_bytes += last.bytes();
    last.setState(m_state);
    if (m_journal == nullptr || last.changes() != nullptr)
        return;
    // The two together change nothing.
    m_bytes -= last.bytes();
    auto undone = std::move(m_steps.back());
    m_steps.pop_back();
    --m_position;
    m_state = stateAt(m_position);
    if (undone->hasCommands())
        keepWithoutChange(std::move(undone));
}

// Steps that can be redone are kept, since the scene is as it was.
void OrvHistory::keepWithoutChange(std::unique_ptr<HistoryStep> step)
{
    if (m_position > 0) {
        HistoryStep& last = *m_steps[m_position - 1];
        m_bytes -= last.bytes();
        last.appendCommands(std::move(*step));
        m_bytes += last.bytes();
        return;
    }
    noteChange(0);
    step->setState(m_oldestState);
    m_bytes += step->bytes();
    m_steps.push_front(std::move(step));
    ++m_position;
}

bool OrvHistory::undo()
{
    if (!endStepToMove() || m_position == 0)
        return false;
    const Working working(*this, Work::Moving);
    HistoryStep& step = *m_steps[m_position - 1];
    step.undoCommands();
    --m_position;
    finishMove(step, &meridane::JournalStep::undo);
    return true;
}

bool OrvHistory::redo()
{
    if (!endStepToMove() || m_position == m_steps.size())
        return false;
    const Working working(*this, Work::Moving);
    HistoryStep& step = *m_steps[m_position];
    step.redoCommands();
    ++m_position;
    finishMove(step, &meridane::JournalStep::redo);
    return true;
}

bool OrvHistory::endStepToMove()
{
    if (m_work != Work::None)
        return false;
    closeStep();
    return true;
}

void OrvHistory::finishMove(HistoryStep& step, void (meridane::JournalStep::*move)())
{
    if (m_journal != nullptr && m_moves == Moves::Exact) {
        m_journal->moveOver(step.changes(), move);
        m_takeBacks = mostTakeBacks;
    }
    enterState(stateAt(m_position), step);
}

void OrvHistory::enterState(std::uint64_t state, HistoryStep& step)
{
    if (m_journal == nullptr || m_moves == Moves::Exact) {
        m_state = state;
        return;
    }
    // The commands may have left the scene in any state.
    auto moved = m_journal->finishStep();
    if (!moved)
        return;
    const bool isThere = step.changes() != nullptr && step.changes()->isReversedBy(*moved);
    m_state = isThere ? state : ++m_latestState;
    step.setChanges(std::move(moved));
}

bool OrvHistory::canUndo() const
{
    return m_position > 0 || m_open != nullptr || hasOpenChanges();
}

bool OrvHistory::canRedo() const
{
    return m_position < m_steps.size() && !hasOpenChanges();
}

int OrvHistory::undoDepth() const
{
    const bool isStep = hasOpenChanges() || (m_position == 0 && m_open != nullptr);
    return static_cast<int>(m_position) + (isStep ? 1 : 0);
}

QString OrvHistory::undoText() const
{
    return m_position > 0 && !hasOpenChanges() ? m_steps[m_position - 1]->label() : QString();
}

QString OrvHistory::redoText() const
{
    return canRedo() ? m_steps[m_position]->label() : QString();
}

bool OrvHistory::hasOpenChanges() const
{
    if (m_journal == nullptr || !m_journal->hasRecords())
        return false;
    // Not judged for each write again: an action may make many.
    m_hasOpenChanges = m_hasOpenChanges || m_journal->hasChanges();
    return m_hasOpenChanges;
}

void OrvHistory::setClean()
{
    finishStep();
    m_cleanState = m_state;
}

void OrvHistory::forgetClean()
{
    finishStep();
    m_cleanState = ++m_latestState; // of no step
}

bool OrvHistory::isClean() const
{
    return m_cleanState == m_state && !hasOpenChanges();
}

bool OrvHistory::isCleanAt(std::size_t position) const
{
    return m_cleanState == stateAt(position);
}

void OrvHistory::clear()
{
    if (m_work != Work::None) {
        m_clearLater = true;
        return;
    }
    // The destructor of a command may call the history.
    const auto open = std::move(m_open);
    const auto steps = std::exchange(m_steps, {});
    if (m_journal != nullptr)
        static_cast<void>(m_journal->finishStep()); // what it changed stays
    noteChange(0);
    m_hasDropped = false;
    m_position = 0;
    m_bytes = 0;
    m_takeBacks = 0;
    m_state = ++m_latestState;
    m_oldestState = m_state;
    m_cleanState = m_state;
}

void OrvHistory::setLimit(std::size_t bytes)
{
    m_limit = bytes;
    if (m_work == Work::None)
        trim();
}

void OrvHistory::dropRedo()
{
    if (m_steps.size() > m_position)
        noteChange(m_position);
    while (m_steps.size() > m_position) {
        m_bytes -= m_steps.back()->bytes();
        const auto dropped = std::move(m_steps.back());
        m_steps.pop_back();
    }
}

// The newest step stays, whatever its size, so that the last change can always be undone.
void OrvHistory::trim()
{
    while ((m_bytes > m_limit || m_steps.size() > maximumSteps) && m_position > 1) {
        m_oldestState = m_steps.front()->state();
        m_bytes -= m_steps.front()->bytes();
        const auto dropped = std::move(m_steps.front());
        m_steps.pop_front();
        --m_position;
        m_hasDropped = true;
        ++m_changes.dropped;
        if (m_changes.first != Changes::none && m_changes.first > 0)
            --m_changes.first;
    }
}

std::uint64_t OrvHistory::stateAt(std::size_t position) const
{
    return position == 0 ? m_oldestState : m_steps[position - 1]->state();
}
