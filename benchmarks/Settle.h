#pragma once

#include <functional>

class QWidget;

namespace bench {

/// Handles events until none is left and no sensor is queued: layouts are done and changes are painted.
void settle();

/// The processor time in seconds from the start of the action until everything is settled. Nothing in it waits, and the
/// time of other programs doesn't count. Stops the program if the widget wasn't painted.
double secondsToPainted(QWidget* widget, const std::function<void()>& action);

} // namespace bench
