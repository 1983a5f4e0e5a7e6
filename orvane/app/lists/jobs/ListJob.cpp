#include "orvane/app/lists/jobs/ListJob.h"

ListJob::ListJob(SliceClock::Clock clock)
    : FileJob(QString())
    , m_clock(clock)
{
}

void ListJob::start()
{
    startSlices();
}

void ListJob::runAll()
{
    while (runPart()) { }
    end();
}

void ListJob::runSlice()
{
    const meridane::WorkBudget slice(partsLength, m_clock);
    do {
        if (!runPart()) {
            end();
            return;
        }
    } while (!slice.isSpent());
    Q_EMIT progressed(share());
}

void ListJob::end()
{
    if (m_failure.isEmpty())
        finish();
    else
        fail(m_failure);
}
