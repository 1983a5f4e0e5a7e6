#pragma once

#include "orvane/app/log/LogRecord.h"

#include "meridane/base/WorkBudget.h"

#include <QObject>
#include <QSet>

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>

/// Keeps the lines of the log, up to a limit.
///
/// Lines may be added on any thread. They are taken in from the event loop, in slices, in the order in which they were
/// added. Beyond the limit the oldest ones are dropped. Apart from `add`, thread of the user interface only.
class LogBook : public QObject {
    Q_OBJECT

public:
    struct Limits {
        std::size_t lines = 100'000;
        std::size_t bytes = std::size_t{32} << 20U;
    };
    /// The most characters that are kept of one line.
    static constexpr qsizetype longestText = 100'000;

    /// The clock measures the slices in which lines are taken in.
    explicit LogBook(QObject* parent = nullptr, meridane::WorkBudget::Clock clock = &std::chrono::steady_clock::now);
    ~LogBook() override;

    /// Adds a line with the time of the call. Any thread.
    void add(NxSeverity severity, const QString& source, const QString& text);

    void setLimits(const Limits& limits);
    [[nodiscard]] const Limits& limits() const noexcept { return m_limits; }
    /// Forgets all lines, those that were dropped included.
    void clear();

    // Records have numbers, which stay the same when older ones are dropped.

    [[nodiscard]] std::uint64_t firstNumber() const noexcept { return m_first; }
    /// The number behind the last one.
    [[nodiscard]] std::uint64_t endNumber() const noexcept { return m_first + m_records.size(); }
    /// The record of that number; null if it was dropped.
    [[nodiscard]] const LogRecord* record(std::uint64_t number) const;

    /// How many lines of a severity are kept.
    [[nodiscard]] std::size_t count(NxSeverity severity) const { return m_counts[static_cast<std::size_t>(severity)]; }
    [[nodiscard]] std::size_t lineCount() const noexcept { return m_lines; }
    /// How many lines were dropped because of the limits.
    [[nodiscard]] std::size_t droppedCount() const noexcept { return m_dropped; }

    bool event(QEvent* event) override;

Q_SIGNALS:
    /// Records were added at the end, the last one got more lines, or the first ones were dropped or lost lines.
    void changed();
    /// All lines were forgotten.
    void cleared();

private:
    [[nodiscard]] std::deque<LogRecord> takeWaiting();
    void append(LogRecord&& record);
    void dropOldest();
    void callLater();

    meridane::WorkBudget::Clock m_clock;
    Limits m_limits;
    std::deque<LogRecord> m_records;
    std::uint64_t m_first = 0;
    std::array<std::size_t, 3> m_counts{};
    std::size_t m_lines = 0;
    std::size_t m_bytes = 0;
    std::size_t m_dropped = 0;
    QSet<QString> m_sources; // so that records share them

    std::mutex m_mutex; // of what follows
    std::deque<LogRecord> m_waiting;
    std::size_t m_waitingLines = 0;
    std::size_t m_waitingBytes = 0;
    std::size_t m_droppedWaiting = 0;
    Limits m_waitingLimits;
    bool m_isCalled = false;
};
