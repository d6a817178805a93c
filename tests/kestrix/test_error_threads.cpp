// SPDX-License-Identifier: BSD-3-Clause
#include "KnDebugError.h"
#include "KnMemoryError.h"
#include "KnReadError.h"

#include <atomic>
#include <cstdio>
#include <memory>
#include <thread>
#include <vector>

namespace {

constexpr int threadCount = 4;
constexpr int rounds = 2000;

int s_failures = 0;

void check(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "FAIL: %s\n", what);
    ++s_failures;
}

/// Runs one function on several threads at the same time.
class Threads {
public:
    explicit Threads(void (*function)(int thread))
    {
        for (int i = 0; i < threadCount; ++i)
            m_threads.emplace_back(function, i);
    }
    void join()
    {
        for (std::thread& thread : m_threads)
            thread.join();
    }

private:
    std::vector<std::thread> m_threads;
};

/// The data of a handler may go as soon as the handler was replaced. The address sanitizer sees a
/// callback that is late; without it the mark does.
void dataMayGoWithTheHandler()
{
    struct Data {
        ~Data() { alive = false; }
        std::atomic<bool> alive { true };
    };
    static std::atomic<int> late;
    static std::atomic<bool> over;
    Threads threads([](int) {
        while (!over)
            KnDebugError::post(KnDebugError::Info, "text");
    });
    for (int i = 0; i < rounds; ++i) {
        const auto data = std::make_unique<Data>();
        KnDebugError::setHandlerCallback(
            [](const KnError*, void* given) {
                std::this_thread::yield();
                late += static_cast<Data*>(given)->alive ? 0 : 1;
            },
            data.get());
        std::this_thread::yield();
        KnDebugError::setHandlerCallback(nullptr, nullptr);
    }
    over = true;
    threads.join();
    check(late == 0, "a callback ran after it was replaced");
}

/// Handlers that post errors of the other's class and replace their own handler, on several
/// threads: no two wait for each other, each knows that it is alone, and every error arrives.
void handlersPostAndReplace()
{
    static std::atomic<int> running;
    static std::atomic<int> together;
    static std::atomic<int> readErrors;
    static std::atomic<int> memoryErrors;
    static const KnErrorCallback onRead = [](const KnError*, void* data) {
        together += running++ == 0 ? 0 : 1;
        KnReadError::setHandlerCallback(KnReadError::getHandlerCallback(), data);
        --running;
        if (++readErrors % 2 == 0)
            KnMemoryError::post("from a handler");
    };
    static const KnErrorCallback onMemory = [](const KnError*, void*) {
        KnReadError::setHandlerCallback(onRead, nullptr);
        if (++memoryErrors % 3 == 0)
            KnDebugError::post(KnDebugError::Warning, "from a handler");
    };
    KnReadError::setHandlerCallback(onRead, nullptr);
    KnMemoryError::setHandlerCallback(onMemory, nullptr);
    Threads([](int thread) {
        for (int i = 0; i < rounds; ++i)
            (thread + i) % 2 == 0 ? KnReadError::post("text") : KnMemoryError::post("text");
    }).join();
    const int half = threadCount * rounds / 2;
    check(together == 0, "two callbacks ran at the same time");
    check(readErrors == half, "a read error was lost");
    check(memoryErrors == half + half / 2, "a memory error was lost");
}

} // namespace

int main()
{
    KnDebugError::setHandlerCallback(nullptr, nullptr);
    dataMayGoWithTheHandler();
    handlersPostAndReplace();
    std::fprintf(stderr, s_failures == 0 ? "All passed\n" : "Failed\n");
    return s_failures == 0 ? 0 : 1;
}
