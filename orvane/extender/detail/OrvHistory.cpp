#include "orvane/extender/detail/OrvHistory.h"

#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/detail/FieldWatch.h"

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/NxRef.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace {

// The memory of a step without its commands, and of a command without its texts.
constexpr std::size_t bytesPerStep = 320;
constexpr std::size_t bytesPerCommand = 64;
constexpr std::size_t bytesPerText = 48;
// A value of four bytes has up to sixteen characters with its separator; others have fewer for each byte.
constexpr std::size_t textBytesPerValueByte = 4;

} // namespace

// Estimates the memory of a command from the field before the execution and after it. A command on a single value keeps
// two texts of it. One on a list keeps two texts of a row, and the texts of the rows that it removes. The execution may
// destroy the field.
class OrvHistory::CommandBytes {
public:
    explicit CommandBytes(NxField* field)
        : m_field(field)
        , m_rows(rows(1))
        , m_rowBytes(field != nullptr && m_rows > 0 ? field->valueBytes() / static_cast<std::size_t>(m_rows) : 0)
    {
    }

    [[nodiscard]] std::size_t afterExecution() const
    {
        const int removedRows = std::max(0, m_rows - rows(m_rows));
        const auto texts = 2 + static_cast<std::size_t>(removedRows);
        return bytesPerCommand + texts * (bytesPerText + textBytesPerValueByte * m_rowBytes);
    }

private:
    [[nodiscard]] int rows(int withoutList) const
    {
        const auto* list = dynamic_cast<const NxMField*>(m_field.getAttachedField());
        return list != nullptr ? list->getNum() : withoutList;
    }

    FieldWatch m_field;
    int m_rows;
    std::size_t m_rowBytes;
};

// The commands of one action. The first redo(), which the stack calls as the step is pushed, executes the command.
class OrvHistory::Step : public QUndoCommand {
public:
    Step(OrvHistory& history, std::unique_ptr<OrvCommand> command, const Context& context)
        : m_history(history)
        , m_firstEstimate(std::make_unique<CommandBytes>(context.field))
        , m_action(context.action)
    {
        add(std::move(command), context);
        setBytes(bytesPerStep);
    }

    ~Step() override
    {
        setBytes(0);
        if (m_isEmptied)
            --m_history.m_emptySteps;
    }

    [[nodiscard]] int id() const override { return m_action; }

    void redo() override
    {
        if (const auto estimate = std::move(m_firstEstimate)) {
            execute(*estimate);
            return;
        }
        for (const auto& command : m_commands)
            command->redo();
    }

    void undo() override
    {
        std::for_each(m_commands.rbegin(), m_commands.rend(), [](const auto& command) { command->undo(); });
    }

    bool mergeWith(const QUndoCommand* other) override
    {
        // The stack destroys the other step next, so its commands may be taken.
        auto& step = const_cast<Step&>(static_cast<const Step&>(*other));
        std::ranges::move(step.m_commands, std::back_inserter(m_commands));
        for (const auto& node : step.m_nodes)
            hold(node.get());
        setBytes(m_bytes + step.m_bytes - bytesPerStep);
        return true;
    }

    // Adds a command that is pushed while one of this step is executed, and executes it.
    void executeInside(std::unique_ptr<OrvCommand> command, const Context& context)
    {
        const CommandBytes estimate(context.field);
        add(std::move(command), context);
        execute(estimate);
    }

    // Destroys the commands, then releases the nodes that they referred to.
    void empty()
    {
        m_commands = std::vector<std::unique_ptr<OrvCommand>>();
        m_nodes = std::vector<NxRef<NxFieldContainer>>();
        setBytes(0);
        m_isEmptied = true;
        ++m_history.m_emptySteps;
    }

private:
    void add(std::unique_ptr<OrvCommand> command, const Context& context)
    {
        m_commands.push_back(std::move(command));
        hold(context.node);
        hold(context.fieldOwner);
    }

    void hold(NxFieldContainer* node)
    {
        if (node != nullptr && std::ranges::find(m_nodes, NxRef(node)) == m_nodes.end())
            m_nodes.emplace_back(node);
    }

    void execute(const CommandBytes& estimate)
    {
        OrvCommand& command = *m_commands.back();
        command.execute();
        setBytes(m_bytes + estimate.afterExecution());
    }

    void setBytes(std::size_t bytes)
    {
        m_history.m_bytes += bytes - m_bytes;
        m_bytes = bytes;
    }

    OrvHistory& m_history;
    /// Until the first execution.
    std::unique_ptr<CommandBytes> m_firstEstimate;
    int m_action;
    std::size_t m_bytes = 0;
    bool m_isEmptied = false;
    // Declared after the nodes, so that the commands are destroyed first.
    std::vector<NxRef<NxFieldContainer>> m_nodes;
    std::vector<std::unique_ptr<OrvCommand>> m_commands;
};

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
        m_history.m_executing = nullptr;
        if (std::exchange(m_history.m_clearLater, false))
            m_history.clear();
    }

private:
    OrvHistory& m_history;
};

OrvHistory::OrvHistory()
{
    m_stack.setUndoLimit(maximumSteps);
}

OrvHistory::~OrvHistory()
{
    // Here, while the members that the steps use still exist.
    m_stack.clear();
}

void OrvHistory::push(std::unique_ptr<OrvCommand> command, const Context& context)
{
    if (m_work == Work::Executing) {
        m_executing->executeInside(std::move(command), context);
        return;
    }
    if (m_work == Work::Moving) {
        command->execute();
        return;
    }
    const Working working(*this, Work::Executing);
    m_executing = new Step(*this, std::move(command), context);
    m_stack.push(m_executing);
    trim();
}

void OrvHistory::undo()
{
    if (m_work != Work::None || !canUndo())
        return;
    const Working working(*this, Work::Moving);
    m_stack.undo();
}

void OrvHistory::redo()
{
    if (m_work != Work::None)
        return;
    const Working working(*this, Work::Moving);
    m_stack.redo();
}

bool OrvHistory::canUndo() const
{
    return undoDepth() > 0;
}

bool OrvHistory::canRedo() const
{
    return m_stack.canRedo();
}

int OrvHistory::undoDepth() const
{
    return m_stack.index() - m_emptySteps;
}

void OrvHistory::setClean()
{
    m_stack.setClean();
}

bool OrvHistory::isClean() const
{
    return m_stack.isClean();
}

void OrvHistory::clear()
{
    if (m_work != Work::None)
        m_clearLater = true;
    else
        m_stack.clear();
}

void OrvHistory::setLimit(std::size_t bytes)
{
    m_limit = bytes;
    if (m_work == Work::None)
        trim();
}

// The newest step stays, whatever its size, so that the last change can always be undone.
void OrvHistory::trim()
{
    while (m_bytes > m_limit && m_emptySteps < m_stack.index() - 1)
        stepAt(m_emptySteps)->empty();
}

OrvHistory::Step* OrvHistory::stepAt(int index) const
{
    // The stack returns its commands as constants, although it got them from here.
    return static_cast<Step*>(const_cast<QUndoCommand*>(m_stack.command(index)));
}
