#include "Pairs.h"

#include "Figure.h"

#include <algorithm>
#include <limits>
#include <map>
#include <vector>

namespace bench {

namespace {

constexpr int repetitions = 15;
constexpr double shortestRepetition = 0.02; // in seconds

struct Pair {
    std::string name;
    double bar = 0;
};

std::vector<Pair>& pairs()
{
    static std::vector<Pair> all;
    return all;
}

std::string workName(const std::string& name)
{
    return name + ", work";
}

std::string baselineName(const std::string& name)
{
    return name + ", baseline";
}

void add(const std::string& name, const Loop& loop)
{
    benchmark::RegisterBenchmark(name.c_str(), loop)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->MinTime(shortestRepetition)
        ->Repetitions(repetitions);
}

/// Keeps the fastest repetition of each benchmark.
class Fastest final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const auto place
                = m_times.try_emplace(run.run_name.function_name, std::numeric_limits<double>::max()).first;
            place->second = std::min(place->second, run.GetAdjustedRealTime());
        }
    }
    void Finalize() override
    {
        for (const Pair& pair : pairs()) {
            const auto work = m_times.find(workName(pair.name));
            const auto baseline = m_times.find(baselineName(pair.name));
            if (work != m_times.end() && baseline != m_times.end())
                report({pair.name, "ms", work->second, baseline->second, pair.bar});
        }
    }

private:
    std::map<std::string, double> m_times; // in milliseconds
};

} // namespace

void addPair(const std::string& name, double bar, const Loop& work, const Loop& baseline)
{
    pairs().push_back({name, bar});
    add(workName(name), work);
    add(baselineName(name), baseline);
}

int runPairs(int argc, char** argv)
{
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, interleave.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    Fastest reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}

} // namespace bench
