#include "meridane/scene/check/NxSceneMend.h"

#include "meridane/scene/check/detail/MendRecorder.h"
#include "meridane/scene/check/detail/SiblingMends.h"
#include "meridane/scene/check/detail/ValueMends.h"

NxSceneMend::NxSceneMend(Undo undo)
    : m_recorder(std::make_unique<meridane::MendRecorder>(undo == Undo::ByMend))
{
}

NxSceneMend::~NxSceneMend() = default;

std::size_t NxSceneMend::apply(std::span<const NxSceneProblem> problems)
{
    std::size_t mended = 0;
    meridane::SiblingMends siblings;
    for (const NxSceneProblem& problem : problems) {
        if (problem.group)
            siblings.add(problem);
        else if (meridane::mendValues(problem, *m_recorder))
            ++mended;
    }
    return mended + siblings.apply(*m_recorder);
}

void NxSceneMend::undo()
{
    m_recorder->undo();
}

void NxSceneMend::redo()
{
    m_recorder->redo();
}
