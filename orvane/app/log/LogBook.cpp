#include "orvane/app/log/LogBook.h"

#include "orvane/app/base/SliceClock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t recordBytes = sizeof(LogRecord) + 64; // with what the allocator adds for its text
constexpr std::size_t lineBytes = sizeof(qint64);

std::size_t bytesOf(const LogRecord& record)
{
    return recordBytes + static_cast<std::size_t>(record.text.size()) * sizeof(QChar) + record.times.size() * lineBytes;
}

QEvent::Type eventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

QString withoutEnd(const QString& text)
{
    if (text.size() <= LogBook::longestText)
        return text;
    return text.left(LogBook::longestText) + QChar(0x2026);
}

/// Removes the first lines of a record, but not all. Returns their bytes.
std::size_t shorten(LogRecord& record, std::size_t lines)
{
    record.times.erase(record.times.begin(), record.times.begin() + static_cast<std::ptrdiff_t>(lines));
    record.droppedLines += lines;
    return lines * lineBytes;
}

} // namespace

LogBook::LogBook(QObject* parent, meridane::WorkBudget::Clock clock)
    : QObject(parent)
    , m_clock(clock)
{
}

LogBook::~LogBook() = default;

void LogBook::add(NxSeverity severity, const QString& source, const QString& text)
{
    LogRecord line{severity, source, withoutEnd(text)};
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const std::lock_guard lock(m_mutex);
    ++m_waitingLines;
    if (!m_waiting.empty() && m_waiting.back().isEqualTo(line)) {
        m_waiting.back().times.push_back(now);
        m_waitingBytes += lineBytes;
    } else {
        line.times.push_back(now);
        m_waitingBytes += bytesOf(line);
        m_waiting.push_back(std::move(line));
    }
    // While the window is busy, no more waits than is kept.
    while (m_waiting.size() > 1 && (m_waitingLines > m_waitingLimits.lines || m_waitingBytes > m_waitingLimits.bytes)) {
        const LogRecord& oldest = m_waiting.front();
        m_waitingLines -= oldest.times.size();
        m_waitingBytes -= bytesOf(oldest);
        m_droppedWaiting += oldest.times.size();
        m_waiting.pop_front();
    }
    if (LogRecord& newest = m_waiting.back(); newest.times.size() > 2 * m_waitingLimits.lines) {
        const std::size_t lines = newest.times.size() - m_waitingLimits.lines;
        m_waitingBytes -= shorten(newest, lines);
        newest.droppedLines = 0;
        m_waitingLines -= lines;
        m_droppedWaiting += lines;
    }
    callLater();
}

void LogBook::callLater()
{
    if (std::exchange(m_isCalled, true))
        return;
    QCoreApplication::postEvent(this, new QEvent(eventType()), Qt::LowEventPriority);
}

std::deque<LogRecord> LogBook::takeWaiting()
{
    constexpr std::size_t most = 500; // for one look at the clock
    const std::lock_guard lock(m_mutex);
    m_isCalled = false;
    m_dropped += std::exchange(m_droppedWaiting, 0);
    std::deque<LogRecord> taken;
    while (!m_waiting.empty() && taken.size() < most) {
        m_waitingLines -= m_waiting.front().times.size();
        m_waitingBytes -= bytesOf(m_waiting.front());
        taken.push_back(std::move(m_waiting.front()));
        m_waiting.pop_front();
    }
    return taken;
}

bool LogBook::event(QEvent* event)
{
    if (event->type() != eventType())
        return QObject::event(event);
    const SliceClock clock(m_clock);
    bool isEmpty = false;
    do {
        std::deque<LogRecord> taken = takeWaiting();
        isEmpty = taken.empty();
        for (LogRecord& record : taken)
            append(std::move(record));
        // Within the slice too, so that the limit of memory holds.
        dropOldest();
    } while (!isEmpty && !clock.isSpent());
    if (!isEmpty) {
        const std::lock_guard lock(m_mutex);
        callLater();
    }
    Q_EMIT changed();
    return true;
}

void LogBook::append(LogRecord&& record)
{
    const std::size_t lines = record.times.size();
    m_lines += lines;
    m_counts[static_cast<std::size_t>(record.severity)] += lines;
    if (!m_records.empty() && m_records.back().isEqualTo(record)) {
        std::vector<qint64>& times = m_records.back().times;
        times.insert(times.end(), record.times.begin(), record.times.end());
        m_bytes += lines * lineBytes;
        return;
    }
    m_bytes += bytesOf(record);
    record.source = *m_sources.insert(record.source);
    m_records.push_back(std::move(record));
}

void LogBook::dropOldest()
{
    const auto isTooMuch = [this] { return m_lines > m_limits.lines || m_bytes > m_limits.bytes; };
    while (isTooMuch() && !m_records.empty()) {
        LogRecord& oldest = m_records.front();
        const std::size_t tooManyLines = m_lines > m_limits.lines ? m_lines - m_limits.lines : 0;
        const std::size_t tooManyBytes = m_bytes > m_limits.bytes ? m_bytes - m_limits.bytes : 0;
        const std::size_t lines = std::max(tooManyLines, tooManyBytes / lineBytes + (tooManyBytes > 0 ? 1 : 0));
        const std::size_t dropped = std::min(lines, oldest.times.size());
        m_lines -= dropped;
        m_counts[static_cast<std::size_t>(oldest.severity)] -= dropped;
        m_dropped += dropped;
        if (dropped < oldest.times.size()) {
            m_bytes -= shorten(oldest, dropped);
        } else {
            m_bytes -= bytesOf(oldest);
            m_records.pop_front();
            ++m_first;
        }
    }
}

void LogBook::setLimits(const Limits& limits)
{
    m_limits = limits;
    {
        const std::lock_guard lock(m_mutex);
        m_waitingLimits = limits;
    }
    dropOldest();
    Q_EMIT changed();
}

void LogBook::clear()
{
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.clear();
        m_waitingLines = 0;
        m_waitingBytes = 0;
        m_droppedWaiting = 0;
    }
    m_first = endNumber();
    m_records.clear();
    m_counts = {};
    m_lines = 0;
    m_bytes = 0;
    m_dropped = 0;
    Q_EMIT cleared();
}

const LogRecord* LogBook::record(std::uint64_t number) const
{
    if (number < m_first || number >= endNumber())
        return nullptr;
    return &m_records[number - m_first];
}
