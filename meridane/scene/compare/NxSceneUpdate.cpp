#include "meridane/scene/compare/NxSceneUpdate.h"

#include "meridane/scene/compare/detail/UpdateWork.h"

#include <chrono>
#include <utility>

NxSceneUpdate::NxSceneUpdate(NxRef<NxGroup> scene, NxRef<NxGroup> other)
    : m_scene(std::move(scene))
    , m_other(std::move(other))
    , m_work(std::make_unique<meridane::UpdateWork>(*m_scene, *m_other))
{
}

NxSceneUpdate::~NxSceneUpdate() = default;

NxSceneUpdate::State NxSceneUpdate::step(const meridane::WorkBudget& budget)
{
    if (m_work->isDone())
        return State::Done;
    if (m_work->isOutdated())
        m_work = std::make_unique<meridane::UpdateWork>(*m_scene, *m_other);
    return m_work->step(budget) ? State::Working : State::Done;
}

NxSceneUpdate::State NxSceneUpdate::run()
{
    while (step(std::chrono::hours(1)) == State::Working) { }
    return State::Done;
}

double NxSceneUpdate::progress() const
{
    return m_work->progress();
}

bool NxSceneUpdate::isOutdated() const
{
    return m_work->isOutdated();
}

NxSceneChanges NxSceneUpdate::takeChanges()
{
    return m_work->isDone() ? m_work->take() : NxSceneChanges();
}
