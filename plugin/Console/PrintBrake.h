// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <utility>

/// Slows down the threads that print while the view is far behind them, so that a flood neither
/// piles up in memory nor keeps the view's thread from its other work.
///
/// A thread waits while the messages on their way weigh more than the limit, and never longer than
/// the patience for one message. Once the view's thread has done nothing about messages for that
/// long nobody waits at all, until it does again: a view whose thread waits for a printing one, by
/// joining it or for a lock that it holds, stands still no longer than that, however much the
/// thread has to say.
/// Without Qt, so that the thread sanitizer sees all of it.
class PrintBrake {
public:
    using Clock = std::chrono::steady_clock;

    /// What one message takes up of the limit, from its printing until it is shown or dropped. It
    /// must not outlive the brake.
    class Place {
    public:
        Place() = default; ///< for a message that doesn't count
        Place(Place&& other) noexcept
            : m_brake(std::exchange(other.m_brake, nullptr))
            , m_weight(other.m_weight)
        {
        }
        Place& operator=(Place&&) = delete;
        ~Place()
        {
            if (m_brake)
                m_brake->leave(m_weight);
        }

    private:
        friend class PrintBrake;
        Place(PrintBrake* brake, std::size_t weight)
            : m_brake(brake)
            , m_weight(weight)
        {
        }

        PrintBrake* m_brake = nullptr;
        std::size_t m_weight = 0;
    };

    PrintBrake(std::size_t limit, Clock::duration patience);

    /// Called by a thread that prints, before it hands its message over.
    Place enter(std::size_t weight);

    /// Called by the view's thread when a message reaches it, long before it may be shown. Without
    /// this, threads that were let go once would post faster than Qt delivers, and go on to do so.
    void noteArrival();

    /// Before the first call, and when it is called with false, no thread waits: those that do go
    /// on at once.
    void setEngaged(bool engaged);

private:
    void leave(std::size_t weight);

    const std::size_t m_limit;
    const Clock::duration m_patience;
    std::mutex m_mutex; // guards what follows
    std::condition_variable m_eased;
    std::size_t m_load = 0; // weight of all that is on its way
    bool m_engaged = false;
    // Of the view's thread: took or showed a message, or owed none. Not guarded: it is noted for
    // each message of a flood, when many threads want the lock.
    std::atomic<Clock::time_point> m_lastStep = Clock::time_point();
};
