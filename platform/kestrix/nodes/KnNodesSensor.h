// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldSensor.h"

#include <unordered_set>

class KnFieldContainer;

/// Base of what watches all nodes for one kind of change. The callback runs as that of a
/// KnFieldSensor does: from the kernel's queue, on the user interface thread, once for any number
/// of changes. A node that nobody holds a reference on isn't reported, so making nodes costs
/// nothing; and while no sensor is attached, a change costs a look at one pointer.
class KnNodesSensor : public KnSensor {
public:
    /// Only to be compared with others: they may have died since.
    using Nodes = std::unordered_set<const KnFieldContainer*>;

    ~KnNodesSensor() override;

    /// Detaching also drops a notification that waits in the queue.
    void setAttached(bool attached);

    /// The nodes that have changed since the last call, or since the sensor was attached.
    Nodes takeNodes();

protected:
    /// The sensors of one kind that are attached, the one attached last first.
    struct List {
        KnNodesSensor* first = nullptr; // not owned; a sensor that goes away leaves
    };

    /// `list` is that of the kind, and outlives all sensors.
    KnNodesSensor(List& list, Callback callback, void* data);
    static void report(const List& list, const KnFieldContainer& node);

private:
    List& m_list;
    bool m_attached = false;
    KnNodesSensor* m_next = nullptr; // not owned; the next in the list
    Nodes m_nodes;
};
