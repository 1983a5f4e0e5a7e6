#include "orvane/app/welcome/BackgroundJobs.h"

#include <QObject>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

struct BackgroundJobs::Shared {
    std::mutex mutex;
    std::condition_variable ended; // the last thread, that is
    std::deque<Job> waiting;
    QObject* receiver = nullptr; // null when the results aren't wanted any more
    int threads = 0;
    int mostThreads = 1;
};

BackgroundJobs::BackgroundJobs(int mostThreads)
    : m_receiver(std::make_unique<QObject>())
    , m_shared(std::make_shared<Shared>())
{
    m_shared->receiver = m_receiver.get();
    m_shared->mostThreads = mostThreads;
}

BackgroundJobs::~BackgroundJobs()
{
    const std::lock_guard lock(m_shared->mutex);
    m_shared->receiver = nullptr;
    m_shared->waiting.clear();
}

void BackgroundJobs::run(Job job)
{
    const std::lock_guard lock(m_shared->mutex);
    m_shared->waiting.push_back(std::move(job));
    if (m_shared->threads == m_shared->mostThreads)
        return;
    try {
        std::thread(&BackgroundJobs::work, m_shared).detach();
        ++m_shared->threads;
    } catch (const std::system_error&) {
        // Without another thread the ones that there are do it, or nobody: it is about marks and pictures.
    }
}

bool BackgroundJobs::wait(std::chrono::milliseconds patience)
{
    std::unique_lock lock(m_shared->mutex);
    return m_shared->ended.wait_for(
        lock, patience, [this] { return m_shared->threads == 0 && m_shared->waiting.empty(); });
}

void BackgroundJobs::work(const std::shared_ptr<Shared>& shared)
{
    std::unique_lock lock(shared->mutex);
    while (!shared->waiting.empty()) {
        const Job job = std::move(shared->waiting.front());
        shared->waiting.pop_front();
        lock.unlock();
        Take take = job();
        lock.lock();
        if (take && shared->receiver != nullptr)
            QMetaObject::invokeMethod(shared->receiver, std::move(take), Qt::QueuedConnection);
    }
    --shared->threads;
    shared->ended.notify_all();
}
