#include "orvane/import/sandbox/Sandbox.h"

#include "orvane/import/sandbox/FileAccess.h"
#include "orvane/import/sandbox/SystemCallFilter.h"

#include <ctime>

#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace orvane {
namespace {

void closeOtherFiles()
{
    constexpr unsigned int first = STDERR_FILENO + 1;
    if (syscall(SYS_close_range, first, ~0U, 0U) == 0)
        return;
    // Kernels before 5.9; inherited files have low numbers.
    constexpr int last = 1024;
    for (int descriptor = first; descriptor < last; ++descriptor)
        close(descriptor);
}

const char* holds(bool lock)
{
    return lock ? "locked" : "not locked";
}

} // namespace

SandboxState enterSandbox(const std::vector<std::string>& readableFolders)
{
    // Some exporters write the local time; its rules are in a file that can't be read later.
    tzset();
    closeOtherFiles();
    SandboxState state;
    state.noNewPrivileges = prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
    state.files = restrictFiles(readableFolders);
    state.systemCalls = filterSystemCalls(); // last: it refuses what the others are made with
    return state;
}

std::string toText(const SandboxState& state)
{
    return std::string("privileges ") + holds(state.noNewPrivileges) + "\nfiles " + holds(state.files)
        + "\nsystem calls " + holds(state.systemCalls) + "\n";
}

} // namespace orvane
