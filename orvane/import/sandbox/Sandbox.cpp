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

const char* describe(bool applies)
{
    return applies ? "locked" : "not locked";
}

} // namespace

SandboxState enterSandbox(const std::vector<std::string>& readableFolders)
{
    // Some exporters write the local time, whose rules are in a file that can't be read later.
    tzset();
    closeOtherFiles();
    SandboxState state;
    state.noNewPrivileges = prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
    state.files = restrictFiles(readableFolders);
    state.systemCalls = filterSystemCalls(); // last: it refuses the system calls of the others
    return state;
}

std::string toText(const SandboxState& state)
{
    return std::string("privileges ") + describe(state.noNewPrivileges) + "\nfiles " + describe(state.files)
        + "\nsystem calls " + describe(state.systemCalls) + "\n";
}

} // namespace orvane
