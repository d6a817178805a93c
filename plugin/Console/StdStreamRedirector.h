// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <ostream>
#include <streambuf>
#include <string>
#include <thread>
#include <utility>
#include <vector>

/// A stream buffer that takes the place of an output stream's own, so that what is written through
/// the stream goes to a callback, on the thread that writes. A block is one call as it stands;
/// single characters are gathered until a newline, which is not handed over. A block
/// neither waits for them nor flushes them. Flushing delivers nothing, and an unfinished line is
/// dropped at the end.
///
/// Several threads may write while another one captures and releases. Guaranteed is:
/// - the callback runs outside of the lock, so that it may write to a stream itself, and no longer
///   runs on any other thread when `release` returns, so that its user data may go;
/// - each write is one call of the callback, or goes whole to the stream's own buffer;
/// - a thread that still has this buffer in hand after `release` reaches the stream's own one, as
///   long as this object lives. The owner sees to that: see StreamCapture.h.
/// Not guaranteed is what a C++ stream doesn't offer: `rdbuf` itself is a plain pointer, which a
/// writing thread reads without a lock. Here it is exchanged by one store of a word, and both of
/// its values name objects that live.
template <class Elem, class Traits = std::char_traits<Elem>>
class StdStreamRedirector : public std::basic_streambuf<Elem, Traits> {
public:
    using int_type = typename Traits::int_type;
    using String = std::basic_string<Elem, Traits>;
    using Stream = std::basic_ostream<Elem, Traits>;
    using Buffer = std::basic_streambuf<Elem, Traits>;
    using Callback = void (*)(const Elem* text, std::streamsize count, void* userData);

    /// Captures `stream`, which must outlive this object. Neither it nor the user data is owned.
    StdStreamRedirector(Stream& stream, Callback callback, void* userData)
        : m_stream(stream)
    {
        capture(callback, userData);
    }
    StdStreamRedirector(const StdStreamRedirector&) = delete;
    StdStreamRedirector& operator=(const StdStreamRedirector&) = delete;
    ~StdStreamRedirector() override { release(); }

    /// Captures the stream again behind `release`.
    void capture(Callback callback, void* userData)
    {
        const std::lock_guard lock(m_mutex);
        m_callback = callback;
        m_userData = userData;
        m_captured = true;
#ifndef __SANITIZE_THREAD__ // which doesn't know fences
        // A thread that finds this buffer in the stream finds it complete.
        std::atomic_thread_fence(std::memory_order_release);
#endif
        Buffer* const previous = m_stream.rdbuf(this);
        // Somebody who took the stream over in the meantime may have put this buffer back.
        if (previous != this)
            m_previousBuffer = previous;
    }

    /// Gives the stream its own buffer back, waits for the callback to return on other threads and
    /// drops an unfinished line. Without a capture it does nothing.
    void release()
    {
        std::unique_lock lock(m_mutex);
        if (!m_captured)
            return;
        m_stream.rdbuf(m_previousBuffer);
        m_captured = false;
        m_line = String();
        // A callback that releases its own stream mustn't wait for itself.
        const std::thread::id self = std::this_thread::get_id();
        m_returned.wait(lock, [this, self] {
            return std::all_of(m_callers.begin(), m_callers.end(),
                [self](std::thread::id caller) { return caller == self; });
        });
    }

    bool serves(const Stream& stream) const { return &m_stream == &stream; }

protected:
    int_type overflow(int_type c) override
    {
        const Elem character = Traits::to_char_type(c);
        std::unique_lock lock(m_mutex);
        if (!m_captured)
            passOn(lock, &character, 1);
        else if (!Traits::eq(character, Elem('\n')))
            m_line.push_back(character);
        else {
            const String line = std::exchange(m_line, String());
            deliver(lock, line.c_str(), static_cast<std::streamsize>(line.size()));
        }
        return Traits::not_eof(c);
    }

    std::streamsize xsputn(const Elem* text, std::streamsize count) override
    {
        std::unique_lock lock(m_mutex);
        if (m_captured)
            deliver(lock, text, count);
        else
            passOn(lock, text, count);
        return count;
    }

private:
    void deliver(std::unique_lock<std::mutex>& lock, const Elem* text, std::streamsize count)
    {
        const Callback callback = m_callback;
        void* const userData = m_userData;
        const std::thread::id self = std::this_thread::get_id();
        m_callers.push_back(self);
        lock.unlock();
        callback(text, count, userData);
        lock.lock();
        m_callers.erase(std::find(m_callers.begin(), m_callers.end(), self));
        m_returned.notify_all();
    }

    void passOn(std::unique_lock<std::mutex>& lock, const Elem* text, std::streamsize count)
    {
        Buffer* const previous = m_previousBuffer;
        lock.unlock();
        if (previous)
            previous->sputn(text, count);
    }

    Stream& m_stream;
    Buffer* m_previousBuffer = nullptr; // not owned; the stream's own
    String m_line; // the characters that came one by one since the last newline
    Callback m_callback = nullptr;
    void* m_userData = nullptr; // not owned

    // Guards all of this, also without a capture: a thread that comes late needs it to find out
    // that its text goes to the stream's own buffer.
    std::mutex m_mutex;
    std::condition_variable m_returned;
    std::vector<std::thread::id>
        m_callers; // threads inside the callback, once for each nested call
    bool m_captured = false;
};
