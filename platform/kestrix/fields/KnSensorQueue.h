// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstddef>
#include <deque>

class KnField;
class KnSensor;

/// The queue of sensors that wait to run, in the order in which they were touched. User interface
/// thread only.
class KnSensorQueue {
public:
    using WakeCallback = void (*)(void* data);

    static KnSensorQueue& getInstance();

    /// Tells the host that sensors are waiting. The callback is called when the first sensor enters
    /// an empty queue, at the end of a `process` if some wait by then, and at once if some are
    /// waiting already. Null removes it.
    void setWakeCallback(WakeCallback callback, void* data);

    /// Puts a sensor at the end; one that already waits stays where it is.
    void schedule(KnSensor* sensor);
    void remove(KnSensor* sensor);

    bool isEmpty() const { return m_sensors.empty(); }
    /// Runs the sensors that wait now, in order. What a callback touches waits for the next run,
    /// for which the host is woken. Called from within a callback, it does nothing.
    void process();
    /// The same, but runs the sensors of this field alone. The others go on waiting.
    void processField(const KnField* field);

private:
    KnSensorQueue() = default;

    void run(std::size_t count);

    void wake() const;

    std::deque<KnSensor*> m_sensors; // not owned; a sensor that goes away leaves
    std::size_t m_remaining = 0; // how many at the front the current run still has to run
    WakeCallback m_wake = nullptr;
    void* m_wakeData = nullptr;
    bool m_processing = false;
};
