#include "orvane/import/sandbox/SystemCallFilter.h"

#include "orvane/import/sandbox/Coverage.h"
#include "orvane/import/sandbox/Sanitizer.h"

#include <cerrno>
#include <cstdint>
#include <initializer_list>

#include <asm/ioctls.h>
#include <fcntl.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <unistd.h>

namespace orvane {
namespace {

/// Collects the rules. System calls that the machine doesn't have remain refused.
class Rules {
public:
    Rules()
        : m_context(seccomp_init(SCMP_ACT_ERRNO(EPERM)))
    {
    }
    ~Rules() { seccomp_release(m_context); }
    Rules(const Rules&) = delete;
    Rules& operator=(const Rules&) = delete;

    void allow(std::initializer_list<int> calls)
    {
        for (const int call : calls)
            seccomp_rule_add(m_context, SCMP_ACT_ALLOW, call, 0);
    }
    void allowIf(int call, std::initializer_list<scmp_arg_cmp> conditions)
    {
        seccomp_rule_add_array(
            m_context, SCMP_ACT_ALLOW, call, static_cast<unsigned int>(conditions.size()), conditions.begin());
    }
    /// Makes the C library use an older system call, whose arguments can be checked.
    void denyAsUnknown(std::initializer_list<int> calls)
    {
        for (const int call : calls)
            seccomp_rule_add(m_context, SCMP_ACT_ERRNO(ENOSYS), call, 0);
    }
    [[nodiscard]] bool load() { return m_context != nullptr && seccomp_load(m_context) == 0; }

private:
    scmp_filter_ctx m_context;
};

scmp_arg_cmp equals(unsigned int argument, std::uint64_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

scmp_arg_cmp hasNoneOf(unsigned int argument, std::uint64_t bits)
{
    return {argument, SCMP_CMP_MASKED_EQ, bits, 0};
}

void allowFiles(Rules& rules)
{
    rules.allow({SCMP_SYS(read), SCMP_SYS(readv), SCMP_SYS(pread64), SCMP_SYS(write), SCMP_SYS(writev), SCMP_SYS(lseek),
        SCMP_SYS(close), SCMP_SYS(stat), SCMP_SYS(lstat), SCMP_SYS(fstat), SCMP_SYS(newfstatat), SCMP_SYS(statx),
        SCMP_SYS(access), SCMP_SYS(faccessat), SCMP_SYS(faccessat2), SCMP_SYS(readlink), SCMP_SYS(readlinkat),
        SCMP_SYS(getcwd), SCMP_SYS(getdents64), SCMP_SYS(fadvise64), SCMP_SYS(poll), SCMP_SYS(ppoll)});
    constexpr auto writing = static_cast<std::uint64_t>(O_ACCMODE | O_CREAT | O_TRUNC);
    rules.allowIf(SCMP_SYS(open), {hasNoneOf(1, writing)});
    rules.allowIf(SCMP_SYS(openat), {hasNoneOf(2, writing)});
    for (const int command : {F_GETFD, F_GETFL, F_SETFD})
        rules.allowIf(SCMP_SYS(fcntl), {equals(1, static_cast<std::uint64_t>(command))});
    // Queries of streams about their file.
    for (const std::uint64_t command : {std::uint64_t{TCGETS}, std::uint64_t{FIONREAD}})
        rules.allowIf(SCMP_SYS(ioctl), {equals(1, command)});
    rules.denyAsUnknown({SCMP_SYS(openat2)});
}

void allowMemory(Rules& rules)
{
    rules.allow({SCMP_SYS(brk), SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(madvise)});
    rules.allowIf(SCMP_SYS(mmap), {hasNoneOf(2, PROT_EXEC)});
    rules.allowIf(SCMP_SYS(mprotect), {hasNoneOf(2, PROT_EXEC)});
}

void allowTheProcessItself(Rules& rules)
{
    rules.allow({SCMP_SYS(exit), SCMP_SYS(exit_group), SCMP_SYS(futex), SCMP_SYS(rt_sigaction),
        SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn), SCMP_SYS(restart_syscall), SCMP_SYS(sigaltstack),
        SCMP_SYS(getpid), SCMP_SYS(gettid), SCMP_SYS(getuid), SCMP_SYS(geteuid), SCMP_SYS(getgid), SCMP_SYS(getegid),
        SCMP_SYS(uname), SCMP_SYS(sysinfo), SCMP_SYS(getrandom), SCMP_SYS(sched_yield), SCMP_SYS(sched_getaffinity),
        SCMP_SYS(clock_gettime), SCMP_SYS(clock_getres), SCMP_SYS(clock_nanosleep), SCMP_SYS(nanosleep),
        SCMP_SYS(gettimeofday), SCMP_SYS(time), SCMP_SYS(getrusage)});
    // Asking for a limit, not setting one, and signals to itself: abort() raises one.
    rules.allowIf(SCMP_SYS(prlimit64), {equals(2, 0)});
    rules.allow({SCMP_SYS(getrlimit)});
    rules.allowIf(SCMP_SYS(tgkill), {equals(0, static_cast<std::uint64_t>(getpid()))});
}

[[maybe_unused]] void allowTheSanitizer(Rules& rules)
{
    rules.allow({SCMP_SYS(clone), SCMP_SYS(getdents), SCMP_SYS(ptrace), SCMP_SYS(wait4), SCMP_SYS(prctl),
        SCMP_SYS(kill), SCMP_SYS(tgkill), SCMP_SYS(mmap), SCMP_SYS(mprotect), SCMP_SYS(getppid),
        SCMP_SYS(process_vm_readv), SCMP_SYS(pipe), SCMP_SYS(pipe2)});
}

// The files of the counts are opened with exactly these flags, and locked, because several processes may exit at once.
[[maybe_unused]] void allowCounting(Rules& rules)
{
    constexpr auto writing = static_cast<std::uint64_t>(O_ACCMODE | O_CREAT | O_TRUNC);
    constexpr auto counting = static_cast<std::uint64_t>(O_RDWR | O_CREAT);
    rules.allowIf(SCMP_SYS(openat), {{2, SCMP_CMP_MASKED_EQ, writing, counting}});
    rules.allowIf(SCMP_SYS(fcntl), {equals(1, static_cast<std::uint64_t>(F_SETLKW))});
}

} // namespace

bool filterSystemCalls()
{
    Rules rules;
    allowFiles(rules);
    allowMemory(rules);
    allowTheProcessItself(rules);
    if constexpr (isSanitized())
        allowTheSanitizer(rules);
    if constexpr (!coverageFolder().empty())
        allowCounting(rules);
    return rules.load();
}

} // namespace orvane
