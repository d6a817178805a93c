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
/// A thread waits while the messages on their way weigh as much as the limit or more, and for one
/// message never longer than the patience. If the view's thread has handled no message for that
/// long, nobody waits until it handles one again. So if the view's thread itself waits for a thread
/// that prints, to join it or for a lock that it holds, it is delayed by no more than the patience
/// in all, however much that thread prints.
///
/// Weights are in bytes. Any thread may call `enter` and destroy a Place; the rest is for the
/// view's thread. Without Qt, so that the thread sanitizer sees all of it.
class PrintBrake {
public:
    using Clock = std::chrono::steady_clock;

    /// What one message takes up of the limit, from its printing until it is shown or dropped. The
    /// message owns it. It must not outlive the brake.
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

    /// `limit` in bytes; `patience` is how long a thread waits for one message at most.
    PrintBrake(std::size_t limit, Clock::duration patience);

    /// Called by a thread that prints, before it hands its message over. It may wait here.
    Place enter(std::size_t weight);

    /// Called when a message reaches the view's thread, which may be long before it is shown.
    /// Without this, threads that were let go once would post faster than Qt delivers, for good.
    void noteArrival();

    /// Whether threads wait at all; at first they don't. With false those that wait go on at once.
    void setEngaged(bool engaged);

private:
    void leave(std::size_t weight);

    const std::size_t m_limit;
    const Clock::duration m_patience;
    std::mutex m_mutex; // guards what follows
    std::condition_variable m_eased;
    std::size_t m_load = 0; // weight of all that is on its way
    bool m_engaged = false;
    // When the view's thread last took or showed a message, or had none to show. Not guarded, since
    // it is set for each message of a flood, when many threads want the lock.
    std::atomic<Clock::time_point> m_lastStep = Clock::time_point();
};
