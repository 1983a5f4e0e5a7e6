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

ChildCommand::ChildCommand(NxGroup* group, NxRef<NxNode> node, int index, SceneDisposal& disposal)
    : m_group(group)
    , m_node(std::move(node))
    , m_index(index)
    , m_disposal(disposal)
{
}

ChildCommand::~ChildCommand()
{
    m_disposal.dispose(std::move(m_node));
}

void ChildCommand::insertNode()
{
    m_group->insertChild(m_node.get(), m_index);
}

void ChildCommand::removeNode()
{
    m_group->removeChild(m_index);
}

RemoveNodeCommand::RemoveNodeCommand(NxGroup* group, int index, SceneDisposal& disposal)
    : ChildCommand(group, NxRef<NxNode>(group->getChild(index)), index, disposal)
{
}

AddNodeCommand::AddNodeCommand(NxGroup* group, NxRef<NxNode> node, SceneDisposal& disposal)
    : ChildCommand(group, std::move(node), group->getNumChildren(), disposal)
{
}
