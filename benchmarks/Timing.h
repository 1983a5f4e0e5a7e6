#pragma once

#include <functional>
#include <string>

namespace bench {

/// A function that returns the time of the measured part of its work, in seconds.
using Work = std::function<double()>;

/// The duration of `part`, in seconds.
double seconds(const std::function<void()>& part);

/// The processor time of this process so far, in seconds. Other programs don't change it.
double processorTime();

/// Runs both alternately, after one run each that doesn't count, and reports the medians. So other load affects both.
void compare(const std::string& name, double bar, int rounds, const Work& work, const Work& baseline);

} // namespace bench
