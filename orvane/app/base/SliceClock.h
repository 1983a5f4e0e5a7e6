#pragma once

#include "meridane/base/WorkBudget.h"

/// Measures one slice of long work that is done from the event loop: short enough that the window stays lively.
class SliceClock : public meridane::WorkBudget {
public:
    static constexpr std::chrono::microseconds length{8000};

    explicit SliceClock(Clock clock = &std::chrono::steady_clock::now)
        : WorkBudget(length, clock)
    {
    }
};
