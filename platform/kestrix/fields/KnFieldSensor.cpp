// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldSensor.h"

#include "KnField.h"
#include "KnSensorQueue.h"

KnSensor::~KnSensor() { KnSensorQueue::getInstance().remove(this); }

KnFieldSensor::~KnFieldSensor() { detach(); }

void KnFieldSensor::attach(KnField* field)
{
    detach();
    if (!field)
        return;
    m_field = field;
    field->m_sensors.push_back(this);
}

void KnFieldSensor::detach()
{
    KnSensorQueue::getInstance().remove(this);
    if (!m_field)
        return;
    std::erase(m_field->m_sensors, this);
    m_field = nullptr;
}
