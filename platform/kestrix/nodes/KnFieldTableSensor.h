// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodesSensor.h"

/// Watches which fields nodes have, for those whose fields come and go while the program runs. A
/// field that was exchanged for another one remains alive with its node, and still has its index.
class KnFieldTableSensor : public KnNodesSensor {
public:
    KnFieldTableSensor(Callback callback, void* data)
        : KnNodesSensor(attachedSensors, callback, data)
    {
    }

    /// For a node that has other fields from now on.
    static void report(const KnFieldContainer& node)
    {
        KnNodesSensor::report(attachedSensors, node);
    }

private:
    static List attachedSensors;
};
