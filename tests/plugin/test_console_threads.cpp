// SPDX-License-Identifier: BSD-3-Clause
// Threads print while another one captures and releases the stream: without Qt, so that the thread
// sanitizer sees all of it.
#include "OwnBuffer.h"
#include "StreamCapture.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>

namespace {

constexpr int threadCount = 4;
constexpr int messageCount = 20000; // of each thread

#define CHECK(condition)                                                                           \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "line %d: %s\n", __LINE__, #condition);                           \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)

/// The user data of one capture, gone after its release, so that a late call shows.
struct Capture {
    OwnBuffer* record;
    std::atomic<int>* calls;
};

void takeText(const char* text, std::streamsize count, void* userData)
{
    const auto* const capture = static_cast<const Capture*>(userData);
    ++*capture->calls;
    capture->record->sputn(text, count);
}

/// Runs `print` on all threads for each message, and `meanwhile` here until they are done.
template <class Print, class Meanwhile>
void run(Print print, Meanwhile meanwhile)
{
    std::vector<std::thread> threads;
    std::atomic<int> running = threadCount;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([thread, print, &running] {
            for (int i = 0; i < messageCount; ++i)
                print(thread, i);
            --running;
        });
    }
    do
        meanwhile();
    while (running > 0);
    for (std::thread& thread : threads)
        thread.join();
}

void captureAndReleaseWhileThreadsPrint()
{
    OwnBuffer own(std::cout);
    // Made before the threads start: the sanitizer doesn't see how the stream hands the address of
    // a new buffer to a thread.
    auto* const first = captureStream(std::cout, &takeText, nullptr);
    releaseStream(first);
    std::atomic<int> calls = 0;
    const auto print = [](int thread, int i) {
        const std::string text = std::to_string(thread) + ':' + std::to_string(i);
        std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
        std::cout.put('\n');
    };
    run(print, [&] {
        const auto capture = std::make_unique<Capture>(Capture { &own, &calls });
        auto* const redirector = captureStream(std::cout, &takeText, capture.get());
        // One and the same all the time: captures don't pile up.
        CHECK(redirector == first && std::cout.rdbuf() == first);
        std::this_thread::yield();
        releaseStream(redirector);
        CHECK(std::cout.rdbuf() == &own);
    });

    // Each message once and whole, and those of a thread in their order.
    int next[threadCount] = {};
    int newlines = 0;
    for (const std::string& text : own.take()) {
        int thread = 0;
        int number = 0;
        if (std::sscanf(text.c_str(), "%d:%d", &thread, &number) == 2)
            CHECK(next[thread]++ == number);
        else
            ++newlines;
    }
    for (const int count : next)
        CHECK(count == messageCount);
    CHECK(newlines == threadCount * messageCount);
    CHECK(calls > 0);
}

void singleCharactersOfSeveralThreads()
{
    OwnBuffer own(std::cerr);
    std::atomic<int> calls = 0;
    Capture capture { &own, &calls };
    auto* const redirector = captureStream(std::cerr, &takeText, &capture);
    run([](int, int i) { std::cerr.put(i % 10 == 9 ? '\n' : 'x'); }, [] {});
    releaseStream(redirector);
    std::size_t characters = 0;
    for (const std::string& text : own.take())
        characters += text.size();
    CHECK(calls == threadCount * messageCount / 10);
    CHECK(characters == threadCount * messageCount * 9 / 10);
}

} // namespace

int main()
{
    captureAndReleaseWhileThreadsPrint();
    singleCharactersOfSeveralThreads();
    return 0;
}
