#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/scene/compare/NxSceneChanges.h"

#include <memory>
#include <vector>

class SceneDisposal;

/// Makes the scene equal to another one. The nodes that it adds or removes go to the disposal with the command.
class UpdateSceneCommand final : public OrvCommand {
public:
    /// How the command is undone.
    enum class Undo {
        ByCommand, ///< it keeps what it has changed
        ByHistory, ///< the history undoes it, so that nothing need be kept twice
    };

    /// `isComplete` becomes false if there isn't enough memory for the changes, and some are made.
    UpdateSceneCommand(
        NxSceneChanges changes, Undo undo, SceneDisposal& disposal, const std::shared_ptr<bool>& isComplete);
    ~UpdateSceneCommand() override;

    void execute() override;
    void undo() override { exchange(); }
    void redo() override { exchange(); }

private:
    void exchange();

    NxSceneChanges m_changes; // none left if the history undoes them
    std::vector<NxRef<NxNode>> m_nodes;
    Undo m_undo;
    SceneDisposal& m_disposal;
    std::shared_ptr<bool> m_isComplete;
};
