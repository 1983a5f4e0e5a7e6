#pragma once

#include <Qt>

namespace orvane {

/// How much larger a step of a number is with these keys held: 10 with Shift, 0.1 with Ctrl, else 1.
[[nodiscard]] inline double stepFactor(Qt::KeyboardModifiers modifiers)
{
    if ((modifiers & Qt::ShiftModifier) != 0)
        return 10;
    return (modifiers & Qt::ControlModifier) != 0 ? 0.1 : 1;
}

} // namespace orvane
