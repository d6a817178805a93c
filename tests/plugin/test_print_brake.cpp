// SPDX-License-Identifier: BSD-3-Clause
// Threads print while another one shows, stands still or goes away: without Qt, so that the thread
// sanitizer sees all of it. A wait that doesn't end is seen by the test's time limit.
#include "PrintBrake.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;

constexpr int threadCount = 4;
constexpr std::size_t limit = 10;

/// Messages on their way, in the order of their arrival.
struct Way {
    std::mutex mutex;
    std::vector<PrintBrake::Place> places;

    void add(PrintBrake::Place place)
    {
        const std::lock_guard lock(mutex);
        places.push_back(std::move(place));
    }
    std::size_t takeAll()
    {
        std::vector<PrintBrake::Place> taken;
        const std::lock_guard lock(mutex);
        taken.swap(places);
        return taken.size();
    }
};

std::vector<std::jthread> print(PrintBrake& brake, Way& way, int messageCount)
{
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&brake, &way, messageCount] {
            for (int i = 0; i < messageCount; ++i)
                way.add(brake.enter(1));
        });
    }
    return threads;
}

void check(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

void aViewThatShowsIsNeverFurtherBehindThanTheLimit()
{
    constexpr int messageCount = 5000;
    PrintBrake brake(limit, 1h);
    brake.setEngaged(true);
    Way way;
    const auto threads = print(brake, way, messageCount);
    for (std::size_t shown = 0; shown < std::size_t(threadCount) * messageCount;) {
        const std::size_t taken = way.takeAll();
        check(taken <= limit, "no more than the limit on the way");
        shown += taken;
        std::this_thread::yield();
    }
}

/// The thread of the view joins those that print.
void aViewThatStandsStillIsWaitedForOnce()
{
    PrintBrake brake(limit, 50ms);
    brake.setEngaged(true);
    Way way;
    print(brake, way, 50000).clear();
    check(way.takeAll() == threadCount * 50000, "nothing lost");
}

void whoWaitsGoesOnWhenTheBrakeIsOff()
{
    PrintBrake brake(limit, 1h);
    brake.setEngaged(true);
    Way way;
    auto threads = print(brake, way, limit);
    brake.setEngaged(false);
    threads.clear();
    check(way.takeAll() == threadCount * limit, "nothing lost");
}

} // namespace

int main()
{
    aViewThatShowsIsNeverFurtherBehindThanTheLimit();
    aViewThatStandsStillIsWaitedForOnce();
    whoWaitsGoesOnWhenTheBrakeIsOff();
    return 0;
}
