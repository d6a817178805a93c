// SPDX-License-Identifier: BSD-3-Clause
#include "EventFiber.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QThread>

#include <utility>

namespace {

EventFiber* instance = nullptr; // owned, until the application object goes away

// The dispatcher announces itself twice in each turn. What one turn handles may post more, such as
// the painting of what a click has changed; a few turns see that through.
constexpr int usualRounds = 8;
// A loop that hasn't ended by then doesn't do what it was told.
constexpr int patientRounds = 10000;

int loopLevel() { return QThread::currentThread()->loopLevel(); }

} // namespace

EventFiber::EventFiber()
    : m_fiber(std::make_unique<Fiber>([] { QApplication::exec(); }))
{
    const auto* const dispatcher = QAbstractEventDispatcher::instance();
    // Which of the two comes depends on the dispatcher and on whether a loop waits for events.
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &EventFiber::endRound);
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &EventFiber::endRound);
}

EventFiber::~EventFiber()
{
    if (!m_fiber->isRunning() && !m_fiber->isFinished()) {
        QCoreApplication::exit();
        run(Goal::NoLoop, patientRounds, 0);
    }
    // A loop that doesn't end is still known to Qt, so its stack stays.
    if (!m_fiber->isFinished())
        static_cast<void>(m_fiber.release());
}

void EventFiber::destroy() { delete std::exchange(instance, nullptr); }

bool EventFiber::mayRun()
{
    const auto* const application = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!application || QThread::currentThread() != application->thread())
        return false;
    return instance ? !instance->m_fiber->isRunning() && loopLevel() == instance->m_level
                    : loopLevel() == 0;
}

void EventFiber::poll(int milliseconds)
{
    if (!mayRun())
        return;
    // Somebody may have told the loop to quit. A program that polls ends by other means.
    if (instance && instance->m_fiber->isFinished()) {
        qRemovePostRoutine(destroy);
        destroy();
    }
    if (!instance) {
        instance = new EventFiber;
        // The handlers need Qt, so they end with the application object at the latest.
        qAddPostRoutine(destroy);
    }
    instance->run(Goal::TimeIsOver, usualRounds, milliseconds);
}

bool EventFiber::unwind()
{
    if (instance && instance->m_level > 1 && mayRun())
        instance->run(Goal::OnlyOuterLoop, patientRounds, 0);
    return loopLevel() <= 1;
}

void EventFiber::run(Goal goal, int rounds, int milliseconds)
{
    m_goal = goal;
    m_rounds = rounds;
    m_time = std::chrono::milliseconds(milliseconds);
    m_sinceStart.start();
    QAbstractEventDispatcher::instance()->wakeUp();
    m_fiber->resume();
    m_level = loopLevel();
}

// Called by the dispatcher between two turns, in whatever loop.
void EventFiber::endRound()
{
    // The program runs Qt's events by itself, too.
    if (!m_fiber->isRunning())
        return;
    bool done = --m_rounds <= 0;
    if (m_goal == Goal::TimeIsOver)
        done = done || std::chrono::nanoseconds(m_sinceStart.nsecsElapsed()) >= m_time;
    else if (m_goal == Goal::OnlyOuterLoop)
        done = done || loopLevel() <= 1;
    if (done)
        m_fiber->suspend();
    else
        QAbstractEventDispatcher::instance()->wakeUp(); // the next turn mustn't wait
}
