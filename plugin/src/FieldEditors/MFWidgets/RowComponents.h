// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbComponents.h"

/// The columns of a row in the table of an array: the value's components,
template <class Value>
struct RowComponents : KbComponents<Value> {
};

/// except for a rotation, whose columns are its quaternion.
template <>
struct RowComponents<KbRotation> : KbComponents<KbRotation> {
    static Numbers read(const KbRotation& rotation) { return rotation.getValue(); }
    static KbRotation make(const Numbers& numbers)
    {
        const float quaternion[count] = { numbers[0], numbers[1], numbers[2], numbers[3] };
        return KbRotation(quaternion);
    }
};
