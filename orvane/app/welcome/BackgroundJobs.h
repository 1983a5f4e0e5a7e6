#pragma once

#include <chrono>
#include <functional>
#include <memory>

class QObject;

/// Work that asks the file system, in threads of its own: a drive that doesn't answer keeps a thread for ever, but
/// never the window. Results come back to the thread that made the object, from its event loop.
class BackgroundJobs {
public:
    /// What is done with a result, in the thread of the owner.
    using Take = std::function<void()>;
    /// Runs in another thread, and must own everything that it uses.
    using Job = std::function<Take()>;

    /// At most so many threads work at a time; each ends when there is nothing to do.
    explicit BackgroundJobs(int mostThreads);
    /// Doesn't wait. What isn't begun is dropped, and no result is taken any more.
    ~BackgroundJobs();
    BackgroundJobs(const BackgroundJobs&) = delete;
    BackgroundJobs& operator=(const BackgroundJobs&) = delete;

    void run(Job job);
    /// Waits until all is done, but not longer than that. False if some is left.
    bool wait(std::chrono::milliseconds patience);

private:
    struct Shared;
    static void work(const std::shared_ptr<Shared>& shared);

    std::unique_ptr<QObject> m_receiver;
    std::shared_ptr<Shared> m_shared; // with the threads, which may outlive this
};
