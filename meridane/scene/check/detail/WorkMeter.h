#pragma once

#include "meridane/base/WorkBudget.h"

#include <cstddef>

namespace meridane {

/// Measures the work of one slice. To read the clock takes longer than to check a number, so it is read once for many.
class WorkMeter {
public:
    /// The most that is done between two looks at the clock: some tenths of a millisecond.
    static constexpr std::size_t unitsPerLook = 4096;

    explicit WorkMeter(const WorkBudget& budget)
        : m_budget(budget)
    {
    }

    /// Counts work, such as one number that was checked.
    void count(std::size_t units) noexcept { m_units += units; }
    /// Whether the slice has to end.
    [[nodiscard]] bool isSpent()
    {
        if (m_units < unitsPerLook)
            return m_isSpent;
        m_units = 0;
        m_isSpent = m_isSpent || m_budget.isSpent();
        return m_isSpent;
    }

private:
    const WorkBudget& m_budget;
    std::size_t m_units = 0;
    bool m_isSpent = false;
};

} // namespace meridane
