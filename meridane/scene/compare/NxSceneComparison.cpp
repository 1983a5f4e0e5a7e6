#include "meridane/scene/compare/NxSceneComparison.h"

#include "meridane/scene/compare/detail/ComparisonWork.h"

#include <chrono>
#include <utility>

NxSceneComparison::NxSceneComparison(NxRef<NxGroup> left, NxRef<NxGroup> right)
    : m_left(std::move(left))
    , m_right(std::move(right))
    , m_work(std::make_unique<meridane::ComparisonWork>(*m_left, *m_right))
{
}

NxSceneComparison::~NxSceneComparison() = default;

NxSceneComparison::State NxSceneComparison::step(const meridane::WorkBudget& budget)
{
    if (m_work == nullptr)
        return State::Done;
    if (m_work->isOutdated())
        m_work = std::make_unique<meridane::ComparisonWork>(*m_left, *m_right);
    if (m_work->step(budget))
        return State::Working;
    m_differences = m_work->take();
    m_work.reset();
    return State::Done;
}

NxSceneComparison::State NxSceneComparison::run()
{
    while (step(std::chrono::hours(1)) == State::Working) { }
    return State::Done;
}

double NxSceneComparison::progress() const
{
    return m_work == nullptr ? 1 : m_work->progress();
}

NxSceneDifferences NxSceneComparison::takeDifferences()
{
    return std::exchange(m_differences, NxSceneDifferences());
}
