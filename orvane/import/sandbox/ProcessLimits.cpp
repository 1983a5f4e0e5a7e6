#include "orvane/import/sandbox/ProcessLimits.h"

#include "orvane/import/sandbox/Coverage.h"
#include "orvane/import/sandbox/Sanitizer.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <new>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane {
namespace {

// A model and the files that it refers to are read one after the other.
constexpr rlim_t openFiles = 64;

char outOfMemoryText[128];
int outOfMemoryLength = 0;

void setLimit(decltype(RLIMIT_AS) resource, rlim_t value, rlim_t hardValue)
{
    rlimit limit{};
    if (getrlimit(resource, &limit) != 0)
        return;
    limit.rlim_max = std::min(hardValue, limit.rlim_max);
    limit.rlim_cur = std::min(value, limit.rlim_max);
    setrlimit(resource, &limit);
}

void setLimit(decltype(RLIMIT_AS) resource, rlim_t value)
{
    setLimit(resource, value, value);
}

// The import library catches std::bad_alloc in some places and continues with half a model, so nothing is thrown.
[[noreturn]] void endOutOfMemory()
{
    [[maybe_unused]] const ssize_t written
        = write(STDERR_FILENO, outOfMemoryText, static_cast<std::size_t>(outOfMemoryLength));
    _exit(outOfMemoryStatus);
}

bool writesToAFile()
{
    struct stat status { };
    return fstat(STDOUT_FILENO, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

void applyLimits(const ProcessLimits& limits)
{
    outOfMemoryLength = std::snprintf(outOfMemoryText, sizeof outOfMemoryText,
        "out of memory: the model needs more than the %zu MiB that it may take\n", limits.memoryMiB);
    std::set_new_handler(&endOutOfMemory);
    if (limits.memoryMiB != 0 && !isSanitized())
        setLimit(RLIMIT_AS, static_cast<rlim_t>(limits.memoryMiB) << 20);
    setLimit(RLIMIT_CORE, 0);
    setLimit(RLIMIT_NOFILE, openFiles);
    if (!isSanitized())
        setLimit(RLIMIT_NPROC, 0);
    // A redirected standard output is a file that the user wants written.
    if (!writesToAFile() && coverageFolder().empty())
        setLimit(RLIMIT_FSIZE, 0);
    // A refused write must return an error and not kill the process.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

void limitProcessorTime(std::chrono::seconds time)
{
    // At the hard limit the kernel sends SIGKILL instead, which doesn't show the reason.
    const auto seconds = static_cast<rlim_t>(time.count());
    if (seconds != 0)
        setLimit(RLIMIT_CPU, seconds, seconds + 1);
}

bool endWithParent(pid_t parent)
{
    // A parent that ended before the call sends no signal; another process is the parent then.
    return prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0) == 0 && getppid() == parent;
}

} // namespace orvane
