#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

class SceneDisposal;

/// Gives a node another name.
class RenameNodeCommand : public OrvCommand {
public:
    RenameNodeCommand(NxNode* node, const VbString& name);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    NxRef<NxNode> m_node;
    VbString m_oldName;
    VbString m_newName;
};

/// Takes a child out of a group. The command holds the node while it is in the history, and gives it to the disposal
/// when it goes.
class RemoveNodeCommand : public OrvCommand {
public:
    RemoveNodeCommand(NxGroup* group, int index, SceneDisposal& disposal);
    ~RemoveNodeCommand() override;

    void execute() override;
    void undo() override;
    void redo() override;

private:
    NxRef<NxGroup> m_group;
    NxRef<NxNode> m_node;
    int m_index;
    SceneDisposal& m_disposal;
};

/// Appends a node to a group.
class AddNodeCommand : public OrvCommand {
public:
    AddNodeCommand(NxGroup* group, NxRef<NxNode> node, SceneDisposal& disposal);
    ~AddNodeCommand() override;

    void execute() override;
    void undo() override;
    void redo() override;

private:
    NxRef<NxGroup> m_group;
    NxRef<NxNode> m_node;
    SceneDisposal& m_disposal;
};
