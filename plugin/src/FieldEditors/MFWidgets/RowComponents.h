// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ValueComponents.h"

/// How a row of an array splits into the columns of its table: as ValueComponents does.
template <class Value>
struct RowComponents : ValueComponents<Value> {
};

/// But the columns of a rotation are its quaternion.
template <>
struct RowComponents<KbRotation> : ValueComponents<KbRotation> {
    static Numbers read(const KbRotation& rotation) { return rotation.getValue(); }
    static KbRotation make(const Numbers& numbers)
    {
        const float quaternion[count] = { numbers[0], numbers[1], numbers[2], numbers[3] };
        return KbRotation(quaternion);
    }
};
