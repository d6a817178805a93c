// SPDX-License-Identifier: BSD-3-Clause
// Threads print while another one shows, stands still or goes away: without Qt, so that the thread
// sanitizer sees all of it. A wait that doesn't end is seen by the test's time limit.
#include "Check.h"
#include "PrintBrake.h"

#include <atomic>
#include <mutex>
#include <thread>
#include <utility>
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
        const std::lock_guard lock(mutex);
        return std::exchange(places, {}).size();
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

/// The thread of the view joins those that print: after a wait, or with the brake off.
void aViewThatStandsStillLosesNothing(
    std::chrono::milliseconds wait, int messageCount, bool isReleased)
{
    PrintBrake brake(limit, wait);
    brake.setEngaged(true);
    Way way;
    auto threads = print(brake, way, messageCount);
    brake.setEngaged(!isReleased);
    threads.clear();
    check(way.takeAll() == std::size_t(threadCount) * messageCount, "nothing lost");
}

} // namespace

int main()
{
    aViewThatShowsIsNeverFurtherBehindThanTheLimit();
    aViewThatStandsStillLosesNothing(50ms, 50000, false);
    aViewThatStandsStillLosesNothing(1h, limit, true);
    return 0;
}
