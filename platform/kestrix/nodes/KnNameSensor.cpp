// SPDX-License-Identifier: BSD-3-Clause
#include "KnNameSensor.h"

#include "KnFieldContainer.h"
#include "KnSensorQueue.h"
#include "KnWriteThread.h"

#include <utility>

namespace {

KnNameSensor* firstAttached = nullptr; // not owned; a sensor that goes away leaves

} // namespace

KnNameSensor::~KnNameSensor() { setAttached(false); }

void KnNameSensor::setAttached(bool attached)
{
    if (attached == m_attached)
        return;
    m_attached = attached;
    if (attached) {
        m_next = std::exchange(firstAttached, this);
        return;
    }
    KnSensorQueue::getInstance().remove(this);
    m_nodes.clear();
    KnNameSensor** link = &firstAttached;
    while (*link != this)
        link = &(*link)->m_next;
    *link = std::exchange(m_next, nullptr);
}

KnNameSensor::Nodes KnNameSensor::takeNodes() { return std::exchange(m_nodes, Nodes()); }

void KnNameSensor::report(const KnFieldContainer& node)
{
    if (!firstAttached || node.getReferenceCount() == 0)
        return;
    KnWriteThread::check();
    for (KnNameSensor* sensor = firstAttached; sensor; sensor = sensor->m_next) {
        sensor->m_nodes.insert(&node);
        KnSensorQueue::getInstance().schedule(sensor);
    }
}
