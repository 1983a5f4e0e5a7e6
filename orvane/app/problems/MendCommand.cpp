#include "orvane/app/problems/MendCommand.h"

#include <utility>

MendCommand::MendCommand(std::vector<NxSceneProblem> problems, NxSceneMend::Undo undo)
    : m_problems(std::move(problems))
    , m_mend(undo)
{
}

void MendCommand::execute()
{
    m_mend.apply(m_problems);
    // The history must not keep their nodes.
    m_problems = {};
}
