#include "meridane/gl/levels/detail/ReductionThread.h"

#include <new>
#include <utility>

#include <unistd.h>

namespace meridane {
namespace {

/// Without memory for it, the mesh keeps its detail.
void reduce(ReductionJob& job)
{
    if (job.isCancelled)
        return;
    try {
        job.levels = reducedMeshes(job.mesh, job.isCancelled);
    } catch (const std::bad_alloc&) {
        job.levels.clear();
    }
}

} // namespace

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
    constexpr int lowPriority = 5;
    static_cast<void>(::nice(lowPriority));
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_added.wait(lock, [this] { return m_isEnding || !m_jobs.empty(); });
        if (m_isEnding)
            return;
        m_present = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        reduce(*m_present);
        m_present->mesh = MeshCopy();
        m_present->isDone = true;
        lock.lock();
        m_present.reset();
    }
}

} // namespace meridane
