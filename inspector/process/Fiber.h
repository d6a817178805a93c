// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <ucontext.h>

#include <cstddef>
#include <functional>

/// Runs a function on a stack of its own, so that it can stand still in the middle while its caller
/// goes on. One thread only: the one that made it.
class Fiber {
public:
    /// `body` runs at the first `resume` and mustn't throw.
    explicit Fiber(std::function<void()> body);
    Fiber(const Fiber&) = delete;
    Fiber& operator=(const Fiber&) = delete;
    /// A body that hasn't returned is given up: what stands on its stack is not destroyed. Not to
    /// be called from the body.
    ~Fiber();

    /// Runs the body on from where it stands, until it suspends itself or returns. Not to be called
    /// from the body, nor when it has returned.
    void resume();
    /// Goes back to whoever called `resume`. Called by the body, however deep below it.
    void suspend();

    /// Whether the caller stands on this stack.
    bool isRunning() const { return m_running; }
    bool isFinished() const { return m_finished; }

private:
    static void enter();
    void arrive(void* fakeStack);

    std::function<void()> m_body;
    void* m_memory; // mapped: a page that nobody may touch, and above it the stack
    ucontext_t m_caller = {};
    ucontext_t m_own = {};
    bool m_running = false;
    bool m_finished = false;
    // Where the caller's stack lies, for the address sanitizer.
    [[maybe_unused]] const void* m_callerStack = nullptr;
    [[maybe_unused]] std::size_t m_callerStackSize = 0;
};
