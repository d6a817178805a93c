// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldSensor.h"

#include <unordered_set>

class KnFieldContainer;

/// Watches the names of all nodes. The callback runs as that of a KnFieldSensor does: from the
/// kernel's queue, on the user interface thread, once for any number of changes. A node that nobody
/// holds a reference on isn't reported, so making and naming nodes costs nothing; and while no
/// sensor is attached, naming any node costs a look at one pointer.
class KnNameSensor : public KnSensor {
public:
    /// Only to be compared with others: they may have died since.
    using Nodes = std::unordered_set<const KnFieldContainer*>;

    using KnSensor::KnSensor;
    ~KnNameSensor() override;

    /// Detaching also drops a notification that waits in the queue.
    void setAttached(bool attached);

    /// The nodes that were renamed since the last call, or since the sensor was attached.
    Nodes takeNodes();

private:
    friend class KnFieldContainer;

    static void report(const KnFieldContainer& node);

    bool m_attached = false;
    KnNameSensor* m_next = nullptr; // not owned; the next in the list of those attached
    Nodes m_nodes;
};
