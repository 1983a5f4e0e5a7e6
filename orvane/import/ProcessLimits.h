#pragma once

#include <cstddef>

/// What the helper allows itself, so that a hostile or broken model harms nobody.
namespace orvane {

struct ProcessLimits {
    /// Address space in MiB; 0 for no limit.
    std::size_t memoryMiB = 4096;
    /// Processor time in seconds; 0 for no limit.
    std::size_t processorSeconds = 300;
};

/// Exit status of a process that ran out of the memory it is allowed.
inline constexpr int outOfMemoryStatus = 3;

/// Sets the limits for the rest of this process: memory, processor time, open
/// files, no core file, no file written, no process of its own. From here on
/// an allocation that fails ends the process with `outOfMemoryStatus` and one line on standard error.
void applyLimits(const ProcessLimits& limits);

} // namespace orvane
