// SPDX-License-Identifier: BSD-3-Clause
// Linked into the programs of a build that looks for leaks. QThread::wait() comes back shortly
// before the thread gives up what Qt keeps of it; if the program is over first, the destructor for
// that is gone, and 152 bytes count as a leak. What is registered before main() runs behind the
// destructors of Qt's thread pools and before that of QtCore.
#include <cstdlib>
#include <ctime>
#include <filesystem>

namespace {

bool isAlone()
{
    std::error_code error;
    int threads = 0;
    for (std::filesystem::directory_iterator task("/proc/self/task", error), end;
         !error && task != end; task.increment(error)) {
        ++threads;
    }
    return threads <= 1;
}

void awaitThreads()
{
    constexpr int attempts = 200;
    constexpr timespec pause { 0, 1'000'000 };
    // A thread that nobody ends is no fault of the program: the wait is bounded.
    for (int attempt = 0; attempt < attempts && !isAlone(); ++attempt) {
        nanosleep(&pause, nullptr);
    }
}

[[maybe_unused]] const int registered = std::atexit(awaitThreads);

} // namespace
