// SPDX-License-Identifier: BSD-3-Clause
#include "KnDebugError.h"
#include "KnReadError.h"
#include "KnReadErrorCapture.h"

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace {

constexpr int threadCount = 4;
constexpr int rounds = 2000;

/// Runs one function on several threads at the same time, until the end of the vector.
std::vector<std::jthread> startThreads(void (*function)(int thread))
{
    std::vector<std::jthread> threads;
    for (int i = 0; i < threadCount; ++i)
        threads.emplace_back(function, i);
    return threads;
}

/// The data of a handler may go as soon as the handler was replaced. The address sanitizer sees a
/// callback that is late; without it the mark does.
bool dataMayGoWithTheHandler()
{
    struct Data {
        ~Data() { alive = false; }
        std::atomic<bool> alive { true };
    };
    static std::atomic<int> late;
    static std::atomic<bool> over;
    auto threads = startThreads([](int) {
        while (!over)
            KnDebugError::post(KnDebugError::Info, "text");
    });
    for (int i = 0; i < rounds; ++i) {
        const auto data = std::make_unique<Data>();
        KnDebugError::setHandlerCallback(
            [](const KnError*, void* given) { late += !static_cast<Data*>(given)->alive; },
            data.get());
        std::this_thread::yield();
        KnDebugError::setHandlerCallback(nullptr, nullptr);
    }
    over = true;
    threads.clear();
    return late == 0;
}

/// Threads that capture their own read errors, beside threads that don't: nobody gets the error of
/// another thread, and all that isn't captured reaches the handler, which knows that it is alone.
bool capturesTakeOnlyTheirOwn()
{
    static std::atomic<int> handled, running, wrong;
    KnReadError::setHandlerCallback(
        [](const KnError* error, void*) {
            ++handled;
            wrong += running++ == 0 && error->getDebugString() == "free" ? 0 : 1;
            --running;
        },
        nullptr);
    startThreads([](int thread) {
        const KbString own(std::to_string(thread));
        for (int i = 0; i < rounds; ++i) {
            if (thread % 2 == 0) {
                const KnReadErrorCapture capture;
                KnReadError::post(own);
                std::this_thread::yield();
                wrong += capture.getText() == own ? 0 : 1;
            }
            KnReadError::post("free");
        }
    }).clear();
    return wrong == 0 && handled == threadCount * rounds;
}

} // namespace

int main()
{
    // The status says what failed.
    return (dataMayGoWithTheHandler() ? 0 : 1) + (capturesTakeOnlyTheirOwn() ? 0 : 2);
}
