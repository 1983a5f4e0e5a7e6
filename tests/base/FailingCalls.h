#pragma once

#include <cerrno>
#include <functional>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

// Replaces functions of the C library by ones that fail on demand. The libraries of the program use these too. To be
// included by one source file of a program.

namespace FailingCalls {

/// Which function fails, after how many calls that succeed, how often, and with which error.
struct Fault {
    std::string function;
    int error = 0;
    int times = 1;
    int after = 0;
};
inline thread_local Fault fault;

/// What happens at the next `flock`, before it locks.
inline thread_local std::function<void()> beforeLock;

inline bool fails(const char* function)
{
    if (fault.function != function || fault.after-- > 0 || fault.times <= 0)
        return false;
    --fault.times;
    errno = fault.error;
    return true;
}

/// A fault for its lifetime.
class Scope {
public:
    explicit Scope(Fault made) { fault = std::move(made); }
    ~Scope() { fault = {}; }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
};

} // namespace FailingCalls

extern "C" {

int fsync(int descriptor)
{
    return FailingCalls::fails("fsync") ? -1 : static_cast<int>(syscall(SYS_fsync, descriptor));
}

int close(int descriptor)
{
    const auto result = static_cast<int>(syscall(SYS_close, descriptor));
    return FailingCalls::fails("close") ? -1 : result;
}

ssize_t read(int descriptor, void* bytes, std::size_t count)
{
    return FailingCalls::fails("read") ? -1 : syscall(SYS_read, descriptor, bytes, count);
}

ssize_t write(int descriptor, const void* bytes, std::size_t count)
{
    return FailingCalls::fails("write") ? -1 : syscall(SYS_write, descriptor, bytes, count);
}

int fstat(int descriptor, struct stat* status) noexcept
{
    return FailingCalls::fails("fstat") ? -1 : fstatat(descriptor, "", status, AT_EMPTY_PATH);
}

int unlink(const char* path) noexcept
{
    return FailingCalls::fails("unlink") ? -1 : static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}

int flock(int descriptor, int operation) noexcept
{
    if (FailingCalls::beforeLock)
        std::exchange(FailingCalls::beforeLock, nullptr)();
    return FailingCalls::fails("flock") ? -1 : static_cast<int>(syscall(SYS_flock, descriptor, operation));
}

int fsetxattr(int descriptor, const char* name, const void* value, std::size_t size, int flags) noexcept
{
    return FailingCalls::fails("fsetxattr")
        ? -1
        : static_cast<int>(syscall(SYS_fsetxattr, descriptor, name, value, size, flags));
}
}
