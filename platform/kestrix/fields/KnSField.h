// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnField.h"

/// Base of all fields that hold one value.
class KnSField : public KnField {
public:
    static KnType getClassTypeId();
};
