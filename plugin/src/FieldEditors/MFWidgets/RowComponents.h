// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbComponents.h"

/// What the columns of an array's table show of a value: its components.
template <class Value>
struct RowComponents : KbComponents<Value> {
};

/// A rotation shows its quaternion instead.
template <>
struct RowComponents<KbRotation> : KbComponents<KbRotation> {
    static Numbers read(const KbRotation& rotation) { return rotation.getValue(); }
    static KbRotation make(const Numbers& numbers)
    {
        const float quaternion[count] = { numbers[0], numbers[1], numbers[2], numbers[3] };
        return KbRotation(quaternion);
    }
};
