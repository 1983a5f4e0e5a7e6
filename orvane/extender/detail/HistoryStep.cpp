#include "orvane/extender/detail/HistoryStep.h"

#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/detail/CallExtensions.h"

#include "meridane/scene/fields/NxFieldContainer.h"

#include <algorithm>
#include <iterator>

namespace {

// The memory of a step without its commands and changes.
constexpr std::size_t bytesPerStep = 320;

} // namespace

HistoryStep::HistoryStep(const HistoryOrigin& origin)
    : m_origin(origin)
{
}

HistoryStep::~HistoryStep() = default;

void HistoryStep::add(std::unique_ptr<OrvCommand> command, NxFieldContainer* node, NxFieldContainer* fieldOwner)
{
    m_commands.push_back(std::move(command));
    hold(node);
    hold(fieldOwner);
}

// What one command throws doesn't keep the step from being undone: the journal knows what it has to be.
void HistoryStep::undoCommands()
{
    std::for_each(m_commands.rbegin(), m_commands.rend(), [](const auto& command) {
        orvane::callExtensions(QStringLiteral("the undo of a command"), [&] { command->undo(); });
    });
}

void HistoryStep::redoCommands()
{
    for (const auto& command : m_commands)
        orvane::callExtensions(QStringLiteral("the redo of a command"), [&] { command->redo(); });
}

void HistoryStep::updateLabel(const NxGroup& scene)
{
    if (!m_changes)
        m_label = {};
    else if (m_givenLabel.isEmpty())
        m_label = orvane::labelOf(*m_changes, scene);
    else
        m_label = {m_givenLabel, {}};
}

void HistoryStep::setEdit(int number, const QString& label)
{
    m_origin.edit = number;
    if (m_givenLabel.isEmpty())
        m_givenLabel = label;
}

void HistoryStep::appendCommands(HistoryStep&& step)
{
    std::ranges::move(step.m_commands, std::back_inserter(m_commands));
    for (const auto& node : step.m_nodes)
        hold(node.get());
    m_commandBytes += step.m_commandBytes;
}

void HistoryStep::append(HistoryStep&& step)
{
    if (!m_changes)
        m_changes = std::move(step.m_changes);
    else if (step.m_changes && !m_changes->append(std::move(*step.m_changes)))
        m_changes.reset();
    appendCommands(std::move(step));
}

std::size_t HistoryStep::bytes() const
{
    return bytesPerStep + m_commandBytes + (m_changes ? m_changes->bytes() : 0);
}

void HistoryStep::hold(NxFieldContainer* node)
{
    if (node != nullptr && std::ranges::find(m_nodes, NxRef(node)) == m_nodes.end())
        m_nodes.emplace_back(node);
}
