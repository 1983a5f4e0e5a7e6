#pragma once

#include "meridane/base/errors/NxDebugError.h"

#include <QStringList>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

/// Threads that report errors of all severities at once, those of thread 3 being "3 0", "3 1" and so on.
class ErrorThreads {
public:
    ErrorThreads(int threadCount, int errorCount)
        : m_errorCount(errorCount)
        , m_running(threadCount)
    {
        for (int thread = 0; thread < threadCount; ++thread)
            m_threads.emplace_back([this, thread] { post(thread); });
    }
    ~ErrorThreads() { join(); }
    ErrorThreads(const ErrorThreads&) = delete;
    ErrorThreads& operator=(const ErrorThreads&) = delete;

    [[nodiscard]] bool areRunning() const { return m_running > 0; }
    [[nodiscard]] int total() const { return static_cast<int>(m_threads.size()) * m_errorCount; }
    void join()
    {
        for (std::thread& thread : m_threads) {
            if (thread.joinable())
                thread.join();
        }
    }
    /// The first of the lines that isn't the next one of its thread, or nothing.
    [[nodiscard]] QString firstOutOfOrder(const QStringList& lines) const
    {
        std::vector<int> next(m_threads.size());
        for (const QString& line : lines) {
            int& error = next.at(line.section(QLatin1Char(' '), 0, 0).toUInt());
            if (line.section(QLatin1Char(' '), 1) != QString::number(error))
                return line;
            ++error;
        }
        return {};
    }

private:
    void post(int thread)
    {
        for (int error = 0; error < m_errorCount; ++error) {
            const std::string text = std::to_string(thread) + ' ' + std::to_string(error);
            NxDebugError::post(error % 3, VbString(text));
        }
        --m_running;
    }

    int m_errorCount;
    std::atomic<int> m_running;
    std::vector<std::thread> m_threads;
};
