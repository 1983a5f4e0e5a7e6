#pragma once

#include <functional>
#include <string>

#include <benchmark/benchmark.h>

namespace bench {

using Loop = std::function<void(benchmark::State& state)>;

/// Registers two loops of Google Benchmark, the tool's and the baseline's, which `runPairs` reports as one figure.
void addPair(const std::string& name, double bar, const Loop& work, const Loop& baseline);

/// Runs all pairs, their repetitions in random order, and reports the fastest repetition of each, since other load only
/// adds time. Takes the options of Google Benchmark.
int runPairs(int argc, char** argv);

} // namespace bench
