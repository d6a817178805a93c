// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <mutex>

/// Functions that other threads want to run on the thread of the user interface, which is that of
/// the application object. All members may be called from any thread.
class CallQueue {
public:
    /// There is one, which outlives all threads.
    static CallQueue& getInstance();

    /// On the thread of the user interface: runs the function at once. Elsewhere: returns at once,
    /// and the function runs from the event loop, behind those that came before it. Before `serve`
    /// was called, and once the application object is gone, it waits until `serve` is called.
    void call(std::function<void()> function);
    /// To be called on the thread of the user interface when there is an application object; it
    /// serves as long as that does. Ignored elsewhere, and when called again.
    void serve();

private:
    class Runner;

    CallQueue();
    ~CallQueue();

    bool isOnThread();
    static void stop();
    void wake();
    void run();

    std::mutex m_mutex; // guards the members below
    std::deque<std::function<void()>> m_functions;
    std::unique_ptr<Runner> m_runner; // null while nobody serves
};
