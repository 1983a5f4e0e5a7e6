#pragma once

#include <chrono>

namespace meridane {

/// The time that one slice of a long task may take, measured from construction. Tests pass a clock of their own.
class WorkBudget {
public:
    /// Returns the present time.
    using Clock = std::chrono::steady_clock::time_point (*)();

    /// Implicit, so that callers can pass a duration. A budget that ends after the clock's last time never ends.
    template <typename Number, typename Period>
    WorkBudget(std::chrono::duration<Number, Period> length, Clock clock = &std::chrono::steady_clock::now)
        : m_clock(clock)
        , m_end(endOf(clock(), length))
    {
    }

    /// Whether the time is over.
    [[nodiscard]] bool isSpent() const { return m_clock() >= m_end; }

private:
    using Time = std::chrono::steady_clock::time_point;

    template <typename Length>
    static Time endOf(Time begin, Length length)
    {
        // In floating point, since the longest time of one unit can't be converted to another.
        using Seconds = std::chrono::duration<double>;
        if (Seconds(length) >= Seconds(Time::max() - begin))
            return Time::max();
        return begin + std::chrono::duration_cast<Time::duration>(length);
    }

    Clock m_clock;
    Time m_end;
};

} // namespace meridane
