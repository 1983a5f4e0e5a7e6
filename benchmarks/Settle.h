#pragma once

#include <functional>

class QWidget;

namespace bench {

/// Handles events until none is left and no sensor is queued: layouts are done and changes are painted.
void settle();

/// The processor time of this process in seconds, from the start of the action until everything is settled. Other
/// programs don't change it. Ends the program with a message if the widget wasn't painted.
double secondsToPainted(QWidget* widget, const std::function<void()>& action);

/// The same until the window of the widget has been painted once, whatever it goes on to do; it settles afterwards.
double secondsToFirstPaint(QWidget* widget, const std::function<void()>& action);

} // namespace bench
