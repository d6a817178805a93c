// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodesSensor.h"

/// Watches the names of all nodes.
class KnNameSensor : public KnNodesSensor {
public:
    KnNameSensor(Callback callback, void* data)
        : KnNodesSensor(attachedSensors, callback, data)
    {
    }

private:
    friend class KnFieldContainer;

    static void report(const KnFieldContainer& node)
    {
        KnNodesSensor::report(attachedSensors, node);
    }

    static List attachedSensors;
};
