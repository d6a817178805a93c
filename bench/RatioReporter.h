// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// Prints as usual and keeps the medians, or the only run, for the ratios.
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
                m_times[run.run_name.function_name] = run.GetAdjustedCPUTime();
        }
    }

    void printRatio(const char* what, const char* ours, const char* rival)
    {
        if (m_times.contains(ours) && m_times.contains(rival))
            std::printf("%s: %.2f\n", what, m_times[ours] / m_times[rival]);
    }

private:
    std::map<std::string, double> m_times;
};
