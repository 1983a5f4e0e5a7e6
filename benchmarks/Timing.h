#pragma once

#include <functional>
#include <string>

namespace bench {

/// A piece of work that times the part of itself that counts, in seconds.
using Work = std::function<double()>;

/// How long `part` takes, in seconds.
double seconds(const std::function<void()>& part);

/// Runs both in turn, after one run each that doesn't count, and reports the medians. So whatever else the machine does
/// meanwhile hits both.
void compare(const std::string& name, double bar, int rounds, const Work& work, const Work& baseline);

} // namespace bench
