// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldSensor.h"

#include "KnField.h"
#include "KnSensorQueue.h"

#include <utility>

KnSensor::~KnSensor() { KnSensorQueue::getInstance().remove(this); }

KnFieldSensor::~KnFieldSensor() { detach(); }

void KnFieldSensor::attach(KnField* field)
{
    detach();
    if (!field)
        return;
    if (field->m_sensors.empty())
        field->watchBegins();
    m_field = field;
    field->m_sensors.push_back(this);
}

void KnFieldSensor::detach()
{
    KnSensorQueue::getInstance().remove(this);
    if (!m_field)
        return;
    KnField* const field = std::exchange(m_field, nullptr);
    std::erase(field->m_sensors, this);
    if (field->m_sensors.empty())
        field->watchEnds();
}
