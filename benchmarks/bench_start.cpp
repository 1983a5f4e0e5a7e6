// From the start of the program to its first picture, beside a program with an empty window.

#include "Timing.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Runs a program that ends itself with its first picture.
double run(std::vector<std::string> arguments)
{
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return bench::seconds([&] {
        pid_t process = 0;
        int status = 0;
        if (posix_spawn(&process, pointers.front(), nullptr, nullptr, pointers.data(), environ) != 0
            || waitpid(process, &status, 0) != process || status != 0) {
            std::fprintf(stderr, "%s failed\n", pointers.front());
            std::exit(1);
        }
    });
}

} // namespace

int main()
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    constexpr int rounds = 31;
    bench::compare(
        "start of the program to the first picture of a small scene", 1.5, rounds,
        [] {
            return run({ORVANE_PROGRAM, "--no-settings", "--plugin", PROBE_PLUGIN, SMALL_SCENE});
        },
        [] { return run({EMPTY_PROGRAM}); });
    return 0;
}
