// SPDX-License-Identifier: BSD-3-Clause
#include "CrvSensorPump.h"

#include "KnSensorQueue.h"
#include "KnWriteThread.h"

#include <QCoreApplication>
#include <QDebug>
#include <QEvent>
#include <QThread>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

// Qt draws with the lowest priority. Not for all batches: sensors that touch what they watch would
// keep windows from being drawn.
constexpr int beforePainting = Qt::LowEventPriority + 1;

QEvent::Type batchEvent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

} // namespace

CrvSensorPump::CrvSensorPump(QObject* parent)
    : QObject(parent)
{
    KnWriteThread::setCurrent();
    KnSensorQueue& queue = KnSensorQueue::getInstance();
    queue.setWakeCallback(&CrvSensorPump::wake, this);
    // The queue only wakes when it stops being empty, which may have happened before.
    if (!queue.isEmpty())
        post();
}

CrvSensorPump::~CrvSensorPump()
{
    KnSensorQueue::getInstance().setWakeCallback(nullptr, nullptr);
    KnWriteThread::reset();
}

void CrvSensorPump::setPaused(bool paused)
{
    m_paused = paused;
    m_hurriedFields.clear();
    if (!paused && !KnSensorQueue::getInstance().isEmpty())
        post();
}

void CrvSensorPump::hurry(const KnField* field)
{
    if (!KnSensorQueue::getInstance().isEmpty()) {
        m_hurried = true;
        // Several steps may be undone in one go.
        if (m_paused && field)
            m_hurriedFields.push_back(field);
        QCoreApplication::removePostedEvents(this, batchEvent());
        m_posted = false;
        post(beforePainting);
    }
    Q_EMIT hurried(field);
}

void CrvSensorPump::wake(void* data)
{
    auto* pump = static_cast<CrvSensorPump*>(data);
    if (QThread::currentThread() == pump->thread())
        pump->post();
    else
        qCritical("A watched field was written outside the user interface thread");
}

void CrvSensorPump::post(int priority)
{
    if (m_posted)
        return;
    m_posted = true;
    // The event queue owns the event.
    auto event = std::make_unique<QEvent>(batchEvent());
    QCoreApplication::postEvent(this, event.release(), priority);
}

/// In milliseconds, until the next batch is due.
int CrvSensorPump::timeToWait() const
{
    if (m_interval == 0 || !m_sinceRun.isValid())
        return 0;
    return static_cast<int>(std::max<qint64>(m_interval - m_sinceRun.elapsed(), 0));
}

void CrvSensorPump::customEvent(QEvent* event)
{
    if (event->type() != batchEvent())
        return;
    // Cleared first: what a callback touches asks for the next event.
    m_posted = false;
    const bool isHurried = std::exchange(m_hurried, false);
    if (m_paused) {
        const std::vector<const KnField*> fields = std::exchange(m_hurriedFields, {});
        for (const KnField* field : fields)
            KnSensorQueue::getInstance().processField(field);
    } else if (const int wait = isHurried ? 0 : timeToWait()) {
        m_timer.start(wait, Qt::PreciseTimer, this);
    } else {
        run();
    }
}

void CrvSensorPump::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    if (m_paused)
        m_timer.stop();
    else
        run();
}

void CrvSensorPump::run()
{
    m_timer.stop();
    m_sinceRun.start();
    KnSensorQueue::getInstance().process();
}
