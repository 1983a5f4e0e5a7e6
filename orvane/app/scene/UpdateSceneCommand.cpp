#include "orvane/app/scene/UpdateSceneCommand.h"

#include "orvane/app/scene/SceneDisposal.h"

#include <new>
#include <utility>

UpdateSceneCommand::UpdateSceneCommand(
    NxSceneChanges changes, Undo undo, SceneDisposal& disposal, const std::shared_ptr<bool>& isComplete)
    : m_changes(std::move(changes))
    , m_nodes(undo == Undo::ByCommand ? m_changes.nodes() : std::vector<NxRef<NxNode>>())
    , m_undo(undo)
    , m_disposal(disposal)
    , m_isComplete(isComplete)
{
}

UpdateSceneCommand::~UpdateSceneCommand()
{
    m_changes = {};
    for (NxRef<NxNode>& node : m_nodes)
        m_disposal.dispose(std::move(node));
}

void UpdateSceneCommand::execute()
{
    if (m_undo == Undo::ByCommand) {
        exchange();
        return;
    }
    try {
        m_nodes = m_changes.apply();
    } catch (const std::bad_alloc&) {
        *m_isComplete = false;
    }
}

void UpdateSceneCommand::exchange()
{
    try {
        m_changes.exchange();
    } catch (const std::bad_alloc&) {
        *m_isComplete = false;
    }
}
