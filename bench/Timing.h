// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <functional>
#include <vector>

// What the benchmarks that time by themselves share.

using Work = std::function<void()>;

/// Milliseconds by the clock.
double milliseconds(const Work& work);
/// `times` isn't empty.
double median(std::vector<double> times);

/// Ours and the rival's, in milliseconds.
struct TimePair {
    double ours = 0;
    double rival = 0;
};

/// Medians of runs of both in turns, so that what disturbs the machine meets both. What `cleanUp`
/// does after each run isn't timed.
TimePair compareInTurns(
    int turns, const Work& ours, const Work& rival, const Work& cleanUp = [] {});
/// One line, from which scripts/benchmarks.sh reads how the time grows with the size that the last
/// heading names.
void printTimes(const char* name, const TimePair& times);
/// The heading of what was measured at one size, as in "1000 rows".
void printSize(int size, const char* unit);

/// Of the process, in bytes.
double heapInUse();
/// Of the process, in KiB.
long residentMemory();

/// The number that stands at `index` of the command line, at least 1; `fallback` if none does.
int numberArgument(int argc, char** argv, int index, int fallback);
