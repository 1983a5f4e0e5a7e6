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

/// Base of the commands that put a node into a group or take it out. The command keeps the node alive while it is in
/// the history, and passes it to the disposal in its destructor.
class ChildCommand : public OrvCommand {
protected:
    /// `index` is the node's place among the children of `group`, while it is one of them.
    ChildCommand(NxGroup* group, NxRef<NxNode> node, int index, SceneDisposal& disposal);
    ~ChildCommand() override;

    void insertNode();
    void removeNode();

private:
    NxRef<NxGroup> m_group;
    NxRef<NxNode> m_node;
    int m_index;
    SceneDisposal& m_disposal;
};

/// Removes a child from a group.
class RemoveNodeCommand final : public ChildCommand {
public:
    RemoveNodeCommand(NxGroup* group, int index, SceneDisposal& disposal);

    void execute() override { removeNode(); }
    void undo() override { insertNode(); }
    void redo() override { removeNode(); }
};

/// Appends a node to a group.
class AddNodeCommand final : public ChildCommand {
public:
    AddNodeCommand(NxGroup* group, NxRef<NxNode> node, SceneDisposal& disposal);

    void execute() override { insertNode(); }
    void undo() override { removeNode(); }
    void redo() override { insertNode(); }
};
