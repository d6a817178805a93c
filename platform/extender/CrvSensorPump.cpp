// SPDX-License-Identifier: BSD-3-Clause
#include "CrvSensorPump.h"

#include "KnSensorQueue.h"

#include <QCoreApplication>
#include <QDebug>
#include <QEvent>
#include <QThread>

#include <memory>

namespace {

QEvent::Type batchEvent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

} // namespace

CrvSensorPump::CrvSensorPump(QObject* parent)
    : QObject(parent)
{
    KnSensorQueue& queue = KnSensorQueue::getInstance();
    queue.setWakeCallback(&CrvSensorPump::wake, this);
    // The queue only wakes when it stops being empty, which may have happened before.
    if (!queue.isEmpty())
        post();
}

CrvSensorPump::~CrvSensorPump() { KnSensorQueue::getInstance().setWakeCallback(nullptr, nullptr); }

void CrvSensorPump::wake(void* data)
{
    auto* pump = static_cast<CrvSensorPump*>(data);
    if (QThread::currentThread() == pump->thread())
        pump->post();
    else
        qCritical("A watched field was written outside the user interface thread");
}

void CrvSensorPump::post()
{
    if (m_posted)
        return;
    m_posted = true;
    // The event queue owns the event.
    auto event = std::make_unique<QEvent>(batchEvent());
    QCoreApplication::postEvent(this, event.release(), Qt::LowEventPriority);
}

void CrvSensorPump::customEvent(QEvent* event)
{
    if (event->type() != batchEvent())
        return;
    // Cleared first: what a callback touches asks for the next event.
    m_posted = false;
    KnSensorQueue::getInstance().process();
}
