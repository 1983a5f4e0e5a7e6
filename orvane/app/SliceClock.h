#pragma once

#include <chrono>

/// Measures one slice of long work that is done from the event loop: short enough that the window stays lively.
class SliceClock {
public:
    static constexpr std::chrono::microseconds length{8000};

    [[nodiscard]] bool isOver() const { return std::chrono::steady_clock::now() >= m_end; }

private:
    std::chrono::steady_clock::time_point m_end = std::chrono::steady_clock::now() + length;
};
