#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/scene/check/NxSceneMend.h"

#include <vector>

/// Mends problems of the scene.
class MendCommand final : public OrvCommand {
public:
    MendCommand(std::vector<NxSceneProblem> problems, NxSceneMend::Undo undo);

    void execute() override;
    void undo() override { m_mend.undo(); }
    void redo() override { m_mend.redo(); }

private:
    std::vector<NxSceneProblem> m_problems; // until they are mended
    NxSceneMend m_mend;
};
