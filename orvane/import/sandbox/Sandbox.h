#pragma once

#include <string>
#include <vector>

/// A sandbox for this process, so that a hostile model that takes it over gains nothing.
namespace orvane {

/// Which restrictions apply to this process.
struct SandboxState {
    bool noNewPrivileges = false;
    bool files = false;
    bool systemCalls = false;
};

/// Restricts this process until it exits: no further privileges; no files except for reading in `readableFolders` and
/// below, and the standard streams; no network; no new processes or threads. All other open files are closed.
///
/// Uses each restriction that the machine supports. A missing one, as in some containers, is no failure; the result
/// reports it. Call `applyLimits` first: afterwards limits can't be set.
[[nodiscard]] SandboxState enterSandbox(const std::vector<std::string>& readableFolders);

/// One line for each restriction: its name, and whether it applies.
[[nodiscard]] std::string toText(const SandboxState& state);

} // namespace orvane
