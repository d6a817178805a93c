// SPDX-License-Identifier: BSD-3-Clause
#include "KnSensorQueue.h"

#include "KnFieldRecorder.h"
#include "KnFieldSensor.h"

#include <algorithm>

KnSensorQueue& KnSensorQueue::getInstance()
{
    // Outlives all static objects, since a sensor may be one.
    static KnSensorQueue& instance = *new KnSensorQueue;
    return instance;
}

void KnSensorQueue::wake() const
{
    if (m_wake && !m_processing && !m_sensors.empty())
        m_wake(m_wakeData);
}

void KnSensorQueue::setWakeCallback(WakeCallback callback, void* data)
{
    m_wake = callback;
    m_wakeData = data;
    wake();
}

void KnSensorQueue::schedule(KnSensor* sensor)
{
    if (sensor->m_queued)
        return;
    sensor->m_queued = true;
    m_sensors.push_back(sensor);
    if (m_sensors.size() == 1)
        wake();
}

void KnSensorQueue::remove(KnSensor* sensor)
{
    if (!sensor->m_queued)
        return;
    sensor->m_queued = false;
    const auto place = std::find(m_sensors.begin(), m_sensors.end(), sensor);
    if (static_cast<std::size_t>(place - m_sensors.begin()) < m_remaining)
        --m_remaining;
    m_sensors.erase(place);
}

void KnSensorQueue::process() { run(m_sensors.size()); }

void KnSensorQueue::processField(const KnField* field)
{
    if (m_processing)
        return;
    const auto end
        = std::stable_partition(m_sensors.begin(), m_sensors.end(), [field](KnSensor* sensor) {
              const auto* const watching = dynamic_cast<const KnFieldSensor*>(sensor);
              return watching && watching->getAttachedField() == field;
          });
    run(static_cast<std::size_t>(end - m_sensors.begin()));
}

/// Runs the sensors at the front.
void KnSensorQueue::run(std::size_t count)
{
    if (m_processing)
        return;
    m_processing = true;
    const KnFieldRecorder::Pause unrecorded;
    for (m_remaining = count; m_remaining > 0;) {
        KnSensor* sensor = m_sensors.front();
        m_sensors.pop_front();
        --m_remaining;
        sensor->m_queued = false;
        // Read first: the callback may destroy the sensor.
        if (const KnSensor::Callback callback = sensor->m_callback)
            callback(sensor->m_data, sensor);
    }
    m_processing = false;
    wake();
}
