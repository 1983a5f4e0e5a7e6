#pragma once

#include <chrono>

namespace meridane {

/// The time that one slice of long work may take, from its construction on. Tests hand in a clock of their own.
class WorkBudget {
public:
    using Clock = std::chrono::steady_clock::time_point (*)();

    /// Implicit, so that a slice can be asked for by its length.
    template <typename Number, typename Period>
    WorkBudget(std::chrono::duration<Number, Period> length, Clock clock = &std::chrono::steady_clock::now)
        : m_clock(clock)
        , m_end(clock() + std::chrono::duration_cast<std::chrono::steady_clock::duration>(length))
    {
    }

    [[nodiscard]] bool isSpent() const { return m_clock() >= m_end; }

private:
    Clock m_clock;
    std::chrono::steady_clock::time_point m_end;
};

} // namespace meridane
