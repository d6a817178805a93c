// SPDX-License-Identifier: BSD-3-Clause
// Threads print while another one captures and releases the stream: without Qt, so that the thread
// sanitizer sees all of it.
#include "Check.h"
#include "OwnBuffer.h"
#include "StreamCapture.h"

#include <atomic>
#include <iostream>
#include <memory>

namespace {

constexpr int threadCount = 4;
constexpr int messageCount = 20000; // of each thread

/// The user data of one capture, gone after its release, so that a late call shows.
struct Capture {
    OwnBuffer* record;
    std::atomic<int>* calls;
};

void takeText(const char* text, std::streamsize count, void* userData)
{
    const auto* const capture = static_cast<const Capture*>(userData);
    ++*capture->calls;
    capture->record->sputn((std::string(text, count) + '\n').c_str(), count + 1);
}

void print(int thread)
{
    for (int i = 0; i < messageCount; ++i) {
        const std::string text = std::to_string(thread) + ':' + std::to_string(i);
        std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
        std::cout.put('x').put('\n');
    }
}

} // namespace

int main()
{
    OwnBuffer own(std::cout);
    // Made before the threads start: the sanitizer doesn't see how the stream hands the address of
    // a new buffer to a thread.
    auto* const redirector = captureStream(std::cout, &takeText, nullptr);
    releaseStream(redirector);
    std::atomic<int> running = threadCount;
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([thread, &running] {
            print(thread);
            --running;
        });
    }
    std::atomic<int> calls = 0;
    do {
        const auto capture = std::make_unique<Capture>(Capture { &own, &calls });
        // One and the same all the time: captures don't pile up.
        check(captureStream(std::cout, &takeText, capture.get()) == redirector, "the same again");
        check(std::cout.rdbuf() == redirector, "the stream is captured");
        std::this_thread::yield();
        releaseStream(redirector);
        check(std::cout.rdbuf() == &own, "the stream has its own buffer again");
    } while (running > 0);
    threads.clear();
    check(calls > 0, "some of it was captured");

    // Each block and each line once and whole, and the blocks of a thread in their order. A
    // captured line holds the characters of any thread.
    int next[threadCount] = {};
    int lines = 0;
    for (const std::string& text : own.writes) {
        int thread = 0;
        int number = 0;
        if (std::sscanf(text.c_str(), "%d:%d", &thread, &number) == 2)
            check(next[thread]++ == number, "blocks in their order");
        else
            lines += text.back() == '\n' ? 1 : 0;
    }
    for (const int count : next)
        check(count == messageCount, "every block once");
    check(lines == threadCount * messageCount, "every line once");
    return 0;
}
