// SPDX-License-Identifier: BSD-3-Clause
#include "KnGroupSensor.h"

#include "KnGroup.h"
#include "KnSensorQueue.h"

#include <algorithm>
#include <utility>

void KnGroupSensor::Change::add(const Change& next)
{
    if (removed == 0 && inserted == 0) {
        *this = next;
        return;
    }
    // Both ranges in the numbers that hold between the two changes.
    const int begin = std::min(first, next.first);
    const int end = std::max(first + inserted, next.first + next.removed);
    removed = end - (inserted - removed) - begin;
    inserted = end - next.removed + next.inserted - begin;
    first = begin;
}

KnGroupSensor::~KnGroupSensor() { detach(); }

void KnGroupSensor::attach(KnGroup* group)
{
    detach();
    if (!group)
        return;
    group->lookAtChildren(); // what a first look makes is no change
    m_group = group;
    group->m_sensors.push_back(this);
}

void KnGroupSensor::detach()
{
    KnSensorQueue::getInstance().remove(this);
    m_change = Change();
    if (!m_group)
        return;
    std::erase(m_group->m_sensors, this);
    m_group = nullptr;
}

KnGroupSensor::Change KnGroupSensor::takeChange() { return std::exchange(m_change, Change()); }

void KnGroupSensor::childrenReplaced(const Change& change)
{
    m_change.add(change);
    KnSensorQueue::getInstance().schedule(this);
}
