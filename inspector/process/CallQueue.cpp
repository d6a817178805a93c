// SPDX-License-Identifier: BSD-3-Clause
#include "CallQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <thread>
#include <utility>

namespace {

bool isOnApplicationThread()
{
    const auto* const application = QCoreApplication::instance();
    return application && application->thread() == QThread::currentThread();
}

} // namespace

/// Takes the queue's functions to the thread that it was made on.
class CallQueue::Runner : public QObject {
public:
    explicit Runner(CallQueue& queue)
        : m_queue(queue)
    {
    }

    const std::thread::id thread = std::this_thread::get_id();

protected:
    void customEvent(QEvent*) override { m_queue.run(); }

private:
    CallQueue& m_queue;
};

CallQueue::CallQueue() = default;
CallQueue::~CallQueue() = default;

CallQueue& CallQueue::getInstance()
{
    static CallQueue& instance = *new CallQueue;
    return instance;
}

void CallQueue::call(std::function<void()> function)
{
    if (isOnThread()) {
        serve();
        function();
        return;
    }
    const std::lock_guard lock(m_mutex);
    m_functions.push_back(std::move(function));
    if (m_functions.size() == 1)
        wake();
}

bool CallQueue::isOnThread()
{
    const std::lock_guard lock(m_mutex);
    // Asking Qt would make a thread object of its for each thread that calls.
    return m_runner ? m_runner->thread == std::this_thread::get_id() : isOnApplicationThread();
}

void CallQueue::serve()
{
    if (!isOnApplicationThread())
        return;
    const std::lock_guard lock(m_mutex);
    if (m_runner)
        return;
    m_runner = std::make_unique<Runner>(*this);
    qAddPostRoutine(stop);
    wake();
}

void CallQueue::stop()
{
    CallQueue& queue = getInstance();
    const std::lock_guard lock(queue.m_mutex);
    queue.m_runner.reset();
}

/// With the mutex locked.
void CallQueue::wake()
{
    if (m_runner && !m_functions.empty())
        QCoreApplication::postEvent(m_runner.get(), new QEvent(QEvent::User)); // which Qt owns
}

// One at a time: a function may open a dialog, in whose loop the next one runs.
void CallQueue::run()
{
    std::function<void()> function;
    {
        const std::lock_guard lock(m_mutex);
        function = std::move(m_functions.front());
        m_functions.pop_front();
        wake();
    }
    function();
}
