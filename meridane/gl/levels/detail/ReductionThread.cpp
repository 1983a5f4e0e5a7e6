#include "meridane/gl/levels/detail/ReductionThread.h"

#include <utility>

#include <unistd.h>

namespace meridane {

ReductionThread::~ReductionThread()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
        m_jobs.clear();
        if (m_present)
            m_present->isCancelled = true;
    }
    m_added.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void ReductionThread::add(std::shared_ptr<ReductionJob> job)
{
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(job));
    }
    if (!m_thread.joinable())
        m_thread = std::thread([this] { run(); });
    m_added.notify_all();
}

void ReductionThread::run()
{
    // Drawing on the processor goes first. On Linux this concerns only the calling thread.
    constexpr int lowPriority = 10;
    static_cast<void>(::nice(lowPriority));
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_added.wait(lock, [this] { return m_isEnding || !m_jobs.empty(); });
        if (m_isEnding)
            return;
        m_present = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        if (!m_present->isCancelled)
            m_present->levels = reducedMeshes(m_present->mesh, m_present->isCancelled);
        m_present->mesh = MeshCopy();
        m_present->isDone = true;
        lock.lock();
        m_present.reset();
    }
}

} // namespace meridane
