// SPDX-License-Identifier: BSD-3-Clause
#include "Timing.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include <malloc.h>
#include <unistd.h>

double milliseconds(const Work& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double median(std::vector<double> times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

TimePair compareInTurns(int turns, const Work& ours, const Work& rival, const Work& cleanUp)
{
    std::vector<double> ourTimes;
    std::vector<double> rivalTimes;
    for (int turn = 0; turn < turns; ++turn) {
        ourTimes.push_back(milliseconds(ours));
        cleanUp();
        rivalTimes.push_back(milliseconds(rival));
        cleanUp();
    }
    return { median(std::move(ourTimes)), median(std::move(rivalTimes)) };
}

void printTimes(const char* name, const TimePair& times)
{
    std::printf("  %-34s %10.3f ms, rival %10.3f ms, ratio %.2f\n", name, times.ours, times.rival,
        times.ours / times.rival);
    std::fflush(stdout);
}

void printSize(int size, const char* unit) { std::printf("%d %s\n", size, unit); }

double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

long residentMemory()
{
    std::ifstream file("/proc/self/statm");
    long size = 0;
    long resident = 0;
    file >> size >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

int numberArgument(int argc, char** argv, int index, int fallback)
{
    return argc > index ? std::max(1, std::atoi(argv[index])) : fallback;
}
