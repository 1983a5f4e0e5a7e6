#include "orvane/app/compare/ComparisonJob.h"

#include <exception>

ComparisonJob::ComparisonJob(
    const NxRef<NxGroup>& scene, const NxRef<NxGroup>& other, const QString& fileName, SliceClock::Clock clock)
    : FileJob(fileName)
    , m_comparison(std::in_place, scene, other)
    , m_clock(clock)
{
}

void ComparisonJob::start()
{
    startSlices();
}

void ComparisonJob::runSlice()
{
    try {
        if (m_comparison->step(SliceClock(m_clock)) == NxSceneComparison::State::Working) {
            Q_EMIT progressed(m_comparison->progress());
            return;
        }
        m_differences = m_comparison->takeDifferences();
    } catch (const std::exception&) {
        fail(tr("The comparison with %1 doesn't fit in memory.").arg(fileName()));
        return;
    }
    finish();
}

void ComparisonJob::release()
{
    m_comparison.reset();
}
