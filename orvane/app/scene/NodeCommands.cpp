#include "orvane/app/scene/NodeCommands.h"

#include "orvane/app/scene/SceneDisposal.h"

#include <utility>

RenameNodeCommand::RenameNodeCommand(NxNode* node, const VbString& name)
    : m_node(node)
    , m_oldName(node->getName())
    , m_newName(name)
{
}

void RenameNodeCommand::execute()
{
    m_node->setName(m_newName);
}

void RenameNodeCommand::undo()
{
    m_node->setName(m_oldName);
}

void RenameNodeCommand::redo()
{
    execute();
}

AddNodeCommand::AddNodeCommand(NxGroup* group, NxRef<NxNode> node, SceneDisposal& disposal)
    : m_group(group)
    , m_node(std::move(node))
    , m_index(group->getNumChildren())
    , m_disposal(disposal)
{
}

AddNodeCommand::~AddNodeCommand()
{
    m_disposal.dispose(std::move(m_node));
}

void AddNodeCommand::execute()
{
    m_group->insertChild(m_node.get(), m_index);
}

void AddNodeCommand::undo()
{
    m_group->removeChild(m_index);
}

void AddNodeCommand::redo()
{
    execute();
}
