// SPDX-License-Identifier: BSD-3-Clause
//
// A program with a loop of its own, which has never heard of Qt, under the inspector: it goes on
// while somebody looks and edits, also while a dialog is open. `--frames N` ends it after N frames;
// else it ends when the inspector is closed.
#include "Chain.h"
#include "CrvInspector.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto frameTime = std::chrono::microseconds(16667);
constexpr int ballCount = 6;
constexpr int pollTime = 2; // in milliseconds

/// The number behind `--frames`; -1 for no end, 0 for a command line that is wrong.
long framesWanted(int argc, char** argv)
{
    if (argc == 1)
        return -1;
    return argc == 3 && std::string_view(argv[1]) == "--frames"
        ? std::max(0L, std::strtol(argv[2], nullptr, 10))
        : 0;
}

} // namespace

int main(int argc, char** argv)
{
    const long wanted = framesWanted(argc, argv);
    if (wanted == 0) {
        std::fprintf(stderr, "Usage: %s [--frames N]\n", argv[0]);
        return 2;
    }

    CrvInspector::makeApplication();
    Chain chain(ballCount);
    CrvInspector inspector(chain.root());
    inspector.show();

    long frames = 0;
    Milliseconds inside {};
    Milliseconds longest {};
    const Clock::time_point start = Clock::now();
    Clock::time_point due = start;
    while (inspector.isOpen() && frames != wanted) {
        chain.step(std::chrono::duration<float>(frameTime).count());
        const Clock::time_point before = Clock::now();
        CrvInspector::poll(pollTime);
        const Milliseconds polled = Clock::now() - before;
        inside += polled;
        longest = std::max(longest, polled);
        ++frames;
        // A late frame isn't made up for.
        due = std::max(due + frameTime, Clock::now());
        std::this_thread::sleep_until(due);
    }
    const Milliseconds total = Clock::now() - start;
    inspector.close();
    if (frames == 0) // the inspector has said why
        return 1;
    std::printf("%ld frames of %.2f ms; the inspector took %.2f ms of each, %.2f ms at most\n",
        frames, total.count() / static_cast<double>(frames),
        inside.count() / static_cast<double>(frames), longest.count());
    return 0;
}
