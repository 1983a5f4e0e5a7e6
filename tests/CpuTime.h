#pragma once

#include <chrono>
#include <ctime>

/// The processor time that a call takes in this thread. Unlike the time of day it doesn't grow with what else runs.
template <typename Call>
std::chrono::nanoseconds cpuTimeOf(const Call& call)
{
    const auto now = [] {
        std::timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    };
    const auto begin = now();
    call();
    return now() - begin;
}
