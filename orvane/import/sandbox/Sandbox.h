#pragma once

#include <string>
#include <vector>

/// SandboxState a process in, so that a hostile model that takes it over has gained nothing.
namespace orvane {

/// What holds this process.
struct SandboxState {
    bool noNewPrivileges = false;
    bool files = false;
    bool systemCalls = false;
};

/// SandboxState this process in for the rest of its life: no privileges that it doesn't have, no file but those in
/// `readableFolders` and below for reading and those open as standard streams, no network, no process or thread of its
/// own. Files that were open otherwise are closed.
///
/// Each lock that the machine has is used; one that is missing, as in some containers, is no failure, and the result
/// tells. Call `applyLimits` first: afterwards limits can't be set any more.
[[nodiscard]] SandboxState enterSandbox(const std::vector<std::string>& readableFolders);

/// One line for each lock: its name and whether it holds.
[[nodiscard]] std::string toText(const SandboxState& state);

} // namespace orvane
