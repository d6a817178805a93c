// SPDX-License-Identifier: BSD-3-Clause
// Threads print while another one captures and releases the stream: without Qt, so that the thread
// sanitizer sees all of it.
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

/// What arrived, wherever it did: the last number of each thread, which must go up by one.
struct Record {
    std::mutex mutex;
    int next[threadCount] = {};
    int newlines = 0;
    std::size_t characters = 0;

    void take(const char* text, std::streamsize count)
    {
        const std::lock_guard lock(mutex);
        const std::string message(text, static_cast<std::size_t>(count));
        int thread = 0;
        int number = 0;
        if (std::sscanf(message.c_str(), "%d:%d", &thread, &number) == 2)
            CHECK(next[thread]++ == number);
        else
            ++newlines;
        characters += message.size();
    }
};

/// The stream's own buffer.
class OwnBuffer : public std::streambuf {
public:
    explicit OwnBuffer(Record& record)
        : m_record(record)
    {
    }

protected:
    int_type overflow(int_type c) override
    {
        const char character = traits_type::to_char_type(c);
        m_record.take(&character, 1);
        return traits_type::not_eof(c);
    }
    std::streamsize xsputn(const char* text, std::streamsize count) override
    {
        m_record.take(text, count);
        return count;
    }

private:
    Record& m_record;
};

/// Lives from capture to release, so that a late call shows.
struct Capture {
    Record* record;
    int calls = 0;
};

void takeText(const char* text, std::streamsize count, void* userData)
{
    auto* const capture = static_cast<Capture*>(userData);
    {
        const std::lock_guard lock(capture->record->mutex);
        ++capture->calls;
    }
    capture->record->take(text, count);
}

template <class Work>
std::vector<std::thread> start(std::atomic<int>& running, Work work)
{
    std::vector<std::thread> threads;
    running = threadCount;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([i, work, &running] {
            work(i);
            --running;
        });
    }
    return threads;
}

void captureAndReleaseWhileThreadsPrint()
{
    Record record;
    OwnBuffer own(record);
    std::streambuf* const before = std::cout.rdbuf(&own);
    // Made before the threads start: the sanitizer doesn't see how the stream hands the address of
    // a new buffer to a thread.
    releaseStream(captureStream(std::cout, &takeText, nullptr));
    std::atomic<int> running;
    auto threads = start(running, [](int thread) {
        for (int i = 0; i < messageCount; ++i) {
            const std::string text = std::to_string(thread) + ':' + std::to_string(i);
            std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
            std::cout.put('\n');
        }
    });
    std::vector<const void*> redirectors;
    int captured = 0;
    do {
        auto capture = std::make_unique<Capture>(Capture { &record });
        auto* const redirector = captureStream(std::cout, &takeText, capture.get());
        CHECK(std::cout.rdbuf() == redirector);
        std::this_thread::yield();
        releaseStream(redirector);
        CHECK(std::cout.rdbuf() == &own);
        captured += capture->calls;
        redirectors.push_back(redirector);
    } while (running > 0);
    for (std::thread& thread : threads)
        thread.join();
    std::cout.rdbuf(before);

    for (const int next : record.next)
        CHECK(next == messageCount);
    CHECK(record.newlines == threadCount * messageCount);
    CHECK(captured > 0);
    // One and the same all the time: captures don't pile up.
    for (const void* redirector : redirectors)
        CHECK(redirector == redirectors.front());
}

void singleCharactersOfSeveralThreads()
{
    Record record;
    Capture capture { &record };
    auto* const redirector = captureStream(std::cerr, &takeText, &capture);
    std::atomic<int> running;
    auto threads = start(running, [](int) {
        for (int i = 0; i < messageCount; ++i)
            std::cerr.put(i % 10 == 9 ? '\n' : 'x');
    });
    for (std::thread& thread : threads)
        thread.join();
    releaseStream(redirector);
    CHECK(capture.calls == threadCount * messageCount / 10);
    CHECK(record.characters == threadCount * messageCount * 9 / 10);
}

} // namespace

int main()
{
    captureAndReleaseWhileThreadsPrint();
    singleCharactersOfSeveralThreads();
    return 0;
}
