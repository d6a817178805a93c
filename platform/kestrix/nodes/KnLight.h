// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNode.h"
#include "KnSFields.h"

/// What all lights share.
class KnLight : public KnNode {
public:
    static KnType getClassTypeId();

    KnSFBool on;
    KnSFFloat intensity; ///< 0 to 1
    KnSFColor color;

protected:
    /// For a derived class; `data` is its table.
    explicit KnLight(KnFieldData& data);
};
