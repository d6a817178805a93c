// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "Fiber.h"

#include <QElapsedTimer>
#include <QObject>

#include <chrono>
#include <memory>

/// Qt's event loop for a program that has a loop of its own and gives it a little time now and
/// then. It runs on a stack of its own, and stands still whenever the time is over: so it also does
/// in the loop of a dialog, a menu or a drag, which stays open while the program goes on.
///
/// There is at most one object, made at the first `poll` and destroyed with the application object.
class EventFiber : public QObject {
    Q_OBJECT
public:
    /// Runs what waits, for about `milliseconds` at most; a handler that takes longer is not
    /// interrupted. Does nothing without an application object, on another thread than its, and
    /// while an event loop runs already: this one, in one of whose handlers the caller stands then,
    /// or the program's own.
    static void poll(int milliseconds);
    /// Lets dialogs, menus and drags that were told to end return, if they run here and the caller
    /// doesn't stand in one of their handlers. False if any loop but the outermost one is left,
    /// whoever runs it.
    static bool unwind();

    Q_DISABLE_COPY_MOVE(EventFiber)

private:
    /// How a turn of the loop ends.
    enum class Goal { TimeIsOver, OnlyOuterLoop, NoLoop };

    EventFiber();
    ~EventFiber() override;

    static void destroy();
    static bool mayRun();
    void run(Goal goal, int rounds, int milliseconds);
    void endRound();

    std::unique_ptr<Fiber> m_fiber;
    Goal m_goal = Goal::TimeIsOver;
    int m_rounds = 0; // left
    std::chrono::milliseconds m_time {};
    QElapsedTimer m_sinceStart;
    int m_level = 0; // how many loops stood on the stack when it was suspended
};
