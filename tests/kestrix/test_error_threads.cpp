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
template <class Function>
void onThreads(Function function)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i)
        threads.emplace_back(function, i);
    for (std::thread& thread : threads)
        thread.join();
}

void silenceAll()
{
    KnReadError::setHandlerCallback(nullptr, nullptr);
    KnDebugError::setHandlerCallback(nullptr, nullptr);
    KnMemoryError::setHandlerCallback(nullptr, nullptr);
}

/// Every error arrives, whichever thread it comes from, on that thread.
void everyErrorArrives()
{
    struct Heard {
        std::atomic<int> count { 0 };
        std::atomic<int> elsewhere { 0 };
    } heard;
    thread_local int posting;
    posting = 0;
    KnReadError::setHandlerCallback(
        [](const KnError* error, void* data) {
            auto* noted = static_cast<Heard*>(data);
            ++noted->count;
            if (posting == 0 || !error->isOfType(KnReadError::getClassTypeId()))
                ++noted->elsewhere;
        },
        &heard);
    onThreads([](int) {
        posting = 1;
        for (int i = 0; i < rounds; ++i)
            KnReadError::post("text");
    });
    check(heard.count == threadCount * rounds, "an error was lost");
    check(heard.elsewhere == 0, "an error arrived on another thread or as another class");
    silenceAll();
}

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
    late = 0;
    over = false;
    const KnErrorCallback callback = [](const KnError*, void* data) {
        std::this_thread::yield();
        if (!static_cast<Data*>(data)->alive)
            ++late;
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i)
        threads.emplace_back([] {
            while (!over)
                KnDebugError::post(KnDebugError::Info, "text");
        });
    for (int i = 0; i < rounds; ++i) {
        auto data = std::make_unique<Data>();
        KnDebugError::setHandlerCallback(callback, data.get());
        std::this_thread::yield();
        KnDebugError::setHandlerCallback(nullptr, nullptr);
    }
    over = true;
    for (std::thread& thread : threads)
        thread.join();
    check(late == 0, "a callback ran after it was replaced");
    silenceAll();
}

/// Handlers that post errors of each other's class, and replace each other, on several threads.
void handlersPostAndReplace()
{
    static std::atomic<int> readErrors;
    static std::atomic<int> memoryErrors;
    readErrors = 0;
    memoryErrors = 0;
    static const KnErrorCallback onRead = [](const KnError*, void* data) {
        ++readErrors;
        if (readErrors % 2 == 0)
            KnMemoryError::post("from a handler");
        else
            KnMemoryError::setHandlerCallback(KnMemoryError::getHandlerCallback(), data);
    };
    static const KnErrorCallback onMemory = [](const KnError*, void* data) {
        ++memoryErrors;
        KnReadError::setHandlerCallback(onRead, data);
        if (memoryErrors % 3 == 0)
            KnDebugError::post(KnDebugError::Warning, "from a handler");
    };
    KnReadError::setHandlerCallback(onRead, nullptr);
    KnMemoryError::setHandlerCallback(onMemory, nullptr);
    onThreads([](int thread) {
        for (int i = 0; i < rounds; ++i) {
            if ((thread + i) % 2 == 0)
                KnReadError::post("text");
            else
                KnMemoryError::post("text");
        }
    });
    const int half = threadCount * rounds / 2;
    check(readErrors == half, "a read error was lost");
    check(memoryErrors == half + half / 2, "a memory error was lost");
    silenceAll();
}

/// Handlers that replace themselves at the same time: each knows that it is alone.
void handlersReplaceThemselves()
{
    static std::atomic<int> running;
    static std::atomic<int> together;
    static std::atomic<int> calls;
    running = together = calls = 0;
    static KnErrorCallback other[2];
    static const auto run = [](int which) {
        ++running;
        ++calls;
        KnReadError::setHandlerCallback(other[which], nullptr);
        if (running != 1)
            ++together;
        --running;
    };
    other[0] = [](const KnError*, void*) { run(1); };
    other[1] = [](const KnError*, void*) { run(0); };
    KnReadError::setHandlerCallback(other[0], nullptr);
    onThreads([](int) {
        for (int i = 0; i < rounds; ++i)
            KnReadError::post("text");
    });
    check(together == 0, "a former callback ran on after it was replaced");
    check(calls == threadCount * rounds, "an error was lost");
    silenceAll();
}

} // namespace

int main()
{
    silenceAll();
    everyErrorArrives();
    dataMayGoWithTheHandler();
    handlersPostAndReplace();
    handlersReplaceThemselves();
    std::fprintf(stderr, s_failures == 0 ? "All passed\n" : "Failed\n");
    return s_failures == 0 ? 0 : 1;
}
