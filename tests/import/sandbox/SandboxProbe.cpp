// Locks itself in like the import helper and then tries one thing, which the arguments name: LOCKS THING FOLDER.
// Says "done" for a thing that worked, else why it didn't.

#include "orvane/import/sandbox/FileAccess.h"
#include "orvane/import/sandbox/ProcessLimits.h"
#include "orvane/import/sandbox/Sandbox.h"
#include "orvane/import/sandbox/SystemCallFilter.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <thread>

#include <arpa/inet.h>
#include <dirent.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sched.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

// The sanitizer's search for leaks cannot be run by a process that is traced, or whose root is elsewhere. It asks this.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "detect_leaks=0";
}

namespace {

/// Tries a thing in that folder; false with errno when it is refused.
using Try = std::function<bool(const std::string& folder)>;

bool opens(const std::string& path, int flags)
{
    return open(path.c_str(), flags, 0666) >= 0;
}

// A child that was made must not go on with what its parent does.
bool isParent(long result)
{
    if (result == 0)
        _exit(0);
    return result > 0;
}

bool spawns()
{
    std::array<char*, 2> arguments{const_cast<char*>("true"), nullptr};
    pid_t child = 0;
    errno = posix_spawn(&child, "/bin/true", nullptr, nullptr, arguments.data(), nullptr);
    return errno == 0;
}

bool startsAThread()
{
    try {
        std::thread([] {}).join();
        return true;
    } catch (const std::system_error& error) {
        errno = error.code().value();
        return false;
    }
}

bool connects()
{
    const int made = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(9);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return made >= 0
        && (connect(made, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 || errno == ECONNREFUSED);
}

bool mapsCode()
{
    return mmap(nullptr, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) != MAP_FAILED;
}

bool makesMemoryCode()
{
    void* memory = mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return memory != MAP_FAILED && mprotect(memory, 4096, PROT_READ | PROT_EXEC) == 0;
}

bool raisesALimit()
{
    const rlimit limit{1000, RLIM_INFINITY};
    return setrlimit(RLIMIT_CPU, &limit) == 0;
}

const std::map<std::string, Try>& tries()
{
    static const std::map<std::string, Try> all{
        {"nothing", [](const std::string&) { return true; }},
        {"read in the folder", [](const std::string& folder) { return opens(folder + "/in/file", O_RDONLY); }},
        {"read below the folder", [](const std::string& folder) { return opens(folder + "/in/below/file", O_RDONLY); }},
        {"list the folder", [](const std::string& folder) { return opendir((folder + "/in").c_str()) != nullptr; }},
        {"allocate", [](const std::string&) { return std::string(50000000, 'x').size() > 1; }},
        {"no new privileges", [](const std::string&) { return prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) == 1; }},
        {"read beside the folder", [](const std::string& folder) { return opens(folder + "/file", O_RDONLY); }},
        {"read through a link", [](const std::string& folder) { return opens(folder + "/in/link", O_RDONLY); }},
        {"read the passwords", [](const std::string&) { return opens("/etc/passwd", O_RDONLY); }},
        {"list the root folder", [](const std::string&) { return opendir("/") != nullptr; }},
        {"overwrite a file", [](const std::string& folder) { return opens(folder + "/in/file", O_WRONLY); }},
        {"open to read and write", [](const std::string& folder) { return opens(folder + "/in/file", O_RDWR); }},
        {"append", [](const std::string& folder) { return opens(folder + "/in/file", O_WRONLY | O_APPEND); }},
        {"truncate on opening", [](const std::string& folder) { return opens(folder + "/in/file", O_TRUNC); }},
        {"create a file", [](const std::string& folder) { return opens(folder + "/in/new", O_CREAT | O_WRONLY); }},
        {"create by its own call",
            [](const std::string& folder) { return creat((folder + "/in/new").c_str(), 0600) >= 0; }},
        {"make a nameless file", [](const std::string& folder) { return opens(folder + "/in", O_TMPFILE | O_RDWR); }},
        {"open by the newer call",
            [](const std::string& folder) {
                const std::array<std::uint64_t, 3> how{O_WRONLY, 0, 0};
                return syscall(SYS_openat2, AT_FDCWD, (folder + "/in/file").c_str(), how.data(), sizeof how) >= 0;
            }},
        {"truncate", [](const std::string& folder) { return truncate((folder + "/in/file").c_str(), 0) == 0; }},
        {"delete a file", [](const std::string& folder) { return unlink((folder + "/in/file").c_str()) == 0; }},
        {"rename a file",
            [](const std::string& folder) {
                return rename((folder + "/in/file").c_str(), (folder + "/in/other").c_str()) == 0;
            }},
        {"link a file",
            [](const std::string& folder) {
                return link((folder + "/in/file").c_str(), (folder + "/in/other").c_str()) == 0;
            }},
        {"make a symbolic link",
            [](const std::string& folder) { return symlink("file", (folder + "/in/other").c_str()) == 0; }},
        {"make a folder", [](const std::string& folder) { return mkdir((folder + "/in/new").c_str(), 0700) == 0; }},
        {"delete a folder", [](const std::string& folder) { return rmdir((folder + "/in/empty").c_str()) == 0; }},
        {"make a pipe file", [](const std::string& folder) { return mkfifo((folder + "/in/new").c_str(), 0600) == 0; }},
        {"change permissions", [](const std::string& folder) { return chmod((folder + "/in/file").c_str(), 0) == 0; }},
        {"change the owner",
            [](const std::string& folder) { return chown((folder + "/in/file").c_str(), getuid(), getgid()) == 0; }},
        {"change the time",
            [](const std::string& folder) {
                return utimensat(AT_FDCWD, (folder + "/in/file").c_str(), nullptr, 0) == 0;
            }},
        {"change the folder", [](const std::string& folder) { return chdir(folder.c_str()) == 0; }},
        {"change the root", [](const std::string& folder) { return chroot(folder.c_str()) == 0; }},
        {"make a file in memory", [](const std::string&) { return memfd_create("file", 0) >= 0; }},
        {"write to an inherited file", [](const std::string&) { return write(7, "x", 1) == 1; }},
        {"make a socket", [](const std::string&) { return socket(AF_INET, SOCK_STREAM, 0) >= 0; }},
        {"make a datagram socket", [](const std::string&) { return socket(AF_INET6, SOCK_DGRAM, 0) >= 0; }},
        {"make a local socket", [](const std::string&) { return socket(AF_UNIX, SOCK_STREAM, 0) >= 0; }},
        {"make a socket pair",
            [](const std::string&) {
                std::array<int, 2> pair{};
                return socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()) == 0;
            }},
        {"connect", [](const std::string&) { return connects(); }},
        {"fork", [](const std::string&) { return isParent(fork()); }},
        {"fork by the old call", [](const std::string&) { return isParent(syscall(SYS_clone, SIGCHLD, 0, 0, 0, 0)); }},
        {"spawn", [](const std::string&) { return spawns(); }},
        {"start a thread", [](const std::string&) { return startsAThread(); }},
        {"run a program", [](const std::string&) { return execl("/bin/true", "true", nullptr) == 0; }},
        {"run a program in the folder",
            [](const std::string& folder) { return execl((folder + "/in/program").c_str(), "program", nullptr) == 0; }},
        {"enter a namespace", [](const std::string&) { return unshare(CLONE_NEWUSER) == 0; }},
        {"trace", [](const std::string&) { return ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0; }},
        {"signal the parent", [](const std::string&) { return kill(getppid(), 0) == 0; }},
        {"map code", [](const std::string&) { return mapsCode(); }},
        {"turn memory into code", [](const std::string&) { return makesMemoryCode(); }},
        {"raise a limit", [](const std::string&) { return raisesALimit(); }},
        {"become another user", [](const std::string&) { return setuid(getuid()) == 0; }},
    };
    return all;
}

bool locked(const std::string& locks, const std::string& folder)
{
    const std::vector<std::string> folders{folder + "/in"};
    if (locks == "files")
        return orvane::restrictFiles(folders);
    if (locks == "calls")
        return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && orvane::filterSystemCalls();
    if (locks == "none")
        return true;
    orvane::applyLimits({});
    const orvane::SandboxState all = orvane::enterSandbox(folders);
    return all.files && all.systemCalls && all.noNewPrivileges;
}

} // namespace

int main(int argc, char** argv)
{
    const auto found = argc == 4 ? tries().find(argv[2]) : tries().end();
    if (found == tries().end())
        return 2;
    if (!locked(argv[1], argv[3])) {
        std::puts("lock missing");
        return 0;
    }
    errno = 0;
    std::puts(found->second(argv[3]) ? "done" : std::strerror(errno));
    return 0;
}
