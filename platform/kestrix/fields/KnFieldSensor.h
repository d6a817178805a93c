// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class KnField;

/// Base of everything that the kernel's queue runs.
class KnSensor {
public:
    using Callback = void (*)(void* data, KnSensor* sensor);

    KnSensor(Callback callback, void* data)
        : m_callback(callback)
        , m_data(data)
    {
    }
    KnSensor(const KnSensor&) = delete;
    KnSensor& operator=(const KnSensor&) = delete;
    /// Leaves the queue.
    virtual ~KnSensor();

private:
    friend class KnSensorQueue;

    Callback m_callback;
    void* m_data; // given to the callback unchanged, not owned
    bool m_queued = false;
};

/// Watches one field. The callback runs from the kernel's queue, on the user interface thread, once
/// for any number of changes since it last ran; never inside the write that caused it. It may
/// attach, detach and destroy this sensor and others, and write fields.
class KnFieldSensor : public KnSensor {
public:
    using KnSensor::KnSensor;
    ~KnFieldSensor() override;

    /// Detaches from the field watched so far. Null only detaches.
    void attach(KnField* field);
    /// Also drops a notification that waits in the queue.
    void detach();
    KnField* getAttachedField() const { return m_field; }

protected:
    /// The watched field is being destroyed, and with it the node that it belongs to. The sensor is
    /// detached by now; it may be destroyed here, and others with it, but none may be attached to
    /// the field, and neither field nor node may be used.
    virtual void fieldDestroyed() { }
    /// The watched array has replaced `removed` rows from `start` on by `inserted` others; a row
    /// that is written in place counts as both. Called at once, from inside the write: sensors may
    /// neither come nor go here, and no field may be written.
    virtual void rowsReplaced(int /*start*/, int /*removed*/, int /*inserted*/) { }

private:
    friend class KnField;
    friend class KnMField;

    KnField* m_field = nullptr; // not owned; a field that goes away detaches its sensors
};
