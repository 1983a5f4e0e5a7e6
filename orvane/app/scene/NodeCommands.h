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

/// Appends a node to a group. The command keeps the node alive while it is in the history, and passes it to the
/// disposal in its destructor.
class AddNodeCommand final : public OrvCommand {
public:
    AddNodeCommand(NxGroup* group, NxRef<NxNode> node, SceneDisposal& disposal);
    ~AddNodeCommand() override;

    void execute() override;
    void undo() override;
    void redo() override;

private:
    NxRef<NxGroup> m_group;
    NxRef<NxNode> m_node;
    int m_index; // of the node in the group
    SceneDisposal& m_disposal;
};
