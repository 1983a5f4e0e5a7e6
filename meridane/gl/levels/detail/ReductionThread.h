#pragma once

#include "meridane/gl/levels/detail/MeshReduction.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace meridane {

/// A mesh to be reduced, and the result.
struct ReductionJob {
    MeshCopy mesh; ///< for the thread alone from `add` on, which empties it
    std::vector<ReducedMesh> levels; ///< for the thread alone until `isDone`
    std::atomic<bool> isCancelled = false;
    std::atomic<bool> isDone = false;
};

/// Reduces meshes one after the other in a thread of low priority, which starts with the first job.
class ReductionThread {
public:
    ReductionThread() = default;
    ReductionThread(const ReductionThread&) = delete;
    ReductionThread& operator=(const ReductionThread&) = delete;
    /// Cancels all jobs, and waits until the present one has noticed.
    ~ReductionThread();

    void add(std::shared_ptr<ReductionJob> job);

private:
    void run();

    std::mutex m_mutex;
    std::condition_variable m_added;
    std::deque<std::shared_ptr<ReductionJob>> m_jobs;
    std::shared_ptr<ReductionJob> m_present;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace meridane
