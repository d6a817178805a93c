// SPDX-License-Identifier: BSD-3-Clause
#include "KnNodesSensor.h"

#include "KnFieldContainer.h"
#include "KnSensorQueue.h"
#include "KnWriteThread.h"

#include <utility>

KnNodesSensor::KnNodesSensor(List& list, Callback callback, void* data)
    : KnSensor(callback, data)
    , m_list(list)
{
}

KnNodesSensor::~KnNodesSensor() { setAttached(false); }

void KnNodesSensor::setAttached(bool attached)
{
    if (attached == m_attached)
        return;
    m_attached = attached;
    if (attached) {
        m_next = std::exchange(m_list.first, this);
        return;
    }
    KnSensorQueue::getInstance().remove(this);
    m_nodes.clear();
    KnNodesSensor** link = &m_list.first;
    while (*link != this)
        link = &(*link)->m_next;
    *link = std::exchange(m_next, nullptr);
}

KnNodesSensor::Nodes KnNodesSensor::takeNodes() { return std::exchange(m_nodes, Nodes()); }

void KnNodesSensor::report(const List& list, const KnFieldContainer& node)
{
    if (!list.first || node.getReferenceCount() == 0)
        return;
    KnWriteThread::check();
    for (KnNodesSensor* sensor = list.first; sensor; sensor = sensor->m_next) {
        sensor->m_nodes.insert(&node);
        KnSensorQueue::getInstance().schedule(sensor);
    }
}
