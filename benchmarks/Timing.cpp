#include "Timing.h"

#include "Figure.h"

#include <chrono>
#include <ctime>
#include <vector>

namespace bench {

double seconds(const std::function<void()>& part)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    part();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void compare(const std::string& name, double bar, int rounds, const Work& work, const Work& baseline)
{
    constexpr double millisecondsPerSecond = 1e3;
    std::vector<double> workTimes;
    std::vector<double> baselineTimes;
    work();
    baseline();
    for (int round = 0; round < rounds; ++round) {
        workTimes.push_back(work() * millisecondsPerSecond);
        baselineTimes.push_back(baseline() * millisecondsPerSecond);
    }
    report({name, "ms", median(workTimes), median(baselineTimes), bar});
}

} // namespace bench
