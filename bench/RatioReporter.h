// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

/// A line that says how many times the rival's time ours is.
struct Ratio {
    const char* what;
    const char* ours; // a benchmark
    const char* rival; // another one
};

/// Prints as usual and keeps the medians, or the only run, for the ratios; of a benchmark that runs
/// at several sizes, those of the largest.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    RatioReporter()
        : ConsoleReporter(OO_Tabular)
    {
    }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration || run.aggregate_name == "median")
                keep(run);
        }
    }

    void printRatio(const Ratio& ratio)
    {
        if (m_times.contains(ratio.ours) && m_times.contains(ratio.rival))
            std::printf(
                "%s: %.2f\n", ratio.what, m_times[ratio.ours].time / m_times[ratio.rival].time);
    }

private:
    struct Time {
        long size = 0; // 0 for a benchmark without sizes
        double time = 0;
    };

    /// Sizes come in any order, since benchmarks run in turns.
    void keep(const Run& run)
    {
        const long size = std::atol(run.run_name.args.c_str());
        Time& kept = m_times[run.run_name.function_name];
        if (size >= kept.size)
            kept = { size, run.GetAdjustedCPUTime() };
    }

    std::map<std::string, Time> m_times;
};

/// What `main` does: runs the benchmarks that the command line names, or all, and prints the ratios
/// of those that ran. Each runs five times, in turns with the others, so that what disturbs the
/// machine meets all. Gives the exit status.
inline int runBenchmarks(int argc, char** argv, std::initializer_list<Ratio> ratios)
{
    // What the command line says comes later, and wins.
    std::vector<std::string> defaults { "--benchmark_repetitions=5",
        "--benchmark_enable_random_interleaving=true", "--benchmark_report_aggregates_only=true" };
    std::vector<char*> arguments { argv[0] };
    for (std::string& each : defaults)
        arguments.push_back(each.data());
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    for (const Ratio& ratio : ratios)
        reporter.printRatio(ratio);
    return 0;
}
