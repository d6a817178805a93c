// SPDX-License-Identifier: BSD-3-Clause
#include "KnDebugError.h"
#include "KnMemoryError.h"
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
            [](const KnError*, void* given) {
                std::this_thread::yield();
                late += !static_cast<Data*>(given)->alive;
            },
            data.get());
        std::this_thread::yield();
        KnDebugError::setHandlerCallback(nullptr, nullptr);
    }
    over = true;
    threads.clear();
    return late == 0;
}

/// Handlers that post errors of the other's class and replace their own handler, on several
/// threads: no two wait for each other, each knows that it is alone, and every error arrives.
bool handlersPostAndReplace()
{
    static std::atomic<int> running, together, readErrors, memoryErrors;
    static const KnErrorCallback onRead = [](const KnError*, void* data) {
        together += running++ == 0 ? 0 : 1;
        KnReadError::setHandlerCallback(KnReadError::getHandlerCallback(), data);
        --running;
        if (++readErrors % 2 == 0)
            KnMemoryError::post("from a handler");
    };
    KnReadError::setHandlerCallback(onRead, nullptr);
    KnMemoryError::setHandlerCallback(
        [](const KnError*, void*) {
            KnReadError::setHandlerCallback(onRead, nullptr);
            ++memoryErrors;
        },
        nullptr);
    startThreads([](int thread) {
        for (int i = 0; i < rounds; ++i)
            (thread + i) % 2 == 0 ? KnReadError::post("text") : KnMemoryError::post("text");
    }).clear();
    constexpr int half = threadCount * rounds / 2;
    return together == 0 && readErrors == half && memoryErrors == half + half / 2;
}

/// Threads that capture their own read errors, beside threads that don't: nobody gets the error of
/// another thread, and all that isn't captured reaches the handler.
bool capturesTakeOnlyTheirOwn()
{
    static std::atomic<int> handled, wrong;
    KnReadError::setHandlerCallback(
        [](const KnError* error, void*) {
            ++handled;
            wrong += error->getDebugString() == "free" ? 0 : 1;
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
    return (dataMayGoWithTheHandler() ? 0 : 1) + (handlersPostAndReplace() ? 0 : 2)
        + (capturesTakeOnlyTheirOwn() ? 0 : 4);
}
