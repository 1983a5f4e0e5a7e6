#pragma once

#include <functional>

class QWidget;

namespace bench {

/// Handles events until none is left and no sensor waits: layouts are done, what changed is painted.
void settle();

/// The processor time from the start of the action until all is settled, in seconds: nothing on the way waits, and what
/// other programs take of the machine doesn't count. Stops the program if the widget wasn't painted on the way.
double secondsToPainted(QWidget* widget, const std::function<void()>& action);

} // namespace bench
