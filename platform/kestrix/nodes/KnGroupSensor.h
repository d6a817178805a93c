// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldSensor.h"

class KnGroup;

/// Watches the children of one group. The callback runs as that of a KnFieldSensor does: from the
/// kernel's queue, on the user interface thread, once for any number of changes.
class KnGroupSensor : public KnSensor {
public:
    /// The children from `first` on, `removed` of them, were replaced by `inserted` others; all
    /// before and behind them are the same as before, in the same order.
    struct Change {
        int first = 0;
        int removed = 0;
        int inserted = 0;

        /// Adds what happened next.
        void add(const Change& next);
    };

    using KnSensor::KnSensor;
    ~KnGroupSensor() override;

    /// Detaches from the group watched so far. Null only detaches.
    void attach(KnGroup* group);
    /// Also drops a notification that waits in the queue.
    void detach();
    /// Null also when the group has been destroyed.
    KnGroup* getAttachedGroup() const { return m_group; }

    /// What has changed since the last call, or since the sensor was attached: the smallest range
    /// that holds all changes. A child that moved within it counts as removed and inserted.
    Change takeChange();
    /// Whether `takeChange` has something to say.
    bool hasChanged() const { return m_change.removed > 0 || m_change.inserted > 0; }

private:
    friend class KnGroup;

    void childrenReplaced(const Change& change);

    KnGroup* m_group = nullptr; // not owned; a group that goes away detaches its sensors
    Change m_change;
};
