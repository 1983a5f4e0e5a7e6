#pragma once

#include <chrono>
#include <cstddef>

#include <sys/types.h>

/// Limits the resources of this process, so that a hostile or broken model does no harm.
namespace orvane {

struct ProcessLimits {
    /// Address space in MiB; 0 for no limit.
    std::size_t memoryMiB = 4096;
};

/// Exit status of a process that ran out of the memory it is allowed.
inline constexpr int outOfMemoryStatus = 3;

/// Sets the limits for the rest of this process: memory, open files, no core file, no file written, no process of its
/// own. From here on an allocation that fails ends the process with `outOfMemoryStatus` and one line on standard error.
void applyLimits(const ProcessLimits& limits);

/// Ends this process with SIGXCPU when it has used that much processor time in all; 0 for no limit.
void limitProcessorTime(std::chrono::seconds time);

/// Makes the kernel kill this process when its parent ends, however that ends. Returns false if the process `parent` is
/// no longer the parent, because it has ended. The kernel watches the thread that started this process, so that thread
/// must run as long as the result is needed.
[[nodiscard]] bool endWithParent(pid_t parent);

} // namespace orvane
