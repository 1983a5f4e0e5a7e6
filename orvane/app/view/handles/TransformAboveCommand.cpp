#include "orvane/app/view/handles/TransformAboveCommand.h"

#include <array>

TransformAboveCommand::TransformAboveCommand(NxGroup* group, int index)
    : m_group(group)
    , m_child(group->getChild(index))
    , m_transform(new NxTransform)
    , m_index(index)
{
}

void TransformAboveCommand::replace(NxNode* node)
{
    m_group->replaceChildren(m_index, 1, std::array{node});
}

void TransformAboveCommand::execute()
{
    m_transform->addChild(m_child.get());
    replace(m_transform.get());
}

void TransformAboveCommand::undo()
{
    replace(m_child.get());
    m_transform->removeAllChildren();
}

void TransformAboveCommand::redo()
{
    execute();
}
